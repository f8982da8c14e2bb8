// Stands in for the per-user user interface in the service tests: it
// announces itself in a pid file and waits to be stopped.
//
//   STANDIN_MODE      "wait" (default): SIGTERM ends it;
//                     "ignore-term": it outlives SIGTERM;
//                     "record": every signal it gets is appended to
//                     STANDIN_RECORD, and SIGRTMIN ends it.
//   STANDIN_PID_FILE  written as "pid=<pid>" once the signal set-up is done
//   STANDIN_INFO      written as key=value lines: pid, cwd and sid
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <unistd.h>

namespace {

int record_fd = -1;

void Record(int sig)
{
    char line[32];
    const int n = snprintf(line, sizeof line, "sig=%d\n", sig);
    if (n > 0) {
        (void)!write(record_fd, line, static_cast<size_t>(n));
    }
    if (sig == SIGRTMIN) {
        _exit(0);
    }
}

// Writes through a temporary name, so that a reader never sees half of it.
bool Publish(const char* path, const std::string& content)
{
    const std::string tmp = std::string(path) + ".tmp";
    const int fd = open(tmp.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    const bool written =
        fd >= 0 && write(fd, content.data(), content.size()) == static_cast<ssize_t>(content.size());
    return fd >= 0 && close(fd) == 0 && written && rename(tmp.c_str(), path) == 0;
}

} // namespace

int main()
{
    alarm(300); // a forgotten stand-in must not outlive its test run by much
    const char* mode_env = getenv("STANDIN_MODE");
    const std::string mode = mode_env != nullptr ? mode_env : "wait";
    if (mode == "ignore-term") {
        signal(SIGTERM, SIG_IGN);
    } else if (mode == "record") {
        const char* record = getenv("STANDIN_RECORD");
        record_fd = record != nullptr ? open(record, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644) : -1;
        if (record_fd < 0) {
            return 2;
        }
        for (int sig : {SIGHUP, SIGINT, SIGTERM, SIGUSR1, SIGUSR2, SIGRTMIN}) {
            signal(sig, Record);
        }
    }
    char cwd[PATH_MAX];
    const char* info = getenv("STANDIN_INFO");
    if (info != nullptr && (getcwd(cwd, sizeof cwd) == nullptr ||
                            !Publish(info, "pid=" + std::to_string(getpid()) + "\ncwd=" + cwd +
                                               "\nsid=" + std::to_string(getsid(0)) + "\n"))) {
        return 2;
    }
    const char* pid_file = getenv("STANDIN_PID_FILE");
    if (pid_file != nullptr && !Publish(pid_file, "pid=" + std::to_string(getpid()) + "\n")) {
        return 2;
    }
    for (;;) {
        pause();
    }
}
