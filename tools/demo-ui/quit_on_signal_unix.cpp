// A signal handler may do next to nothing, so it only writes a byte to a
// pipe; the event loop sees the pipe become readable and quits from there.
#include "quit_on_signal.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace {

const int kSignals[] = {SIGTERM, SIGINT, SIGHUP};
int g_pipe[2] = {-1, -1};

void OnSignal(int)
{
    const int saved = errno;
    const char byte = 1;
    // A full pipe already holds a pending quit; nothing is lost.
    ssize_t ignored = write(g_pipe[1], &byte, 1);
    (void)ignored;
    errno = saved;
}

} // namespace

bool QuitOnSignal::Install(QCoreApplication* app, QString* error)
{
    if (pipe2(g_pipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        *error = QStringLiteral("pipe: %1").arg(QString::fromLocal8Bit(std::strerror(errno)));
        return false;
    }
    installed_ = true;
    notifier_ = new QSocketNotifier(g_pipe[0], QSocketNotifier::Read);
    QObject::connect(notifier_, &QSocketNotifier::activated, app, [app]() {
        char buffer[16];
        while (read(g_pipe[0], buffer, sizeof buffer) > 0) {
        }
        app->quit();
    });
    struct sigaction action;
    std::memset(&action, 0, sizeof action);
    action.sa_handler = OnSignal;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (int signal : kSignals) {
        if (sigaction(signal, &action, nullptr) != 0) {
            *error = QStringLiteral("sigaction(%1): %2")
                         .arg(signal)
                         .arg(QString::fromLocal8Bit(std::strerror(errno)));
            return false;
        }
    }
    return true;
}

QuitOnSignal::~QuitOnSignal()
{
    if (!installed_) {
        return;
    }
    for (int signal : kSignals) {
        std::signal(signal, SIG_DFL);
    }
    delete notifier_;
    close(g_pipe[0]);
    close(g_pipe[1]);
    g_pipe[0] = g_pipe[1] = -1;
}
