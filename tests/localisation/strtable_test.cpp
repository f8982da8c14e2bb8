#include <QCoreApplication>
#include <QRegularExpression>
#include <QTranslator>
#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>
#include <vector>

#include "strtable.h"

namespace {

// The published key list, one key a line in id order; ids are part of the
// client's contract, so the table is checked against this independent copy.
std::vector<std::string> ReadKeyList()
{
    std::vector<std::string> keys;
    std::ifstream in(CALDERIX_KEYS_FILE);
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty()) {
            keys.push_back(line);
        }
    }
    return keys;
}

TEST(StrTableKeys, MatchThePublishedListInIdOrder)
{
    const std::vector<std::string> keys = ReadKeyList();
    ASSERT_EQ(keys.size(), 563u) << "cannot read the key list " << CALDERIX_KEYS_FILE;
    ASSERT_EQ(StrTable::StrCount, 563);
    EXPECT_EQ(keys.front(), "sharing_link");
    EXPECT_EQ(keys.back(), "msg_finish_way");
    EXPECT_EQ(std::set<std::string>(keys.begin(), keys.end()).size(), keys.size())
        << "duplicate key in the list";
    for (int id = 0; id < StrTable::StrCount; ++id) {
        EXPECT_EQ(StrTable::LookupStrID(QString::fromStdString(keys[id])), id) << "key " << keys[id];
    }
}

TEST(StrTableTexts, LauncherRowsCarryTheirEnglishTexts)
{
    EXPECT_EQ(StrTable::LoadStr(461), QStringLiteral("Calderix Drive is initializing..."));
    EXPECT_EQ(StrTable::LoadStr(493), QStringLiteral("Calderix Drive"));
    EXPECT_EQ(StrTable::LoadStr(510), QStringLiteral("Calderix Drive is ready."));
}

TEST(StrTableTexts, EveryRowHasARealSingleLineText)
{
    const std::vector<std::string> keys = ReadKeyList();
    ASSERT_EQ(keys.size(), 563u) << "cannot read the key list " << CALDERIX_KEYS_FILE;
    int withFirst = 0;
    int withSecond = 0;
    for (int id = 0; id < StrTable::StrCount; ++id) {
        const QString text = StrTable::LoadStr(id);
        const std::string shown = text.toStdString();
        EXPECT_FALSE(text.trimmed().isEmpty()) << "row " << id << " (" << keys[id] << ") has no text";
        EXPECT_NE(shown, keys[id]) << "row " << id << " shows its key";
        EXPECT_FALSE(text.contains(QRegularExpression("[\\n\\r\\t\\\\]"))) << "row " << id << ": " << shown;
        EXPECT_FALSE(text.contains(QLatin1String("TODO"), Qt::CaseInsensitive))
            << "row " << id << ": " << shown;
        EXPECT_FALSE(text.contains(QRegularExpression("%[03-9]"))) << "row " << id << ": " << shown;
        const bool first = text.contains(QLatin1String("%1"));
        const bool second = text.contains(QLatin1String("%2"));
        EXPECT_TRUE(first || !second) << "row " << id << " uses %2 without %1: " << shown;
        withFirst += first;
        withSecond += second;
    }
    EXPECT_EQ(withFirst, 29) << "rows with a %1 placeholder";
    EXPECT_EQ(withSecond, 2) << "rows with a %2 placeholder";
}

struct LookupCase {
    const char* name;
    const char* key;
    int id;
};

class StrTableLookup : public ::testing::TestWithParam<LookupCase> {};

TEST_P(StrTableLookup, FindsTheIdOfAKey)
{
    const LookupCase& c = GetParam();
    EXPECT_EQ(StrTable::LookupStrID(QString::fromUtf8(c.key)), c.id) << "key '" << c.key << "'";
}

INSTANTIATE_TEST_SUITE_P(
    Keys, StrTableLookup,
    ::testing::Values(LookupCase{"FirstRow", "sharing_link", 0}, LookupCase{"LastRow", "msg_finish_way", 562},
                      LookupCase{"AppName", "app_name", 493}, LookupCase{"AppNameUpperCase", "APP_NAME", 493},
                      LookupCase{"AppNameMixedCase", "App_Name", 493},
                      LookupCase{"InstallerKey", "NSIS_NOT_ADMIN_CONFIRM", 29},
                      LookupCase{"InstallerKeyLowerCase", "nsis_calderix_installed_newer", 485},
                      LookupCase{"UnknownKey", "no_such_key", -1}, LookupCase{"EmptyKey", "", -1},
                      LookupCase{"PrefixOfAKey", "app", -1}, LookupCase{"TrailingSpace", "app_name ", -1},
                      LookupCase{"NonAscii", "app_n\xC3\xA4me", -1}),
    [](const ::testing::TestParamInfo<LookupCase>& info) { return info.param.name; });

// Answers every lookup in context "global" with one fixed text and records
// what it was asked, so that LoadStr's own processing can be observed.
class FixedTranslator : public QTranslator {
public:
    explicit FixedTranslator(QString answer) : answer_(std::move(answer)) {}

    QString translate(const char* context, const char* sourceText, const char* disambiguation,
                      int n) const override
    {
        lastContext = context ? context : "<null>";
        lastSource = sourceText ? sourceText : "<null>";
        lastDisambiguation = disambiguation != nullptr;
        lastN = n;
        return qstrcmp(context, "global") == 0 ? answer_ : QString();
    }
    bool isEmpty() const override { return false; }

    mutable std::string lastContext;
    mutable std::string lastSource;
    mutable bool lastDisambiguation = true;
    mutable int lastN = 0;

private:
    QString answer_;
};

struct EscapeCase {
    const char* name;
    const char* translation;
    const char* expected;
};

class StrTableEscapes : public ::testing::TestWithParam<EscapeCase> {};

TEST_P(StrTableEscapes, TranslationEscapesBecomeControlCharacters)
{
    const EscapeCase& c = GetParam();
    FixedTranslator translator(QString::fromUtf8(c.translation));
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    const QString loaded = StrTable::LoadStr(510);
    QCoreApplication::removeTranslator(&translator);

    EXPECT_EQ(loaded.toStdString(), std::string(c.expected)) << "translation '" << c.translation << "'";
    EXPECT_EQ(translator.lastContext, "global");
    EXPECT_EQ(translator.lastSource, "Calderix Drive is ready.");
    EXPECT_FALSE(translator.lastDisambiguation);
    EXPECT_EQ(translator.lastN, -1);
}

INSTANTIATE_TEST_SUITE_P(Translations, StrTableEscapes,
                         ::testing::Values(EscapeCase{"LineFeed", "Bereit.\\nJetzt", "Bereit.\nJetzt"},
                                           EscapeCase{"Tab", "a\\tb", "a\tb"},
                                           EscapeCase{"EveryOccurrence", "\\n1\\n2\\t3\\t", "\n1\n2\t3\t"},
                                           EscapeCase{"UpperCaseIsKept", "a\\Nb\\Tc", "a\\Nb\\Tc"},
                                           EscapeCase{"LoneBackslashIsKept", "C:\\dir\\", "C:\\dir\\"},
                                           EscapeCase{"DoubledBackslash", "a\\\\nb", "a\\\nb"},
                                           EscapeCase{"RealLineFeedIsKept", "a\nb", "a\nb"},
                                           EscapeCase{"NoEscapes", "Pr\xC3\xAAt.", "Pr\xC3\xAAt."}),
                         [](const ::testing::TestParamInfo<EscapeCase>& info) { return info.param.name; });

} // namespace
