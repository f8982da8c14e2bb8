#include "calderix-service.h"

#include <QCoreApplication>
#include <QDir>
#include <QString>

namespace {

ustring FromQString(const QString& s)
{
    return ustring(s.toUtf8().constData());
}

} // namespace

Service::Service() : timeout(0) {}

Service::~Service() = default;

void Service::SetTimeout(int value)
{
    timeout = value;
}

// Until the extractor is wired in there is nothing to extract with; report
// failure so that no caller mistakes an empty bundle for an installed one.
int Service::ExtractPackage()
{
    return -1;
}

void Service::LoadSourceVersion() {}

void Service::LoadTargetVersion() {}

int Service::PrepareUserEnv()
{
    return -1;
}

void Service::RemoveAgedFolders() {}

int Service::FSCopyPath(const ustring&, const ustring&)
{
    return -1;
}

ustring Service::GetUserInstallPath()
{
    return FromQString(QDir::homePath());
}

ustring Service::GetRootCalderixInstallPath()
{
    // The executable lies in <bundle>/Contents/MacOS.
    return FromQString(QDir::cleanPath(QCoreApplication::applicationDirPath() + "/" + "../.."));
}

ustring Service::GetRootCalderixResourceInstallPath()
{
    return GetRootCalderixInstallPath() + "/Contents/Resources";
}

ustring Service::GetUserCalderixInstallPath()
{
    return GetUserInstallPath() + "/" + ".Calderix";
}

ustring Service::GetUserCalderixAppInstallPath()
{
    return GetUserCalderixInstallPath() + "/" + "Calderix.app";
}

ustring Service::GetUserCalderixDataInstallPath()
{
    return GetUserCalderixInstallPath() + "/" + "data";
}
