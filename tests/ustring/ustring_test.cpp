#include "ustring.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <string>
#include <unistd.h>

#include "test_support.h"

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

// Runs action with file descriptor 2 sent to a file and returns what it wrote there.
std::string StderrOf(const std::function<void()>& action)
{
    testsupport::TempDir dir;
    const std::string file = dir / "stderr";
    const int fd = open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600), saved = dup(2);
    EXPECT_TRUE(fd >= 0 && saved >= 0 && dup2(fd, 2) == 2) << file << ": " << strerror(errno);
    action();
    std::cerr.flush();
    dup2(saved, 2);
    close(fd);
    close(saved);
    return testsupport::ReadFile(file);
}

// Number of lines "Warning: <function>: error code 10 at line <n>" (10 is
// ICU's invalid-character code).
int CountWarnings(const std::string& err, const std::string& function)
{
    const std::string head = "Warning: " + function + ": error code 10 at line ";
    int count = 0;
    for (const std::string& line : testsupport::Lines(err))
        count += line.rfind(head, 0) == 0 && line.size() > head.size() &&
                 line.find_first_not_of("0123456789", head.size()) == std::string::npos;
    return count;
}

struct WarnRow {
    std::string name;
    std::function<ustring()> action;
    std::string function;
    int min_warnings;
    std::string result;
};

class UstringWarning : public testing::TestWithParam<WarnRow> {};

TEST_P(UstringWarning, FailsAsAWholeWithAWarning)
{
    const WarnRow& r = GetParam();
    ustring got;
    const std::string err = StderrOf([&] { got = r.action(); });
    EXPECT_STREQ(got.c_str(), r.result.c_str());
    EXPECT_GE(CountWarnings(err, r.function), r.min_warnings) << "stderr was: " << err;
}

const U16 kLoneSurrogate = {u'a', static_cast<char16_t>(0xD800), u'b'};

INSTANTIATE_TEST_SUITE_P(
    Cases, UstringWarning,
    testing::Values(
        WarnRow{"Utf16OfInvalidUtf8EveryCall",
                [s = ustring("x\xC3\x28")] {
                    return Utf16(s).empty() && Utf16(s).empty() ? s : ustring("UTF-16 form is not empty");
                },
                "u_strFromUTF8", 2, "x\xC3\x28"},
        WarnRow{"UnpairedSurrogate", [] { return ustring(Units(kLoneSurrogate)); }, "u_strToUTF8", 1, ""},
        WarnRow{"UnpairedSurrogateAppended",
                [] { return ustring("abc") + static_cast<unsigned short>(0xDC00); }, "u_strToUTF8", 1, ""},
        WarnRow{"Utf16AppendToInvalidUtf8", [] { return ustring("\xFF\xFE") + Units(u"ok"); },
                "u_strFromUTF8", 1, "ok"},
        WarnRow{"NormalizeInvalidUtf8", [] { return ustring::normalize(ustring("a\xC3\x28"), ustring::NFC); },
                "u_strFromUTF8", 1, ""}),
    [](const testing::TestParamInfo<WarnRow>& i) { return i.param.name; });

struct UnicodeRow {
    std::string name, bytes;
    bool valid;
    U16 units;
    std::string nfc, nfd;
};

class UstringUnicode : public testing::TestWithParam<UnicodeRow> {};

// Ill-formed rows stop after is_valid; their conversions are in UstringWarning.
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
    EXPECT_STREQ(s.c_str(), r.bytes.c_str()) << "normalising changed the source";
}

INSTANTIATE_TEST_SUITE_P(
    Texts, UstringUnicode,
    testing::Values(UnicodeRow{"Empty", "", true, u"", "", ""},
                    UnicodeRow{"Composed", "\xC3\xA9", true, u"\u00E9", "\xC3\xA9", "e\xCC\x81"},
                    UnicodeRow{"Decomposed", "e\xCC\x81", true, u"e\u0301", "\xC3\xA9", "e\xCC\x81"},
                    UnicodeRow{"Astral", "\xF0\x9F\x98\x80", true, u"\U0001F600", "\xF0\x9F\x98\x80",
                               "\xF0\x9F\x98\x80"},
                    UnicodeRow{"BadContinuation", "\xC3\x28", false, u"", "", ""}),
    [](const testing::TestParamInfo<UnicodeRow>& i) { return i.param.name; });

TEST(UstringCapacity, ExactFitAndImpossibleSizes)
{
    ustring s;
    EXPECT_TRUE(s.empty() && *s.c_str() == '\0' && Utf16(s).empty()) << "a new string is not empty";
    EXPECT_EQ(s.capacity(), 4UL);
    s = "0123456789";
    EXPECT_EQ(s.capacity(), 11UL);
    s = "0123";
    EXPECT_EQ(s.capacity(), 11UL) << "need 5 is not below half of 11";
    s = "x";
    EXPECT_EQ(s.capacity(), 2UL);
    s = "0123456789";
    s = "";
    EXPECT_EQ(s.capacity(), 1UL) << "assigning no bytes still fits the buffer to the need";
    s = "0123456789";
    s.clear();
    s.append('x', 0);
    EXPECT_EQ(s.capacity(), 1UL) << "appending no bytes still fits the buffer to the need";

    s = "keep";
    EXPECT_THROW(s.append('x', ULONG_MAX - 2), std::bad_alloc);
    EXPECT_THROW(s.append(static_cast<unsigned short>('x'), ULONG_MAX / 2), std::bad_alloc);
    EXPECT_STREQ(s.c_str(), "keep");
    EXPECT_EQ(s.length(), 4UL);
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

INSTANTIATE_TEST_SUITE_P(
    Edits, UstringEdit,
    testing::Values(
        EditRow{"AppendOwnCStr", "abc", [](S s) { s.append(s.c_str()); }, "abcabc"},
        EditRow{"AppendSelfMovesBuffer", "abcabc", [](S s) { s += s; }, "abcabcabcabc"},
        EditRow{"AssignSelf", "hello", [](S s) { s = s; }, "hello"},
        EditRow{"AssignOwnCStr", "hello", [](S s) { s.assign(s.c_str()); }, "hello"},
        EditRow{"AssignOwnCStrTruncates", "hello", [](S s) { s.assign(s.c_str(), 4); }, "hell"},
        EditRow{"AssignOwnCStrLongerCount", "hell", [](S s) { s.assign(s.c_str(), 99); }, "hell"},
        EditRow{"AssignOwnRange", "hello", [](S s) { s.assign(s, 1, 2); }, "el"},
        EditRow{"AssignOwnUtf16Prefix", "\xC3\xA9t\xC3\xA9", [](S s) { s.assign(s.c_str_utf16(), 2); },
                "\xC3\xA9t"},
        EditRow{"Utf16AppendAfterUtf8Append", "ab",
                [](S s) {
                    s += "c";
                    s.append(static_cast<unsigned short>(u'd'), 2);
                },
                "abcdd"},
        EditRow{"StdStringStopsAtEmbeddedNul", "x", [](S s) { s += std::string("a\0b", 3); }, "xa"},
        EditRow{"StdStringRange", "x", [](S s) { s.append(std::string("0123"), 1, 2); }, "x12"},
        EditRow{"Concatenation", "x", [](S s) { s = s + 'z' + "!" + static_cast<unsigned short>(0xE9); },
                "xz!\xC3\xA9"},
        EditRow{"CopyIsIndependent", "one", [](S s) { s += ustring(s) += "two"; }, "oneonetwo"},
        EditRow{"ClearDropsBothForms", "some text", [](S s) { s.clear(); }, ""},
        EditRow{"SwapExchangesBothForms", "one",
                [](S s) {
                    ustring other("\xC3\xA9");
                    swap(s, other);
                },
                "\xC3\xA9"},
        EditRow{"TrimSpaceTab", " \ta b\t ", [](S s) { s.trim(" \t"); }, "a b"},
        EditRow{"LtrimOnlySetBytes", "xxxx", [](S s) { s.ltrim("x"); }, ""},
        EditRow{"RtrimOnlySetBytes", "xxxx", [](S s) { s.rtrim(ustring("x")); }, ""},
        EditRow{"LtrimKeepsRight", "//a//", [](S s) { s.ltrim("/"); }, "a//"},
        EditRow{"RtrimKeepsLeft", "//a//", [](S s) { s.rtrim("/"); }, "//a"},
        EditRow{"TrimEmptySet", " a ", [](S s) { s.trim(""); }, " a "},
        EditRow{"TrimEmptyString", "", [](S s) { s.trim(" "); }, ""}),
    [](const testing::TestParamInfo<EditRow>& i) { return i.param.name; });

TEST(UstringSubstr, BoundsAndFailedAssignments)
{
    const ustring s("abc");
    EXPECT_STREQ(s.substr(3, 5).c_str(), "");
    EXPECT_STREQ(s.substr(1, ustring::npos).c_str(), "bc");
    EXPECT_STREQ(s.substr(0, 2).c_str(), "ab");
    try {
        s.substr(4, 1);
        ADD_FAILURE() << "substr past the end did not throw";
    } catch (const std::out_of_range& e) {
        EXPECT_STREQ(e.what(), "substr");
    }

    ustring target("old");
    EXPECT_THROW(target.assign(s, 4, 1), std::out_of_range);
    EXPECT_TRUE(target.empty());
    target = "old";
    EXPECT_THROW(target.assign(std::string("xy"), 3, 1), std::out_of_range);
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
                                         SearchRow{"FindFromPos", "abcabc", Kind::Find, "bc", 2, 4},
                                         SearchRow{"FindNoRunPastEnd", "abcab", Kind::Find, "abc", 1, N},
                                         SearchRow{"FindInEmpty", "", Kind::Find, "", 0, N},
                                         SearchRow{"RFindEmptyFromNpos", "abc", Kind::RFind, "", N, 2},
                                         SearchRow{"RFindByteFromNpos", "abcb", Kind::RFind, "b", N, 3},
                                         SearchRow{"RFindAtOrBeforePos", "abcb", Kind::RFind, "b", 2, 1},
                                         SearchRow{"RFindNoRunPastEnd", "abcab", Kind::RFind, "abc", N, 0},
                                         SearchRow{"RFindAtZero", "abc", Kind::RFind, "a", 0, 0},
                                         SearchRow{"RFindInEmpty", "", Kind::RFind, "", N, N},
                                         SearchRow{"FirstOfEmptySet", "abc", Kind::FirstOf, "", 0, N},
                                         SearchRow{"FirstOfSet", "a/b\\c", Kind::FirstOf, "\\/", 2, 3},
                                         SearchRow{"FirstOfPastEnd", "abc", Kind::FirstOf, "c", 3, N},
                                         SearchRow{"FirstNotOfEmptySet", "abc", Kind::FirstNotOf, "", 1, 1},
                                         SearchRow{"FirstNotOfAllInSet", "aaa", Kind::FirstNotOf, "a", 0, N},
                                         SearchRow{"FirstNotOfSkips", "  x", Kind::FirstNotOf, " ", 0, 2},
                                         SearchRow{"LastOfEmptySet", "abc", Kind::LastOf, "", N, N},
                                         SearchRow{"LastOfFromPos", "a/b/c", Kind::LastOf, "/", 2, 1},
                                         SearchRow{"LastOfPosBeyondEnd", "a/b/", Kind::LastOf, "/", 99, 3},
                                         SearchRow{"LastOfNonAsciiByte", "a\xC3\xA9", Kind::LastOf, "\xC3", N,
                                                   1},
                                         SearchRow{"LastNotOfEmptySet", "abc", Kind::LastNotOf, "", N, 2},
                                         SearchRow{"LastNotOfSkips", "ab//", Kind::LastNotOf, "/", N, 1},
                                         SearchRow{"LastNotOfAllInSet", "//", Kind::LastNotOf, "/", N, N},
                                         SearchRow{"LastNotOfInEmpty", "", Kind::LastNotOf, "", N, N}),
                         [](const testing::TestParamInfo<SearchRow>& i) { return i.param.name; });

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
        EXPECT_EQ(a > b, r.expected > 0);
        EXPECT_EQ(a == b, r.expected == 0);
        EXPECT_EQ(a != b, r.expected != 0);
    }
}

INSTANTIATE_TEST_SUITE_P(Pairs, UstringCompare,
                         testing::Values(CompareRow{"UpperBeforeLower", "B", "a", false, 'B' - 'a'},
                                         CompareRow{"Equal", "abc", "abc", false, 0},
                                         CompareRow{"PrefixIsSmaller", "ab", "abc", false, -'c'},
                                         CompareRow{"BytesAreUnsigned", "\xC3", "a", false, 0xC3 - 'a'},
                                         CompareRow{"CaseFoldAscii", "ABC", "abc", true, 0},
                                         CompareRow{"CaseFoldDifference", "aBd", "Abc", true, 'd' - 'c'},
                                         CompareRow{"CaseFoldLeavesNonAscii", "\xC3\x84", "\xC3\xA4", true,
                                                    0x84 - 0xA4},
                                         CompareRow{"CaseFoldLeavesPunctuation", "[", "{", true, '[' - '{'}),
                         [](const testing::TestParamInfo<CompareRow>& i) { return i.param.name; });

TEST(UstringCompareN, LimitsTheBytesCompared)
{
    const ustring a("abcX"), b("abcY");
    EXPECT_EQ(a.compare(b, 3), 0);
    EXPECT_EQ(a.compare(b, 4), 'X' - 'Y');
    EXPECT_EQ(a.compare(ustring("zzz"), 0), 0);
}

TEST(UstringStream, ReadsOneWordAndKeepsTextOnFailure)
{
    std::istringstream in("  first second");
    ustring s("old");
    in >> s;
    EXPECT_STREQ(s.c_str(), "first");
    in >> s >> s;
    EXPECT_STREQ(s.c_str(), "second") << "a failed read must not change the string";
    std::ostringstream out;
    out << ustring("\xC3\xA9!");
    EXPECT_EQ(out.str(), "\xC3\xA9!");
}

} // namespace
