// The pid file of the stop sequence: the bytes become ~/.Calderix/ui.pid in
// a scratch home and the real MacService::StopService runs on them. While it
// runs, kill and sleep are replaced and no signal leaves this program: every
// process is taken for the user interface, which outlives SIGTERM for as
// many probes as the input's length modulo 8 says. The calls must be
// exactly SIGTERM, then probes a second apart and SIGKILL only after the
// fifth, all to the process whose decimal number the file's "pid" holds.
#include <csignal>
#include <ctime>
#include <sys/syscall.h>

#include "config.h"
#include "fuzz_support.h"
#include "mac-service.h"
#include "process_info.h"

namespace {

thread_local bool g_armed = false; // libFuzzer's own threads sleep too
int g_probes_alive = 0;            // probes that still find the process after SIGTERM
std::string g_calls;               // "<signal>:<pid> " for each kill, "s " for each sleep

// The process the file names: a value of blanks, an optional '+' and decimal
// digits, not that of init, this program or its parent; 0 for none.
long NamedPid(const std::string& path)
{
    Config config;
    std::string text = config.read(ustring(path.c_str())) < 0 ? "" : config.entries[ustring("pid")].c_str();
    text.erase(0, text.find_first_not_of(" \t\n\v\f\r"));
    text.erase(0, text[0] == '+');
    errno = 0;
    const long pid = std::strtol(text.c_str(), nullptr, 10);
    const bool plain =
        !text.empty() && text.find_first_not_of("0123456789") == std::string::npos && errno == 0;
    return plain && pid > 1 && pid <= INT_MAX && pid != getpid() && pid != getppid() ? pid : 0;
}

} // namespace

extern "C" int kill(pid_t pid, int sig)
{
    if (!g_armed) {
        return static_cast<int>(syscall(SYS_kill, pid, sig));
    }
    g_calls += std::to_string(sig) + ":" + std::to_string(pid) + " ";
    errno = ESRCH;
    return sig == 0 && g_probes_alive-- == 0 ? -1 : 0;
}

extern "C" unsigned int sleep(unsigned int seconds)
{
    const timespec wait = {g_armed ? 0 : static_cast<time_t>(seconds), 0};
    g_calls += g_armed ? "s " : "";
    return nanosleep(&wait, nullptr) == 0 ? 0 : seconds;
}

namespace platform {

int UserProcessExecutable(pid_t, std::string& exe)
{
    exe = std::string(getenv("HOME")) + "/.Calderix/Calderix.app/Contents/MacOS/calderix-drive-ui";
    return g_armed ? 0 : ESRCH;
}

} // namespace platform

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const std::string pid_file = fuzzsupport::Scratch() / ".Calderix/ui.pid";
    static char home[PATH_MAX];
    static const bool prepared =
        realpath(fuzzsupport::Scratch().path().c_str(), home) != nullptr && setenv("HOME", home, 1) == 0;
    FUZZ_CHECK(prepared, "cannot prepare %s", pid_file.c_str());
    fuzzsupport::WriteFile(pid_file, std::string(reinterpret_cast<const char*>(data), size));
    const long pid = NamedPid(pid_file);
    const int alive = g_probes_alive = static_cast<int>(size % 8);
    const std::string p = ":" + std::to_string(pid) + " ";
    std::string want = pid == 0 ? "" : "15" + p;
    for (int i = 0; pid != 0 && i <= std::min(alive, 5); ++i) {
        want += i == 5 ? "9" + p : i < alive ? "0" + p + "s " : "0" + p;
    }
    g_calls.clear();
    g_armed = true;
    MacService().StopService();
    g_armed = false;
    FUZZ_CHECK(g_calls == want, "StopService made the calls \"%s\", expected \"%s\"", g_calls.c_str(),
               want.c_str());
    return 0;
}
