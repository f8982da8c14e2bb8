// Runs one operation of the installation service from inside a bundle, the
// way the launcher's worker would, and prints its result; the tests copy it
// into a fake launcher bundle and run it with a fake HOME.
//
//   service_driver <operation> <log file>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <memory>

#include <QCoreApplication>

#include "calderix-service.h"
#include "log.h"
#include "mac/mac-service.h"

namespace {

// Something else takes the bundle's place right after the backup, so that
// the bundle folder cannot be created for the extraction.
class BlockedBundleService : public MacService {
public:
    int ExtractPackage() override
    {
        FILE* blocker = fopen(GetUserCalderixAppInstallPath().c_str(), "w");
        if (blocker == nullptr || fclose(blocker) != 0) {
            fprintf(stderr, "cannot place the blocking file: %s\n", strerror(errno));
            return -2;
        }
        return MacService::ExtractPackage();
    }
};

// The worker's sequence, without the dialog.
void RunSequence(Service& service)
{
    service.PreUpgrade();
    if (service.IsNeedUpgrade()) {
        printf("upgrade=%d\n", service.HandlePackageUpgrade());
    } else {
        printf("upgrade=skipped\n");
    }
    service.RemoveAgedFolders();
    service.PostUpgrade();
}

int Run(const char* op)
{
    if (strcmp(op, "prepare-blocked") == 0) {
        BlockedBundleService service;
        printf("result=%d\n", service.PrepareUserEnv());
        return 0;
    }
    // Held as the worker holds it: through the base class.
    std::unique_ptr<Service> owned(new MacService);
    MacService& service = static_cast<MacService&>(*owned);
    if (strcmp(op, "versions") == 0) {
        service.PreUpgrade();
    } else if (strcmp(op, "decide") == 0) {
        service.PreUpgrade();
        printf("need_upgrade=%d\n", service.IsNeedUpgrade() ? 1 : 0);
    } else if (strcmp(op, "prepare") == 0) {
        printf("result=%d\n", service.PrepareUserEnv());
    } else if (strcmp(op, "upgrade") == 0) {
        printf("result=%d\n", service.HandlePackageUpgrade());
    } else if (strcmp(op, "stop") == 0) {
        service.StopService();
    } else if (strcmp(op, "launch") == 0) {
        printf("result=%d\n", service.LaunchPerUserBin());
    } else if (strcmp(op, "post") == 0) {
        service.PostUpgrade();
    } else if (strcmp(op, "aged") == 0) {
        service.RemoveAgedFolders();
    } else if (strcmp(op, "sequence") == 0) {
        RunSequence(*owned);
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
