#include "ustring.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <string>

#include "test_rows.h"

namespace {

using U16 = std::u16string;

U16 Utf16(const ustring& s)
{
    return U16(reinterpret_cast<const char16_t*>(s.c_str_utf16()));
}

const unsigned short* Units(const U16& s)
{
    return reinterpret_cast<const unsigned short*>(s.c_str());
}

struct UnicodeRow {
    std::string name, bytes;
    bool valid;
    U16 units;
    std::string nfc, nfd;
};

class UstringUnicode : public testing::TestWithParam<UnicodeRow> {};

TEST_P(UstringUnicode, ValidityConversionAndNormalForms)
{
    const UnicodeRow& r = GetParam();
    const ustring s(r.bytes.c_str());
    EXPECT_EQ(ustring::is_valid(s), r.valid);
    if (!r.valid)
        return;
    EXPECT_EQ(Utf16(s), r.units);
    EXPECT_STREQ(ustring(Units(r.units)).c_str(), r.bytes.c_str());
    EXPECT_STREQ(s.normalize(ustring::NFC).c_str(), r.nfc.c_str());
    EXPECT_STREQ(ustring::normalize(s, ustring::NFD).c_str(), r.nfd.c_str());
}

const UnicodeRow kTexts[] = {
    {"Empty", "", true, u"", "", ""},
    {"Composed", "\xC3\xA9", true, u"\u00E9", "\xC3\xA9", "e\xCC\x81"},
    {"Decomposed", "e\xCC\x81", true, u"e\u0301", "\xC3\xA9", "e\xCC\x81"},
    {"Astral", "\xF0\x9F\x98\x80", true, u"\U0001F600", "\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},
    {"BadContinuation", "\xC3\x28", false, u"", "", ""},
};
INSTANTIATE_TEST_SUITE_P(Texts, UstringUnicode, ::testing::ValuesIn(kTexts), testsupport::RowName());

// An edit of a string whose UTF-16 form was built before: afterwards both
// forms must hold `after`.
struct EditRow {
    std::string name, before;
    std::function<void(ustring&)> edit;
    std::string after;
};

class UstringEdit : public testing::TestWithParam<EditRow> {};

TEST_P(UstringEdit, KeepsBothFormsCurrent)
{
    const EditRow& r = GetParam();
    ustring s(r.before.c_str());
    s.c_str_utf16();
    r.edit(s);
    EXPECT_STREQ(s.c_str(), r.after.c_str());
    EXPECT_EQ(s.length(), r.after.size());
    EXPECT_EQ(Utf16(s), Utf16(ustring(r.after.c_str()))) << "stale UTF-16 form";
}

using S = ustring&;
using W = unsigned short;

const EditRow kEdits[] = {
    {"AppendOwnCStr", "abc", [](S s) { s.append(s.c_str()); }, "abcabc"},
    {"AppendSelfMovesBuffer", "abcabc", [](S s) { s += s; }, "abcabcabcabc"},
    {"AssignSelf", "hello", [](S s) { s = s; }, "hello"},
    {"AssignOwnCStrTruncates", "hello", [](S s) { s.assign(s.c_str(), 4); }, "hell"},
    {"AssignOwnRange", "hello", [](S s) { s.assign(s, 1, 2); }, "el"},
    {"Utf16Prefix", "\xC3\xA9t", [](S s) { s.assign(s.c_str_utf16(), 1); }, "\xC3\xA9"},
    {"Utf16AfterUtf8", "a", [](S s) { (s += "b").append(W(u'c'), 2); }, "abcc"},
    {"NulByteAddsNothing", "ab", [](S s) { s.append('\0', 3); }, "ab"},
    {"StdStringStopsAtNul", "x", [](S s) { s += std::string("a\0b", 3); }, "xa"},
    {"Concatenation", "x", [](S s) { s = s + 'z' + "!" + W(0xE9); }, "xz!\xC3\xA9"},
    {"UnpairedSurrogateEmpties", "abc", [](S s) { s += W(0xDC00); }, ""},
    {"Utf16AppendToInvalidUtf8", "\xFF\xFE", [](S s) { s += Units(u"ok"); }, "ok"},
    {"SubstrAtEnd", "abc", [](S s) { s = s.substr(3, 5); }, ""},
    {"SubstrPastEndThrows", "abc", [](S s) { EXPECT_THROW(s.substr(4, 1), std::out_of_range); }, "abc"},
    {"FailedSelfAssignKeeps", "ab", [](S s) { EXPECT_THROW(s.assign(s, 3, 1), std::out_of_range); }, "ab"},
    {"ImpossibleSizeThrows", "ab", [](S s) { EXPECT_THROW(s.append('x', ULONG_MAX - 2), std::bad_alloc); },
     "ab"},
    {"TrimSpaceTab", " \ta b\t ", [](S s) { s.trim(" \t"); }, "a b"},
    {"LtrimOnlySetBytes", "xxxx", [](S s) { s.ltrim("x"); }, ""},
    {"RtrimOnlySetBytes", "xxxx", [](S s) { s.rtrim(ustring("x")); }, ""},
    {"LtrimKeepsRight", "//a//", [](S s) { s.ltrim("/"); }, "a//"},
    {"RtrimKeepsLeft", "//a//", [](S s) { s.rtrim("/"); }, "//a"},
    {"TrimEmptySet", " a ", [](S s) { s.trim(""); }, " a "},
};
INSTANTIATE_TEST_SUITE_P(Edits, UstringEdit, ::testing::ValuesIn(kEdits), testsupport::RowName());

enum class Kind { Find, RFind, FirstOf, FirstNotOf, LastOf, LastNotOf };

struct SearchRow {
    std::string name, hay;
    Kind kind;
    std::string pattern;
    unsigned long pos, expected;
};

class UstringSearch : public testing::TestWithParam<SearchRow> {};

template <typename P> unsigned long Search(const ustring& s, Kind k, const P& p, unsigned long pos)
{
    return k == Kind::Find         ? s.find(p, pos)
           : k == Kind::RFind      ? s.rfind(p, pos)
           : k == Kind::FirstOf    ? s.find_first_of(p, pos)
           : k == Kind::FirstNotOf ? s.find_first_not_of(p, pos)
           : k == Kind::LastOf     ? s.find_last_of(p, pos)
                                   : s.find_last_not_of(p, pos);
}

// Every argument type must give the same answer; a one-byte or empty pattern
// is also tried as a byte (0 for empty).
TEST_P(UstringSearch, AllArgumentFormsAgree)
{
    const SearchRow& r = GetParam();
    const ustring hay(r.hay.c_str());
    EXPECT_EQ(Search(hay, r.kind, r.pattern.c_str(), r.pos), r.expected) << "const char*";
    EXPECT_EQ(Search(hay, r.kind, r.pattern, r.pos), r.expected) << "std::string";
    EXPECT_EQ(Search(hay, r.kind, ustring(r.pattern), r.pos), r.expected) << "ustring";
    if (r.pattern.size() <= 1) {
        EXPECT_EQ(Search(hay, r.kind, r.pattern.empty() ? '\0' : r.pattern[0], r.pos), r.expected) << "char";
    }
}

const unsigned long N = ustring::npos;

const SearchRow kKinds[] = {
    {"FindEmptyAtStart", "abc", Kind::Find, "", 0, 0},
    {"FindEmptyAtEnd", "abc", Kind::Find, "", 3, N},
    {"FindAtEnd", "abcabc", Kind::Find, "bc", 2, 4},
    {"FindNoRunPastEnd", "abcab", Kind::Find, "abc", 1, N},
    {"RFindEmptyFromNpos", "abc", Kind::RFind, "", N, 2},
    {"RFindAtOrBeforePos", "abcb", Kind::RFind, "b", 2, 1},
    {"RFindNoRunPastEnd", "abcab", Kind::RFind, "abc", N, 0},
    {"FirstOfSet", "a/b\\c", Kind::FirstOf, "\\/", 2, 3},
    {"FirstNotOfEmptySet", "abc", Kind::FirstNotOf, "", 1, 1},
    {"FirstNotOfAllInSet", "aaa", Kind::FirstNotOf, "a", 0, N},
    {"LastOfPosBeyondEnd", "a/b/", Kind::LastOf, "/", 99, 3},
    {"LastOfNonAscii", "a\xC3\xA9", Kind::LastOf, "\xC3", N, 1},
    {"LastNotOfSkips", "ab//", Kind::LastNotOf, "/", N, 1},
    {"LastNotOfAllInSet", "//", Kind::LastNotOf, "/", N, N},
};
INSTANTIATE_TEST_SUITE_P(Kinds, UstringSearch, ::testing::ValuesIn(kKinds), testsupport::RowName());

struct CompareRow {
    std::string name, a, b;
    bool ignore_case;
    int expected;
};

class UstringCompare : public testing::TestWithParam<CompareRow> {};

TEST_P(UstringCompare, ByteDifference)
{
    const CompareRow& r = GetParam();
    const ustring a(r.a.c_str()), b(r.b.c_str());
    EXPECT_EQ(ustring::compare(a, b, r.ignore_case), r.expected);
    if (!r.ignore_case) {
        EXPECT_EQ(a.compare(b), r.expected);
        EXPECT_EQ(a < b, r.expected < 0);
    }
}

const CompareRow kPairs[] = {
    {"UpperBeforeLower", "B", "a", false, 'B' - 'a'},
    {"Equal", "abc", "abc", false, 0},
    {"PrefixIsSmaller", "ab", "abc", false, -'c'},
    {"BytesAreUnsigned", "\xC3", "a", false, 0xC3 - 'a'},
    {"CaseFoldAToZ", "AZ", "az", true, 0},
    {"CaseFoldDifference", "aBd", "Abc", true, 'd' - 'c'},
    {"CaseFoldLeavesNonAscii", "\xC3\x84", "\xC3\xA4", true, -0x20},
    {"CaseFoldLeavesPunctuation", "[", "{", true, '[' - '{'},
};
INSTANTIATE_TEST_SUITE_P(Pairs, UstringCompare, ::testing::ValuesIn(kPairs), testsupport::RowName());

} // namespace
