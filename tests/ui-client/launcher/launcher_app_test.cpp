// Launcher, worker wiring and progress dialog through a real Qt event loop.
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <functional>
#include <thread>

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
    EXPECT_TRUE(dialog->findChildren<QPushButton*>().isEmpty()) << "a cancel button is left";
    EXPECT_FALSE(dialog->autoReset());
    EXPECT_EQ(0, dialog->minimum());
    EXPECT_EQ(100, dialog->maximum());
    EXPECT_EQ(0, dialog->value());
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
    const Row rows[] = {{3, 1, 33}, {3, 2, 66}, {3, 3, 100}, {1, 1, 100}, {4, 0, 0},
                        {7, 5, 71}, {200000, 199999, 99}, {100, 37, 37}};
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
// With an upgrade, `poke` runs once the dialog shows 33 %, the flow waiting
// meanwhile, as for a slow installation.
struct RunResult {
    int exitCode = -1;
    bool flowFinishedAtExit = false, timedOut = false;
};

RunResult RunFlow(Launcher* launcher, bool upgrade, std::function<void(ProcessingProgressDialog*)> poke = {})
{
    Worker* worker = LauncherTestPeer::WorkerOf(launcher);
    ProcessingProgressDialog* dialog = LauncherTestPeer::DialogOf(launcher);
    std::atomic<bool> proceed{false}, finished{false};
    QTimer poker;
    QObject::connect(&poker, &QTimer::timeout, [&] {
        if (!dialog->isVisible() || dialog->value() != 33)
            return;
        poker.stop();
        poke(dialog);
        proceed = true;
    });
    poker.start(20);
    launcher->Run();
    std::thread flow([&] {
        if (upgrade) {
            emit worker->sigShowMsg();
            emit worker->sigUpdateProgress(3, 1);
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
    RunResult result;
    QTimer guard;
    guard.setSingleShot(true);
    QObject::connect(&guard, &QTimer::timeout, [&] {
        result.timedOut = true;
        QCoreApplication::quit();
    });
    guard.start(40000);
    result.exitCode = QApplication::exec();
    result.flowFinishedAtExit = finished;
    flow.join();
    // Should the loop have ended early, let LaunchDone join the thread before
    // the Launcher goes.
    QTest::qWait(200);
    EXPECT_FALSE(result.timedOut);
    EXPECT_EQ(0, result.exitCode);
    EXPECT_TRUE(result.flowFinishedAtExit) << "the event loop ended before the worker was done";
    EXPECT_TRUE(worker->Thread()->isFinished()) << "LaunchDone did not join the worker's thread";
    return result;
}

TEST(Launcher, NoUpgradeNeverShowsDialogAndEndsLoop)
{
    Launcher launcher;
    ShowCounter counter;
    LauncherTestPeer::DialogOf(&launcher)->installEventFilter(&counter);
    RunFlow(&launcher, false);
    EXPECT_EQ(0, counter.shows);
}

// Escape, closing the window, or a rejection from outside while the upgrade
// runs: the event loop goes on until the worker is done, and the run ends
// normally. Key and close events must not even hide the dialog.
TEST(Launcher, DismissingDialogDuringUpgradeDoesNotEndRunEarly)
{
    const std::vector<std::pair<const char*, std::function<void(ProcessingProgressDialog*)>>> rows = {
        {"Escape", [](ProcessingProgressDialog* d) { QTest::keyClick(d, Qt::Key_Escape); }},
        // A key the bar does not take travels up to the dialog.
        {"Escape on the bar", [](ProcessingProgressDialog* d) {
             QTest::keyClick(d->findChild<QProgressBar*>(), Qt::Key_Escape);
         }},
        {"close event", [](ProcessingProgressDialog* d) {
             QCloseEvent close;
             QCoreApplication::sendEvent(d, &close);
             EXPECT_FALSE(close.isAccepted()) << "the close event was let through";
         }},
        {"close()", [](ProcessingProgressDialog* d) { EXPECT_FALSE(d->close()); }},
        {"reject()", [](ProcessingProgressDialog* d) { d->reject(); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.first);
        Launcher launcher;
        ProcessingProgressDialog* dialog = LauncherTestPeer::DialogOf(&launcher);
        std::vector<int> values;
        QObject::connect(dialog->findChild<QProgressBar*>(), &QProgressBar::valueChanged,
                         [&](int value) { values.push_back(value); });
        bool poked = false;
        RunFlow(&launcher, true, [&](ProcessingProgressDialog* d) {
            poked = true;
            row.second(d);
            QTest::qWait(200);
            if (std::string(row.first) != "reject()") {
                EXPECT_TRUE(d->isVisible());
                EXPECT_FALSE(d->wasCanceled());
                EXPECT_EQ(33, d->value());
            }
        });
        EXPECT_TRUE(poked) << "the dialog never showed the first progress";
        // The run then ends as usual: ready text, 100 %, hidden.
        EXPECT_EQ((std::vector<int>{33, 66, 100}), values);
        EXPECT_EQ(StrTable::LoadStr(456), dialog->labelText());
        EXPECT_EQ(100, dialog->value());
        EXPECT_FALSE(dialog->isVisible());
    }
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
