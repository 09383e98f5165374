// Config, the strict key=value reader, and Logger: the line format,
// per-component thresholds, rotation and two writers at once.
#include "liblogger/config.h"
#include "liblogger/log.h"

#include "../lib_test.h"

#include <regex>

using Lines = std::vector<std::string>;

// result 0: the pair key=value; 1: blank or comment; 2: syntax error.
TEST(Config, AcceptedAndRejectedLines)
{
    struct Row {
        std::string line;
        int result;
        const char* pair;
    } const rows[] = {{"pid=812\n", 0, "pid=812"},
                      {"  service_debug = 7  # all\n", 0, "service_debug=7"},
                      {"\tk\t=\t6\r\n", 0, "k=6"},
                      {"a.b-c_D9=x", 0, "a.b-c_D9=x"},
                      {"=5\n", 0, "=5"},
                      {"k=v#w\n", 0, "k=v#w"},
                      {"k=v #w\n", 0, "k=v"},
                      {"k=caf\xc3\xa9\n", 0, "k=caf\xc3\xa9"},
                      {"k=\"two words # x\"\n", 0, "k=two words # x"},
                      {"k='say \"hi\"' # t\n", 0, "k=say \"hi\""},
                      {"k=\"\"\n", 0, "k="},
                      {"", 1, ""},
                      {" \t\r\n", 1, ""},
                      {"  # pid=1\n", 1, ""},
                      {"key#comment\n", 1, ""},
                      {"key", 1, ""},
                      {"key\n", 2, ""},
                      {"key value\n", 2, ""},
                      {"k=\n", 2, ""},
                      {"k=   ", 2, ""},
                      {"k=a b\n", 2, ""},
                      {"k=a\x7f\n", 2, ""},
                      {"k=\"open\n", 2, ""},
                      {"k=\"t\tb\"\n", 2, ""},
                      {"k=\"v\" x\n", 2, ""},
                      {"ke y=1\n", 2, ""},
                      {"k\xc3\xa9=1\n", 2, ""}};
    for (Row row : rows) {
        ustring key, value;
        EXPECT_EQ(row.result, Config().parse(&row.line[0], static_cast<int>(row.line.size()), key, value))
            << row.line;
        EXPECT_EQ(row.pair, row.result ? "" : std::string(key.c_str()) + "=" + value.c_str()) << row.line;
    }
}

// Each read goes into a table that already holds kept=1; the result is "read's result:the table".
TEST_F(FolderTest, ConfigReadsWholeFilesOrNothing)
{
    const std::string v(8189, 'v');  // with "k=" the first 8,191 bytes of the line
    struct Row {
        const char* tag;
        std::string path, text, expected;
    } const rows[] = {
        {"later value wins", P("a"), "# x\nb=7\n\n  \nc = 5\r\nb=6\nd=1", "0:b=6;c=5;d=1;kept=1;"},
        {"empty file", P("b"), "", "0:kept=1;"},
        {"bare key at the very end", P("c"), "pid=1\nstray", "0:kept=1;pid=1;"},
        {"bare key, line feed", P("d"), "pid=1\nstray\n", "-1:"},
        {"long line read in pieces", P("e"), "k=" + v + "next=1\n", "0:k=" + v + ";kept=1;next=1;"},
        {"a piece that is no line", P("f"), "k=" + v + "tail\n", "-1:"},
        {"missing", P("missing"), "-", "-1:kept=1;"},
        {"opens but cannot be read", dir, "-", "-1:kept=1;"}};
    for (const Row& row : rows) {
        if (row.text != "-")
            Put(row.path, row.text);
        Config config;
        config.table[ustring("kept")] = ustring("1");
        std::string got = std::to_string(config.read(ustring(row.path.c_str()))) + ":";
        for (const auto& pair : config.table)
            got += std::string(pair.first.c_str()) + "=" + pair.second.c_str() + ";";
        EXPECT_EQ(row.expected, got) << row.tag;
    }
}

const char* const kTags[] = {"[ERROR]", "[WARNING]", "[NOTE]", "[INFO]", "[DEBUG]"};
std::string Line(int level, const std::string& text)
{
    return std::string(kTags[level - 3]) + " logger_test(42): " + text + "\n";
}
void Log(int level, const char* component, const std::string& text)
{
    Logger::LogMsg(Logger::Level(level), ustring(component), "%s logger_test(%d): %s\n", kTags[level - 3], 42,
                   text.c_str());
}

// Every line must start with the time stamp "%b %d %H:%M:%S " (C locale); it is cut off here.
Lines Unstamped(const std::string& content)
{
    static const std::regex kStamped(
        "(Jan|Feb|Mar|Apr|May|Jun|Jul|Aug|Sep|Oct|Nov|Dec) \\d\\d \\d\\d:\\d\\d:\\d\\d (.*\n)");
    Lines lines;
    std::istringstream in(content);
    std::smatch m;
    for (std::string line; std::getline(in, line) && (line += "\n", true);)
        lines.push_back(std::regex_match(line, m, kStamped) ? m[2].str() : "NO STAMP: " + line);
    return lines;
}

class LoggerTest : public FolderTest {
protected:
    void TearDown() override { Logger::Destroy(), FolderTest::TearDown(); }
    int Init(const std::string& path)
    {
        return Logger::Initialize(Logger::TYPE_FILE, ustring(P(path).c_str()), ustring(""), 50);
    }
    std::string N(int i) const { return P("launcher.log_" + std::to_string(i)); }
};

// A component the switch file does not name has threshold 4. Lines on stderr take the same form as in a file.
TEST_F(LoggerTest, LineFormatAndThresholds)
{
    Put(P("launcher.debug"), "# on\nlauncher_debug=7\nservice_debug = 5\n");
    testing::internal::CaptureStderr();
    EXPECT_EQ(0,
              Logger::Initialize(Logger::TYPE_STDERR, ustring(""), ustring(P("launcher.debug").c_str()), 50));
    Lines expected;
    for (const auto& row :
         {std::make_pair("launcher_debug", 7), {"service_debug", 5}, {"extractor_debug", 4}}) {
        for (int level = 3; level <= 7; ++level)
            Log(level, row.first, row.first);
        for (int level = 3; level <= row.second; ++level)
            expected.push_back(Line(level, row.first));
    }
    EXPECT_EQ(expected, Unstamped(testing::internal::GetCapturedStderr()));
}

// Exactly 1 MiB keeps the file; the message that passes it still lands there and the next one starts a fresh
// file. The older files are _0 (newest) to _48; _49 never survives a rotation.
TEST_F(LoggerTest, RotationPastOneMebibyteIntoFortyNineOlderFiles)
{
    Put(P("launcher.log"), std::string(1048576 - 16 - Line(3, "first").size(), 'x'));
    ASSERT_EQ(0, Init("launcher.log"));
    EXPECT_FALSE((Log(3, "c", "first"), fs::exists(N(0))));
    ASSERT_EQ(1048576 + 16 + Line(3, "second").size(), (Log(3, "c", "second"), fs::file_size(N(0))));
    for (int g = 0; g < 52; ++g)
        EXPECT_EQ(0, (Log(3, "c", "generation " + std::to_string(g)), Logger::Rotate()));
    EXPECT_EQ(Lines{Line(3, "generation 51")}, Unstamped(Read(N(0))));
    EXPECT_EQ(Lines{Line(3, "generation 3")}, Unstamped(Read(N(48))));
    EXPECT_FALSE(fs::exists(N(49)));
}

// A log that cannot be opened, or whose folder vanishes so that rotation fails, loses messages, not the caller.
TEST_F(LoggerTest, AFileThatCannotBeWrittenNeverBreaksTheCaller)
{
    EXPECT_EQ(-1, Init("none/launcher.log"));
    fs::create_directory(P("sub"));
    ASSERT_EQ(0, Init("sub/launcher.log"));
    fs::remove_all(P("sub"));
    EXPECT_EQ(-1, Logger::Rotate());
    Log(3, "c", "dropped");
    fs::create_directory(P("sub"));
    Logger::ReloadLogFile();
    Log(3, "c", "after reload");
    EXPECT_EQ(Lines{Line(3, "after reload")}, Unstamped(Read(P("sub/launcher.log"))));
}

// Two writers across rotations: a torn, lost or misplaced line breaks a thread's sequence; a second rotation
// at the same limit leaves a short file.
TEST_F(LoggerTest, TwoThreadsAcrossRotations)
{
    ASSERT_EQ(0, Init("launcher.log"));
    auto writer = [](int id) {
        for (int n = 0; n < 20000; ++n)
            Logger::LogMsg(Logger::LEVEL_ERROR, ustring("c"), "%d %d %s\n", id, n,
                           std::string(60, 'a' + id).c_str());
    };
    std::thread a(writer, 0), b(writer, 1);
    a.join(), b.join();
    int next[2] = {0, 0}, id = -1, n = -1;
    char pad[512] = "";
    for (const std::string& file : {N(3), N(2), N(1), N(0), P("launcher.log")}) {
        EXPECT_TRUE(!fs::exists(file) || file == P("launcher.log") || fs::file_size(file) > 1048576) << file;
        for (const std::string& line : Unstamped(Read(file)))
            ASSERT_TRUE(sscanf(line.c_str(), "%d %d %511s", &id, &n, pad) == 3 && (id == 0 || id == 1) &&
                        next[id]++ == n && pad == std::string(60, 'a' + id))
                << file << ": " << line;
    }
    EXPECT_TRUE(next[0] == 20000 && next[1] == 20000 && fs::exists(N(1))) << next[0] << " " << next[1];
}
