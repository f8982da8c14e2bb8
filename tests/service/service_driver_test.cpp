// The installation service run from inside a fake launcher bundle with a
// fake home: the upgrade decision, the upgrade itself, stopping and
// launching the user interface, and the whole sequence.
#include <filesystem>
#include <set>

#include "driver_fixture.h"

using servicetest::PackageFormat;
using servicetest::Snapshot;
using servicetest::TreeOf;
using Strings = std::vector<std::string>;

namespace {

const char kExtract[] = "[INFO] calderix-service(%d): extract package: '<vpk>' -> '<app>'";
const char kReady[] = "[INFO] calderix-service(%d): user installation is ready, removing backup app";
const char kRollback[] =
    "[ERROR] calderix-service(%d): Failed to extract package, rollback to old installation";
const char kNoRollback[] =
    "[ERROR] calderix-service(%d): Failed to extract package, and no old installation to rollback";
const char kLaunchFailed[] = "[ERROR] mac/mac-service(%d): Failed to launch Calderix UI";

std::string Decided(const std::string& source, const std::string& target)
{
    return "[DEBUG] mac/mac-service(%d): source version = " + source + ", target version = " + target;
}

std::string BackupName(int n)
{
    return "Calderix.app_tmp" + (n == 0 ? std::string() : std::to_string(n));
}

std::string BackupFailed(int n)
{
    return "[ERROR] calderix-service(%d): failed to backup app from '<app>' -> '<app>_tmp" +
           (n == 0 ? std::string() : std::to_string(n)) + "'";
}

std::string Noise()
{
    return servicetest::NoiseBytes(256 * 1024);
}

// The names directly in folder.
std::set<std::string> Names(const std::string& folder)
{
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.insert(entry.path().filename().string());
    }
    return names;
}

} // namespace

// ------------------------------------------------------------------ versions and decision

struct DecisionCase {
    const char* name;
    const char* package_info;   // the bundle's INFO, a bare build number for VersionFile(); null: none
    const char* installed_info; // the same for the user's copy
    bool ui_present;
    bool need;
    Strings tail; // the log's last lines; every run logs five
};

class Decision : public DriverFixture, public ::testing::WithParamInterface<DecisionCase> {};

TEST_P(Decision, LogsBothVersionsAndComparesTheBuilds)
{
    const DecisionCase& c = GetParam();
    const auto info = [](const std::string& text) { return text[0] == '[' ? text : VersionFile(text); };
    if (c.package_info != nullptr) {
        ASSERT_TRUE(testsupport::WriteFile(bundle_ + "/Contents/Resources/INFO", info(c.package_info)));
    }
    ASSERT_TRUE(testsupport::MakeDirs(app_ + "/Contents/MacOS"));
    ASSERT_TRUE(testsupport::MakeDirs(app_ + "/Contents/Resources"));
    if (c.installed_info != nullptr) {
        ASSERT_TRUE(testsupport::WriteFile(app_ + "/Contents/Resources/INFO", info(c.installed_info)));
    }
    if (c.ui_present) {
        ASSERT_TRUE(testsupport::WriteFile(ui_, "#!/bin/sh\n", 0755)) << ui_ << ": " << strerror(errno);
    }
    EXPECT_EQ(Driver("decide"), std::string("need_upgrade=") + (c.need ? "1" : "0") + "\n");
    const Strings lines = Lines();
    ASSERT_EQ(lines.size(), 5u) << ::testing::PrintToString(lines);
    EXPECT_EQ(Strings(lines.end() - c.tail.size(), lines.end()), c.tail);
}

INSTANTIATE_TEST_SUITE_P(
    Builds, Decision,
    ::testing::Values(
        DecisionCase{"PackageNewer", "1201", "1200", true, true, {Decided("1200", "1201")}},
        DecisionCase{"SameBuild", "1201", "1201", true, false, {Decided("1201", "1201")}},
        DecisionCase{"PackageOlder", "1201", "1202", true, false, {Decided("1202", "1201")}},
        DecisionCase{"UiMissingSameBuild", "1201", "1201", false, true, {Decided("1201", "1201")}},
        DecisionCase{"BothEmptyUiPresent", nullptr, nullptr, true, false, {Decided("0", "0")}},
        DecisionCase{"DigitsThenLetter", "12b", "11", true, true, {Decided("11", "12")}},
        DecisionCase{"SignedComparison", "0", "-3", true, true, {Decided("-3", "0")}},
        DecisionCase{"NoInstalledCopy",
                     "1201",
                     nullptr,
                     false,
                     true,
                     {"[INFO] calderix-service(%d): target_version = (3, 1, 1201, 7)",
                      "[INFO] calderix-service(%d): source does not exist",
                      "[DEBUG] mac/mac-service(%d): Source version: ('', '')",
                      "[DEBUG] mac/mac-service(%d): Target version: ('1201', '7')", Decided("0", "1201")}},
        DecisionCase{"BundleWithoutVersionFile",
                     nullptr,
                     "1200",
                     true,
                     false,
                     {"[INFO] calderix-service(%d): target_version = (, , , )",
                      "[INFO] calderix-service(%d): source_version = (3, 1, 1200, 7)",
                      "[DEBUG] mac/mac-service(%d): Source version: ('1200', '7')",
                      "[DEBUG] mac/mac-service(%d): Target version: ('', '')", Decided("1200", "0")}},
        DecisionCase{"BuildOutsideTheVersionSection",
                     "[General]\nbuild_version=1234\n",
                     "[General]\nbuild_version=1234\n[Version]\nmajor_version=2a\n",
                     true,
                     false,
                     {"[INFO] calderix-service(%d): target_version = (, , , )",
                      "[INFO] calderix-service(%d): source_version = (2a, , , )",
                      "[DEBUG] mac/mac-service(%d): Source version: ('', '')",
                      "[DEBUG] mac/mac-service(%d): Target version: ('', '')", Decided("0", "0")}}),
    servicetest::RowName<DecisionCase>);

// ------------------------------------------------------------------ upgrade

enum Setup { kOldCopy = 1, kDamaged = 2, kInstallIsFile = 4 };

struct UpgradeCase {
    const char* name;
    int setup;                // kOldCopy: an installed copy of build 1200; kDamaged: the package's
                              // second entry is cut short; kInstallIsFile: nothing can be created below it
    std::vector<int> blocked; // backup tries whose name a non-empty folder takes
    Strings lines;
    std::set<std::string> left; // the names in the installation folder after success; none: a failure
};

class Upgrade : public DriverFixture, public ::testing::WithParamInterface<UpgradeCase> {};

TEST_P(Upgrade, ReplacesTheCopyOrLeavesTheOldOne)
{
    const UpgradeCase& c = GetParam();
    if (c.setup & kOldCopy) {
        InstallOldCopy("1200");
    }
    if (c.setup & kInstallIsFile) {
        ASSERT_TRUE(testsupport::WriteFile(install_, "not a folder\n"))
            << install_ << ": " << strerror(errno);
    }
    for (int n : c.blocked) {
        Block(install_ + "/" + BackupName(n));
    }
    using servicetest::FileEntry;
    const auto entries = c.setup & kDamaged
                             ? std::vector<servicetest::PackageEntry>{FileEntry("Contents/written", "yes"),
                                                                      FileEntry("Contents/big", Noise()),
                                                                      FileEntry("Contents/after", "no")}
                             : Package("1201");
    ASSERT_TRUE(servicetest::WritePackage(package_, PackageFormat::TarGz, entries));
    if (c.setup & kDamaged) {
        ASSERT_EQ(truncate(package_.c_str(), 64 * 1024), 0) << package_ << ": " << strerror(errno);
    }
    const servicetest::Tree before = Snapshot(install_);

    EXPECT_EQ(Driver("prepare"), c.left.empty() ? "result=-1\n" : "result=0\n");
    EXPECT_EQ(Lines(), c.lines);
    if (!c.left.empty()) {
        EXPECT_EQ(Snapshot(app_), TreeOf(entries));
        EXPECT_EQ(Names(install_), c.left) << "the backups tried must go, the others stay";
        for (const std::string& name : c.left) {
            if (name != "Calderix.app") {
                EXPECT_EQ(Snapshot(install_ + "/" + name), (servicetest::Tree{{"left-over", "file - kept"}}));
            }
        }
    } else if (c.setup == kDamaged) {
        // Without an old copy, what was extracted stays.
        EXPECT_EQ(testsupport::ReadFile(app_ + "/Contents/written"), "yes");
        EXPECT_FALSE(testsupport::Exists(app_ + "/Contents/after"));
    } else {
        EXPECT_EQ(Snapshot(install_), before) << "the old state must stay or come back byte for byte";
    }
}

Strings AllNamesBlocked()
{
    Strings lines;
    for (int n = 0; n < 10; ++n) {
        lines.push_back(BackupFailed(n));
    }
    lines.push_back(BackupFailed(9) + " at max retries, exiting");
    return lines;
}

INSTANTIATE_TEST_SUITE_P(
    Paths, Upgrade,
    ::testing::Values(
        UpgradeCase{"FirstInstallation", 0, {}, {kExtract, kReady}, {"Calderix.app"}},
        UpgradeCase{"OverAnOldCopy", kOldCopy, {}, {kExtract, kReady}, {"Calderix.app"}},
        UpgradeCase{"LeftoverBackup",
                    kOldCopy,
                    {0, 5},
                    {BackupFailed(0), kExtract, kReady},
                    {"Calderix.app", "Calderix.app_tmp5"}},
        UpgradeCase{"AllBackupNamesBlocked", kOldCopy, {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, AllNamesBlocked(), {}},
        UpgradeCase{"ExtractionFailsAfterBackup", kOldCopy | kDamaged, {}, {kExtract, kRollback}, {}},
        UpgradeCase{"ExtractionFailsWithoutOldCopy", kDamaged, {}, {kExtract, kNoRollback}, {}},
        UpgradeCase{"BundleFolderCannotBeCreated",
                    kInstallIsFile,
                    {},
                    {"[ERROR] calderix-service(%d): failed to create folder: '<app>'", kNoRollback},
                    {}}),
    servicetest::RowName<UpgradeCase>);

// ------------------------------------------------------------------ stopping the UI

TEST_F(DriverFixture, StopEndsAProcessThatHeedsSigterm)
{
    InstallOldCopy("1200");
    const pid_t ui = StartUi("wait");
    ASSERT_GT(ui, 0);
    Reaper reaper(ui);
    Driver("stop");
    const int status = reaper.Join();

    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM) << "wait status " << status;
    const Strings trace = Trace();
    const std::string pid = std::to_string(ui);
    ASSERT_GE(trace.size(), 2u);
    EXPECT_EQ(trace.front(), "kill " + pid + " 15 ok");
    EXPECT_EQ(trace.back(), "kill " + pid + " 0 ESRCH") << "it returns after the probe that finds it gone";
    EXPECT_LT(trace.size(), 11u) << "fewer than five probes, and no SIGKILL";
    EXPECT_EQ(Lines(), Strings{});
}

TEST_F(DriverFixture, StopDoesNotWaitForAMissingProcess)
{
    // A pid that named a process a moment ago and names none now.
    const pid_t gone = testsupport::Start({"/bin/true"});
    ASSERT_GT(gone, 0) << strerror(errno);
    ASSERT_GE(testsupport::Wait(gone), 0);
    ASSERT_TRUE(testsupport::MakeDirs(install_));
    ASSERT_TRUE(testsupport::WriteFile(install_ + "/ui.pid", "pid=" + std::to_string(gone) + "\n"));

    Driver("stop");
    EXPECT_EQ(Trace(), Strings{"kill " + std::to_string(gone) + " 15 ESRCH"});
    EXPECT_EQ(Lines(), Strings{});
}

struct BadPidCase {
    const char* name;
    const char* content; // of ui.pid; null: no pid file
    const char* line;
};

class StopBadPid : public DriverFixture, public ::testing::WithParamInterface<BadPidCase> {};

// The driver and a watcher both run as nobody, in the test's process group:
// a signal to pid 0 or -1 would reach the watcher (or the driver itself).
TEST_P(StopBadPid, SendsNoSignalAtAll)
{
    const BadPidCase& c = GetParam();
    ASSERT_TRUE(testsupport::MakeDirs(install_));
    if (c.content != nullptr) {
        ASSERT_TRUE(testsupport::WriteFile(install_ + "/ui.pid", c.content));
    }
    const std::string watcher = root_ + "/watcher", out = root_ + "/out";
    ASSERT_TRUE(testsupport::WriteFile(watcher, standin_, 0755));
    const pid_t watcher_pid = servicetest::StartAs(
        kNobody, kNobody, {watcher},
        {testsupport::Set("STANDIN_MODE", "record"), testsupport::Set("STANDIN_RECORD", out + "/record"),
         testsupport::Set("STANDIN_PID_FILE", out + "/watcher.pid"), testsupport::Unset("STANDIN_INFO")});
    ASSERT_GT(watcher_pid, 0) << strerror(errno);
    ASSERT_EQ(servicetest::WaitForPidFile(out + "/watcher.pid"), watcher_pid)
        << "the watcher did not come up";

    const int status = DriverAsNobody("stop");
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "driver wait status " << status;
    // A real-time signal comes after any standard one that is pending, so the
    // record is complete when the watcher ends on it.
    ASSERT_EQ(kill(watcher_pid, SIGRTMIN), 0) << strerror(errno);
    const int watcher_status = testsupport::Wait(watcher_pid);
    EXPECT_TRUE(WIFEXITED(watcher_status)) << "watcher wait status " << watcher_status;
    EXPECT_EQ(testsupport::ReadFile(out + "/record"), "sig=" + std::to_string(SIGRTMIN) + "\n");
    EXPECT_EQ(Trace(), Strings{});
    EXPECT_EQ(Lines(), Strings{c.line});
}

const char kUnreadable[] =
    "[NOTE] mac/mac-service(%d): Failed to read pid file '<install>/ui.pid', not exist ?";
const char kNoPid[] =
    "[NOTE] mac/mac-service(%d): pid file '<install>/ui.pid' holds no valid pid, nothing to terminate";

INSTANTIATE_TEST_SUITE_P(
    PidFiles, StopBadPid,
    ::testing::Values(
        BadPidCase{"NoPidFile", nullptr,
                   "[DEBUG] mac/mac-service(%d): pid file '<install>/ui.pid' does not exist, no "
                   "need to terminate"},
        BadPidCase{"SyntaxError", "pid=\n", kUnreadable}, BadPidCase{"OtherKeysOnly", "port=4711\n", kNoPid},
        BadPidCase{"Zero", "pid=0\n", kNoPid}, BadPidCase{"MinusOne", "pid=-1\n", kNoPid},
        BadPidCase{"Letters", "pid=abc\n", kNoPid},
        // Cut to 32 bits this would be -1.
        BadPidCase{"WrapsToMinusOne", "pid=4294967295\n", kNoPid}),
    servicetest::RowName<BadPidCase>);

// ------------------------------------------------------------------ launching the UI

TEST_F(DriverFixture, PostUpgradeStartsTheUiOnceNotTwice)
{
    InstallOldCopy("1201");
    Driver("post");
    const pid_t ui = servicetest::WaitForPidFile(launched_);
    ASSERT_GT(ui, 0) << "the UI did not come up";
    Driver("post");
    EXPECT_EQ(servicetest::ProcessesRunning(ui_), std::vector<pid_t>{ui});
    const std::string info = testsupport::ReadFile(launched_info_);
    EXPECT_EQ(servicetest::ValueOf(info, "cwd"), app_ + "/Contents/MacOS");
    EXPECT_NE(servicetest::ValueOf(info, "sid"), std::to_string(getsid(0)))
        << "not detached from our session";
    EXPECT_EQ(Lines(), Strings{});
}

TEST_F(DriverFixture, PostUpgradeLogsABundleWithoutExecutable)
{
    ASSERT_TRUE(testsupport::MakeDirs(app_ + "/Contents/MacOS"));
    Driver("post");
    EXPECT_EQ(Lines(), Strings{kLaunchFailed});
    EXPECT_FALSE(testsupport::Exists(launched_)) << "something was started";
}

// ------------------------------------------------------------------ the whole sequence

TEST_F(DriverFixture, SequenceUpgradesARunningOldCopy)
{
    InstallOldCopy("1200");
    const pid_t old_ui = StartUi("wait");
    ASSERT_GT(old_ui, 0);
    Block(install_ + "/app");
    ASSERT_TRUE(testsupport::WriteFile(bundle_ + "/Contents/Resources/INFO", VersionFile("1201")));
    const auto entries = Package("1201");
    ASSERT_TRUE(servicetest::WritePackage(package_, PackageFormat::TarGz, entries));

    Reaper reaper(old_ui);
    EXPECT_EQ(Driver("sequence"), "upgrade=0\n");
    const int status = reaper.Join();

    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM) << "old UI wait status " << status;
    EXPECT_EQ(Snapshot(app_), TreeOf(entries));
    EXPECT_EQ(Names(install_), (std::set<std::string>{"Calderix.app", "ui.pid"}));
    EXPECT_EQ(Lines(),
              (Strings{"[INFO] calderix-service(%d): target_version = (3, 1, 1201, 7)",
                       "[INFO] calderix-service(%d): source_version = (3, 1, 1200, 7)",
                       "[DEBUG] mac/mac-service(%d): Source version: ('1200', '7')",
                       "[DEBUG] mac/mac-service(%d): Target version: ('1201', '7')", Decided("1200", "1201"),
                       "[DEBUG] mac/mac-service(%d): local appdata exist", kExtract, kReady,
                       "[INFO] calderix-service(%d): removing aged app folder <install>/app"}));
    const pid_t new_ui = servicetest::WaitForPidFile(launched_);
    ASSERT_GT(new_ui, 0) << "the new UI did not come up";
    EXPECT_EQ(servicetest::ProcessesRunning(ui_), std::vector<pid_t>{new_ui}) << "the new copy's UI runs";
}
