// Upgrades interrupted (kill_shim.c picks the moment): ended by SIGKILL at
// many moments and then started again, traced for the sync that must come
// before the backup goes, stopped halfway while nineteen more launchers
// start, or raced by a second copy of the launcher's bundle. The user must
// end up with the package's tree and one running user interface, and
// nothing outside ~/.Calderix may change.
#include "reliability_fixture.h"

using namespace testsupport;

namespace {

// About three hundred and thirty entries.
constexpr int kFolders = 20;
constexpr int kFilesPerFolder = 15;

struct KillRow {
    const char* name;
    // "create" (the k-th created entry), "backup-before", "backup-after" or "remove".
    const char* point;
    // create: k = max(1, total * eighths / 8 - minus); remove: the n-th removal is eighths.
    int eighths;
    int minus;
};

class KillSweep : public ReliabilityFixture, public ::testing::WithParamInterface<KillRow> {};

TEST_P(KillSweep, NextStartRepairsTheInstallation)
{
    const KillRow& row = GetParam();
    InstallCopy("1200");
    const int total = PackClient("1201", kFolders, kFilesPerFolder);
    ASSERT_GT(total, 300) << "the package is too small to sweep";
    const reliability::Tree package = reliability::Snapshot(ClientBundle("1201", kFolders, kFilesPerFolder));
    const reliability::Tree outside = Outside();
    std::string at = row.point;
    if (at != "backup-before" && at != "backup-after") {
        at += ":" +
              std::to_string(at == "create" ? std::max(1, total * row.eighths / 8 - row.minus) : row.eighths);
    }
    const ProcessResult killed = testsupport::Run({launcher_}, ShimEnv(at));
    ASSERT_EQ(killed.term_signal, SIGKILL) << "the launcher never reached the kill point " << at << "\n"
                                           << killed.err;
    const bool complete = reliability::Snapshot(app_) == package;

    ExpectCleanExit(RunLauncher());
    EXPECT_TRUE(reliability::SameTree(package, reliability::Snapshot(app_)))
        << "the installed tree is not the package's after a kill at " << at;
    EXPECT_TRUE(reliability::SameTree(outside, Outside())) << "something outside ~/.Calderix changed";
    ExpectUiStartedOnce();
    EXPECT_TRUE(complete || Backups().empty())
        << "a backup stayed although the kill at " << at << " came before the new copy was complete";
    if (!Backups().empty()) {
        // The next upgrade clears what the interrupted one left.
        TearDown();
        PackClient("1202");
        ExpectCleanExit(RunLauncher());
        EXPECT_TRUE(
            reliability::SameTree(reliability::Snapshot(ClientBundle("1202")), reliability::Snapshot(app_)))
            << "the next upgrade did not install its package";
        EXPECT_TRUE(Backups().empty()) << "the next upgrade left the backup " << Backups().front();
    }
}

INSTANTIATE_TEST_SUITE_P(Points, KillSweep,
                         ::testing::Values(KillRow{"first_entry", "create", 0, 0},
                                           KillRow{"half", "create", 4, 0},
                                           KillRow{"ui_created", "create", 8, 1},
                                           KillRow{"info_created", "create", 8, 0},
                                           KillRow{"before_backup", "backup-before", 0, 0},
                                           KillRow{"after_backup", "backup-after", 0, 0},
                                           KillRow{"first_backup_removal", "remove", 1, 0},
                                           KillRow{"third_backup_removal", "remove", 3, 0}),
                         RowName());

using Interrupted = ReliabilityFixture;

// A power cut right after the backup's first entry is gone must find the
// new copy on disk: between the last write into it and that removal comes
// a sync of the installation's file system.
TEST_F(Interrupted, SyncsTheNewCopyBeforeRemovingTheBackup)
{
    InstallCopy("1200");
    PackClient("1201", kFolders, kFilesPerFolder);
    ExpectCleanExit(testsupport::Run({launcher_}, ShimEnv("trace")));
    const auto below = [](const std::string& path, const std::string& folder) {
        return path == folder || path.rfind(folder + "/", 0) == 0;
    };
    std::string last_write, sync;
    for (const std::string& call : Lines(ReadFile(root_ + "/trace"))) {
        const std::string op = call.substr(0, call.find(' ')), path = call.substr(op.size() + 1);
        if (op == "write" && below(path, app_)) {
            last_write = call, sync.clear();
        } else if (op == "syncfs" && below(path, install_)) {
            sync = call;
        } else if (op == "remove" && below(path, install_ + "/Calderix.app_tmp")) {
            ASSERT_NE(last_write, "") << "no write into the new copy was traced before " << call;
            ASSERT_NE(sync, "") << "no sync of the installation between " << last_write << " and " << call;
            return;
        }
    }
    FAIL() << "the backup was never removed";
}

// Twenty launchers of one user started together while an upgrade runs: the
// first one, stopped halfway with the old copy moved aside, upgrades; the
// other nineteen step aside at once without touching its work.
TEST_F(Interrupted, OneOfTwentyUpgradesAndTheOthersStepAside)
{
    SetLevels("launcher_debug=7\nservice_debug=6\n");
    InstallCopy("1200");
    const int total = PackClient("1201", kFolders, kFilesPerFolder);
    const pid_t first = StartLauncher("first", ShimEnv("stop:" + std::to_string(total / 2)));
    int status = 0;
    ASSERT_EQ(waitpid(first, &status, WUNTRACED), first) << strerror(errno);
    ASSERT_TRUE(WIFSTOPPED(status)) << "the first launcher ended before it was halfway\n"
                                    << ReadFile(root_ + "/first.err");
    ASSERT_FALSE(Backups().empty()) << "the first launcher stopped before it moved the old copy aside";
    std::vector<pid_t> others;
    for (int i = 0; i < 19; ++i) {
        others.push_back(StartLauncher(std::to_string(i), Env(home_)));
    }
    // One bound for all: a launcher that waits for the first instead of
    // stepping aside would otherwise hold the test for its own bound.
    const time_t end = time(nullptr) + 60;
    for (int i = 0; i < 19; ++i) {
        SCOPED_TRACE("launcher " + std::to_string(i) + " of the nineteen");
        ExpectCleanExit(
            Finish(others[static_cast<size_t>(i)], std::to_string(i), static_cast<int>(end - time(nullptr))));
    }
    EXPECT_EQ(LogCount("[DEBUG] main(%d): app has already launched, return"), 19) << ReadFile(LogPath());
    ASSERT_EQ(kill(first, SIGCONT), 0) << strerror(errno);
    ExpectCleanExit(Finish(first, "first"));
    EXPECT_TRUE(reliability::SameTree(reliability::Snapshot(ClientBundle("1201", kFolders, kFilesPerFolder)),
                                      reliability::Snapshot(app_)))
        << "the installed tree is not the package's";
    EXPECT_TRUE(Backups().empty()) << "a backup stayed: " << Backups().front();
    ExpectUiStartedOnce();
}

// Two copies of the launcher's bundle (one installed, one on a mounted disk
// image) started together by one user: each holds the instance of its own
// executable, yet only one of them may upgrade and start the interface.
TEST_F(Interrupted, TwoBundlesOneExtractionOneInterface)
{
    SetLevels("service_debug=6\n");
    PackClient("1201");
    const std::string second = root_ + "/Volumes/Calderix Drive.app";
    ASSERT_TRUE(MakeDirs(root_ + "/Volumes") && CopyTree(bundle_, second)) << strerror(errno);
    for (int round = 1; round <= 20 && !HasFailure(); ++round) {
        SCOPED_TRACE("round " + std::to_string(round));
        TearDown();
        ASSERT_TRUE(RemoveTree(install_)) << strerror(errno);
        const pid_t a = StartLauncher("a", Env(home_));
        const pid_t b = StartLauncher("b", Env(home_), second + "/Contents/MacOS/launcher");
        for (const auto& [pid, name] : {std::make_pair(a, "a"), std::make_pair(b, "b")}) {
            const ProcessResult r = Finish(pid, name, 60);
            ASSERT_TRUE(r.exited && r.exit_code == 0) << r.err;
        }
        EXPECT_EQ(LogCount("[INFO] calderix-service(%d): extract package: '"), 1) << ReadFile(LogPath());
        ExpectUiStartedOnce();
    }
}

} // namespace
