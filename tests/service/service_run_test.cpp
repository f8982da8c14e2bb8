// The installation service as the real launcher runs it from a copy of the
// demo bundle with a fake home: the upgrade decision, the upgrade itself,
// stopping the old user interface, and the whole sequence over a running
// old copy. These runs are also the launcher's own end-to-end scenarios
// (first installation, nothing to upgrade, upgrade over a running UI); the
// damaged package and the second start during an upgrade are whole runs in
// tests/reliability, the refused start's levels in startup_test.
#include <algorithm>
#include <sys/wait.h>
#include <thread>

#include "service_run_fixture.h"

using namespace testsupport;

namespace {

const char kRunning[] = "[DEBUG] launcher(%d): running";
const char kNoUpgrade[] = "[DEBUG] launcher(%d): no need to upgrade";
const char kFailed[] = "[ERROR] launcher(%d): Failed to upgrade package";
const char kDone[] = "[DEBUG] launcher(%d): done";
const char kExtract[] = "[INFO] calderix-service(%d): extract package: '<vpk>' -> '<app>'";
const char kReady[] = "[INFO] calderix-service(%d): user installation is ready, removing backup app";
const char kNoRollback[] =
    "[ERROR] calderix-service(%d): Failed to extract package, and no old installation to rollback";

std::string VersionFile(const std::string& build)
{
    return "[Version]\nmajor_version=3\nminor_version=1\nbuild_version=" + build +
           "\nicon_overlay_version=7\n";
}

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

// ------------------------------------------------------------------ versions and decision

struct DecisionCase {
    const char* name;
    const char* package_info;   // the launcher bundle's INFO: a build for VersionFile(), or a
                                // whole file when it starts with "["; null: none
    const char* installed_info; // the same for the user's copy
    bool ui_present;
    bool need;
    Strings tail; // the last of the five lines every run starts with
};

class Decision : public ServiceRun, public ::testing::WithParamInterface<DecisionCase> {};

TEST_P(Decision, LogsBothVersionsComparesTheBuildsAndStartsTheUi)
{
    const DecisionCase& c = GetParam();
    const auto info = [](const std::string& text) { return text[0] == '[' ? text : VersionFile(text); };
    const std::string bundle_info = bundle_ + "/Contents/Resources/INFO";
    ASSERT_TRUE(c.package_info != nullptr ? WriteFile(bundle_info, info(c.package_info))
                                          : RemoveTree(bundle_info))
        << bundle_info << ": " << strerror(errno);
    ASSERT_TRUE(MakeDirs(app_ + "/Contents/MacOS") && MakeDirs(app_ + "/Contents/Resources"))
        << strerror(errno);
    if (c.installed_info != nullptr) {
        ASSERT_TRUE(WriteFile(app_ + "/Contents/Resources/INFO", info(c.installed_info))) << strerror(errno);
    }
    if (c.ui_present) {
        ASSERT_TRUE(CopyTree(DEMO_UI_PATH, ui_)) << ui_ << ": " << strerror(errno);
    }
    const reliability::Tree before = reliability::Snapshot(app_);

    ExpectCleanExit(RunLauncher());
    const Strings lines = Lines();
    ASSERT_GE(lines.size(), 5u) << ::testing::PrintToString(lines);
    EXPECT_EQ(Strings(lines.begin() + 5 - c.tail.size(), lines.begin() + 5), c.tail);
    // Without "no need to upgrade" the worker took the branch that shows the dialog.
    EXPECT_EQ(LogOf("] launcher(%d): "),
              (c.need ? Strings{kRunning, kDone} : Strings{kRunning, kNoUpgrade, kDone}));
    if (!c.need) {
        EXPECT_EQ(reliability::Snapshot(app_), before) << "a current copy was changed";
    }
    ExpectUiStartedOnce();
}

INSTANTIATE_TEST_SUITE_P(
    Builds, Decision,
    ::testing::Values(
        DecisionCase{"SameBuild", "1201", "1201", true, false, {Decided("1201", "1201")}},
        DecisionCase{"PackageOlder", "1201", "1202", true, false, {Decided("1202", "1201")}},
        DecisionCase{"UiMissingSameBuild", "1201", "1201", false, true, {Decided("1201", "1201")}},
        DecisionCase{"BothEmptyUiPresent", nullptr, nullptr, true, false, {Decided("0", "0")}},
        DecisionCase{"DigitsThenLetter", "12b", "11", true, true, {Decided("11", "12")}},
        DecisionCase{"SignedComparison", "0", "-3", true, true, {Decided("-3", "0")}},
        DecisionCase{"BuildBeyondInt",
                     "99999999999",
                     "1200",
                     true,
                     true,
                     {"[WARNING] mac/mac-service(%d): build number '99999999999' is out of range"}},
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

struct UpgradeCase {
    const char* name;
    bool old_copy;            // an installed copy of build 1200
    std::vector<int> blocked; // backup tries whose name a non-empty folder takes
    bool damaged;             // the package is cut in the middle of its data
    Strings lines;            // what the upgrade logs
    std::vector<int> left;    // the blocked names still there afterwards
};

class Upgrade : public ServiceRun, public ::testing::WithParamInterface<UpgradeCase> {};

TEST_P(Upgrade, ReplacesTheCopyOrLeavesTheOldOne)
{
    const UpgradeCase& c = GetParam();
    SetLevels("launcher_debug=7\nservice_debug=6\n");
    if (c.old_copy) {
        InstallCopy("1200");
    }
    for (int n : c.blocked) {
        const std::string path = install_ + "/" + BackupName(n);
        ASSERT_TRUE(MakeDirs(path) && WriteFile(path + "/left-over", "kept"))
            << path << ": " << strerror(errno);
    }
    ASSERT_GT(PackClient("1201", 4, 10), 40);
    if (c.damaged) {
        ASSERT_EQ(truncate(package_.c_str(), static_cast<off_t>(ReadFile(package_).size() / 2)), 0)
            << package_ << ": " << strerror(errno);
    }
    const reliability::Tree before = reliability::Snapshot(app_);

    ExpectCleanExit(RunLauncher());
    EXPECT_EQ(Lines("[INFO] calderix-service(%d): source", "[INFO] calderix-service(%d): removing aged"),
              c.lines);
    const bool upgraded = c.lines.back() == kReady;
    EXPECT_EQ(LogOf("] launcher(%d): "),
              (upgraded ? Strings{kRunning, kDone} : Strings{kRunning, kFailed, kDone}));
    if (upgraded) {
        EXPECT_EQ(reliability::Snapshot(app_), reliability::Snapshot(ClientBundle("1201", 4, 10)));
    } else if (c.old_copy) {
        EXPECT_EQ(reliability::Snapshot(app_), before) << "the old copy must stay as it was";
    } else {
        // A package cut short lacks its last entries, the UI executable and
        // the version file, and is refused before anything is written.
        EXPECT_TRUE(Exists(app_)) << "without an old copy the folder made for the extraction stays";
        EXPECT_FALSE(Exists(app_ + "/Contents/Info.plist")) << "a refused package was written";
    }
    Strings backups = Backups(), left;
    std::sort(backups.begin(), backups.end());
    for (int n : c.left) {
        left.push_back(BackupName(n));
        EXPECT_EQ(ReadFile(install_ + "/" + BackupName(n) + "/left-over"), "kept") << BackupName(n);
    }
    EXPECT_EQ(backups, left) << "the backups tried must go, the others stay";
    if (upgraded || c.old_copy) {
        ExpectUiStartedOnce();
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
        UpgradeCase{"FirstInstallation", false, {}, false, {kExtract, kReady}, {}},
        UpgradeCase{"LeftoverBackup", true, {0, 5}, false, {BackupFailed(0), kExtract, kReady}, {5}},
        UpgradeCase{"AllBackupNamesBlocked",
                    true,
                    {0, 1, 2, 3, 4, 5, 6, 7, 8, 9},
                    false,
                    AllNamesBlocked(),
                    {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}},
        UpgradeCase{"ExtractionFailsWithoutOldCopy", false, {}, true, {kExtract, kNoRollback}, {}}),
    servicetest::RowName<UpgradeCase>);

// ------------------------------------------------------------------ stopping the old user interface

// Decision, stop, upgrade from a tar.gz package, the aged folder and the
// launch, over an old copy whose user interface runs and heeds SIGTERM: it
// gets no SIGKILL, and the stop returns with the probe that finds it gone.
TEST_F(ServiceRun, SequenceUpgradesARunningOldCopy)
{
    InstallCopy("1200");
    ASSERT_TRUE(WriteFile(app_ + "/Contents/Resources/old-only.txt", "old\n") &&
                MakeDirs(install_ + "/app/sub"))
        << strerror(errno);
    vpkpack::PackOptions options;
    options.format = vpkpack::Format::TarGz;
    options.info_out = bundle_ + "/Contents/Resources/INFO";
    const vpkpack::Status packed = vpkpack::Pack(ClientBundle("1201"), package_, options);
    ASSERT_TRUE(packed.ok()) << packed.Message();
    std::vector<EnvChange> env = Env(home_);
    env.push_back(Set("CALDERIX_DEMO_UI_EXIT_AFTER_MS", "60000")); // a bound, should the stop fail
    const pid_t old_ui = Start({ui_}, env);
    ASSERT_GT(old_ui, 0) << ui_ << ": " << strerror(errno);
    ASSERT_EQ(WaitForUi(), old_ui) << "the old user interface did not come up";
    // Reaped the moment it ends, so that a probe no longer finds it.
    int status = -1;
    std::thread reaper([&] { status = Wait(old_ui); });

    // Not the launcher: the sequence runs without the controller and dialog.
    const std::string driver = bundle_ + "/Contents/MacOS/sequence_driver";
    ASSERT_TRUE(testsupport::CopyTree(SEQUENCE_DRIVER, driver) && MakeDirs(install_ + "/log"))
        << driver << ": " << strerror(errno);
    const testsupport::ProcessResult run = RunTraced(false, {driver, LogPath()});
    EXPECT_TRUE(run.exited && run.exit_code == 0) << "exit " << run.exit_code << "\n" << run.err;
    reaper.join();
    EXPECT_TRUE(WIFEXITED(status)) << "the old user interface did not quit on SIGTERM: wait status "
                                   << status;
    const Strings trace = Trace();
    const std::string kill = "kill " + std::to_string(old_ui);
    ASSERT_GE(trace.size(), 2u) << ::testing::PrintToString(trace);
    EXPECT_EQ(trace.front(), kill + " 15 ok");
    EXPECT_EQ(trace.back(), kill + " 0 ESRCH") << "it returns after the probe that finds it gone";
    EXPECT_LT(trace.size(), 11u) << "fewer than five probes, and no SIGKILL";
    EXPECT_EQ(Lines(),
              (Strings{"[INFO] calderix-service(%d): target_version = (2, 5, 1201, 3)",
                       "[INFO] calderix-service(%d): source_version = (2, 5, 1200, 3)",
                       "[DEBUG] mac/mac-service(%d): Source version: ('1200', '3')",
                       "[DEBUG] mac/mac-service(%d): Target version: ('1201', '3')", Decided("1200", "1201"),
                       "[DEBUG] mac/mac-service(%d): local appdata exist", kExtract, kReady,
                       "[INFO] calderix-service(%d): removing aged app folder <install>/app"}));
    EXPECT_EQ(reliability::Snapshot(app_), reliability::Snapshot(ClientBundle("1201")));
    EXPECT_FALSE(Exists(install_ + "/app")) << "the aged folder stays";
    EXPECT_TRUE(Backups().empty()) << "a backup stayed: " << Backups().front();
    ExpectUiStartedOnce();
}

// The pid as written before the number: nothing, or a plus sign.
class StopGone : public ServiceRun, public ::testing::WithParamInterface<const char*> {};

TEST_P(StopGone, DoesNotWaitForAProcessThatIsGone)
{
    InstallCopy("1200");
    PackClient("1201");
    const pid_t gone = Start({"/bin/true"});
    ASSERT_GT(gone, 0) << strerror(errno);
    ASSERT_GE(Wait(gone), 0);
    ASSERT_TRUE(
        WriteFile(install_ + "/ui.pid", "pid=" + std::string(GetParam()) + std::to_string(gone) + "\n"));

    ExpectCleanExit(RunTraced());
    EXPECT_EQ(Trace(), Strings{}) << "a process that is gone needs no signal";
    EXPECT_EQ(StopLines(), Strings{});
}

INSTANTIATE_TEST_SUITE_P(PidTexts, StopGone, ::testing::Values("", "+"),
                         [](const ::testing::TestParamInfo<const char*>& row) {
                             return *row.param == '+' ? std::string("PlusSign") : std::string("Plain");
                         });

struct BadPidCase {
    const char* name;
    const char* content; // of ui.pid; null: no pid file; "/": a folder in its place
    const char* line;
};

class StopBadPid : public ServiceRun, public ::testing::WithParamInterface<BadPidCase> {};

// The launcher and a watcher run as nobody in the test's process group: a
// signal to pid 0 or -1 would reach the watcher (or the launcher itself).
TEST_P(StopBadPid, SendsNoSignalAtAll)
{
    const BadPidCase& c = GetParam();
    InstallCopy("1200");
    PackClient("1201");
    if (c.content != nullptr) {
        ASSERT_TRUE(std::string(c.content) == "/" ? MakeDirs(install_ + "/ui.pid")
                                                  : WriteFile(install_ + "/ui.pid", c.content));
    }
    HandToNobody();
    const pid_t watcher = StartSleeper(true);
    ASSERT_GT(watcher, 0);

    ExpectCleanExit(RunTraced(true));
    EXPECT_EQ(Trace(), Strings{});
    EXPECT_EQ(StopLines(), Strings{c.line});
    // An earlier fatal signal would have ended it first, and keeps its own status.
    ASSERT_EQ(kill(watcher, SIGKILL), 0) << strerror(errno);
    const int status = Wait(watcher);
    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL)
        << "a signal reached the watcher: wait status " << status;
}

const char kUnreadable[] =
    "[NOTE] mac/mac-service(%d): Failed to read pid file '<install>/ui.pid', not exist ?";
const char kNoPid[] =
    "[NOTE] mac/mac-service(%d): pid file '<install>/ui.pid' holds no valid pid, nothing to terminate";

INSTANTIATE_TEST_SUITE_P(
    PidFiles, StopBadPid,
    ::testing::Values(
        BadPidCase{
            "NoPidFile", nullptr,
            "[DEBUG] mac/mac-service(%d): pid file '<install>/ui.pid' does not exist, no need to terminate"},
        BadPidCase{"SyntaxError", "pid=\n", kUnreadable}, BadPidCase{"OtherKeysOnly", "port=4711\n", kNoPid},
        BadPidCase{"Zero", "pid=0\n", kNoPid}, BadPidCase{"MinusOne", "pid=-1\n", kNoPid},
        BadPidCase{"Letters", "pid=abc\n", kNoPid}, BadPidCase{"Folder", "/", kNoPid},
        // Cut to 32 bits this would be -1.
        BadPidCase{"WrapsToMinusOne", "pid=4294967295\n", kNoPid}),
    servicetest::RowName<BadPidCase>);

// ------------------------------------------------------------------ pid files naming a stranger

enum class Stranger { Parent, SameUser, OtherUser, NamespaceInit };

struct StrangerCase {
    const char* name;
    Stranger who;
};

class StopStranger : public ServiceRun, public ::testing::WithParamInterface<StrangerCase> {};

// A pid file left by a user interface that crashed, whose number now
// belongs to another process: that process gets no signal at all, and the
// upgrade goes on at once.
TEST_P(StopStranger, LeavesItAlone)
{
    const StrangerCase& c = GetParam();
    if (c.who == Stranger::OtherUser && geteuid() != 0) {
        GTEST_SKIP() << "only root can start a process of another user";
    }
    InstallCopy("1200");
    PackClient("1201");
    // testsupport::Run forks this process into the launcher, so this
    // process is the launcher's parent.
    const pid_t pid = c.who == Stranger::Parent          ? getpid()
                      : c.who == Stranger::NamespaceInit ? 1
                                                         : StartSleeper(c.who == Stranger::OtherUser);
    ASSERT_GT(pid, 0);
    ASSERT_TRUE(WriteFile(install_ + "/ui.pid", "pid=" + std::to_string(pid) + "\n"));

    ExpectCleanExit(RunTraced(false, {}, c.who == Stranger::NamespaceInit ? BelowNamespaceInit : nullptr));
    EXPECT_EQ(Trace(), Strings{});
    EXPECT_EQ(StopLines(), Strings{"[NOTE] mac/mac-service(%d): pid " + std::to_string(pid) +
                                   " is not the user interface, nothing to terminate"});
    if (c.who == Stranger::SameUser || c.who == Stranger::OtherUser) {
        EXPECT_EQ(kill(pid, 0), 0) << "the stranger is gone";
    }
    EXPECT_EQ(reliability::Snapshot(app_), reliability::Snapshot(ClientBundle("1201")));
}

INSTANTIATE_TEST_SUITE_P(Strangers, StopStranger,
                         ::testing::Values(StrangerCase{"LaunchersParent", Stranger::Parent},
                                           StrangerCase{"ProcessOfTheSameUser", Stranger::SameUser},
                                           StrangerCase{"ProcessOfAnotherUser", Stranger::OtherUser},
                                           StrangerCase{"InitOfAPrivatePidNamespace",
                                                        Stranger::NamespaceInit}),
                         servicetest::RowName<StrangerCase>);

} // namespace
