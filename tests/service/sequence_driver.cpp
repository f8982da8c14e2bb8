// The worker's service sequence without the controller and its dialog:
// pre-upgrade, decision, upgrade, aged folder, post-upgrade. Copied into a
// bundle's Contents/MacOS, it finds the package and INFO as the launcher
// does.
//
//   sequence_driver <log file>
#include <cstdio>
#include <memory>

#include <QCoreApplication>

#include "calderix-service.h"
#include "log.h"
#include "mac/mac-service.h"

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 2) {
        fprintf(stderr, "usage: %s <log file>\n", argv[0]);
        return 2;
    }
    const ustring level_file = Service::GetRootCalderixInstallPath() + "/log/launcher.debug";
    if (Logger::Initialize(Logger::TYPE_FILE, argv[1], level_file, 50) != 0) {
        fprintf(stderr, "cannot log to %s\n", argv[1]);
        return 2;
    }
    // Held as the worker holds it: through the base class.
    std::unique_ptr<Service> service(new MacService);
    service->PreUpgrade();
    const int upgraded = service->IsNeedUpgrade() ? service->HandlePackageUpgrade() : 0;
    service->RemoveAgedFolders();
    service->PostUpgrade();
    Logger::Destroy();
    return upgraded == 0 ? 0 : 1;
}
