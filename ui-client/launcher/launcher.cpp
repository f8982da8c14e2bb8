#include "launcher.h"

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
