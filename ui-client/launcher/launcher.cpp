#include "launcher.h"

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoopLocker>
#include <QFont>
#include <QIcon>
#include <QKeyEvent>
#include <QKeySequence>
#include <QPixmap>

#include "liblogger/log.h"
#include "locale/str-table.h"
#include "mac/mac-service.h"

namespace {

// The longest wait for another launcher's installation in the same home:
// stopping a client takes up to five seconds and an extraction seconds to a
// minute on a slow disk, so a holder still busy after this has hung.
const int kInstallTurnSeconds = 180;

const char kDialogStyle[] = " QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } ";
static_assert(sizeof(kDialogStyle) - 1 == 77, "the dialog's style sheet is 77 characters");

// The user cannot dismiss the dialog: it is visible only while the worker
// runs its flow, which must still start the client, and the worker's thread
// must be joined before the Launcher is deleted. Left alone, Escape makes
// QDialog reject (hide) and a close event makes QProgressDialog cancel
// (hide); closing the last window then quits the event loop early, main
// deletes the Launcher under a running thread and the process aborts. So
// this filter, installed by the Launcher on the dialog, swallows both, and
// the event-loop lock it holds keeps a dialog that goes some other way (a
// reject() from elsewhere) from quitting the loop: only LaunchDone ends it.
// The dialog's own handlers stay untouched.
class DismissGuard : public QObject {
public:
    explicit DismissGuard(QObject* parent) : QObject(parent), keepAlive(new QEventLoopLocker) { }
    ~DismissGuard() override { delete keepAlive; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Close) {
            // A close event arrives accepted; only ignoring it stops close().
            event->ignore();
            return true;
        }
        if (event->type() == QEvent::KeyPress) {
            QKeyEvent* key = static_cast<QKeyEvent*>(event);
            if (key->key() == Qt::Key_Escape || key->matches(QKeySequence::Cancel))
                return true;
        }
        return QObject::eventFilter(watched, event);
    }

private:
    QEventLoopLocker* keepAlive;
};

}  // namespace

HandlerThread::HandlerThread() : QThread(nullptr) { }

HandlerThread::~HandlerThread() { }

void HandlerThread::run()
{
    exec();
}

Worker::Worker() : QObject(nullptr), thread(nullptr), service(nullptr)
{
    service = new MacService;
    thread = new HandlerThread;
    moveToThread(thread);
}

Worker::~Worker()
{
    delete thread;
    delete service;
}

void Worker::StartThread()
{
    thread->start(QThread::InheritPriority);
}

void Worker::QuitThread()
{
    thread->quit();
}

void Worker::JoinThread()
{
    thread->wait();
}

void Worker::HandleServicce()
{
    Logger::LogMsg(Logger::LEVEL_DEBUG, "launcher_debug", "[DEBUG] launcher(%d): running\n", __LINE__);
    // From the decision to the start of the client: a launcher of another
    // copy of the bundle in this home waits, then decides on what this one
    // leaves and finds the client installed and running.
    InstallLock turn;
    turn.Acquire(kInstallTurnSeconds);
    service->PreUpgrade();
    if (service->IsNeedUpgrade()) {
        emit sigShowMsg();
        if (service->HandlePackageUpgrade() == 0) {
            emit sigUpdateProgress(100, 100);
            emit sigSetLabelText(StrTable::LoadStr(456));
        } else {
            // The dialog keeps its last value and text; no error is shown.
            Logger::LogMsg(Logger::LEVEL_ERROR, "launcher_debug",
                           "[ERROR] launcher(%d): Failed to upgrade package\n", __LINE__);
        }
    } else {
        Logger::LogMsg(Logger::LEVEL_DEBUG, "launcher_debug", "[DEBUG] launcher(%d): no need to upgrade\n",
                       __LINE__);
    }
    // Whatever installation is in place now gets started.
    service->RemoveAgedFolders();
    service->PostUpgrade();
    turn.Release();
    Logger::LogMsg(Logger::LEVEL_DEBUG, "launcher_debug", "[DEBUG] launcher(%d): done\n", __LINE__);
    emit sigServiceDone();
}

ProcessingProgressDialog::ProcessingProgressDialog() : QProgressDialog(nullptr, Qt::WindowFlags())
{
    QFont font("Arial", -1, -1, false);
    QString iconPath = QString::fromUtf8(Service::GetRootNimbuloResourceInstallPath().c_str_utf8()) +
                       "/images/ico_72_nimbulo.png";
    setWindowTitle(StrTable::LoadStr(443));
    // Through a pixmap, because QIcon(path) of a missing or unreadable file
    // is not null; this way such a file leaves the window without icon.
    setWindowIcon(QIcon(QPixmap(iconPath)));
    setWindowFlags(Qt::WindowTitleHint | Qt::WindowSystemMenuHint);
    setValue(0);
    setRange(0, 100);
    setLabelText(StrTable::LoadStr(457));
    setFont(font);
    setFixedWidth(400);
    setModal(true);
    setWindowModality(Qt::WindowModal);
    setStyleSheet(kDialogStyle);
}

ProcessingProgressDialog::~ProcessingProgressDialog() { }

Launcher::Launcher() : QObject(nullptr), worker(nullptr), dialog(nullptr)
{
    worker = new Worker;
    dialog = new ProcessingProgressDialog;
    dialog->setCancelButton(nullptr);
    dialog->setAutoReset(false);

    // Every connection crosses threads and is therefore queued.
    QObject::connect(this, SIGNAL(sigStart()), worker, SLOT(HandleServicce()), Qt::AutoConnection);
    QObject::connect(worker, SIGNAL(sigShowMsg()), this, SLOT(ShowMsgBox()), Qt::AutoConnection);
    QObject::connect(worker, SIGNAL(sigServiceDone()), this, SLOT(LaunchDone()), Qt::AutoConnection);
    QObject::connect(worker, SIGNAL(sigUpdateProgress(int, int)), this, SLOT(UpdateProgress(int, int)),
                     Qt::AutoConnection);
    QObject::connect(worker, SIGNAL(sigSetLabelText(QString)), this, SLOT(SetLabelText(QString)),
                     Qt::AutoConnection);
    // The first GetInstance() of the process: the adapter is born here, on
    // the user-interface thread.
    QObject::connect(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateProgress(int, int)), this,
                     SLOT(UpdateProgress(int, int)), Qt::AutoConnection);
    QObject::connect(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateDialogText(QString)), this,
                     SLOT(SetLabelText(QString)), Qt::AutoConnection);

    // A child of the Launcher, so it is gone with it.
    dialog->installEventFilter(new DismissGuard(this));
}

Launcher::~Launcher()
{
    delete worker;
    delete dialog;
}

void Launcher::Run()
{
    worker->Thread()->start(QThread::InheritPriority);
}

void Launcher::Start()
{
    emit sigStart();
}

void Launcher::ShowMsgBox()
{
    dialog->show();
}

void Launcher::UpdateProgress(int total, int steps)
{
    dialog->setValue(steps * 100 / total);
}

void Launcher::SetLabelText(const QString& text)
{
    dialog->setLabelText(text);
}

// By the time this runs the worker has returned from HandleServicce, so its
// thread leaves the event loop at once and the wait is short.
void Launcher::LaunchDone()
{
    dialog->setValue(100);
    dialog->hide();
    worker->Thread()->quit();
    worker->Thread()->wait();
    QCoreApplication::quit();
}
