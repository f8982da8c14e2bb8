// Whole runs of the real launcher binary from an assembled bundle: it
// installs or upgrades the user's copy from a package built here, starts
// that copy's user interface (the demo UI) and exits.
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <map>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "launcher_fixture.h"
#include "test_support.h"
#include "vpkpack.h"

using namespace testsupport;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

const char kRunning[] = "[DEBUG] launcher(%d): running";
const char kNoUpgrade[] = "[DEBUG] launcher(%d): no need to upgrade";
const char kDone[] = "[DEBUG] launcher(%d): done";
const char kFailed[] = "[ERROR] launcher(%d): Failed to upgrade package";

// A tree as text, by path relative to root: "dir" or "file x|- <content>"
// (x when any execute bit is set). Empty for a missing root.
using Tree = std::map<std::string, std::string>;

void SnapshotInto(const std::string& root, const std::string& rel, Tree& tree)
{
    const std::string path = rel.empty() ? root : root + "/" + rel;
    struct stat st;
    if (lstat(path.c_str(), &st) != 0) {
        return;
    }
    if (S_ISDIR(st.st_mode)) {
        tree[rel] = "dir";
        DIR* dir = opendir(path.c_str());
        if (dir == nullptr) {
            tree[rel] = std::string("unlistable: ") + strerror(errno);
            return;
        }
        while (const struct dirent* e = readdir(dir)) {
            if (strcmp(e->d_name, ".") != 0 && strcmp(e->d_name, "..") != 0) {
                SnapshotInto(root, rel.empty() ? e->d_name : rel + "/" + e->d_name, tree);
            }
        }
        closedir(dir);
    } else {
        tree[rel] = std::string("file ") + ((st.st_mode & 0111) != 0 ? "x " : "- ") + ReadFile(path);
    }
}

Tree Snapshot(const std::string& root)
{
    Tree tree;
    SnapshotInto(root, "", tree);
    return tree;
}

// Reaps child on a thread of its own, so that it is gone the moment it
// ends: the launcher probes whether the user interface it stopped is still
// there, and an unreaped child still is.
class Reaper {
public:
    explicit Reaper(pid_t pid) : thread_([this, pid] { status_ = Wait(pid); }) {}
    int Join()
    {
        thread_.join();
        return status_;
    }

private:
    int status_ = -1;
    std::thread thread_;
};

std::string Describe(int status)
{
    if (status < 0) {
        return "not reaped";
    }
    return WIFEXITED(status) ? "exit " + std::to_string(WEXITSTATUS(status))
                             : "signal " + std::to_string(WTERMSIG(status));
}

class LauncherRun : public LauncherFixture {
protected:
    void SetUp() override
    {
        LauncherFixture::SetUp();
        if (HasFatalFailure()) {
            return;
        }
    }

    // A client bundle of build as a folder: the demo UI, the Info.plist
    // that names it, the version file and a file of the build's own.
    std::string ClientBundle(const std::string& build)
    {
        const std::string app = root_ + "/client-" + build + "/Calderix.app";
        if (Exists(app)) {
            return app;
        }
        const std::string macos = app + "/Contents/MacOS";
        const std::string resources = app + "/Contents/Resources";
        EXPECT_TRUE(MakeDirs(macos) && MakeDirs(resources)) << app << ": " << strerror(errno);
        EXPECT_TRUE(CopyTree(DEMO_UI_PATH, macos + "/calderix-drive-ui"))
            << DEMO_UI_PATH << ": " << strerror(errno);
        const std::pair<std::string, std::string> files[] = {
            {app + "/Contents/Info.plist",
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n<dict>\n"
             "\t<key>CFBundleExecutable</key>\n\t<string>calderix-drive-ui</string>\n</dict>\n</plist>\n"},
            {resources + "/INFO", "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=" + build +
                                      "\nicon_overlay_version=3\n"},
            {resources + "/notes/build.txt", "build " + build + "\n"}};
        EXPECT_TRUE(MakeDirs(resources + "/notes")) << strerror(errno);
        for (const auto& file : files) {
            EXPECT_TRUE(WriteFile(file.first, file.second)) << file.first << ": " << strerror(errno);
        }
        return app;
    }

    // The launcher bundle's package and version file, for build.
    void PackClient(const std::string& build)
    {
        vpkpack::PackOptions options;
        options.info_out = bundle_ + "/Contents/Resources/INFO";
        const vpkpack::Status status = vpkpack::Pack(ClientBundle(build), package_, options);
        ASSERT_TRUE(status.ok()) << status.Message();
    }

    // The user's copy of build, as an earlier run would have left it.
    void InstallCopy(const std::string& build)
    {
        ASSERT_TRUE(MakeDirs(install_)) << install_ << ": " << strerror(errno);
        ASSERT_TRUE(CopyTree(ClientBundle(build), app_)) << app_ << ": " << strerror(errno);
    }

    // The launcher's own log lines ("launcher(<line>)"), as LogLines gives them.
    std::vector<std::string> LauncherLines() const
    {
        std::vector<std::string> lines;
        for (const std::string& line : launchertest::LogLines(ReadFile(LogPath()))) {
            if (line.find("] launcher(%d): ") != std::string::npos) {
                lines.push_back(line);
            }
        }
        return lines;
    }
};

TEST_F(LauncherRun, FirstInstallationInstallsThePackageAndStartsItsUiOnce)
{
    SetLevels("launcher_debug=7\n");
    PackClient("1201");

    ExpectCleanExit(RunLauncher());
    EXPECT_EQ(Snapshot(app_), Snapshot(ClientBundle("1201"))) << "the installed tree is not the package's";
    const pid_t ui = WaitForUi();
    ASSERT_GT(ui, 0) << "no user interface came up";
    EXPECT_EQ(UiProcesses(), std::vector<pid_t>{ui}) << "the user interface was not started exactly once";
    // Without "no need to upgrade" the worker took the upgrade branch, the
    // one that shows the dialog.
    EXPECT_THAT(LauncherLines(), ElementsAre(kRunning, kDone)) << ReadFile(LogPath());
    EXPECT_THAT(Backups(), IsEmpty());
}

TEST_F(LauncherRun, CurrentCopyIsLeftAloneAndItsUiStarted)
{
    SetLevels("launcher_debug=7\n");
    PackClient("1201");
    InstallCopy("1201");
    const Tree before = Snapshot(app_);

    ExpectCleanExit(RunLauncher());
    EXPECT_THAT(LauncherLines(), ElementsAre(kRunning, kNoUpgrade, kDone)) << ReadFile(LogPath());
    EXPECT_EQ(Snapshot(app_), before) << "a current copy was changed";
    const pid_t ui = WaitForUi();
    ASSERT_GT(ui, 0) << "no user interface came up";
    EXPECT_EQ(UiProcesses(), std::vector<pid_t>{ui});
}

TEST_F(LauncherRun, UpgradeStopsTheOldUiAndStartsTheNewOne)
{
    InstallCopy("1200");
    PackClient("1201");
    const pid_t old_ui = Start({ui_}, Env(home_));
    ASSERT_GT(old_ui, 0) << ui_ << ": " << strerror(errno);
    Reaper reaper(old_ui);
    ASSERT_EQ(WaitForUi(), old_ui) << "the old user interface did not come up";

    ExpectCleanExit(RunLauncher());
    // A launcher that never stopped it would leave the reaper waiting.
    if (kill(old_ui, 0) == 0 &&
        ReadFile("/proc/" + std::to_string(old_ui) + "/stat").find(") Z ") == std::string::npos) {
        ADD_FAILURE() << "the old user interface is still running";
        kill(old_ui, SIGKILL);
    }
    const int status = reaper.Join();
    EXPECT_TRUE(WIFEXITED(status)) << "the old user interface did not end by itself on SIGTERM: "
                                   << Describe(status);

    EXPECT_EQ(Snapshot(app_), Snapshot(ClientBundle("1201"))) << "the new tree is not in place";
    const pid_t new_ui = WaitForUi(old_ui);
    ASSERT_GT(new_ui, 0) << "the new user interface did not come up";
    EXPECT_EQ(UiProcesses(), std::vector<pid_t>{new_ui});
    EXPECT_THAT(Backups(), IsEmpty());
}

TEST_F(LauncherRun, FailedUpgradeRestoresTheOldCopyAndStillStartsIt)
{
    SetLevels(""); // error lines pass the default threshold
    InstallCopy("1200");
    PackClient("1201");
    struct stat st;
    ASSERT_EQ(stat(package_.c_str(), &st), 0) << package_ << ": " << strerror(errno);
    ASSERT_EQ(truncate(package_.c_str(), st.st_size / 2), 0) << package_ << ": " << strerror(errno);
    const Tree before = Snapshot(app_);

    ExpectCleanExit(RunLauncher());
    EXPECT_EQ(Snapshot(app_), before) << "the old copy is not back as it was";
    EXPECT_THAT(LauncherLines(), ElementsAre(kFailed)) << ReadFile(LogPath());
    EXPECT_THAT(Backups(), IsEmpty());
    const pid_t ui = WaitForUi();
    ASSERT_GT(ui, 0) << "no user interface came up";
    EXPECT_EQ(UiProcesses(), std::vector<pid_t>{ui});
}

// The first launcher is held inside its run: ui.pid is a FIFO, which it
// opens to stop the old user interface and reads until this test closes
// the writing end. Meanwhile a second launcher must step aside.
TEST_F(LauncherRun, SecondStartWhileTheFirstRunsChangesNothing)
{
    SetLevels("launcher_debug=7\n");
    InstallCopy("1200");
    PackClient("1201");
    const std::string fifo = install_ + "/ui.pid";
    ASSERT_EQ(mkfifo(fifo.c_str(), 0644), 0) << fifo << ": " << strerror(errno);
    const pid_t first = Start({launcher_}, Env(home_), "", root_ + "/first.err");
    ASSERT_GT(first, 0) << strerror(errno);

    int writer = -1;
    int status = -1;
    for (int i = 0; i < 6000 && writer < 0; ++i) {
        writer = open(fifo.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
        ASSERT_TRUE(writer >= 0 || errno == ENXIO) << fifo << ": " << strerror(errno);
        ASSERT_EQ(waitpid(first, &status, WNOHANG), 0)
            << "the first launcher ended early: " << Describe(status) << "\n"
            << ReadFile(root_ + "/first.err");
        if (writer < 0) {
            usleep(10000);
        }
    }
    ASSERT_GE(writer, 0) << "the first launcher never reached the pid file";
    const Tree before = Snapshot(app_);

    ExpectCleanExit(RunLauncher());
    EXPECT_EQ(Snapshot(app_), before) << "the second launcher touched the installation";
    const std::vector<std::string> lines = launchertest::LogLines(ReadFile(LogPath()));
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "[DEBUG] main(%d): app has already launched, return"), 1)
        << "the second launcher did not step aside:\n"
        << ReadFile(LogPath());

    ASSERT_EQ(close(writer), 0) << strerror(errno);
    status = Wait(first);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0)
        << "first launcher: " << Describe(status) << "\n"
        << ReadFile(root_ + "/first.err");
    EXPECT_EQ(Snapshot(app_), Snapshot(ClientBundle("1201")))
        << "the first launcher did not finish its upgrade";
}

} // namespace
