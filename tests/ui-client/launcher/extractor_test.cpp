// Extractor against real archives written here with libarchive's writer and
// real folders; log lines are read back from a real log file.
#include <gtest/gtest.h>

#include <archive.h>
#include <archive_entry.h>
#include <sys/stat.h>

#include <QCoreApplication>
#include <QSignalSpy>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <random>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

#include "extractor.h"
#include "launcher.h"
#include "log.h"
#include "str-table.h"

namespace fs = std::filesystem;

namespace {

fs::path g_logFile;

enum class Kind { Tar, TarGz, TarXz, Zip, SevenZip, Cpio };

struct Entry {
    std::string path;
    std::string data;
    bool dir = false;
};

// Writes entries with libarchive's writer; false (with a test failure) when
// the writer refuses anything, so a broken fixture never passes as a result.
bool WriteArchive(const fs::path& file, Kind kind, const std::vector<Entry>& entries)
{
    archive* a = archive_write_new();
    switch (kind) {
    case Kind::Tar: archive_write_set_format_ustar(a); break;
    case Kind::TarGz: archive_write_set_format_pax_restricted(a); archive_write_add_filter_gzip(a); break;
    case Kind::TarXz: archive_write_set_format_pax_restricted(a); archive_write_add_filter_xz(a); break;
    case Kind::Zip: archive_write_set_format_zip(a); break;
    case Kind::SevenZip: archive_write_set_format_7zip(a); break;
    case Kind::Cpio: archive_write_set_format_cpio_newc(a); break;
    }
    bool ok = archive_write_open_filename(a, file.c_str()) == ARCHIVE_OK;
    for (const Entry& e : entries) {
        if (!ok) {
            break;
        }
        archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname(entry, e.path.c_str());
        archive_entry_set_filetype(entry, e.dir ? AE_IFDIR : AE_IFREG);
        archive_entry_set_perm(entry, e.dir ? 0755 : 0644);
        archive_entry_set_size(entry, e.dir ? 0 : static_cast<la_int64_t>(e.data.size()));
        archive_entry_set_mtime(entry, 1700000000, 0);
        ok = archive_write_header(a, entry) == ARCHIVE_OK;
        if (ok && !e.dir && !e.data.empty()) {
            ok = archive_write_data(a, e.data.data(), e.data.size()) == static_cast<la_ssize_t>(e.data.size());
        }
        archive_entry_free(entry);
    }
    if (archive_write_close(a) != ARCHIVE_OK) {
        ok = false;
    }
    if (!ok) {
        ADD_FAILURE() << "writing " << file << ": " << (archive_error_string(a) ? archive_error_string(a) : "");
    }
    archive_write_free(a);
    return ok;
}

std::string ReadFile(const fs::path& p)
{
    std::ifstream in(p, std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    return s.str();
}

std::string Bytes(size_t n, unsigned seed)
{
    std::mt19937 gen(seed);
    std::string s(n, '\0');
    for (char& c : s) {
        c = static_cast<char>(gen() & 0xff);
    }
    return s;
}

// Expected log text: "%d" of the line number is written as "(N)"; "<any>"
// stands for a libarchive error text, whose wording is libarchive's own.
const char* const kAny = "<any>";

std::regex LinePattern(const std::string& expected)
{
    std::string rx;
    for (size_t i = 0; i < expected.size(); ++i) {
        if (expected.compare(i, 5, kAny) == 0) {
            rx += ".*";
            i += 4;
        } else if (expected.compare(i, 3, "(N)") == 0) {
            rx += "\\([0-9]+\\)";
            i += 2;
        } else if (std::string("\\^$.|?*+()[]{}").find(expected[i]) != std::string::npos) {
            rx += '\\';
            rx += expected[i];
        } else if (expected[i] != '\n') {
            rx += expected[i];
        }
    }
    return std::regex(rx);
}

class ExtractorTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        std::string tmpl = (fs::temp_directory_path() / "extractor-XXXXXX").string();
        ASSERT_NE(mkdtemp(tmpl.data()), nullptr);
        root = tmpl;
        dest = root / "dest";
        logStart = fs::exists(g_logFile) ? fs::file_size(g_logFile) : 0;
    }

    void TearDown() override
    {
        if (!HasFailure()) {
            std::error_code ec;
            fs::remove_all(root, ec);
        }
    }

    Extractor Make(const fs::path& archivePath) const
    {
        Extractor x;
        x.archivePath = archivePath.string().c_str();
        x.destination = dest.string().c_str();
        return x;
    }

    // The log lines written since SetUp, time stamps removed.
    std::vector<std::string> NewLogLines() const
    {
        std::string text = ReadFile(g_logFile).substr(logStart);
        std::vector<std::string> lines;
        std::istringstream in(text);
        std::string line;
        static const std::regex stamp("^[A-Za-z]{3} [0-9 ][0-9] [0-9]{2}:[0-9]{2}:[0-9]{2} ");
        while (std::getline(in, line)) {
            lines.push_back(std::regex_replace(line, stamp, "", std::regex_constants::format_first_only));
        }
        return lines;
    }

    void ExpectLog(const std::vector<std::string>& expected) const
    {
        std::vector<std::string> lines = NewLogLines();
        std::string all;
        for (const std::string& l : lines) {
            all += "  " + l + "\n";
        }
        ASSERT_EQ(lines.size(), expected.size()) << all;
        for (size_t i = 0; i < lines.size(); ++i) {
            EXPECT_TRUE(std::regex_match(lines[i], LinePattern(expected[i])))
                << "line " << i << ": " << lines[i] << "\nexpected: " << expected[i];
            // A missing libarchive text must show as empty, never as glibc's "(null)".
            EXPECT_EQ(lines[i].find("(null)"), std::string::npos) << lines[i];
        }
    }

    std::string Decompress(const fs::path& archivePath) const
    {
        return "[DEBUG] extractor(N): decompress from '" + archivePath.string() + "' to '" + dest.string() + "'\n";
    }

    fs::path root;
    fs::path dest;
    uintmax_t logStart = 0;
};

std::vector<std::pair<int, int>> Progress(const QSignalSpy& spy)
{
    std::vector<std::pair<int, int>> out;
    for (const QList<QVariant>& args : spy) {
        out.emplace_back(args.at(0).toInt(), args.at(1).toInt());
    }
    return out;
}

// Guards: progress sent before the entry is written or more than once per
// entry, a missing dialog text, and entries landing outside the folder.
TEST_F(ExtractorTest, FourEntriesReportProgressInOrder)
{
    fs::path arc = root / "pkg.tar.gz";
    ASSERT_TRUE(WriteArchive(arc, Kind::TarGz,
                             {{"a", "", true}, {"a/b.txt", "bee\n"}, {"c.txt", "sea\n"}, {"a/d.bin", Bytes(30000, 1)}}));

    QSignalSpy progress(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateProgress(int, int)));
    QSignalSpy text(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateDialogText(QString)));
    Extractor x = Make(arc);
    EXPECT_EQ(x.Extract(), 0);

    std::vector<std::pair<int, int>> want = {{4, 1}, {4, 2}, {4, 3}, {4, 4}};
    EXPECT_EQ(Progress(progress), want);
    ASSERT_EQ(text.count(), 1);
    EXPECT_EQ(text.at(0).at(0).toString(), StrTable::LoadStr(457));
    EXPECT_EQ(ReadFile(dest / "a" / "b.txt"), "bee\n");
    EXPECT_EQ(ReadFile(dest / "c.txt"), "sea\n");
    EXPECT_EQ(ReadFile(dest / "a" / "d.bin"), Bytes(30000, 1));
    ExpectLog({Decompress(arc)});
}

// Guards: an unreadable or empty archive must not start an installation,
// and the two empty-field messages differ in the case of one letter.
TEST_F(ExtractorTest, NothingToExtractCreatesNothing)
{
    fs::path empty = root / "empty.tar.gz";
    ASSERT_TRUE(WriteArchive(empty, Kind::TarGz, {}));
    fs::path missing = root / "missing.tar.gz";

    struct Row {
        std::string name;
        fs::path archivePath;
        bool clearDest;
        int count;
        std::vector<std::string> countLog;
        std::vector<std::string> extractLog;
    };
    const std::vector<Row> rows = {
        {"empty archive", empty, false, 0, {},
         {Decompress(empty), "[ERROR] extractor(N): Failed to calculate total file numbers, ret: 0\n"}},
        {"missing archive", missing, false, -1,
         {"[ERROR] extractor(N): archive_read_open_filename failed: '<any>'\n"},
         {Decompress(missing), "[ERROR] extractor(N): archive_read_open_filename failed: '<any>'\n",
          "[ERROR] extractor(N): Failed to calculate total file numbers, ret: -1\n"}},
        {"empty archive path", "", false, -1, {"[ERROR] extractor(N): Invalid argument\n"},
         {"[ERROR] extractor(N): Invalid Argument\n"}},
        {"empty destination", empty, true, -1, {"[ERROR] extractor(N): Invalid argument\n"},
         {"[ERROR] extractor(N): Invalid Argument\n"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Extractor x = Make(row.archivePath);
        if (row.clearDest) {
            x.destination = "";
        }
        QSignalSpy progress(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateProgress(int, int)));

        logStart = fs::file_size(g_logFile);
        EXPECT_EQ(x.Count(), row.count);
        ExpectLog(row.countLog);

        logStart = fs::file_size(g_logFile);
        EXPECT_EQ(x.Extract(), -1);
        ExpectLog(row.extractLog);

        EXPECT_EQ(progress.count(), 0);
        EXPECT_FALSE(fs::exists(dest));
    }
}

// Guards: a damaged package must fail the installation, yet counting stops
// quietly at the damage, and the entries before it are on disk.
TEST_F(ExtractorTest, TruncatedArchiveWritesEntriesBeforeDamageAndFails)
{
    // Plain tar: each 1000-byte file takes a 512-byte header and 1024 bytes
    // of data, so entry 3's header starts at byte 3072.
    std::vector<Entry> entries;
    for (int i = 1; i <= 4; ++i) {
        entries.push_back({"f" + std::to_string(i), Bytes(1000, static_cast<unsigned>(i))});
    }
    struct Row {
        std::string name;
        uintmax_t cutAt;
        int count;
        std::string failure;
    };
    const std::vector<Row> rows = {
        {"cut inside a header", 3072 + 256, 2, "[ERROR] extractor(N): archive_read_next_header failed: '<any>'\n"},
        {"cut inside the data", 3072 + 512 + 300, 3, "[ERROR] extractor(N): archive_read_extract2 failed: '<any>'\n"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        fs::path arc = root / (row.name + ".tar");
        ASSERT_TRUE(WriteArchive(arc, Kind::Tar, entries));
        fs::resize_file(arc, row.cutAt);
        fs::remove_all(dest);

        Extractor x = Make(arc);
        logStart = fs::file_size(g_logFile);
        EXPECT_EQ(x.Count(), row.count);
        ExpectLog({});

        QSignalSpy progress(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateProgress(int, int)));
        logStart = fs::file_size(g_logFile);
        EXPECT_EQ(x.Extract(), -1);
        ExpectLog({Decompress(arc), row.failure});

        std::vector<std::pair<int, int>> want = {{row.count, 1}, {row.count, 2}};
        EXPECT_EQ(Progress(progress), want);
        EXPECT_EQ(ReadFile(dest / "f1"), entries[0].data);
        EXPECT_EQ(ReadFile(dest / "f2"), entries[1].data);
        EXPECT_FALSE(fs::exists(dest / "f4"));
    }
}

// Guards: the writer's ".." refusal being lost, and a stored absolute path
// escaping the destination because the rewrite was skipped.
TEST_F(ExtractorTest, HostilePaths)
{
    const std::string outsideName = "escaped-" + root.filename().string();
    struct Row {
        std::string stored;
        int result;
        fs::path inside;  // where the file must land, relative to dest
    };
    const std::vector<Row> rows = {
        {"../" + outsideName, -1, ""},
        {"sub/../../" + outsideName, -1, ""},
        {"/" + outsideName + "/abs.txt", 0, fs::path(outsideName) / "abs.txt"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.stored);
        fs::remove_all(dest);
        fs::path arc = root / "hostile.tar";
        ASSERT_TRUE(WriteArchive(arc, Kind::Tar, {{"ok.txt", "fine"}, {row.stored, "payload"}}));

        // The fixture must really store the hostile name unchanged.
        Extractor lister = Make(arc);
        std::ostringstream listed;
        std::streambuf* old = std::cout.rdbuf(listed.rdbuf());
        lister.List();
        std::cout.rdbuf(old);
        ASSERT_EQ(listed.str(), "ok.txt\n" + row.stored + "\n");

        Extractor x = Make(arc);
        logStart = fs::file_size(g_logFile);
        EXPECT_EQ(x.Extract(), row.result);
        EXPECT_EQ(ReadFile(dest / "ok.txt"), "fine");
        EXPECT_FALSE(fs::exists(root / outsideName));
        EXPECT_FALSE(fs::exists(fs::path("/") / outsideName));
        if (row.result == 0) {
            EXPECT_EQ(ReadFile(dest / row.inside), "payload");
            ExpectLog({Decompress(arc)});
        } else {
            ExpectLog({Decompress(arc), "[ERROR] extractor(N): archive_read_extract2 failed: '<any>'\n"});
        }
        std::error_code ec;
        fs::remove_all(fs::path("/") / outsideName, ec);
    }
}

// Guards: a stale file (even read-only, or a link to somewhere else) in the
// way of a new one surviving, or the write reaching what the old name shared
// (a symbolic link's target, a hard link's other name).
TEST_F(ExtractorTest, ExistingTargetIsReplaced)
{
    fs::path arc = root / "pkg.tar";
    ASSERT_TRUE(WriteArchive(arc, Kind::Tar, {{"a.txt", "new"}}));
    fs::path outside = root / "outside.txt";

    struct Row {
        std::string name;
        void (*prepare)(const fs::path& target, const fs::path& outside);
    };
    const std::vector<Row> rows = {
        {"longer regular file",
         [](const fs::path& target, const fs::path&) { std::ofstream(target) << "old content, longer than new"; }},
        {"read-only file",
         [](const fs::path& target, const fs::path&) {
             std::ofstream(target) << "old";
             fs::permissions(target, fs::perms::owner_read);
         }},
        {"symbolic link", [](const fs::path& target, const fs::path& out) { fs::create_symlink(out, target); }},
        {"hard link", [](const fs::path& target, const fs::path& out) { fs::create_hard_link(out, target); }},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        fs::remove_all(dest);
        fs::create_directories(dest);
        std::ofstream(outside) << "untouched";
        row.prepare(dest / "a.txt", outside);

        Extractor x = Make(arc);
        EXPECT_EQ(x.Extract(), 0);
        EXPECT_FALSE(fs::is_symlink(dest / "a.txt"));
        EXPECT_EQ(ReadFile(dest / "a.txt"), "new");
        EXPECT_EQ(ReadFile(outside), "untouched");
    }
}

// Guards: a format or decompression filter not enabled, and data altered on
// the way (binary bytes, an empty file, a folder).
TEST_F(ExtractorTest, EveryFormatExtractsByteIdentically)
{
    const std::vector<Entry> entries = {
        {"dir", "", true},
        {"dir/one.txt", "one\n"},
        {"dir/empty", ""},
        {"blob.bin", Bytes(70000, 7)},
    };
    const std::vector<std::pair<std::string, Kind>> rows = {
        {"tar.gz", Kind::TarGz}, {"zip", Kind::Zip}, {"7z", Kind::SevenZip},
        {"cpio", Kind::Cpio},    {"tar.xz", Kind::TarXz},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.first);
        fs::remove_all(dest);
        fs::path arc = root / ("pkg." + row.first);
        ASSERT_TRUE(WriteArchive(arc, row.second, entries));

        QSignalSpy progress(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateProgress(int, int)));
        Extractor x = Make(arc);
        EXPECT_EQ(x.Count(), 4);
        EXPECT_EQ(x.Extract(), 0);
        EXPECT_EQ(progress.count(), 4);
        EXPECT_TRUE(fs::is_directory(dest / "dir"));
        for (const Entry& e : entries) {
            if (!e.dir) {
                EXPECT_TRUE(fs::is_regular_file(dest / e.path)) << e.path;
                EXPECT_EQ(ReadFile(dest / e.path), e.data) << e.path;
            }
        }
    }
}

// Guards: lines lost or merged in the listing, and output for a file that
// cannot be listed.
TEST_F(ExtractorTest, ListPrintsOneLinePerEntry)
{
    fs::path arc = root / "pkg.zip";
    ASSERT_TRUE(WriteArchive(arc, Kind::Zip, {{"one", "1"}, {"two/", "", true}, {"two/three", "3"}}));
    struct Row {
        std::string name;
        fs::path archivePath;
        bool clearDest;
        int result;
        std::string printed;
        std::vector<std::string> log;
    };
    const std::vector<Row> rows = {
        {"three entries", arc, false, 0, "one\ntwo/\ntwo/three\n", {}},
        {"missing archive", root / "missing.zip", false, -1, "",
         {"[ERROR] extractor(N): archive_read_open_filename failed: '<any>'\n"}},
        {"empty destination", arc, true, -1, "", {"[ERROR] extractor(N): Invalid argument\n"}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Extractor x = Make(row.archivePath);
        if (row.clearDest) {
            x.destination = "";
        }
        logStart = fs::file_size(g_logFile);
        std::ostringstream out;
        std::streambuf* old = std::cout.rdbuf(out.rdbuf());
        int result = x.List();
        std::cout.rdbuf(old);
        EXPECT_EQ(result, row.result);
        EXPECT_EQ(out.str(), row.printed);
        ExpectLog(row.log);
        EXPECT_FALSE(fs::exists(dest));
    }
}

// Guards: the block copy dropping or misplacing data, and null handles.
TEST_F(ExtractorTest, CopyDataCopiesOneEntry)
{
    fs::path arc = root / "pkg.tar.xz";
    const std::string data = Bytes(50000, 3);
    ASSERT_TRUE(WriteArchive(arc, Kind::TarXz, {{"blob", data}}));
    fs::create_directories(dest);

    archive* reader = archive_read_new();
    archive_read_support_filter_all(reader);
    archive_read_support_format_all(reader);
    ASSERT_EQ(archive_read_open_filename(reader, arc.c_str(), 10240), ARCHIVE_OK);
    archive* writer = archive_write_disk_new();
    archive_entry* entry = nullptr;
    ASSERT_EQ(archive_read_next_header(reader, &entry), ARCHIVE_OK);
    archive_entry_set_pathname(entry, (dest / "blob").c_str());
    ASSERT_EQ(archive_write_header(writer, entry), ARCHIVE_OK);

    Extractor x;
    logStart = fs::file_size(g_logFile);
    EXPECT_EQ(x.copy_data(reader, writer), 0);
    EXPECT_EQ(archive_write_finish_entry(writer), ARCHIVE_OK);
    EXPECT_EQ(x.copy_data(nullptr, writer), -1);
    EXPECT_EQ(x.copy_data(reader, nullptr), -1);
    archive_read_free(reader);
    archive_write_free(writer);

    EXPECT_EQ(ReadFile(dest / "blob"), data);
    ExpectLog({"[ERROR] extractor(N): Invalid Argument\n", "[ERROR] extractor(N): Invalid Argument\n"});
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);

    std::string tmpl = (fs::temp_directory_path() / "extractor-log-XXXXXX").string();
    if (mkdtemp(tmpl.data()) == nullptr) {
        std::perror("mkdtemp");
        return 1;
    }
    fs::path logDir = tmpl;
    g_logFile = logDir / "launcher.log";
    std::ofstream(logDir / "launcher.debug") << "extractor_debug=7\n";
    if (Logger::Initialize(Logger::TYPE_FILE, g_logFile.string().c_str(), (logDir / "launcher.debug").string().c_str(),
                           50) != 0) {
        std::fprintf(stderr, "cannot open the log %s\n", g_logFile.c_str());
        return 1;
    }
    StrTable::InitStrTable();
    Notify_Adapter::GetInstance();

    int result = RUN_ALL_TESTS();
    if (result == 0) {
        std::error_code ec;
        fs::remove_all(logDir, ec);
    }
    return result;
}
