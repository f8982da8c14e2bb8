// The launcher's entry point: prepare the process, set up the log, refuse a
// second instance, install the user's language, then run the event loop
// until the controller has finished the work.
#include <clocale>
#include <cstdio>

#include <QDir>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include "KorvaneLocale.h"
#include "bundle_layout.h"
#include "calderix-service.h"
#include "launcher.h"
#include "log.h"
#include "qtsingleapplication.h"
#include "strtable.h"
#include "texts.h"
#include "user_home.h"

#define LOG_SOURCE "main"
#define LOG_COMPONENT ustring("launcher_debug")

namespace {

// The bundle's own plug-ins are the only ones Qt may load, as in a deployed
// application: <bundle>/Contents/MacOS/launcher -> <bundle>/Contents/Frameworks/plugins.
QString PluginFolder(int argc, char** argv)
{
    const QString exe = (argc > 0 && argv[0] != nullptr) ? QString::fromUtf8(argv[0]) : QString();
    return QDir::cleanPath(exe + "/../../../" + layout::kPluginsFolder);
}

} // namespace

int main(int argc, char** argv)
{
    // Every path of the user's installation hangs off HOME: unset, it would
    // install below "/", relative, below wherever the launcher was started.
    // Nothing is logged yet; the failure leaves HOME as it was.
    platform::EnsureHomeVariable();
    setlocale(LC_ALL, "");
    qInitResources_texts();

    const QString plugins = PluginFolder(argc, argv);
    QCoreApplication::setLibraryPaths(QStringList(plugins));
    printf("lib path = '%s'\n", plugins.toUtf8().constData());
    fflush(stdout);

    QtSingleApplication app(argc, argv, true);

    const ustring level_file = Service::GetRootCalderixInstallPath() + "/" + layout::kLevelFileEntry;
    const ustring log_dir = Service::GetUserCalderixInstallPath() + "/log";
    // Without a log folder the logger keeps writing to standard error.
    if (QDir().mkpath(QString::fromUtf8(log_dir.c_str()))) {
        Logger::Initialize(Logger::TYPE_FILE, log_dir + "/launcher.log", level_file,
                           Logger::kDefaultRotateCount);
    }

    if (app.isRunning()) {
        LOG_MSG(DEBUG, "app has already launched, return\n");
        return 0;
    }

    // Without a catalogue for the language every text stays English.
    QTranslator translator;
    translator.load(":/" + KorvaneLocale::getDefaultLanguage() + ".qm");
    if (!translator.isEmpty()) {
        app.installTranslator(&translator);
    }
    StrTable::InitStrTable();

    // The start signal is queued to the worker's thread, which Run has
    // already started, so it waits there until the thread picks it up; the
    // loop ends when the controller quits the application. The controller
    // has joined its thread by then; it goes when main returns, taking the
    // worker, its service and the dialog with it, and before the translator
    // and the application object, which were made before it.
    Launcher launcher;
    launcher.Run();
    launcher.Start();
    return app.exec();
}
