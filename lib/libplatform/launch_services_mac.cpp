#include "launch_services.h"

#include <QDesktopServices>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace platform {

namespace {

const char kRegistrationTool[] = "/System/Library/Frameworks/CoreServices.framework/Frameworks/"
                                 "LaunchServices.framework/Support/lsregister";

class MacLaunchServices : public LaunchServices {
public:
    // The tool's exit code: 0, or non-zero (QProcess gives -2 for a tool that
    // could not be started and -1 for one that crashed).
    int Unregister(const std::string& bundle) override
    {
        return QProcess::execute(QString::fromUtf8(kRegistrationTool),
                                 QStringList{QStringLiteral("-u"), QString::fromStdString(bundle)});
    }

    // Launch Services starts the bundle, or brings forward the copy that
    // already runs; it tells only whether it accepted the request.
    int Open(const std::string& bundle, const std::string&) override
    {
        return QDesktopServices::openUrl(QUrl::fromLocalFile(QString::fromStdString(bundle))) ? 0 : -1;
    }
};

} // namespace

LaunchServices& SystemLaunchServices()
{
    static MacLaunchServices services;
    return services;
}

} // namespace platform
