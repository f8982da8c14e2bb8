// Twenty launchers of one user started together while an upgrade runs:
// the first one upgrades, the other nineteen must step aside at once
// without touching the half-written installation, and the user ends up
// with the package's tree and one user interface.
#include <algorithm>
#include <csignal>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <gtest/gtest.h>

#include "reliability_fixture.h"

using namespace testsupport;

namespace {

const char kAlreadyRunning[] = "[DEBUG] main(%d): app has already launched, return";
constexpr int kLaunchers = 20;
// About three hundred and thirty entries.
constexpr int kFolders = 20;
constexpr int kFilesPerFolder = 15;

using ManyStarts = ReliabilityFixture;

TEST_F(ManyStarts, OneUpgradesAndTheOthersStepAside)
{
    SetLevels("launcher_debug=7\nservice_debug=6\n");
    InstallCopy("1200");
    const int total = PackClient("1201", kFolders, kFilesPerFolder);
    ASSERT_GT(total, 300) << "the package is too small";

    // The first launcher stops itself halfway through the extraction, with
    // the instance held, the old copy moved aside and the new one half there.
    const pid_t first = StartLauncher("first", ShimEnv(KILL_SHIM, "stop:" + std::to_string(total / 2)));
    ASSERT_GT(first, 0) << strerror(errno);
    int status = 0;
    ASSERT_EQ(waitpid(first, &status, WUNTRACED), first) << strerror(errno);
    ASSERT_TRUE(WIFSTOPPED(status)) << "the first launcher ended before it was halfway\n"
                                    << ReadFile(root_ + "/first.err");
    ASSERT_FALSE(Backups().empty()) << "the first launcher stopped before it moved the old copy aside";
    const std::string log_before = ReadFile(LogPath());

    std::vector<pid_t> others;
    for (int i = 1; i < kLaunchers; ++i) {
        others.push_back(StartLauncher(std::to_string(i), Env(home_)));
        ASSERT_GT(others.back(), 0) << strerror(errno);
    }
    const time_t deadline = time(nullptr) + 90;
    for (int i = 1; i < kLaunchers; ++i) {
        SCOPED_TRACE("launcher " + std::to_string(i) + " of the nineteen");
        ExpectCleanExit(Finish(others[static_cast<size_t>(i - 1)], std::to_string(i), deadline));
    }
    // The first one is stopped, so whatever the log gained came from the nineteen.
    const std::string gained = ReadFile(LogPath()).substr(log_before.size());
    EXPECT_EQ(launchertest::LogLines(gained), std::vector<std::string>(kLaunchers - 1, kAlreadyRunning))
        << gained;

    ASSERT_EQ(kill(first, SIGCONT), 0) << strerror(errno);
    ExpectCleanExit(Finish(first, "first", time(nullptr) + 90));
    const std::string log = ReadFile(LogPath());
    const std::vector<std::string> lines = launchertest::LogLines(log);
    for (const std::string& line :
         {std::string("[DEBUG] launcher(%d): running"),
          "[INFO] calderix-service(%d): extract package: '" + package_ + "' -> '" + app_ + "'",
          std::string("[INFO] calderix-service(%d): user installation is ready, removing backup app")}) {
        EXPECT_EQ(std::count(lines.begin(), lines.end(), line), 1) << line << " in\n" << log;
    }
    const reliability::Tree package = reliability::Snapshot(ClientBundle("1201", kFolders, kFilesPerFolder));
    const reliability::Tree after = reliability::Snapshot(app_);
    EXPECT_EQ(after, package) << "the installed tree is not the package's:\n"
                              << reliability::Difference(package, after);
    EXPECT_TRUE(Backups().empty()) << "a backup stayed: " << Backups().front();
    ExpectUiStartedOnce();
}

// Two copies of the launcher's bundle (one installed, one on a mounted disk
// image) started together by one user: each holds the instance of its own
// executable, yet only one of them may upgrade and start the interface; the
// other waits and then finds the copy current and the interface running.
TEST_F(ManyStarts, TwoBundlesOneExtractionOneInterface)
{
    SetLevels("service_debug=6\n");
    PackClient("1201");
    const std::string second = root_ + "/Volumes/Calderix Drive.app";
    ASSERT_TRUE(MakeDirs(root_ + "/Volumes") && CopyTree(bundle_, second)) << strerror(errno);
    const std::string extract = "[INFO] calderix-service(%d): extract package: '";
    for (int round = 1; round <= 20; ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        TearDown();
        ASSERT_TRUE(RemoveTree(install_)) << strerror(errno);
        const pid_t a = StartLauncher("a", Env(home_));
        const pid_t b =
            Start({second + "/Contents/MacOS/launcher"}, Env(home_), root_ + "/b.out", root_ + "/b.err");
        ASSERT_TRUE(a > 0 && b > 0) << strerror(errno);
        const time_t deadline = time(nullptr) + 60;
        const ProcessResult ra = Finish(a, "a", deadline);
        ASSERT_TRUE(ra.exited && ra.exit_code == 0) << ra.err;
        const ProcessResult rb = Finish(b, "b", deadline);
        ASSERT_TRUE(rb.exited && rb.exit_code == 0) << rb.err;
        const std::string log = ReadFile(LogPath());
        const std::vector<std::string> lines = launchertest::LogLines(log);
        EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                                [&](const std::string& line) { return line.rfind(extract, 0) == 0; }),
                  1)
            << log;
        ExpectUiStartedOnce();
        if (HasFailure()) {
            break;
        }
    }
}

} // namespace
