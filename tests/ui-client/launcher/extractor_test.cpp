// Extractor against real archives written with libarchive's writer, real
// folders and a real log.
#include <QCoreApplication>
#include <QSignalSpy>
#include <algorithm>
#include <functional>
#include <iostream>

#include "extractor.h"
#include "launcher.h"
#include "log.h"
#include "service_test_util.h"
#include "str-table.h"

using namespace servicetest;

namespace {

const std::string kArchiveFail = "[ERROR] extractor(N): archive_read_extract2 failed: '<any>'";
const std::string kOpenFail = "[ERROR] extractor(N): archive_read_open_filename failed: '<any>'";
const std::string kInvalid = "[ERROR] extractor(N): Invalid argument";
const std::string kInvalidCap = "[ERROR] extractor(N): Invalid Argument";

std::vector<std::pair<int, int>> Progress(const QSignalSpy& spy)
{
    std::vector<std::pair<int, int>> out;
    for (const QList<QVariant>& args : spy)
        out.emplace_back(args.at(0).toInt(), args.at(1).toInt());
    return out;
}

class ExtractorTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        WriteFile(dir.path() + "/debug", "extractor_debug=7\n");
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, log.c_str(), (dir.path() + "/debug").c_str(), 50), 0);
    }

    Extractor Make(const std::string& archivePath, bool noDest = false) const
    {
        Extractor x;
        x.archivePath = archivePath.c_str();
        x.destination = noDest ? "" : dest.c_str();
        return x;
    }

    void Mark() { logStart = fs::exists(log) ? fs::file_size(log) : 0; }

    // The messages since Mark(); "<any>" in want stands for libarchive's own
    // error text, which must never show as glibc's "(null)".
    void ExpectLog(const std::vector<std::string>& want) const
    {
        std::vector<std::string> got = LogMessages(log, logStart);
        for (size_t i = 0; i < got.size() && i < want.size(); ++i) {
            size_t any = want[i].find("<any>");
            const std::string tail = any == std::string::npos ? "" : want[i].substr(any + 5);
            if (any != std::string::npos && got[i].size() >= any + tail.size() &&
                got[i].compare(0, any, want[i], 0, any) == 0 &&
                got[i].compare(got[i].size() - tail.size(), tail.size(), tail) == 0 &&
                got[i].find("(null)") == std::string::npos)
                got[i] = want[i];
        }
        EXPECT_EQ(got, want);
        const std::string raw = ReadFile(log).substr(std::min<size_t>(logStart, ReadFile(log).size()));
        EXPECT_EQ(std::count(raw.begin(), raw.end(), '\n'), static_cast<long>(want.size())) << "a message without its line break";
    }

    std::string Decompress(const std::string& archivePath) const
    {
        return "[DEBUG] extractor(N): decompress from '" + archivePath + "' to '" + dest + "'";
    }

    static std::string Listed(Extractor& x, int* result)
    {
        std::ostringstream out;
        std::streambuf* old = std::cout.rdbuf(out.rdbuf());
        *result = x.List();
        std::cout.rdbuf(old);
        return out.str();
    }

    TempDir dir;
    std::string dest = dir.path() + "/dest";
    std::string log = dir.path() + "/launcher.log";
    size_t logStart = 0;
};

#define SPY_PROGRESS(name) QSignalSpy name(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateProgress(int, int)))

// Guards: progress before the entry is written or more than once per entry,
// a missing dialog text, entries landing outside the folder.
TEST_F(ExtractorTest, FourEntriesReportProgressInOrder)
{
    std::string arc = dir.path() + "/pkg.tar.gz";
    ASSERT_TRUE(WriteArchive(arc, Kind::TarGz,
                             {{"a", "", true}, {"a/b.txt", "bee\n"}, {"c.txt", "sea\n"}, {"a/d.bin", Bytes(30000, 1)}}));
    SPY_PROGRESS(progress);
    QSignalSpy text(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateDialogText(QString)));
    EXPECT_EQ(Make(arc).Extract(), 0);
    EXPECT_EQ(Progress(progress), (std::vector<std::pair<int, int>>{{4, 1}, {4, 2}, {4, 3}, {4, 4}}));
    ASSERT_EQ(text.count(), 1);
    EXPECT_EQ(text.at(0).at(0).toString(), StrTable::LoadStr(457));
    EXPECT_EQ(ReadFile(dest + "/a/b.txt"), "bee\n");
    EXPECT_EQ(ReadFile(dest + "/c.txt"), "sea\n");
    EXPECT_EQ(ReadFile(dest + "/a/d.bin"), Bytes(30000, 1));
    ExpectLog({Decompress(arc)});
}

// Guards: an unreadable or empty archive starting an installation; the two
// empty-field messages differ in the case of one letter.
TEST_F(ExtractorTest, NothingToExtractCreatesNothing)
{
    std::string empty = dir.path() + "/empty.tar.gz", missing = dir.path() + "/missing.tar.gz";
    ASSERT_TRUE(WriteArchive(empty, Kind::TarGz, {}));
    struct Row {
        std::string name, archivePath;
        bool noDest;
        int count;
        std::vector<std::string> countLog, extractLog;
    };
    const std::vector<Row> rows = {
        {"empty archive", empty, false, 0, {},
         {Decompress(empty), "[ERROR] extractor(N): Failed to calculate total file numbers, ret: 0"}},
        {"missing archive", missing, false, -1, {kOpenFail},
         {Decompress(missing), kOpenFail, "[ERROR] extractor(N): Failed to calculate total file numbers, ret: -1"}},
        {"empty archive path", "", false, -1, {kInvalid}, {kInvalidCap}},
        {"empty destination", empty, true, -1, {kInvalid}, {kInvalidCap}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        Extractor x = Make(row.archivePath, row.noDest);
        SPY_PROGRESS(progress);
        Mark();
        EXPECT_EQ(x.Count(), row.count);
        ExpectLog(row.countLog);
        Mark();
        EXPECT_EQ(x.Extract(), -1);
        ExpectLog(row.extractLog);
        EXPECT_EQ(progress.count(), 0);
        EXPECT_FALSE(fs::exists(dest));
    }
}

// Guards: a damaged package passing; counting must stop quietly at the
// damage, and the entries before it are on disk.
TEST_F(ExtractorTest, TruncatedArchiveWritesEntriesBeforeDamageAndFails)
{
    // Plain tar: each 1000-byte file takes a 512-byte header and 1024 bytes
    // of data, so entry 3's header starts at byte 3072.
    std::vector<Entry> entries;
    for (unsigned i = 1; i <= 4; ++i)
        entries.push_back({"f" + std::to_string(i), Bytes(1000, i)});
    struct Row {
        std::string name;
        uintmax_t cutAt;
        int count;
        std::string failure;
    };
    const std::vector<Row> rows = {
        {"cut inside a header", 3072 + 256, 2, "[ERROR] extractor(N): archive_read_next_header failed: '<any>'"},
        {"cut inside the data", 3072 + 512 + 300, 3, kArchiveFail},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        std::string arc = dir.path() + "/" + row.name + ".tar";
        ASSERT_TRUE(WriteArchive(arc, Kind::Tar, entries));
        fs::resize_file(arc, row.cutAt);
        fs::remove_all(dest);
        Extractor x = Make(arc);
        Mark();
        EXPECT_EQ(x.Count(), row.count);
        ExpectLog({});
        SPY_PROGRESS(progress);
        Mark();
        EXPECT_EQ(x.Extract(), -1);
        ExpectLog({Decompress(arc), row.failure});
        EXPECT_EQ(Progress(progress), (std::vector<std::pair<int, int>>{{row.count, 1}, {row.count, 2}}));
        EXPECT_EQ(ReadFile(dest + "/f1"), entries[0].data);
        EXPECT_EQ(ReadFile(dest + "/f2"), entries[1].data);
        EXPECT_FALSE(fs::exists(dest + "/f4"));
    }
}

// Guards: the writer's ".." refusal being lost, and a stored absolute path
// escaping because the rewrite below the destination was skipped.
TEST_F(ExtractorTest, HostilePaths)
{
    const std::string outside = "escaped-" + fs::path(dir.path()).filename().string();
    const std::vector<std::pair<std::string, std::string>> rows = {
        {"../" + outside, ""}, {"sub/../../" + outside, ""}, {"/" + outside + "/abs.txt", outside + "/abs.txt"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.first);
        fs::remove_all(dest);
        std::string arc = dir.path() + "/hostile.tar";
        ASSERT_TRUE(WriteArchive(arc, Kind::Tar, {{"ok.txt", "fine"}, {row.first, "payload"}}));
        Extractor lister = Make(arc);
        int listed = -1;
        ASSERT_EQ(Listed(lister, &listed), "ok.txt\n" + row.first + "\n") << "the fixture must store the name as is";
        Mark();
        EXPECT_EQ(Make(arc).Extract(), row.second.empty() ? -1 : 0);
        EXPECT_EQ(ReadFile(dest + "/ok.txt"), "fine");
        EXPECT_FALSE(fs::exists(dir.path() + "/" + outside));
        EXPECT_FALSE(fs::exists("/" + outside));
        EXPECT_EQ(ReadFile(dest + "/" + row.second), row.second.empty() ? "" : "payload");
        ExpectLog(row.second.empty() ? std::vector<std::string>{Decompress(arc), kArchiveFail}
                                     : std::vector<std::string>{Decompress(arc)});
        std::error_code ec;
        fs::remove_all("/" + outside, ec);
    }
}

// Guards: a stale file (read-only, or a link) in the way surviving, or the
// write reaching what the old name shared (a link's target).
TEST_F(ExtractorTest, ExistingTargetIsReplaced)
{
    std::string arc = dir.path() + "/pkg.tar", outside = dir.path() + "/outside.txt", target = dest + "/a.txt";
    ASSERT_TRUE(WriteArchive(arc, Kind::Tar, {{"a.txt", "new"}}));
    const std::vector<std::pair<const char*, std::function<void()>>> rows = {
        {"longer regular file", [&] { WriteFile(target, "old content, longer than new"); }},
        {"read-only file",
         [&] {
             WriteFile(target, "old");
             fs::permissions(target, fs::perms::owner_read);
         }},
        {"symbolic link", [&] { fs::create_symlink(outside, target); }},
        {"hard link", [&] { fs::create_hard_link(outside, target); }},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.first);
        fs::remove_all(dest);
        fs::create_directories(dest);
        WriteFile(outside, "untouched");
        row.second();
        EXPECT_EQ(Make(arc).Extract(), 0);
        EXPECT_FALSE(fs::is_symlink(target));
        EXPECT_EQ(ReadFile(target), "new");
        EXPECT_EQ(ReadFile(outside), "untouched");
    }
}

// Guards: a format or filter not enabled, data altered on the way.
TEST_F(ExtractorTest, EveryFormatExtractsByteIdentically)
{
    const std::vector<Entry> entries = {
        {"dir", "", true}, {"dir/one.txt", "one\n"}, {"dir/empty", ""}, {"blob.bin", Bytes(70000, 7)}};
    const std::vector<std::pair<std::string, Kind>> rows = {
        {"tar.gz", Kind::TarGz}, {"zip", Kind::Zip}, {"7z", Kind::SevenZip}, {"cpio", Kind::Cpio}, {"tar.xz", Kind::TarXz}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.first);
        fs::remove_all(dest);
        std::string arc = dir.path() + "/pkg." + row.first;
        ASSERT_TRUE(WriteArchive(arc, row.second, entries));
        SPY_PROGRESS(progress);
        Extractor x = Make(arc);
        EXPECT_EQ(x.Count(), 4);
        EXPECT_EQ(x.Extract(), 0);
        EXPECT_EQ(progress.count(), 4);
        EXPECT_EQ(Snapshot(dest), (std::map<std::string, std::string>{
                                      {"dir", "<dir>"}, {"dir/one.txt", "one\n"}, {"dir/empty", ""},
                                      {"blob.bin", entries[3].data}}));
    }
}

// Guards: lines lost or merged in the listing, output for a file that cannot
// be listed.
TEST_F(ExtractorTest, ListPrintsOneLinePerEntry)
{
    std::string arc = dir.path() + "/pkg.zip";
    ASSERT_TRUE(WriteArchive(arc, Kind::Zip, {{"one", "1"}, {"two/", "", true}, {"two/three", "3"}}));
    struct Row {
        std::string archivePath;
        bool noDest;
        int result;
        std::string printed;
        std::vector<std::string> log;
    };
    const std::vector<Row> rows = {
        {arc, false, 0, "one\ntwo/\ntwo/three\n", {}},
        {dir.path() + "/missing.zip", false, -1, "", {kOpenFail}},
        {arc, true, -1, "", {kInvalid}},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.archivePath + (row.noDest ? " without destination" : ""));
        Extractor x = Make(row.archivePath, row.noDest);
        Mark();
        int result = 1;
        EXPECT_EQ(Listed(x, &result), row.printed);
        EXPECT_EQ(result, row.result);
        ExpectLog(row.log);
        EXPECT_FALSE(fs::exists(dest));
    }
}

// Guards: the block copy dropping or misplacing data, and null handles.
TEST_F(ExtractorTest, CopyDataCopiesOneEntry)
{
    std::string arc = dir.path() + "/pkg.tar.xz";
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
    archive_entry_set_pathname(entry, (dest + "/blob").c_str());
    ASSERT_EQ(archive_write_header(writer, entry), ARCHIVE_OK);
    Extractor x;
    Mark();
    EXPECT_EQ(x.copy_data(reader, writer), 0);
    EXPECT_EQ(archive_write_finish_entry(writer), ARCHIVE_OK);
    EXPECT_EQ(x.copy_data(nullptr, writer), -1);
    EXPECT_EQ(x.copy_data(reader, nullptr), -1);
    archive_read_free(reader);
    archive_write_free(writer);
    EXPECT_EQ(ReadFile(dest + "/blob"), data);
    ExpectLog({kInvalidCap, kInvalidCap});
}

}  // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    StrTable::InitStrTable();
    Notify_Adapter::GetInstance();
    return RUN_ALL_TESTS();
}
