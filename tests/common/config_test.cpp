#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "config.h"
#include "test_rows.h"
#include "test_support.h"

namespace ts = testsupport;

namespace {

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
    std::string line = row.line; // parse cuts it up in place
    Config config;
    config.keep_quotes = row.keep_quotes;
    ustring key, value;
    ASSERT_EQ(row.result, config.parse(&line[0], static_cast<int>(line.size()), key, value))
        << "line \"" << row.line << "\"";
    EXPECT_TRUE(row.result != kPair || (key == row.key && value == row.value))
        << "line \"" << row.line << "\" gives key \"" << key.c_str() << "\" and value \"" << value.c_str()
        << "\"";
}

INSTANTIATE_TEST_SUITE_P(
    Lines, ConfigParse,
    ::testing::Values(
        ParseRow{"BlanksAroundEqualsAndComment", " \tkey =\t value  # note\n", kPair, "key", "value"},
        ParseRow{"AllKeyCharacters", "aZ09_-.=v\n", kPair, "aZ09_-.", "v"},
        ParseRow{"HashAndEqualsInsideUnquotedValue", "a=b#c=d\n", kPair, "a", "b#c=d"},
        ParseRow{"DoubleQuotedWithSpace", "k=\"a b # c=d\"  # tail\n", kPair, "k", "a b # c=d"},
        ParseRow{"SingleQuotedKeepsDoubleQuote", "k='say \"hi\"'\n", kPair, "k", "say \"hi\""},
        ParseRow{"KeepQuotes", "k=\"a b\"\n", kPair, "k", "\"a b\"", true},
        ParseRow{"LastLineWithoutLineFeed", "k=v", kPair, "k", "v"},
        ParseRow{"BlankLine", " \t\r\n", kNothing}, ParseRow{"CommentLine", "  # key=value\n", kNothing},
        ParseRow{"KeyDirectlyBeforeHash", "key#x=1\n", kNothing}, ParseRow{"BareKey", "key\n", kSyntaxError},
        ParseRow{"UnquotedValueWithSpace", "k=a b\n", kSyntaxError},
        ParseRow{"UnclosedQuote", "k=\"abc\n", kSyntaxError},
        ParseRow{"SectionHeader", "[section]\n", kSyntaxError},
        ParseRow{"NonAsciiInKey", "k\xc3\xa9=v\n", kSyntaxError},
        ParseRow{"ControlCharacterInTail", "k=v\x01\n", kSyntaxError}),
    testsupport::RowName());

const char* const kFolder = "<folder>";
const char* const kMissing = "<missing>";

// Paths read one after the other into one Config: all but the last must
// succeed, the last gives `result`, and the entries end up as `entries`.
struct ReadRow {
    const char* name;
    std::vector<std::string> files; // contents, or kFolder or kMissing
    int result;
    std::string entries; // "key=value " each, in key order
};

class ConfigRead : public ::testing::TestWithParam<ReadRow> {};

TEST_P(ConfigRead, MergesFilesIntoEntries)
{
    const ReadRow& row = GetParam();
    ts::TempDir dir;
    Config config;
    for (size_t i = 0; i < row.files.size(); ++i) {
        const std::string path = dir / std::to_string(i), &file = row.files[i];
        ASSERT_TRUE(file == kMissing || (file == kFolder ? ts::MakeDirs(path) : ts::WriteFile(path, file)))
            << path;
        ASSERT_EQ(i + 1 < row.files.size() ? 0 : row.result, config.read(path)) << "file " << i;
    }
    std::string entries;
    for (const auto& entry : config.entries)
        entries += std::string(entry.first.c_str()) + "=" + entry.second.c_str() + " ";
    EXPECT_EQ(row.entries, entries);
}

INSTANTIATE_TEST_SUITE_P(
    Files, ConfigRead,
    ::testing::Values(
        ReadRow{"LaterLineWinsLoneLastKeyIgnored", {"p=1234\nk=1\nk=2\nlonely"}, 0, "k=2 p=1234 "},
        ReadRow{"SecondReadMergesLaterWins", {"a=1\nb=2\n", "b=3\nc=4"}, 0, "a=1 b=3 c=4 "},
        ReadRow{"SyntaxErrorEmptiesEverythingReadBefore", {"a=1\n", "b=2\nc d=3\ne=4\n"}, -1, ""},
        ReadRow{"FolderReadsAsNoPairs", {"a=1\n", kFolder}, 0, "a=1 "},
        ReadRow{"MissingFileKeepsEntries", {"a=1\n", kMissing}, -1, "a=1 "}),
    testsupport::RowName());

} // namespace
