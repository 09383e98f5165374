// Linux path resolution and volume type names. Case-insensitive volumes
// cannot be mounted here, so the name matching is tested on listings.
#include "platform.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <grp.h>
#include <string>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace fs = std::filesystem;

namespace {

TEST(PlatformStoredNameTest, PicksTheSpellingTheFolderStores)
{
    // Composed and decomposed names, a hard link pair (x1, x2), a name that is not UTF-8, an unknown inode.
    const std::vector<PlatformDirEntry> listing = {
        {"Foo.txt", 11}, {"caf\xc3\xa9", 12}, {"Ne\xcc\x81", 13}, {"README", 14}, {"readme", 15},
        {"\xc3\xb8l", 16}, {"x1", 20}, {"x2", 20}, {"A\xff", 21}, {"\xc3\xa6", 0},
    };
    struct Row { const char* name; uint64_t ino; const char* stored; } rows[] = {
        {"Foo.txt", 0, "Foo.txt"},
        {"FOO.TXT", 0, "Foo.txt"},
        {"foo.txt", 11, "Foo.txt"},
        {"cafe\xcc\x81", 0, "caf\xc3\xa9"},    // other Unicode form
        {"CAFE\xcc\x81", 0, "caf\xc3\xa9"},    // and other case
        {"n\xc3\xa9", 0, "Ne\xcc\x81"},
        {"CAF\xc3\x89", 0, "caf\xc3\xa9"},     // the base letter of an accented one folds
        {"\xc3\x98L", 16, "\xc3\xb8l"},         // other non-ASCII case: only the inode tells
        {"\xc3\x98L", 0, "\xc3\x98L"},
        {"\xc3\x86", 0, "\xc3\x86"},               // an unknown inode matches no other
        {"README", 15, "README"},              // exact beats the inode
        {"ReadMe", 15, "readme"},              // the inode decides between equals
        {"ReadMe", 0, "README"},
        {"Y", 20, "Y"},                        // two names for the inode: no guess
        {"a\xff", 0, "A\xff"},
        {"a\xfe", 0, "a\xfe"},                 // invalid names do not all match
        {"other", 0, "other"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_STREQ(PlatformStoredName(listing, row.name, row.ino).c_str(), row.stored);
    }
    EXPECT_STREQ(PlatformStoredName({}, "x", 5).c_str(), "x");
}

class PlatformResolveTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        char dir[] = "/tmp/platform.XXXXXX";
        ASSERT_NE(mkdtemp(dir), nullptr);
        root_ = fs::canonical(dir).string();
        fs::create_directories(P("real/sub"));
        std::ofstream(P("real/f")) << "f";
        fs::create_symlink("real", P("alias"));
        fs::create_symlink("real/f", P("lf"));
        fs::create_symlink(P("real"), P("abs"));
        fs::create_symlink("alias/../lf", P("chain"));
        fs::create_symlink("loop2", P("loop"));
        fs::create_symlink("loop", P("loop2"));
        fs::create_symlink("nowhere", P("dangling"));
    }
    void TearDown() override
    {
        std::error_code ignored;
        fs::permissions(P("searchonly"), fs::perms::all, ignored);
        fs::remove_all(root_, ignored);
    }
    std::string P(const std::string& rest) const { return root_ + "/" + rest; }

    std::string root_;
};

TEST_F(PlatformResolveTest, ResolvesFoldersOnTheWayAndTheLeafOnRequest)
{
    // The result without and with following a final link; "" for a failure.
    struct Row { std::string path, keepLeaf, followLeaf; } rows[] = {
        {P("real/f"), P("real/f"), P("real/f")},
        {P("alias/f"), P("real/f"), P("real/f")},
        {P("lf"), P("lf"), P("real/f")},
        {P("abs"), P("abs"), P("real")},
        {P("chain"), P("chain"), P("real/f")},
        {P("dangling"), P("dangling"), ""},
        {P("loop"), P("loop"), ""},
        {P("real/sub/../f"), P("real/f"), P("real/f")},
        {P("alias/sub/.."), P("real"), P("real")},   // '..' of the real folder
        {P("real//./f"), P("real/f"), P("real/f")},
        {P("alias/"), P("real"), P("real")},         // a trailing '/' follows
        {"/", "/", "/"},
        {"/..", "/", "/"},
        {P("missing"), "", ""},
        {P("real/f/x"), "", ""},
        {P("real/f/"), "", ""},
        {P("loop/x"), "", ""},
        {"", "", ""},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.path);
        for (bool follow : {false, true}) {
            const std::string& expected = follow ? row.followLeaf : row.keepLeaf;
            ustring resolved = "untouched";
            int status = PlatformResolvePath(row.path.c_str(), follow, resolved);
            EXPECT_EQ(status != 0, expected.empty()) << "follow " << follow;
            EXPECT_STREQ(resolved.c_str(), expected.empty() ? "untouched" : expected.c_str()) << "follow " << follow;
        }
    }
}

TEST_F(PlatformResolveTest, FailureStatusSaysWhy)
{
    ustring resolved;
    EXPECT_EQ(PlatformResolvePath(P("missing/x").c_str(), false, resolved), ENOENT);
    EXPECT_EQ(PlatformResolvePath(P("real/f/x").c_str(), false, resolved), ENOTDIR);
    EXPECT_EQ(PlatformResolvePath(P("loop").c_str(), true, resolved), ELOOP);
}

TEST_F(PlatformResolveTest, RelativePathsBecomeAbsolute)
{
    std::string oldCwd = fs::current_path().string();
    ASSERT_EQ(chdir(P("alias").c_str()), 0);
    ustring resolved;
    EXPECT_EQ(PlatformResolvePath("../alias/sub", false, resolved), 0);
    ASSERT_EQ(chdir(oldCwd.c_str()), 0);
    // The working folder is the real one, so '..' leaves it physically.
    EXPECT_STREQ(resolved.c_str(), P("real/sub").c_str());
}

// Resolving needs no listing of an ordinary folder, so a folder that may be
// searched but not read still resolves (a walk that insisted on listing would
// fail here). Root reads anything, so the check runs as an unprivileged user.
TEST_F(PlatformResolveTest, SearchOnlyFoldersResolve)
{
    fs::create_directory(P("searchonly"));
    std::ofstream(P("searchonly/f")) << "";
    ASSERT_EQ(chmod(P("searchonly").c_str(), 0311), 0);  // nobody may read it, not even its owner
    ASSERT_EQ(chmod(root_.c_str(), 0755), 0);
    std::string path = P("searchonly/f");
    pid_t pid = fork();
    if (pid == 0) {
        if (geteuid() == 0 && (setgroups(0, nullptr) != 0 || setgid(65534) != 0 || setuid(65534) != 0))
            _exit(100);
        ustring resolved;
        _exit(access(P("searchonly").c_str(), R_OK) == 0 ? 101
              : PlatformResolvePath(path.c_str(), false, resolved) == 0 && path == resolved.c_str() ? 0 : 1);
    }
    int status = 0;
    ASSERT_TRUE(waitpid(pid, &status, 0) == pid && WIFEXITED(status));
    if (WEXITSTATUS(status) >= 100)
        GTEST_SKIP() << "no identity here that permission bits stop from reading a folder";
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

TEST_F(PlatformResolveTest, FileSystemTypeNames)
{
    ustring name;
    errno = 0;
    EXPECT_EQ(PlatformFileSystemTypeName(P("missing").c_str(), name), -1);
    EXPECT_EQ(errno, ENOENT);
    ASSERT_EQ(PlatformFileSystemTypeName(root_.c_str(), name), 0);
    EXPECT_FALSE(name.empty());

    fs::create_directory(P("vol"));
    if (mount("tmpfs", P("vol").c_str(), "tmpfs", 0, "size=1m") != 0)
        GTEST_SKIP() << "mounting a tmpfs is not permitted here (" << strerror(errno) << ")";
    int status = PlatformFileSystemTypeName(P("vol").c_str(), name);
    umount2(P("vol").c_str(), MNT_DETACH);
    EXPECT_EQ(status, 0);
    EXPECT_STREQ(name.c_str(), "tmpfs");
}

}  // namespace
