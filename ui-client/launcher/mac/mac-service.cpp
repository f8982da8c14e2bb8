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

#include "config.h"
#include "file-op.h"
#include "launch_services.h"
#include "log.h"

static const ustring log_component("service_debug");

namespace {

// A user interface that outlives SIGTERM is probed this many times, one
// second apart, before it is killed.
const int kStopProbes = 5;

int BuildNumber(const ustring& build)
{
    return build.empty() ? 0 : atoi(build.c_str());
}

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
// the range of process ids, or 0 for any other text. Signalling 0 or a
// negative id would reach the launcher's own process group or every process
// of the user, so those never come out of here.
pid_t ParsePid(const ustring& text)
{
    const char* digits = text.c_str();
    if (text.empty() || strspn(digits, "0123456789") != text.length()) {
        return 0;
    }
    errno = 0;
    const long value = strtol(digits, nullptr, 10);
    if (errno == ERANGE || value <= 0 || value > std::numeric_limits<pid_t>::max()) {
        return 0;
    }
    return static_cast<pid_t>(value);
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
    const ustring bin = app_path + "/" + "Contents/MacOS" + "/" + "calderix-drive-ui";
    return access(bin.c_str(), F_OK) == 0;
}

void MacService::PreUpgrade()
{
    LoadTargetVersion();
    LoadSourceVersion();
    Logger::LogMsg(Logger::LEVEL_DEBUG, log_component,
                   "[DEBUG] mac/mac-service(%d): Source version: ('%s', '%s')\n", __LINE__,
                   source_version.build_version.c_str(), source_version.icon_overlay_version.c_str());
    Logger::LogMsg(Logger::LEVEL_DEBUG, log_component,
                   "[DEBUG] mac/mac-service(%d): Target version: ('%s', '%s')\n", __LINE__,
                   target_version.build_version.c_str(), target_version.icon_overlay_version.c_str());
}

// True when the package's build is newer than the installed one (an empty
// build counts as 0) or the installed copy has no user-interface executable.
bool MacService::IsNeedUpgrade()
{
    const int source = BuildNumber(source_version.build_version);
    const int target = BuildNumber(target_version.build_version);
    Logger::LogMsg(Logger::LEVEL_DEBUG, log_component,
                   "[DEBUG] mac/mac-service(%d): source version = %d, target version = %d\n", __LINE__,
                   source, target);
    return target > source || !PerUserBinPathExist();
}

// Ends the user interface named by "ui.pid": SIGTERM, then up to five
// probes a second apart, then SIGKILL. Sends nothing when the file is
// missing, unreadable or names no valid process id; returns as soon as the
// process is gone.
void MacService::StopService()
{
    const ustring pid_file = GetUserCalderixInstallPath() + "/ui.pid";
    if (!IsFileExist(pid_file, false)) {
        Logger::LogMsg(Logger::LEVEL_DEBUG, log_component,
                       "[DEBUG] mac/mac-service(%d): pid file '%s' does not exist, no need to terminate\n",
                       __LINE__, pid_file.c_str());
        return;
    }
    Config config;
    if (config.read(pid_file) < 0) {
        Logger::LogMsg(Logger::LEVEL_NOTE, log_component,
                       "[NOTE] mac/mac-service(%d): Failed to read pid file '%s', not exist ?\n", __LINE__,
                       pid_file.c_str());
        return;
    }
    const auto entry = config.entries.find(ustring("pid"));
    const pid_t pid = entry == config.entries.end() ? 0 : ParsePid(entry->second);
    if (pid <= 0) {
        Logger::LogMsg(Logger::LEVEL_NOTE, log_component,
                       "[NOTE] mac/mac-service(%d): pid file '%s' holds no valid pid, nothing to terminate\n",
                       __LINE__, pid_file.c_str());
        return;
    }

    int error = 0;
    switch (SendSignal(pid, SIGTERM, error)) {
    case SignalResult::NoProcess:
        return;
    case SignalResult::Failed:
        Logger::LogMsg(Logger::LEVEL_ERROR, log_component, "[ERROR] mac/mac-service(%d): kill: %s (%d)\n",
                       __LINE__, strerror(error), error);
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
        Logger::LogMsg(Logger::LEVEL_DEBUG, log_component,
                       "[DEBUG] mac/mac-service(%d): local appdata exist\n", __LINE__);
        StopService();
    }
    return PrepareUserEnv();
}

// Has Launch Services forget the user's bundle, then open it. A failed
// unregistration is logged and does not stop the launch. Returns 0 when
// the bundle was opened, -1 when not.
int MacService::LaunchPerUserBin()
{
    const QByteArray bundle = (QDir::homePath() + "/.Calderix/Calderix.app").toUtf8();
    const std::string path(bundle.constData(), static_cast<size_t>(bundle.size()));
    if (launch_services->Unregister(path) != 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, log_component,
                       "[ERROR] mac/mac-service(%d): Cannot unregister bundle, %s", __LINE__,
                       bundle.constData());
    }
    return launch_services->Open(path) == 0 ? 0 : -1;
}

void MacService::PostUpgrade()
{
    if (LaunchPerUserBin() < 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, log_component,
                       "[ERROR] mac/mac-service(%d): Failed to launch Calderix UI\n", __LINE__);
    }
}
