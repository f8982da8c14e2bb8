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
//     existing process are skipped.
// StopService signals only the user interface, which it recognises by the
// executable a process runs; the platform's answer is replaced here too:
// while armed, the stand-in runs the user interface of the scratch home and
// no other process exists.
// The parent then holds the recorded calls against the file: a signal only to
// the process whose decimal number the file's "pid" holds, SIGTERM first,
// then probes a second apart, SIGKILL only after the fifth; and a stand-in
// that the file names does not outlive the sequence.
#include <climits>
#include <csignal>
#include <cstdlib>
#include <ctime>
#include <new>
#include <sched.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>

#include "config.h"
#include "fuzz_support.h"
#include "mac-service.h"
#include "process_info.h"

namespace {

struct Call {
    int pid;
    int sig;
    int sleeps; // made before the call
};

const int kMaxCalls = 64;
// Shared with the processes that run the stop sequence.
struct Trace {
    int count;
    int sleeps;
    bool in_namespace;
    bool signalled; // a signal other than a probe reached the stand-in
    bool target_alive_after;
    pid_t target_pid;
    Call calls[kMaxCalls];
};

volatile sig_atomic_t g_armed = 0;
Trace* g_trace = nullptr;

// The value of "pid" as Config reads it, leading zeros dropped: the decimal
// number of the only process a signal may reach, or no number at all.
std::string NamedPid(const std::string& path)
{
    Config config;
    const auto it =
        config.read(ustring(path.c_str())) < 0 ? config.entries.end() : config.entries.find(ustring("pid"));
    std::string text = it == config.entries.end() ? "" : std::string(it->second.c_str(), it->second.length());
    return text.erase(0, text.find_first_not_of('0'));
}

// Runs in the process that calls StopService: starts the stand-in and runs
// the stop sequence with kill and sleep recorded.
[[noreturn]] void RunStop(bool in_namespace)
{
    for (int sig = 1; sig < NSIG; ++sig) {
        signal(sig, SIG_DFL); // not libFuzzer's handlers
    }
    setsid();
    // Reaps the stand-in at once, so that a probe after its death finds no
    // process rather than a zombie, as the launcher (not its parent) would.
    signal(SIGCHLD, SIG_IGN);
    const pid_t standin = fork();
    if (standin < 0) {
        _exit(4); // and never a signal to pid -1
    }
    if (standin == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        for (;;) {
            pause();
        }
    }
    *g_trace = Trace{0, 0, in_namespace, false, false, standin, {}};
    g_armed = 1;
    MacService().StopService();
    g_armed = 0;
    // A stand-in that got a signal may still be on its way out.
    for (int i = 0; g_trace->signalled && i < 2000 && syscall(SYS_kill, standin, 0) == 0; ++i) {
        const timespec ms = {0, 1000000};
        nanosleep(&ms, nullptr);
    }
    g_trace->target_alive_after = syscall(SYS_kill, standin, 0) == 0;
    syscall(SYS_kill, standin, SIGKILL);
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
    const bool ours = pid > 0 && pid == g_trace->target_pid;
    const long r = ours ? syscall(SYS_kill, pid, sig) : -1;
    g_trace->signalled = g_trace->signalled || (r == 0 && sig != 0);
    g_trace->calls[g_trace->count++ % kMaxCalls] = Call{pid, sig, g_trace->sleeps};
    errno = ours ? errno : ESRCH;
    return r == 0 ? 0 : -1;
}

namespace platform {

int UserProcessExecutable(pid_t pid, std::string& exe)
{
    if (!g_armed || pid != g_trace->target_pid) {
        return ESRCH;
    }
    char home[PATH_MAX];
    if (realpath(getenv("HOME"), home) == nullptr) {
        return errno;
    }
    exe = std::string(home) + "/.Calderix/Calderix.app/Contents/MacOS/calderix-drive-ui";
    return 0;
}

} // namespace platform

extern "C" unsigned int sleep(unsigned int seconds)
{
    const timespec wait = {g_armed ? 0 : static_cast<time_t>(seconds), g_armed ? 1000000 : 0};
    if (g_armed) {
        ++g_trace->sleeps;
    }
    nanosleep(&wait, nullptr);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static fuzzsupport::ScratchDir home;
    static const std::string pid_file = home.path() + "/.Calderix/ui.pid";
    static const bool prepared =
        mkdir((home.path() + "/.Calderix").c_str(), 0700) == 0 && setenv("HOME", home.path().c_str(), 1) == 0;
    static void* const shared =
        mmap(nullptr, sizeof(Trace), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    static bool namespaces = true;
    FUZZ_CHECK(prepared && shared != MAP_FAILED, "cannot prepare %s: %s", pid_file.c_str(),
               std::strerror(errno));
    fuzzsupport::WriteFile(pid_file, data, size);
    const std::string named = NamedPid(pid_file);
    const long number = std::strtol(named.c_str(), nullptr, 10);
    if (!namespaces && number > 0 && number <= INT_MAX &&
        (kill(static_cast<pid_t>(number), 0) == 0 || errno == EPERM)) {
        return 0; // would name a real process outside any namespace
    }

    g_trace = new (shared) Trace();
    const pid_t child = fork();
    FUZZ_CHECK(child >= 0, "fork: %s", std::strerror(errno));
    if (child == 0) {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (unshare(CLONE_NEWPID) != 0) {
            RunStop(false);
        }
        const pid_t init = fork(); // the first process of the new namespace
        if (init == 0) {
            prctl(PR_SET_PDEATHSIG, SIGKILL);
            RunStop(true);
        }
        int status = 0;
        while (init > 0 && waitpid(init, &status, 0) < 0 && errno == EINTR) {
        }
        _exit(init > 0 && WIFEXITED(status) ? WEXITSTATUS(status) : 5);
    }
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
    }
    const Trace& trace = *g_trace;
    FUZZ_CHECK(WIFEXITED(status) && WEXITSTATUS(status) == 0 && trace.count <= kMaxCalls,
               "the stop sequence's process ended with status 0x%x after %d kill calls", status, trace.count);
    namespaces = namespaces && trace.in_namespace;
    for (int i = 0; i < trace.count; ++i) {
        const Call& c = trace.calls[i];
        FUZZ_CHECK(c.pid > 0 && std::to_string(c.pid) == named,
                   "StopService sent signal %d to %d, the pid file names \"%s\"", c.sig, c.pid,
                   named.c_str());
        const int want = i == 0 ? SIGTERM : (c.sleeps == 5 ? SIGKILL : 0);
        FUZZ_CHECK(c.sig == want, "kill %d of StopService sent signal %d after %d sleeps, expected %d", i + 1,
                   c.sig, c.sleeps, want);
    }
    FUZZ_CHECK(trace.sleeps <= 5, "StopService slept %d times", trace.sleeps);
    FUZZ_CHECK(named != std::to_string(trace.target_pid) || (trace.count > 0 && !trace.target_alive_after),
               "the stand-in (pid %d) that the pid file names outlived StopService", trace.target_pid);
    return 0;
}
