// Extractor::Count, List and Extract on small archives written here.
#include <QSignalSpy>

#include "extractor.h"
#include "launcher.h"
#include "ui_test.h"

TEST(Extractor, CountsExtractsAndRefusesWithoutLeakingDescriptors)
{
    const std::string dir = TempDir(), dest = dir + "/dest", name = fs::path(dir).filename();
    WriteArchive(dir + "/good.tar", {{"a/", ""}, {"a/b.txt", "bee"}, {"/" + name + ".txt", "abs"}});
    WriteArchive(dir + "/dotdot.tar", {{"ok.txt", "ok"}, {"../" + name + ".txt", "out"}});
    WriteArchive(dir + "/empty.tar", {});
    // Two 1000-byte files, cut inside the second one's data.
    WriteArchive(dir + "/cut.tar", {{"one", std::string(1000, '1')}, {"two", std::string(1000, '2')}});
    fs::resize_file(dir + "/cut.tar", 512 + 1024 + 512 + 300);
    using Steps = std::vector<std::pair<int, int>>;
    // The archive, what Count and Extract return, the progress reported, the names List prints.
    const std::tuple<std::string, int, int, Steps, std::string> rows[] = {
        {"good.tar", 3, 0, {{3, 1}, {3, 2}, {3, 3}}, "a/\na/b.txt\n/" + name + ".txt\n"},
        {"dotdot.tar", 2, -1, {{2, 1}}, "ok.txt\n../" + name + ".txt\n"},
        {"cut.tar", 2, -1, {{2, 1}}, "one\ntwo\n"},
        {"empty.tar", 0, -1, {}, ""},
        {"missing.tar", -1, -1, {}, ""},
    };
    for (const auto& [archive, count, result, wantProgress, names] : rows) {
        SCOPED_TRACE(archive);
        fs::remove_all(dest);
        Extractor x{dest.c_str(), (dir + "/" + archive).c_str()};
        QSignalSpy spy(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateProgress(int, int)));
        const long fds = OpenDescriptors();
        EXPECT_EQ(count, x.Count());
        testing::internal::CaptureStdout();
        EXPECT_EQ(count < 0 ? -1 : 0, x.List());
        EXPECT_EQ(names, testing::internal::GetCapturedStdout());
        EXPECT_EQ(fds, OpenDescriptors()) << "Count or List leaks a descriptor";
        EXPECT_EQ(result, x.Extract());
        EXPECT_EQ(fds, OpenDescriptors()) << "Extract leaks a descriptor";
        Steps progress;
        for (const QList<QVariant>& args : spy)
            progress.emplace_back(args.at(0).toInt(), args.at(1).toInt());
        EXPECT_EQ(wantProgress, progress);
        EXPECT_FALSE(fs::exists(dir + "/" + name + ".txt") || fs::exists("/" + name + ".txt"))
            << "left the destination";
    }
    fs::remove_all(dir);
}

// The block copy offered beside Extract: a whole entry, then one cut short.
TEST(Extractor, CopyDataCopiesAnEntryAndRefusesACutOne)
{
    const std::string dir = TempDir();
    WriteArchive(dir + "/cut.tar", {{"one", "whole"}, {"two", std::string(1000, '2')}});
    fs::resize_file(dir + "/cut.tar", 512 * 3 + 300);
    archive *r = archive_read_new(), *w = archive_write_disk_new();
    archive_read_support_format_tar(r);
    archive_read_open_filename(r, (dir + "/cut.tar").c_str(), 10240);
    archive_entry* e;
    for (int want : {0, -1}) {
        archive_read_next_header(r, &e);
        archive_entry_set_pathname(e, (dir + "/out" + std::to_string(want)).c_str());
        archive_write_header(w, e);
        EXPECT_EQ(want, Extractor().copy_data(r, w));
    }
    EXPECT_EQ(-1, Extractor().copy_data(nullptr, w));
    archive_read_free(r), archive_write_free(w);
    EXPECT_EQ("whole", Read(dir + "/out0"));
    fs::remove_all(dir);
}
