// spk-pack run as a process on folders made here; its output read back with
// libarchive's reader.
#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace {

int Pack(const std::string& args)
{
    return WEXITSTATUS(std::system((SPK_PACK_PATH " " + args + " 2>/dev/null").c_str()));
}

std::string Read(const fs::path& p)
{
    std::ifstream in(p, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

// The same application tree, its files created in the given order.
void MakeApp(const fs::path& root, std::vector<std::string> files)
{
    for (const std::string& f : files) {
        fs::create_directories((root / f).parent_path());
        std::ofstream(root / f) << f;
    }
}

std::vector<std::string> Entries(const fs::path& package)
{
    std::vector<std::string> names;
    archive* a = archive_read_new();
    archive_read_support_filter_all(a);
    archive_read_support_format_all(a);
    archive_entry* e = nullptr;
    if (archive_read_open_filename(a, package.c_str(), 10240) == ARCHIVE_OK)
        while (archive_read_next_header(a, &e) == ARCHIVE_OK) {
            std::string name = archive_entry_pathname(e);
            names.push_back(name.back() == '/' ? name.substr(0, name.size() - 1) : name);
        }
    archive_read_free(a);
    return names;
}

// Guards: the version file not last (an interrupted installation would look
// current), a folder after its contents, output that depends on file times
// or on the order a folder lists its entries.
TEST(SpkPack, EveryFormatPutsTheVersionFileLastAndIsDeterministic)
{
    char pattern[] = "/tmp/spk-pack-test-XXXXXX";
    const fs::path dir = mkdtemp(pattern);
    std::vector<std::string> files = {"Contents/Info.plist", "Contents/MacOS/nimbulo-pelora-ui",
                                      "Contents/Resources/INFO", "Contents/Resources/z/a.png", "Contents/A/b"};
    MakeApp(dir / "one", files);
    std::reverse(files.begin(), files.end());
    MakeApp(dir / "two", files);
    fs::last_write_time(dir / "two/Contents/Info.plist", fs::file_time_type::clock::now() - std::chrono::hours(50));
    for (const std::string format : {"tar.gz", "tar", "tar.xz", "zip", "7z"}) {
        SCOPED_TRACE(format);
        const fs::path a = dir / ("a." + format), b = dir / ("b." + format);
        ASSERT_EQ(0, Pack("--format " + format + " " + (dir / "one").string() + " " + a.string()));
        ASSERT_EQ(0, Pack("--format " + format + " " + (dir / "two").string() + " " + b.string()));
        EXPECT_TRUE(Read(a) == Read(b)) << "two runs differ";
        const std::vector<std::string> names = Entries(a);
        ASSERT_EQ(10u, names.size());
        if (format == "7z")
            continue;  // libarchive's 7z writer orders entries itself; offered for size comparisons only
        EXPECT_EQ("Contents/Resources/INFO", names.back());
        for (size_t i = 0; i < names.size(); ++i) {
            const std::string parent = fs::path(names[i]).parent_path().generic_string();
            EXPECT_TRUE(parent.empty() || std::find(names.begin(), names.begin() + i, parent) != names.begin() + i)
                << names[i] << " comes before its folder";
        }
    }
    EXPECT_NE(0, Pack((dir / "missing").string() + " " + (dir / "out").string()));
    EXPECT_NE(0, Pack("--format rar " + (dir / "one").string() + " " + (dir / "out").string()));
    EXPECT_FALSE(fs::exists(dir / "out"));
    fs::remove_all(dir);
}

}  // namespace
