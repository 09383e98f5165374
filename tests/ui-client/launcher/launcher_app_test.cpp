// The progress dialog through whole runs of the real Launcher, Worker and
// service. The program lies in Contents/MacOS of a bundle of its own
// (app.cmake); every run gets a fresh home folder.
#include <QApplication>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include "launcher.h"
#include "locale/str-table.h"
#include "mac/mac-service.h"
#include "nimbulo-service.h"
#include "ui_test.h"

// Declared a friend by Launcher.
class LauncherTestPeer {
public:
    static Worker* WorkerOf(Launcher* launcher) { return launcher->worker; }
    static ProcessingProgressDialog* DialogOf(Launcher* launcher) { return launcher->dialog; }
};

static const QString kReady = "Nimbulo Pelora is ready.", kPreparing = "Nimbulo Pelora is initializing...";

TEST(ProgressDialog, TitleTextBarButtonsAndLook)
{
    Launcher launcher;
    ProcessingProgressDialog* d = LauncherTestPeer::DialogOf(&launcher);
    EXPECT_EQ("Nimbulo Pelora", d->windowTitle());
    // Title and system menu only: no close, minimise, maximise, help or cancel button.
    EXPECT_EQ(0x3000u, static_cast<unsigned>(d->windowFlags() & ~Qt::WindowType_Mask));
    EXPECT_TRUE(d->findChildren<QPushButton*>().isEmpty());
    EXPECT_EQ(400, d->width());
    EXPECT_TRUE(d->styleSheet().contains("background-color: WhiteSmoke"));
    EXPECT_FALSE(d->windowIcon().isNull()) << "no icon from the bundle's resources";
    // Escape or closing the window would end the run before the worker.
    d->show();
    QTest::keyClick(d, Qt::Key_Escape);
    EXPECT_FALSE(d->close());
    EXPECT_TRUE(d->isVisible());
}

// What the bar and the text show in an upgrade that succeeds, one that
// fails at its last entry and a run with nothing to install.
TEST(ProgressDialog, EachEntryThenTheReadyTextOnlyAfterSuccess)
{
    const fs::path resources = Service::GetRootNimbuloResourceInstallPath().c_str();
    const std::string info = "[Version]\nbuild_version=400\n";
    Put(resources / "INFO", info);
    // Installed before, a package that extracts, the dialog shown, the bar's values, the text at the end.
    const std::tuple<bool, bool, bool, std::vector<int>, QString> rows[] = {
        {false, true, true, {33, 66, 100}, kReady},
        {false, false, true, {33, 66, 100}, kPreparing},
        {true, true, false, {100}, kPreparing}};
    for (const auto& [installed, goodPackage, wantShown, wantBar, text] : rows) {
        SCOPED_TRACE(text.toStdString() + (installed ? ", installed" : ""));
        const fs::path home = TempDir(), app = home / ".Nimbulo/Nimbulo.app";
        WriteArchive(resources / "package/nimbulo.spk",
                     {{"Contents/Resources/INFO", info},
                      {"Contents/MacOS/nimbulo-pelora-ui", ""},
                      {goodPackage ? "Contents/Info.plist" : "../refused", ""}});
        if (installed)
            Put(app / "Contents/Resources/INFO", info), Put(app / "Contents/MacOS/nimbulo-pelora-ui", "");
        qputenv("HOME", home.c_str());
        Launcher launcher;
        ProcessingProgressDialog* d = LauncherTestPeer::DialogOf(&launcher);
        std::vector<int> bar;
        bool offUiThread = false, shown = false;
        QObject::connect(d->findChild<QProgressBar*>(), &QProgressBar::valueChanged, [&](int value) {
            bar.push_back(value);
            offUiThread = offUiThread || QThread::currentThread() != qApp->thread();
        });
        // Queued behind the Launcher's own slot for the same signal.
        QObject::connect(LauncherTestPeer::WorkerOf(&launcher), &Worker::sigShowMsg, d,
                         [&] { shown = d->isVisible(); });
        launcher.Run();
        launcher.Start();
        EXPECT_EQ(0, QApplication::exec());
        EXPECT_TRUE(LauncherTestPeer::WorkerOf(&launcher)->Thread()->isFinished())
            << "the run ended before the worker";
        EXPECT_EQ(wantBar, bar);
        EXPECT_FALSE(offUiThread) << "the dialog was changed from the worker thread";
        EXPECT_EQ(wantShown, shown);
        EXPECT_EQ(text, d->labelText());
        EXPECT_FALSE(d->isVisible());
        fs::remove_all(home);
    }
}

// What Service and PackageInfo offer beside the upgrade flow: further paths,
// FSCopyPath over a tree, a file, a missing source, a destination below a
// file and a tree holding a link that leads nowhere, and the version loaders.
TEST(Service, PathsAndFSCopyPath)
{
    const fs::path home = TempDir(), src = home / "src", contents = qApp->applicationDirPath().toStdString();
    const std::string macos = contents.string(), bundle = contents.parent_path().parent_path();
    qputenv("HOME", home.c_str());
    PackageInfo p;
    EXPECT_EQ((std::vector<std::string>{macos + "/images", home / ".Nimbulo_log",
                                        macos + "/log/launcher.debug", macos + "/package/nimbulo.spk",
                                        macos + "/conf", bundle, home / ".Nimbulo/data"}),
              (std::vector<std::string>{p.imagesPath.c_str(), p.logRootPath.c_str(), p.debugFlagPath.c_str(),
                                        p.packagePath.c_str(), p.confPath.c_str(),
                                        Service::GetRootNimbuloInstallPath().c_str(),
                                        Service::GetUserNimbuloDataInstallPath().c_str()}));
    Put(src / "a/b.txt", "bee"), Put(src / "c.txt", "sea"), Put(home / "bad/ok", "");
    fs::create_symlink("nowhere", home / "bad/link");
    const std::tuple<fs::path, fs::path, int> rows[] = {{src, home / "copy", 0},
                                                        {src / "c.txt", home / "c.txt", 0},
                                                        {home / "none", home / "x", -1},
                                                        {src, home / "c.txt/x", -1},
                                                        {home / "bad", home / "bad2", -1}};
    MacService* service = MacService::GetInstace();
    for (const auto& [from, to, want] : rows)
        EXPECT_EQ(want, service->FSCopyPath(from.c_str(), to.c_str())) << from << " to " << to;
    Put(home / ".Nimbulo/Nimbulo.app/Contents/Resources/INFO", "[Version]\nbuild_version=5\n");
    Put(contents.parent_path() / "Resources/INFO", "[Version]\nbuild_version=7\n");
    service->LoadSourceVerInfo(), service->LoadTargetVerInfo();
    EXPECT_EQ("5 7",
              std::string(service->sourceBuildVersion.c_str()) + " " + service->targetBuildVersion.c_str());
    EXPECT_EQ("bee sea sea",
              Read(home / "copy/a/b.txt") + " " + Read(home / "copy/c.txt") + " " + Read(home / "c.txt"));
    fs::remove_all(home);
}

int main(int argc, char** argv)
{
    // Test discovery runs this program without the tests' environment.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    StrTable::InitStrTable();
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
