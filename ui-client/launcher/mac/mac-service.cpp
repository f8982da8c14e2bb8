#include "mac-service.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>
#include <sys/types.h>
#include <unistd.h>

#include <QByteArray>
#include <QDir>
#include <QString>

#include "bundle_layout.h"
#include "config.h"
#include "file-op.h"
#include "launch_services.h"
#include "log.h"
#include "process_info.h"

#define LOG_SOURCE "mac/mac-service"
#define LOG_COMPONENT log_component
static const ustring log_component("service_debug");

namespace {

// A user interface that outlives SIGTERM is probed this many times, one
// second apart, before it is killed.
const int kStopProbes = 5;

// What a signal to a process came to; the one place where kill's errno
// becomes a result (error keeps it for the log).
enum class SignalResult { Sent, NoProcess, Failed };

SignalResult SendSignal(pid_t pid, int sig, int& error)
{
    if (kill(pid, sig) == 0) {
        return SignalResult::Sent;
    }
    error = errno;
    return error == ESRCH ? SignalResult::NoProcess : SignalResult::Failed;
}

// The process id a pid-file value names: a positive decimal number within
// the range of process ids, read as atol reads it (blanks and a plus sign
// may come first), or 0 for any other text. Signalling 0 or a negative id
// would reach the launcher's own process group or every process of the
// user, so those never come out of here.
pid_t ParsePid(const ustring& text)
{
    const char* digits = text.c_str() + strspn(text.c_str(), " \t\n\v\f\r");
    if (*digits == '+') {
        ++digits;
    }
    if (*digits == '\0' || digits[strspn(digits, "0123456789")] != '\0') {
        return 0;
    }
    errno = 0;
    const long value = strtol(digits, nullptr, 10);
    if (errno == ERANGE || value <= 0 || value > std::numeric_limits<pid_t>::max()) {
        return 0;
    }
    return static_cast<pid_t>(value);
}

enum class Identity { UserInterface, Stranger, Gone };

// Whether pid is this user's user interface. pid 1, the launcher itself and
// its parent never are, whatever they run.
Identity Identify(pid_t pid)
{
    if (pid == 1 || pid == getpid() || pid == getppid()) {
        return Identity::Stranger;
    }
    std::string exe;
    const int r = platform::UserProcessExecutable(pid, exe);
    if (r == ESRCH) {
        return Identity::Gone;
    }
    return r == 0 && Service::IsInUserBundle(exe) ? Identity::UserInterface : Identity::Stranger;
}

} // namespace

MacService::MacService() : MacService(platform::SystemLaunchServices()) {}

MacService::MacService(platform::LaunchServices& launch) : launch_services(&launch)
{
    timeout = 10000;
    app_path = GetUserCalderixAppInstallPath();
}

MacService::~MacService() = default;

MacService* MacService::GetInstace()
{
    static MacService serv;
    return &serv;
}

void MacService::LoadSourceVerInfo()
{
    LoadSourceVersion();
}

void MacService::LoadTargetVerInfo()
{
    LoadTargetVersion();
}

bool MacService::PerUserBinPathExist()
{
    const ustring bin = app_path + "/" + layout::kUiEntry;
    return access(bin.c_str(), F_OK) == 0;
}

void MacService::PreUpgrade()
{
    LoadTargetVersion();
    LoadSourceVersion();
    LOG_MSG(DEBUG, "Source version: ('%s', '%s')\n", source_version.build_version.c_str(),
            source_version.icon_overlay_version.c_str());
    LOG_MSG(DEBUG, "Target version: ('%s', '%s')\n", target_version.build_version.c_str(),
            target_version.icon_overlay_version.c_str());
}

// True when the package's build is newer than the installed one (an empty
// build counts as 0) or the installed copy has no user-interface executable.
// A build number beyond int is clamped, with a warning: no build has one.
bool MacService::IsNeedUpgrade()
{
    for (const ustring* build : {&source_version.build_version, &target_version.build_version}) {
        if (!layout::IsBuildNumberInRange(build->c_str())) {
            LOG_MSG(WARNING, "build number '%s' is out of range\n", build->c_str());
        }
    }
    const int source = layout::BuildNumber(source_version.build_version.c_str());
    const int target = layout::BuildNumber(target_version.build_version.c_str());
    LOG_MSG(DEBUG, "source version = %d, target version = %d\n", source, target);
    return target > source || !PerUserBinPathExist();
}

// Ends the user interface named by "ui.pid": SIGTERM, then up to five
// probes a second apart, then SIGKILL. Sends nothing when the file is
// missing, unreadable or names no valid process id, and nothing to a
// process that is not this user's user interface (whose executable lies in
// the user's bundle or a backup of it): a stale pid file may name any
// process by now. Returns as soon as the process is gone, and at once when
// it may not be signalled.
void MacService::StopService()
{
    const ustring pid_file = GetUserCalderixInstallPath() + "/ui.pid";
    if (!IsFileExist(pid_file, false)) {
        LOG_MSG(DEBUG, "pid file '%s' does not exist, no need to terminate\n", pid_file.c_str());
        return;
    }
    Config config;
    if (config.read(pid_file) < 0) {
        LOG_MSG(NOTE, "Failed to read pid file '%s', not exist ?\n", pid_file.c_str());
        return;
    }
    const auto entry = config.entries.find(ustring("pid"));
    const pid_t pid = entry == config.entries.end() ? 0 : ParsePid(entry->second);
    if (pid <= 0) {
        LOG_MSG(NOTE, "pid file '%s' holds no valid pid, nothing to terminate\n", pid_file.c_str());
        return;
    }
    switch (Identify(pid)) {
    case Identity::Gone:
        return;
    case Identity::Stranger:
        LOG_MSG(NOTE, "pid %d is not the user interface, nothing to terminate\n", static_cast<int>(pid));
        return;
    case Identity::UserInterface:
        break;
    }

    int error = 0;
    switch (SendSignal(pid, SIGTERM, error)) {
    case SignalResult::NoProcess:
        return;
    case SignalResult::Failed:
        LOG_MSG(ERROR, "kill: %s (%d)\n", strerror(error), error);
        // A process we may not signal will not take SIGKILL either.
        if (error == EPERM) {
            return;
        }
        break;
    case SignalResult::Sent:
        break;
    }
    for (int probe = 0; probe < kStopProbes; ++probe) {
        if (SendSignal(pid, 0, error) == SignalResult::NoProcess) {
            return;
        }
        sleep(1);
    }
    kill(pid, SIGKILL);
}

int MacService::HandlePackageUpgrade()
{
    if (PerUserBinPathExist()) {
        LOG_MSG(DEBUG, "local appdata exist\n");
        StopService();
    }
    return PrepareUserEnv();
}

// Has Launch Services forget the user's bundle, then open it. A failed
// unregistration is logged and does not stop the launch. Returns 0 when
// the bundle was opened, -1 when not. Where the platform lets us choose,
// the user interface's output goes to "ui.log" beside the launcher's log,
// so that a user interface that cannot start leaves its reason there.
int MacService::LaunchPerUserBin()
{
    const QByteArray bundle = (QDir::homePath() + "/.Calderix/Calderix.app").toUtf8();
    const std::string path(bundle.constData(), static_cast<size_t>(bundle.size()));
    if (launch_services->Unregister(path) != 0) {
        LOG_MSG(ERROR, "Cannot unregister bundle, %s", bundle.constData());
    }
    const ustring output = GetUserCalderixInstallPath() + "/log/ui.log";
    return launch_services->Open(path, output.c_str()) == 0 ? 0 : -1;
}

void MacService::PostUpgrade()
{
    if (LaunchPerUserBin() < 0) {
        LOG_MSG(ERROR, "Failed to launch Calderix UI\n");
    }
}
