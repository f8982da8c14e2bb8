// Whole launcher runs for the installation service's tests, on the shared
// launcher fixture: the service's log lines, each kill and sleep of the
// launcher (kill_trace.c preloaded), runs as nobody so that a stray signal
// can reach nobody's processes only, and stand-in user interfaces made of
// sleep.
#pragma once

#include <csignal>
#include <filesystem>
#include <ftw.h>
#include <functional>
#include <grp.h>
#include <sched.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>
#include <vector>

#include "reliability_fixture.h"
#include "service_fixture.h"

using Strings = std::vector<std::string>;

class ServiceRun : public ReliabilityFixture {
protected:
    static constexpr uid_t kNobody = 65534;

    void SetUp() override
    {
        ReliabilityFixture::SetUp();
        if (!HasFatalFailure()) {
            SetLevels("launcher_debug=7\nservice_debug=7\n");
        }
    }

    // The log's lines, as LogLines gives them, whose source contains
    // source; the package, the user's bundle and ~/.Calderix are shown as
    // <vpk>, <app> and <install>.
    Strings LogOf(const std::string& source) const
    {
        const std::pair<std::string, std::string> names[] = {
            {package_, "<vpk>"}, {app_, "<app>"}, {install_, "<install>"}};
        Strings lines;
        for (std::string line : launchertest::LogLines(testsupport::ReadFile(LogPath()))) {
            for (const auto& [path, name] : names) {
                for (size_t at = line.find(path); at != std::string::npos; at = line.find(path, at)) {
                    line.replace(at, path.size(), name);
                }
            }
            if (line.find(source) != std::string::npos) {
                lines.push_back(line);
            }
        }
        return lines;
    }

    // The service's lines after the first that starts with from (from the
    // first line when empty) and before the next that starts with to.
    Strings Lines(const std::string& from = {}, const std::string& to = {}) const
    {
        Strings lines;
        bool in = from.empty();
        for (const std::string& line : LogOf("-service(%d): ")) {
            if (in && !to.empty() && line.rfind(to, 0) == 0) {
                break;
            }
            if (in) {
                lines.push_back(line);
            }
            in = in || line.rfind(from, 0) == 0;
        }
        return lines;
    }

    // What StopService logged during an upgrade over an installed copy.
    Strings StopLines() const
    {
        return Lines("[DEBUG] mac/mac-service(%d): local appdata exist",
                     "[INFO] calderix-service(%d): extract package");
    }

    // Runs the launcher (or command) with kill_trace.c preloaded the way
    // ShimEnv preloads the kill shim (here with no kill point), as nobody
    // when asked (after HandToNobody), with enter run in the child last.
    testsupport::ProcessResult RunTraced(bool as_nobody = false, const std::vector<std::string>& command = {},
                                         const std::function<void()>& enter = {}) const
    {
        std::vector<testsupport::EnvChange> env = ShimEnv(TRACE_SHIM, "none");
        env.push_back(testsupport::Set("SERVICE_TRACE_FILE", root_ + "/trace"));
        return testsupport::Run(
            command.empty() ? std::vector<std::string>{launcher_} : command, env, [as_nobody, enter] {
                if (as_nobody &&
                    (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0)) {
                    perror("dropping root");
                    _exit(127);
                }
                if (enter) {
                    enter();
                }
            });
    }

    // For a child about to exec: moves it into user and pid namespaces of
    // its own, as their root, below the new namespace's init (pid 1), which
    // is its parent; the program then runs as pid 2. The processes it
    // leaves behind exit with its status.
    static void BelowNamespaceInit()
    {
        testsupport::EnterUserNamespace(CLONE_NEWPID);
        // The first child is the namespace's init, the second one the program.
        for (int level = 0; level < 2; ++level) {
            const pid_t child = fork();
            if (child < 0) {
                perror("fork");
                _exit(127);
            }
            if (child > 0) {
                int status = 0;
                while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
                }
                _exit(WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status));
            }
        }
    }
    Strings Trace() const { return testsupport::Lines(testsupport::ReadFile(root_ + "/trace")); }

    void HandToNobody() const
    {
        ASSERT_EQ(nftw(
                      root_.c_str(),
                      [](const char* path, const struct stat*, int, FTW*) {
                          return lchown(path, kNobody, kNobody);
                      },
                      16, FTW_PHYS),
                  0)
            << root_ << ": " << strerror(errno);
    }

    // A child of the test running a copy of sleep at path below the fixture
    // (so that TearDown ends it; by default outside the installation, a
    // stand-in user interface inside it), returned once it runs. Its bound
    // only keeps a test that fails from hanging.
    pid_t StartSleeper(bool as_nobody, bool ignore_term = false, const std::string& path = {}) const
    {
        const std::string sleep = path.empty() ? root_ + "/sleep" : path;
        EXPECT_TRUE(testsupport::Exists(sleep) || testsupport::CopyTree("/bin/sleep", sleep))
            << strerror(errno);
        std::vector<std::string> argv{sleep, "60"};
        if (as_nobody) {
            argv.insert(argv.begin(),
                        {"/usr/bin/setpriv", "--reuid=65534", "--regid=65534", "--clear-groups", "--"});
        }
        // An ignored signal stays ignored across fork and exec.
        const sighandler_t saved = ignore_term ? signal(SIGTERM, SIG_IGN) : SIG_ERR;
        const pid_t pid = testsupport::Start(argv);
        if (ignore_term) {
            signal(SIGTERM, saved);
        }
        EXPECT_GT(pid, 0) << strerror(errno);
        std::error_code ec;
        for (int i = 0; pid > 0 && i < 6000 &&
                        std::filesystem::read_symlink("/proc/" + std::to_string(pid) + "/exe", ec) != sleep;
             ++i) {
            usleep(10000);
        }
        return pid;
    }
};
