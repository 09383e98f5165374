// File operations on real folders, built with the standard library so that a
// fault in libfile cannot hide itself. Log lines are part of the contract and
// are compared exactly, with the source line number masked.
#include "file-op.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <grp.h>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <sys/mount.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "log.h"

namespace fs = std::filesystem;

namespace {

using Lines = std::vector<std::string>;
std::string g_logPath;

std::string Err(const std::string& text) { return "[ERROR] file-op(#): " + text; }
void WriteFile(const std::string& path, const std::string& data) { std::ofstream(path, std::ios::binary) << data; }
std::string ReadFile(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Runs fn in a child process under an unprivileged identity (root reads and lists whatever the permission bits
// say) and returns its exit status; 100 when the identity cannot be taken.
int RunUnprivileged(const std::function<int()>& fn)
{
    pid_t pid = fork();
    if (pid == 0)
        _exit(geteuid() == 0 && (setgroups(0, nullptr) != 0 || setgid(65534) != 0 || setuid(65534) != 0) ? 100 : fn());
    int status = 0;
    return pid > 0 && waitpid(pid, &status, 0) == pid && WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

// A 1 MiB tmpfs at P("vol"), for moves between volumes and a volume that fills up. Containers often refuse mount(2).
#define MOUNT_OR_SKIP()                                                                                    \
    fs::create_directory(P("vol"));                                                                        \
    if (mount("tmpfs", P("vol").c_str(), "tmpfs", 0, "size=1m") != 0)                                      \
        GTEST_SKIP() << "mounting a tmpfs is not permitted here (" << strerror(errno) << ")";              \
    mounted_ = true

class FileOpTest : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        char logDir[] = "/tmp/fileop-log.XXXXXX";
        ASSERT_NE(mkdtemp(logDir), nullptr);
        WriteFile(std::string(logDir) + "/levels", "file_op_debug=7\n");
        g_logPath = std::string(logDir) + "/t.log";
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, g_logPath, std::string(logDir) + "/levels", 50), 0);
    }
    static void TearDownTestSuite()
    {
        Logger::Destroy();
        fs::remove_all(fs::path(g_logPath).parent_path());
    }
    void SetUp() override
    {
        char dir[] = "/tmp/fileop.XXXXXX";
        ASSERT_NE(mkdtemp(dir), nullptr);
        root_ = fs::canonical(dir).string();  // the exact-name test compares against the stored path
        MarkLog();
    }
    void TearDown() override
    {
        if (mounted_)
            umount2(P("vol").c_str(), MNT_DETACH);
        std::error_code ignored;
        fs::permissions(P("locked"), fs::perms::all, ignored);  // unreadable to its owner otherwise
        fs::remove_all(root_, ignored);
    }
    std::string P(const std::string& rest) const { return root_ + "/" + rest; }
    void MarkLog() { logStart_ = fs::file_size(g_logPath); }

    // Log lines since MarkLog() that start with tag, without time stamp and with the source line shown as '#'.
    Lines NewLog(const std::string& tag = "") const
    {
        static const std::regex kLineNumber("file-op\\(\\d+\\)");
        std::istringstream text(ReadFile(g_logPath).substr(logStart_));
        Lines lines;
        for (std::string line; std::getline(text, line);) {
            line = std::regex_replace(line.substr(std::min(line.find('['), line.size())), kLineNumber, "file-op(#)");
            if (line.compare(0, tag.size(), tag) == 0)
                lines.push_back(line);
        }
        return lines;
    }
    // Runs fn with the working folder at root_.
    template <class Fn> void InRoot(Fn fn)
    {
        std::string oldCwd = fs::current_path().string();
        ASSERT_EQ(chdir(root_.c_str()), 0);
        fn();
        ASSERT_EQ(chdir(oldCwd.c_str()), 0);
    }

    std::string root_;
    uintmax_t logStart_ = 0;
    bool mounted_ = false;
};

TEST_F(FileOpTest, GetFileInfoOfMissingPathsSucceedsWithNothingThere)
{
    WriteFile(P("file"), "x");
    struct Row { std::string path; int result; const char* name; } rows[] = {
        {P("x/y"), 0, "y"},
        {P("x/"), 0, ""},
        {P("file/below"), -1, nullptr},  // ENOTDIR is a failure, not absence
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.path);
        _FILE_INFO_tag info;
        info.size = 99;
        info.type = 3;
        ASSERT_EQ(GetFileInfo(row.path, info), row.result);
        if (row.result != 0) {
            EXPECT_EQ(info.size, 99) << "untouched";
            continue;
        }
        EXPECT_FALSE(info.exists);
        EXPECT_STREQ(info.name.c_str(), row.name);
        EXPECT_STREQ(info.path.c_str(), row.path.c_str());
        EXPECT_EQ(info.type, FILE_TYPE_NONE);
        EXPECT_EQ(info.size, 0);
        EXPECT_EQ(info.mtime, 0);
    }
}

TEST_F(FileOpTest, GetFileInfoTypesComeFromTheObjectNotItsTarget)
{
    WriteFile(P("file"), "12345");
    fs::create_directory(P("dir"));
    fs::create_symlink("dir", P("link"));
    fs::create_symlink("nowhere", P("dangling"));
    ASSERT_EQ(mkfifo(P("fifo").c_str(), 0644), 0);
    int sock = socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un addr = {};
    addr.sun_family = AF_UNIX;
    snprintf(addr.sun_path, sizeof(addr.sun_path), "%s", P("sock").c_str());
    ASSERT_EQ(bind(sock, reinterpret_cast<sockaddr*>(&addr), sizeof(addr)), 0);

    struct Row { std::string path; int type; int64_t size; /* -1: not checked */ } rows[] = {
        {P("file"), FILE_TYPE_FILE, 5},      {P("dir"), FILE_TYPE_DIR, -1},    {P("link"), FILE_TYPE_LINK, 3},
        {P("dangling"), FILE_TYPE_LINK, 7},  {"/dev/null", FILE_TYPE_DEVICE, -1}, {P("fifo"), FILE_TYPE_FIFO, -1},
        {P("sock"), FILE_TYPE_SOCKET, -1},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.path);
        _FILE_INFO_tag info;
        ASSERT_EQ(GetFileInfo(row.path, info), 0);
        struct stat st;
        ASSERT_EQ(lstat(row.path.c_str(), &st), 0);
        EXPECT_TRUE(info.exists);
        EXPECT_EQ(info.type, row.type);
        EXPECT_TRUE(row.size < 0 || info.size == row.size) << info.size;
        // A shared device may be touched meanwhile.
        EXPECT_TRUE(row.type == FILE_TYPE_DEVICE || info.mtime == static_cast<int32_t>(st.st_mtime));
        EXPECT_EQ(info.mode, st.st_mode);
        EXPECT_EQ(info.dev, static_cast<int64_t>(st.st_dev));
        EXPECT_STREQ(info.path.c_str(), row.path.c_str()) << "a final link stays the link itself";
        EXPECT_STREQ(info.name.c_str(), fs::path(row.path).filename().c_str());
    }
    close(sock);
}

TEST_F(FileOpTest, GetFileInfoResolvesRelativePathsAndLinkedFoldersAndLogsBoth)
{
    fs::create_directories(P("real/sub"));
    WriteFile(P("real/sub/f"), "");
    fs::create_symlink("real", P("alias"));
    _FILE_INFO_tag info;
    InRoot([&] { EXPECT_EQ(GetFileInfo("real/./sub/f", info), 0); });
    EXPECT_STREQ(info.path.c_str(), P("real/sub/f").c_str());
    EXPECT_EQ(NewLog(), (Lines{"[DEBUG] file-op(#): Input file path = [real/./sub/f].",
                               "[DEBUG] file-op(#): FSRefMakePath outTargetPath path = [" + P("real/sub/f") + "]."}));
    ASSERT_EQ(GetFileInfo(P("alias/sub/../sub/f"), info), 0);
    EXPECT_STREQ(info.path.c_str(), P("real/sub/f").c_str());
    EXPECT_STREQ(info.name.c_str(), "f");
}

TEST_F(FileOpTest, IsFileExistExactOnlyForTheStoredSpelling)
{
    fs::create_directory(P("real"));
    WriteFile(P("real/f"), "");
    fs::create_symlink("real", P("alias"));
    const std::string nfd = "e\xcc\x81";
    WriteFile(P(nfd), "");
    struct Row { std::string path; bool loose, exact; } rows[] = {
        {"", false, false},
        {P("real/f"), true, true},
        {P("alias"), true, true},          // the link itself
        {P("alias/f"), true, false},       // through a linked folder
        {"real/f", true, false},           // relative
        {P("real/./f"), true, false},
        {P("real/F"), false, false},       // this volume keeps case apart
        {P("missing"), false, false},
        {P(nfd), true, true},              // the stored form passes though the comparison is made composed
        {P("\xc3\xa9"), false, false},     // a different name on this volume
    };
    InRoot([&] {
        for (const Row& row : rows) {
            EXPECT_EQ(IsFileExist(row.path, false), row.loose) << row.path;
            EXPECT_EQ(IsFileExist(row.path, true), row.exact) << row.path;
        }
    });
}

TEST_F(FileOpTest, FSStatOfMissingPathLeavesTheRecordAlone)
{
    WriteFile(P("f"), "abc");
    fs::create_symlink(root_, P("alias"));
    _FILE_INFO_tag info;
    EXPECT_EQ(FSStat("", info, false), -1);
    info.size = 42;
    info.exists = true;
    EXPECT_EQ(FSStat(P("missing"), info, false), 0);
    EXPECT_FALSE(info.exists);
    EXPECT_EQ(info.size, 42);
    info.exists = true;
    EXPECT_EQ(FSStat(P("alias/f"), info, true), 0);
    EXPECT_FALSE(info.exists);
    EXPECT_EQ(FSStat(P("alias/f"), info, false), 0);
    EXPECT_TRUE(info.exists);
    EXPECT_EQ(info.size, 3);
    EXPECT_STREQ(info.path.c_str(), P("f").c_str());
}

TEST(FileOpPathTest, ParentBaseAndParentFolder)
{
    const std::pair<const char*, const char*> parents[] = {
        {"name", "/"}, {"/a", "/"}, {"/", "/"}, {"/a/b/", "/a/b"}, {"/a/b", "/a"}, {"a/b", "a"}, {"", "/"},
    };
    for (const auto& row : parents)
        EXPECT_STREQ(FSParentPath(row.first).c_str(), row.second) << row.first;
    const std::pair<const char*, const char*> bases[] = {{"/a/b/", ""}, {"/a/b", "b"}, {"name", "name"}, {"/", ""},
                                                         {"", ""}};
    for (const auto& row : bases)
        EXPECT_STREQ(FSBaseName(row.first).c_str(), row.second) << row.first;
    struct Row { const char *parent, *child; bool result; } folders[] = {
        {"/a", "/a", true},    {"/a", "/a/b", true},  {"/a", "/ab", false},
        {"/a/b", "/a", false}, {"/a", "/b/c", false}, {"", "/x", true},
    };
    for (const Row& row : folders)
        EXPECT_EQ(FSIsParentFolder(row.parent, row.child), row.result) << row.parent << " " << row.child;
}

TEST_F(FileOpTest, FSMKDirPCreatesEveryMissingFolderWithTheGivenMode)
{
    mode_t old = umask(022);
    ustring path = P("a/b/c/");
    char* stop = nullptr;
    EXPECT_EQ(FSMKDirP(path, &stop, false, 0700), 0);
    EXPECT_EQ(stop, path.c_str() + path.length() - 1);  // the trailing '/'
    EXPECT_EQ(fs::status(P("a/b/c")).permissions(), fs::perms::owner_all);
    ustring keepMask = P("a/d");
    EXPECT_EQ(FSMKDirP(keepMask, &stop, false, 0xFFFF), 0);
    EXPECT_EQ(stop, keepMask.c_str() + keepMask.length());
    EXPECT_EQ(static_cast<int>(fs::status(P("a/d")).permissions()), 0755);
    EXPECT_EQ(umask(old), 022) << "the mask is back";

    fs::create_symlink("a", P("link"));  // a link to a folder on the way is a folder
    EXPECT_EQ(FSMKDirP(P("link/e"), nullptr, false, 0xFFFF), 0);
    EXPECT_TRUE(fs::is_directory(P("a/e")));
    EXPECT_EQ(FSMKDirP("", nullptr, false, 0xFFFF), -1);
    EXPECT_TRUE(NewLog().empty());
}

TEST_F(FileOpTest, FSMKDirPStopsAtAFileUnlessReplacing)
{
    fs::create_directory(P("a"));
    WriteFile(P("a/b"), "file");
    ustring through = P("a/b/c/d");
    char* stop = nullptr;
    EXPECT_EQ(FSMKDirP(through, &stop, false, 0xFFFF), -1);
    EXPECT_EQ(errno, ENOTDIR);
    EXPECT_STREQ(stop, "/d");  // ends the component that failed
    const std::string info = "[INFO] file-op(#): FSMKDirP: path: " + P("a/b");
    EXPECT_EQ(NewLog(), Lines{info + " is symbolic link pointed to folder"});

    MarkLog();
    ustring atEnd = P("a/b");
    EXPECT_EQ(FSMKDirP(atEnd, &stop, false, 0xFFFF), -1);
    EXPECT_EQ(errno, EEXIST);
    EXPECT_EQ(stop, atEnd.c_str() + atEnd.length());
    EXPECT_EQ(NewLog(), Lines{info + " is existing file or symbolic link pointed to file"});
    EXPECT_TRUE(fs::is_regular_file(P("a/b")));
    EXPECT_EQ(FSMKDirP(P("a/b/c"), nullptr, true, 0xFFFF), 0);
    EXPECT_TRUE(fs::is_directory(P("a/b/c")));
}

TEST_F(FileOpTest, FSMKDirCodesAndMessages)
{
    fs::create_directory(P("dir"));
    WriteFile(P("file"), "");
    fs::create_symlink("dir", P("link"));
    const std::string notDir = Err("FSMKDir: Create a folder but local file system is not directory '");
    // error: the one ERROR line expected, if any
    struct Row { std::string path; bool parents; int result; std::string error; } rows[] = {
        {P("dir"), false, 0, ""},
        {P("file"), false, -1, notDir + P("file") + "' (1)"},
        {P("link"), true, -1, notDir + P("link") + "' (3)"},
        {P("file/x"), false, -1, Err("FSMKDir: Failed to to file info '") + P("file/x") + "'"},
        {P("p/q"), false, -2, Err("path = ") + P("p/q") + " errno : " + strerror(ENOENT)},
        {P("p/q"), true, 0, ""},
        {P("new"), false, 0, ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.path);
        MarkLog();
        EXPECT_EQ(FSMKDir(row.path, row.parents), row.result);
        EXPECT_EQ(NewLog("[ERROR]"), row.error.empty() ? Lines{} : Lines{row.error});
    }
    EXPECT_TRUE(fs::is_directory(P("p/q")));
    EXPECT_TRUE(fs::is_directory(P("new")));
}

TEST_F(FileOpTest, FSMKDirFromRootCreatesBelowTheRootOnly)
{
    std::string root = P("r");
    fs::create_directory(root);
    EXPECT_EQ(FSMKDirFromRoot(root + "/a/b", root), 0);
    EXPECT_TRUE(fs::is_directory(root + "/a/b"));
    EXPECT_EQ(NewLog(), (Lines{"[DEBUG] file-op(#): FSMKDirFromRoot: create /a",
                               "[DEBUG] file-op(#): FSMKDirFromRoot: create /a/b"}));
    MarkLog();
    EXPECT_EQ(FSMKDirFromRoot(root, root), 0);
    EXPECT_EQ(FSMKDirFromRoot("/r", "/r/longer"), -1);
    EXPECT_EQ(FSMKDirFromRoot(root + "x/a", root), -1);
    EXPECT_EQ(NewLog(), (Lines{Err("Giving a root '/r/longer' whose length is larger then target's '/r'."),
                               Err("root '") + root + "' is not a parent folder of target '" + root + "x/a'"}));
    EXPECT_FALSE(fs::exists(root + "x"));
}

TEST_F(FileOpTest, FSCopyEmptyAndMultiChunkFiles)
{
    WriteFile(P("empty"), "");
    EXPECT_EQ(FSCopy(P("empty"), P("empty.copy"), false), 0);
    EXPECT_TRUE(fs::is_regular_file(P("empty.copy")));
    EXPECT_EQ(fs::file_size(P("empty.copy")), 0u);

    // More than one 32 MiB chunk, with bytes that differ between chunks so that a repeated or skipped one shows.
    std::string big(33554432 + 4099, '\0');
    uint32_t x = 1;
    for (char& c : big)
        c = static_cast<char>((x = x * 1664525u + 1013904223u) >> 24);
    WriteFile(P("big"), big);
    WriteFile(P("big.copy"), std::string(40000000, 'z'));  // longer: must be truncated
    EXPECT_EQ(FSCopy(P("big"), P("big.copy"), true), 0);
    EXPECT_FALSE(fs::exists(P("big")));
    EXPECT_TRUE(ReadFile(P("big.copy")) == big);
    EXPECT_TRUE(NewLog().empty());

    EXPECT_EQ(FSCopy(P("missing"), P("out"), false), -1);
    EXPECT_FALSE(fs::exists(P("out")));
    EXPECT_EQ(NewLog(), Lines{Err("CopyFile: open(") + P("missing") + "): " + strerror(ENOENT) + " (2)"});
}

TEST_F(FileOpTest, FSCopyOntoAFullVolumeKeepsThePartialFile)
{
    MOUNT_OR_SKIP();
    WriteFile(P("src"), std::string(2 * 1024 * 1024, 'x'));
    EXPECT_EQ(FSCopy(P("src"), P("vol/dst"), true), -2);
    ASSERT_TRUE(fs::exists(P("vol/dst")));
    EXPECT_GT(fs::file_size(P("vol/dst")), 0u);
    EXPECT_LE(fs::file_size(P("vol/dst")), 1024u * 1024u);
    EXPECT_TRUE(fs::exists(P("src"))) << "a failed move keeps its source";
    EXPECT_EQ(NewLog(), Lines{Err("CopyFile: write: ") + strerror(ENOSPC) + " (28)"});
}

TEST_F(FileOpTest, FSRenameOnOneVolume)
{
    WriteFile(P("f"), "data");
    fs::create_symlink(root_, P("alias"));
    EXPECT_EQ(FSRename("", P("g"), false), -1);
    EXPECT_EQ(FSRename(P("f"), "", false), -1);
    EXPECT_EQ(FSRename(P("missing"), P("g"), false), -2);
    EXPECT_EQ(FSRename(P("alias/f"), P("g"), true), -2);  // not the stored path
    EXPECT_FALSE(fs::exists(P("g")));
    EXPECT_EQ(FSRename(P("f"), P("none/g"), false), -3);
    EXPECT_EQ(FSRename(P("f"), P("g"), true), 0);
    EXPECT_EQ(ReadFile(P("g")), "data");
    EXPECT_FALSE(fs::exists(P("f")));
    EXPECT_EQ(FSRename(P("g"), P(std::string(300, 'n')), false), -100);
}

TEST_F(FileOpTest, FSRenameMovesATreeAndAFileToAnotherVolume)
{
    MOUNT_OR_SKIP();
    fs::create_directories(P("tree/a/b"));
    fs::create_directories(P("tree/empty"));
    WriteFile(P("tree/top"), "top");
    WriteFile(P("tree/a/b/deep"), std::string(100000, 'd'));
    fs::create_symlink("a/b/deep", P("tree/current"));  // as in a framework
    WriteFile(P("single"), "one");

    EXPECT_EQ(FSRename(P("tree"), P("vol/tree"), true), 0);
    EXPECT_FALSE(fs::exists(P("tree")));
    EXPECT_EQ(ReadFile(P("vol/tree/top")), "top");
    EXPECT_EQ(ReadFile(P("vol/tree/a/b/deep")), std::string(100000, 'd'));
    EXPECT_TRUE(fs::is_directory(P("vol/tree/empty")));
    EXPECT_EQ(fs::read_symlink(P("vol/tree/current")), "a/b/deep");
    EXPECT_EQ(FSRename(P("single"), P("vol/single"), true), 0);
    EXPECT_FALSE(fs::exists(P("single")));
    EXPECT_EQ(ReadFile(P("vol/single")), "one");
    EXPECT_TRUE(NewLog("[ERROR]").empty());
}

TEST_F(FileOpTest, FSRenameAcrossVolumesOfLinksPipesAndSockets)
{
    MOUNT_OR_SKIP();
    fs::create_symlink("../target", P("link"));
    fs::create_symlink("x", P("link2"));
    WriteFile(P("vol/taken"), "");
    ASSERT_EQ(mkfifo(P("fifo").c_str(), 0644), 0);
    // A link is recreated with the same target, dangling or not.
    EXPECT_EQ(FSRename(P("link"), P("vol/link"), false), 0);
    EXPECT_FALSE(fs::is_symlink(P("link")));
    EXPECT_EQ(fs::read_symlink(P("vol/link")), "../target");

    EXPECT_EQ(FSRename(P("link2"), P("vol/taken"), false), -3);
    EXPECT_TRUE(fs::is_symlink(P("link2")));
    EXPECT_EQ(FSRename(P("fifo"), P("vol/fifo"), false), -3);
    EXPECT_TRUE(fs::is_fifo(P("fifo")));
    EXPECT_FALSE(fs::exists(P("vol/fifo")));
    EXPECT_EQ(NewLog("[ERROR]"),
              (Lines{Err("FSRename: Failed to recreate symbolic link '") + P("link2") + "' as '" +
                         P("vol/taken") + "'. " + strerror(EEXIST),
                     Err("FSRename: Cannot move '") + P("fifo") + "' of type 6 to another volume '" +
                         P("vol/fifo") + "'"}));
}

TEST_F(FileOpTest, FSRemoveOfLinksTreesAndMissingPaths)
{
    fs::create_directories(P("target/sub"));
    WriteFile(P("target/sub/f"), "keep");
    fs::create_symlink("target", P("link"));
    EXPECT_EQ(FSRemove("", false), -1);
    EXPECT_EQ(FSRemove(P("missing"), false), 0);
    EXPECT_EQ(FSRemove(P("link"), false), 0);
    EXPECT_FALSE(fs::is_symlink(P("link")));
    EXPECT_EQ(ReadFile(P("target/sub/f")), "keep");
    fs::create_symlink("sub", P("target/inner"));
    EXPECT_EQ(FSRemove(P("target"), true), 0);
    EXPECT_FALSE(fs::exists(P("target")));
}

TEST_F(FileOpTest, FSRemoveOfAnUnlistableFolderKeepsItAndSaysWhere)
{
    fs::create_directories(P("locked/inside"));
    ASSERT_EQ(chmod(root_.c_str(), 0755), 0);  // the other user must reach it
    ASSERT_EQ(chmod(P("locked").c_str(), 0), 0);
    std::string locked = P("locked");
    int status = RunUnprivileged([&]() { return access(locked.c_str(), R_OK) == 0 ? 101 : -FSRemove(locked, false); });
    if (status >= 100)
        GTEST_SKIP() << "no identity here that permission bits stop from listing a folder";
    EXPECT_EQ(status, 3) << "FSRemove returns -3";
    ASSERT_EQ(chmod(P("locked").c_str(), 0755), 0);
    EXPECT_TRUE(fs::is_directory(P("locked/inside")));
    EXPECT_EQ(NewLog("[ERROR]"),
              Lines{Err("FSOpenDir: Failed to open directory '") + locked + "'. " + strerror(EACCES)});
}

TEST_F(FileOpTest, FSReadDirReturnsDotEntriesAndStatsOnRequest)
{
    fs::create_directory(P("d"));
    WriteFile(P("d/f"), "12345");
    struct stat st;
    ASSERT_EQ(stat(P("d/f").c_str(), &st), 0);
    for (int flags : {0, 1}) {
        SCOPED_TRACE(flags);
        DIR_HANDLE handle;
        ASSERT_EQ(FSOpenDir(P("d"), flags, handle), 0);
        EXPECT_STREQ(handle.path.c_str(), P("d").c_str());
        std::map<std::string, DIR_ENTRY> seen;
        DIR_ENTRY entry;
        int reads = 0, rc;
        for (; (rc = FSReadDir(handle, entry)) == 1; ++reads)
            seen[entry.name.c_str()] = entry;
        EXPECT_EQ(rc, 0);
        EXPECT_EQ(reads, 3);
        ASSERT_EQ(seen.size(), 3u);
        EXPECT_EQ(seen["."].type, FILE_TYPE_DIR);
        EXPECT_EQ(seen[".."].type, FILE_TYPE_DIR);
        EXPECT_EQ(seen["f"].type, FILE_TYPE_FILE);
        EXPECT_EQ(seen["f"].size, flags ? 5 : 0);
        EXPECT_EQ(seen["f"].mtime, flags ? static_cast<int32_t>(st.st_mtime) : 0);
        EXPECT_EQ(seen["."].size, 0) << "'d/.' is not the stored spelling of the folder, so it has no stats";
        FSCloseDir(handle);
        EXPECT_EQ(handle.dir, nullptr);
        EXPECT_TRUE(handle.path.empty());
    }
    DIR_HANDLE failed;
    EXPECT_EQ(FSOpenDir(P("missing"), 0, failed), -1);
    EXPECT_EQ(failed.dir, nullptr);
    FSCloseDir(failed);
    EXPECT_EQ(NewLog("[ERROR]"), Lines{Err("FSOpenDir: Failed to open directory '") + P("missing") +
                                       "'. " + strerror(ENOENT)});
}

TEST_F(FileOpTest, SymbolicLinksCreateReadAndTheirLengthLimit)
{
    const std::string fits(1023, 'a');
    ASSERT_EQ(symlink(fits.c_str(), P("fits").c_str()), 0);
    ASSERT_EQ(symlink(std::string(1024, 'b').c_str(), P("long").c_str()), 0);
    ustring target;
    EXPECT_EQ(FSReadSymbolicLink(P("fits"), target), 0);
    EXPECT_EQ(fits, target.c_str());
    target = "unchanged";
    EXPECT_EQ(FSReadSymbolicLink(P("long"), target), -1);
    EXPECT_STREQ(target.c_str(), "unchanged");
    EXPECT_EQ(FSReadSymbolicLink(P("missing"), target), -1);
    EXPECT_EQ(FSCreateSymbolicLink("somewhere", P("new")), 0);
    EXPECT_EQ(fs::read_symlink(P("new")), "somewhere");
    EXPECT_EQ(FSCreateSymbolicLink("other", P("new")), -1);
    EXPECT_EQ(NewLog(), (Lines{Err("FSReadSymbolicLink: path of '") + P("long") + "' is more than 1024",
                               Err("FSReadSymbolicLink: Failed to read symbolic link '") + P("missing") +
                                   "' (code: 2, msg: " + strerror(ENOENT) + ")",
                               Err("FSCreateSymbolicLink: Failed to create symbolic link 'other' -> '") +
                                   P("new") + "' (code: 17, msg: " + strerror(EEXIST) + ")"}));
}

TEST_F(FileOpTest, FSGetRealPathFollowsEveryLink)
{
    fs::create_directory(P("real"));
    WriteFile(P("real/f"), "");
    fs::create_symlink("real", P("alias"));
    fs::create_symlink("f", P("real/lf"));
    ustring path = P("alias/lf");
    EXPECT_EQ(FSGetRealPath(path), 0);
    EXPECT_STREQ(path.c_str(), P("real/f").c_str());
    ustring missing = P("alias/none");
    EXPECT_EQ(FSGetRealPath(missing), -1);
    EXPECT_STREQ(missing.c_str(), P("alias/none").c_str());
    EXPECT_EQ(NewLog(), (Lines{"[DEBUG] file-op(#):  org path [" + P("alias/lf") + "]",
                               "[DEBUG] file-op(#):  get full path [" + P("real/f") + "]",
                               "[DEBUG] file-op(#):  org path [" + P("alias/none") + "]"}));
}

TEST_F(FileOpTest, TemporaryFilesAndPaths)
{
    mode_t old = umask(077);
    ustring created;
    EXPECT_EQ(FSMktemp(root_, created), 0);
    umask(old);
    std::string name = created.c_str();
    ASSERT_EQ(name.substr(0, root_.size() + 1), root_ + "/");
    EXPECT_EQ(name.size(), root_.size() + 7);
    EXPECT_EQ(fs::file_size(name), 0u);
    EXPECT_EQ(static_cast<int>(fs::status(name).permissions()), 0644);
    EXPECT_EQ(FSMktemp(P("missing"), created), -1);
    EXPECT_EQ(NewLog(), Lines{Err("mkstemp(") + P("missing") + "/XXXXXX): " + strerror(ENOENT)});

    ustring path;
    EXPECT_EQ(FSCreateTempPath(root_, path), 0);
    std::string tmp = path.c_str();
    EXPECT_EQ(tmp.size(), root_.size() + 9);
    EXPECT_EQ(tmp.substr(0, root_.size() + 1), root_ + "/");
    EXPECT_FALSE(fs::exists(tmp));
}

TEST_F(FileOpTest, FSUTimeSetsTheLinkNotItsTarget)
{
    WriteFile(P("f"), "");
    fs::create_symlink("f", P("l"));
    struct stat before, link, target;
    ASSERT_EQ(stat(P("f").c_str(), &before), 0);
    EXPECT_EQ(FSUTime(P("l"), 1000000000, 1234567890), 0);
    ASSERT_EQ(lstat(P("l").c_str(), &link), 0);
    ASSERT_EQ(stat(P("f").c_str(), &target), 0);
    EXPECT_EQ(link.st_mtime, 1234567890);
    EXPECT_EQ(link.st_atime, 1000000000);
    EXPECT_EQ(target.st_mtime, before.st_mtime);
    EXPECT_EQ(FSUTime(P("missing"), 1, 1), -1);
}

TEST_F(FileOpTest, AccessTestsTellDenialFromAbsence)
{
    WriteFile(P("private"), "");
    ASSERT_EQ(chmod(P("private").c_str(), 0), 0);  // denies its owner too, unless privileged
    ASSERT_EQ(chmod(root_.c_str(), 0755), 0);
    EXPECT_FALSE(isFileLocked(P("missing"), R_OK));
    EXPECT_TRUE(hasFilePermission(P("missing"), R_OK));
    std::string path = P("private");
    int status = RunUnprivileged([&path]() {
        return geteuid() == 0 ? 101 : (isFileLocked(path, R_OK) ? 1 : 0) | (hasFilePermission(path, R_OK) ? 2 : 0);
    });
    if (status >= 100)
        GTEST_SKIP() << "no unprivileged identity to be denied access";
    EXPECT_EQ(status, 1) << "locked, not permitted";
}

TEST_F(FileOpTest, VolumeTypesOfAnOrdinaryVolume)
{
    EXPECT_FALSE(isMountPoint(root_));
    EXPECT_FALSE(IsMSDOS(root_));
    EXPECT_TRUE(NewLog("[ERROR]").empty());
    EXPECT_FALSE(isMountPoint(P("missing")));
    EXPECT_FALSE(IsMSDOS(P("missing")));
    const std::string cause = P("missing") + "'. " + strerror(ENOENT);
    EXPECT_EQ(NewLog(), (Lines{Err("isMountPoint: Failed to get file system info '") + cause,
                               Err("IsSupportLargeFile: Failed to get file system info '") + cause}));
}

TEST_F(FileOpTest, FSChownChangesTheLinkItself)
{
    EXPECT_EQ(FSChown(P("missing"), 0, 0), -1);
    EXPECT_EQ(NewLog(), Lines{Err("FSChown: Failed to chown '") + P("missing") + "' (code: 2, msg: " +
                              strerror(ENOENT) + ")"});
    if (geteuid() != 0)
        GTEST_SKIP() << "giving a file away needs root";
    WriteFile(P("f"), "");
    fs::create_symlink("f", P("l"));
    EXPECT_EQ(FSChown(P("l"), 65534, 65534), 0);
    struct stat link, target;
    ASSERT_EQ(lstat(P("l").c_str(), &link), 0);
    ASSERT_EQ(stat(P("f").c_str(), &target), 0);
    EXPECT_EQ(link.st_uid, 65534u);
    EXPECT_EQ(target.st_uid, 0u);
}

}  // namespace
