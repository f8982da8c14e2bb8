// The installation service as the real launcher runs it from a copy of the
// demo bundle with a fake home, as rows of the launcher's scenario runner:
// the upgrade decision, the upgrade, and stopping the old user interface
// (the kill shim traces each kill and sleep). Rows that must not signal run
// as nobody, so that a stray signal can only reach nobody's processes.
#include <filesystem>
#include <sched.h>
#include <thread>

#include "reliability_fixture.h"

using namespace testsupport;
using launchertest::Strings;
using reliability::Snapshot;

namespace {

class ServiceRun : public ReliabilityFixture, public ::testing::WithParamInterface<Scenario<ServiceRun>> {
public:
    // The kill and sleep calls the kill shim traced, and what StopService
    // logged during an upgrade over an installed copy; <pid> stands for pid_.
    Strings Trace() const
    {
        Strings calls = Lines(ReadFile(root_ + "/trace"));
        calls.erase(
            std::remove_if(calls.begin(), calls.end(),
                           [](const std::string& l) { return l.rfind("kill ", 0) && l.rfind("sleep ", 0); }),
            calls.end());
        return Pid(calls);
    }
    Strings StopLines() const
    {
        const Strings log = Pid(Log());
        auto from = std::find(log.begin(), log.end(), "[DEBUG] mac/mac-service(%d): local appdata exist");
        auto to = std::find_if(from, log.end(),
                               [](const std::string& l) { return l.find("extract package") != l.npos; });
        return from == log.end() ? Strings{"<no stop>"} : Strings(from + 1, to);
    }
    Strings Pid(Strings lines) const
    {
        const std::string pid = std::to_string(pid_);
        for (std::string& line : lines) {
            const size_t at = pid_ > 0 ? line.find(" " + pid + " ") : line.npos;
            line = at == line.npos ? line : line.replace(at + 1, pid.size(), "<pid>");
        }
        return lines;
    }

    // A child of the test running a copy of sleep at path below the fixture
    // (so that TearDown ends it), returned once it runs; its bound only
    // keeps a failing test from hanging.
    pid_t StartSleeper(bool as_nobody, bool ignore_term = false, const std::string& path = {})
    {
        const std::string sleep = path.empty() ? root_ + "/sleep" : path;
        EXPECT_TRUE(CopyTree("/bin/sleep", sleep)) << strerror(errno);
        Strings argv{sleep, "60"};
        if (as_nobody) {
            argv.insert(argv.begin(),
                        {"/usr/bin/setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", "--"});
        }
        // An ignored signal stays ignored across fork and exec.
        const sighandler_t saved = signal(SIGTERM, ignore_term ? SIG_IGN : SIG_DFL);
        const pid_t pid = Start(argv);
        signal(SIGTERM, saved);
        std::error_code ec;
        for (int i = 0;
             i < 6000 && std::filesystem::read_symlink("/proc/" + std::to_string(pid) + "/exe", ec) != sleep;
             ++i) {
            usleep(10000);
        }
        EXPECT_GT(pid, 0) << strerror(errno);
        return pid;
    }

    reliability::Tree before_; // the user's bundle before the run
    pid_t pid_ = 0;            // the process the row's pid file names
    int status_ = -1;          // its wait status, once reaped
    std::thread reaper_;
};

TEST_P(ServiceRun, Scenario)
{
    RunScenario(GetParam());
}

using Row = Scenario<ServiceRun>;
const char kAll[] = "launcher_debug=7\nservice_debug=7\n";
const std::string kNoUpgrade = "[DEBUG] launcher(%d): no need to upgrade";
const std::string kFailed = "[ERROR] launcher(%d): Failed to upgrade package";
const char kExtract[] = "[INFO] calderix-service(%d): extract package: '<vpk>' -> '<app>'";
const char kReady[] = "[INFO] calderix-service(%d): user installation is ready, removing backup app";

std::string Decided(const std::string& source, const std::string& target)
{
    return "[DEBUG] mac/mac-service(%d): source version = " + source + ", target version = " + target;
}

std::string Backup(int n)
{
    return "_tmp" + (n == 0 ? std::string() : std::to_string(n));
}

std::string BackupFailed(int n)
{
    return "[ERROR] calderix-service(%d): failed to backup app from '<app>' -> '<app>" + Backup(n) + "'";
}

// ------------------------------------------------------------------ versions and decision

// The launcher bundle's build and the user's copy's (null: no version
// file); the UI executable there or not.
Row Decision(const char* name, const char* package, const char* installed, bool ui, bool need, Strings log)
{
    log.insert(log.end(), {need ? "!" + kNoUpgrade : kNoUpgrade, "[DEBUG] launcher(%d): done"});
    Row r{.name = name, .levels = kAll, .log = log};
    r.setup = [=](ServiceRun& f) {
        for (const auto& [build, path] :
             {std::make_pair(package, f.bundle_), std::make_pair(installed, f.app_)}) {
            const std::string info = path + "/Contents/Resources/INFO";
            EXPECT_TRUE(MakeDirs(f.app_ + "/Contents/MacOS") && MakeDirs(f.app_ + "/Contents/Resources") &&
                        (build == nullptr
                             ? RemoveTree(info)
                             : WriteFile(info, "[Version]\nmajor_version=3\nminor_version=1\n"
                                               "build_version=" +
                                                   std::string(build) + "\nicon_overlay_version=7\n")))
                << info << ": " << strerror(errno);
        }
        EXPECT_TRUE(!ui || CopyTree(DEMO_UI_PATH, f.ui_)) << f.ui_ << ": " << strerror(errno);
        f.before_ = Snapshot(f.app_);
    };
    r.check = [need](ServiceRun& f, const ProcessResult&) {
        EXPECT_TRUE(need || Snapshot(f.app_) == f.before_) << "a current copy was changed";
    };
    return r;
}

const Row kDecisions[] = {
    Decision("PackageOlder", "1201", "1202", true, false, {Decided("1202", "1201")}),
    Decision("UiMissingSameBuild", "1201", "1201", false, true, {Decided("1201", "1201")}),
    Decision("BothEmptyUiPresent", nullptr, nullptr, true, false, {Decided("0", "0")}),
    Decision("BuildBeyondInt", "99999999999", "1200", true, true,
             {"[WARNING] mac/mac-service(%d): build number '99999999999' is out of range"}),
};
INSTANTIATE_TEST_SUITE_P(Decisions, ServiceRun, ::testing::ValuesIn(kDecisions), RowName());

// ------------------------------------------------------------------ upgrade

// Over an old copy of build 1200 with the backup names blocked taken by
// non-empty folders, to a package of 1201; the blocked names in left stay,
// the others go.
Row Upgrade(const char* name, std::vector<int> blocked, Strings log, std::vector<int> left)
{
    const bool upgraded = log.back() == kReady;
    log.push_back(upgraded ? "!" + kFailed : kFailed);
    Row r{.name = name, .levels = "launcher_debug=7\nservice_debug=6\n", .log = log};
    r.setup = [=](ServiceRun& f) {
        f.InstallCopy("1200");
        for (int n : blocked) {
            EXPECT_TRUE(MakeDirs(f.app_ + Backup(n)) && WriteFile(f.app_ + Backup(n) + "/left-over", "kept"));
        }
        ASSERT_GT(f.PackClient("1201", 4, 10), 40);
        f.before_ = Snapshot(f.app_);
    };
    r.check = [=](ServiceRun& f, const ProcessResult&) {
        EXPECT_EQ(Snapshot(f.app_), upgraded ? Snapshot(f.ClientBundle("1201", 4, 10)) : f.before_)
            << "want the new copy or else the old one as it was";
        Strings names;
        for (int n : left) {
            names.push_back("Calderix.app" + Backup(n));
            EXPECT_EQ(ReadFile(f.app_ + Backup(n) + "/left-over"), "kept") << Backup(n);
        }
        EXPECT_EQ(f.Backups(), names) << "the backups tried must go, the others stay";
    };
    return r;
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

const Row kUpgrades[] = {
    Upgrade("LeftoverBackup", {0, 5}, {BackupFailed(0), kExtract, kReady}, {5}),
    Upgrade("AllBackupNamesBlocked", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}, AllNamesBlocked(),
            {0, 1, 2, 3, 4, 5, 6, 7, 8, 9}),
};
INSTANTIATE_TEST_SUITE_P(Upgrades, ServiceRun, ::testing::ValuesIn(kUpgrades), RowName());

// ------------------------------------------------------------------ stopping the old user interface

// Over an installed 1200 with a package of 1201 and the ui.pid that pid_file
// gives (empty: none): StopService's lines and the kill and sleep calls it
// made, <pid> standing for pid_.
Row Stop(const char* name, std::function<std::string(ServiceRun&)> pid_file, Strings stop, Strings trace = {})
{
    Row r{.name = name, .levels = kAll, .kill_at = "trace"};
    r.setup = [=](ServiceRun& f) {
        f.InstallCopy("1200");
        f.PackClient("1201");
        const std::string text = pid_file(f);
        EXPECT_TRUE(text.empty() || WriteFile(f.install_ + "/ui.pid", text)) << strerror(errno);
    };
    r.check = [=](ServiceRun& f, const ProcessResult&) {
        EXPECT_EQ(f.Trace(), trace);
        EXPECT_EQ(f.StopLines(), stop);
        EXPECT_EQ(Snapshot(f.app_), Snapshot(f.ClientBundle("1201")));
    };
    return r;
}

// A row whose pid file names the process who starts.
Row Named(const char* name, std::function<pid_t(ServiceRun&)> who, Strings stop, Strings trace = {})
{
    return Stop(
        name, [who](ServiceRun& f) { return "pid=" + std::to_string(f.pid_ = who(f)) + "\n"; }, stop, trace);
}

// The launcher and a watcher run as nobody in the test's process group: a
// signal to pid 0 or -1 would reach the watcher (or the launcher itself),
// which only the test's SIGKILL may end.
Row BadPid(const char* name, const char* content, const std::string& line)
{
    Row r = Stop(name,
                 [content](ServiceRun& f) {
                     EXPECT_TRUE(content == nullptr || std::string(content) != "/" ||
                                 MakeDirs(f.install_ + "/ui.pid"));
                     f.GiveToNobody();
                     f.pid_ = -f.StartSleeper(true); // negative: not shown as <pid>
                     return content == nullptr || std::string(content) == "/" ? std::string() : content;
                 },
                 {line});
    r.in_child = [](ServiceRun&) { ServiceRun::DropRoot(); };
    r.ui = false;
    r.check = [check = r.check](ServiceRun& f, const ProcessResult& result) {
        check(f, result);
        ASSERT_EQ(kill(-f.pid_, SIGKILL), 0) << strerror(errno);
        const int status = Wait(-f.pid_);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL)
            << "a signal reached the watcher: " << status;
    };
    return r;
}

// A user interface that outlives SIGTERM (also with its file removed, as a
// finished upgrade removes the old copy) is probed five times, then killed.
Row Slow(const char* name, bool removed)
{
    Strings trace{"kill <pid> 15 ok"};
    for (int probe = 0; probe < 5; ++probe) {
        trace.insert(trace.end(), {"kill <pid> 0 ok", "sleep 1"});
    }
    trace.push_back("kill <pid> 9 ok");
    Row r = Named(
        name,
        [removed](ServiceRun& f) {
            const std::string exe = f.app_ + "/Contents/MacOS/calderix-sleep";
            const pid_t pid = f.StartSleeper(false, true, exe);
            EXPECT_TRUE(!removed || remove(exe.c_str()) == 0) << exe << ": " << strerror(errno);
            return pid;
        },
        {}, trace);
    r.check = [check = r.check](ServiceRun& f, const ProcessResult& result) {
        check(f, result);
        const int status = Wait(f.pid_);
        EXPECT_TRUE(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL) << "wait status " << status;
    };
    return r;
}

// For a child about to exec: moves it into user and pid namespaces of its
// own, below the new namespace's init (pid 1), which is its parent; the
// program runs as pid 2 and the processes it leaves exit with its status.
void BelowNamespaceInit(ServiceRun&)
{
    EnterUserNamespace(CLONE_NEWPID);
    for (int level = 0; level < 2; ++level) {
        const pid_t child = fork();
        int status = 0;
        while (child > 0 && waitpid(child, &status, 0) < 0 && errno == EINTR) {
        }
        if (child != 0) {
            _exit(child < 0 ? 127 : WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status));
        }
    }
}

// A pid file left by a user interface that crashed, whose number now
// belongs to another process: that process gets no signal, and the
// upgrade goes on at once.
const char kStranger[] =
    "[NOTE] mac/mac-service(%d): pid <pid> is not the user interface, nothing to terminate";

const char kNoPid[] =
    "[NOTE] mac/mac-service(%d): pid file '<install>/ui.pid' holds no valid pid, nothing to terminate";

Row InitOfAPrivatePidNamespace()
{
    Row r = Named("InitOfAPrivatePidNamespace", [](ServiceRun&) { return 1; }, {kStranger});
    r.in_child = BelowNamespaceInit;
    r.ui = false; // its pid there is not ours
    return r;
}

// A process that is gone needs no signal.
pid_t Gone(ServiceRun&)
{
    const pid_t pid = Start({"/bin/true"});
    EXPECT_GE(Wait(pid), 0) << strerror(errno);
    return pid;
}

const Row kStops[] = {
    Named("GonePlain", Gone, {}),
    Stop("GonePlusSign", [](ServiceRun& f) { return "pid=+" + std::to_string(Gone(f)) + "\n"; }, {}),
    BadPid("NoPidFile", nullptr,
           "[DEBUG] mac/mac-service(%d): pid file '<install>/ui.pid' does not exist, no need to terminate"),
    BadPid("SyntaxError", "pid=\n",
           "[NOTE] mac/mac-service(%d): Failed to read pid file '<install>/ui.pid', not exist ?"),
    BadPid("OtherKeysOnly", "port=4711\n", kNoPid),
    BadPid("Zero", "pid=0\n", kNoPid),
    BadPid("MinusOne", "pid=-1\n", kNoPid),
    BadPid("Letters", "pid=abc\n", kNoPid),
    BadPid("Folder", "/", kNoPid),
    BadPid("WrapsToMinusOne", "pid=4294967295\n", kNoPid), // -1 when cut to 32 bits
    // testsupport::Run forks this process into the launcher, so it is the launcher's parent.
    Named("LaunchersParent", [](ServiceRun&) { return getpid(); }, {kStranger}),
    Named("ProcessOfTheSameUser", [](ServiceRun& f) { return f.StartSleeper(false); }, {kStranger}),
    Named("ProcessOfAnotherUser", [](ServiceRun& f) { return f.StartSleeper(true); }, {kStranger}),
    InitOfAPrivatePidNamespace(),
    Slow("SlowUiIgnoresSigterm", false),
    Slow("SlowUiFileRemovedWhileRunning", true),
};
INSTANTIATE_TEST_SUITE_P(Stops, ServiceRun, ::testing::ValuesIn(kStops), RowName());

// Decision, stop, upgrade from a tar.gz package, the aged folder and the
// launch, over an old copy whose user interface runs and heeds SIGTERM: it
// gets no SIGKILL, and the stop returns with the probe that finds it gone.
Row RunningOldCopy()
{
    Row r{.name = "UpgradesARunningOldCopy", .levels = kAll, .kill_at = "trace"};
    r.setup = [](ServiceRun& f) {
        f.InstallCopy("1200");
        ASSERT_TRUE(WriteFile(f.app_ + "/Contents/Resources/old-only.txt", "old\n") &&
                    MakeDirs(f.install_ + "/app/sub"));
        f.PackClient("1201", 0, 0, vpkpack::Format::TarGz);
        std::vector<EnvChange> env = f.Env(f.home_);
        env.push_back(Set("CALDERIX_DEMO_UI_EXIT_AFTER_MS", "60000")); // a bound, should the stop fail
        f.pid_ = Start({f.ui_}, env);
        ASSERT_EQ(f.WaitForUi(), f.pid_) << "the old user interface did not come up";
        // Reaped the moment it ends, so that a probe no longer finds it.
        f.reaper_ = std::thread([&f] { f.status_ = Wait(f.pid_); });
    };
    r.log = {"[INFO] calderix-service(%d): target_version = (2, 5, 1201, 3)",
             "[INFO] calderix-service(%d): source_version = (2, 5, 1200, 3)",
             "[DEBUG] mac/mac-service(%d): Source version: ('1200', '3')",
             "[DEBUG] mac/mac-service(%d): Target version: ('1201', '3')",
             Decided("1200", "1201"),
             "[DEBUG] mac/mac-service(%d): local appdata exist",
             kExtract,
             kReady,
             "[INFO] calderix-service(%d): removing aged app folder <install>/app",
             "!" + kFailed};
    r.check = [](ServiceRun& f, const ProcessResult&) {
        f.reaper_.join();
        EXPECT_TRUE(WIFEXITED(f.status_)) << "the old user interface did not quit on SIGTERM: " << f.status_;
        const Strings trace = f.Trace();
        ASSERT_GE(trace.size(), 2u) << ::testing::PrintToString(trace);
        EXPECT_EQ(trace.front(), "kill <pid> 15 ok");
        EXPECT_EQ(trace.back(), "kill <pid> 0 ESRCH") << "it returns after the probe that finds it gone";
        EXPECT_LT(trace.size(), 11u) << "fewer than five probes, and no SIGKILL";
        EXPECT_EQ(Snapshot(f.app_), Snapshot(f.ClientBundle("1201")));
        EXPECT_FALSE(Exists(f.install_ + "/app")) << "the aged folder stays";
        EXPECT_EQ(f.Backups(), Strings{}) << "a backup stayed";
    };
    return r;
}
INSTANTIATE_TEST_SUITE_P(Sequence, ServiceRun, ::testing::Values(RunningOldCopy()), RowName());

} // namespace
