// Whole launcher runs against packages that are large, damaged, hostile or
// cut short, from a private copy of the demo bundle with a fake home.
#pragma once

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <ctime>
#include <map>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "launcher_fixture.h"
#include "service_fixture.h"
#include "test_rows.h"
#include "test_support.h"
#include "vpkpack.h"

namespace reliability {

using servicetest::Snapshot;
using servicetest::Tree;

const char kRollback[] =
    "[ERROR] calderix-service(%d): Failed to extract package, rollback to old installation";

// Success when got is want, else the paths that differ.
inline ::testing::AssertionResult SameTree(const Tree& want, const Tree& got)
{
    std::string diff;
    Tree all = want;
    all.insert(got.begin(), got.end());
    for (const auto& entry : all) {
        const auto w = want.find(entry.first), g = got.find(entry.first);
        if (w == want.end() || g == got.end() || w->second != g->second) {
            diff += "\n  " + entry.first + (g == got.end() ? ": missing" : ": unexpected or changed");
        }
    }
    return diff.empty() ? ::testing::AssertionSuccess()
                        : ::testing::AssertionFailure() << diff.substr(0, 1500);
}

} // namespace reliability

class ReliabilityFixture : public LauncherFixture {
protected:
    void SetUp() override
    {
        LauncherFixture::SetUp();
        // Something of the user's own next to the installation, which no run may touch.
        ASSERT_TRUE(!HasFatalFailure() && testsupport::MakeDirs(home_ + "/Documents") &&
                    testsupport::WriteFile(home_ + "/Documents/notes.txt", "mine\n") &&
                    testsupport::WriteFile(home_ + "/.Calderix-settings", "keep=1\n"))
            << strerror(errno);
    }

    // A client bundle of build: the demo UI, the Info.plist that names it,
    // the version file, and folders data/dNN of files_per_folder files each.
    std::string ClientBundle(const std::string& build, int folders = 0, int files_per_folder = 0)
    {
        const std::string app = root_ + "/client-" + build + "-" + std::to_string(folders) + "x" +
                                std::to_string(files_per_folder) + "/Calderix.app";
        const std::string resources = app + "/Contents/Resources";
        if (testsupport::Exists(app)) {
            return app;
        }
        std::map<std::string, std::string> files = {
            {app + "/Contents/Info.plist",
             "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\">\n"
             "<dict>\n\t<key>CFBundleExecutable</key>\n\t<string>"
             "calderix-drive-ui</string>\n</dict>\n</plist>\n"},
            {resources + "/INFO", "[Version]\nmajor_version=2\nminor_version=5\nbuild_version=" + build +
                                      "\nicon_overlay_version=3\n"}};
        for (int d = 0; d < folders; ++d) {
            for (int f = 0; f < files_per_folder; ++f) {
                files[resources + "/data/d" + std::to_string(100 + d) + "/f" + std::to_string(100 + f)] =
                    "build " + build + " file " + std::to_string(d) + "." + std::to_string(f) + "\n" +
                    std::string(static_cast<size_t>(97 * f), 'a' + static_cast<char>(d % 26));
            }
        }
        EXPECT_TRUE(testsupport::MakeDirs(app + "/Contents/MacOS") &&
                    testsupport::CopyTree(DEMO_UI_PATH, app + "/Contents/MacOS/calderix-drive-ui"))
            << app << ": " << strerror(errno);
        for (const auto& [path, content] : files) {
            EXPECT_TRUE(testsupport::MakeDirs(path.substr(0, path.rfind('/'))) &&
                        testsupport::WriteFile(path, content))
                << path << ": " << strerror(errno);
        }
        return app;
    }

    // The launcher bundle's package and version file for that client
    // bundle; the package's entry count.
    int PackClient(const std::string& build, int folders = 0, int files_per_folder = 0)
    {
        vpkpack::PackOptions options;
        options.info_out = bundle_ + "/Contents/Resources/INFO";
        vpkpack::PackageSummary summary;
        const vpkpack::Status status =
            vpkpack::Pack(ClientBundle(build, folders, files_per_folder), package_, options, &summary);
        EXPECT_TRUE(status.ok()) << status.Message();
        return summary.entries;
    }

    // The user's copy of build, as an earlier run would have left it.
    void InstallCopy(const std::string& build)
    {
        ASSERT_TRUE(testsupport::MakeDirs(install_) && testsupport::CopyTree(ClientBundle(build), app_))
            << app_ << ": " << strerror(errno);
    }

    // A run's environment with kill_shim.c (built at shim) preloaded,
    // acting at at. The shim comes ahead of the sanitizer's runtime, which
    // is harmless here: it only forwards calls.
    std::vector<testsupport::EnvChange> ShimEnv(const std::string& shim, const std::string& at) const
    {
        std::vector<testsupport::EnvChange> env = Env(home_);
        const char* asan = getenv("ASAN_OPTIONS");
        env.push_back(testsupport::Set("ASAN_OPTIONS", std::string(asan != nullptr ? asan : "") +
                                                           ":verify_asan_link_order=0"));
        env.push_back(testsupport::Set("LD_PRELOAD", shim));
        env.push_back(testsupport::Set("CALDERIX_KILL_AT", at));
        env.push_back(testsupport::Set("CALDERIX_KILL_ROOT", install_));
        return env;
    }

    // Everything of the user's outside ~/.Calderix, and the launcher's bundle.
    reliability::Tree Outside() const
    {
        reliability::Tree tree = reliability::Snapshot(home_);
        for (auto it = tree.begin(); it != tree.end();) {
            const bool installed = it->first == ".Calderix" || it->first.rfind(".Calderix/", 0) == 0;
            it = installed ? tree.erase(it) : std::next(it);
        }
        for (const auto& [path, entry] : reliability::Snapshot(bundle_)) {
            tree["<bundle>/" + path] = entry;
        }
        return tree;
    }

    // Starts the launcher at path with its output kept under name.
    pid_t StartLauncher(const std::string& name, const std::vector<testsupport::EnvChange>& env,
                        const std::string& path = {}) const
    {
        return testsupport::Start({path.empty() ? launcher_ : path}, env, root_ + "/" + name + ".out",
                                  root_ + "/" + name + ".err");
    }

    // Waits for the launcher started under name; one still running after
    // seconds is killed, a bound against hanging and never a measure.
    testsupport::ProcessResult Finish(pid_t pid, const std::string& name, int seconds = 90) const
    {
        int status = -1;
        for (const time_t end = time(nullptr) + seconds; waitpid(pid, &status, WNOHANG) == 0; usleep(10000)) {
            if (time(nullptr) > end) {
                kill(pid, SIGKILL);
            }
        }
        return {WIFEXITED(status), WIFEXITED(status) ? WEXITSTATUS(status) : -1,
                WIFSIGNALED(status) ? WTERMSIG(status) : 0,
                testsupport::ReadFile(root_ + "/" + name + ".out"),
                testsupport::ReadFile(root_ + "/" + name + ".err")};
    }

    // How many of the log's lines, as LogLines gives them, start with start.
    long LogCount(const std::string& start) const
    {
        const std::vector<std::string> lines = launchertest::LogLines(testsupport::ReadFile(LogPath()));
        return std::count_if(lines.begin(), lines.end(),
                             [&](const std::string& l) { return l.rfind(start, 0) == 0; });
    }

    // The user interface came up, once.
    void ExpectUiStartedOnce() const
    {
        const pid_t ui = WaitForUi();
        ASSERT_GT(ui, 0) << "no user interface came up";
        EXPECT_EQ(UiProcesses(), std::vector<pid_t>{ui}) << "the user interface was not started exactly once";
    }
};
