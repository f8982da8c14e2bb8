#include <QCoreApplication>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "strtable.h"
#include "test_support.h"

namespace {

template <typename Case> std::string RowName(const ::testing::TestParamInfo<Case>& info)
{
    return info.param.name;
}

// The published key list, one key a line in id order; ids are part of the
// client's contract, so the table is checked against this independent copy.
TEST(StrTableKeys, MatchThePublishedListInIdOrder)
{
    const std::vector<std::string> keys = testsupport::Lines(testsupport::ReadFile(CALDERIX_KEYS_FILE));
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

TEST(StrTableTexts, EveryRowHasASingleLineTextWithItsPlaceholders)
{
    int with_first = 0, with_second = 0;
    for (int id = 0; id < StrTable::StrCount; ++id) {
        const QString text = StrTable::LoadStr(id);
        EXPECT_FALSE(text.trimmed().isEmpty()) << "row " << id << " has no text";
        EXPECT_FALSE(text.contains(QRegularExpression("[\\n\\r\\t\\\\]")))
            << "row " << id << ": " << qPrintable(text);
        const bool first = text.contains(QLatin1String("%1")), second = text.contains(QLatin1String("%2"));
        EXPECT_TRUE(first || !second) << "row " << id << " uses %2 without %1: " << qPrintable(text);
        with_first += first;
        with_second += second;
    }
    EXPECT_EQ(with_first, 29) << "rows with a %1 placeholder";
    EXPECT_EQ(with_second, 2) << "rows with a %2 placeholder";
}

struct LookupCase {
    const char* name;
    const char* key;
    int id;
};

class StrTableLookup : public ::testing::TestWithParam<LookupCase> {};

TEST_P(StrTableLookup, FindsTheIdOfAKey)
{
    EXPECT_EQ(StrTable::LookupStrID(QString::fromUtf8(GetParam().key)), GetParam().id)
        << "key '" << GetParam().key << "'";
}

INSTANTIATE_TEST_SUITE_P(
    Keys, StrTableLookup,
    ::testing::Values(LookupCase{"AppName", "app_name", 493}, LookupCase{"AppNameUpperCase", "APP_NAME", 493},
                      LookupCase{"InstallerKeyLowerCase", "nsis_calderix_installed_newer", 485},
                      LookupCase{"UnknownKey", "no_such_key", -1}, LookupCase{"EmptyKey", "", -1},
                      LookupCase{"PrefixOfAKey", "app", -1}),
    RowName<LookupCase>);

// Answers every lookup in context "global" with one fixed text.
class FixedTranslator : public QTranslator {
public:
    explicit FixedTranslator(const char* answer) : answer_(QString::fromUtf8(answer)) {}
    QString translate(const char* context, const char*, const char*, int) const override
    {
        return qstrcmp(context, "global") == 0 ? answer_ : QString();
    }
    bool isEmpty() const override { return false; }

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
    FixedTranslator translator(GetParam().translation);
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    const QString loaded = StrTable::LoadStr(510);
    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(loaded.toStdString(), GetParam().expected) << "translation '" << GetParam().translation << "'";
}

INSTANTIATE_TEST_SUITE_P(Translations, StrTableEscapes,
                         ::testing::Values(EscapeCase{"LineFeed", "Bereit.\\nJetzt", "Bereit.\nJetzt"},
                                           EscapeCase{"Tab", "a\\tb", "a\tb"},
                                           EscapeCase{"EveryOccurrence", "\\n1\\n2\\t3\\t", "\n1\n2\t3\t"},
                                           EscapeCase{"UpperCaseIsKept", "a\\Nb\\Tc", "a\\Nb\\Tc"}),
                         RowName<EscapeCase>);

// ------------------------------------------------------------------ the compiled-in catalogues

std::vector<QString> EnglishTexts()
{
    std::vector<QString> texts;
    for (int id = 0; id < StrTable::StrCount; ++id) {
        texts.push_back(StrTable::LoadStr(id));
    }
    return texts;
}

QSet<QString> Placeholders(const QString& text)
{
    QSet<QString> found;
    for (auto it = QRegularExpression("%\\d+").globalMatch(text); it.hasNext();) {
        found.insert(it.next().captured());
    }
    return found;
}

// Installs one compiled-in catalogue for the duration of a test.
class Catalogue : public ::testing::TestWithParam<const char*> {
protected:
    void SetUp() override
    {
        const QString path = QStringLiteral(":/%1.qm").arg(QLatin1String(GetParam()));
        ASSERT_TRUE(translator_.load(path)) << qPrintable(path) << ": cannot be loaded";
        // The English catalogue may be empty; it is installed all the same.
        QCoreApplication::installTranslator(&translator_);
    }
    void TearDown() override { QCoreApplication::removeTranslator(&translator_); }

    const std::vector<QString> english_ = EnglishTexts();
    QTranslator translator_;
};

TEST_P(Catalogue, TranslatesTheLauncherTexts)
{
    for (int id : {461, 510}) {
        const QString text = StrTable::LoadStr(id);
        EXPECT_FALSE(text.trimmed().isEmpty()) << GetParam() << " row " << id;
        EXPECT_NE(text, english_[id]) << GetParam() << " row " << id << " is still English";
    }
    EXPECT_EQ(StrTable::LoadStr(493).toStdString(), "Calderix Drive") << GetParam();
}

// A translation that drops or invents a placeholder makes the caller's arg()
// print a stray "%1" or lose the value, so every row is checked.
TEST_P(Catalogue, KeepsPlaceholdersAndTheProductName)
{
    for (int id = 0; id < StrTable::StrCount; ++id) {
        const QString text = StrTable::LoadStr(id);
        EXPECT_EQ(Placeholders(text), Placeholders(english_[id])) << GetParam() << " row " << id;
        EXPECT_TRUE(!english_[id].contains(QLatin1String("Calderix Drive")) ||
                    text.contains(QLatin1String("Calderix Drive")))
            << GetParam() << " row " << id << ": " << qPrintable(text);
    }
}

INSTANTIATE_TEST_SUITE_P(Codes, Catalogue,
                         ::testing::Values("cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb",
                                           "rus", "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk",
                                           "csy"),
                         [](const ::testing::TestParamInfo<const char*>& info) {
                             return std::string(info.param);
                         });

// The English catalogue exists so that every code has one, but it must never
// change a text.
TEST(EnglishCatalogue, LeavesEveryTextAsItIs)
{
    const std::vector<QString> english = EnglishTexts();
    QTranslator translator;
    ASSERT_TRUE(translator.load(QStringLiteral(":/enu.qm"))) << ":/enu.qm cannot be loaded";
    QCoreApplication::installTranslator(&translator);
    for (int id = 0; id < StrTable::StrCount; ++id) {
        EXPECT_EQ(StrTable::LoadStr(id), english[id]) << "row " << id;
    }
    QCoreApplication::removeTranslator(&translator);
}

} // namespace
