// MacService: the platform half of the installation service: the upgrade
// decision, stopping and launching the per-user user interface.
#pragma once

#include "calderix-service.h"

class MacService : public Service {
public:
    MacService();
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
};
