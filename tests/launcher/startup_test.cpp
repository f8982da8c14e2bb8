// Start-up of the real launcher binary from an assembled bundle.
#include <algorithm>
#include <cstdlib>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "launcher_fixture.h"
#include "single_instance_guard.h"

using namespace testsupport;

namespace {

using Startup = LauncherFixture;

// HOME below a regular file cannot hold the log folder, even for root: the
// logger stays on standard error and start-up carries on.
TEST_F(Startup, HomeThatCannotHoldTheLogFolderStillStarts)
{
    const std::string blocker = dir_ / "not-a-folder";
    ASSERT_TRUE(WriteFile(blocker, "x")) << blocker << ": " << strerror(errno);
    const std::string home = blocker + "/home";

    const ProcessResult r = testsupport::Run({launcher_}, Env(home));
    ASSERT_TRUE(r.exited) << "killed by signal " << r.term_signal << "\n" << r.err;
    EXPECT_EQ(r.exit_code, 0) << r.err;
    EXPECT_EQ(r.out, "lib path = '" + bundle_ + "/Contents/Frameworks/plugins'\n");
    EXPECT_EQ(ReadFile(blocker), "x") << "the regular file in the way was changed";
    // The run goes on and its errors reach standard error at the default
    // levels; nothing reads a level file, so no debug line gets through.
    for (const char* error :
         {"[ERROR] calderix-service(", "): failed to create folder: '", "[ERROR] launcher(",
          "): Failed to upgrade package\n", "[ERROR] mac/mac-service(", "): Failed to launch Calderix UI\n",
          "): Failed to extract package, and no old installation to rollback\n"}) {
        EXPECT_NE(r.err.find(error), std::string::npos) << "missing \"" << error << "\" in:\n" << r.err;
    }
    EXPECT_EQ(r.err.find("[DEBUG]"), std::string::npos) << r.err;
}

struct HomeCase {
    const char* name;
    const char* home; // null: unset
};

class StartupHome : public LauncherFixture, public ::testing::WithParamInterface<HomeCase> {};

// Without a usable HOME the home folder comes from the password database:
// the run happens as root of a user namespace whose /etc/passwd gives root
// the fixture's home, and starts from a folder of its own so that a
// relative HOME would show up there.
TEST_P(StartupHome, TakesTheHomeFromThePasswordDatabase)
{
    const HomeCase& c = GetParam();
    const std::string passwd = root_ + "/passwd";
    const std::string start = root_ + "/start";
    ASSERT_TRUE(WriteFile(passwd, "root:x:0:0:root:" + home_ + ":/bin/sh\n") && MakeDirs(start))
        << strerror(errno);
    SetLevels("service_debug=6\n");
    std::vector<EnvChange> env = Env(home_);
    env.push_back(c.home != nullptr ? Set("HOME", c.home) : Unset("HOME"));

    const ProcessResult r = testsupport::Run({launcher_}, env, [&passwd, &start] {
        EnterUserNamespace(CLONE_NEWNS);
        if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
            mount(passwd.c_str(), "/etc/passwd", nullptr, MS_BIND, nullptr) != 0 ||
            chdir(start.c_str()) != 0) {
            perror("password database");
            _exit(127);
        }
    });
    ExpectCleanExit(r);
    EXPECT_TRUE(Exists(ui_)) << "the copy was not installed in the home of the password database\n" << r.err;
    EXPECT_NE(ReadFile(LogPath()).find("user installation is ready"), std::string::npos)
        << ReadFile(LogPath());
    EXPECT_FALSE(Exists(start + "/" + (c.home != nullptr ? c.home : "") + "/.Calderix"))
        << "installed below the folder the launcher was started from";
}

INSTANTIATE_TEST_SUITE_P(Homes, StartupHome,
                         ::testing::Values(HomeCase{"Unset", nullptr}, HomeCase{"Empty", ""},
                                           HomeCase{"Relative", "relative/home"}),
                         [](const ::testing::TestParamInfo<HomeCase>& info) {
                             return std::string(info.param.name);
                         });

struct LanguageCase {
    const char* name;
    const char* lang;
    const char* code;
};

class StartupLanguage : public LauncherFixture, public ::testing::WithParamInterface<LanguageCase> {};

// The launcher picks the catalogue from the user's locale and finds it among
// its compiled-in resources; the choice is traced on standard error.
TEST_P(StartupLanguage, ChoosesTheCatalogueOfTheUsersLocale)
{
    const LanguageCase& c = GetParam();
    std::vector<EnvChange> env = Env(home_);
    env.push_back(Set("LANG", c.lang));
    env.push_back(Unset("LC_ALL"));
    env.push_back(Unset("LANGUAGE"));
    const ProcessResult r = testsupport::Run({launcher_}, env);
    ASSERT_TRUE(r.exited && r.exit_code == 0) << r.err;
    EXPECT_NE(r.err.find(std::string("qPrintable(qstrDef)=[") + c.code + "]"), std::string::npos) << r.err;
    EXPECT_NE(r.err.find(std::string("qPrintable(qstrLangFileName)=[:/") + c.code + ".qm]"),
              std::string::npos)
        << r.err;
}

INSTANTIATE_TEST_SUITE_P(Locales, StartupLanguage,
                         ::testing::Values(LanguageCase{"German", "de_DE.UTF-8", "deu"},
                                           LanguageCase{"BrazilianPortuguese", "pt_BR.UTF-8", "ptb"},
                                           LanguageCase{"Posix", "C", "enu"}),
                         [](const ::testing::TestParamInfo<LanguageCase>& info) {
                             return std::string(info.param.name);
                         });

struct SecondStartCase {
    const char* name;
    const char* levels; // content of the bundle's level file, nullptr for none
    int debug_lines;    // "app has already launched" lines expected in the log
};

class SecondStart : public LauncherFixture, public ::testing::WithParamInterface<SecondStartCase> {};

// This test process holds the launcher's instance, as a running launcher of
// the same user and executable would; the launcher must step aside.
TEST_P(SecondStart, ExitsAtOnceAndLeavesTheInstallationAlone)
{
    const SecondStartCase& c = GetParam();
    if (c.levels != nullptr) {
        SetLevels(c.levels);
    }
    UseFixtureEnvironment();
    SingleInstanceGuard first(QString::fromStdString(launcher_));
    ASSERT_FALSE(first.isRunning()) << "the test could not take the launcher's instance";

    const ProcessResult r = RunLauncher();
    ASSERT_TRUE(r.exited) << "killed by signal " << r.term_signal << "\n" << r.err;
    EXPECT_EQ(r.exit_code, 0) << r.err;
    EXPECT_EQ(r.out, "lib path = '" + bundle_ + "/Contents/Frameworks/plugins'\n");
    const std::vector<std::string> lines = launchertest::LogLines(ReadFile(LogPath()));
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "[DEBUG] main(%d): app has already launched, return"),
              c.debug_lines)
        << ReadFile(LogPath());
    EXPECT_FALSE(Exists(home_ + "/.Calderix/Calderix.app")) << "a refused start touched the installation";
}

INSTANTIATE_TEST_SUITE_P(Levels, SecondStart,
                         ::testing::Values(SecondStartCase{"DebugEnabled", "launcher_debug=7\n", 1},
                                           SecondStartCase{"NoLevelFile", nullptr, 0},
                                           SecondStartCase{"InfoOnly", "launcher_debug=6\n", 0},
                                           SecondStartCase{"OtherComponent", "service_debug=7\n", 0}),
                         [](const ::testing::TestParamInfo<SecondStartCase>& info) {
                             return std::string(info.param.name);
                         });

// Once the first launcher is gone its instance is free again.
TEST_F(Startup, StartsAgainAfterTheHolderLetGo)
{
    SetLevels("launcher_debug=7\n");
    UseFixtureEnvironment();
    {
        SingleInstanceGuard first(QString::fromStdString(launcher_));
        ASSERT_FALSE(first.isRunning());
    }
    const ProcessResult r = RunLauncher();
    ASSERT_TRUE(r.exited && r.exit_code == 0) << r.err;
    EXPECT_EQ(ReadFile(LogPath()).find("app has already launched"), std::string::npos) << ReadFile(LogPath());
}

} // namespace
