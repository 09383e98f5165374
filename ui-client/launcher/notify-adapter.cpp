#include "notify-adapter.h"

// The adapter takes the thread affinity of its first caller: the Launcher's
// constructor on the user-interface thread. The static's initialisation is
// guarded by the compiler, so concurrent first calls build it once.
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
