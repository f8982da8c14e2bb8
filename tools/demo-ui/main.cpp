// calderix-drive-ui (demo): stands in for the client's user interface in
// the package, so that installing, starting and stopping it can be tried
// end to end. It shows which build runs and keeps ~/.Calderix/ui.pid while
// it does.
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QSettings>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include <cstdio>

#include "pid_file.h"
#include "quit_on_signal.h"

namespace {

enum ExitCode { kOk = 0, kFailed = 1, kUsageError = 2 };

int Fail(const QString& message, int code = kFailed)
{
    std::fprintf(stderr, "calderix-drive-ui: %s\n", qPrintable(message));
    return code;
}

// build_version of the bundle this executable runs from ("unknown" without one).
QString BundleBuild()
{
    const QString info = QCoreApplication::applicationDirPath() + "/../Resources/INFO";
    QSettings settings(info, QSettings::IniFormat);
    const QString build = settings.value("Version/build_version").toString();
    return build.isEmpty() ? QStringLiteral("unknown") : build;
}

} // namespace

int main(int argc, char** argv)
{
    int exit_after_ms = -1;
    if (qEnvironmentVariableIsSet("CALDERIX_DEMO_UI_EXIT_AFTER_MS")) {
        const QString text = qEnvironmentVariable("CALDERIX_DEMO_UI_EXIT_AFTER_MS");
        bool ok = false;
        exit_after_ms = text.toInt(&ok);
        if (!ok || exit_after_ms < 0) {
            return Fail(QStringLiteral("CALDERIX_DEMO_UI_EXIT_AFTER_MS is not a number of milliseconds: '%1'")
                            .arg(text),
                        kUsageError);
        }
    }

    QApplication app(argc, argv);

    // Handlers first: a stop request that arrives as soon as the pid file
    // is visible must already end in a clean quit.
    QuitOnSignal quit_on_signal;
    QString error;
    if (!quit_on_signal.Install(&app, &error)) {
        return Fail(error);
    }
    PidFile pid_file(QDir::homePath() + "/.Calderix/ui.pid");
    if (!pid_file.Write(&error)) {
        return Fail(error);
    }

    const QString text = QStringLiteral("Calderix Drive build %1 is running").arg(BundleBuild());
    QWidget window;
    window.setWindowTitle(QStringLiteral("Calderix Drive"));
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(new QLabel(text, &window));
    window.show();
    std::printf("%s\n", qPrintable(text));
    std::fflush(stdout);

    if (exit_after_ms >= 0) {
        QTimer::singleShot(exit_after_ms, &app, &QCoreApplication::quit);
    }
    const int result = app.exec();
    if (!pid_file.Remove(&error)) {
        return Fail(error);
    }
    return result;
}
