// Prints every path the service composes, one per line, so that tests can
// run it from inside a fake bundle with a chosen HOME.
#include <cstdio>

#include <QCoreApplication>

#include "calderix-service.h"

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    printf("home=%s\n", Service::GetUserInstallPath().c_str());
    printf("root=%s\n", Service::GetRootCalderixInstallPath().c_str());
    printf("resources=%s\n", Service::GetRootCalderixResourceInstallPath().c_str());
    printf("install=%s\n", Service::GetUserCalderixInstallPath().c_str());
    printf("app=%s\n", Service::GetUserCalderixAppInstallPath().c_str());
    printf("data=%s\n", Service::GetUserCalderixDataInstallPath().c_str());
    return 0;
}
