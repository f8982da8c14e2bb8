// MacService: the platform half of the installation service: the upgrade
// decision, stopping and launching the per-user user interface.
#pragma once

#include "calderix-service.h"

namespace platform {
class LaunchServices;
}

class MacService : public Service {
public:
    MacService();
    // Starts the user interface through launch (not owned, must outlive
    // the service) instead of the system's Launch Services.
    explicit MacService(platform::LaunchServices& launch);
    ~MacService() override;

    void StopService() override;
    int HandlePackageUpgrade() override;
    void PostUpgrade() override;
    void PreUpgrade() override;
    bool IsNeedUpgrade() override;

    // Process-wide instance, built on first use.
    static MacService* GetInstace();

    void LoadSourceVerInfo();
    void LoadTargetVerInfo();
    bool PerUserBinPathExist();
    // Opens the user's bundle, which starts its user interface: 0, or -1.
    int LaunchPerUserBin();

private:
    platform::LaunchServices* launch_services;
};
