#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <filesystem>
#include <functional>
#include <thread>
#include <vector>

#include <QApplication>
#include <QCloseEvent>
#include <QImage>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QThread>
#include <QTimer>

#include "launcher.h"
#include "nimbulo-service.h"
#include "str-table.h"

namespace fs = std::filesystem;

// Declared a friend by Launcher.
class LauncherTestPeer {
public:
    static Worker* WorkerOf(Launcher* launcher) { return launcher->worker; }
    static ProcessingProgressDialog* DialogOf(Launcher* launcher) { return launcher->dialog; }
};

namespace {

const char kStyle[] = " QProgressDialog { background-color: WhiteSmoke; \n  vertical-align: middle } ";

// Counts the dialog's Show events without touching its handlers.
class ShowCounter : public QObject {
public:
    int shows = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show)
            shows++;
        return QObject::eventFilter(watched, event);
    }
};

TEST(ProgressDialog, PropertiesAfterLauncherConstruction)
{
    Launcher launcher;
    ProcessingProgressDialog* dialog = LauncherTestPeer::DialogOf(&launcher);
    ASSERT_NE(nullptr, dialog);

    EXPECT_TRUE(dialog->isWindow());
    // Exactly title and system menu: no close, minimise, maximise or help.
    EXPECT_EQ(0x3000u, static_cast<unsigned>(dialog->windowFlags() & ~Qt::WindowType_Mask));
    EXPECT_EQ(400, dialog->minimumWidth());
    EXPECT_EQ(400, dialog->maximumWidth());
    EXPECT_EQ(Qt::WindowModal, dialog->windowModality());
    EXPECT_EQ(StrTable::LoadStr(443), dialog->windowTitle());
    EXPECT_EQ(StrTable::LoadStr(457), dialog->labelText());
    EXPECT_FALSE(dialog->windowTitle().isEmpty());
    EXPECT_TRUE(dialog->findChildren<QPushButton*>().isEmpty()) << "a cancel button is left";
    EXPECT_FALSE(dialog->autoReset());
    EXPECT_EQ(0, dialog->minimum());
    EXPECT_EQ(100, dialog->maximum());
    EXPECT_EQ(0, dialog->value());
    EXPECT_EQ(77, dialog->styleSheet().size());
    EXPECT_EQ(QString::fromUtf8(kStyle), dialog->styleSheet());
    EXPECT_EQ(QString("Arial"), dialog->font().family());
    // The label and the bar inherit the font.
    ASSERT_NE(nullptr, dialog->findChild<QLabel*>());
    EXPECT_EQ(QString("Arial"), dialog->findChild<QLabel*>()->font().family());
    // The program shows it only when asked to.
    EXPECT_FALSE(dialog->isVisible());
}

// The icon comes from the bundle's resources; without the file there is no
// icon and nothing else changes.
TEST(ProgressDialog, IconFromBundleResourcesOrNone)
{
    const fs::path images = fs::path(Service::GetRootNimbuloResourceInstallPath().c_str_utf8()) / "images";
    const fs::path icon = images / "ico_72_nimbulo.png";
    ASSERT_FALSE(fs::exists(icon)) << icon << " is in the way";
    {
        Launcher launcher;
        EXPECT_TRUE(LauncherTestPeer::DialogOf(&launcher)->windowIcon().isNull());
        EXPECT_EQ(StrTable::LoadStr(443), LauncherTestPeer::DialogOf(&launcher)->windowTitle());
    }

    // Remove only what this test creates: the topmost missing folder, if any.
    fs::path created;
    for (fs::path p = images; !fs::exists(p); p = p.parent_path())
        created = p;
    fs::create_directories(images);
    QImage image(72, 72, QImage::Format_ARGB32);
    image.fill(Qt::blue);
    ASSERT_TRUE(image.save(QString::fromStdString(icon.string()), "PNG"));
    {
        Launcher launcher;
        EXPECT_FALSE(LauncherTestPeer::DialogOf(&launcher)->windowIcon().isNull());
    }
    fs::remove_all(created.empty() ? icon : created);
}

TEST(Launcher, UpdateProgressIsTruncatedPercentage)
{
    struct Row {
        int total;
        int steps;
        int value;
    };
    const Row rows[] = {
        {3, 1, 33}, {3, 2, 66}, {3, 3, 100}, {100, 100, 100}, {1, 1, 100},
        {4, 0, 0}, {4, 1, 25}, {4, 2, 50}, {4, 3, 75}, {4, 4, 100},
        {7, 5, 71}, {200000, 199999, 99}, {100, 37, 37},
    };
    Launcher launcher;
    ProcessingProgressDialog* dialog = LauncherTestPeer::DialogOf(&launcher);
    for (const Row& row : rows) {
        SCOPED_TRACE(testing::Message() << "UpdateProgress(" << row.total << ", " << row.steps << ")");
        ASSERT_TRUE(QMetaObject::invokeMethod(&launcher, "UpdateProgress", Qt::DirectConnection,
                                              Q_ARG(int, row.total), Q_ARG(int, row.steps)));
        EXPECT_EQ(row.value, dialog->value());
        // Reaching the maximum must neither rewind nor hide the bar.
        EXPECT_EQ(0, dialog->minimum());
        EXPECT_EQ(100, dialog->maximum());
    }
}

// Connections 6 and 7: the extractor reports from the worker thread and the
// dialog changes on the user-interface thread, in order.
TEST(Launcher, AdapterReportsFromAnotherThreadReachDialogInOrder)
{
    Launcher launcher;
    ProcessingProgressDialog* dialog = LauncherTestPeer::DialogOf(&launcher);
    QProgressBar* bar = dialog->findChild<QProgressBar*>();
    ASSERT_NE(nullptr, bar);
    std::vector<int> values;
    bool allOnUiThread = true;
    QObject::connect(bar, &QProgressBar::valueChanged, [&](int value) {
        values.push_back(value);
        allOnUiThread = allOnUiThread && QThread::currentThread() == qApp->thread();
    });

    Notify_Adapter* fromWorker = nullptr;
    std::thread extractor([&] {
        fromWorker = Notify_Adapter::GetInstance();
        fromWorker->UpdateDialogText(QString("unpacking"));
        for (int i = 1; i <= 3; i++)
            fromWorker->UpdateProgress(3, i);
    });
    extractor.join();
    EXPECT_EQ(Notify_Adapter::GetInstance(), fromWorker);
    // Queued: nothing arrives before the event loop runs.
    EXPECT_TRUE(values.empty());
    EXPECT_EQ(StrTable::LoadStr(457), dialog->labelText());

    QCoreApplication::processEvents();
    EXPECT_EQ((std::vector<int>{33, 66, 100}), values);
    EXPECT_TRUE(allOnUiThread);
    EXPECT_EQ(QString("unpacking"), dialog->labelText());
    EXPECT_EQ(StrTable::LoadStr(443), dialog->windowTitle());
}

// Plays the worker's side of a run on a thread of its own by emitting the
// Worker's signals, so the Launcher's wiring, dialog and LaunchDone are real.
class FakeFlow {
public:
    explicit FakeFlow(Launcher* launcher) : worker(LauncherTestPeer::WorkerOf(launcher)) {}

    void Start(bool upgrade)
    {
        thread = std::thread([this, upgrade] {
            if (upgrade) {
                emit worker->sigShowMsg();
                emit worker->sigUpdateProgress(3, 1);
                // Stands for the slow installation; the test pokes at the
                // dialog meanwhile.
                for (int i = 0; i < 3000 && !proceed; i++)
                    std::this_thread::sleep_for(std::chrono::milliseconds(10));
                emit worker->sigUpdateProgress(3, 2);
                emit worker->sigUpdateProgress(3, 3);
                emit worker->sigUpdateProgress(100, 100);
                emit worker->sigSetLabelText(StrTable::LoadStr(456));
            }
            finished = true;
            emit worker->sigServiceDone();
        });
    }
    void Join()
    {
        if (thread.joinable())
            thread.join();
    }

    Worker* worker;
    std::thread thread;
    std::atomic<bool> proceed{false};
    std::atomic<bool> finished{false};
};

struct RunResult {
    int exitCode = -1;
    bool flowFinishedAtExit = false;
    bool timedOut = false;
};

// Runs the application's event loop until the Launcher ends it.
RunResult RunEventLoop(FakeFlow& flow, int timeoutMs = 40000)
{
    RunResult result;
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, [&] {
        result.timedOut = true;
        QCoreApplication::quit();
    });
    guard.start(timeoutMs);
    result.exitCode = QApplication::exec();
    result.flowFinishedAtExit = flow.finished;
    return result;
}

TEST(Launcher, NoUpgradeNeverShowsDialogAndEndsLoop)
{
    Launcher* launcher = new Launcher;
    ProcessingProgressDialog* dialog = LauncherTestPeer::DialogOf(launcher);
    ShowCounter counter;
    dialog->installEventFilter(&counter);
    launcher->Run();

    FakeFlow flow(launcher);
    flow.Start(false);
    RunResult run = RunEventLoop(flow);
    flow.Join();

    EXPECT_FALSE(run.timedOut);
    EXPECT_EQ(0, run.exitCode);
    EXPECT_EQ(0, counter.shows);
    EXPECT_FALSE(dialog->isVisible());
    // LaunchDone joined the worker's thread, so this does not abort.
    EXPECT_TRUE(LauncherTestPeer::WorkerOf(launcher)->Thread()->isFinished());
    delete launcher;
}

// Escape and closing the window while the upgrade runs: the dialog stays, the
// event loop goes on until the worker reports that it is done, and the run
// ends normally.
TEST(Launcher, DismissingDialogDuringUpgradeDoesNotEndRunEarly)
{
    Launcher* launcher = new Launcher;
    ProcessingProgressDialog* dialog = LauncherTestPeer::DialogOf(launcher);
    QProgressBar* bar = dialog->findChild<QProgressBar*>();
    ASSERT_NE(nullptr, bar);
    std::vector<int> values;
    QObject::connect(bar, &QProgressBar::valueChanged, [&](int value) { values.push_back(value); });
    launcher->Run();

    FakeFlow flow(launcher);
    bool pokedWhileVisible = false;
    bool visibleAfterEscape = false;
    bool visibleAfterChildEscape = false;
    bool closeEventAccepted = true;
    bool visibleAfterCloseEvent = false;
    bool closeReturned = true;
    bool visibleAfterClose = false;
    bool canceled = true;
    int valueAfterPokes = -1;

    QTimer poker;
    QObject::connect(&poker, &QTimer::timeout, [&] {
        if (!dialog->isVisible() || dialog->value() != 33)
            return;
        poker.stop();
        pokedWhileVisible = true;

        QTest::keyClick(dialog, Qt::Key_Escape);
        QTest::qWait(50);
        visibleAfterEscape = dialog->isVisible();

        // A key the bar does not take travels up to the dialog.
        QTest::keyClick(dialog->findChild<QProgressBar*>(), Qt::Key_Escape);
        QTest::qWait(50);
        visibleAfterChildEscape = dialog->isVisible();

        QCloseEvent close;
        QCoreApplication::sendEvent(dialog, &close);
        closeEventAccepted = close.isAccepted();
        QTest::qWait(50);
        visibleAfterCloseEvent = dialog->isVisible();

        closeReturned = dialog->close();
        QTest::qWait(200);
        visibleAfterClose = dialog->isVisible();
        canceled = dialog->wasCanceled();
        valueAfterPokes = dialog->value();
        flow.proceed = true;
    });
    poker.start(20);

    flow.Start(true);
    RunResult run = RunEventLoop(flow);
    flow.Join();
    // Should the loop have ended early, let LaunchDone join the thread
    // before the Launcher goes.
    QTest::qWait(200);

    EXPECT_FALSE(run.timedOut);
    EXPECT_EQ(0, run.exitCode);
    EXPECT_TRUE(pokedWhileVisible) << "the dialog never showed the first progress";
    EXPECT_TRUE(visibleAfterEscape) << "Escape hid the dialog";
    EXPECT_TRUE(visibleAfterChildEscape) << "Escape on the bar hid the dialog";
    EXPECT_FALSE(closeEventAccepted) << "the close event was let through";
    EXPECT_TRUE(visibleAfterCloseEvent);
    EXPECT_FALSE(closeReturned) << "close() succeeded";
    EXPECT_TRUE(visibleAfterClose);
    EXPECT_FALSE(canceled);
    EXPECT_EQ(33, valueAfterPokes);
    EXPECT_TRUE(run.flowFinishedAtExit) << "the event loop ended before the worker was done";

    // The run then ends as usual: ready text, 100 %, hidden, thread joined.
    EXPECT_EQ((std::vector<int>{33, 66, 100}), values);
    EXPECT_EQ(StrTable::LoadStr(456), dialog->labelText());
    EXPECT_EQ(100, dialog->value());
    EXPECT_FALSE(dialog->isVisible());
    EXPECT_TRUE(LauncherTestPeer::WorkerOf(launcher)->Thread()->isFinished());
    delete launcher;
}

// Should the dialog go away by another road than a key or a close event (a
// rejection from outside), the run still waits for the worker.
TEST(Launcher, DialogGoneDuringUpgradeStillWaitsForWorker)
{
    Launcher* launcher = new Launcher;
    ProcessingProgressDialog* dialog = LauncherTestPeer::DialogOf(launcher);
    launcher->Run();

    FakeFlow flow(launcher);
    bool rejected = false;
    QTimer poker;
    QObject::connect(&poker, &QTimer::timeout, [&] {
        if (!dialog->isVisible() || dialog->value() != 33)
            return;
        poker.stop();
        dialog->reject();
        rejected = !dialog->isVisible();
        QTest::qWait(200);
        flow.proceed = true;
    });
    poker.start(20);

    flow.Start(true);
    RunResult run = RunEventLoop(flow);
    flow.Join();
    QTest::qWait(200);

    EXPECT_TRUE(rejected);
    EXPECT_FALSE(run.timedOut);
    EXPECT_EQ(0, run.exitCode);
    EXPECT_TRUE(run.flowFinishedAtExit) << "the event loop ended before the worker was done";
    EXPECT_TRUE(LauncherTestPeer::WorkerOf(launcher)->Thread()->isFinished());
    delete launcher;
}

}  // namespace

int main(int argc, char** argv)
{
    // Test discovery runs this program without the tests' environment.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    StrTable::InitStrTable();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
