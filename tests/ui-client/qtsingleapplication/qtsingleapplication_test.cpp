// The single-instance guard across real processes. The program is its own
// helper: with --hold it builds the application object, prints whether
// another instance runs and keeps the lock until it ends.
#include <gtest/gtest.h>

#include <filesystem>

#include <QCoreApplication>
#include <QProcess>

#include "qtsingleapplication/qtsingleapplication.h"

// Starts command with --hold; its answer, "running=0" or "running=1".
static std::string Hold(QProcess& process, QStringList command, const QString& runtime)
{
    process.setEnvironment(QProcess::systemEnvironment() << "XDG_RUNTIME_DIR=" + runtime);
    process.start(command.takeFirst(), command << "--hold");
    process.waitForReadyRead(30000);
    return process.readLine().trimmed().toStdString();
}

// Guards: a second start of the same executable let through, a copy at
// another path refused, a lock that outlives its owner. (Killed launchers in
// pid namespaces, whose stale pid then names the next one, are the scenario
// table's crash runs.)
TEST(SingleInstance, RefusesOnlyASecondLiveInstanceOfTheSameExecutable)
{
    char pattern[] = "/tmp/qtsingleapp-test-XXXXXX";
    const QString runtime = mkdtemp(pattern), self = QCoreApplication::applicationFilePath(),
                  copy = runtime + "/" + self.section('/', -1);
    std::filesystem::copy_file(self.toStdString(), copy.toStdString());
    QProcess first, second, other, next;
    EXPECT_EQ("running=0", Hold(first, {self}, runtime));
    EXPECT_EQ("running=1", Hold(second, {self}, runtime));
    EXPECT_EQ("running=0", Hold(other, {copy}, runtime));
    first.kill();
    first.waitForFinished();
    EXPECT_EQ("running=0", Hold(next, {self}, runtime)) << "the killed instance's lock still refuses";
    std::filesystem::remove_all(runtime.toStdString());
}

int main(int argc, char** argv)
{
    if (argc > 1 && QByteArray(argv[1]) == "--hold") {
        QtSingleApplication app(argc, argv, true);
        printf("running=%d\n", app.isRunning() ? 1 : 0);
        fflush(stdout);
        while (fgetc(stdin) != EOF)
            continue;
        return 0;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
