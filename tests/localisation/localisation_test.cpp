// The string table, the compiled-in catalogues and the choice of language.
#include <QCoreApplication>
#include <QTranslator>
#include <gtest/gtest.h>

#include <cstdio>
#include <cstring>

#include "KorvaneLocale.h"
#include "strtable.h"
#include "test_rows.h"
#include "test_support.h"
#include "texts.h"

namespace {

// The codes in id order, an independent copy of the language table.
const char* const kCodes[] = {"enu", "cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb",
                              "rus", "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk", "csy"};

// The published key list, one key a line in id order: ids are part of the
// client's contract. Keys match without regard to case.
TEST(StrTable, KeysMatchThePublishedListInIdOrder)
{
    const std::vector<std::string> keys = testsupport::Lines(testsupport::ReadFile(CALDERIX_KEYS_FILE));
    ASSERT_EQ(keys.size(), size_t(StrTable::StrCount)) << "cannot read the key list " << CALDERIX_KEYS_FILE;
    for (int id = 0; id < StrTable::StrCount; ++id) {
        EXPECT_EQ(StrTable::LookupStrID(QString::fromStdString(keys[id]).toUpper()), id)
            << "key " << keys[id];
    }
    EXPECT_EQ(StrTable::LookupStrID(QStringLiteral("app")), -1) << "a key's prefix was taken for the key";
}

// Answers every lookup in context "global" with one text; null: no answer.
struct FixedTranslator : QTranslator {
    const char* answer = nullptr;
    QString translate(const char* context, const char*, const char*, int) const override
    {
        return qstrcmp(context, "global") == 0 ? QString::fromUtf8(answer) : QString();
    }
};

struct TextCase {
    const char* name;
    const char* translation;
    const char* expected;
};

class Texts : public ::testing::TestWithParam<TextCase> {};

TEST_P(Texts, LoadStrGivesTheTranslationWithEscapesExpanded)
{
    FixedTranslator translator;
    translator.answer = GetParam().translation;
    QCoreApplication::installTranslator(&translator); // an empty one is installed all the same
    const QString loaded = StrTable::LoadStr(StrTable::kStrReady);
    QCoreApplication::removeTranslator(&translator);
    EXPECT_EQ(loaded.toStdString(), GetParam().expected) << "the launcher's ready text";
}

INSTANTIATE_TEST_SUITE_P(Rows, Texts,
                         ::testing::Values(TextCase{"English", nullptr, "Calderix Drive is ready."},
                                           TextCase{"EveryOccurrence", "\\n1\\n2\\t3\\t", "\n1\n2\t3\t"},
                                           TextCase{"UpperCaseIsKept", "a\\Nb\\Tc", "a\\Nb\\Tc"}),
                         testsupport::RowName());

class Catalogue : public ::testing::TestWithParam<const char*> {};

// Each compiled-in catalogue but the English one translates the launcher's
// texts; none translates the product name.
TEST_P(Catalogue, TranslatesTheLauncherTexts)
{
    const std::string code = GetParam();
    const QString name = StrTable::LoadStr(StrTable::kStrAppName),
                  ready = StrTable::LoadStr(StrTable::kStrReady);
    QTranslator translator;
    ASSERT_TRUE(translator.load(QString::fromStdString(":/" + code + ".qm"))) << code << ": cannot be loaded";
    QCoreApplication::installTranslator(&translator);
    EXPECT_EQ(StrTable::LoadStr(StrTable::kStrAppName), name) << code << " translated the product name";
    EXPECT_EQ(code == "enu", StrTable::LoadStr(StrTable::kStrReady) == ready)
        << code << " gives " << qPrintable(StrTable::LoadStr(StrTable::kStrReady));
    QCoreApplication::removeTranslator(&translator);
}

INSTANTIATE_TEST_SUITE_P(Codes, Catalogue, ::testing::ValuesIn(kCodes), testsupport::RowName());

TEST(Languages, EveryCodeInIdOrderWithItsCatalogue)
{
    for (int id = -1; id <= 21; ++id) {
        const QString code = id >= 0 && id < 20 ? QString::fromLatin1(kCodes[id]) : QString();
        EXPECT_EQ(KorvaneLocale::getLanguageAbbrByID(id), code) << "id " << id;
        EXPECT_EQ(KorvaneLocale::getSupportedLanguages().value(id), code) << "id " << id;
        EXPECT_EQ(KorvaneLocale::isLanguageInstalled(code), !code.isEmpty()) << "id " << id;
    }
}

struct LocaleCase {
    const char* name;
    const char* locale;
    const char* code;
    // How this binary, with the locale in its environment, chooses (see main).
    char mode = 's';
};

class Locale : public ::testing::TestWithParam<LocaleCase> {};

TEST_P(Locale, ChoosesTheLanguage)
{
    const LocaleCase& c = GetParam();
    const testsupport::ProcessResult r =
        testsupport::Run({"/proc/self/exe", std::string("--probe-") + c.mode},
                         {testsupport::Set("LC_ALL", c.locale), testsupport::Set("LANG", c.locale),
                          testsupport::Unset("LANGUAGE")});
    ASSERT_TRUE(r.exited && r.exit_code == 0) << "probe for '" << c.locale << "': " << r.err;
    EXPECT_EQ(r.out, std::string(c.code) + "\n") << "locale '" << c.locale << "'";
}

INSTANTIATE_TEST_SUITE_P(
    Locales, Locale,
    ::testing::Values(
        LocaleCase{"zh_TW", "zh_TW.UTF-8", "cht"}, LocaleCase{"zh_HK", "zh_HK", "cht"},
        LocaleCase{"zh_MO", "zh_MO", "cht"}, LocaleCase{"zh_CN", "zh_CN.UTF-8", "chs"},
        LocaleCase{"pt_PT", "pt_PT.UTF-8", "ptg"}, LocaleCase{"pt_BR", "pt_BR", "ptb"},
        LocaleCase{"nb_NO", "nb_NO", "nor"}, LocaleCase{"nn_NO", "nn_NO", "nor"},
        LocaleCase{"Posix", "POSIX", "enu"}, LocaleCase{"ar_SA", "ar_SA.UTF-8", "enu"},
        LocaleCase{"ja_JP", "ja_JP.UTF-8", "jpn"}, LocaleCase{"de_AT", "de_AT", "deu"},
        LocaleCase{"cs_CZ", "cs_CZ", "csy"}, LocaleCase{"de_DE_CataloguesRemoved", "de_DE.UTF-8", "enu", 'b'},
        LocaleCase{"pt", "pt", "ptg", 'n'}, LocaleCase{"zh_twn_OnlyWholeNames", "zh_twn", "chs", 'n'},
        LocaleCase{"ptx_OnlyWholeNames", "ptx", "enu", 'n'}, LocaleCase{"Empty", "", "enu", 'n'}),
    testsupport::RowName());

} // namespace

// Translators can only be installed while an application object exists.
// With --probe-MODE the binary prints the language it chooses for the locale
// of its environment instead: s as at start-up, b the same with no catalogue
// built in, n for the bare name in LC_ALL (one QLocale::system() never gives).
int main(int argc, char** argv)
{
    qInitResources_texts();
    if (argc > 1 && std::strncmp(argv[1], "--probe-", 8) == 0) {
        if (argv[1][8] == 'b') {
            qCleanupResources_texts();
        }
        const QString code =
            argv[1][8] == 'n'
                ? KorvaneLocale::getLanguageForLocaleName(QString::fromLatin1(std::getenv("LC_ALL")))
                : KorvaneLocale::getDefaultLanguage();
        return std::printf("%s\n", qPrintable(code)) > 0 ? 0 : 2;
    }
    ::testing::InitGoogleTest(&argc, argv);
    QCoreApplication app(argc, argv);
    StrTable::InitStrTable();
    return RUN_ALL_TESTS();
}
