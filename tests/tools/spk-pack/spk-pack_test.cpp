// spk-pack run as a process on folders made here; its output read back with
// libarchive's reader.
#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <clocale>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

// Names in the packages are UTF-8; libarchive converts them through LC_CTYPE,
// as it does in the launcher, which adopts the user's (UTF-8) locale.
class Utf8Locale : public ::testing::Environment {
public:
    void SetUp() override { ASSERT_NE(nullptr, setlocale(LC_CTYPE, "C.UTF-8")); }
};
const ::testing::Environment* const kUtf8Locale = ::testing::AddGlobalTestEnvironment(new Utf8Locale);

struct Entry {
    std::string path;
    int type;
    int perm;
    time_t mtime;
    la_int64_t uid;
    la_int64_t gid;
    std::string uname;
    std::string hardlink;
    std::string symlink;
    std::string data;
};

class TempDir {
public:
    TempDir()
    {
        char tmpl[] = "/tmp/spk-pack-test-XXXXXX";
        path_ = mkdtemp(tmpl);
    }
    ~TempDir()
    {
        std::error_code ec;
        if (!::testing::Test::HasFailure()) {
            fs::remove_all(path_, ec);
        }
    }
    const fs::path& path() const { return path_; }

private:
    fs::path path_;
};

void WriteFile(const fs::path& p, const std::string& content, bool exec = false)
{
    fs::create_directories(p.parent_path());
    std::ofstream(p, std::ios::binary) << content;
    fs::permissions(p, exec ? fs::perms(0755) : fs::perms(0600));
}

std::string ReadFile(const fs::path& p)
{
    std::ifstream in(p, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// Runs spk-pack with args; returns its exit status, or -1 when it did not exit.
int RunPack(const std::vector<std::string>& args)
{
    pid_t pid = fork();
    if (pid == 0) {
        std::vector<char*> argv;
        argv.push_back(const_cast<char*>(SPK_PACK_PATH));
        for (const std::string& a : args) {
            argv.push_back(const_cast<char*>(a.c_str()));
        }
        argv.push_back(nullptr);
        execv(SPK_PACK_PATH, argv.data());
        _exit(127);
    }
    int status = 0;
    if (pid < 0 || waitpid(pid, &status, 0) != pid || !WIFEXITED(status)) {
        return -1;
    }
    return WEXITSTATUS(status);
}

std::vector<Entry> ReadArchive(const fs::path& file)
{
    std::vector<Entry> entries;
    struct archive* a = archive_read_new();
    archive_read_support_filter_all(a);
    archive_read_support_format_all(a);
    EXPECT_EQ(ARCHIVE_OK, archive_read_open_filename(a, file.c_str(), 10240)) << archive_error_string(a);
    struct archive_entry* e;
    while (archive_read_next_header(a, &e) == ARCHIVE_OK) {
        Entry x;
        x.path = archive_entry_pathname_utf8(e) ? archive_entry_pathname_utf8(e) : "";
        x.type = archive_entry_filetype(e);
        x.perm = archive_entry_perm(e);
        x.mtime = archive_entry_mtime(e);
        x.uid = archive_entry_uid(e);
        x.gid = archive_entry_gid(e);
        x.uname = archive_entry_uname(e) ? archive_entry_uname(e) : "";
        x.hardlink = archive_entry_hardlink(e) ? archive_entry_hardlink(e) : "";
        x.symlink = archive_entry_symlink_utf8(e) ? archive_entry_symlink_utf8(e) : "";
        char buf[4096];
        la_ssize_t n;
        while ((n = archive_read_data(a, buf, sizeof buf)) > 0) {
            x.data.append(buf, static_cast<size_t>(n));
        }
        entries.push_back(x);
    }
    archive_read_free(a);
    return entries;
}

std::string Trimmed(std::string p)
{
    while (!p.empty() && p.back() == '/') {
        p.pop_back();
    }
    return p;
}

// An application folder like the one the build stages, plus the awkward
// cases: a name that sorts between "MacOS" and "MacOS/...", a hard-linked
// file, a symbolic link, a non-ASCII name. reversed creates everything in the
// opposite order, so directory listing order differs between two copies.
void MakeApp(const fs::path& root, bool reversed)
{
    std::vector<std::pair<std::string, std::string>> files = {
        {"Contents/Info.plist", "<plist/>"},
        {"Contents/MacOS/nimbulo-pelora-ui", "#!client"},
        {"Contents/MacOS-extra/tool", "tool"},
        {"Contents/Resources/INFO", "[Version]\nbuild_version=312\n"},
        {"Contents/Resources/images/a.png", "png"},
        {"Contents/Resources/Z\xc3\xa9.txt", "accent"},
        {"Contents/Frameworks/lib.so", "lib"},
    };
    if (reversed) {
        std::reverse(files.begin(), files.end());
    }
    for (const auto& f : files) {
        WriteFile(root / f.first, f.second, f.first.find("MacOS") != std::string::npos);
    }
    fs::create_directories(root / "Contents/Empty");
    fs::create_hard_link(root / "Contents/Frameworks/lib.so", root / "Contents/Frameworks/lib.so.1");
    fs::create_symlink("lib.so.1", root / "Contents/Frameworks/lib.so.link");
}

}  // namespace

// The same content must give the same bytes whatever the times, the
// permissions beyond the execute bit and the order of the folder listing.
TEST(SpkPack, SameInputGivesSameBytesInEveryFormat)
{
    TempDir dir;
    MakeApp(dir.path() / "one", false);
    MakeApp(dir.path() / "two", true);
    // Different times and group/other bits on the second copy.
    fs::last_write_time(dir.path() / "two/Contents/Info.plist", fs::file_time_type::clock::now() - std::chrono::hours(50));
    fs::permissions(dir.path() / "two/Contents/Info.plist", fs::perms(0664));

    for (const char* format : {"tar.gz", "tar", "tar.xz", "zip", "7z"}) {
        SCOPED_TRACE(format);
        fs::path a = dir.path() / (std::string("a.") + format);
        fs::path b = dir.path() / (std::string("b.") + format);
        ASSERT_EQ(0, RunPack({"--format", format, (dir.path() / "one").string(), a.string()}));
        sleep(1);  // a clock-dependent header would show now
        ASSERT_EQ(0, RunPack({"--format", format, (dir.path() / "two").string(), b.string()}));
        std::string bytesA = ReadFile(a);
        EXPECT_FALSE(bytesA.empty());
        EXPECT_TRUE(bytesA == ReadFile(b)) << "packages differ";
        EXPECT_FALSE(fs::exists(a.string() + ".part"));
    }
}

TEST(SpkPack, DefaultIsGzipWithoutTimeStamp)
{
    TempDir dir;
    MakeApp(dir.path() / "app", false);
    fs::path out = dir.path() / "nimbulo.spk";
    ASSERT_EQ(0, RunPack({(dir.path() / "app").string(), out.string()}));
    std::string bytes = ReadFile(out);
    ASSERT_GE(bytes.size(), 10u);
    EXPECT_EQ('\x1f', bytes[0]);
    EXPECT_EQ('\x8b', bytes[1]);
    EXPECT_EQ(std::string(4, '\0'), bytes.substr(4, 4)) << "gzip MTIME field is set";
}

// Folders before their contents; the client executable and then the version
// file last, so an interrupted extraction never looks like a current
// installation; relative paths only.
TEST(SpkPack, EntryOrderIsCrashSafe)
{
    TempDir dir;
    MakeApp(dir.path() / "app", true);
    for (const char* format : {"tar.gz", "tar", "tar.xz", "zip"}) {
        SCOPED_TRACE(format);
        fs::path out = dir.path() / (std::string("p.") + format);
        ASSERT_EQ(0, RunPack({"--format", format, (dir.path() / "app").string(), out.string()}));
        std::vector<Entry> entries = ReadArchive(out);
        ASSERT_EQ(16u, entries.size());
        EXPECT_EQ("Contents/MacOS/nimbulo-pelora-ui", entries[entries.size() - 2].path);
        EXPECT_EQ("Contents/Resources/INFO", entries.back().path);

        std::vector<std::string> seen;
        for (size_t i = 0; i < entries.size(); ++i) {
            const std::string p = Trimmed(entries[i].path);
            SCOPED_TRACE(p);
            EXPECT_NE('/', p[0]);
            EXPECT_NE(0u, p.rfind("./", 0)) << "leading ./";
            // Every parent folder came earlier.
            fs::path parent = fs::path(p).parent_path();
            if (!parent.empty()) {
                EXPECT_NE(seen.end(), std::find(seen.begin(), seen.end(), parent.string()));
            }
            seen.push_back(p);
        }
        // All but the last two are sorted by path component.
        for (size_t i = 1; i + 2 < entries.size(); ++i) {
            fs::path x(Trimmed(entries[i - 1].path));
            fs::path y(Trimmed(entries[i].path));
            EXPECT_TRUE(std::lexicographical_compare(x.begin(), x.end(), y.begin(), y.end()))
                << x << " before " << y;
        }
    }
}

TEST(SpkPack, EntriesCarryFixedOwnerTimeAndModes)
{
    TempDir dir;
    MakeApp(dir.path() / "app", false);
    fs::path out = dir.path() / "p.tar";
    ASSERT_EQ(0, RunPack({"--format", "tar", (dir.path() / "app").string(), out.string()}));
    struct Want {
        const char* path;
        int type;
        int perm;
    };
    const Want rows[] = {
        {"Contents/", AE_IFDIR, 0755},
        {"Contents/Empty/", AE_IFDIR, 0755},
        {"Contents/Info.plist", AE_IFREG, 0644},
        {"Contents/MacOS/nimbulo-pelora-ui", AE_IFREG, 0755},
        {"Contents/Frameworks/lib.so.link", AE_IFLNK, 0755},
    };
    std::vector<Entry> entries = ReadArchive(out);
    for (const Want& row : rows) {
        SCOPED_TRACE(row.path);
        auto it = std::find_if(entries.begin(), entries.end(), [&](const Entry& e) { return e.path == row.path; });
        ASSERT_NE(entries.end(), it);
        EXPECT_EQ(row.type, it->type);
        EXPECT_EQ(row.perm, it->perm);
    }
    time_t first = entries.front().mtime;
    for (const Entry& e : entries) {
        SCOPED_TRACE(e.path);
        EXPECT_EQ(first, e.mtime);
        EXPECT_EQ(0, e.uid);
        EXPECT_EQ(0, e.gid);
        EXPECT_EQ("root", e.uname);
    }
}

// A hard-link entry's target would be resolved against the extracting
// process's working folder; each name must carry the whole file instead.
TEST(SpkPack, HardLinksAreStoredAsFilesAndSymlinksAsLinks)
{
    TempDir dir;
    MakeApp(dir.path() / "app", false);
    for (const char* format : {"tar.gz", "zip"}) {
        SCOPED_TRACE(format);
        fs::path out = dir.path() / (std::string("p.") + format);
        ASSERT_EQ(0, RunPack({"--format", format, (dir.path() / "app").string(), out.string()}));
        std::vector<Entry> entries = ReadArchive(out);
        int files = 0;
        for (const Entry& e : entries) {
            SCOPED_TRACE(e.path);
            EXPECT_EQ("", e.hardlink);
            if (e.path == "Contents/Frameworks/lib.so" || e.path == "Contents/Frameworks/lib.so.1") {
                EXPECT_EQ(AE_IFREG, e.type);
                EXPECT_EQ("lib", e.data);
                ++files;
            }
            if (e.path == "Contents/Frameworks/lib.so.link") {
                EXPECT_EQ(AE_IFLNK, e.type);
                EXPECT_EQ("lib.so.1", e.symlink);
            }
        }
        EXPECT_EQ(2, files);
    }
}

// What the launcher's extractor does: rewrite each path below a destination
// and write it to disk. The result must be the original tree.
TEST(SpkPack, ExtractsBackToTheSameTree)
{
    TempDir dir;
    fs::path app = dir.path() / "app";
    MakeApp(app, false);
    fs::path out = dir.path() / "nimbulo.spk";
    ASSERT_EQ(0, RunPack({app.string(), out.string()}));

    fs::path dest = dir.path() / "dest";
    fs::create_directories(dest);
    struct archive* r = archive_read_new();
    archive_read_support_filter_all(r);
    archive_read_support_format_all(r);
    struct archive* w = archive_write_disk_new();
    archive_write_disk_set_options(w, ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT);
    ASSERT_EQ(ARCHIVE_OK, archive_read_open_filename(r, out.c_str(), 10240));
    struct archive_entry* e;
    int rc;
    while ((rc = archive_read_next_header(r, &e)) == ARCHIVE_OK) {
        std::string target = dest.string() + "/" + archive_entry_pathname(e);
        archive_entry_set_pathname(e, target.c_str());
        ASSERT_EQ(ARCHIVE_OK, archive_read_extract2(r, e, w)) << archive_error_string(w);
    }
    EXPECT_EQ(ARCHIVE_EOF, rc);
    archive_read_free(r);
    archive_write_free(w);

    size_t compared = 0;
    for (const auto& it : fs::recursive_directory_iterator(app)) {
        fs::path rel = it.path().lexically_relative(app);
        SCOPED_TRACE(rel.string());
        fs::path copy = dest / rel;
        ASSERT_TRUE(fs::exists(fs::symlink_status(copy)));
        EXPECT_EQ(fs::is_symlink(it.symlink_status()), fs::is_symlink(fs::symlink_status(copy)));
        if (fs::is_regular_file(it.symlink_status())) {
            EXPECT_EQ(ReadFile(it.path()), ReadFile(copy));
            EXPECT_EQ(1u, fs::hard_link_count(copy));
        }
        ++compared;
    }
    EXPECT_EQ(16u, compared);
    EXPECT_EQ(fs::perms(0755), fs::status(dest / "Contents/MacOS/nimbulo-pelora-ui").permissions() & fs::perms(0777));
}

TEST(SpkPack, RefusesBadArgumentsWithoutLeavingOutput)
{
    TempDir dir;
    MakeApp(dir.path() / "app", false);
    WriteFile(dir.path() / "plain", "x");
    fs::path out = dir.path() / "out.spk";
    struct Row {
        std::vector<std::string> args;
        int status;
    };
    const Row rows[] = {
        {{(dir.path() / "plain").string(), out.string()}, 1},
        {{(dir.path() / "missing").string(), out.string()}, 1},
        {{"--format", "rar", (dir.path() / "app").string(), out.string()}, 1},
        {{(dir.path() / "app").string(), (dir.path() / "no-such-dir/out.spk").string()}, 1},
        {{(dir.path() / "app").string()}, 2},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.args.back());
        EXPECT_EQ(row.status, RunPack(row.args));
        EXPECT_FALSE(fs::exists(out));
        EXPECT_FALSE(fs::exists(out.string() + ".part"));
    }
}

// The launcher may start without any locale. Tar names declared as UTF-8 then
// need a conversion that libarchive reports with a warning, and the launcher
// fails the installation on any warning; the names must read back cleanly.
TEST(SpkPack, NonAsciiNamesReadWithoutWarningInTheCLocale)
{
    const std::string accented = "caf\xc3\xa9.txt";
    for (const char* format : {"tar", "tar.gz", "tar.xz"}) {
        SCOPED_TRACE(format);
        TempDir dir;
        fs::path app = dir.path() / "app";
        MakeApp(app, false);
        WriteFile(app / "Contents" / "Resources" / accented, "accent\n");
        fs::path out = dir.path() / "nimbulo.spk";
        ASSERT_EQ(0, RunPack({"--format", format, app.string(), out.string()}));

        // A child of its own, so the C locale does not leak into other tests.
        pid_t pid = fork();
        if (pid == 0) {
            setlocale(LC_ALL, "C");
            struct archive* a = archive_read_new();
            archive_read_support_filter_all(a);
            archive_read_support_format_all(a);
            int found = 0;
            if (archive_read_open_filename(a, out.c_str(), 10240) != ARCHIVE_OK)
                _exit(2);
            struct archive_entry* e;
            int rc;
            while ((rc = archive_read_next_header(a, &e)) == ARCHIVE_OK) {
                if (std::string(archive_entry_pathname(e)) == "Contents/Resources/" + accented)
                    found = 1;
            }
            archive_read_free(a);
            _exit(rc == ARCHIVE_EOF && found ? 0 : 1);
        }
        int status = 0;
        ASSERT_EQ(pid, waitpid(pid, &status, 0));
        ASSERT_TRUE(WIFEXITED(status));
        EXPECT_EQ(0, WEXITSTATUS(status)) << "1: a warning or the name changed; 2: cannot open";
    }
}

