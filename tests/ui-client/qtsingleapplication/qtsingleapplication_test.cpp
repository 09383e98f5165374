// QtSingleApplication across real processes: the test program is its own
// helper (--hold).
#include <gtest/gtest.h>

#include <stdlib.h>
#include <sys/stat.h>

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>

#include <QCoreApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <QStringList>

#include "qtsingleapplication.h"

namespace fs = std::filesystem;

namespace {

// Helper mode: report isRunning() on stdout, then hold the application (and
// with it the lock) until stdin reaches its end.
int RunHelper(int argc, char** argv)
{
    QtSingleApplication app(argc, argv, true);
    printf("running=%d\n", app.isRunning() ? 1 : 0);
    fflush(stdout);
    while (fgetc(stdin) != EOF) {
    }
    return 0;
}

std::string SelfPath()
{
    return fs::canonical("/proc/self/exe").string();
}

// A fresh folder per test, removed unless the test failed.
struct TempDir {
    std::string path = [] {
        char pattern[] = "/tmp/qtsingleapp-test-XXXXXX";
        return std::string(mkdtemp(pattern) ? pattern : "");
    }();
    ~TempDir()
    {
        std::error_code ec;
        if (!path.empty() && !::testing::Test::HasFailure())
            fs::remove_all(path, ec);
    }
};

class Instance {
public:
    // program is started directly, or through the given wrapper arguments.
    Instance(const std::string& runtimeDir, const std::string& program, QStringList args = {})
    {
        QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
        env.insert("XDG_RUNTIME_DIR", QString::fromStdString(runtimeDir));
        env.insert("QT_QPA_PLATFORM", "offscreen");
        process.setProcessEnvironment(env);
        process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        args << QString::fromStdString(program) << "--hold";
        process.start(args.takeFirst(), args);
    }
    ~Instance()
    {
        process.closeWriteChannel();
        if (process.state() != QProcess::NotRunning && !process.waitForFinished(10000))
            process.kill();
        process.waitForFinished(10000);
    }

    // The helper's isRunning() answer: 0 or 1, -1 when it said nothing.
    int Answer()
    {
        while (!process.canReadLine())
            if (!process.waitForReadyRead(15000))
                return -1;
        QByteArray line = process.readLine().trimmed();
        return line == "running=0" ? 0 : line == "running=1" ? 1 : -1;
    }

    // Lets the helper leave normally, releasing its lock.
    bool Finish()
    {
        process.closeWriteChannel();
        return process.waitForFinished(15000) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0;
    }

    // SIGKILL to the child that QProcess started (never another pid).
    bool Kill()
    {
        if (process.processId() <= 0)
            return false;
        process.kill();
        return process.waitForFinished(15000) && process.exitStatus() == QProcess::CrashExit;
    }

    QProcess process;
};

class SingleApplicationTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_FALSE(runtime.path.empty());
        ASSERT_EQ(0, chmod(runtime.path.c_str(), 0700));  // Qt insists on it
    }

    int LockFiles()
    {
        int count = 0;
        for (const auto& entry : fs::directory_iterator(runtime.path))
            count += entry.path().extension() == ".lock" ? 1 : 0;
        return count;
    }

    TempDir runtime;
};

TEST_F(SingleApplicationTest, SecondInstanceOfSameExecutableSeesFirst)
{
    Instance first(runtime.path, SelfPath());
    ASSERT_EQ(0, first.Answer());
    EXPECT_EQ(1, LockFiles()) << "the lock lives in the user's runtime folder";
    // The second is refused; the third shows the refused one left the lock alone.
    for (int i = 0; i < 2; ++i) {
        Instance later(runtime.path, SelfPath());
        EXPECT_EQ(1, later.Answer()) << i;
        EXPECT_TRUE(later.Finish());
    }

    ASSERT_TRUE(first.Finish());
    EXPECT_EQ(0, LockFiles()) << "a normal exit leaves its lock file behind";
    Instance after(runtime.path, SelfPath());
    EXPECT_EQ(0, after.Answer());
}

// Guards against a lock that outlives its owner: SIGKILL runs no destructor.
TEST_F(SingleApplicationTest, KilledFirstInstanceDoesNotBlockNextStart)
{
    {
        Instance first(runtime.path, SelfPath());
        ASSERT_EQ(0, first.Answer());
        ASSERT_TRUE(first.Kill());
    }
    EXPECT_EQ(1, LockFiles()) << "the killed instance should have left its file";
    Instance next(runtime.path, SelfPath());
    EXPECT_EQ(0, next.Answer());
    Instance another(runtime.path, SelfPath());
    EXPECT_EQ(1, another.Answer()) << "the next start did not take the lock over";
}

// Each instance runs as pid 1 of its own pid namespace, so the dead owner's
// pid names a live process with the same executable name: the new instance
// itself.
TEST_F(SingleApplicationTest, KilledInstanceInPidNamespaceDoesNotBlockNextOne)
{
    const QStringList unshare = {"unshare", "--pid", "--fork", "--mount-proc", "--kill-child"};
    if (QProcess::execute("unshare", QStringList(unshare.mid(1)) << "true") != 0)
        GTEST_SKIP() << "pid namespaces are not available here (unshare refused)";
    {
        Instance first(runtime.path, SelfPath(), unshare);
        ASSERT_EQ(0, first.Answer());
        // Kills unshare, whose --kill-child takes its child along.
        ASSERT_TRUE(first.Kill());
    }
    // The child dies asynchronously; the native lock goes with it.
    Instance next(runtime.path, SelfPath(), unshare);
    int answer = next.Answer();
    for (int tries = 0; answer == 1 && tries < 50; tries++) {
        usleep(100000);
        answer = Instance(runtime.path, SelfPath(), unshare).Answer();
    }
    EXPECT_EQ(0, answer);
}

TEST_F(SingleApplicationTest, CopyAtAnotherPathIsNotRefusedButALinkIs)
{
    TempDir elsewhere;
    ASSERT_FALSE(elsewhere.path.empty());
    const std::string copy = elsewhere.path + "/" + fs::path(SelfPath()).filename().string();
    fs::copy_file(SelfPath(), copy);
    fs::permissions(copy, fs::perms::owner_all);
    // A link resolves to the executable it names: the same program.
    const std::string link = elsewhere.path + "/link";
    fs::create_symlink(SelfPath(), link);

    Instance first(runtime.path, SelfPath());
    ASSERT_EQ(0, first.Answer());
    EXPECT_EQ(1, Instance(runtime.path, link).Answer());
    Instance other(runtime.path, copy);
    EXPECT_EQ(0, other.Answer());
    EXPECT_EQ(1, Instance(runtime.path, copy).Answer()) << "each copy excludes its own second start";
}


}  // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && strcmp(argv[1], "--hold") == 0)
        return RunHelper(argc, argv);
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
