// The launcher's controller side: the objects that carry work results from
// the worker thread to the progress dialog on the main thread.
#pragma once

#include <QObject>
#include <QString>

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
