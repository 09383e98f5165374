// Logger: sinks, thresholds, rotation and concurrent writers. The logger's
// state is static, so every test re-initialises it into a folder of its own
// and destroys it at the end. Thresholds accumulate over a process, so each
// test that changes them uses component names no other test uses.
#include "log.h"
#include "log_test_util.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

namespace fs = std::filesystem;
using namespace logtest;

namespace {

const int32_t kLimit = 1048576;

ustring U(const fs::path& p)
{
    return ustring(p.string());
}

std::vector<std::string> Lines(std::initializer_list<std::string> texts)
{
    return std::vector<std::string>(texts);
}

// Only a variadic caller can build the va_list the C entry point takes.
void LogThroughC(int level, const char* component, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    LogMSG_c(level, const_cast<char*>(component), format, args);
    va_end(args);
}

class LoggerTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        dir = MakeTempDir("logger_test");
        ASSERT_FALSE(dir.empty());
        log = dir / "launcher.log";
    }
    void TearDown() override
    {
        Logger::Destroy();
        if (!HasFailure()) {
            fs::remove_all(dir);
        }
    }
    int Init(int rotateCount = 50, const fs::path& levelFile = fs::path())
    {
        return Logger::Initialize(Logger::TYPE_FILE, U(log), U(levelFile), rotateCount);
    }
    fs::path Numbered(int i) const { return fs::path(log.string() + "_" + std::to_string(i)); }
    void WriteFile(const fs::path& p, const std::string& content) const
    {
        std::ofstream(p, std::ios::binary) << content;
    }

    fs::path dir;
    fs::path log;
};

// Guards the off-by-one in the size test: reaching exactly 1 MiB keeps the
// file; the message that takes it past 1 MiB still lands in the old file and
// only the message after it opens the fresh one. The existing content of an
// appended file counts toward the limit.
TEST_F(LoggerTest, RotatesOnlyPastOneMebibyteAfterTheCrossingMessage)
{
    const std::string first = Text(Logger::LEVEL_ERROR, "first");
    const size_t length = kStampLength + first.size();
    const std::string prefill(kLimit - length, 'x');
    WriteFile(log, prefill);
    ASSERT_EQ(0, Init());

    Log(Logger::LEVEL_ERROR, "logger_test", "first");
    EXPECT_EQ(static_cast<uintmax_t>(kLimit), fs::file_size(log));
    EXPECT_FALSE(fs::exists(Numbered(0)));

    Log(Logger::LEVEL_ERROR, "logger_test", "second");
    ASSERT_TRUE(fs::exists(Numbered(0)));
    EXPECT_EQ(0u, fs::file_size(log));
    const std::string old = ReadFile(Numbered(0));
    ASSERT_EQ(prefill, old.substr(0, prefill.size()));
    EXPECT_EQ(Lines({Text(Logger::LEVEL_ERROR, "first"), Text(Logger::LEVEL_ERROR, "second")}),
              Unstamped(old.substr(prefill.size())));

    Log(Logger::LEVEL_ERROR, "logger_test", "third");
    EXPECT_EQ(Lines({Text(Logger::LEVEL_ERROR, "third")}), Unstamped(ReadFile(log)));
    EXPECT_FALSE(fs::exists(Numbered(1)));
}

TEST_F(LoggerTest, OneByteMoreRotatesAfterTheFirstMessage)
{
    const std::string first = Text(Logger::LEVEL_WARNING, "first");
    const std::string prefill(kLimit + 1 - kStampLength - first.size(), 'x');
    WriteFile(log, prefill);
    ASSERT_EQ(0, Init());

    Log(Logger::LEVEL_WARNING, "logger_test", "first");
    ASSERT_TRUE(fs::exists(Numbered(0)));
    EXPECT_EQ(static_cast<uintmax_t>(kLimit + 1), fs::file_size(Numbered(0)));
    EXPECT_EQ(0u, fs::file_size(log));
}

// Each generation is written, then rotated away; afterwards _0 must hold the
// newest and no more than max(N - 1, 1) numbered files may survive. A file
// numbered N or above is never touched.
TEST_F(LoggerTest, RotationKeepsTheNewestNumberedFiles)
{
    for (int count : {1, 2, 3, 50}) {
        SCOPED_TRACE(::testing::Message() << "rotate count " << count);
        fs::remove_all(dir);
        fs::create_directory(dir);
        WriteFile(Numbered(count), "stray");
        if (count >= 2) {
            WriteFile(Numbered(count - 1), "oldest");
        }
        ASSERT_EQ(0, Init(count));

        const int rotations = count + 3;
        for (int g = 0; g < rotations; ++g) {
            Log(Logger::LEVEL_ERROR, "logger_test", "generation " + std::to_string(g));
            ASSERT_EQ(0, Logger::Rotate());
        }

        EXPECT_EQ(0u, fs::file_size(log));
        const int kept = count >= 2 ? count - 1 : 1;
        for (int i = 0; i < kept; ++i) {
            SCOPED_TRACE(::testing::Message() << "file _" << i);
            std::string expected = Text(Logger::LEVEL_ERROR, "generation " + std::to_string(rotations - 1 - i));
            EXPECT_EQ(Lines({expected}), Unstamped(ReadFile(Numbered(i))));
        }
        if (count >= 2) {
            EXPECT_FALSE(fs::exists(Numbered(count - 1)));
        }
        EXPECT_EQ("stray", ReadFile(Numbered(count)));
        int numbered = 0;
        for (const fs::directory_entry& e : fs::directory_iterator(dir)) {
            numbered += e.path().filename().string().rfind("launcher.log_", 0) == 0 ? 1 : 0;
        }
        EXPECT_EQ(kept + 1, numbered);  // plus the stray one
        Logger::Destroy();
    }
}

TEST_F(LoggerTest, ThresholdsComeFromTheDebugSwitchFile)
{
    fs::path levels = dir / "launcher.debug";
    WriteFile(levels,
              "# switches\n"
              "launcher_debug=7\n"
              "service_debug = 5   # notes and worse\n"
              "default_component=2\n");
    ASSERT_EQ(0, Init(50, levels));

    Log(Logger::LEVEL_DEBUG, "launcher_debug", "launcher debug");
    Log(Logger::LEVEL_NOTE, "extractor_debug", "extractor note");  // not in the file: 4
    Log(Logger::LEVEL_WARNING, "extractor_debug", "extractor warning");
    Log(Logger::LEVEL_NOTE, "service_debug", "service note");
    Log(Logger::LEVEL_INFO, "service_debug", "service info");
    Log(Logger::LEVEL_ERROR, "default_component", "default error");  // the file overrides 4
    LogThroughC(Logger::LEVEL_DEBUG, "launcher_debug", Format(Logger::LEVEL_DEBUG), kLine, "through C");
    LogThroughC(Logger::LEVEL_INFO, "extractor_debug", Format(Logger::LEVEL_INFO), kLine, "C suppressed");

    EXPECT_EQ(Lines({Text(Logger::LEVEL_DEBUG, "launcher debug"),
                     Text(Logger::LEVEL_WARNING, "extractor warning"),
                     Text(Logger::LEVEL_NOTE, "service note"),
                     Text(Logger::LEVEL_DEBUG, "through C")}),
              Unstamped(ReadFile(log)));

    // Thresholds accumulate over set-ups, but each one puts
    // "default_component" back to 4 before reading its file.
    Logger::Destroy();
    fs::remove(log);
    ASSERT_EQ(0, Init(50));
    Log(Logger::LEVEL_WARNING, "default_component", "default warning");
    Log(Logger::LEVEL_DEBUG, "launcher_debug", "still on");
    EXPECT_EQ(Lines({Text(Logger::LEVEL_WARNING, "default warning"), Text(Logger::LEVEL_DEBUG, "still on")}),
              Unstamped(ReadFile(log)));
}

TEST_F(LoggerTest, IllFormedSwitchFileLeavesDefaults)
{
    fs::path levels = dir / "launcher.debug";
    WriteFile(levels, "bad_file_debug=7\nnot a pair\n");
    ASSERT_EQ(0, Init(50, levels));

    for (int level = Logger::LEVEL_ERROR; level <= Logger::LEVEL_DEBUG; ++level) {
        Log(static_cast<Logger::Level>(level), "bad_file_debug", "level " + std::to_string(level));
    }
    EXPECT_EQ(Lines({Text(Logger::LEVEL_ERROR, "level 3"), Text(Logger::LEVEL_WARNING, "level 4")}),
              Unstamped(ReadFile(log)));
}

TEST_F(LoggerTest, NothingIsWrittenAfterDestroy)
{
    ASSERT_EQ(0, Init());
    Log(Logger::LEVEL_ERROR, "logger_test", "before");
    Logger::Destroy();

    CaptureFd out(1, dir / "stdout");
    CaptureFd err(2, dir / "stderr");
    Log(Logger::LEVEL_ERROR, "logger_test", "after");
    LogThroughC(Logger::LEVEL_ERROR, "logger_test", Format(Logger::LEVEL_ERROR), kLine, "after, through C");
    EXPECT_EQ("", err.Finish());
    EXPECT_EQ("", out.Finish());
    EXPECT_EQ(Lines({Text(Logger::LEVEL_ERROR, "before")}), Unstamped(ReadFile(log)));
}

TEST_F(LoggerTest, StandardStreamSinksStampEveryLine)
{
    ASSERT_EQ(0, Logger::Initialize(Logger::TYPE_STDERR, ustring(""), ustring(""), 50));
    CaptureFd err(2, dir / "stderr");
    Log(Logger::LEVEL_WARNING, "logger_test", "to stderr");
    Log(Logger::LEVEL_NOTE, "logger_test", "suppressed");
    EXPECT_EQ(Lines({Text(Logger::LEVEL_WARNING, "to stderr")}), Unstamped(err.Finish()));

    ASSERT_EQ(0, Logger::Initialize(Logger::TYPE_STDOUT, ustring(""), ustring(""), 50));
    CaptureFd out(1, dir / "stdout");
    Log(Logger::LEVEL_ERROR, "logger_test", "to stdout");
    EXPECT_EQ(Lines({Text(Logger::LEVEL_ERROR, "to stdout")}), Unstamped(out.Finish()));
    EXPECT_FALSE(fs::exists(log));
}

// A file sink that cannot be set up keeps the stream it had, and never
// rotates it.
TEST_F(LoggerTest, FailedFileSetUpKeepsThePreviousStream)
{
    EXPECT_EQ(-1, Logger::Initialize(Logger::TYPE_FILE, ustring(""), ustring(""), 50));
    ASSERT_EQ(0, Logger::Initialize(Logger::TYPE_STDERR, ustring(""), ustring(""), 50));
    EXPECT_EQ(-1, Logger::Initialize(Logger::TYPE_FILE, U(dir / "missing" / "launcher.log"), ustring(""), 50));

    CaptureFd err(2, dir / "stderr");
    std::string big(kLimit + 10, 'b');
    Log(Logger::LEVEL_ERROR, "logger_test", big);
    Log(Logger::LEVEL_ERROR, "logger_test", "still here");
    std::vector<std::string> lines = Unstamped(err.Finish());
    ASSERT_EQ(2u, lines.size());
    EXPECT_EQ(Text(Logger::LEVEL_ERROR, "still here"), lines[1]);
    EXPECT_FALSE(fs::exists(dir / "missing"));
}

TEST_F(LoggerTest, GetFileSizeReportsStatFailureInTheLog)
{
    ASSERT_EQ(0, Init());
    WriteFile(dir / "sized", std::string(1234, 's'));
    EXPECT_EQ(1234, Logger::GetFileSize(U(dir / "sized")));

    fs::path missing = dir / "missing";
    EXPECT_EQ(0, Logger::GetFileSize(U(missing)));
    std::string expected = "stat(" + missing.string() + "): " + strerror(ENOENT) + " (" + std::to_string(ENOENT) + ")\n";
    EXPECT_EQ(Lines({expected}), Unstamped(ReadFile(log)));
}

// After the file was moved away under it, ReloadLogFile opens a fresh file
// and takes that file's size, so rotation follows the new file.
TEST_F(LoggerTest, ReloadLogFileReopensAndRereadsTheSize)
{
    ASSERT_EQ(0, Init());
    Log(Logger::LEVEL_ERROR, "logger_test", "old file");
    fs::rename(log, dir / "moved.log");

    const std::string line = Text(Logger::LEVEL_ERROR, "fills it");
    WriteFile(log, std::string(kLimit - kStampLength - line.size(), 'x'));
    Logger::ReloadLogFile();
    Log(Logger::LEVEL_ERROR, "logger_test", "fills it");
    EXPECT_FALSE(fs::exists(Numbered(0)));
    Log(Logger::LEVEL_ERROR, "logger_test", "crosses");
    EXPECT_TRUE(fs::exists(Numbered(0)));
    EXPECT_EQ(Lines({Text(Logger::LEVEL_ERROR, "old file")}), Unstamped(ReadFile(dir / "moved.log")));
}

// A rotation that cannot move the live file leaves no stream: messages are
// dropped (not crashed on) until the file is reloaded.
TEST_F(LoggerTest, FailedRotationDropsMessagesUntilReload)
{
    fs::path sub = dir / "sub";
    fs::create_directory(sub);
    log = sub / "launcher.log";
    ASSERT_EQ(0, Init());
    fs::remove_all(sub);

    EXPECT_EQ(-1, Logger::Rotate());
    Log(Logger::LEVEL_ERROR, "logger_test", "dropped");

    fs::create_directory(sub);
    Logger::ReloadLogFile();
    Log(Logger::LEVEL_ERROR, "logger_test", "after reload");
    EXPECT_EQ(Lines({Text(Logger::LEVEL_ERROR, "after reload")}), Unstamped(ReadFile(log)));
}

// Two writers across several rotations: a torn line, a lost line, a line in
// the wrong file or two threads rotating at once all show up here.
TEST_F(LoggerTest, TwoThreadsAcrossRotationsKeepEveryLineWhole)
{
    const int kPerThread = 5000;
    const size_t kPad = 400;
    ASSERT_EQ(0, Init(50));

    auto writer = [&](int id) {
        const std::string pad(kPad, static_cast<char>('a' + id));
        for (int n = 0; n < kPerThread; ++n) {
            Logger::LogMsg(Logger::LEVEL_ERROR, ustring("logger_test"),
                           "[ERROR] logger_test(%d): thread %d line %d %s\n", __LINE__, id, n, pad.c_str());
        }
    };
    std::thread a(writer, 0);
    std::thread b(writer, 1);
    a.join();
    b.join();

    // Oldest first: _k, ..., _0, then the live file.
    std::vector<fs::path> files;
    for (int i = 49; i >= 0; --i) {
        if (fs::exists(Numbered(i))) {
            files.push_back(Numbered(i));
        }
    }
    ASSERT_GE(files.size(), 3u) << "expected several rotations";
    ASSERT_FALSE(fs::exists(Numbered(static_cast<int>(files.size()))));
    files.push_back(log);

    int next[2] = {0, 0};
    for (size_t f = 0; f < files.size(); ++f) {
        SCOPED_TRACE(files[f].string());
        const std::string content = ReadFile(files[f]);
        std::vector<std::string> lines = Unstamped(content);
        ASSERT_FALSE(lines.empty());
        for (const std::string& text : lines) {
            int line = 0;
            int id = -1;
            int n = -1;
            int consumed = 0;
            ASSERT_EQ(3, sscanf(text.c_str(), "[ERROR] logger_test(%d): thread %d line %d %n", &line, &id, &n, &consumed))
                << text.substr(0, 80);
            ASSERT_TRUE(id == 0 || id == 1) << text.substr(0, 80);
            ASSERT_EQ(next[id], n) << "thread " << id;
            ASSERT_EQ(std::string(kPad, static_cast<char>('a' + id)) + "\n", text.substr(consumed));
            ++next[id];
        }
        if (f + 1 < files.size()) {
            // The crossing line is the last one of a rotated file.
            size_t last = kStampLength + lines.back().size();
            EXPECT_GE(content.size(), static_cast<size_t>(kLimit + 1));
            EXPECT_LT(content.size() - last, static_cast<size_t>(kLimit + 1));
        } else {
            EXPECT_LT(content.size(), static_cast<size_t>(kLimit + 1));
        }
    }
    EXPECT_EQ(kPerThread, next[0]);
    EXPECT_EQ(kPerThread, next[1]);
}

}  // namespace
