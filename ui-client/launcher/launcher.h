// The launcher's controller side: the controller on the main thread, the
// worker that runs the installation service on a thread of its own, and
// the objects that carry work results from that thread to the progress
// dialog.
#pragma once

#include <memory>

#include <QObject>
#include <QString>
#include <QThread>

class ProcessingProgressDialog;
class Service;

// Process-wide relay through which code without access to the controller
// (the archive extractor, deep inside the upgrade) reports progress. It
// only emits; whoever shows the progress connects to its signals, and a
// connection across threads turns each report into a queued copy.
class Notify_Adapter : public QObject {
    Q_OBJECT

public:
    // The single instance, created on first use and destroyed at exit.
    static Notify_Adapter* GetInstance();

    void UpdateProgress(int total, int current);
    void UpdateDialogText(QString text);

signals:
    void sigUpdateProgress(int total, int current);
    void sigUpdateDialogText(QString);

private:
    Notify_Adapter() = default;
};

// The worker's thread: nothing but an event loop, in which the queued
// calls of the worker's slot run.
class HandlerThread : public QThread {
    Q_OBJECT

protected:
    void run() override;
};

// Runs the installation service on its own thread and reports to the
// controller only through its signals, so that it never touches a widget.
class Worker : public QObject {
    Q_OBJECT

public:
    // Drives the platform's own service.
    Worker();
    // Drives service instead, and deletes it with the worker.
    explicit Worker(Service* service);
    ~Worker() override;

    void StartThread();
    void QuitThread();
    // Blocks until the thread has left its event loop; no time limit.
    void JoinThread();

signals:
    void sigServiceDone();
    void sigShowMsg();
    void sigUpdateProgress(int, int);
    void sigSetLabelText(const QString&);

private slots:
    void HandleServicce();

private:
    // The controller connects its start signal to the private slot.
    friend class Launcher;

    // Declared in this order so that the thread goes before the service.
    // Neither can be the worker's child: the thread stays on the main
    // thread while the worker moves to it.
    std::unique_ptr<Service> service;
    std::unique_ptr<HandlerThread> handler_thread;
};

// Owns the worker and the progress dialog, relays the worker's reports to
// the dialog and quits the application once the worker is done.
class Launcher : public QObject {
    Q_OBJECT

public:
    Launcher();
    // Runs service (owned from here on) instead of the platform's own.
    explicit Launcher(Service* service);
    ~Launcher() override;

    // Starts the worker's thread; call once, before Start.
    void Run();
    // Hands the service sequence to the worker's thread.
    void Start();

signals:
    void sigStart();

private slots:
    void LaunchDone();
    void UpdateProgress(int total, int steps);
    void SetLabelText(const QString&);
    void ShowMsgBox();

private:
    void SetUp();

    // Declared in this order so that the worker goes before the dialog. A
    // widget cannot be the child of a plain object, and the worker lives on
    // its own thread, so neither has a parent.
    std::unique_ptr<ProcessingProgressDialog> dialog;
    std::unique_ptr<Worker> worker;
};
