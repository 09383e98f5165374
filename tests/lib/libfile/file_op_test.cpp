// File operations: result codes and exact log lines, the exact-name
// existence test, links left alone where they must be, moves between
// volumes, a script bundle started through lib/platform, and no descriptor
// left open (checked after every test).
#include "libfile/file-op.h"
#include "liblogger/log.h"
#include "platform/platform.h"

#include "../lib_test.h"

#include <regex>
#include <sys/mount.h>

std::string E(const std::string& text)
{
    return "[ERROR] file-op(#): " + text + "\n";
}

// Every message of file_op_debug goes to a log in the test's folder; NewLog gives the lines since its last call,
// without time stamp and with the line number shown as '#'.
class FileOpTest : public FolderTest {
protected:
    void SetUp() override
    {
        FolderTest::SetUp();
        Put(P("levels"), "file_op_debug=7\n");
        ASSERT_EQ(0, Logger::Initialize(Logger::TYPE_FILE, ustring(P("log").c_str()),
                                        ustring(P("levels").c_str()), 50));
    }
    void TearDown() override { Logger::Destroy(), FolderTest::TearDown(); }
    std::string NewLog()
    {
        static const std::regex kDebug("[^\n]*\\[DEBUG\\][^\n]*\n"),
            kStamp("[^\n\\[]*(\\[[A-Z]+\\] file-op\\()\\d+\\)");
        std::string text = Read(P("log")).substr(seen);
        seen += text.size();
        return std::regex_replace(std::regex_replace(text, kDebug, ""), kStamp, "$1#)");
    }
    void Make(std::initializer_list<const char*> files,
              std::initializer_list<std::pair<std::string, const char*>> links)
    {
        for (const char* file : files)
            Put(P(file), "12345");
        for (const auto& link : links)
            fs::create_symlink(link.first, P(link.second));
    }
    size_t seen = 0;
};

// A name that differs in case, in Unicode form or by the way it is reached is not the stored name.
TEST_F(FileOpTest, ExactNameExistenceAndInfoWithoutFollowingTheLastLink)
{
    Make({"real/f", "e\xcc\x81"}, {{"real", "alias"}, {"nowhere", "dangling"}});
    struct Row {
        std::string path;
        int result, type;
        bool loose, exact;
    } const rows[] = {
        {P("real/f"), 0, FILE_TYPE_FILE, true, true},
        {P("real"), 0, FILE_TYPE_DIR, true, true},
        {P("alias"), 0, FILE_TYPE_LINK, true, true},
        {P("dangling"), 0, FILE_TYPE_LINK, true, true},
        {"/dev/null", 0, FILE_TYPE_DEVICE, true, true},
        {P("alias/f"), 0, FILE_TYPE_FILE, true, false},
        {P("real/./f"), 0, 1, true, false},
        {fs::relative(P("real/f")).string(), 0, FILE_TYPE_FILE, true, false},
        {P("real/F"), 0, 0, false, false},
        {P("e\xcc\x81"), 0, FILE_TYPE_FILE, true, true},
        {P("\xc3\xa9"), 0, 0, false, false},
        {"", 0, 0, false, false},
        {P("real/f/x"), -1, 0, false, false},  // ENOTDIR is a failure, not absence
    };
    for (const Row& row : rows) {
        _FILE_INFO_tag info;
        int result = GetFileInfo(row.path.c_str(), info);
        EXPECT_EQ(std::make_tuple(row.result, row.type, row.loose, row.exact),
                  std::make_tuple(result, info.type, IsFileExist(row.path.c_str(), false),
                                  IsFileExist(row.path.c_str(), true)))
            << row.path;
    }
    // Where a volume ignores case and Unicode form, the folder's listing (name, inode) decides the stored spelling.
    const std::vector<PlatformDirEntry> listing = {
        {"caf\xc3\xa9", 12}, {"README", 14}, {"readme", 15}, {"x1", 20}, {"x2", 20}};
    const char* const names[][3] = {{"CAFE\xcc\x81", "0", "caf\xc3\xa9"},
                                    {"README", "15", "README"},
                                    {"ReadMe", "15", "readme"},
                                    {"Y", "20", "Y"}};
    for (const auto& row : names)
        EXPECT_STREQ(row[2], PlatformStoredName(listing, row[0], std::stoull(row[1])).c_str())
            << row[0] << " " << row[1];
}

// The rows run in order on one tree; the state they leave is checked at the end.
TEST_F(FileOpTest, ResultCodesAndMessages)
{
    Make({"real/f", "file", "file2", "tree/a/b/f"},
         {{"real", "alias"}, {"../../real", "tree/a/up"}, {std::string(1024, 'x'), "long"}});
    Put(P("copy"), "a longer file");
    const std::string no = P("missing"),
                      noDir = "FSMKDir: Create a folder but local file system is not directory '";
    const std::string info = "[INFO] file-op(#): FSMKDirP: path: " + P("file") + " is ";
    DIR_HANDLE h;  // what the rows fill in
    ustring t;
    _FILE_INFO_tag a, b;
    mode_t mask = umask(022);
    struct Row {
        const char* tag;
        std::function<int()> op;
        int result;
        std::string log;
    } const rows[] = {
        {"existing folder", [&] { return FSMKDir(P("real"), false); }, 0, ""},
        {"folder over a file", [&] { return FSMKDir(P("file"), false); }, -1, E(noDir + P("file") + "' (1)")},
        {"folder over a link", [&] { return FSMKDir(P("alias"), true); }, -1,
         E(noDir + P("alias") + "' (3)")},
        {"below a file", [&] { return FSMKDir(P("file/x"), false); }, -1,
         E("FSMKDir: Failed to to file info '" + P("file/x") + "'")},
        {"no parent", [&] { return FSMKDir(P("p/q"), false); }, -2,
         E("path = " + P("p/q") + " errno : " + strerror(ENOENT))},
        {"with parents", [&] { return FSMKDir(P("p/q"), true); }, 0, ""},
        {"-p through a file", [&] { return FSMKDirP(P("file/c"), nullptr, false, 0xFFFF); }, -1,
         info + "symbolic link pointed to folder\n"},
        {"-p onto a file", [&] { return FSMKDirP(P("file"), nullptr, false, 0xFFFF) - (errno != EEXIST); },
         -1, info + "existing file or symbolic link pointed to file\n"},
        {"-p replacing a file", [&] { return FSMKDirP(P("file2/c"), nullptr, true, 0xFFFF); }, 0, ""},
        {"-p through a link, mode", [&] { return FSMKDirP(P("alias/n/m/"), nullptr, false, 0700); }, 0, ""},
        {"from a root not above, and onto itself",
         [&] { return FSMKDirFromRoot(dir + "x/a", dir) * 10 + FSMKDirFromRoot(dir, dir); }, -10,
         E("root '" + dir + "' is not a parent folder of target '" + dir + "x/a'")},
        {"below a root", [&] { return FSMKDirFromRoot(P("r/s"), dir); }, 0, ""},
        {"copy over a longer file", [&] { return FSCopy(P("real/f"), P("copy"), false); }, 0, ""},
        {"copy from nothing", [&] { return FSCopy(no, P("x"), false); }, -1,
         E("CopyFile: open(" + no + "): " + strerror(ENOENT) + " (2)")},
        {"copy to nowhere", [&] { return FSCopy(P("copy"), P("no/x"), false); }, -1,
         E("CopyFile: open(" + P("no/x") + "): " + strerror(ENOENT) + " (2)")},
        {"copy, moving", [&] { return FSCopy(P("copy"), P("moved"), true); }, 0, ""},
        {"rename, missing or empty source",
         [&] { return FSRename(no, P("g"), false) * 10 + FSRename("", P("g"), false); }, -21, ""},
        {"rename, not the stored name", [&] { return FSRename(P("alias/f"), P("g"), true); }, -2, ""},
        {"rename, no target folder", [&] { return FSRename(P("moved"), P("no/g"), false); }, -3, ""},
        {"rename, name too long", [&] { return FSRename(P("moved"), P(std::string(300, 'n')), false); }, -100,
         ""},
        {"rename", [&] { return FSRename(P("moved"), P("renamed"), true); }, 0, ""},
        {"remove, missing or empty", [&] { return FSRemove(no, false) * 10 + FSRemove("", false); }, -1, ""},
        {"real path: a link with a trailing slash, a loop, a file taken for a folder",
         [&] {
             return !FSCreateSymbolicLink(P("loop"), P("loop")) && !FSGetRealPath(t = P("alias/").c_str()) &&
                    t == P("real").c_str() && FSGetRealPath(t = P("loop").c_str()) == -1 &&
                    FSGetRealPath(t = P("file/..").c_str()) == -1;
         },
         1, ""},
        {"remove a link to a folder", [&] { return FSRemove(P("alias"), false); }, 0, ""},
        {"remove a tree holding a link", [&] { return FSRemove(P("tree"), false); }, 0, ""},
        {"list nothing, then a folder with times and sizes (m has them, . and .. do not)",
         [&] {
             int timed = FSOpenDir(no, 0, h) * 10 + FSOpenDir(P("real/n"), 1, h);
             for (DIR_ENTRY e; FSReadDir(h, e) == 1; timed += e.mtime > 0 && e.size > 0) { }
             return FSCloseDir(h), timed;
         },
         -9, E("FSOpenDir: Failed to open directory '" + no + "'. " + strerror(ENOENT))},
        {"long link", [&] { return FSReadSymbolicLink(P("long"), t); }, -1,
         E("FSReadSymbolicLink: path of '" + P("long") + "' is more than 1024")},
        {"paths",
         [&] {
             return FSParentPath("/a") == ustring("/") && FSBaseName("/a/b/").empty() &&
                    FSIsParentFolder("/a", "/a") && !FSIsParentFolder("/a", "/ab") &&
                    FSParentPath("/a/b") == ustring("/a") && !FSIsParentFolder("/a/b", "/a");
         },
         1, ""},
        {"absence is no denial", [&] { return hasFilePermission(no, R_OK) * 2 + isFileLocked(no, R_OK); }, 2,
         ""},
        {"temporary file, its times and owner; none of them for nothing",
         [&] {
             return !FSMktemp(P("real"), t) && !FSUTime(t, 5, 7) && !FSChown(t, getuid(), getgid()) &&
                    !GetFileInfo(t, a) && !FSStat(t, b, true) && a == b && FSTimeEqual(a.mtime, 7) &&
                    fs::status(t.c_str()).permissions() == fs::perms(0644) && FSMktemp(no, t) &&
                    FSUTime(no, 5, 7) && FSChown(no, 0, 0) && FSStat("", a, false) && a != _FILE_INFO_tag();
         },
         1,
         E("mkstemp(" + no + "/XXXXXX): " + strerror(ENOENT)) +
             E("FSChown: Failed to chown '" + no + "' (code: 2, msg: " + strerror(ENOENT) + ")")},
        {"volume type of a folder and of nothing",
         [&] { return isMountPoint(dir) + IsMSDOS("/proc") + isMountPoint(no) + IsMSDOS(no); }, 0,
         E("isMountPoint: Failed to get file system info '" + no + "'. " + strerror(ENOENT)) +
             E("IsSupportLargeFile: Failed to get file system info '" + no + "'. " + strerror(ENOENT))}};
    for (const Row& row : rows) {
        EXPECT_EQ(row.result, row.op()) << row.tag;
        EXPECT_EQ(row.log, NewLog()) << row.tag;
    }
    EXPECT_EQ(022u, umask(mask));
    EXPECT_EQ(fs::perms::owner_all, fs::status(P("real/n/m")).permissions());
    EXPECT_TRUE(fs::is_regular_file(P("file")) && fs::is_directory(P("file2/c")) &&
                fs::is_directory(P("p/q")) && fs::is_directory(P("r/s")));
    EXPECT_TRUE(Read(P("renamed")) == "12345" && Read(P("real/f")) == "12345")
        << "links removed, not targets";
    EXPECT_FALSE(fs::exists(P("copy")) || fs::exists(P("moved")) || fs::exists(P("tree")) ||
                 fs::is_symlink(P("alias")));
}

TEST_F(FileOpTest, MovesToAnotherVolumeAndOntoAFullOne)
{
    fs::create_directory(P("vol"));
    if (mount("tmpfs", P("vol").c_str(), "tmpfs", 0, "size=1m") != 0)
        GTEST_SKIP() << "mounting a tmpfs is not permitted here: " << strerror(errno);
    struct Unmount {
        std::string at;
        ~Unmount() { umount2(at.c_str(), MNT_DETACH); }
    } unmount{P("vol")};
    Make({"tree/a/f"}, {{"a/f", "tree/l"}});
    fs::create_directory(P("tree/empty"));
    Put(P("big"), std::string(2 << 20, 'x'));
    EXPECT_EQ(0, FSRename(P("tree"), P("vol/tree"), true));
    EXPECT_EQ(-2, FSCopy(P("big"), P("vol/big"), true));
    EXPECT_EQ(E(std::string("CopyFile: write: ") + strerror(ENOSPC) + " (28)"), NewLog());
    EXPECT_TRUE(fs::exists(P("big")) && fs::exists(P("vol/big"))) << "a failed move keeps both sides";
    EXPECT_TRUE(!fs::exists(P("tree")) && Read(P("vol/tree/a/f")) == "12345" &&
                fs::is_directory(P("vol/tree/empty")));
    EXPECT_EQ("a/f", fs::read_symlink(P("vol/tree/l")).string());
}

// A bundle whose executable is a script: opened once, and the running shell counts as that script only.
TEST_F(FolderTest, ScriptBundleStartsOnceAndRunsAsItsScript)
{
    const std::string run = P("S.app/Contents/MacOS/run"), started = P("started");
    Put(P("S.app/Contents/Info.plist"), "<key>CFBundleExecutable</key>\n  <string>run</string>");
    Put(run, "#!/bin/sh\necho $$ >>" + started + "\nwhile [ -e " + P("keep") + " ]; do sleep 0.2; done\n");
    Put(P("other"), Read(run));
    fs::permissions(run, fs::perms::owner_all), Put(P("keep"), "");
    ASSERT_TRUE(PlatformOpenBundle(P("S.app").c_str()));
    for (int i = 0; i < 600 && Read(started).empty(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    const pid_t pid = atoi(Read(started).c_str());
    EXPECT_TRUE(PlatformOpenBundle(P("S.app").c_str()) && PlatformProcessRuns(pid, run.c_str()));
    EXPECT_FALSE(PlatformProcessRuns(pid, P("other").c_str()));
    fs::remove(P("keep"));  // the script ends itself: nothing is signalled
    for (int i = 0; i < 600 && PlatformProcessRuns(pid, run.c_str()); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_EQ(std::to_string(pid) + "\n", Read(started)) << "started a second time";
    // Unregistering: the tool's own status, or -2 when it cannot be run. env takes "-u NAME" (and
    // then prints the environment), and fails on any other option.
    for (const auto& [tool, want] :
         {std::pair<const char*, int>{"/usr/bin/env", 0}, {"/bin/false", 1}, {"/no", -2}})
        EXPECT_EQ(want, (PlatformSetRegistrationTool(tool), PlatformForgetBundle(P("S.app").c_str())))
            << tool;
}
