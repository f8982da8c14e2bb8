#include <cerrno>
#include <csignal>
#include <cstring>
#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "test_rows.h"
#include "test_support.h"

using testsupport::EnvChange;
using testsupport::ReadFile;
using testsupport::Set;

namespace {

// The demo executable in a bundle of its own, as the package installs it,
// and a home without any ~/.Calderix yet; sig 0 runs it without a signal.
struct DemoRun {
    const char* name;
    int sig;
    bool newer_instance; // another instance has taken the pid file over meanwhile
    EnvChange env{};
    int exit_code = 0;
    const char* stderr_part = "";
};

class DemoUiTest : public ::testing::TestWithParam<DemoRun> {};

TEST_P(DemoUiTest, EndsCleanlyAndRemovesOnlyItsOwnPidFile)
{
    const DemoRun& row = GetParam();
    testsupport::TempDir tmp{"demo-ui-test"};
    const std::string ui = tmp / "Calderix.app/Contents/MacOS/calderix-drive-ui",
                      pid_file = tmp / ".Calderix/ui.pid";
    ASSERT_TRUE(testsupport::MakeDirs(tmp / "Calderix.app/Contents/MacOS") &&
                testsupport::MakeDirs(tmp / "Calderix.app/Contents/Resources") &&
                testsupport::CopyTree(DEMO_UI_BIN, ui) &&
                testsupport::WriteFile(tmp / "Calderix.app/Contents/Resources/INFO",
                                       "[Version]\nbuild_version=1201\n"))
        << std::strerror(errno);
    std::vector<EnvChange> env{Set("HOME", tmp.path()), Set("QT_QPA_PLATFORM", "offscreen")};
    if (row.sig == 0) {
        env.push_back(row.env);
        const testsupport::ProcessResult result = testsupport::Run({ui}, env);
        EXPECT_TRUE(result.exited) << "signal " << result.term_signal;
        EXPECT_EQ(row.exit_code, result.exit_code) << result.err;
        EXPECT_NE(std::string::npos, result.err.find(row.stderr_part)) << result.err;
        EXPECT_FALSE(testsupport::Exists(pid_file)) << pid_file;
        return;
    }
    const pid_t child = testsupport::Start({ui}, env, tmp / "out", tmp / "err");
    ASSERT_GT(child, 0) << "fork: " << std::strerror(errno);
    // Nothing announces the pid file; the bound only ends a hung run.
    const std::string want = "pid=" + std::to_string(child) + "\n";
    for (int i = 0; i < 6000 && ReadFile(pid_file) != want && waitpid(child, nullptr, WNOHANG) == 0; ++i)
        usleep(10000);
    ASSERT_EQ(want, ReadFile(pid_file)) << ReadFile(tmp / "err");
    ASSERT_TRUE(!row.newer_instance || testsupport::WriteFile(pid_file, "pid=1\n")) << std::strerror(errno);
    ASSERT_EQ(0, kill(child, row.sig)) << std::strerror(errno);
    const int status = testsupport::Wait(child);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
        << "status " << status << ": " << ReadFile(tmp / "err");
    EXPECT_EQ(row.newer_instance ? "pid=1\n" : "", ReadFile(pid_file)) << "the wrong pid file went or stayed";
    EXPECT_EQ("Calderix Drive build 1201 is running\n", ReadFile(tmp / "out"));
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Runs, DemoUiTest, ::testing::ValuesIn(std::vector<DemoRun>{
    {"sigterm", SIGTERM, false}, {"sigint", SIGINT, false}, {"sighup", SIGHUP, false},
    {"sigterm_newer_instance", SIGTERM, true},
    {"exit_after_delay", 0, false, Set("CALDERIX_DEMO_UI_EXIT_AFTER_MS", "0")},
    {"bad_exit_delay", 0, false, Set("CALDERIX_DEMO_UI_EXIT_AFTER_MS", "soon"), 2, "is not a number of milliseconds: 'soon'"},
    // No one, root included, may create folders in /proc/self.
    {"unwritable_home", 0, false, Set("HOME", "/proc/self"), 1, "cannot create folder"},
}), testsupport::RowName());
// clang-format on

} // namespace
