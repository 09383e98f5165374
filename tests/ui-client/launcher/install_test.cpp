// Installing the package with backup and rollback: real packages written
// with libarchive into this program's own bundle (service_bundle_main.cpp),
// real per-user folders under a temporary HOME.
//
// StopService is never reached here: HandlePackageUpgrade is only called
// where no client executable is installed, PrepareUserEnv everywhere else.
#include <gtest/gtest.h>

#include <archive.h>
#include <archive_entry.h>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <sched.h>
#include <string>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "log.h"
#include "mac-service.h"
#include "service_test_util.h"

using namespace servicetest;

namespace {

struct Entry {
    std::string path;
    std::string data;
    bool dir;
};

Entry Dir(const std::string& path)
{
    return {path, "", true};
}

Entry File(const std::string& path, const std::string& data)
{
    return {path, data, false};
}

void WritePackage(const std::string& file, const std::vector<Entry>& entries)
{
    fs::create_directories(fs::path(file).parent_path());
    archive* a = archive_write_new();
    archive_write_add_filter_gzip(a);
    archive_write_set_format_pax_restricted(a);
    ASSERT_EQ(archive_write_open_filename(a, file.c_str()), ARCHIVE_OK);
    for (const Entry& e : entries) {
        archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname(entry, e.path.c_str());
        archive_entry_set_filetype(entry, e.dir ? AE_IFDIR : AE_IFREG);
        archive_entry_set_perm(entry, e.dir ? 0755 : 0644);
        archive_entry_set_size(entry, static_cast<la_int64_t>(e.data.size()));
        ASSERT_EQ(archive_write_header(a, entry), ARCHIVE_OK) << e.path;
        if (!e.data.empty()) {
            ASSERT_EQ(archive_write_data(a, e.data.data(), e.data.size()), static_cast<la_ssize_t>(e.data.size()));
        }
        archive_entry_free(entry);
    }
    ASSERT_EQ(archive_write_close(a), ARCHIVE_OK);
    archive_write_free(a);
}

std::string NewInfo()
{
    return "[Version]\nbuild_version=312\n";
}

// The new version's entries and the tree they make below A.
const std::vector<Entry> kNewVersion = {
    Dir("Contents"),
    Dir("Contents/MacOS"),
    File("Contents/MacOS/nimbulo-pelora-ui", "#!/bin/sh\necho new\n"),
    Dir("Contents/Resources"),
    File("Contents/Resources/INFO", NewInfo()),
};

std::map<std::string, std::string> NewTree()
{
    return {{"Contents", "<dir>"},
            {"Contents/MacOS", "<dir>"},
            {"Contents/MacOS/nimbulo-pelora-ui", "#!/bin/sh\necho new\n"},
            {"Contents/Resources", "<dir>"},
            {"Contents/Resources/INFO", NewInfo()}};
}

std::string Pseudorandom(size_t n, unsigned seed)
{
    std::string s(n, '\0');
    for (size_t i = 0; i < n; ++i) {
        seed = seed * 1103515245u + 12345u;
        s[i] = static_cast<char>(seed >> 16);
    }
    return s;
}

class InstallTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        const char* bundle = getenv("NIMBULO_TEST_BUNDLE");
        ASSERT_NE(bundle, nullptr);
        package = std::string(bundle) + "/Contents/Resources/package/nimbulo.spk";
        fs::remove(package);
        home = dir.path() + "/home";
        root = home + "/.Nimbulo";
        app = root + "/Nimbulo.app";
        fs::create_directories(home);
        setenv("HOME", home.c_str(), 1);
        logPath = dir.path() + "/service.log";
        WriteFile(dir.path() + "/debug", "service_debug=7\n");
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, logPath.c_str(), (dir.path() + "/debug").c_str(), 50), 0);
    }

    void InstallOld()
    {
        WriteFile(app + "/Contents/MacOS/nimbulo-pelora-ui", "#!/bin/sh\necho old\n");
        WriteFile(app + "/Contents/Resources/INFO", "[Version]\nbuild_version=310\n");
        WriteFile(app + "/Contents/Resources/data.bin", Pseudorandom(70000, 7));
        fs::create_directories(app + "/Contents/Frameworks");
    }

    std::string Backup(int index) const { return app + "_tmp" + (index == 0 ? "" : std::to_string(index)); }

    // The messages of the service itself (extractor and file operations
    // have their own tests).
    std::vector<std::string> ServiceLog() const
    {
        std::vector<std::string> own;
        for (const std::string& m : LogMessages(logPath))
            if (m.find(" nimbulo-service(") != std::string::npos || m.find(" mac/mac-service(") != std::string::npos)
                own.push_back(m);
        return own;
    }

    std::string ExtractLine() const
    {
        return "[INFO] nimbulo-service(N): extract package: '" + package + "' -> '" + app + "'";
    }
    std::string BackupFailure(int index) const
    {
        return "[ERROR] nimbulo-service(N): failed to backup app from '" + app + "' -> '" + Backup(index) + "'";
    }

    TempDir dir;
    std::string package;
    std::string home;
    std::string root;
    std::string app;
    std::string logPath;
};

const char* const kReady = "[INFO] nimbulo-service(N): user installation is ready, removing backup app";
const char* const kRollback = "[ERROR] nimbulo-service(N): Failed to extract package, rollback to old installation";
const char* const kNoRollback =
    "[ERROR] nimbulo-service(N): Failed to extract package, and no old installation to rollback";

TEST_F(InstallTest, FirstInstallation)
{
    WritePackage(package, kNewVersion);
    MacService service;
    EXPECT_EQ(service.HandlePackageUpgrade(), 0);
    EXPECT_EQ(Snapshot(app), NewTree());
    EXPECT_FALSE(fs::exists(Backup(0)));
    std::vector<std::string> expected = {ExtractLine(), kReady};
    EXPECT_EQ(ServiceLog(), expected);
}

// A without its client executable: nothing is stopped (StopService would
// log a line of its own), the backup is made at once and removed after the
// installation.
TEST_F(InstallTest, ApplicationWithoutClientIsBackedUpWithoutStopping)
{
    WritePackage(package, kNewVersion);
    WriteFile(app + "/Contents/Resources/INFO", "old");
    MacService service;
    EXPECT_EQ(service.HandlePackageUpgrade(), 0);
    EXPECT_EQ(Snapshot(app), NewTree());
    EXPECT_FALSE(fs::exists(Backup(0)));
    std::vector<std::string> expected = {ExtractLine(), kReady};
    EXPECT_EQ(ServiceLog(), expected);
}

// Name 0 left non-empty by an interrupted run: stepped over, and both names
// are gone after the installation.
TEST_F(InstallTest, StaleBackupAtNameZero)
{
    WritePackage(package, kNewVersion);
    InstallOld();
    WriteFile(Backup(0) + "/leftover", "stale");
    MacService service;
    EXPECT_EQ(service.PrepareUserEnv(), 0);
    EXPECT_EQ(Snapshot(app), NewTree());
    EXPECT_FALSE(fs::exists(Backup(0)));
    EXPECT_FALSE(fs::exists(Backup(1)));
    std::vector<std::string> expected = {BackupFailure(0), ExtractLine(), kReady};
    EXPECT_EQ(ServiceLog(), expected);
}

TEST_F(InstallTest, StaleBackupsAtAllTenNames)
{
    WritePackage(package, kNewVersion);
    InstallOld();
    for (int i = 0; i < 10; ++i)
        WriteFile(Backup(i) + "/leftover", "stale " + std::to_string(i));
    auto before = Snapshot(root);
    MacService service;
    EXPECT_EQ(service.PrepareUserEnv(), -1);
    EXPECT_EQ(Snapshot(root), before) << "A and the stale backups must stay untouched";
    std::vector<std::string> expected;
    for (int i = 0; i < 10; ++i)
        expected.push_back(BackupFailure(i));
    expected.push_back("[ERROR] nimbulo-service(N): failed to backup app from '" + app + "' -> '" + Backup(9) +
                       "' at max retries, exiting");
    EXPECT_EQ(ServiceLog(), expected);
}

// Extraction failing after the backup: A is the old one again, byte for
// byte, and the backup name is free again.
TEST_F(InstallTest, ExtractionFailureRollsBack)
{
    struct Row {
        const char* what;
        bool writePackage;
        std::vector<Entry> entries;
    };
    std::vector<Entry> dotdot = kNewVersion;
    dotdot.push_back(File("../escape", "outside"));
    const std::vector<Row> rows = {
        {"entry with ..", true, dotdot},
        {"no package", false, {}},
        {"empty package", true, {}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        fs::remove_all(root);
        fs::remove(logPath);
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, logPath.c_str(), (dir.path() + "/debug").c_str(), 50), 0);
        fs::remove(package);
        if (row.writePackage)
            WritePackage(package, row.entries);
        InstallOld();
        auto old = Snapshot(app);
        MacService service;
        EXPECT_EQ(service.PrepareUserEnv(), -1);
        EXPECT_EQ(Snapshot(app), old);
        EXPECT_FALSE(fs::exists(Backup(0)));
        EXPECT_FALSE(fs::exists(root + "/escape"));
        std::vector<std::string> expected = {ExtractLine(), kRollback};
        EXPECT_EQ(ServiceLog(), expected);
    }
}

TEST_F(InstallTest, ExtractionFailureWithoutBackupLeavesThePartialApplication)
{
    std::vector<Entry> entries = kNewVersion;
    entries.push_back(File("../escape", "outside"));
    WritePackage(package, entries);
    MacService service;
    EXPECT_EQ(service.PrepareUserEnv(), -1);
    EXPECT_EQ(Snapshot(app), NewTree());
    EXPECT_FALSE(fs::exists(root + "/escape"));
    std::vector<std::string> expected = {ExtractLine(), kNoRollback};
    EXPECT_EQ(ServiceLog(), expected);
}

// R is a file, so A can be neither found nor created.
TEST_F(InstallTest, ApplicationFolderCannotBeCreated)
{
    WritePackage(package, kNewVersion);
    WriteFile(root, "not a folder");
    MacService service;
    EXPECT_EQ(service.PrepareUserEnv(), -1);
    EXPECT_EQ(ReadFile(root), "not a folder");
    std::vector<std::string> expected = {"[ERROR] nimbulo-service(N): failed to create folder: '" + app + "'",
                                         kNoRollback};
    EXPECT_EQ(ServiceLog(), expected);
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
    std::vector<std::string> expected = {line, line};
    EXPECT_EQ(ServiceLog(), expected);
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
    entries.push_back(File("Contents/Resources/payload.bin", Pseudorandom(3 * 1024 * 1024, 11)));
    WritePackage(package, entries);
    InstallOld();
    auto old = Snapshot(app);
    MacService service;
    EXPECT_EQ(service.PrepareUserEnv(), -1);
    EXPECT_EQ(Snapshot(app), old);
    EXPECT_FALSE(fs::exists(Backup(0)));
    std::vector<std::string> expected = {ExtractLine(), kRollback};
    EXPECT_EQ(ServiceLog(), expected);
    umount2(root.c_str(), MNT_DETACH);
}

TEST_F(InstallTest, FSCopyPathOfATreeAndOfAFile)
{
    std::string src = dir.path() + "/src";
    WriteFile(src + "/a.txt", "alpha");
    WriteFile(src + "/sub/b.bin", Pseudorandom(100000, 3));
    WriteFile(src + "/sub/deeper/c", "");
    fs::create_directories(src + "/empty");
    MacService service;

    EXPECT_EQ(service.FSCopyPath(src.c_str(), (dir.path() + "/dst").c_str()), 0);
    EXPECT_EQ(Snapshot(dir.path() + "/dst"), Snapshot(src));

    EXPECT_EQ(service.FSCopyPath((src + "/sub/b.bin").c_str(), (dir.path() + "/single").c_str()), 0);
    EXPECT_EQ(ReadFile(dir.path() + "/single"), Pseudorandom(100000, 3));

    EXPECT_EQ(service.FSCopyPath((dir.path() + "/absent").c_str(), (dir.path() + "/nothing").c_str()), -1);
    EXPECT_FALSE(fs::exists(dir.path() + "/nothing"));

    std::vector<std::string> log = ServiceLog();
    EXPECT_EQ(CountContaining(log, "[DEBUG] nimbulo-service(N): copy from '" + src + "' to '" + dir.path() +
                                       "/dst'"),
              1);
    EXPECT_EQ(CountContaining(log, "[DEBUG] nimbulo-service(N): copy from '" + src + "/sub/deeper' to '"), 1);
    EXPECT_EQ(log.back(), "[ERROR] nimbulo-service(N): FSCopyPath: source path '" + dir.path() + "/absent' does not exist");
}

// A folder whose listing cannot be opened: the destination is created, stays
// empty, and the copy counts as done. Root reads any folder, so as root the
// copy runs in a child that has become nobody.
TEST_F(InstallTest, FSCopyPathOfAnUnlistableFolder)
{
    std::string src = dir.path() + "/locked";
    WriteFile(src + "/secret", "x");
    fs::create_directories(dir.path() + "/out");
    chmod(dir.path().c_str(), 0755);
    chmod((dir.path() + "/out").c_str(), 0777);
    chmod(src.c_str(), 0);
    std::string dst = dir.path() + "/out/copy";

    MacService service;
    int result = -100;
    pid_t child = fork();
    if (child == 0) {
        if (geteuid() == 0 && (setgid(65534) != 0 || setuid(65534) != 0))
            _exit(100);
        DIR* probe = opendir(src.c_str());
        if (probe != nullptr) {
            closedir(probe);
            _exit(101);
        }
        _exit(service.FSCopyPath(src.c_str(), dst.c_str()) == 0 ? 0 : 1);
    }
    int status = 0;
    waitpid(child, &status, 0);
    chmod(src.c_str(), 0755);
    ASSERT_TRUE(WIFEXITED(status));
    if (WEXITSTATUS(status) == 100 || WEXITSTATUS(status) == 101)
        GTEST_SKIP() << "cannot make a folder unlistable for the copying process here";
    result = WEXITSTATUS(status);
    EXPECT_EQ(result, 0);
    EXPECT_TRUE(fs::is_directory(dst));
    EXPECT_TRUE(fs::is_empty(dst));
    std::vector<std::string> expected = {
        "[DEBUG] nimbulo-service(N): copy from '" + src + "' to '" + dst + "'",
        "[WARNING] nimbulo-service(N): FSCopyPath: failed to create handle  for src '" + src + "' failed"};
    EXPECT_EQ(ServiceLog(), expected);
}

}  // namespace
