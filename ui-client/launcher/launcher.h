// The launcher's user-interface side and its worker thread.
#ifndef NIMBULO_LAUNCHER_H
#define NIMBULO_LAUNCHER_H

#include <QObject>
#include <QProgressDialog>
#include <QString>
#include <QThread>

// The Launcher forwards the adapter's signals to the dialog.
#include "notify-adapter.h"

class Service;

// The thread that hosts the Worker: it only runs an event loop, so that
// queued signals reach the Worker.
class HandlerThread : public QThread {
    Q_OBJECT
public:
    HandlerThread();
    ~HandlerThread() override;

protected:
    void run() override;
};

// Runs the whole upgrade flow on its own thread.
class Worker : public QObject {
    Q_OBJECT
public:
    Worker();
    ~Worker() override;

    void StartThread();
    void QuitThread();
    void JoinThread();
    HandlerThread* Thread() const { return thread; }

signals:
    void sigServiceDone();
    void sigShowMsg();
    void sigUpdateProgress(int, int);
    void sigSetLabelText(const QString&);

private slots:
    void HandleServicce();

private:
    HandlerThread* thread;
    Service* service;
};

// The one window: product name as title, a text line and a percentage bar.
class ProcessingProgressDialog : public QProgressDialog {
    Q_OBJECT
public:
    ProcessingProgressDialog();
    ~ProcessingProgressDialog() override;
};

// Lives on the user-interface thread; owns the Worker and the dialog.
class Launcher : public QObject {
    Q_OBJECT
public:
    Launcher();
    ~Launcher() override;

    void Run();
    void Start();

signals:
    void sigStart();

private slots:
    void LaunchDone();
    void UpdateProgress(int total, int steps);
    void SetLabelText(const QString& text);
    void ShowMsgBox();

private:
    // Tests reach the worker's signals and the dialog through this.
    friend class LauncherTestPeer;

    Worker* worker;
    ProcessingProgressDialog* dialog;
};

#endif
