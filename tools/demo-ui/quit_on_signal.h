// Turns SIGTERM, SIGINT and SIGHUP into a clean quit of the event loop, so
// that the code after exec() (removing the pid file) runs on every stop.
#pragma once

#include <QString>

class QCoreApplication;
class QSocketNotifier;

class QuitOnSignal {
public:
    QuitOnSignal() = default;
    ~QuitOnSignal();
    QuitOnSignal(const QuitOnSignal&) = delete;
    QuitOnSignal& operator=(const QuitOnSignal&) = delete;

    // Installs the handlers; only one instance may be installed at a time.
    // False with *error set when the pipe or a handler cannot be set up.
    bool Install(QCoreApplication* app, QString* error);

private:
    QSocketNotifier* notifier_ = nullptr;
    bool installed_ = false;
};
