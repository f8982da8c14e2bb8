#include <cerrno>
#include <csignal>
#include <cstring>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "service_fixture.h"
#include "test_support.h"
#include "vpkpack.h"

using testsupport::EnvChange;
using testsupport::ReadFile;
using testsupport::Set;

namespace {

// The demo executable in a bundle of its own, as the package installs it,
// and a home without any ~/.Calderix yet.
class DemoUiTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(testsupport::MakeDirs(home_)) << std::strerror(errno);
        ASSERT_TRUE(testsupport::MakeDirs(bundle_ + "/Contents/MacOS")) << std::strerror(errno);
        ASSERT_TRUE(testsupport::CopyTree(DEMO_UI_BIN, ui_)) << ui_ << ": " << std::strerror(errno);
        ASSERT_TRUE(testsupport::CopyTree(DEMO_UI_DIR "/Info.plist", bundle_ + "/Contents/Info.plist"));
        ASSERT_TRUE(testsupport::MakeDirs(bundle_ + "/Contents/Resources"));
        ASSERT_TRUE(
            testsupport::WriteFile(bundle_ + "/Contents/Resources/INFO", "[Version]\nbuild_version=1201\n"));
    }

    std::vector<EnvChange> Env(std::vector<EnvChange> extra = {})
    {
        extra.insert(extra.begin(), {Set("HOME", home_), Set("QT_QPA_PLATFORM", "offscreen")});
        return extra;
    }

    testsupport::TempDir tmp_{"demo-ui-test"};
    const std::string home_ = tmp_ / "home";
    const std::string bundle_ = tmp_ / "Calderix.app";
    const std::string ui_ = bundle_ + "/Contents/MacOS/calderix-drive-ui";
    const std::string pid_file_ = home_ + "/.Calderix/ui.pid";
};

struct Stop {
    const char* name;
    int signal;
    bool newer_instance; // another instance has taken the pid file over meanwhile
};

class DemoUiStopTest : public DemoUiTest, public ::testing::WithParamInterface<Stop> {};

TEST_P(DemoUiStopTest, QuitsCleanlyAndRemovesOnlyItsOwnPidFile)
{
    const Stop& row = GetParam();
    const std::string out = tmp_ / "stdout", err = tmp_ / "stderr";
    const pid_t child = testsupport::Start({ui_}, Env(), out, err);
    ASSERT_GT(child, 0) << "fork: " << std::strerror(errno);
    // Nothing announces the pid file; the bound only ends a hung run.
    const std::string want = "pid=" + std::to_string(child) + "\n";
    for (int i = 0; i < 6000 && ReadFile(pid_file_) != want && waitpid(child, nullptr, WNOHANG) == 0; ++i) {
        usleep(10000);
    }
    ASSERT_EQ(want, ReadFile(pid_file_)) << ReadFile(err);
    if (row.newer_instance) {
        ASSERT_TRUE(testsupport::WriteFile(pid_file_, "pid=1\n")) << std::strerror(errno);
    }
    ASSERT_EQ(0, kill(child, row.signal)) << std::strerror(errno);
    const int status = testsupport::Wait(child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
        << "status " << status << ": " << ReadFile(err);
    EXPECT_EQ(row.newer_instance, testsupport::Exists(pid_file_)) << pid_file_;
    EXPECT_EQ(row.newer_instance ? "pid=1\n" : "", ReadFile(pid_file_))
        << "another instance's pid file was removed";
    EXPECT_EQ("Calderix Drive build 1201 is running\n", ReadFile(out));
}

INSTANTIATE_TEST_SUITE_P(Signals, DemoUiStopTest,
                         ::testing::Values(Stop{"sigterm", SIGTERM, false}, Stop{"sigint", SIGINT, false},
                                           Stop{"sighup", SIGHUP, false},
                                           Stop{"sigterm_newer_instance", SIGTERM, true}),
                         servicetest::RowName<Stop>);

struct Unattended {
    const char* name;
    EnvChange env;
    int exit_code;
    const char* stderr_part;
};

class DemoUiRunTest : public DemoUiTest, public ::testing::WithParamInterface<Unattended> {};

TEST_P(DemoUiRunTest, EndsByItselfWithoutLeavingAPidFile)
{
    const testsupport::ProcessResult result = testsupport::Run({ui_}, Env({GetParam().env}));
    EXPECT_TRUE(result.exited) << "signal " << result.term_signal;
    EXPECT_EQ(GetParam().exit_code, result.exit_code) << result.err;
    EXPECT_NE(std::string::npos, result.err.find(GetParam().stderr_part)) << result.err;
    EXPECT_FALSE(testsupport::Exists(pid_file_)) << pid_file_;
}

INSTANTIATE_TEST_SUITE_P(
    Runs, DemoUiRunTest,
    ::testing::Values(Unattended{"exit_after_delay", Set("CALDERIX_DEMO_UI_EXIT_AFTER_MS", "0"), 0, ""},
                      Unattended{"bad_exit_delay", Set("CALDERIX_DEMO_UI_EXIT_AFTER_MS", "soon"), 2,
                                 "CALDERIX_DEMO_UI_EXIT_AFTER_MS is not a number of milliseconds: 'soon'"},
                      // No one, root included, may create folders in /proc/self.
                      Unattended{"unwritable_home", Set("HOME", "/proc/self"), 1, "cannot create folder"}),
    servicetest::RowName<Unattended>);

TEST_F(DemoUiTest, BundlePacksIntoAPackageTheLauncherAccepts)
{
    const std::string package = tmp_ / "calderix.vpk";
    vpkpack::PackageSummary summary;
    const vpkpack::Status packed = vpkpack::Pack(bundle_, package, {}, &summary);
    ASSERT_TRUE(packed.ok()) << packed.Message();
    EXPECT_EQ(1201, summary.version.build);
    const vpkpack::Status checked = vpkpack::Check(package);
    EXPECT_TRUE(checked.ok()) << checked.Message();
}

} // namespace
