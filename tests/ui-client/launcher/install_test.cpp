// Installing the package with backup and rollback: real packages in this
// program's own bundle (service_bundle_main.cpp), real per-user folders under
// a temporary HOME. StopService is never reached: HandlePackageUpgrade only
// runs where no client executable is installed.
#include <dirent.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/stat.h>

#include <cstring>
#include <functional>
#include <optional>

#include "log.h"
#include "mac-service.h"
#include "service_test_util.h"

using namespace servicetest;

namespace {

const std::vector<Entry> kNewVersion = {
    {"Contents", "", true},
    {"Contents/MacOS", "", true},
    {"Contents/MacOS/nimbulo-pelora-ui", "#!/bin/sh\necho new\n"},
    {"Contents/Resources", "", true},
    {"Contents/Resources/INFO", "[Version]\nbuild_version=312\n"},
};

std::map<std::string, std::string> TreeOf(const std::vector<Entry>& entries)
{
    std::map<std::string, std::string> tree;
    for (const Entry& e : entries)
        tree[e.path] = e.dir ? "<dir>" : e.data;
    return tree;
}

const char* const kReady = "[INFO] nimbulo-service(N): user installation is ready, removing backup app";
const char* const kRollback = "[ERROR] nimbulo-service(N): Failed to extract package, rollback to old installation";
const char* const kNoRollback =
    "[ERROR] nimbulo-service(N): Failed to extract package, and no old installation to rollback";

class InstallTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        const char* bundle = getenv("NIMBULO_TEST_BUNDLE");
        ASSERT_NE(bundle, nullptr);
        package = std::string(bundle) + "/Contents/Resources/package/nimbulo.spk";
        setenv("HOME", home.c_str(), 1);
        WriteFile(dir.path() + "/debug", "service_debug=7\n");
        Reset();
    }

    // An empty HOME, no package and a fresh log.
    void Reset()
    {
        fs::remove_all(home);
        fs::create_directories(home);
        fs::remove(package);
        fs::remove(logPath);
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, logPath.c_str(), (dir.path() + "/debug").c_str(), 50), 0);
    }

    void InstallOld()
    {
        WriteFile(app + "/Contents/MacOS/nimbulo-pelora-ui", "#!/bin/sh\necho old\n");
        WriteFile(app + "/Contents/Resources/INFO", "[Version]\nbuild_version=310\n");
        WriteFile(app + "/Contents/Resources/data.bin", Bytes(70000, 7));
        fs::create_directories(app + "/Contents/Frameworks");
    }

    std::string Backup(int index) const { return app + "_tmp" + (index == 0 ? "" : std::to_string(index)); }

    // The service's own messages; extractor and file operations have tests of their own.
    std::vector<std::string> ServiceLog() const
    {
        std::vector<std::string> own;
        for (const std::string& m : LogMessages(logPath))
            if (m.find(" nimbulo-service(") != std::string::npos || m.find(" mac/mac-service(") != std::string::npos)
                own.push_back(m);
        return own;
    }

    std::string BackupFailure(int index) const
    {
        return "[ERROR] nimbulo-service(N): failed to backup app from '" + app + "' -> '" + Backup(index) + "'";
    }

    TempDir dir;
    std::string package, home = dir.path() + "/home", root = home + "/.Nimbulo", app = root + "/Nimbulo.app";
    std::string logPath = dir.path() + "/service.log";
    std::string extractLine = "[INFO] nimbulo-service(N): extract package: '";
};

TEST_F(InstallTest, InstallationStates)
{
    // What A must hold afterwards: the new tree, the old one byte for byte,
    // or the whole of HOME untouched.
    enum After { kNew, kOld, kUntouched };
    struct Row {
        const char* what;
        std::function<void()> prepare;
        std::optional<std::vector<Entry>> package;
        bool handle;                 // HandlePackageUpgrade, else PrepareUserEnv
        int result;
        After after;
        std::vector<std::string> log;
    };
    const std::string extract = extractLine + package + "' -> '" + app + "'";
    std::vector<Entry> dotdot = kNewVersion;
    dotdot.push_back({"../escape", "outside"});
    std::vector<std::string> tenFailures;
    for (int i = 0; i < 10; ++i)
        tenFailures.push_back(BackupFailure(i));
    tenFailures.push_back("[ERROR] nimbulo-service(N): failed to backup app from '" + app + "' -> '" + Backup(9) +
                          "' at max retries, exiting");
    const std::vector<Row> rows = {
        {"first installation", [] {}, kNewVersion, true, 0, kNew, {extract, kReady}},
        // No client executable: nothing to stop, the backup is made and removed.
        {"application without client", [&] { WriteFile(app + "/Contents/Resources/INFO", "old"); }, kNewVersion,
         true, 0, kNew, {extract, kReady}},
        // Left by an interrupted run: stepped over, both names gone afterwards.
        {"stale backup at name 0",
         [&] {
             InstallOld();
             WriteFile(Backup(0) + "/leftover", "stale");
         },
         kNewVersion, false, 0, kNew, {BackupFailure(0), extract, kReady}},
        {"stale backups at all ten names",
         [&] {
             InstallOld();
             for (int i = 0; i < 10; ++i)
                 WriteFile(Backup(i) + "/leftover", "stale " + std::to_string(i));
         },
         kNewVersion, false, -1, kUntouched, tenFailures},
        {"entry with .. after a backup", [&] { InstallOld(); }, dotdot, false, -1, kOld, {extract, kRollback}},
        {"no package after a backup", [&] { InstallOld(); }, std::nullopt, false, -1, kOld, {extract, kRollback}},
        {"empty package after a backup", [&] { InstallOld(); }, std::vector<Entry>{}, false, -1, kOld, {extract, kRollback}},
        {"entry with .. without a backup", [] {}, dotdot, false, -1, kNew, {extract, kNoRollback}},
        // R is a file, so A can be neither found nor created.
        {"application folder cannot be created", [&] { WriteFile(root, "not a folder"); }, kNewVersion, false, -1,
         kUntouched, {"[ERROR] nimbulo-service(N): failed to create folder: '" + app + "'", kNoRollback}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        Reset();
        if (row.package) {
            ASSERT_TRUE(WriteArchive(package, Kind::TarGz, *row.package));
        }
        row.prepare();
        const auto oldApp = Snapshot(app), oldHome = Snapshot(home);
        MacService service;
        EXPECT_EQ(row.handle ? service.HandlePackageUpgrade() : service.PrepareUserEnv(), row.result);
        if (row.after == kUntouched) {
            EXPECT_EQ(Snapshot(home), oldHome);
        } else {
            EXPECT_EQ(Snapshot(app), row.after == kNew ? TreeOf(kNewVersion) : oldApp);
            EXPECT_FALSE(fs::exists(Backup(0)));
            EXPECT_FALSE(fs::exists(Backup(1)));
        }
        EXPECT_FALSE(fs::exists(root + "/escape"));
        EXPECT_EQ(ServiceLog(), row.log);
    }
}

TEST_F(InstallTest, AgedFolderIsRemovedWithItsLineWhetherOrNotItExists)
{
    const std::string line = "[INFO] nimbulo-service(N): removing aged app folder " + root + "/app";
    WriteFile(root + "/app/Contents/MacOS/old", "aged");
    WriteFile(root + "/keep", "kept");
    MacService service;
    service.RemoveAgedFolders();
    EXPECT_FALSE(fs::exists(root + "/app"));
    EXPECT_EQ(ReadFile(root + "/keep"), "kept");
    service.RemoveAgedFolders();
    EXPECT_EQ(ServiceLog(), (std::vector<std::string>{line, line}));
}

// The per-user root on a 1 MiB volume and a package that does not fit: the
// installation fails and the old one is back, byte for byte.
TEST_F(InstallTest, FullVolumeRollsBack)
{
    if (unshare(CLONE_NEWNS) != 0)
        GTEST_SKIP() << "no mount namespace of our own here (unshare: " << strerror(errno)
                     << "); a test mount could leak into the host";
    if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0)
        GTEST_SKIP() << "cannot make mounts private (" << strerror(errno) << ")";
    fs::create_directories(root);
    if (mount("tmpfs", root.c_str(), "tmpfs", 0, "size=1m,mode=0755") != 0)
        GTEST_SKIP() << "mounting a tmpfs is not permitted here (" << strerror(errno) << ")";
    std::vector<Entry> entries = kNewVersion;
    entries.push_back({"Contents/Resources/payload.bin", Bytes(3 * 1024 * 1024, 11)});
    ASSERT_TRUE(WriteArchive(package, Kind::TarGz, entries));
    InstallOld();
    auto old = Snapshot(app);
    MacService service;
    EXPECT_EQ(service.PrepareUserEnv(), -1);
    EXPECT_EQ(Snapshot(app), old);
    EXPECT_FALSE(fs::exists(Backup(0)));
    EXPECT_EQ(ServiceLog(), (std::vector<std::string>{extractLine + package + "' -> '" + app + "'", kRollback}));
    umount2(root.c_str(), MNT_DETACH);
}

TEST_F(InstallTest, FSCopyPathOfATreeAndOfAFile)
{
    const std::string src = dir.path() + "/src", d = dir.path();
    WriteFile(src + "/a.txt", "alpha");
    WriteFile(src + "/sub/b.bin", Bytes(100000, 3));
    WriteFile(src + "/sub/deeper/c", "");
    fs::create_directories(src + "/empty");
    MacService service;
    EXPECT_EQ(service.FSCopyPath(src.c_str(), (d + "/dst").c_str()), 0);
    EXPECT_EQ(Snapshot(d + "/dst"), Snapshot(src));
    EXPECT_EQ(service.FSCopyPath((src + "/sub/b.bin").c_str(), (d + "/single").c_str()), 0);
    EXPECT_EQ(ReadFile(d + "/single"), Bytes(100000, 3));
    EXPECT_EQ(service.FSCopyPath((d + "/absent").c_str(), (d + "/nothing").c_str()), -1);
    EXPECT_FALSE(fs::exists(d + "/nothing"));
    const std::string log = Join(ServiceLog());
    EXPECT_NE(log.find("[DEBUG] nimbulo-service(N): copy from '" + src + "' to '" + d + "/dst'\n"), std::string::npos);
    EXPECT_NE(log.find("[DEBUG] nimbulo-service(N): copy from '" + src + "/sub/deeper' to '"), std::string::npos);
    EXPECT_EQ(ServiceLog().back(), "[ERROR] nimbulo-service(N): FSCopyPath: source path '" + d + "/absent' does not exist");
}

// A folder whose listing cannot be opened: the destination is created, stays
// empty, and the copy counts as done. Root reads any folder, so as root the
// copy runs in a child that has become nobody.
TEST_F(InstallTest, FSCopyPathOfAnUnlistableFolder)
{
    const std::string src = dir.path() + "/locked", dst = dir.path() + "/out/copy";
    WriteFile(src + "/secret", "x");
    fs::create_directories(dir.path() + "/out");
    chmod(dir.path().c_str(), 0755);
    chmod((dir.path() + "/out").c_str(), 0777);
    chmod(src.c_str(), 0);
    MacService service;
    pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
            _exit(100);
        DIR* probe = opendir(src.c_str());
        if (probe != nullptr)
            _exit(101);
        _exit(service.FSCopyPath(src.c_str(), dst.c_str()) == 0 ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    chmod(src.c_str(), 0755);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) >= 100)
        GTEST_SKIP() << "cannot make a folder unlistable for the copying process here";
    EXPECT_EQ(WEXITSTATUS(status), 0);
    EXPECT_TRUE(fs::is_directory(dst) && fs::is_empty(dst));
    EXPECT_EQ(ServiceLog(), (std::vector<std::string>{
                                "[DEBUG] nimbulo-service(N): copy from '" + src + "' to '" + dst + "'",
                                "[WARNING] nimbulo-service(N): FSCopyPath: failed to create handle  for src '" + src +
                                    "' failed"}));
}

}  // namespace
