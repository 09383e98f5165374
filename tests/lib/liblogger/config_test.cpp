// Config: the line grammar, reading whole files, and get_int.
#include "config.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

namespace fs = std::filesystem;

namespace {

// result 0: a pair (key, value); 1: blank or comment; 2: syntax error. keepQuotes is set for rows marked so.
struct ParseRow { const char *line; int result; const char *key = "", *value = ""; bool keepQuotes = false; };
const ParseRow kParseRows[] = {
    {"pid=812\n", 0, "pid", "812", false},
    {"pid=812", 0, "pid", "812", false},
    {"  service_debug = 7  # all of them\n", 0, "service_debug", "7", false},
    {"\tfile_op_debug\t=\t6\r\n", 0, "file_op_debug", "6", false},
    {"a.b-c_D9=x\n", 0, "a.b-c_D9", "x", false},
    {"=5\n", 0, "", "5", false},
    {"k=v#w\n", 0, "k", "v#w", false},                  // '#' inside an unquoted value
    {"k=v #w\n", 0, "k", "v", false},                   // '#' after a blank starts a comment
    {"k=caf\xc3\xa9\n", 0, "k", "caf\xc3\xa9", false},  // high bytes belong to the value
    {"k=\"two words # not a comment\"\n", 0, "k", "two words # not a comment", false},
    {"k='say \"hi\"'  # tail\n", 0, "k", "say \"hi\"", false},
    {"k=\"\"\n", 0, "k", "", false},
    {"k='a b'\n", 0, "k", "'a b'", true},
    {"k=\"\"\n", 0, "k", "\"\"", true},
    {"k=plain\n", 0, "k", "plain", true},  // keepQuotes wraps only quoted values
    {"", 1}, {"\n", 1}, {" \t\r\n", 1}, {"# pid=1\n", 1}, {"   #\n", 1}, {"key#comment\n", 1},
    {"key", 1},                  // a bare key at the end of the text
    {"key\n", 2},                // the same key with its line feed
    {"key value\n", 2},          // no '='
    {"k=\n", 2}, {"k=   ", 2},   // empty unquoted value
    {"k=a b\n", 2}, {"k=a\tb\n", 2}, {"k=a\x7f\n", 2},
    {"k=\"open\n", 2},           // unterminated quote
    {"k=\"tab\there\"\n", 2},    // control byte before the closing quote
    {"k=\"v\" x\n", 2},          // text after the closing quote
    {"k='it''s'\n", 2},          // no escapes: the second quote ends it
    {"ke y=1\n", 2}, {"k\xc3\xa9=1\n", 2}, {"k:1\n", 2},
};

TEST(ConfigParse, GrammarTable)
{
    for (const ParseRow& row : kParseRows) {
        SCOPED_TRACE(::testing::Message() << "line: \"" << row.line << "\"" << (row.keepQuotes ? " keepQuotes" : ""));
        std::string buffer(row.line);
        Config config;
        config.keepQuotes = row.keepQuotes;
        ustring key("untouched"), value("untouched");
        ASSERT_EQ(row.result, config.parse(&buffer[0], static_cast<int>(buffer.size()), key, value));
        // Nothing is stored for comments and errors.
        EXPECT_STREQ(row.result == 0 ? row.key : "untouched", key.c_str());
        EXPECT_STREQ(row.result == 0 ? row.value : "untouched", value.c_str());
    }
}

TEST(ConfigParse, TerminatesKeyAndValueInPlace)
{
    char line[] = "pid = 812 # x\n";
    Config config;
    ustring key, value;
    ASSERT_EQ(0, config.parse(line, sizeof(line) - 1, key, value));
    EXPECT_STREQ("pid", line);
    EXPECT_STREQ("812", line + 6);
}

class ConfigFile : public ::testing::Test {
protected:
    void SetUp() override
    {
        char tmpl[] = "/tmp/config_test.XXXXXX";
        ASSERT_NE(nullptr, mkdtemp(tmpl));
        dir = tmpl;
    }
    void TearDown() override { fs::remove_all(dir); }
    ustring Write(const std::string& name, const std::string& text)
    {
        std::ofstream(dir / name, std::ios::binary) << text;
        return ustring((dir / name).string());
    }
    // Reads text as a file and returns the table as "k=v;" pairs, or "error" when read fails.
    std::string Read(const std::string& text)
    {
        Config config;
        if (config.read(Write("c" + std::to_string(++files), text)) != 0)
            return config.table.empty() ? "error" : "error with a table left";
        std::string pairs;
        for (const auto& pair : config.table)
            pairs += std::string(pair.first.c_str()) + "=" + pair.second.c_str() + ";";
        return pairs;
    }

    fs::path dir;
    int files = 0;
};

TEST_F(ConfigFile, ReadsWholeFiles)
{
    const std::string v(8189, 'v');
    const std::string w(8182, 'w');
    const struct { const char* tag; std::string text, table; } rows[] = {
        {"later value wins, in key order", "# x\nlauncher_debug=7\n\nservice_debug = 5\r\nlauncher_debug=6\nlast=1",
         "last=1;launcher_debug=6;service_debug=5;"},
        {"empty file", "", ""},
        {"bare key without final line feed is ignored", "pid=1\nstray", "pid=1;"},
        {"bare key with line feed is an error", "pid=1\nstray\n", "error"},
        {"a syntax error drops the pairs before it", "a=1\nb=2\nbroken line\nc=3\n", "error"},
        // The first 8,191 bytes are one line; the rest of the physical line is scanned on its own.
        {"long line split", "k=" + v + "next=1\nlast=2\n", "k=" + v + ";last=2;next=1;"},
        {"8,191 bytes with the line feed read whole", "k=" + w + "next=1\n", "k=" + w + "next=1;"},
        {"a piece that does not look like a line", "k=" + v + "tail\n", "error"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.tag);
        EXPECT_EQ(row.table, Read(row.text));
    }
}

TEST_F(ConfigFile, FailedReadsAndSyntaxErrors)
{
    Config config;
    config.table[ustring("kept")] = ustring("1");
    EXPECT_EQ(-1, config.read(ustring("")));
    EXPECT_EQ(-1, config.read(ustring((dir / "absent").string())));
    EXPECT_EQ(-1, config.read(ustring(dir.string())));  // a folder opens for reading but every read fails
    EXPECT_EQ(0, config.read(Write("empty", "")));
    EXPECT_EQ(1u, config.table.count(ustring("kept"))) << "an unreadable or empty file changes nothing";
    // A syntax error empties the whole table, pairs of earlier reads included.
    EXPECT_EQ(-1, config.read(Write("second", "a=1\nbroken line\n")));
    EXPECT_TRUE(config.table.empty());
}

TEST(ConfigGetInt, ReadsLikeStreamExtraction)
{
    const std::pair<const char*, int> rows[] = {
        {"812", 812},  {"-7", -7},  {"+3", 3},  {"12abc", 12},  {"0x10", 0},  {"abc", 0},  {"", 0},
        {"2147483647", INT_MAX},  {"2147483648", INT_MAX},  {"99999999999999999999", INT_MAX},
        {"-2147483648", INT_MIN}, {"-2147483649", INT_MIN},
    };
    for (const auto& row : rows) {
        Config config;
        config.table[ustring("k")] = ustring(row.first);
        EXPECT_EQ(row.second, config.get_int(ustring("k"))) << row.first;
    }
    // A missing key reads 0 and is added empty.
    Config config;
    EXPECT_EQ(0, config.get_int(ustring("pid")));
    ASSERT_EQ(1u, config.table.count(ustring("pid")));
    EXPECT_TRUE(config.table[ustring("pid")].empty());
}

}  // namespace
