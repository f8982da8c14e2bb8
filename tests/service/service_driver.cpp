// Runs one operation of the installation service from inside a bundle, the
// way the launcher's worker would, and prints its result.
//
//   service_driver <operation> <log file>
#include <cstdio>
#include <cstring>
#include <memory>

#include <QCoreApplication>

#include "calderix-service.h"
#include "log.h"
#include "mac/mac-service.h"

namespace {

int Run(const char* op)
{
    // Held as the worker holds it: through the base class.
    std::unique_ptr<Service> service(new MacService);
    if (strcmp(op, "decide") == 0) {
        service->PreUpgrade();
        printf("need_upgrade=%d\n", service->IsNeedUpgrade() ? 1 : 0);
    } else if (strcmp(op, "prepare") == 0) {
        printf("result=%d\n", service->PrepareUserEnv());
    } else if (strcmp(op, "stop") == 0) {
        service->StopService();
    } else if (strcmp(op, "post") == 0) {
        service->PostUpgrade();
    } else if (strcmp(op, "sequence") == 0) {
        // The worker's sequence, without the dialog.
        service->PreUpgrade();
        if (service->IsNeedUpgrade()) {
            printf("upgrade=%d\n", service->HandlePackageUpgrade());
        } else {
            printf("upgrade=skipped\n");
        }
        service->RemoveAgedFolders();
        service->PostUpgrade();
    } else {
        fprintf(stderr, "unknown operation '%s'\n", op);
        return 2;
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    if (argc != 3) {
        fprintf(stderr, "usage: %s <operation> <log file>\n", argv[0]);
        return 2;
    }
    const ustring level_file = Service::GetRootCalderixInstallPath() + "/log/launcher.debug";
    if (Logger::Initialize(Logger::TYPE_FILE, argv[2], level_file, 50) != 0) {
        fprintf(stderr, "cannot log to %s\n", argv[2]);
        return 2;
    }
    const int status = Run(argv[1]);
    fflush(stdout);
    Logger::Destroy();
    return status;
}
