// spk-pack run as a process on folders made here; its output read back with
// libarchive's reader.
#include <archive.h>
#include <archive_entry.h>

#include <algorithm>

#include "../../lib/lib_test.h"

static int Shell(const std::string& command)
{
    return WEXITSTATUS(std::system((command + " 2>/dev/null").c_str()));
}

// Entry names in stored order, without a folder's trailing "/".
static std::vector<std::string> Entries(const fs::path& package)
{
    std::vector<std::string> names;
    archive* a = archive_read_new();
    archive_read_support_filter_all(a);
    archive_read_support_format_all(a);
    archive_entry* e = nullptr;
    for (archive_read_open_filename(a, package.c_str(), 10240);
         archive_read_next_header(a, &e) == ARCHIVE_OK;)
        names.push_back(fs::path(archive_entry_pathname(e)).lexically_normal().generic_string());
    archive_read_free(a);
    for (std::string& name : names)
        name.erase(name.find_last_not_of('/') + 1);
    return names;
}

// Guards: the version file not last (an interrupted installation would look
// current), a folder after its contents, output that depends on file times,
// on the time of packing or on the order files were created in, a bad input
// accepted.
TEST(SpkPack, EveryFormatPutsTheVersionFileLastAndIsDeterministic)
{
    const std::string dir = TempDir(), pack = std::string(SPK_PACK_PATH) + " --format ";
    std::vector<std::string> files = {"Contents/Info.plist",        "Contents/MacOS/nimbulo-pelora-ui",
                                      "Contents/Resources/INFO",    "Contents/Resources/z/a.png",
                                      "Contents/Resources/z-x.png", "Contents/A/b"};
    for (const char* copy : {"/one/", "/two/"}) {
        for (const std::string& f : files)
            Put(dir + copy + f, f);
        std::reverse(files.begin(), files.end());
    }
    fs::last_write_time(dir + "/two/Contents/Info.plist",
                        fs::file_time_type::clock::now() - std::chrono::hours(50));
    for (const std::string format : {"tar.gz", "tar", "tar.xz", "zip", "7z"}) {
        SCOPED_TRACE(format);
        const std::string a = dir + "/a." + format, b = dir + "/b." + format;
        ASSERT_EQ(0, Shell(pack + format + " " + dir + "/one " + a) +
                         Shell("sleep 1; " + pack + format + " " + dir + "/two " + b));
        EXPECT_EQ(0, Shell("cmp " + a + " " + b)) << "two runs differ";
        const std::vector<std::string> names = Entries(a);
        ASSERT_EQ(11u, names.size());
        if (format == "7z")
            continue;  // libarchive's 7z writer orders the entries itself: offered for size comparisons only
        EXPECT_EQ("Contents/Resources/INFO", names.back());
        // Depth first, a folder's whole tree right after it; the client and INFO come last.
        for (size_t i = 1; i + 2 < names.size(); ++i)
            EXPECT_TRUE(names[i - 1] == fs::path(names[i]).parent_path().string() ||
                        names[i - 1].rfind(fs::path(names[i]).parent_path().string() + "/", 0) == 0)
                << names[i] << " is apart from its folder";
    }
    EXPECT_NE(0, Shell("mkfifo " + dir + "/one/pipe; " + pack + "tar " + dir + "/one " + dir + "/out"));
    EXPECT_NE(0, Shell(pack + "rar " + dir + "/one " + dir + "/out"));
    EXPECT_FALSE(fs::exists(dir + "/out") || fs::exists(dir + "/out.part"));
    fs::remove_all(dir);
}
