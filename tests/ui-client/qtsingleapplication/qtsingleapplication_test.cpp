// The single-instance guard across real processes. The program is its own
// helper: with --hold it builds the application object, prints whether
// another instance runs and keeps the lock until it ends.
#include <gtest/gtest.h>

#include <filesystem>

#include <QCoreApplication>
#include <QProcess>
#include <QThread>

#include "qtsingleapplication.h"

// Starts command (the program, or a wrapper and the program) with --hold;
// its answer, "running=0" or "running=1".
static std::string Hold(QProcess& process, QStringList command, const QString& runtime)
{
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("XDG_RUNTIME_DIR", runtime);
    process.setProcessEnvironment(env);
    process.start(command.takeFirst(), command << "--hold");
    process.waitForReadyRead(30000);
    return process.readLine().trimmed().toStdString();
}

// Guards: a second start of the same executable let through, a copy at
// another path refused, a lock that outlives its owner (SIGKILL; in a pid
// namespace the dead owner's pid then names the next instance).
TEST(SingleInstance, RefusesOnlyASecondLiveInstanceOfTheSameExecutable)
{
    char pattern[] = "/tmp/qtsingleapp-test-XXXXXX";
    const QString runtime = mkdtemp(pattern), self = QCoreApplication::applicationFilePath(), copy = runtime + "/copy";
    std::filesystem::copy_file(self.toStdString(), copy.toStdString());
    const QStringList unshare = {"unshare", "--pid", "--fork", "--mount-proc", "--kill-child"};
    for (const QStringList& prefix : {QStringList(), unshare}) {
        SCOPED_TRACE(prefix.join(' ').toStdString());
        if (!prefix.isEmpty() && QProcess::execute("unshare", prefix.mid(1) << "true") != 0)
            GTEST_SKIP() << "pid namespaces are not available here (unshare refused)";
        QProcess first, second, other;
        EXPECT_EQ("running=0", Hold(first, QStringList(prefix) << self, runtime));
        EXPECT_EQ("running=1", Hold(second, QStringList(prefix) << self, runtime));
        EXPECT_EQ("running=0", Hold(other, QStringList(prefix) << copy, runtime));
        first.kill();
        first.waitForFinished();
        // A killed wrapper's child ends a moment later: poll, with a generous bound.
        std::string answer;
        for (int i = 0; i < 100 && answer != "running=0"; ++i, QThread::msleep(100)) {
            QProcess next;
            answer = Hold(next, QStringList(prefix) << self, runtime);
        }
        EXPECT_EQ("running=0", answer) << "the killed instance's lock still refuses";
    }
    std::filesystem::remove_all(runtime.toStdString());
}

int main(int argc, char** argv)
{
    if (argc > 1 && QByteArray(argv[1]) == "--hold") {
        QtSingleApplication app(argc, argv, true);
        printf("running=%d\n", app.isRunning() ? 1 : 0);
        fflush(stdout);
        while (fgetc(stdin) != EOF) continue;
        return 0;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
