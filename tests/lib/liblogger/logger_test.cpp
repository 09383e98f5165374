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
using Lines = std::vector<std::string>;
const Logger::Level E = Logger::LEVEL_ERROR;

ustring U(const fs::path& p) { return ustring(p.string()); }

// Only a variadic caller can build the va_list the C entry point takes.
void LogThroughC(int level, const char* component, const char* text)
{
    auto call = [](int lvl, char* comp, const char* format, ...) {
        va_list args;
        va_start(args, format);
        LogMSG_c(lvl, comp, format, args);
        va_end(args);
    };
    call(level, const_cast<char*>(component), Format(static_cast<Logger::Level>(level)), kLine, text);
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
        fs::remove_all(dir);
    }
    int Init(int rotateCount = 50, const fs::path& levels = fs::path())
    {
        return Logger::Initialize(Logger::TYPE_FILE, U(log), U(levels), rotateCount);
    }
    fs::path Numbered(int i) const { return log.string() + "_" + std::to_string(i); }
    void Write(const fs::path& p, const std::string& content) const { std::ofstream(p, std::ios::binary) << content; }
    Lines Logged(const fs::path& p) const { return Unstamped(ReadFile(p)); }

    fs::path dir, log;
};

// Reaching exactly 1 MiB keeps the file; the message that takes it past 1 MiB still lands in the old file and
// only the next one opens a fresh file. The existing content of an appended file counts toward the limit.
TEST_F(LoggerTest, RotatesOnlyPastOneMebibyteAfterTheCrossingMessage)
{
    const std::string prefill(kLimit - kStampLength - Text(E, "first").size(), 'x');
    Write(log, prefill);
    ASSERT_EQ(0, Init());
    Log(E, "logger_test", "first");
    EXPECT_EQ(static_cast<uintmax_t>(kLimit), fs::file_size(log));
    EXPECT_FALSE(fs::exists(Numbered(0)));

    Log(E, "logger_test", "second");
    ASSERT_TRUE(fs::exists(Numbered(0)));
    EXPECT_EQ(0u, fs::file_size(log));
    const std::string old = ReadFile(Numbered(0));
    ASSERT_EQ(prefill, old.substr(0, prefill.size()));
    EXPECT_EQ(Lines({Text(E, "first"), Text(E, "second")}), Unstamped(old.substr(prefill.size())));
    Log(E, "logger_test", "third");
    EXPECT_EQ(Lines({Text(E, "third")}), Logged(log));
    EXPECT_FALSE(fs::exists(Numbered(1)));

    // One byte more than the limit rotates right after the first message.
    Logger::Destroy();
    fs::remove_all(dir);
    fs::create_directory(dir);
    Write(log, prefill + "x");
    ASSERT_EQ(0, Init());
    Log(E, "logger_test", "first");
    ASSERT_TRUE(fs::exists(Numbered(0)));
    EXPECT_EQ(static_cast<uintmax_t>(kLimit + 1), fs::file_size(Numbered(0)));
    EXPECT_EQ(0u, fs::file_size(log));
}

// After each rotation _0 must hold the newest and no more than max(N - 1, 1) numbered files may survive.
// A file numbered N or above is never touched.
TEST_F(LoggerTest, RotationKeepsTheNewestNumberedFiles)
{
    for (int count : {1, 2, 3, 50}) {
        SCOPED_TRACE(::testing::Message() << "rotate count " << count);
        fs::remove_all(dir);
        fs::create_directory(dir);
        Write(Numbered(count), "stray");
        if (count >= 2)
            Write(Numbered(count - 1), "oldest");
        ASSERT_EQ(0, Init(count));
        const int rotations = count + 3;
        for (int g = 0; g < rotations; ++g) {
            Log(E, "logger_test", "generation " + std::to_string(g));
            ASSERT_EQ(0, Logger::Rotate());
        }
        EXPECT_EQ(0u, fs::file_size(log));
        const int kept = std::max(count - 1, 1);
        for (int i = 0; i < kept; ++i)
            EXPECT_EQ(Lines({Text(E, "generation " + std::to_string(rotations - 1 - i))}), Logged(Numbered(i))) << i;
        EXPECT_EQ("stray", ReadFile(Numbered(count)));
        int numbered = 0;
        for (const fs::directory_entry& e : fs::directory_iterator(dir))
            numbered += e.path().filename().string().rfind("launcher.log_", 0) == 0 ? 1 : 0;
        EXPECT_EQ(kept + 1, numbered);  // plus the stray one
        Logger::Destroy();
    }
}

TEST_F(LoggerTest, ThresholdsComeFromTheDebugSwitchFile)
{
    Write(dir / "launcher.debug",
          "# switches\nlauncher_debug=7\nservice_debug = 5   # notes and worse\ndefault_component=2\n");
    ASSERT_EQ(0, Init(50, dir / "launcher.debug"));
    Log(Logger::LEVEL_DEBUG, "launcher_debug", "launcher debug");
    Log(Logger::LEVEL_NOTE, "extractor_debug", "extractor note");  // not in the file: 4
    Log(Logger::LEVEL_WARNING, "extractor_debug", "extractor warning");
    Log(Logger::LEVEL_NOTE, "service_debug", "service note");
    Log(Logger::LEVEL_INFO, "service_debug", "service info");
    Log(E, "default_component", "default error");  // the file overrides 4
    LogThroughC(Logger::LEVEL_DEBUG, "launcher_debug", "through C");
    LogThroughC(Logger::LEVEL_INFO, "extractor_debug", "C suppressed");
    EXPECT_EQ(Lines({Text(Logger::LEVEL_DEBUG, "launcher debug"), Text(Logger::LEVEL_WARNING, "extractor warning"),
                     Text(Logger::LEVEL_NOTE, "service note"), Text(Logger::LEVEL_DEBUG, "through C")}),
              Logged(log));

    // Thresholds accumulate over set-ups, but each one puts "default_component" back to 4.
    Logger::Destroy();
    fs::remove(log);
    ASSERT_EQ(0, Init(50));
    Log(Logger::LEVEL_WARNING, "default_component", "default warning");
    Log(Logger::LEVEL_DEBUG, "launcher_debug", "still on");
    EXPECT_EQ(Lines({Text(Logger::LEVEL_WARNING, "default warning"), Text(Logger::LEVEL_DEBUG, "still on")}),
              Logged(log));
}

TEST_F(LoggerTest, IllFormedSwitchFileLeavesDefaults)
{
    Write(dir / "launcher.debug", "bad_file_debug=7\nnot a pair\n");
    ASSERT_EQ(0, Init(50, dir / "launcher.debug"));
    for (int level = Logger::LEVEL_ERROR; level <= Logger::LEVEL_DEBUG; ++level)
        Log(static_cast<Logger::Level>(level), "bad_file_debug", "level " + std::to_string(level));
    EXPECT_EQ(Lines({Text(E, "level 3"), Text(Logger::LEVEL_WARNING, "level 4")}), Logged(log));
}

TEST_F(LoggerTest, NothingIsWrittenAfterDestroy)
{
    ASSERT_EQ(0, Init());
    Log(E, "logger_test", "before");
    Logger::Destroy();
    CaptureFd out(1, dir / "stdout"), err(2, dir / "stderr");
    Log(E, "logger_test", "after");
    LogThroughC(E, "logger_test", "after, through C");
    EXPECT_EQ("", err.Finish());
    EXPECT_EQ("", out.Finish());
    EXPECT_EQ(Lines({Text(E, "before")}), Logged(log));
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
    Log(E, "logger_test", "to stdout");
    EXPECT_EQ(Lines({Text(E, "to stdout")}), Unstamped(out.Finish()));
    EXPECT_FALSE(fs::exists(log));
}

// A file sink that cannot be set up keeps the stream it had, and never rotates it.
TEST_F(LoggerTest, FailedFileSetUpKeepsThePreviousStream)
{
    EXPECT_EQ(-1, Logger::Initialize(Logger::TYPE_FILE, ustring(""), ustring(""), 50));
    ASSERT_EQ(0, Logger::Initialize(Logger::TYPE_STDERR, ustring(""), ustring(""), 50));
    EXPECT_EQ(-1, Logger::Initialize(Logger::TYPE_FILE, U(dir / "missing" / "launcher.log"), ustring(""), 50));
    CaptureFd err(2, dir / "stderr");
    Log(E, "logger_test", std::string(kLimit + 10, 'b'));
    Log(E, "logger_test", "still here");
    Lines lines = Unstamped(err.Finish());
    ASSERT_EQ(2u, lines.size());
    EXPECT_EQ(Text(E, "still here"), lines[1]);
    EXPECT_FALSE(fs::exists(dir / "missing"));
}

TEST_F(LoggerTest, GetFileSizeReportsStatFailureInTheLog)
{
    ASSERT_EQ(0, Init());
    Write(dir / "sized", std::string(1234, 's'));
    EXPECT_EQ(1234, Logger::GetFileSize(U(dir / "sized")));
    EXPECT_EQ(0, Logger::GetFileSize(U(dir / "missing")));
    EXPECT_EQ(Lines({"stat(" + (dir / "missing").string() + "): " + strerror(ENOENT) + " (2)\n"}), Logged(log));
}

// After the file was moved away under it, ReloadLogFile opens a fresh file and takes that file's size.
TEST_F(LoggerTest, ReloadLogFileReopensAndRereadsTheSize)
{
    ASSERT_EQ(0, Init());
    Log(E, "logger_test", "old file");
    fs::rename(log, dir / "moved.log");
    Write(log, std::string(kLimit - kStampLength - Text(E, "fills it").size(), 'x'));
    Logger::ReloadLogFile();
    Log(E, "logger_test", "fills it");
    EXPECT_FALSE(fs::exists(Numbered(0)));
    Log(E, "logger_test", "crosses");
    EXPECT_TRUE(fs::exists(Numbered(0)));
    EXPECT_EQ(Lines({Text(E, "old file")}), Logged(dir / "moved.log"));
}

// A rotation that cannot move the live file leaves no stream: messages are dropped, not crashed on, until reload.
TEST_F(LoggerTest, FailedRotationDropsMessagesUntilReload)
{
    fs::create_directory(dir / "sub");
    log = dir / "sub" / "launcher.log";
    ASSERT_EQ(0, Init());
    fs::remove_all(dir / "sub");
    EXPECT_EQ(-1, Logger::Rotate());
    Log(E, "logger_test", "dropped");
    fs::create_directory(dir / "sub");
    Logger::ReloadLogFile();
    Log(E, "logger_test", "after reload");
    EXPECT_EQ(Lines({Text(E, "after reload")}), Logged(log));
}

// A torn line, a lost line, a line in the wrong file or two threads rotating at once all show up here.
TEST_F(LoggerTest, TwoThreadsAcrossRotationsKeepEveryLineWhole)
{
    const int kPerThread = 5000;
    const size_t kPad = 400;
    ASSERT_EQ(0, Init(50));
    auto writer = [&](int id) {
        const std::string pad(kPad, static_cast<char>('a' + id));
        for (int n = 0; n < kPerThread; ++n)
            Logger::LogMsg(E, ustring("logger_test"), "[ERROR] logger_test(%d): thread %d line %d %s\n", kLine, id,
                           n, pad.c_str());
    };
    std::thread a(writer, 0), b(writer, 1);
    a.join();
    b.join();

    std::vector<fs::path> files;  // oldest first: _k, ..., _0, then the live file
    for (int i = 49; i >= 0; --i)
        if (fs::exists(Numbered(i)))
            files.push_back(Numbered(i));
    ASSERT_GE(files.size(), 3u) << "expected several rotations";
    ASSERT_FALSE(fs::exists(Numbered(static_cast<int>(files.size()))));
    files.push_back(log);

    int next[2] = {0, 0};
    for (size_t f = 0; f < files.size(); ++f) {
        SCOPED_TRACE(files[f].string());
        const std::string content = ReadFile(files[f]);
        Lines lines = Unstamped(content);
        ASSERT_FALSE(lines.empty());
        for (const std::string& text : lines) {
            int id = -1, n = -1, consumed = 0;
            ASSERT_EQ(2, sscanf(text.c_str(), "[ERROR] logger_test(123): thread %d line %d %n", &id, &n, &consumed))
                << text.substr(0, 80);
            ASSERT_TRUE(id == 0 || id == 1) << text.substr(0, 80);
            ASSERT_EQ(next[id]++, n) << "thread " << id;
            ASSERT_EQ(std::string(kPad, static_cast<char>('a' + id)) + "\n", text.substr(consumed));
        }
        // Only a rotated file passes the limit, and only with its last line.
        const bool rotated = f + 1 < files.size();
        EXPECT_EQ(rotated, content.size() > static_cast<size_t>(kLimit));
        EXPECT_LE(content.size() - (rotated ? kStampLength + lines.back().size() : 0), static_cast<size_t>(kLimit));
    }
    EXPECT_EQ(kPerThread, next[0]);
    EXPECT_EQ(kPerThread, next[1]);
}

}  // namespace
