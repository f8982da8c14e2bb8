// The pid file of the stop sequence: the bytes become ~/.Calderix/ui.pid in
// a scratch home and the real MacService::StopService runs on them.
//
// No signal may reach any process but this target's own stand-in. Three
// walls keep it so:
//  1. StopService runs in a grandchild that is the first process of a new
//     PID namespace and leads a session of its own; the only other process
//     in that namespace is the stand-in (pid 2 there), so "pid=2" names it.
//  2. kill and sleep are replaced in this program (as the service tests'
//     tracer does): while StopService runs, kill delivers nothing except to
//     the stand-in and records every call, and sleep only records (and waits
//     a millisecond for the stand-in to die), so that five probes cost
//     nothing.
//  3. Where a new PID namespace is not permitted, inputs whose pid names an
//     existing process other than the stand-in are skipped.
// The parent then compares the recorded calls with what the file asks for:
// SIGTERM to a positive decimal pid, probes, perhaps SIGKILL, and no signal
// at all for anything else.
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdint>
#include <ctime>
#include <sched.h>
#include <string>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include "config.h"
#include "fuzz_support.h"
#include "launch_services.h"
#include "mac-service.h"

namespace {

using fuzzsupport::Show;

struct Call {
    int is_kill; // 0 for sleep
    int pid;
    int sig;
    int delivered;
    int error; // errno of the call, 0 on success
};

const int kMaxCalls = 64;
struct Trace {
    int count;
    int overflow;
    int target_alive_after;
    int target_pid;
    int in_namespace;
    Call calls[kMaxCalls];
};

volatile sig_atomic_t g_armed = 0;
pid_t g_target = 0;
Trace g_trace;

void Record(const Call& call)
{
    if (g_trace.count < kMaxCalls) {
        g_trace.calls[g_trace.count++] = call;
    } else {
        g_trace.overflow = 1;
    }
}

class NoLaunch : public platform::LaunchServices {
public:
    int Unregister(const std::string&) override { return 0; }
    int Open(const std::string&) override { return 0; }
};

void DefaultSignals()
{
    for (int sig = 1; sig < NSIG; ++sig) {
        if (sig != SIGKILL && sig != SIGSTOP) {
            signal(sig, SIG_DFL);
        }
    }
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
}

// The process whose pid the file means: the value of "pid" when it is a
// positive decimal number that fits a pid, else none (0).
pid_t ExpectedPid(const std::string& pid_file)
{
    Config config;
    if (config.read(ustring(pid_file.c_str())) < 0) {
        return 0;
    }
    const auto it = config.entries.find(ustring("pid"));
    if (it == config.entries.end() || it->second.empty()) {
        return 0;
    }
    long long value = 0;
    for (unsigned long i = 0; i < it->second.length(); ++i) {
        const char c = it->second[i];
        if (c < '0' || c > '9') return 0;
        value = value * 10 + (c - '0');
        if (value > INT_MAX) return 0;
    }
    return static_cast<pid_t>(value);
}

void WriteAll(int fd, const void* data, size_t size)
{
    const char* p = static_cast<const char*>(data);
    while (size > 0) {
        const ssize_t n = write(fd, p, size);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) _exit(3);
        p += n;
        size -= static_cast<size_t>(n);
    }
}

// Runs in the process that calls StopService: starts the stand-in, runs the
// stop sequence with kill and sleep recorded, and sends the trace back.
[[noreturn]] void RunStop(int out_fd, bool in_namespace)
{
    DefaultSignals();
    setsid();
    // Reaps the stand-in at once, so that a probe after its death finds no
    // process rather than a zombie, as the launcher (not its parent) would.
    signal(SIGCHLD, SIG_IGN);
    const pid_t standin = fork();
    if (standin < 0) _exit(4);
    if (standin == 0) {
        DefaultSignals();
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        for (;;) pause();
    }
    g_trace = Trace();
    g_trace.in_namespace = in_namespace;
    g_trace.target_pid = standin;
    g_target = standin;
    {
        static NoLaunch launch;
        MacService service(launch);
        g_armed = 1;
        service.StopService();
        g_armed = 0;
    }
    // A stand-in that got a signal may still be on its way out.
    bool signalled = false;
    for (int i = 0; i < g_trace.count; ++i) {
        signalled = signalled || (g_trace.calls[i].delivered && g_trace.calls[i].sig != 0);
    }
    for (int i = 0; signalled && i < 2000 && syscall(SYS_kill, standin, 0) == 0; ++i) {
        const timespec ms = {0, 1000000};
        nanosleep(&ms, nullptr);
    }
    g_trace.target_alive_after = syscall(SYS_kill, standin, 0) == 0;
    syscall(SYS_kill, standin, SIGKILL);
    WriteAll(out_fd, &g_trace, sizeof g_trace);
    _exit(0);
}

} // namespace

// While armed, the stop sequence's kill reaches the stand-in only; any other
// process id is answered as if no such process existed.
extern "C" int kill(pid_t pid, int sig)
{
    if (!g_armed) {
        return static_cast<int>(syscall(SYS_kill, pid, sig));
    }
    Call call = {1, pid, sig, 0, 0};
    long r = -1;
    if (pid > 0 && pid == g_target) {
        r = syscall(SYS_kill, pid, sig);
        call.delivered = r == 0;
        call.error = r == 0 ? 0 : errno;
    } else {
        call.error = ESRCH;
    }
    Record(call);
    errno = call.error;
    return r == 0 ? 0 : -1;
}

extern "C" unsigned int sleep(unsigned int seconds)
{
    if (g_armed) {
        Record(Call{0, 0, static_cast<int>(seconds), 0, 0});
        const timespec ms = {0, 1000000};
        nanosleep(&ms, nullptr);
        return 0;
    }
    timespec left = {static_cast<time_t>(seconds), 0};
    while (nanosleep(&left, &left) != 0 && errno == EINTR) {
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static fuzzsupport::ScratchDir scratch;
    static const std::string home = scratch.path() + "/home";
    static const std::string pid_file = home + "/.Calderix/ui.pid";
    static bool prepared = false;
    static bool namespaces = true;
    if (!prepared) {
        fuzzsupport::MakeDirs(home + "/.Calderix");
        setenv("HOME", home.c_str(), 1);
        prepared = true;
    }
    fuzzsupport::WriteFile(pid_file, data, size);
    const std::string content(reinterpret_cast<const char*>(data), size);
    const pid_t expected = ExpectedPid(pid_file);

    if (!namespaces && expected > 0 && (kill(expected, 0) == 0 || errno == EPERM)) {
        return 0; // would name a real process outside any namespace
    }

    int fds[2];
    FUZZ_CHECK(pipe(fds) == 0, "pipe: %s", std::strerror(errno));
    const pid_t child = fork();
    FUZZ_CHECK(child >= 0, "fork: %s", std::strerror(errno));
    if (child == 0) {
        close(fds[0]);
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (unshare(CLONE_NEWPID) != 0) {
            RunStop(fds[1], false);
        }
        const pid_t init = fork(); // the first process of the new namespace
        if (init < 0) _exit(5);
        if (init == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            RunStop(fds[1], true);
        }
        int status = 0;
        while (waitpid(init, &status, 0) < 0 && errno == EINTR) {
        }
        _exit(WIFEXITED(status) ? WEXITSTATUS(status) : 6);
    }
    close(fds[1]);
    Trace trace;
    size_t got = 0;
    while (got < sizeof trace) {
        const ssize_t n = read(fds[0], reinterpret_cast<char*>(&trace) + got, sizeof trace - got);
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) break;
        got += static_cast<size_t>(n);
    }
    close(fds[0]);
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    FUZZ_CHECK(got == sizeof trace && WIFEXITED(status) && WEXITSTATUS(status) == 0,
               "the stop sequence's process ended with status 0x%x after %zu of %zu trace bytes, pid file %s", status,
               got, sizeof trace, Show(content).c_str());
    if (!trace.in_namespace && namespaces) {
        namespaces = false;
        std::fprintf(stderr, "fuzz_pidfile: no new PID namespace permitted; skipping pids of existing processes\n");
    }

    FUZZ_CHECK(!trace.overflow, "StopService made more than %d kill and sleep calls, pid file %s", kMaxCalls,
               Show(content).c_str());
    int kills = 0;
    int sleeps = 0;
    for (int i = 0; i < trace.count; ++i) {
        const Call& c = trace.calls[i];
        if (!c.is_kill) {
            ++sleeps;
            continue;
        }
        ++kills;
        FUZZ_CHECK(c.pid > 0, "StopService sent signal %d to %d (a process group or every process), pid file %s",
                   c.sig, c.pid, Show(content).c_str());
        FUZZ_CHECK(c.pid == expected, "StopService sent signal %d to %d, but the pid file %s names %d", c.sig, c.pid,
                   Show(content).c_str(), expected);
        const int want_sig = kills == 1 ? SIGTERM : (sleeps == 5 ? SIGKILL : 0);
        FUZZ_CHECK(c.sig == want_sig, "call %d of StopService sent signal %d after %d sleeps, expected %d", i, c.sig,
                   sleeps, want_sig);
    }
    if (expected == 0) {
        FUZZ_CHECK(trace.count == 0, "StopService made %d calls although the pid file %s names no process",
                   trace.count, Show(content).c_str());
    } else {
        FUZZ_CHECK(kills >= 1 && sleeps <= 5, "StopService made %d kill and %d sleep calls for pid %d", kills, sleeps,
                   expected);
    }
    if (expected == trace.target_pid) {
        FUZZ_CHECK(!trace.target_alive_after, "the stand-in (pid %d) outlived StopService, pid file %s", expected,
                   Show(content).c_str());
    }
    return 0;
}
