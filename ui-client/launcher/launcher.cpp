#include "launcher.h"

#include <cstdint>

#include <QCoreApplication>

#include "log.h"
#include "mac/mac-service.h"
#include "progress-dialog.h"
#include "strtable.h"
#include "user_service_lock.h"

#define LOG_SOURCE "launcher"
#define LOG_COMPONENT log_component
static const ustring log_component("launcher_debug");

// A function-local static: its construction is thread-safe, and it has no
// parent, so it outlives every controller and goes away at process exit.
Notify_Adapter* Notify_Adapter::GetInstance()
{
    static Notify_Adapter instance;
    return &instance;
}

void Notify_Adapter::UpdateProgress(int total, int current)
{
    emit sigUpdateProgress(total, current);
}

void Notify_Adapter::UpdateDialogText(QString text)
{
    emit sigUpdateDialogText(text);
}

void HandlerThread::run()
{
    exec();
}

Worker::Worker() : Worker(new MacService()) {}

// The service exists before the thread, and the worker moves to the thread
// last, so that its slot runs there once the thread is started.
Worker::Worker(Service* owned_service)
    : QObject(nullptr), service(owned_service), handler_thread(std::make_unique<HandlerThread>())
{
    moveToThread(handler_thread.get());
}

// Deleting a running QThread aborts the process, so a worker whose thread
// was never joined (a controller dropped before its run ended) stops it
// first.
Worker::~Worker()
{
    if (handler_thread->isRunning()) {
        QuitThread();
        JoinThread();
    }
}

void Worker::StartThread()
{
    handler_thread->start(QThread::InheritPriority);
}

void Worker::QuitThread()
{
    handler_thread->quit();
}

void Worker::JoinThread()
{
    handler_thread->wait();
}

// One whole run on the worker thread: decide, upgrade when needed, then in
// every case tidy up, launch the user interface and report the end. A
// failed upgrade is only logged: the user still gets the interface of
// whatever copy is left.
void Worker::HandleServicce()
{
    LOG_MSG(DEBUG, "running\n");
    // From the decision to the start of the user interface, one run per
    // user: a launcher of another bundle waits here, and then finds the
    // copy current and the interface running.
    UserServiceLock lock;
    if (!lock.acquire()) {
        LOG_MSG(WARNING, "no private folder for the service lock, running unguarded\n");
    }
    service->PreUpgrade();
    if (service->IsNeedUpgrade()) {
        emit sigShowMsg();
        if (service->HandlePackageUpgrade() == 0) {
            emit sigUpdateProgress(100, 100);
            emit sigSetLabelText(StrTable::LoadStr(StrTable::kStrReady));
        } else {
            LOG_MSG(ERROR, "Failed to upgrade package\n");
        }
    } else {
        LOG_MSG(DEBUG, "no need to upgrade\n");
    }
    service->RemoveAgedFolders();
    service->PostUpgrade();
    lock.release();
    LOG_MSG(DEBUG, "done\n");
    emit sigServiceDone();
}

Launcher::Launcher() : QObject(nullptr), worker(std::make_unique<Worker>())
{
    SetUp();
}

Launcher::Launcher(Service* service) : QObject(nullptr), worker(std::make_unique<Worker>(service))
{
    SetUp();
}

// The dialog and the connections, after the worker exists. The worker
// lives on another thread, so every connection is delivered queued: the
// slots run here, on the main thread, with copies of the arguments.
void Launcher::SetUp()
{
    dialog = std::make_unique<ProcessingProgressDialog>();
    // No way to cut a run short, and reaching 100 must not hide the dialog
    // before LaunchDone does.
    dialog->setCancelButton(nullptr);
    dialog->setAutoReset(false);

    const Worker* w = worker.get();
    connect(this, &Launcher::sigStart, w, &Worker::HandleServicce);
    connect(w, &Worker::sigShowMsg, this, &Launcher::ShowMsgBox);
    connect(w, &Worker::sigServiceDone, this, &Launcher::LaunchDone);
    connect(w, &Worker::sigUpdateProgress, this, &Launcher::UpdateProgress);
    connect(w, &Worker::sigSetLabelText, this, &Launcher::SetLabelText);
    const Notify_Adapter* relay = Notify_Adapter::GetInstance();
    connect(relay, &Notify_Adapter::sigUpdateProgress, this, &Launcher::UpdateProgress);
    connect(relay, &Notify_Adapter::sigUpdateDialogText, this, &Launcher::SetLabelText);
}

Launcher::~Launcher() = default;

void Launcher::Run()
{
    worker->StartThread();
}

void Launcher::Start()
{
    emit sigStart();
}

// Leaves the dialog full and hidden, the worker thread joined and the
// application's event loop ending with 0.
void Launcher::LaunchDone()
{
    dialog->setValue(100);
    dialog->hide();
    worker->QuitThread();
    worker->JoinThread();
    QCoreApplication::quit();
}

// The percentage done, truncated. Nothing in the launcher reports a total
// below 1; such a report is ignored rather than divided by. The product is
// formed in 64 bits so that a huge step count cannot overflow, and a
// percentage outside the bar's range is dropped as the bar would drop it.
void Launcher::UpdateProgress(int total, int steps)
{
    if (total <= 0) {
        return;
    }
    const int64_t value = static_cast<int64_t>(steps) * 100 / total;
    if (value < 0 || value > 100) {
        return;
    }
    dialog->setValue(static_cast<int>(value));
}

void Launcher::SetLabelText(const QString& text)
{
    dialog->setLabelText(text);
}

void Launcher::ShowMsgBox()
{
    dialog->show();
}
