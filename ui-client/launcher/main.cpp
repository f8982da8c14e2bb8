// The launcher's entry point: prepare the process, set up the log, refuse a
// second instance, install the user's language, then run the event loop
// until the work is done.
#include <clocale>
#include <cstdio>

#include <QDir>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <QTranslator>

#include "KorvaneLocale.h"
#include "calderix-service.h"
#include "log.h"
#include "qtsingleapplication.h"
#include "strtable.h"
#include "texts.h"

namespace {

// The bundle's own plug-ins are the only ones Qt may load, as in a deployed
// application: <bundle>/Contents/MacOS/launcher -> <bundle>/Contents/Frameworks/plugins.
QString PluginFolder(int argc, char** argv)
{
    const QString exe = (argc > 0 && argv[0] != nullptr) ? QString::fromUtf8(argv[0]) : QString();
    return QDir::cleanPath(exe + "/../../Frameworks/plugins");
}

} // namespace

int main(int argc, char** argv)
{
    setlocale(LC_ALL, "");
    qInitResources_texts();

    const QString plugins = PluginFolder(argc, argv);
    QCoreApplication::setLibraryPaths(QStringList(plugins));
    printf("lib path = '%s'\n", plugins.toUtf8().constData());
    fflush(stdout);

    QtSingleApplication app(argc, argv, true);

    const ustring level_file = Service::GetRootCalderixInstallPath() + "/log/launcher.debug";
    const ustring log_dir = Service::GetUserCalderixInstallPath() + "/log";
    // Without a log folder the logger keeps writing to standard error.
    if (QDir().mkpath(QString::fromUtf8(log_dir.c_str()))) {
        Logger::Initialize(Logger::TYPE_FILE, log_dir + "/launcher.log", level_file, 50);
    }

    if (app.isRunning()) {
        Logger::LogMsg(Logger::LEVEL_DEBUG, "launcher_debug", "[DEBUG] main(%d): app has already launched, return\n",
                       __LINE__);
        return 0;
    }

    // Without a catalogue for the language every text stays English.
    QTranslator translator;
    translator.load(":/" + KorvaneLocale::getDefaultLanguage() + ".qm");
    if (!translator.isEmpty()) {
        app.installTranslator(&translator);
    }
    StrTable::InitStrTable();

    // Nothing drives the work yet: the loop ends as soon as it starts.
    QTimer::singleShot(0, &app, &QCoreApplication::quit);
    return app.exec();
}
