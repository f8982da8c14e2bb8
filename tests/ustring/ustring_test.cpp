#include "ustring.h"

#include <gtest/gtest.h>

#include <climits>
#include <functional>
#include <stdexcept>
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

INSTANTIATE_TEST_SUITE_P(
    Texts, UstringUnicode,
    testing::Values(UnicodeRow{"Empty", "", true, u"", "", ""},
                    UnicodeRow{"Composed", "\xC3\xA9", true, u"\u00E9", "\xC3\xA9", "e\xCC\x81"},
                    UnicodeRow{"Decomposed", "e\xCC\x81", true, u"e\u0301", "\xC3\xA9", "e\xCC\x81"},
                    UnicodeRow{"Astral", "\xF0\x9F\x98\x80", true, u"\U0001F600", "\xF0\x9F\x98\x80",
                               "\xF0\x9F\x98\x80"},
                    UnicodeRow{"BadContinuation", "\xC3\x28", false, u"", "", ""}),
    testsupport::RowName());

// The buffer fits the need (length + 1), shrinking only below half of it.
TEST(UstringCapacity, ExactFitAndImpossibleSizes)
{
    ustring s("0123456789");
    EXPECT_EQ(s.capacity(), 11UL);
    s = "0123";
    EXPECT_EQ(s.capacity(), 11UL) << "need 5 is not below half of 11";
    s = "x";
    EXPECT_EQ(s.capacity(), 2UL);
    EXPECT_THROW(s.append('x', ULONG_MAX - 2), std::bad_alloc);
    EXPECT_THROW(s.append(static_cast<unsigned short>('x'), ULONG_MAX / 2), std::bad_alloc);
    EXPECT_STREQ(s.c_str(), "x");
}

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

INSTANTIATE_TEST_SUITE_P(
    Edits, UstringEdit,
    testing::Values(EditRow{"AppendOwnCStr", "abc", [](S s) { s.append(s.c_str()); }, "abcabc"},
                    EditRow{"AppendSelfMovesBuffer", "abcabc", [](S s) { s += s; }, "abcabcabcabc"},
                    EditRow{"AssignSelf", "hello", [](S s) { s = s; }, "hello"},
                    EditRow{"AssignOwnCStrTruncates", "hello", [](S s) { s.assign(s.c_str(), 4); }, "hell"},
                    EditRow{"AssignOwnCStrLongerCount", "hell", [](S s) { s.assign(s.c_str(), 99); }, "hell"},
                    EditRow{"AssignOwnRange", "hello", [](S s) { s.assign(s, 1, 2); }, "el"},
                    EditRow{"AssignOwnUtf16Prefix", "\xC3\xA9t\xC3\xA9",
                            [](S s) { s.assign(s.c_str_utf16(), 2); }, "\xC3\xA9t"},
                    EditRow{"Utf16AfterUtf8Append", "ab", [](S s) { (s += "c").append(W(u'd'), 2); },
                            "abcdd"},
                    EditRow{"NulByteAddsNothing", "ab", [](S s) { s.append('\0', 3); }, "ab"},
                    EditRow{"StdStringStopsAtNul", "x", [](S s) { s += std::string("a\0b", 3); }, "xa"},
                    EditRow{"StdStringRange", "x", [](S s) { s.append(std::string("0123"), 1, 2); }, "x12"},
                    EditRow{"Concatenation", "x", [](S s) { s = s + 'z' + "!" + W(0xE9); }, "xz!\xC3\xA9"},
                    EditRow{"CopyIsIndependent", "one", [](S s) { s += ustring(s) += "two"; }, "oneonetwo"},
                    EditRow{"Clear", "some text", [](S s) { s.clear(); }, ""},
                    EditRow{"Swap", "one",
                            [](S s) {
                                ustring other("\xC3\xA9");
                                swap(s, other);
                            },
                            "\xC3\xA9"},
                    EditRow{"UnpairedSurrogateEmpties", "abc", [](S s) { s += W(0xDC00); }, ""},
                    EditRow{"Utf16AppendToInvalidUtf8", "\xFF\xFE", [](S s) { s += Units(u"ok"); }, "ok"},
                    EditRow{"TrimSpaceTab", " \ta b\t ", [](S s) { s.trim(" \t"); }, "a b"},
                    EditRow{"LtrimOnlySetBytes", "xxxx", [](S s) { s.ltrim("x"); }, ""},
                    EditRow{"RtrimOnlySetBytes", "xxxx", [](S s) { s.rtrim(ustring("x")); }, ""},
                    EditRow{"LtrimKeepsRight", "//a//", [](S s) { s.ltrim("/"); }, "a//"},
                    EditRow{"RtrimKeepsLeft", "//a//", [](S s) { s.rtrim("/"); }, "//a"},
                    EditRow{"TrimEmptySet", " a ", [](S s) { s.trim(""); }, " a "}),
    testsupport::RowName());

TEST(UstringSubstr, BoundsAndFailedAssignments)
{
    const ustring s("abc");
    EXPECT_STREQ(s.substr(3, 5).c_str(), "");
    EXPECT_STREQ(s.substr(1, ustring::npos).c_str(), "bc");
    EXPECT_THROW(s.substr(4, 1), std::out_of_range);
    ustring target("old");
    EXPECT_THROW(target.assign(s, 4, 1), std::out_of_range);
    EXPECT_TRUE(target.empty());
    target = "old";
    EXPECT_THROW(target.assign(target, 4, 1), std::out_of_range);
    EXPECT_STREQ(target.c_str(), "old") << "self-assignment copies before emptying";
}

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

INSTANTIATE_TEST_SUITE_P(Kinds, UstringSearch,
                         testing::Values(SearchRow{"FindEmptyAtStart", "abc", Kind::Find, "", 0, 0},
                                         SearchRow{"FindEmptyAtEnd", "abc", Kind::Find, "", 3, N},
                                         SearchRow{"FindAtEnd", "abcabc", Kind::Find, "bc", 2, 4},
                                         SearchRow{"FindNoRunPastEnd", "abcab", Kind::Find, "abc", 1, N},
                                         SearchRow{"FindInEmpty", "", Kind::Find, "", 0, N},
                                         SearchRow{"RFindEmptyFromNpos", "abc", Kind::RFind, "", N, 2},
                                         SearchRow{"RFindAtOrBeforePos", "abcb", Kind::RFind, "b", 2, 1},
                                         SearchRow{"RFindNoRunPastEnd", "abcab", Kind::RFind, "abc", N, 0},
                                         SearchRow{"RFindInEmpty", "", Kind::RFind, "", N, N},
                                         SearchRow{"FirstOfEmptySet", "abc", Kind::FirstOf, "", 0, N},
                                         SearchRow{"FirstOfSet", "a/b\\c", Kind::FirstOf, "\\/", 2, 3},
                                         SearchRow{"FirstNotOfEmptySet", "abc", Kind::FirstNotOf, "", 1, 1},
                                         SearchRow{"FirstNotOfAllInSet", "aaa", Kind::FirstNotOf, "a", 0, N},
                                         SearchRow{"LastOfFromPos", "a/b/c", Kind::LastOf, "/", 2, 1},
                                         SearchRow{"LastOfPosBeyondEnd", "a/b/", Kind::LastOf, "/", 99, 3},
                                         SearchRow{"LastOfNonAscii", "a\xC3\xA9", Kind::LastOf, "\xC3", N, 1},
                                         SearchRow{"LastNotOfEmptySet", "abc", Kind::LastNotOf, "", N, 2},
                                         SearchRow{"LastNotOfSkips", "ab//", Kind::LastNotOf, "/", N, 1},
                                         SearchRow{"LastNotOfAllInSet", "//", Kind::LastNotOf, "/", N, N}),
                         testsupport::RowName());

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
        EXPECT_EQ(a == b, r.expected == 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Pairs, UstringCompare,
                         testing::Values(CompareRow{"UpperBeforeLower", "B", "a", false, 'B' - 'a'},
                                         CompareRow{"Equal", "abc", "abc", false, 0},
                                         CompareRow{"PrefixIsSmaller", "ab", "abc", false, -'c'},
                                         CompareRow{"BytesAreUnsigned", "\xC3", "a", false, 0xC3 - 'a'},
                                         CompareRow{"CaseFoldAToZ", "AZ", "az", true, 0},
                                         CompareRow{"CaseFoldDifference", "aBd", "Abc", true, 'd' - 'c'},
                                         CompareRow{"CaseFoldLeavesNonAscii", "\xC3\x84", "\xC3\xA4", true,
                                                    -0x20},
                                         CompareRow{"CaseFoldLeavesPunctuation", "[", "{", true, '[' - '{'}),
                         testsupport::RowName());

} // namespace
