// An upgrade ended by SIGKILL at many moments (kill_shim.c picks the
// moment), then a normal start: the user must end up with the package's
// tree and a running user interface, and nothing outside ~/.Calderix may
// change. A package without vpkpack's ordering shows what that order buys.
#include <csignal>
#include <iostream>
#include <string>
#include <sys/wait.h>
#include <vector>

#include <gtest/gtest.h>

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
    bool ordered; // packed by vpkpack, else the version file and UI first
};

void PrintTo(const KillRow& row, std::ostream* os)
{
    *os << row.name;
}

class KillSweep : public ReliabilityFixture, public ::testing::WithParamInterface<KillRow> {
protected:
    // The package for build 1201 in the launcher's bundle; its entry count.
    int Package(bool ordered)
    {
        if (ordered) {
            return PackClient("1201", kFolders, kFilesPerFolder);
        }
        const std::string client = ClientBundle("1201", kFolders, kFilesPerFolder);
        const std::string info = "Contents/Resources/INFO";
        const std::string ui = "Contents/MacOS/calderix-drive-ui";
        std::vector<reliability::PackEntry> entries = {
            {reliability::PackEntry::File, info, ReadFile(client + "/" + info), 0644, {}},
            {reliability::PackEntry::File, ui, ReadFile(client + "/" + ui), 0755, {}}};
        for (const auto& item : reliability::Snapshot(client)) {
            if (item.first.empty() || item.first == info || item.first == ui) {
                continue;
            }
            if (item.second == "dir") {
                entries.push_back({reliability::PackEntry::Folder, item.first, {}, 0755, {}});
            } else {
                entries.push_back({reliability::PackEntry::File,
                                   item.first,
                                   ReadFile(client + "/" + item.first),
                                   0644,
                                   {}});
            }
        }
        EXPECT_TRUE(reliability::WritePackage(package_, entries));
        EXPECT_TRUE(WriteFile(bundle_ + "/Contents/Resources/INFO", ReadFile(client + "/" + info)));
        return static_cast<int>(entries.size());
    }

    ProcessResult RunKilledAt(const std::string& at) const
    {
        std::vector<EnvChange> env = Env(home_);
        const char* asan = getenv("ASAN_OPTIONS");
        // The shim comes ahead of the sanitizer's runtime, which is harmless
        // here: it only forwards calls.
        env.push_back(
            Set("ASAN_OPTIONS", std::string(asan != nullptr ? asan : "") + ":verify_asan_link_order=0"));
        env.push_back(Set("LD_PRELOAD", KILL_SHIM));
        env.push_back(Set("CALDERIX_KILL_AT", at));
        env.push_back(Set("CALDERIX_KILL_ROOT", install_));
        return testsupport::Run({launcher_}, env);
    }

    // Stops and reaps the user interface, so that the next launcher finds
    // no process to wait for.
    void StopUi()
    {
        for (const pid_t pid : UiProcesses()) {
            kill(pid, SIGKILL);
            waitpid(pid, nullptr, 0);
        }
    }
};

TEST_P(KillSweep, NextStartRepairsTheInstallation)
{
    const KillRow& row = GetParam();
    InstallCopy("1200");
    const int total = Package(row.ordered);
    ASSERT_GT(total, 300) << "the package is too small to sweep";
    const reliability::Tree package = reliability::Snapshot(ClientBundle("1201", kFolders, kFilesPerFolder));
    const reliability::Tree outside = Outside();

    std::string at = row.point;
    if (at == "create") {
        at += ":" + std::to_string(std::max(1, total * row.eighths / 8 - row.minus));
    } else if (at == "remove") {
        at += ":" + std::to_string(row.eighths);
    }
    const ProcessResult killed = RunKilledAt(at);
    ASSERT_FALSE(killed.exited) << "the launcher never reached the kill point " << at << " (exit "
                                << killed.exit_code << ")\n"
                                << killed.err;
    ASSERT_EQ(killed.term_signal, SIGKILL) << killed.err;
    const bool complete = reliability::Snapshot(app_) == package;
    const std::vector<std::string> left = Backups();

    ExpectCleanExit(RunLauncher());
    const reliability::Tree after = reliability::Snapshot(app_);
    EXPECT_EQ(Outside(), outside) << "something outside ~/.Calderix changed";
    ExpectUiStartedOnce();

    if (!row.ordered && total * row.eighths / 8 > 2) {
        // The version file and the UI were complete before the kill, so the
        // next start takes the half-written copy as current and keeps it.
        EXPECT_NE(after, package) << "an unordered package cut short was repaired after all";
        std::cout << "[kill " << at << " of " << total << ", unordered] " << package.size() - after.size()
                  << " entries stay missing\n";
        return;
    }
    EXPECT_EQ(after, package) << "the installed tree is not the package's after a kill at " << at << ":\n"
                              << reliability::Difference(package, after);
    const std::vector<std::string> remaining = Backups();
    if (!complete) {
        EXPECT_TRUE(remaining.empty()) << "a backup stayed although the kill at " << at
                                       << " came before the new copy was complete: " << remaining.front();
        std::cout << "[kill " << at << " of " << total << "] killed before the new copy was complete ("
                  << left.size() << " backup(s) after the kill), redone by the next start, no backup left\n";
        return;
    }
    std::cout << "[kill " << at << " of " << total << "] copy complete before the kill, " << remaining.size()
              << " backup(s) left by the next start\n";
    if (remaining.empty()) {
        return;
    }
    // The next upgrade clears what the interrupted one left.
    StopUi();
    PackClient("1202");
    ExpectCleanExit(RunLauncher());
    EXPECT_EQ(reliability::Snapshot(app_), reliability::Snapshot(ClientBundle("1202")));
    EXPECT_TRUE(Backups().empty()) << "the next upgrade left the backup " << Backups().front();
}

INSTANTIATE_TEST_SUITE_P(
    Points, KillSweep,
    ::testing::Values(
        KillRow{"first_entry", "create", 0, 0, true}, KillRow{"eighth", "create", 1, 0, true},
        KillRow{"quarter", "create", 2, 0, true}, KillRow{"three_eighths", "create", 3, 0, true},
        KillRow{"half", "create", 4, 0, true}, KillRow{"five_eighths", "create", 5, 0, true},
        KillRow{"three_quarters", "create", 6, 0, true}, KillRow{"seven_eighths", "create", 7, 0, true},
        KillRow{"ui_created", "create", 8, 1, true}, KillRow{"info_created", "create", 8, 0, true},
        KillRow{"before_backup", "backup-before", 0, 0, true},
        KillRow{"after_backup", "backup-after", 0, 0, true},
        KillRow{"first_backup_removal", "remove", 1, 0, true},
        KillRow{"third_backup_removal", "remove", 3, 0, true},
        KillRow{"unordered_first_entry", "create", 0, 0, false},
        KillRow{"unordered_half", "create", 4, 0, false}),
    [](const ::testing::TestParamInfo<KillRow>& info) { return std::string(info.param.name); });

class DurableUpgrade : public ReliabilityFixture {};

// A power cut right after the backup's first entry is gone must find the
// new copy on disk: between the last write into it and that removal comes
// a sync of the installation's file system.
TEST_F(DurableUpgrade, SyncsTheNewCopyBeforeRemovingTheBackup)
{
    InstallCopy("1200");
    PackClient("1201", kFolders, kFilesPerFolder);
    const std::string trace = root_ + "/trace";
    ExpectCleanExit(testsupport::Run({launcher_}, ShimEnv(KILL_SHIM, "trace:" + trace)));
    const std::vector<std::string> calls = Lines(ReadFile(trace));

    const std::string backup = install_ + "/Calderix.app_tmp";
    const auto below = [](const std::string& path, const std::string& folder) {
        return path == folder || path.compare(0, folder.size() + 1, folder + "/") == 0;
    };
    size_t last_write = calls.size(), first_removal = calls.size(), sync = calls.size();
    for (size_t i = 0; i < calls.size() && first_removal == calls.size(); ++i) {
        const std::string op = calls[i].substr(0, calls[i].find(' '));
        const std::string path = calls[i].substr(op.size() + 1);
        if (op == "write" && below(path, app_)) {
            last_write = i;
        } else if ((op == "remove" || op == "unlink" || op == "rmdir") && below(path, backup)) {
            first_removal = i;
        } else if (op == "syncfs" && below(path, install_) && last_write != calls.size()) {
            sync = i;
        }
    }
    ASSERT_NE(last_write, calls.size()) << "no write into the new copy was traced";
    ASSERT_NE(first_removal, calls.size()) << "the backup was never removed";
    EXPECT_TRUE(sync > last_write && sync < first_removal)
        << "no sync of the installation between the last write into the new copy (call " << last_write
        << ") and the first removal inside the backup (call " << first_removal << ": " << calls[first_removal]
        << ")";
}

} // namespace
