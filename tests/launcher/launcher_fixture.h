// A private copy of the assembled demo bundle and a fake home in a fresh
// temporary folder, for running the real launcher binary. Whatever the
// launcher starts from the fixture (the user interface it launches
// detached) is stopped and reaped when the test ends.
#pragma once

#include <cctype>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "scoped_env.h"
#include "test_support.h"

namespace launchertest {

// Processes (zombies excluded) whose executable lies below folder, with
// that executable's path as the kernel reports it (a replaced file ends in
// " (deleted)").
inline std::vector<std::pair<pid_t, std::string>> ProcessesBelow(const std::string& folder)
{
    std::vector<std::pair<pid_t, std::string>> found;
    DIR* proc = opendir("/proc");
    if (proc == nullptr) {
        ADD_FAILURE() << "/proc: " << strerror(errno);
        return found;
    }
    const std::string prefix = folder + "/";
    while (const struct dirent* e = readdir(proc)) {
        char* end = nullptr;
        const long pid = strtol(e->d_name, &end, 10);
        if (pid <= 0 || *end != '\0') {
            continue;
        }
        char exe[PATH_MAX];
        const ssize_t n = readlink(("/proc/" + std::string(e->d_name) + "/exe").c_str(), exe, sizeof exe - 1);
        if (n > 0 && std::string(exe, static_cast<size_t>(n)).compare(0, prefix.size(), prefix) == 0) {
            found.emplace_back(static_cast<pid_t>(pid), std::string(exe, static_cast<size_t>(n)));
        }
    }
    closedir(proc);
    return found;
}

// The lines of a log text that carry the logger's "%b %d %H:%M:%S "
// timestamp, without it and with the source line of the message shown as
// "%d", as in its format: "[DEBUG] main(%d): app has already launched, return".
inline std::vector<std::string> LogLines(const std::string& text)
{
    static const char shape[] = "Aaa 00 00:00:00 ";
    const size_t stamp = sizeof shape - 1;
    std::vector<std::string> lines;
    for (std::string line : testsupport::Lines(text)) {
        bool stamped = line.size() > stamp;
        for (size_t i = 0; stamped && i < stamp; ++i) {
            const unsigned char c = static_cast<unsigned char>(line[i]);
            stamped = shape[i] == 'A'   ? isupper(c) != 0
                      : shape[i] == 'a' ? islower(c) != 0
                      : shape[i] == '0' ? isdigit(c) != 0 || (i == 4 && c == ' ')
                                        : c == static_cast<unsigned char>(shape[i]);
        }
        if (!stamped) {
            continue;
        }
        line.erase(0, stamp);
        const size_t open = line.find('(');
        const size_t close =
            open == std::string::npos ? open : line.find_first_not_of("0123456789", open + 1);
        if (close != std::string::npos && close > open + 1 && line[close] == ')') {
            line.replace(open + 1, close - open - 1, "%d");
        }
        lines.push_back(line);
    }
    return lines;
}

} // namespace launchertest

class LauncherFixture : public ::testing::Test {
protected:
    void SetUp() override
    {
        // The user interface is started detached (its parent exits at
        // once); as a subreaper this process inherits it and can reap it
        // the moment it ends instead of leaving that to pid 1.
        ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0) << "PR_SET_CHILD_SUBREAPER: " << strerror(errno);
        char real[PATH_MAX];
        ASSERT_NE(realpath(dir_.path().c_str(), real), nullptr) << dir_.path() << ": " << strerror(errno);
        root_ = real;
        bundle_ = root_ + "/Calderix Drive.app";
        ASSERT_TRUE(testsupport::CopyTree(DEMO_BUNDLE, bundle_)) << DEMO_BUNDLE << ": " << strerror(errno);
        // Every test starts without a level file, at the default levels,
        // and writes the one it needs.
        ASSERT_TRUE(testsupport::RemoveTree(LevelFile())) << LevelFile() << ": " << strerror(errno);
        launcher_ = bundle_ + "/Contents/MacOS/launcher";
        home_ = root_ + "/home";
        tmp_ = root_ + "/tmp";
        ASSERT_TRUE(testsupport::MakeDirs(home_)) << home_ << ": " << strerror(errno);
        ASSERT_TRUE(testsupport::MakeDirs(tmp_)) << tmp_ << ": " << strerror(errno);
        install_ = home_ + "/.Calderix";
        app_ = install_ + "/Calderix.app";
        ui_ = app_ + "/Contents/MacOS/calderix-drive-ui";
        package_ = bundle_ + "/Contents/Resources/package/calderix.vpk";
        ASSERT_TRUE(testsupport::MakeDirs(bundle_ + "/Contents/Resources/package")) << strerror(errno);
    }

    void TearDown() override
    {
        for (const auto& process : launchertest::ProcessesBelow(root_)) {
            kill(process.first, SIGKILL);
            testsupport::Wait(process.first);
        }
        while (waitpid(-1, nullptr, WNOHANG) > 0) {
        }
    }

    std::string LogPath() const { return home_ + "/.Calderix/log/launcher.log"; }
    std::string LevelFile() const { return bundle_ + "/log/launcher.debug"; }
    void SetLevels(const std::string& content)
    {
        ASSERT_TRUE(testsupport::MakeDirs(bundle_ + "/log"));
        ASSERT_TRUE(testsupport::WriteFile(LevelFile(), content)) << LevelFile() << ": " << strerror(errno);
    }

    // The environment of one run: this fixture's home and temporary folder,
    // headless, and no runtime folder shared with anything else.
    std::vector<testsupport::EnvChange> Env(const std::string& home) const
    {
        return {testsupport::Set("HOME", home), testsupport::Set("TMPDIR", tmp_),
                testsupport::Set("QT_QPA_PLATFORM", "offscreen"), testsupport::Unset("XDG_RUNTIME_DIR"),
                testsupport::Set("LANG", "C.UTF-8")};
    }

    // Makes this process use the fixture's home and temporary folder, as a
    // launcher started by this user would, until the test ends.
    void UseFixtureEnvironment()
    {
        ASSERT_TRUE(env_.Set("TMPDIR", tmp_) && env_.Set("HOME", home_) && env_.Unset("XDG_RUNTIME_DIR"))
            << strerror(errno);
    }

    testsupport::ProcessResult RunLauncher() const { return testsupport::Run({launcher_}, Env(home_)); }

    void ExpectCleanExit(const testsupport::ProcessResult& r) const
    {
        ASSERT_TRUE(r.exited) << "killed by signal " << r.term_signal << "\n" << r.err;
        EXPECT_EQ(r.exit_code, 0) << r.err;
        EXPECT_EQ(r.out, "lib path = '" + bundle_ + "/Contents/Frameworks/plugins'\n");
    }

    // The pid in ui.pid once it names a process other than not_pid; -1
    // when no user interface announces itself within a generous bound.
    pid_t WaitForUi(pid_t not_pid = 0) const
    {
        for (int i = 0; i < 6000; ++i) {
            const std::string text = testsupport::ReadFile(install_ + "/ui.pid");
            const pid_t pid = text.rfind("pid=", 0) == 0 ? static_cast<pid_t>(atol(text.c_str() + 4)) : 0;
            if (pid > 0 && pid != not_pid) {
                return pid;
            }
            usleep(10000);
        }
        return -1;
    }

    // The processes that run the user's installed user interface.
    std::vector<pid_t> UiProcesses() const
    {
        std::vector<pid_t> pids;
        for (const auto& process : launchertest::ProcessesBelow(root_)) {
            if (process.second == ui_) {
                pids.push_back(process.first);
            }
        }
        return pids;
    }

    // Backups of the user's bundle that are still around.
    std::vector<std::string> Backups() const
    {
        std::vector<std::string> names;
        if (DIR* dir = opendir(install_.c_str())) {
            while (const struct dirent* e = readdir(dir)) {
                if (strncmp(e->d_name, "Calderix.app_tmp", 16) == 0) {
                    names.push_back(e->d_name);
                }
            }
            closedir(dir);
        }
        return names;
    }

    testsupport::TempDir dir_{"calderix-launcher"};
    std::string root_; // dir_ with every link resolved, as /proc shows it
    std::string bundle_;
    std::string launcher_;
    std::string home_;
    std::string tmp_;
    std::string install_; // ~/.Calderix
    std::string app_;     // the user's bundle
    std::string ui_;      // its user-interface executable
    std::string package_; // the launcher bundle's package
    launchertest::ScopedEnv env_;
};
