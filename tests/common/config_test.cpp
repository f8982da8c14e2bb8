#include <climits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "config.h"
#include "scratch_dir.h"

namespace {

const int kPair = 0;
const int kNothing = 1;
const int kSyntaxError = 2;

struct ParseRow {
    const char* name;
    std::string line;
    bool keep_quotes;
    int result;
    const char* key;
    const char* value;
};

class ConfigParse : public ::testing::TestWithParam<ParseRow> {};

TEST_P(ConfigParse, SplitsLineIntoKeyAndValue)
{
    const ParseRow& row = GetParam();
    std::vector<char> line(row.line.begin(), row.line.end());
    line.push_back('\0');
    Config config;
    config.keep_quotes = row.keep_quotes;
    ustring key("untouched");
    ustring value("untouched");

    int result = config.parse(line.data(), static_cast<int>(row.line.size()), key, value);

    ASSERT_EQ(row.result, result) << "line \"" << row.line << "\"";
    if (result == kPair) {
        EXPECT_STREQ(row.key, key.c_str()) << "line \"" << row.line << "\"";
        EXPECT_STREQ(row.value, value.c_str()) << "line \"" << row.line << "\"";
    }
}

INSTANTIATE_TEST_SUITE_P(
    Lines, ConfigParse,
    ::testing::Values(
        ParseRow{"PidLine", "pid=1234\n", false, kPair, "pid", "1234"},
        ParseRow{"BlanksAroundEqualsAndComment", " \tkey =\t value  # note\n", false, kPair, "key", "value"},
        ParseRow{"CarriageReturnAndVerticalTabAreBlanks", "key=value\x0b\r\n", false, kPair, "key", "value"},
        ParseRow{"AllKeyCharacters", "aZ09_-.=v\n", false, kPair, "aZ09_-.", "v"},
        ParseRow{"HashAndEqualsInsideUnquotedValue", "a=b#c=d\n", false, kPair, "a", "b#c=d"},
        ParseRow{"EmptyKey", "=x\n", false, kPair, "", "x"},
        ParseRow{"Utf8Value", "name=h\xc3\xa9llo\n", false, kPair, "name", "h\xc3\xa9llo"},
        ParseRow{"DoubleQuotedWithSpace", "k=\"a b # c=d\"  # tail\n", false, kPair, "k", "a b # c=d"},
        ParseRow{"SingleQuotedKeepsDoubleQuote", "k='say \"hi\"'\n", false, kPair, "k", "say \"hi\""},
        ParseRow{"EmptyQuotedValue", "k=\"\"\n", false, kPair, "k", ""},
        ParseRow{"KeepQuotesDouble", "k=\"a b\"\n", true, kPair, "k", "\"a b\""},
        ParseRow{"KeepQuotesSingle", "k='x\"y'\n", true, kPair, "k", "'x\"y'"},
        ParseRow{"KeepQuotesLeavesUnquotedAlone", "k=plain\n", true, kPair, "k", "plain"},
        ParseRow{"LastLineWithoutLineFeed", "k=v", false, kPair, "k", "v"},
        ParseRow{"EmptyLine", "", false, kNothing, "", ""},
        ParseRow{"BlankLine", " \t\r\n", false, kNothing, "", ""},
        ParseRow{"CommentLine", "  # key=value\n", false, kNothing, "", ""},
        ParseRow{"KeyAtEndWithoutLineFeed", "lonely", false, kNothing, "", ""},
        ParseRow{"KeyDirectlyBeforeHash", "key#x=1\n", false, kNothing, "", ""},
        ParseRow{"BareKey", "key\n", false, kSyntaxError, "", ""},
        ParseRow{"KeyBlankHash", "key  # c\n", false, kSyntaxError, "", ""},
        ParseRow{"EmptyValue", "key=\n", false, kSyntaxError, "", ""},
        ParseRow{"OnlyBlanksAfterEquals", "key = \t\n", false, kSyntaxError, "", ""},
        ParseRow{"UnquotedValueWithSpace", "k=a b\n", false, kSyntaxError, "", ""},
        ParseRow{"UnclosedQuote", "k=\"abc\n", false, kSyntaxError, "", ""},
        ParseRow{"TabInsideQuotes", "k='a\tb'\n", false, kSyntaxError, "", ""},
        ParseRow{"DelInsideQuotes", "k='a\x7f'\n", false, kSyntaxError, "", ""},
        ParseRow{"TextAfterClosingQuote", "k=\"x\"y\n", false, kSyntaxError, "", ""},
        ParseRow{"SectionHeader", "[section]\n", false, kSyntaxError, "", ""},
        ParseRow{"SecondWordBeforeEquals", "a b=c\n", false, kSyntaxError, "", ""},
        ParseRow{"ColonSeparator", "key:value\n", false, kSyntaxError, "", ""},
        ParseRow{"NonAsciiInKey", "k\xc3\xa9=v\n", false, kSyntaxError, "", ""},
        ParseRow{"ControlCharacterInTail", "k=v\x01\n", false, kSyntaxError, "", ""},
        ParseRow{"DelInTail", "k=v\x7f\n", false, kSyntaxError, "", ""},
        ParseRow{"NonAsciiInTail", "k=v \xc3\xa9\n", false, kSyntaxError, "", ""}),
    [](const ::testing::TestParamInfo<ParseRow>& info) { return std::string(info.param.name); });

class ConfigRead : public ::testing::Test {
protected:
    // Writes bytes to a file of the scratch folder and returns its path.
    std::string Make(const std::string& name, const std::string& bytes)
    {
        std::string path = dir_.File(name);
        EXPECT_TRUE(WriteFile(path, bytes));
        return path;
    }

    ScratchDir dir_;
    Config config_;
};

TEST_F(ConfigRead, OnlyBlankAndCommentLinesGiveEmptyMap)
{
    EXPECT_EQ(0, config_.read(Make("c", "\n# one\n   \n\t# two\n")));
    EXPECT_TRUE(config_.entries.empty());
}

TEST_F(ConfigRead, PidFile)
{
    ASSERT_EQ(0, config_.read(Make("ui.pid", "pid=1234\n")));
    EXPECT_EQ(1234, config_.get_int("pid"));
}

TEST_F(ConfigRead, LaterLineWinsAndKeyWithoutLineFeedAtEndIsIgnored)
{
    ASSERT_EQ(0, config_.read(Make("c", "k=1\nother=x\nk=2\nlonely")));
    EXPECT_EQ(2u, config_.entries.size());
    EXPECT_STREQ("2", config_.entries["k"].c_str());
    EXPECT_STREQ("x", config_.entries["other"].c_str());
}

TEST_F(ConfigRead, SecondReadMergesLaterWins)
{
    ASSERT_EQ(0, config_.read(Make("a", "a=1\nb=2\n")));
    ASSERT_EQ(0, config_.read(Make("b", "b=3\nc=4")));
    EXPECT_EQ(3u, config_.entries.size());
    EXPECT_STREQ("1", config_.entries["a"].c_str());
    EXPECT_STREQ("3", config_.entries["b"].c_str());
    EXPECT_STREQ("4", config_.entries["c"].c_str());
}

TEST_F(ConfigRead, SyntaxErrorEmptiesEverythingReadBefore)
{
    ASSERT_EQ(0, config_.read(Make("good", "a=1\n")));
    EXPECT_EQ(-1, config_.read(Make("bad", "b=2\nc d=3\ne=4\n")));
    EXPECT_TRUE(config_.entries.empty()) << config_.entries.size() << " entries survived";
}

TEST_F(ConfigRead, UnreadablePathsKeepEntries)
{
    ASSERT_EQ(0, config_.read(Make("good", "a=1\n")));
    for (const std::string& path : {std::string(), dir_.File("missing"), dir_.path()}) {
        EXPECT_EQ(-1, config_.read(path)) << "path '" << path << "'";
        EXPECT_EQ(1u, config_.entries.size()) << "path '" << path << "'";
        EXPECT_STREQ("1", config_.entries["a"].c_str()) << "path '" << path << "'";
    }
}

// fgets hands over at most 8191 bytes, so the first piece holds "a=" and
// 8189 x, and the rest of the line is parsed as a line of its own.
TEST_F(ConfigRead, LongLineIsParsedInPiecesOf8191Bytes)
{
    const std::string first = "a=" + std::string(8189, 'x');
    const std::string rest = "  b=" + std::string(10000 - 8191 - 5, 'z') + "\n";
    ASSERT_EQ(10000u, first.size() + rest.size());

    ASSERT_EQ(0, config_.read(Make("long", first + rest)));
    EXPECT_EQ(8189u, config_.entries["a"].length());
    EXPECT_EQ(10000u - 8191 - 5, config_.entries["b"].length());
}

struct IntRow {
    const char* name;
    const char* value;
    int expected;
};

class ConfigGetInt : public ::testing::TestWithParam<IntRow> {};

TEST_P(ConfigGetInt, ReadsLeadingDecimal)
{
    Config config;
    config.entries["k"] = GetParam().value;
    EXPECT_EQ(GetParam().expected, config.get_int("k")) << "value \"" << GetParam().value << "\"";
}

INSTANTIATE_TEST_SUITE_P(
    Values, ConfigGetInt,
    ::testing::Values(IntRow{"Plain", "1234", 1234}, IntRow{"Negative", "-3", -3}, IntRow{"Plus", "+5", 5},
                      IntRow{"LeadingBlank", " 7", 7}, IntRow{"HexReadsOnlyZero", "0x10", 0},
                      IntRow{"TrailingLetters", "12abc", 12}, IntRow{"Letters", "abc", 0},
                      IntRow{"Empty", "", 0}, IntRow{"TooLarge", "99999999999", INT_MAX},
                      IntRow{"TooSmall", "-99999999999", INT_MIN}),
    [](const ::testing::TestParamInfo<IntRow>& info) { return std::string(info.param.name); });

TEST(ConfigGetIntMissing, InsertsKeyWithEmptyValue)
{
    Config config;
    EXPECT_EQ(0, config.get_int("absent"));
    ASSERT_EQ(1u, config.entries.count("absent"));
    EXPECT_TRUE(config.entries["absent"].empty());
}

} // namespace
