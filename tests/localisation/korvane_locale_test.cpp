#include <QRegularExpression>
#include <QSet>
#include <QtGlobal>
#include <gtest/gtest.h>

#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "KorvaneLocale.h"
#include "texts.h"

extern char** environ;

namespace {

std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    std::ostringstream content;
    content << in.rdbuf();
    return content.str();
}

struct ProbeResult {
    int status = -1;
    std::string out;
    std::string err;
};

// Runs the probe executable in a child with only the given locale in its
// environment (plus the sanitizer settings), capturing both streams in dir.
ProbeResult RunProbe(const std::string& dir, const std::string& locale, bool withoutCatalogues)
{
    std::vector<std::string> env = {
        "HOME=" + dir,
        "LANG=" + locale,
        "LC_ALL=" + locale,
        "QT_FORCE_STDERR_LOGGING=1",
        "QT_MESSAGE_PATTERN=%{category}|%{message}",
    };
    for (char** e = environ; *e != nullptr; ++e) {
        if (std::strncmp(*e, "ASAN_", 5) == 0 || std::strncmp(*e, "LSAN_", 5) == 0 ||
            std::strncmp(*e, "UBSAN_", 6) == 0) {
            env.emplace_back(*e);
        }
    }
    std::vector<char*> envp;
    for (std::string& e : env) {
        envp.push_back(e.data());
    }
    envp.push_back(nullptr);

    std::string probe = CALDERIX_LOCALE_PROBE;
    std::string flag = "--without-catalogues";
    std::vector<char*> argv = {probe.data()};
    if (withoutCatalogues) {
        argv.push_back(flag.data());
    }
    argv.push_back(nullptr);

    const std::string outPath = dir + "/out.txt";
    const std::string errPath = dir + "/err.txt";
    ProbeResult result;
    const pid_t pid = fork();
    if (pid < 0) {
        ADD_FAILURE() << "fork: " << std::strerror(errno);
        return result;
    }
    if (pid == 0) {
        const int out = open(outPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        const int err = open(errPath.c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        if (out < 0 || err < 0 || dup2(out, STDOUT_FILENO) < 0 || dup2(err, STDERR_FILENO) < 0) {
            _exit(126);
        }
        execve(argv[0], argv.data(), envp.data());
        _exit(127);
    }
    int status = 0;
    while (waitpid(pid, &status, 0) < 0) {
        if (errno != EINTR) {
            ADD_FAILURE() << "waitpid: " << std::strerror(errno);
            return result;
        }
    }
    result.status = status;
    result.out = ReadFile(outPath);
    result.err = ReadFile(errPath);
    return result;
}

class TempDirTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        char pattern[] = "/tmp/korvane-locale-XXXXXX";
        ASSERT_NE(mkdtemp(pattern), nullptr) << pattern << ": " << std::strerror(errno);
        dir_ = pattern;
    }
    void TearDown() override
    {
        std::error_code ec;
        std::filesystem::remove_all(dir_, ec);
        EXPECT_FALSE(ec) << dir_ << ": " << ec.message();
    }

    std::string dir_;
};

struct SystemLocaleCase {
    const char* name;
    const char* locale;
    bool withoutCatalogues;
    const char* code;
};

class SystemLocale : public TempDirTest, public ::testing::WithParamInterface<SystemLocaleCase> {};

TEST_P(SystemLocale, ChoosesTheLanguageOfTheEnvironment)
{
    const SystemLocaleCase& c = GetParam();
    const ProbeResult r = RunProbe(dir_, c.locale, c.withoutCatalogues);
    ASSERT_TRUE(WIFEXITED(r.status) && WEXITSTATUS(r.status) == 0)
        << "probe for '" << c.locale << "' ended with status " << r.status << "; stderr: " << r.err;
    EXPECT_EQ(r.out, std::string(c.code) + "\n") << "locale '" << c.locale << "'";
    EXPECT_NE(r.err.find(std::string("qPrintable(qstrDef)=[") + c.code + "] "), std::string::npos)
        << "no trace of the result for '" << c.locale << "'; stderr: " << r.err;
}

INSTANTIATE_TEST_SUITE_P(
    Locales, SystemLocale,
    ::testing::Values(
        SystemLocaleCase{"zh_TW", "zh_TW.UTF-8", false, "cht"},
        SystemLocaleCase{"zh_HK", "zh_HK.UTF-8", false, "cht"},
        SystemLocaleCase{"zh_MO", "zh_MO", false, "cht"},
        SystemLocaleCase{"zh_CN", "zh_CN.UTF-8", false, "chs"},
        SystemLocaleCase{"zh_SG", "zh_SG", false, "chs"}, SystemLocaleCase{"zh", "zh", false, "chs"},
        SystemLocaleCase{"pt_PT", "pt_PT.UTF-8", false, "ptg"},
        SystemLocaleCase{"pt_BR", "pt_BR.UTF-8", false, "ptb"},
        SystemLocaleCase{"nb_NO", "nb_NO.UTF-8", false, "nor"},
        SystemLocaleCase{"nn_NO", "nn_NO", false, "nor"}, SystemLocaleCase{"no", "no", false, "nor"},
        SystemLocaleCase{"en_GB", "en_GB.UTF-8", false, "enu"},
        SystemLocaleCase{"en_US", "en_US", false, "enu"}, SystemLocaleCase{"Posix", "POSIX", false, "enu"},
        SystemLocaleCase{"C", "C", false, "enu"},
        SystemLocaleCase{"ar_SA_OutsideTheMapping", "ar_SA.UTF-8", false, "enu"},
        SystemLocaleCase{"ja_JP", "ja_JP.UTF-8", false, "jpn"},
        SystemLocaleCase{"de_DE", "de_DE.UTF-8", false, "deu"},
        SystemLocaleCase{"de_AT", "de_AT", false, "deu"},
        SystemLocaleCase{"ko_KR", "ko_KR.UTF-8", false, "krn"},
        SystemLocaleCase{"fr_CA", "fr_CA.UTF-8", false, "fra"},
        SystemLocaleCase{"it_IT", "it_IT", false, "ita"}, SystemLocaleCase{"es_MX", "es_MX", false, "esn"},
        SystemLocaleCase{"ru_RU", "ru_RU.UTF-8", false, "rus"},
        SystemLocaleCase{"da_DK", "da_DK", false, "dan"}, SystemLocaleCase{"sv_SE", "sv_SE", false, "sve"},
        SystemLocaleCase{"nl_BE", "nl_BE", false, "nld"}, SystemLocaleCase{"pl_PL", "pl_PL", false, "plk"},
        SystemLocaleCase{"hu_HU", "hu_HU", false, "hun"}, SystemLocaleCase{"tr_TR", "tr_TR", false, "trk"},
        SystemLocaleCase{"cs_CZ", "cs_CZ", false, "csy"},
        SystemLocaleCase{"de_DE_CataloguesRemoved", "de_DE.UTF-8", true, "enu"},
        SystemLocaleCase{"zh_TW_CataloguesRemoved", "zh_TW.UTF-8", true, "enu"}),
    [](const ::testing::TestParamInfo<SystemLocaleCase>& info) { return info.param.name; });

TEST_F(TempDirTest, DefaultLanguageTracesEachStepInOrder)
{
    const ProbeResult r = RunProbe(dir_, "de_DE.UTF-8", false);
    ASSERT_TRUE(WIFEXITED(r.status) && WEXITSTATUS(r.status) == 0) << "status " << r.status << ": " << r.err;
    const std::string expected[] = {
        "default|libcommon/KorvaneLocale:\\d+ qPrintable\\(qstrLocaleLower\\)=\\[de_de\\n\\] \\n",
        "default|libcommon/KorvaneLocale:\\d+ qPrintable\\(qstrLocaleLower\\)=\\[de_de\\] \\n",
        "default|libcommon/KorvaneLocale:\\d+ qPrintable\\(qstrLangFileName\\)=\\[:/deu\\.qm\\] \\n",
        "default|libcommon/KorvaneLocale:\\d+ qPrintable\\(qstrDef\\)=\\[deu\\] \\n",
    };
    std::string pattern;
    for (const std::string& line : expected) {
        pattern += line;
    }
    EXPECT_TRUE(QString::fromStdString(r.err).contains(QRegularExpression(QString::fromStdString(pattern))))
        << "stderr was:\n"
        << r.err;
}

// Decisions for names QLocale::system() never produces on this platform
// (a bare "pt", upper case) go through the same code without a child.
struct LocaleNameCase {
    const char* name;
    const char* localeLower;
    const char* code;
};

class LocaleName : public ::testing::TestWithParam<LocaleNameCase> {};

TEST_P(LocaleName, MapsToItsCode)
{
    const LocaleNameCase& c = GetParam();
    EXPECT_EQ(KorvaneLocale::getLanguageForLocaleName(QString::fromLatin1(c.localeLower)).toStdString(),
              c.code)
        << "locale name '" << c.localeLower << "'";
}

INSTANTIATE_TEST_SUITE_P(
    Names, LocaleName,
    ::testing::Values(LocaleNameCase{"zh_tw", "zh_tw", "cht"}, LocaleNameCase{"zh_hk", "zh_hk", "cht"},
                      LocaleNameCase{"zh_mo", "zh_mo", "cht"}, LocaleNameCase{"pt", "pt", "ptg"},
                      LocaleNameCase{"pt_pt", "pt_pt", "ptg"}, LocaleNameCase{"pt_br", "pt_br", "ptb"},
                      LocaleNameCase{"pt_ao", "pt_ao", "ptb"}, LocaleNameCase{"zh_cn", "zh_cn", "chs"},
                      LocaleNameCase{"zh_tw_UpperCaseIsNotSpecial", "zh_TW", "chs"},
                      LocaleNameCase{"zh_twn_OnlyWholeNames", "zh_twn", "chs"},
                      LocaleNameCase{"ptx_OnlyWholeNames", "ptx", "enu"}, LocaleNameCase{"Empty", "", "enu"},
                      LocaleNameCase{"c", "c", "enu"}, LocaleNameCase{"ar_sa", "ar_sa", "enu"}),
    [](const ::testing::TestParamInfo<LocaleNameCase>& info) { return info.param.name; });

struct AbbrCase {
    const char* name;
    int id;
    const char* code;
};

class LanguageAbbr : public ::testing::TestWithParam<AbbrCase> {};

TEST_P(LanguageAbbr, GivesTheCodeOfAnId)
{
    const AbbrCase& c = GetParam();
    EXPECT_EQ(KorvaneLocale::getLanguageAbbrByID(c.id).toStdString(), c.code) << "id " << c.id;
}

INSTANTIATE_TEST_SUITE_P(Ids, LanguageAbbr,
                         ::testing::Values(AbbrCase{"First", 0, "enu"}, AbbrCase{"German", 4, "deu"},
                                           AbbrCase{"PortugalPortuguese", 17, "ptg"},
                                           AbbrCase{"Last", 19, "csy"}, AbbrCase{"EndMarker", 20, ""},
                                           AbbrCase{"PastTheEnd", 21, ""}, AbbrCase{"Negative", -1, ""},
                                           AbbrCase{"MostNegative", INT_MIN, ""},
                                           AbbrCase{"Largest", INT_MAX, ""}),
                         [](const ::testing::TestParamInfo<AbbrCase>& info) { return info.param.name; });

TEST(SupportedLanguages, ListsEveryCodeInIdOrderWithItsCatalogue)
{
    const QStringList codes = KorvaneLocale::getSupportedLanguages();
    ASSERT_EQ(codes.size(), 20);
    EXPECT_EQ(codes.first(), QStringLiteral("enu"));
    EXPECT_EQ(codes.last(), QStringLiteral("csy"));
    EXPECT_EQ(QSet<QString>(codes.begin(), codes.end()).size(), codes.size()) << "duplicate code";
    for (int id = 0; id < codes.size(); ++id) {
        EXPECT_EQ(codes[id], KorvaneLocale::getLanguageAbbrByID(id)) << "id " << id;
        EXPECT_TRUE(KorvaneLocale::isLanguageInstalled(codes[id]))
            << qPrintable(codes[id]) << ": no catalogue";
    }
    EXPECT_EQ(KorvaneLocale::getStrLanguageFallSafe(), QStringLiteral("enu"));
}

// Collects the debug messages of the code under test.
class CapturedTraces : public ::testing::Test {
protected:
    void SetUp() override
    {
        traces().clear();
        previous_ = qInstallMessageHandler(&CapturedTraces::Collect);
    }
    void TearDown() override { qInstallMessageHandler(previous_); }

    static QStringList& traces()
    {
        static QStringList collected;
        return collected;
    }

private:
    static void Collect(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        if (type == QtDebugMsg) {
            traces() << QString::fromLatin1(context.category) + QLatin1Char('|') + message;
        }
    }

    QtMessageHandler previous_ = nullptr;
};

TEST_F(CapturedTraces, InstalledCatalogueIsTracedOnce)
{
    EXPECT_TRUE(KorvaneLocale::isLanguageInstalled(QStringLiteral("deu")));
    ASSERT_EQ(traces().size(), 1) << qPrintable(traces().join(QLatin1Char('\n')));
    EXPECT_TRUE(traces()[0].contains(QRegularExpression(
        "^default\\|libcommon/KorvaneLocale:\\d+ qPrintable\\(qstrLangFileName\\)=\\[:/deu\\.qm\\] $")))
        << qPrintable(traces()[0]);
}

TEST_F(CapturedTraces, MissingCatalogueIsNotInstalledAndNotTraced)
{
    for (const char* code : {"xyz", "", "DEU", "deu.qm", "../enu"}) {
        EXPECT_FALSE(KorvaneLocale::isLanguageInstalled(QString::fromLatin1(code)))
            << "code '" << code << "'";
    }
    EXPECT_TRUE(traces().isEmpty()) << qPrintable(traces().join(QLatin1Char('\n')));
}

// Unregisters the compiled-in catalogues and puts them back afterwards so
// that the other tests of this process still find them.
class CataloguesRemoved : public ::testing::Test {
protected:
    void SetUp() override { qCleanupResources_texts(); }
    void TearDown() override { qInitResources_texts(); }
};

TEST_F(CataloguesRemoved, EveryLanguageFallsBackToEnglish)
{
    for (const char* name : {"de_de", "zh_tw", "pt", "ja_jp", "en_us"}) {
        EXPECT_EQ(KorvaneLocale::getLanguageForLocaleName(QString::fromLatin1(name)).toStdString(), "enu")
            << "locale name '" << name << "'";
    }
    EXPECT_FALSE(KorvaneLocale::isLanguageInstalled(QStringLiteral("deu")));
}

} // namespace
