// nimbulo-pelora-ui: a stand-in for the synchronisation client, shipped in the
// package so that the launcher has something real to install, stop and start.
//
// - shows a window naming the build it belongs to, read from its own bundle's
//   Contents/Resources/INFO (group "Version", key "build_version");
// - writes ~/.Nimbulo/ui.pid ("pid=<pid>") while it runs and removes it when
//   it ends;
// - ends cleanly on SIGTERM, SIGINT and SIGHUP.
//
// For tests and screenshots:
//   NIMBULO_SAMPLE_STOP_DELAY_MS=<ms>  wait that long after SIGTERM before
//                                      ending (a client slow to stop);
//   NIMBULO_SAMPLE_RECORD=<file>       append one line per start, signal and
//                                      stop: "<event> pid=<pid> build=<build>
//                                      present=<0|1> fds=<list> exe=<path>",
//                                      where present tells whether this
//                                      executable (the same file, not a newer
//                                      one) was still at its path at that
//                                      moment, and fds lists the
//                                      descriptors it was started with.
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QSettings>
#include <QSocketNotifier>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>

#include <dirent.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>

namespace {

int gSignalFds[2] = {-1, -1};
QByteArray gStartFds;
ino_t gExeInode = 0;

ino_t ExeInode(const QString& path)
{
    struct stat st;
    return stat(QFile::encodeName(path).constData(), &st) == 0 ? st.st_ino : 0;
}

// The descriptors inherited from whoever started us, e.g. "0,1,2".
QByteArray ListOpenFds()
{
    QByteArray list;
    DIR* dir = opendir("/proc/self/fd");
    if (dir == nullptr) {
        return "?";
    }
    while (struct dirent* e = readdir(dir)) {
        if (e->d_name[0] != '.' && atoi(e->d_name) != dirfd(dir)) {
            list += (list.isEmpty() ? "" : ",") + QByteArray(e->d_name);
        }
    }
    closedir(dir);
    return list;
}

// Only async-signal-safe work here: the byte wakes the event loop.
void OnSignal(int sig)
{
    int saved = errno;
    char c = static_cast<char>(sig);
    ssize_t n = write(gSignalFds[0], &c, 1);
    (void)n;
    errno = saved;
}

QString PidFilePath()
{
    return QDir::homePath() + "/.Nimbulo/ui.pid";
}

QString ReadBuildVersion()
{
    QString info = QCoreApplication::applicationDirPath() + "/../Resources/INFO";
    QSettings settings(QDir::cleanPath(info), QSettings::IniFormat);
    settings.beginGroup("Version");
    return settings.value("build_version").toString();
}

}  // namespace

class SampleClient : public QObject {
    Q_OBJECT
public:
    SampleClient();
    ~SampleClient() override;

    int WritePidFile();
    void Record(const char* event);

private slots:
    void OnSignalReadable();
    void Quit();

private:
    QString build;
    QString exePath;
    QWidget* window;
    QLabel* status;
    QSocketNotifier* notifier;
    bool stopping;
};

SampleClient::SampleClient()
    : build(ReadBuildVersion()),
      exePath(QCoreApplication::applicationFilePath()),
      window(new QWidget),
      status(new QLabel),
      notifier(new QSocketNotifier(gSignalFds[1], QSocketNotifier::Read)),
      stopping(false)
{
    window->setWindowTitle("Nimbulo Pelora");
    QVBoxLayout* layout = new QVBoxLayout(window);
    QLabel* title = new QLabel(QString("Nimbulo Pelora (sample client), build %1")
                                   .arg(build.isEmpty() ? QString("unknown") : build));
    QFont font = title->font();
    font.setPointSize(font.pointSize() + 4);
    font.setBold(true);
    title->setFont(font);
    layout->addWidget(title);
    status->setText(QString("Running as process %1 from %2")
                        .arg(QCoreApplication::applicationPid())
                        .arg(QDir::cleanPath(QCoreApplication::applicationDirPath() + "/../..")));
    layout->addWidget(status);
    window->resize(520, 120);
    window->show();

    connect(notifier, SIGNAL(activated(int)), this, SLOT(OnSignalReadable()));
}

SampleClient::~SampleClient()
{
    delete notifier;
    delete window;
    // Another client may have taken the file over meanwhile; leave it be.
    QFile file(PidFilePath());
    if (file.open(QIODevice::ReadOnly)) {
        QByteArray content = file.readAll().trimmed();
        file.close();
        if (content == "pid=" + QByteArray::number(QCoreApplication::applicationPid())) {
            file.remove();
        }
    }
}

int SampleClient::WritePidFile()
{
    QString path = PidFilePath();
    if (!QDir().mkpath(QFileInfo(path).absolutePath())) {
        return -1;
    }
    // Written under another name and renamed, so a reader never sees half a line.
    QString tmp = path + ".part";
    QFile file(tmp);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate)) {
        return -1;
    }
    QByteArray line = "pid=" + QByteArray::number(QCoreApplication::applicationPid()) + "\n";
    bool ok = file.write(line) == line.size();
    file.close();
    if (!ok || rename(QFile::encodeName(tmp).constData(), QFile::encodeName(path).constData()) != 0) {
        QFile::remove(tmp);
        return -1;
    }
    return 0;
}

void SampleClient::Record(const char* event)
{
    QByteArray recordPath = qgetenv("NIMBULO_SAMPLE_RECORD");
    if (recordPath.isEmpty()) {
        return;
    }
    // One write() per line on an O_APPEND descriptor: lines of several
    // clients never interleave.
    QByteArray line = QByteArray(event) + " pid=" + QByteArray::number(QCoreApplication::applicationPid()) +
                      " build=" + build.toUtf8() +
                      " present=" + (ExeInode(exePath) == gExeInode ? "1" : "0") + " fds=" + gStartFds +
                      " exe=" + exePath.toUtf8() + "\n";
    int fd = open(recordPath.constData(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
    if (fd < 0) {
        return;
    }
    ssize_t n = write(fd, line.constData(), line.size());
    (void)n;
    close(fd);
}

void SampleClient::OnSignalReadable()
{
    char c = 0;
    if (read(gSignalFds[1], &c, 1) != 1 || stopping) {
        return;
    }
    stopping = true;
    Record("signal");
    int delay = qEnvironmentVariableIntValue("NIMBULO_SAMPLE_STOP_DELAY_MS");
    if (delay > 0) {
        status->setText(QString("Stopping in %1 ms...").arg(delay));
        QTimer::singleShot(delay, this, SLOT(Quit()));
    } else {
        Quit();
    }
}

void SampleClient::Quit()
{
    Record("stop");
    QCoreApplication::quit();
}

int main(int argc, char** argv)
{
    gStartFds = ListOpenFds();
    if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, gSignalFds) != 0) {
        perror("nimbulo-pelora-ui: socketpair");
        return 1;
    }
    struct sigaction sa = {};
    sa.sa_handler = OnSignal;
    sigemptyset(&sa.sa_mask);
    sa.sa_flags = SA_RESTART;
    sigaction(SIGTERM, &sa, nullptr);
    sigaction(SIGINT, &sa, nullptr);
    sigaction(SIGHUP, &sa, nullptr);

#ifdef Q_OS_LINUX
    // Like a real client started where no display is (a remote shell, a
    // session not up yet), it carries on unseen rather than ending.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "xcb;offscreen");
#endif
    QApplication app(argc, argv);
    SampleClient* client = new SampleClient;
    gExeInode = ExeInode(QCoreApplication::applicationFilePath());
    if (client->WritePidFile() != 0) {
        fprintf(stderr, "nimbulo-pelora-ui: cannot write %s\n", PidFilePath().toLocal8Bit().constData());
    }
    client->Record("start");
    int ret = app.exec();
    delete client;
    return ret;
}

#include "sample-client.moc"
