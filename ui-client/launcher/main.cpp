#include <cerrno>
#include <clocale>
#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include "launcher.h"
#include "log.h"
#include "nimbulo-service.h"
#include "qtsingleapplication.h"
#include "str-table.h"
#include "ustring.h"

namespace {

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

    // Qt must find its plug-ins inside the bundle, so its default search list
    // is replaced before the application object exists:
    // .../Nimbulo.app/Contents/MacOS/Nimbulo -> .../Nimbulo.app/Contents/Frameworks/plugins
    QString pluginPath = QDir::cleanPath(QString::fromUtf8(argc > 0 && argv[0] ? argv[0] : "") + "/../../Frameworks/plugins");
    QCoreApplication::setLibraryPaths(QStringList(pluginPath));
    printf("lib path = '%s'\n", pluginPath.toUtf8().constData());
    fflush(stdout);

    QtSingleApplication app(argc, argv, true);

    // Before the single-instance check, so that a refused start is logged.
    ustring debugFile = Service::GetRootNimbuloInstallPath() + "/log/launcher.debug";
    ustring logDir = Service::GetUserNimbuloInstallPath() + "/log";
    if (QDir().mkpath(QString::fromUtf8(logDir.c_str_utf8())))
        Logger::Initialize(Logger::TYPE_FILE, logDir + "/launcher.log", debugFile, 50);

    if (app.isRunning()) {
        Logger::LogMsg(Logger::LEVEL_DEBUG, "launcher_debug", "[DEBUG] main(%d): app has already launched, return\n", __LINE__);
        return 0;
    }

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
