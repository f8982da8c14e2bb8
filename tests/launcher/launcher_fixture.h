// A private copy of the assembled demo bundle and a fake home in a fresh
// temporary folder, for running the real launcher binary, and the runner of
// the whole-launcher scenario tables. Whatever the launcher starts from the
// fixture (the user interface it launches detached) is stopped and reaped
// when the test ends.
#pragma once

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <functional>
#include <optional>
#include <regex>
#include <string>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "test_rows.h"
#include "test_support.h"

// The preloaded kill shim, for suites that build it.
#ifndef KILL_SHIM
#define KILL_SHIM ""
#endif

namespace launchertest {

using Strings = std::vector<std::string>;

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
    while (const struct dirent* e = readdir(proc)) {
        char exe[PATH_MAX];
        const ssize_t n = readlink(("/proc/" + std::string(e->d_name) + "/exe").c_str(), exe, sizeof exe - 1);
        const std::string path(exe, n > 0 ? static_cast<size_t>(n) : 0);
        if (isdigit(static_cast<unsigned char>(e->d_name[0])) && path.rfind(folder + "/", 0) == 0) {
            found.emplace_back(static_cast<pid_t>(atol(e->d_name)), path);
        }
    }
    closedir(proc);
    return found;
}

// The lines of a log text that carry the logger's "%b %d %H:%M:%S "
// timestamp, without it and with the source line of the message shown as
// "%d", as in its format: "[DEBUG] main(%d): app has already launched, return".
inline Strings LogLines(const std::string& text)
{
    static const std::regex stamped(R"(^[A-Z][a-z][a-z] [ 0-9][0-9] [0-9]{2}:[0-9]{2}:[0-9]{2} (.*))");
    static const std::regex source(R"(\([0-9]+\))");
    Strings lines;
    std::smatch m;
    for (const std::string& line : testsupport::Lines(text)) {
        if (std::regex_match(line, m, stamped)) {
            lines.push_back(
                std::regex_replace(m[1].str(), source, "(%d)", std::regex_constants::format_first_only));
        }
    }
    return lines;
}

inline std::string Joined(const Strings& lines)
{
    std::string text;
    for (const std::string& line : lines) {
        text += "  " + line + "\n";
    }
    return text;
}

} // namespace launchertest

// One whole run of the launcher as a row of a table: what it starts from,
// the fault or environment it runs in, and what it must leave behind. The
// hooks get the test's fixture F, whose members they use.
template <typename F> struct Scenario {
    std::string name{};
    const char* levels = nullptr;              // the bundle's level file; null: none (default levels)
    std::function<void(F&)> setup{};           // home, bundle and installed copy, before the run
    std::vector<testsupport::EnvChange> env{}; // on top of the fixture's Env(); "<root>/" starts root_
    std::string kill_at{};              // the preloaded kill shim's CALDERIX_KILL_AT ("trace": its kill
                                        // and sleep trace into root_/trace); empty: no shim
    std::function<void(F&)> in_child{}; // runs in the child right before the exec
    int exit_code = 0;                  // -N: ended by signal N
    launchertest::Strings log{};        // lines, as Log() shows them, in this order; "!line": absent
    bool ui = true;                     // the user interface runs afterwards, once (false: not looked at)
    std::function<void(F&, const testsupport::ProcessResult&)> check{}; // the tree and the rest
};

template <typename F> void PrintTo(const Scenario<F>& s, std::ostream* os)
{
    *os << s.name;
}

class LauncherFixture : public ::testing::Test {
public:
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
        install_ = home_ + "/.Calderix";
        app_ = install_ + "/Calderix.app";
        ui_ = app_ + "/Contents/MacOS/calderix-drive-ui";
        package_ = bundle_ + "/Contents/Resources/package/calderix.vpk";
        ASSERT_TRUE(testsupport::MakeDirs(home_) && testsupport::MakeDirs(tmp_) &&
                    testsupport::MakeDirs(bundle_ + "/Contents/Resources/package"))
            << strerror(errno);
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

    // The log's lines as LogLines gives them, with the package, the user's
    // bundle, ~/.Calderix and the launcher's bundle shown as <vpk>, <app>,
    // <install> and <bundle>.
    launchertest::Strings Log() const
    {
        const std::pair<std::string, const char*> names[] = {
            {package_, "<vpk>"}, {app_, "<app>"}, {install_, "<install>"}, {bundle_, "<bundle>"}};
        launchertest::Strings lines = launchertest::LogLines(testsupport::ReadFile(LogPath()));
        for (std::string& line : lines) {
            for (const auto& [path, name] : names) {
                for (size_t at = line.find(path); at != std::string::npos; at = line.find(path, at)) {
                    line.replace(at, path.size(), name);
                }
            }
        }
        return lines;
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
        for (const char* name : {"TMPDIR", "HOME", "XDG_RUNTIME_DIR"}) {
            const char* value = getenv(name);
            saved_env_.emplace_back(name,
                                    value != nullptr ? std::optional<std::string>(value) : std::nullopt);
        }
        ASSERT_TRUE(setenv("TMPDIR", tmp_.c_str(), 1) == 0 && setenv("HOME", home_.c_str(), 1) == 0 &&
                    unsetenv("XDG_RUNTIME_DIR") == 0)
            << strerror(errno);
    }

    ~LauncherFixture() override
    {
        for (auto it = saved_env_.rbegin(); it != saved_env_.rend(); ++it) {
            it->second ? setenv(it->first.c_str(), it->second->c_str(), 1) : unsetenv(it->first.c_str());
        }
    }

    // A run's environment with the kill shim preloaded, acting at at
    // ("trace": tracing into root_/trace). The shim comes ahead of the
    // sanitizer's runtime, which is harmless here: it only forwards calls.
    std::vector<testsupport::EnvChange> ShimEnv(const std::string& at) const
    {
        std::vector<testsupport::EnvChange> env = Env(home_);
        const char* asan = getenv("ASAN_OPTIONS");
        env.insert(env.end(),
                   {testsupport::Set("ASAN_OPTIONS",
                                     std::string(asan != nullptr ? asan : "") + ":verify_asan_link_order=0"),
                    testsupport::Set("LD_PRELOAD", KILL_SHIM),
                    testsupport::Set("CALDERIX_KILL_AT", at == "trace" ? "trace:" + root_ + "/trace" : at),
                    testsupport::Set("CALDERIX_KILL_ROOT", install_)});
        return env;
    }

    testsupport::ProcessResult RunLauncher() const { return testsupport::Run({launcher_}, Env(home_)); }

    void ExpectCleanExit(const testsupport::ProcessResult& r) const
    {
        ASSERT_TRUE(r.exited) << "killed by signal " << r.term_signal << "\n" << r.err;
        EXPECT_EQ(r.exit_code, 0) << r.err;
        EXPECT_EQ(r.out, "lib path = '" + bundle_ + "/Contents/Frameworks/plugins'\n");
    }

    // Runs one row: its setup, the launcher in its
    // environment, then checks the outcome, the log lines, the user
    // interface and the row's own check, each failure saying what differs.
    template <typename F> void RunScenario(const Scenario<F>& s)
    {
        F& self = static_cast<F&>(*this);
        if (s.levels != nullptr) {
            SetLevels(s.levels);
        }
        if (s.setup) {
            s.setup(self);
        }
        ASSERT_FALSE(HasFailure()) << "the row's setup failed";
        std::vector<testsupport::EnvChange> env = s.kill_at.empty() ? Env(home_) : ShimEnv(s.kill_at);
        for (testsupport::EnvChange change : s.env) {
            change.value =
                change.value.rfind("<root>/", 0) == 0 ? root_ + change.value.substr(6) : change.value;
            env.push_back(change);
        }
        const pid_t old_ui = UiPid();
        const std::function<void()> in_child = [&s, &self] { s.in_child(self); };
        const testsupport::ProcessResult r =
            testsupport::Run({launcher_}, env, s.in_child ? in_child : nullptr);
        EXPECT_TRUE(s.exit_code < 0 ? !r.exited && r.term_signal == -s.exit_code
                                    : r.exited && r.exit_code == s.exit_code)
            << "want " << s.exit_code << " (negative: that signal), got exit " << r.exit_code << " signal "
            << r.term_signal << "\n"
            << r.err;
        EXPECT_TRUE(s.exit_code != 0 || r.out == "lib path = '" + bundle_ + "/Contents/Frameworks/plugins'\n")
            << r.out;
        const launchertest::Strings log = Log();
        auto from = log.begin();
        for (const std::string& want : s.log) {
            if (want[0] == '!') {
                EXPECT_EQ(std::find(log.begin(), log.end(), want.substr(1)), log.end())
                    << "logged \"" << want.substr(1) << "\":\n"
                    << launchertest::Joined(log);
                continue;
            }
            const auto found = std::find(from, log.end(), want);
            EXPECT_NE(found, log.end()) << "missing or out of order: \"" << want << "\" in\n"
                                        << launchertest::Joined(log);
            from = found == log.end() ? from : found + 1;
        }
        if (s.ui) {
            ExpectUiStartedOnce(old_ui);
        }
        if (s.check) {
            s.check(self, r);
        }
    }

    // The pid in ui.pid; 0 when there is none.
    pid_t UiPid() const
    {
        const std::string text = testsupport::ReadFile(install_ + "/ui.pid");
        return text.rfind("pid=", 0) == 0 ? static_cast<pid_t>(atol(text.c_str() + 4)) : 0;
    }

    // The pid in ui.pid once it names a process other than not_pid; -1
    // when no user interface announces itself within a generous bound.
    pid_t WaitForUi(pid_t not_pid = 0) const
    {
        for (int i = 0; i < 6000; ++i, usleep(10000)) {
            if (UiPid() > 0 && UiPid() != not_pid) {
                return UiPid();
            }
        }
        return -1;
    }

    // A user interface other than not_pid came up, once.
    void ExpectUiStartedOnce(pid_t not_pid = 0) const
    {
        const pid_t ui = WaitForUi(not_pid);
        ASSERT_GT(ui, 0) << "no user interface came up";
        EXPECT_EQ(UiProcesses(), std::vector<pid_t>{ui}) << "the user interface was not started exactly once";
    }

    // How many of the log's lines, as Log() gives them, start with start.
    long LogCount(const std::string& start) const
    {
        const launchertest::Strings lines = Log();
        return std::count_if(lines.begin(), lines.end(),
                             [&](const std::string& l) { return l.rfind(start, 0) == 0; });
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
        std::sort(names.begin(), names.end());
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
    std::vector<std::pair<std::string, std::optional<std::string>>> saved_env_; // as before the test
};
