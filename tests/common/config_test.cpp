#include <map>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "config.h"
#include "test_support.h"

namespace ts = testsupport;

namespace {

// Names each row of a table after its `name` field.
const auto RowName = [](const auto& info) { return std::string(info.param.name); };

enum Result { kPair = 0, kNothing = 1, kSyntaxError = 2 };

struct ParseRow {
    const char* name;
    std::string line;
    int result;
    const char *key = "", *value = "";
    bool keep_quotes = false;
};

class ConfigParse : public ::testing::TestWithParam<ParseRow> {};

TEST_P(ConfigParse, SplitsLineIntoKeyAndValue)
{
    const ParseRow& row = GetParam();
    SCOPED_TRACE("line \"" + row.line + "\"");
    std::string line = row.line; // parse cuts it up in place
    Config config;
    config.keep_quotes = row.keep_quotes;
    ustring key, value;

    ASSERT_EQ(row.result, config.parse(&line[0], static_cast<int>(line.size()), key, value));
    if (row.result == kPair) {
        EXPECT_STREQ(row.key, key.c_str());
        EXPECT_STREQ(row.value, value.c_str());
    }
}

INSTANTIATE_TEST_SUITE_P(
    Lines, ConfigParse,
    ::testing::Values(
        ParseRow{"PidLine", "pid=1234\n", kPair, "pid", "1234"},
        ParseRow{"BlanksAroundEqualsAndComment", " \tkey =\t value  # note\n", kPair, "key", "value"},
        ParseRow{"CarriageReturnAndVerticalTabAreBlanks", "key=value\x0b\r\n", kPair, "key", "value"},
        ParseRow{"AllKeyCharacters", "aZ09_-.=v\n", kPair, "aZ09_-.", "v"},
        ParseRow{"HashAndEqualsInsideUnquotedValue", "a=b#c=d\n", kPair, "a", "b#c=d"},
        ParseRow{"EmptyKey", "=x\n", kPair, "", "x"},
        ParseRow{"Utf8Value", "name=h\xc3\xa9llo\n", kPair, "name", "h\xc3\xa9llo"},
        ParseRow{"DoubleQuotedWithSpace", "k=\"a b # c=d\"  # tail\n", kPair, "k", "a b # c=d"},
        ParseRow{"SingleQuotedKeepsDoubleQuote", "k='say \"hi\"'\n", kPair, "k", "say \"hi\""},
        ParseRow{"EmptyQuotedValue", "k=\"\"\n", kPair, "k", ""},
        ParseRow{"KeepQuotesDouble", "k=\"a b\"\n", kPair, "k", "\"a b\"", true},
        ParseRow{"KeepQuotesSingle", "k='x\"y'\n", kPair, "k", "'x\"y'", true},
        ParseRow{"KeepQuotesLeavesUnquotedAlone", "k=plain\n", kPair, "k", "plain", true},
        ParseRow{"LastLineWithoutLineFeed", "k=v", kPair, "k", "v"},
        ParseRow{"BlankLine", " \t\r\n", kNothing}, ParseRow{"CommentLine", "  # key=value\n", kNothing},
        ParseRow{"KeyAtEndWithoutLineFeed", "lonely", kNothing},
        ParseRow{"KeyDirectlyBeforeHash", "key#x=1\n", kNothing}, ParseRow{"BareKey", "key\n", kSyntaxError},
        ParseRow{"KeyBlankHash", "key  # c\n", kSyntaxError}, ParseRow{"EmptyValue", "key=\n", kSyntaxError},
        ParseRow{"UnquotedValueWithSpace", "k=a b\n", kSyntaxError},
        ParseRow{"UnclosedQuote", "k=\"abc\n", kSyntaxError},
        ParseRow{"TabInsideQuotes", "k='a\tb'\n", kSyntaxError},
        ParseRow{"DelInsideQuotes", "k='a\x7f'\n", kSyntaxError},
        ParseRow{"TextAfterClosingQuote", "k=\"x\"y\n", kSyntaxError},
        ParseRow{"SectionHeader", "[section]\n", kSyntaxError},
        ParseRow{"SecondWordBeforeEquals", "a b=c\n", kSyntaxError},
        ParseRow{"NonAsciiInKey", "k\xc3\xa9=v\n", kSyntaxError},
        ParseRow{"ControlCharacterInTail", "k=v\x01\n", kSyntaxError},
        ParseRow{"DelInTail", "k=v\x7f\n", kSyntaxError},
        ParseRow{"NonAsciiInTail", "k=v \xc3\xa9\n", kSyntaxError}),
    RowName);

// Files read one after the other into one Config: all but the last must
// succeed, the last gives `result`, and the map ends up as `entries`.
struct ReadRow {
    const char* name;
    std::vector<std::string> files;
    int result;
    std::map<std::string, std::string> entries;
};

class ConfigRead : public ::testing::TestWithParam<ReadRow> {};

TEST_P(ConfigRead, MergesFilesIntoEntries)
{
    const ReadRow& row = GetParam();
    ts::TempDir dir;
    Config config;
    for (size_t i = 0; i < row.files.size(); ++i) {
        const std::string path = dir / std::to_string(i);
        ASSERT_TRUE(ts::WriteFile(path, row.files[i])) << path;
        ASSERT_EQ(i + 1 < row.files.size() ? 0 : row.result, config.read(path)) << "file " << i;
    }
    std::map<std::string, std::string> entries;
    for (const auto& entry : config.entries)
        entries[entry.first.c_str()] = entry.second.c_str();
    EXPECT_EQ(row.entries, entries);
}

// fgets hands over at most 8191 bytes, so the first piece holds "a=" and
// 8189 x, and the rest of the 10,000-byte line is parsed as a line of its own.
INSTANTIATE_TEST_SUITE_P(
    Files, ConfigRead,
    ::testing::Values(
        ReadRow{"OnlyBlankAndCommentLines", {"\n# one\n   \n\t# two\n"}, 0, {}},
        ReadRow{"LaterLineWinsAndLastKeyWithoutLineFeedIsIgnored",
                {"pid=1234\nk=1\nk=2\nlonely"},
                0,
                {{"pid", "1234"}, {"k", "2"}}},
        ReadRow{
            "SecondReadMergesLaterWins", {"a=1\nb=2\n", "b=3\nc=4"}, 0, {{"a", "1"}, {"b", "3"}, {"c", "4"}}},
        ReadRow{"SyntaxErrorEmptiesEverythingReadBefore", {"a=1\n", "b=2\nc d=3\ne=4\n"}, -1, {}},
        ReadRow{"LongLineIsParsedInPiecesOf8191Bytes",
                {"a=" + std::string(8189, 'x') + "  b=" + std::string(1804, 'z') + "\n"},
                0,
                {{"a", std::string(8189, 'x')}, {"b", std::string(1804, 'z')}}}),
    RowName);

// A folder opens but cannot be read: that ends the reading like the end of
// a file without pairs.
TEST(ConfigReadFailure, UnreadablePathsKeepEntries)
{
    ts::TempDir dir;
    Config config;
    config.entries["a"] = "1";
    for (const std::string& path : {std::string(), dir / "missing", dir.path()}) {
        EXPECT_EQ(path == dir.path() ? 0 : -1, config.read(path)) << "path '" << path << "'";
        EXPECT_EQ(1u, config.entries.size()) << "path '" << path << "'";
        EXPECT_STREQ("1", config.entries["a"].c_str()) << "path '" << path << "'";
    }
}

struct IntRow {
    const char *name, *value; // value nullptr: the key is missing
    int expected;
};

class ConfigGetInt : public ::testing::TestWithParam<IntRow> {};

// Also: the value is left as it was, and a missing key is added with an empty value.
TEST_P(ConfigGetInt, ReadsLeadingDecimal)
{
    const IntRow& row = GetParam();
    Config config;
    if (row.value)
        config.entries["k"] = row.value;
    EXPECT_EQ(row.expected, config.get_int("k"))
        << "value \"" << (row.value ? row.value : "<missing>") << "\"";
    ASSERT_EQ(1u, config.entries.count("k"));
    EXPECT_STREQ(row.value ? row.value : "", config.entries["k"].c_str());
}

INSTANTIATE_TEST_SUITE_P(Values, ConfigGetInt,
                         ::testing::Values(IntRow{"Plain", "1234", 1234}, IntRow{"Negative", "-3", -3},
                                           IntRow{"HexReadsOnlyZero", "0x10", 0},
                                           IntRow{"TrailingLetters", "12abc", 12},
                                           IntRow{"Letters", "abc", 0}, IntRow{"MissingKey", nullptr, 0}),
                         RowName);

} // namespace
