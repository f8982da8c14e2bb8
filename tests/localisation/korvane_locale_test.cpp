#include <gtest/gtest.h>

#include <string>
#include <sys/wait.h>

#include "KorvaneLocale.h"
#include "test_support.h"

namespace {

template <typename Case> std::string RowName(const ::testing::TestParamInfo<Case>& info)
{
    return info.param.name;
}

struct SystemLocaleCase {
    const char* name;
    const char* locale;
    const char* code;
    bool without_catalogues = false;
};

class SystemLocale : public ::testing::TestWithParam<SystemLocaleCase> {};

// The real path through QLocale::system(), in a child with the locale in its
// environment.
TEST_P(SystemLocale, ChoosesTheLanguageOfTheEnvironment)
{
    const SystemLocaleCase& c = GetParam();
    std::vector<std::string> argv = {CALDERIX_LOCALE_PROBE};
    if (c.without_catalogues) {
        argv.push_back("--without-catalogues");
    }
    const testsupport::ProcessResult r =
        testsupport::Run(argv, {testsupport::Set("LC_ALL", c.locale), testsupport::Set("LANG", c.locale),
                                testsupport::Unset("LANGUAGE"), testsupport::Unset("QT_LOGGING_RULES"),
                                testsupport::Set("QT_FORCE_STDERR_LOGGING", "1")});
    ASSERT_TRUE(r.exited && r.exit_code == 0) << "probe for '" << c.locale << "': " << r.err;
    EXPECT_EQ(r.out, std::string(c.code) + "\n") << "locale '" << c.locale << "'";
    EXPECT_NE(r.err.find(std::string("qPrintable(qstrDef)=[") + c.code + "] "), std::string::npos)
        << "no trace of the result for '" << c.locale << "': " << r.err;
}

INSTANTIATE_TEST_SUITE_P(
    Locales, SystemLocale,
    ::testing::Values(
        SystemLocaleCase{"zh_TW", "zh_TW.UTF-8", "cht"}, SystemLocaleCase{"zh_HK", "zh_HK", "cht"},
        SystemLocaleCase{"zh_MO", "zh_MO", "cht"}, SystemLocaleCase{"zh_CN", "zh_CN.UTF-8", "chs"},
        SystemLocaleCase{"zh", "zh", "chs"}, SystemLocaleCase{"pt_PT", "pt_PT.UTF-8", "ptg"},
        SystemLocaleCase{"pt_BR", "pt_BR", "ptb"}, SystemLocaleCase{"nb_NO", "nb_NO", "nor"},
        SystemLocaleCase{"nn_NO", "nn_NO", "nor"}, SystemLocaleCase{"en_GB", "en_GB.UTF-8", "enu"},
        SystemLocaleCase{"Posix", "POSIX", "enu"}, SystemLocaleCase{"ar_SA", "ar_SA.UTF-8", "enu"},
        SystemLocaleCase{"ja_JP", "ja_JP.UTF-8", "jpn"}, SystemLocaleCase{"de_AT", "de_AT", "deu"},
        SystemLocaleCase{"cs_CZ", "cs_CZ", "csy"},
        SystemLocaleCase{"de_DE_CataloguesRemoved", "de_DE.UTF-8", "enu", true}),
    RowName<SystemLocaleCase>);

// Names that QLocale::system() never gives (a bare "pt" comes back as pt_BR).
struct LocaleNameCase {
    const char* name;
    const char* locale_lower;
    const char* code;
};

class LocaleName : public ::testing::TestWithParam<LocaleNameCase> {};

TEST_P(LocaleName, MapsToItsCode)
{
    const LocaleNameCase& c = GetParam();
    EXPECT_EQ(KorvaneLocale::getLanguageForLocaleName(QString::fromLatin1(c.locale_lower)).toStdString(),
              c.code)
        << "locale name '" << c.locale_lower << "'";
}

INSTANTIATE_TEST_SUITE_P(Names, LocaleName,
                         ::testing::Values(LocaleNameCase{"pt", "pt", "ptg"},
                                           LocaleNameCase{"zh_twn_OnlyWholeNames", "zh_twn", "chs"},
                                           LocaleNameCase{"ptx_OnlyWholeNames", "ptx", "enu"},
                                           LocaleNameCase{"Empty", "", "enu"}),
                         RowName<LocaleNameCase>);

struct AbbrCase {
    const char* name;
    int id;
    const char* code;
};

class LanguageAbbr : public ::testing::TestWithParam<AbbrCase> {};

TEST_P(LanguageAbbr, GivesTheCodeOfAnId)
{
    EXPECT_EQ(KorvaneLocale::getLanguageAbbrByID(GetParam().id).toStdString(), GetParam().code)
        << "id " << GetParam().id;
}

INSTANTIATE_TEST_SUITE_P(Ids, LanguageAbbr,
                         ::testing::Values(AbbrCase{"First", 0, "enu"}, AbbrCase{"Last", 19, "csy"},
                                           AbbrCase{"EndMarker", 20, ""}, AbbrCase{"PastTheEnd", 21, ""},
                                           AbbrCase{"Negative", -1, ""}),
                         RowName<AbbrCase>);

TEST(SupportedLanguages, ListsEveryCodeInIdOrderWithItsCatalogue)
{
    const QStringList codes = KorvaneLocale::getSupportedLanguages();
    ASSERT_EQ(codes.size(), 20);
    EXPECT_EQ(codes.first(), QStringLiteral("enu"));
    EXPECT_EQ(codes.last(), QStringLiteral("csy"));
    for (int id = 0; id < codes.size(); ++id) {
        EXPECT_EQ(codes[id], KorvaneLocale::getLanguageAbbrByID(id)) << "id " << id;
        EXPECT_TRUE(KorvaneLocale::isLanguageInstalled(codes[id]))
            << qPrintable(codes[id]) << ": no catalogue";
    }
    for (const char* code : {"xyz", "DEU", "../enu"}) {
        EXPECT_FALSE(KorvaneLocale::isLanguageInstalled(QString::fromLatin1(code)))
            << "code '" << code << "'";
    }
    EXPECT_EQ(KorvaneLocale::getStrLanguageFallSafe(), QStringLiteral("enu"));
}

} // namespace
