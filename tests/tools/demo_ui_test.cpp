#include <cerrno>
#include <csignal>
#include <cstring>
#include <ostream>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "test_support.h"
#include "vpkpack.h"

using testsupport::EnvChange;
using testsupport::ReadFile;
using testsupport::Set;

namespace {

std::string ErrnoText()
{
    return std::strerror(errno);
}

// The demo executable in a bundle of its own, as the package installs it,
// and a home without any ~/.Calderix yet.
class DemoUiTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        for (const std::string& folder :
             {home_, bundle_ + "/Contents/MacOS", bundle_ + "/Contents/Resources"}) {
            ASSERT_TRUE(testsupport::MakeDirs(folder)) << folder << ": " << ErrnoText();
        }
        ASSERT_TRUE(testsupport::CopyTree(DEMO_UI_BIN, ui_)) << ui_ << ": " << ErrnoText();
        ASSERT_TRUE(testsupport::CopyTree(DEMO_UI_DIR "/Info.plist", bundle_ + "/Contents/Info.plist"))
            << ErrnoText();
        ASSERT_TRUE(
            testsupport::WriteFile(bundle_ + "/Contents/Resources/INFO", "[Version]\nbuild_version=1201\n"))
            << ErrnoText();
    }

    std::vector<EnvChange> Env(std::vector<EnvChange> extra = {})
    {
        extra.insert(extra.begin(), {Set("HOME", home_), Set("QT_QPA_PLATFORM", "offscreen")});
        return extra;
    }

    // Nothing announces the pid file, so this polls; the bound is only there
    // to end a hung run (sanitizer builds start slowly).
    ::testing::AssertionResult WaitForPidFile(pid_t child, const std::string& want)
    {
        for (int i = 0; i < 6000; ++i) {
            if (ReadFile(pid_file_) == want) {
                return ::testing::AssertionSuccess();
            }
            int status = 0;
            if (waitpid(child, &status, WNOHANG) == child) {
                return ::testing::AssertionFailure()
                       << "ended (status " << status << ") before writing " << want << ": " << ReadFile(err_);
            }
            usleep(10000);
        }
        return ::testing::AssertionFailure() << pid_file_ << " holds '" << ReadFile(pid_file_) << "'";
    }

    testsupport::TempDir tmp_{"demo-ui-test"};
    const std::string home_ = tmp_ / "home";
    const std::string bundle_ = tmp_ / "Calderix.app";
    const std::string ui_ = bundle_ + "/Contents/MacOS/calderix-drive-ui";
    const std::string pid_file_ = home_ + "/.Calderix/ui.pid";
    const std::string out_ = tmp_ / "stdout";
    const std::string err_ = tmp_ / "stderr";
};

class DemoUiSignalTest : public DemoUiTest, public ::testing::WithParamInterface<int> {};

TEST_P(DemoUiSignalTest, QuitsCleanlyAndRemovesItsPidFile)
{
    const pid_t child = testsupport::Start({ui_}, Env(), out_, err_);
    ASSERT_GT(child, 0) << "fork: " << ErrnoText();
    ASSERT_TRUE(WaitForPidFile(child, "pid=" + std::to_string(child) + "\n"));
    ASSERT_EQ(0, kill(child, GetParam())) << ErrnoText();
    const int status = testsupport::Wait(child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
        << "status " << status << ": " << ReadFile(err_);
    EXPECT_FALSE(testsupport::Exists(pid_file_)) << pid_file_;
    EXPECT_EQ("Calderix Drive build 1201 is running\n", ReadFile(out_));
}

INSTANTIATE_TEST_SUITE_P(Signals, DemoUiSignalTest, ::testing::Values(SIGTERM, SIGINT, SIGHUP),
                         [](const ::testing::TestParamInfo<int>& info) {
                             return std::string(info.param == SIGTERM  ? "sigterm"
                                                : info.param == SIGINT ? "sigint"
                                                                       : "sighup");
                         });

TEST_F(DemoUiTest, LeavesAPidFileThatNamesAnotherProcess)
{
    const pid_t child = testsupport::Start({ui_}, Env(), out_, err_);
    ASSERT_GT(child, 0) << "fork: " << ErrnoText();
    ASSERT_TRUE(WaitForPidFile(child, "pid=" + std::to_string(child) + "\n"));
    ASSERT_TRUE(testsupport::WriteFile(pid_file_, "pid=1\n")) << pid_file_ << ": " << ErrnoText();
    ASSERT_EQ(0, kill(child, SIGTERM)) << ErrnoText();
    const int status = testsupport::Wait(child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
        << "status " << status << ": " << ReadFile(err_);
    EXPECT_EQ("pid=1\n", ReadFile(pid_file_)) << "the newer instance's pid file was removed";
}

struct Unattended {
    const char* name;
    std::vector<EnvChange> env;
    int exit_code;
    const char* stderr_part;
};

void PrintTo(const Unattended& row, std::ostream* os)
{
    *os << row.name;
}

class DemoUiRunTest : public DemoUiTest, public ::testing::WithParamInterface<Unattended> {};

TEST_P(DemoUiRunTest, EndsByItselfWithoutLeavingAPidFile)
{
    const testsupport::ProcessResult result = testsupport::Run({ui_}, Env(GetParam().env));
    EXPECT_TRUE(result.exited) << "signal " << result.term_signal;
    EXPECT_EQ(GetParam().exit_code, result.exit_code) << result.err;
    EXPECT_NE(std::string::npos, result.err.find(GetParam().stderr_part)) << result.err;
    EXPECT_FALSE(testsupport::Exists(pid_file_)) << pid_file_;
}

INSTANTIATE_TEST_SUITE_P(
    Runs, DemoUiRunTest,
    ::testing::Values(Unattended{"exit_after_delay", {Set("CALDERIX_DEMO_UI_EXIT_AFTER_MS", "0")}, 0, ""},
                      Unattended{"bad_exit_delay",
                                 {Set("CALDERIX_DEMO_UI_EXIT_AFTER_MS", "soon")},
                                 2,
                                 "CALDERIX_DEMO_UI_EXIT_AFTER_MS is not a number of milliseconds: 'soon'"},
                      // No one, root included, may create folders in /proc/self.
                      Unattended{"unwritable_home", {Set("HOME", "/proc/self")}, 1, "cannot create folder"}),
    [](const ::testing::TestParamInfo<Unattended>& info) { return std::string(info.param.name); });

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
