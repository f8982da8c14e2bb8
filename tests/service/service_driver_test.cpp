// The installation service run from inside a fake launcher bundle with a
// fake home: versions, the upgrade decision, the upgrade itself, the aged
// folder, stopping and launching the user interface, and the whole sequence.
#include <set>
#include <sys/stat.h>

#include <gmock/gmock.h>

#include "driver_fixture.h"

using servicetest::PackageFormat;
using servicetest::Snapshot;
using servicetest::TreeOf;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

namespace {

const char kExtract[] = "[INFO] calderix-service(%d): extract package: '<vpk>' -> '<app>'";
const char kReady[] = "[INFO] calderix-service(%d): user installation is ready, removing backup app";
const char kRollback[] =
    "[ERROR] calderix-service(%d): Failed to extract package, rollback to old installation";
const char kNoRollback[] =
    "[ERROR] calderix-service(%d): Failed to extract package, and no old installation to rollback";
const char kCannotCreate[] = "[ERROR] calderix-service(%d): failed to create folder: '<app>'";
const char kAged[] = "[INFO] calderix-service(%d): removing aged app folder <install>/app";
const char kLaunchFailed[] = "[ERROR] mac/mac-service(%d): Failed to launch Calderix UI";

template <typename Case> std::string RowName(const ::testing::TestParamInfo<Case>& info)
{
    return info.param.name;
}

// The names directly in folder.
std::set<std::string> Names(const std::string& folder)
{
    std::set<std::string> names;
    for (const auto& entry : Snapshot(folder)) {
        if (entry.first.find('/') == std::string::npos) {
            names.insert(entry.first);
        }
    }
    return names;
}

// A package whose third entry is cut short: the extraction writes the first
// two and then fails.
std::vector<servicetest::PackageEntry> DamagedPackage()
{
    return {servicetest::FolderEntry("Contents"), servicetest::FileEntry("Contents/Info.plist", "written\n"),
            servicetest::FileEntry("Contents/big.bin", servicetest::NoiseBytes(256 * 1024)),
            servicetest::FileEntry("Contents/after.txt", "never written\n")};
}

} // namespace

// ------------------------------------------------------------------ versions

struct VersionCase {
    const char* name;
    const char* package_info;   // the bundle's INFO; null: none
    const char* installed_info; // the user's copy's INFO; null: no copy
    std::vector<std::string> lines;
};
void PrintTo(const VersionCase& c, std::ostream* os)
{
    *os << c.name;
}

class VersionLog : public DriverFixture, public ::testing::WithParamInterface<VersionCase> {};

TEST_P(VersionLog, LogsWhatTheFilesHold)
{
    const VersionCase& c = GetParam();
    if (c.package_info != nullptr) {
        WriteBundleVersion(c.package_info);
    }
    if (c.installed_info != nullptr) {
        ASSERT_TRUE(testsupport::MakeDirs(app_ + "/Contents/Resources"));
        ASSERT_TRUE(testsupport::WriteFile(app_ + "/Contents/Resources/INFO", c.installed_info));
    }
    Driver("versions");
    EXPECT_THAT(Lines(), ElementsAreArray(c.lines));
}

INSTANTIATE_TEST_SUITE_P(
    Files, VersionLog,
    ::testing::Values(
        VersionCase{
            "FirstRun",
            "[Version]\nmajor_version=3\nminor_version=1\nbuild_version=1201\nicon_overlay_version=7\n",
            nullptr,
            {"[INFO] calderix-service(%d): target_version = (3, 1, 1201, 7)",
             "[INFO] calderix-service(%d): source does not exist",
             "[DEBUG] mac/mac-service(%d): Source version: ('', '')",
             "[DEBUG] mac/mac-service(%d): Target version: ('1201', '7')"}},
        VersionCase{
            "BundleWithoutVersionFile",
            nullptr,
            "[Version]\nmajor_version=3\nminor_version=0\nbuild_version=1200\nicon_overlay_version=6\n",
            {"[INFO] calderix-service(%d): target_version = (, , , )",
             "[INFO] calderix-service(%d): source_version = (3, 0, 1200, 6)",
             "[DEBUG] mac/mac-service(%d): Source version: ('1200', '6')",
             "[DEBUG] mac/mac-service(%d): Target version: ('', '')"}},
        VersionCase{"BuildInAnotherSection",
                    "[General]\nbuild_version=1234\n",
                    "[General]\nbuild_version=1234\n[Version]\nmajor_version=2\n",
                    {"[INFO] calderix-service(%d): target_version = (, , , )",
                     "[INFO] calderix-service(%d): source_version = (2, , , )",
                     "[DEBUG] mac/mac-service(%d): Source version: ('', '')",
                     "[DEBUG] mac/mac-service(%d): Target version: ('', '')"}},
        VersionCase{"OnlyBuildVersion",
                    "[Version]\nbuild_version=1235\n",
                    "[Version]\nbuild_version=1234\n",
                    {"[INFO] calderix-service(%d): target_version = (, , 1235, )",
                     "[INFO] calderix-service(%d): source_version = (, , 1234, )",
                     "[DEBUG] mac/mac-service(%d): Source version: ('1234', '')",
                     "[DEBUG] mac/mac-service(%d): Target version: ('1235', '')"}},
        VersionCase{"TextKeptAsWritten",
                    "[Version]\nbuild_version=12b\nicon_overlay_version=x\n",
                    "[Version]\nbuild_version=12a\n",
                    {"[INFO] calderix-service(%d): target_version = (, , 12b, x)",
                     "[INFO] calderix-service(%d): source_version = (, , 12a, )",
                     "[DEBUG] mac/mac-service(%d): Source version: ('12a', '')",
                     "[DEBUG] mac/mac-service(%d): Target version: ('12b', 'x')"}}),
    RowName<VersionCase>);

// ------------------------------------------------------------------ decision

struct DecisionCase {
    const char* name;
    const char* installed_build; // null: the installed copy has no INFO
    bool ui_present;
    const char* package_build; // null: the bundle has no INFO
    bool need;
    const char* numbers; // the end of the "source version = " line
};
void PrintTo(const DecisionCase& c, std::ostream* os)
{
    *os << c.name;
}

class Decision : public DriverFixture, public ::testing::WithParamInterface<DecisionCase> {};

TEST_P(Decision, ComparesBuildsAndLooksForTheUi)
{
    const DecisionCase& c = GetParam();
    if (c.package_build != nullptr) {
        WriteBundleVersion(VersionFile(c.package_build));
    }
    if (c.installed_build != nullptr) {
        ASSERT_TRUE(testsupport::MakeDirs(app_ + "/Contents/Resources"));
        ASSERT_TRUE(
            testsupport::WriteFile(app_ + "/Contents/Resources/INFO", VersionFile(c.installed_build)));
    }
    if (c.ui_present) {
        ASSERT_TRUE(testsupport::MakeDirs(app_ + "/Contents/MacOS"));
        ASSERT_TRUE(testsupport::WriteFile(ui_, "#!/bin/sh\n", 0755)) << ui_ << ": " << strerror(errno);
    }
    EXPECT_EQ(Driver("decide"), std::string("need_upgrade=") + (c.need ? "1" : "0") + "\n");
    const std::vector<std::string> lines = Lines();
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.back(), std::string("[DEBUG] mac/mac-service(%d): source version = ") + c.numbers);
}

INSTANTIATE_TEST_SUITE_P(
    Builds, Decision,
    ::testing::Values(
        DecisionCase{"PackageNewer", "1200", true, "1201", true, "1200, target version = 1201"},
        DecisionCase{"SameBuild", "1201", true, "1201", false, "1201, target version = 1201"},
        DecisionCase{"PackageOlder", "1202", true, "1201", false, "1202, target version = 1201"},
        DecisionCase{"NoInstalledCopy", nullptr, false, "5", true, "0, target version = 5"},
        DecisionCase{"BothEmptyUiPresent", nullptr, true, nullptr, false, "0, target version = 0"},
        DecisionCase{"EmptyBuildValues", "", true, "", false, "0, target version = 0"},
        DecisionCase{"UiMissingSameBuild", "1201", false, "1201", true, "1201, target version = 1201"},
        DecisionCase{"LetterAfterDigitsSame", "12", true, "12b", false, "12, target version = 12"},
        DecisionCase{"LetterAfterDigitsNewer", "11", true, "12b", true, "11, target version = 12"},
        DecisionCase{"NegativeInstalled", "-3", true, "0", true, "-3, target version = 0"}),
    RowName<DecisionCase>);

// ------------------------------------------------------------------ upgrade

TEST_F(DriverFixture, FirstInstallationCreatesTheTree)
{
    const auto entries = Package("1201");
    WriteBundlePackage(PackageFormat::TarGz, entries);
    EXPECT_EQ(Driver("prepare"), "result=0\n");
    EXPECT_EQ(Snapshot(app_), TreeOf(entries));
    EXPECT_THAT(Lines(), ElementsAreArray(ExpandAll({kExtract, kReady})));
    EXPECT_EQ(Names(install_), std::set<std::string>{"Calderix.app"});
}

class UpgradeFormat : public DriverFixture, public ::testing::WithParamInterface<PackageFormat> {};

TEST_P(UpgradeFormat, ReplacesTheOldCopyEntryForEntry)
{
    InstallOldCopy("1200");
    const auto entries = Package("1201");
    WriteBundlePackage(GetParam(), entries);
    EXPECT_EQ(Driver("prepare"), "result=0\n");
    EXPECT_EQ(Snapshot(app_), TreeOf(entries));
    EXPECT_THAT(Lines(), ElementsAreArray(ExpandAll({kExtract, kReady})));
    EXPECT_EQ(Names(install_), std::set<std::string>{"Calderix.app"}) << "a backup was left behind";
}

INSTANTIATE_TEST_SUITE_P(Formats, UpgradeFormat,
                         ::testing::Values(PackageFormat::Tar, PackageFormat::TarGz, PackageFormat::Zip),
                         [](const ::testing::TestParamInfo<PackageFormat>& info) {
                             return servicetest::FormatName(info.param);
                         });

TEST_F(DriverFixture, LeftoverBackupMakesTheSecondNameServe)
{
    InstallOldCopy("1200");
    Block(app_ + "_tmp");
    Block(app_ + "_tmp5");
    const auto later = Snapshot(app_ + "_tmp5");
    const auto entries = Package("1201");
    WriteBundlePackage(PackageFormat::Zip, entries);

    EXPECT_EQ(Driver("prepare"), "result=0\n");
    EXPECT_THAT(Lines(),
                ElementsAreArray(ExpandAll(
                    {"[ERROR] calderix-service(%d): failed to backup app from '<app>' -> '<app>_tmp'",
                     kExtract, kReady})));
    EXPECT_EQ(Snapshot(app_), TreeOf(entries));
    EXPECT_EQ(Names(install_), (std::set<std::string>{"Calderix.app", "Calderix.app_tmp5"}))
        << "the names tried are removed, the others left alone";
    EXPECT_EQ(Snapshot(app_ + "_tmp5"), later);
}

TEST_F(DriverFixture, AllBackupNamesBlockedLeavesEverythingAlone)
{
    InstallOldCopy("1200");
    std::vector<std::string> expected;
    for (int n = 0; n < 10; ++n) {
        const std::string name = "<app>_tmp" + (n == 0 ? std::string() : std::to_string(n));
        Block(Expand(name));
        expected.push_back("[ERROR] calderix-service(%d): failed to backup app from '<app>' -> '" + name +
                           "'");
    }
    expected.push_back("[ERROR] calderix-service(%d): failed to backup app from '<app>' -> '<app>_tmp9' at "
                       "max retries, exiting");
    WriteBundlePackage(PackageFormat::Tar, Package("1201"));
    const auto before = Snapshot(install_);

    EXPECT_EQ(Driver("prepare"), "result=-1\n");
    EXPECT_THAT(Lines(), ElementsAreArray(ExpandAll(expected)));
    EXPECT_EQ(Snapshot(install_), before) << "nothing may be extracted, moved or removed";
}

TEST_F(DriverFixture, FailedExtractionPutsTheOldCopyBack)
{
    InstallOldCopy("1200");
    WriteBundlePackage(PackageFormat::Tar, DamagedPackage());
    ASSERT_TRUE(servicetest::TruncateFile(package_, 64 * 1024));
    const auto before = Snapshot(install_);

    EXPECT_EQ(Driver("prepare"), "result=-1\n");
    EXPECT_THAT(Lines(), ElementsAreArray(ExpandAll({kExtract, kRollback})));
    EXPECT_EQ(Snapshot(install_), before) << "the old copy must come back byte for byte";
}

TEST_F(DriverFixture, FailedExtractionWithoutOldCopyLeavesWhatWasWritten)
{
    WriteBundlePackage(PackageFormat::Tar, DamagedPackage());
    ASSERT_TRUE(servicetest::TruncateFile(package_, 64 * 1024));

    EXPECT_EQ(Driver("prepare"), "result=-1\n");
    EXPECT_THAT(Lines(), ElementsAreArray(ExpandAll({kExtract, kNoRollback})));
    EXPECT_EQ(testsupport::ReadFile(app_ + "/Contents/Info.plist"), "written\n");
    EXPECT_FALSE(testsupport::Exists(app_ + "/Contents/after.txt"));
}

TEST_F(DriverFixture, BundleFolderBlockedAfterBackupRollsBack)
{
    InstallOldCopy("1200");
    WriteBundlePackage(PackageFormat::TarGz, Package("1201"));
    const auto before = Snapshot(install_);

    EXPECT_EQ(Driver("prepare-blocked"), "result=-1\n");
    EXPECT_THAT(Lines(), ElementsAreArray(ExpandAll({kCannotCreate, kRollback})));
    EXPECT_EQ(Snapshot(install_), before);
}

TEST_F(DriverFixture, InstallFolderBlockedWithoutOldCopy)
{
    // A file where the installation folder belongs: no folder can be made
    // below it, not even by root.
    ASSERT_TRUE(testsupport::WriteFile(install_, "not a folder\n")) << install_ << ": " << strerror(errno);
    WriteBundlePackage(PackageFormat::TarGz, Package("1201"));

    EXPECT_EQ(Driver("prepare"), "result=-1\n");
    EXPECT_THAT(Lines(), ElementsAreArray(ExpandAll({kCannotCreate, kNoRollback})));
    EXPECT_EQ(testsupport::ReadFile(install_), "not a folder\n");
}

// ------------------------------------------------------------------ aged folder

struct AgedCase {
    const char* name;
    const char* file; // below <install>/app; null: no aged folder; "": app is a file
};
void PrintTo(const AgedCase& c, std::ostream* os)
{
    *os << c.name;
}

class AgedFolder : public DriverFixture, public ::testing::WithParamInterface<AgedCase> {};

TEST_P(AgedFolder, IsRemovedAndLogged)
{
    const AgedCase& c = GetParam();
    ASSERT_TRUE(testsupport::MakeDirs(install_));
    const std::string aged = install_ + "/app";
    if (c.file != nullptr && *c.file == '\0') {
        ASSERT_TRUE(testsupport::WriteFile(aged, "x"));
    } else if (c.file != nullptr) {
        const std::string path = aged + "/" + c.file;
        ASSERT_TRUE(testsupport::MakeDirs(path.substr(0, path.rfind('/'))));
        ASSERT_TRUE(testsupport::WriteFile(path, "x")) << path << ": " << strerror(errno);
    }
    ASSERT_TRUE(testsupport::WriteFile(install_ + "/application.txt", "kept"));

    Driver("aged");
    EXPECT_THAT(Lines(), ElementsAreArray(ExpandAll({kAged})));
    EXPECT_FALSE(testsupport::Exists(aged));
    EXPECT_EQ(testsupport::ReadFile(install_ + "/application.txt"), "kept");
}

INSTANTIATE_TEST_SUITE_P(Shapes, AgedFolder,
                         ::testing::Values(AgedCase{"Missing", nullptr}, AgedCase{"Tree", "a/b/c.txt"},
                                           AgedCase{"PlainFile", ""}),
                         RowName<AgedCase>);

// ------------------------------------------------------------------ stopping the UI

TEST_F(DriverFixture, StopEndsAProcessThatHeedsSigterm)
{
    InstallOldCopy("1200");
    const pid_t ui = StartUi(ui_, "wait");
    ASSERT_GT(ui, 0);
    Reaper reaper(ui);
    Driver("stop");
    const int status = reaper.Join();
    Forget(ui);

    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM) << "wait status " << status;
    const std::vector<std::string> trace = Trace();
    const std::string pid = std::to_string(ui);
    ASSERT_GE(trace.size(), 2u);
    EXPECT_EQ(trace.front(), "kill " + pid + " 15 ok");
    EXPECT_EQ(trace.back(), "kill " + pid + " 0 ESRCH") << "it returns after the probe that finds it gone";
    for (const std::string& line : trace) {
        EXPECT_NE(line, "kill " + pid + " 9 ok") << "no SIGKILL for a process that went";
    }
    EXPECT_LT(trace.size(), 11u) << "fewer than five probes";
    EXPECT_THAT(Lines(), IsEmpty());
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
    EXPECT_THAT(Trace(), ElementsAreArray({"kill " + std::to_string(gone) + " 15 ESRCH"}));
    EXPECT_THAT(Lines(), IsEmpty());
}

TEST_F(DriverFixture, StopWithoutPidFileSendsNothing)
{
    Driver("stop");
    EXPECT_THAT(Trace(), IsEmpty());
    EXPECT_THAT(Lines(),
                ElementsAreArray(ExpandAll({"[DEBUG] mac/mac-service(%d): pid file '<install>/ui.pid' "
                                            "does not exist, no need to terminate"})));
}

struct BadPidCase {
    const char* name;
    const char* content; // of ui.pid; null: ui.pid is a folder
    const char* line;
};
void PrintTo(const BadPidCase& c, std::ostream* os)
{
    *os << c.name;
}

class StopBadPid : public DriverFixture, public ::testing::WithParamInterface<BadPidCase> {};

// The driver and a watcher both run as nobody, in the test's process group:
// a signal to pid 0 or -1 would reach the watcher (or the driver itself).
TEST_P(StopBadPid, SendsNoSignalAtAll)
{
    const BadPidCase& c = GetParam();
    ASSERT_TRUE(testsupport::MakeDirs(install_));
    const std::string pid_file = install_ + "/ui.pid";
    if (c.content == nullptr) {
        ASSERT_TRUE(testsupport::MakeDirs(pid_file));
    } else {
        ASSERT_TRUE(testsupport::WriteFile(pid_file, c.content)) << pid_file << ": " << strerror(errno);
    }
    OpenToNobody();
    ASSERT_FALSE(HasFatalFailure());
    const std::string out = root_ + "/out";
    const std::string watcher = root_ + "/watcher";
    ASSERT_TRUE(testsupport::WriteFile(watcher, standin_, 0755));

    const pid_t watcher_pid = servicetest::StartAs(
        kNobody, kNobody, {watcher},
        {testsupport::Set("STANDIN_MODE", "record"), testsupport::Set("STANDIN_RECORD", out + "/record"),
         testsupport::Set("STANDIN_PID_FILE", out + "/watcher.pid"), testsupport::Unset("STANDIN_INFO")});
    ASSERT_GT(watcher_pid, 0) << strerror(errno);
    children_.push_back(watcher_pid);
    ASSERT_EQ(servicetest::WaitForPidFile(out + "/watcher.pid"), watcher_pid)
        << "the watcher did not come up";

    const int status = DriverAsNobody("stop");
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "driver wait status " << status;

    // Real-time signals come after any standard one that is pending, so the
    // record is complete when the watcher ends on this one.
    ASSERT_EQ(kill(watcher_pid, SIGRTMIN), 0) << strerror(errno);
    const int watcher_status = testsupport::Wait(watcher_pid);
    Forget(watcher_pid);
    EXPECT_TRUE(WIFEXITED(watcher_status)) << "watcher wait status " << watcher_status;
    EXPECT_EQ(testsupport::ReadFile(out + "/record"), "sig=" + std::to_string(SIGRTMIN) + "\n");
    EXPECT_THAT(Trace(), IsEmpty());
    EXPECT_THAT(Lines(), ElementsAreArray(ExpandAll({c.line})));
}

namespace {
const char kUnreadable[] =
    "[NOTE] mac/mac-service(%d): Failed to read pid file '<install>/ui.pid', not exist ?";
const char kNoPid[] =
    "[NOTE] mac/mac-service(%d): pid file '<install>/ui.pid' holds no valid pid, nothing to terminate";
} // namespace

INSTANTIATE_TEST_SUITE_P(PidFiles, StopBadPid,
                         ::testing::Values(BadPidCase{"SyntaxError", "pid=\n", kUnreadable},
                                           BadPidCase{"Folder", nullptr, kUnreadable},
                                           BadPidCase{"Empty", "", kNoPid},
                                           BadPidCase{"OtherKeysOnly", "port=4711\n", kNoPid},
                                           BadPidCase{"Zero", "pid=0\n", kNoPid},
                                           BadPidCase{"MinusOne", "pid=-1\n", kNoPid},
                                           BadPidCase{"Letters", "pid=abc\n", kNoPid},
                                           BadPidCase{"DigitsThenLetters", "pid=12abc\n", kNoPid},
                                           BadPidCase{"BeyondPidRange", "pid=99999999999\n", kNoPid}),
                         RowName<BadPidCase>);

// ------------------------------------------------------------------ launching the UI

TEST_F(DriverFixture, LaunchStartsTheUiOnceNotTwice)
{
    InstallOldCopy("1201");
    EXPECT_EQ(Driver("launch"), "result=0\n");
    const pid_t ui = servicetest::WaitForPidFile(launched_pid_);
    ASSERT_GT(ui, 0) << "the UI did not come up";
    EXPECT_EQ(Driver("launch"), "result=0\n");
    EXPECT_EQ(servicetest::ProcessesRunning(ui_), std::vector<pid_t>{ui});
    const std::string info = testsupport::ReadFile(launched_info_);
    EXPECT_EQ(servicetest::ValueOf(info, "cwd"), app_ + "/Contents/MacOS");
    EXPECT_NE(servicetest::ValueOf(info, "sid"), std::to_string(getsid(0)))
        << "not detached from our session";
    EXPECT_THAT(Lines(), IsEmpty());
}

struct MissingUiCase {
    const char* name;
    const char* plist;    // null: none
    const char* files[3]; // in Contents/MacOS, executable
};
void PrintTo(const MissingUiCase& c, std::ostream* os)
{
    *os << c.name;
}

class LaunchWithoutUi : public DriverFixture, public ::testing::WithParamInterface<MissingUiCase> {};

TEST_P(LaunchWithoutUi, PostUpgradeLogsTheFailure)
{
    const MissingUiCase& c = GetParam();
    ASSERT_TRUE(testsupport::MakeDirs(app_ + "/Contents/MacOS"));
    if (c.plist != nullptr) {
        ASSERT_TRUE(testsupport::WriteFile(app_ + "/Contents/Info.plist", Plist(c.plist)));
    }
    for (const char* file : c.files) {
        if (file != nullptr) {
            ASSERT_TRUE(testsupport::WriteFile(app_ + "/Contents/MacOS/" + file, standin_, 0755));
        }
    }
    Driver("post");
    EXPECT_THAT(Lines(), ElementsAreArray({kLaunchFailed}));
    EXPECT_FALSE(testsupport::Exists(launched_pid_)) << "something was started";
}

INSTANTIATE_TEST_SUITE_P(Bundles, LaunchWithoutUi,
                         ::testing::Values(MissingUiCase{"EmptyBundle", nullptr, {}},
                                           MissingUiCase{"PlistNamesMissingFile", "calderix-drive-ui", {}},
                                           MissingUiCase{"TwoCandidatesNoPlist", nullptr, {"one", "two"}}),
                         RowName<MissingUiCase>);

TEST_F(DriverFixture, PostUpgradeWithoutBundleLogsTheFailure)
{
    Driver("post");
    EXPECT_THAT(Lines(), ElementsAreArray({kLaunchFailed}));
}

// ------------------------------------------------------------------ the whole sequence

TEST_F(DriverFixture, SequenceUpgradesARunningOldCopy)
{
    InstallOldCopy("1200");
    const pid_t old_ui = StartUi(ui_, "wait");
    ASSERT_GT(old_ui, 0);
    Block(install_ + "/app");
    WriteBundleVersion(VersionFile("1201"));
    const auto entries = Package("1201");
    WriteBundlePackage(PackageFormat::TarGz, entries);

    Reaper reaper(old_ui);
    EXPECT_EQ(Driver("sequence"), "upgrade=0\n");
    const int status = reaper.Join();
    Forget(old_ui);

    EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGTERM) << "old UI wait status " << status;
    EXPECT_EQ(Snapshot(app_), TreeOf(entries));
    EXPECT_EQ(Names(install_), (std::set<std::string>{"Calderix.app", "ui.pid"}));
    EXPECT_THAT(Lines(), ElementsAreArray(ExpandAll({
                             "[INFO] calderix-service(%d): target_version = (3, 1, 1201, 7)",
                             "[INFO] calderix-service(%d): source_version = (3, 1, 1200, 7)",
                             "[DEBUG] mac/mac-service(%d): Source version: ('1200', '7')",
                             "[DEBUG] mac/mac-service(%d): Target version: ('1201', '7')",
                             "[DEBUG] mac/mac-service(%d): source version = 1200, target version = 1201",
                             "[DEBUG] mac/mac-service(%d): local appdata exist",
                             kExtract,
                             kReady,
                             kAged,
                         })));
    const pid_t new_ui = servicetest::WaitForPidFile(launched_pid_);
    ASSERT_GT(new_ui, 0) << "the new UI did not come up";
    EXPECT_EQ(servicetest::ProcessesRunning(ui_), std::vector<pid_t>{new_ui}) << "the new copy's UI runs";
}

TEST_F(DriverFixture, SequenceOnFirstRunInstallsAndLaunches)
{
    WriteBundleVersion(VersionFile("1201"));
    const auto entries = Package("1201");
    WriteBundlePackage(PackageFormat::Zip, entries);

    EXPECT_EQ(Driver("sequence"), "upgrade=0\n");
    EXPECT_EQ(Snapshot(app_), TreeOf(entries));
    EXPECT_THAT(Trace(), IsEmpty()) << "nothing to stop on a first run";
    EXPECT_THAT(Lines(), ElementsAreArray(ExpandAll({
                             "[INFO] calderix-service(%d): target_version = (3, 1, 1201, 7)",
                             "[INFO] calderix-service(%d): source does not exist",
                             "[DEBUG] mac/mac-service(%d): Source version: ('', '')",
                             "[DEBUG] mac/mac-service(%d): Target version: ('1201', '7')",
                             "[DEBUG] mac/mac-service(%d): source version = 0, target version = 1201",
                             kExtract,
                             kReady,
                             kAged,
                         })));
    const pid_t ui = servicetest::WaitForPidFile(launched_pid_);
    ASSERT_GT(ui, 0) << "the UI did not come up";
    EXPECT_EQ(servicetest::ProcessesRunning(ui_), std::vector<pid_t>{ui});
}

TEST_F(DriverFixture, SequenceWithoutUpgradeStillLaunches)
{
    InstallOldCopy("1201");
    WriteBundleVersion(VersionFile("1201"));
    const auto before = Snapshot(app_);

    EXPECT_EQ(Driver("sequence"), "upgrade=skipped\n");
    EXPECT_EQ(Snapshot(app_), before);
    const std::vector<std::string> lines = Lines();
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.back(), Expand(kAged));
    const pid_t ui = servicetest::WaitForPidFile(launched_pid_);
    ASSERT_GT(ui, 0) << "the UI did not come up";
    EXPECT_EQ(servicetest::ProcessesRunning(ui_), std::vector<pid_t>{ui});
}
