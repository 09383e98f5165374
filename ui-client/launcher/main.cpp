#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include "launcher.h"
#include "liblogger/log.h"
#include "libustring/ustring.h"
#include "locale/str-table.h"
#include "nimbulo-service.h"
#include "platform/platform.h"
#include "qtsingleapplication/qtsingleapplication.h"

namespace {

// Where the run finds itself: the executable, hence the bundle, and the home
// folder. When either is unknown nothing can be installed, and the one line
// saying so goes to standard error (the logger's sink until it has a file).
bool FindPlace(ustring& executable)
{
    executable = PlatformExecutablePath();
    if (executable.empty()) {
        Logger::LogMsg(Logger::LEVEL_ERROR, "launcher_debug",
                       "[ERROR] main(%d): cannot tell where the running executable is, nothing done\n",
                       __LINE__);
        return false;
    }
    const ustring home = PlatformHomeDir();
    if (home.empty()) {
        Logger::LogMsg(
            Logger::LEVEL_ERROR, "launcher_debug",
            "[ERROR] main(%d): no home folder: HOME is not an absolute path and the password database "
            "names no existing folder, nothing done\n",
            __LINE__);
        return false;
    }
    // Qt and the client read HOME themselves; they must find the same folder.
    setenv("HOME", home.c_str(), 1);
    return true;
}

// Qt ends the process with an abort when it finds no platform plug-in, as in
// a bundle whose plug-in folder cannot be read.
bool PluginsReadable(const QString& pluginPath)
{
    if (!QDir(pluginPath + "/platforms").entryList(QDir::Files | QDir::Readable).isEmpty())
        return true;
    Logger::LogMsg(Logger::LEVEL_ERROR, "launcher_debug",
                   "[ERROR] main(%d): no readable Qt platform plug-in in '%s/platforms', nothing done\n",
                   __LINE__, pluginPath.toUtf8().constData());
    return false;
}

// Without a display Qt's default platform ends the process; the offscreen
// one lets the run install and start the client without its dialog. A
// platform the user chose is left alone. true when offscreen was chosen,
// with the reason in noDisplay.
bool ChooseOffscreen(ustring& noDisplay)
{
    if (!qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM") || PlatformDisplayReachable(noDisplay))
        return false;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    return true;
}

// A descriptor 0, 1 or 2 that the launcher was started without would go to
// the next file opened, the log file, and the client would inherit it as its
// standard output or error. /dev/null takes any missing one first.
void OpenStandardStreams()
{
    for (int fd = 0; fd <= 2; ++fd) {
        if (fcntl(fd, F_GETFD) != -1 || errno != EBADF)
            continue;
        // The lowest free descriptor, which is fd itself.
        int opened = open("/dev/null", fd == 0 ? O_RDONLY : O_WRONLY);
        if (opened > fd) {
            dup2(opened, fd);
            close(opened);
        }
    }
}

}  // namespace

int main(int argc, char** argv)
{
    // Before anything opens a file.
    OpenStandardStreams();
    setlocale(LC_ALL, "");
    // Before any catalogue is loaded by its ":/" path.
    qInitResources_texts();

    // A reader of standard output or error that has gone away costs only the
    // text meant for it, never the run.
    signal(SIGPIPE, SIG_IGN);

    ustring executable;
    if (!FindPlace(executable))
        return 0;

    // Qt must find its plug-ins inside the bundle, so its default search list
    // is replaced before the application object exists:
    // .../Nimbulo.app/Contents/MacOS/Nimbulo -> .../Nimbulo.app/Contents/Frameworks/plugins
    QString pluginPath =
        QDir::cleanPath(QString::fromUtf8(executable.c_str_utf8()) + "/../../Frameworks/plugins");
    QCoreApplication::setLibraryPaths(QStringList(pluginPath));
    printf("lib path = '%s'\n", pluginPath.toUtf8().constData());
    fflush(stdout);
    if (!PluginsReadable(pluginPath))
        return 0;

    ustring noDisplay;
    const bool offscreen = ChooseOffscreen(noDisplay);
    QtSingleApplication app(argc, argv, true);
    // The choice was for this process only; the client makes its own.
    if (offscreen)
        qunsetenv("QT_QPA_PLATFORM");

    // Before the single-instance check, so that a refused start is logged.
    ustring debugFile = Service::GetRootNimbuloInstallPath() + "/log/launcher.debug";
    ustring logDir = Service::GetUserNimbuloInstallPath() + "/log";
    if (QDir().mkpath(QString::fromUtf8(logDir.c_str_utf8())))
        Logger::Initialize(Logger::TYPE_FILE, logDir + "/launcher.log", debugFile, 50);

    if (app.isRunning()) {
        Logger::LogMsg(Logger::LEVEL_DEBUG, "launcher_debug",
                       "[DEBUG] main(%d): app has already launched, return\n", __LINE__);
        return 0;
    }
    if (offscreen)
        Logger::LogMsg(Logger::LEVEL_NOTE, "launcher_debug", "[NOTE] main(%d): no dialog can be shown, %s\n",
                       __LINE__, noDisplay.c_str());

    QTranslator translator;
    InstallCatalogue(translator);
    // After the catalogue, so that look-ups find it; before the Launcher,
    // whose dialog looks up its texts.
    StrTable::InitStrTable();

    Launcher* launcher = new Launcher;
    launcher->Run();
    launcher->Start();
    int result = app.exec();
    delete launcher;
    return result;
}
