#include "mac-service.h"

#include <cstdlib>
#include <unistd.h>

#include "log.h"

namespace {

const ustring& Component()
{
    static const ustring component("service_debug");
    return component;
}

int BuildNumber(const ustring& build)
{
    return build.empty() ? 0 : atoi(build.c_str());
}

} // namespace

MacService::MacService()
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
    Logger::LogMsg(Logger::LEVEL_DEBUG, Component(), "[DEBUG] mac/mac-service(%d): Source version: ('%s', '%s')\n",
                   __LINE__, source_version.build_version.c_str(), source_version.icon_overlay_version.c_str());
    Logger::LogMsg(Logger::LEVEL_DEBUG, Component(), "[DEBUG] mac/mac-service(%d): Target version: ('%s', '%s')\n",
                   __LINE__, target_version.build_version.c_str(), target_version.icon_overlay_version.c_str());
}

bool MacService::IsNeedUpgrade()
{
    const int source = BuildNumber(source_version.build_version);
    const int target = BuildNumber(target_version.build_version);
    Logger::LogMsg(Logger::LEVEL_DEBUG, Component(),
                   "[DEBUG] mac/mac-service(%d): source version = %d, target version = %d\n", __LINE__, source,
                   target);
    return target > source || !PerUserBinPathExist();
}

// Stopping the user interface arrives with the pid-file handling.
void MacService::StopService() {}

int MacService::HandlePackageUpgrade()
{
    if (PerUserBinPathExist()) {
        Logger::LogMsg(Logger::LEVEL_DEBUG, Component(), "[DEBUG] mac/mac-service(%d): local appdata exist\n",
                       __LINE__);
        StopService();
    }
    return PrepareUserEnv();
}

// Opening the bundle arrives with the platform's launch layer; until then
// nothing is started and the caller is told so.
int MacService::LaunchPerUserBin()
{
    return -1;
}

void MacService::PostUpgrade()
{
    if (LaunchPerUserBin() < 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, Component(), "[ERROR] mac/mac-service(%d): Failed to launch Calderix UI\n",
                       __LINE__);
    }
}
