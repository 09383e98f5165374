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

struct ParseRow {
    const char* line;
    int result;
    const char* key;    // checked only when result is 0
    const char* value;
};

// Every kind of line the scanner meets, with what it must make of it.
const ParseRow kParseRows[] = {
    // pairs
    {"pid=812\n", 0, "pid", "812"},
    {"pid=812", 0, "pid", "812"},
    {"  service_debug = 7  # all of them\n", 0, "service_debug", "7"},
    {"\tfile_op_debug\t=\t6\r\n", 0, "file_op_debug", "6"},
    {"a.b-c_D9=x\n", 0, "a.b-c_D9", "x"},
    {"=5\n", 0, "", "5"},
    {"k=v#w\n", 0, "k", "v#w"},                  // '#' inside an unquoted value
    {"k=v #w\n", 0, "k", "v"},                   // '#' after a blank starts a comment
    {"k=caf\xc3\xa9\n", 0, "k", "caf\xc3\xa9"},  // high bytes belong to the value
    {"k=\"two words # not a comment\"\n", 0, "k", "two words # not a comment"},
    {"k='say \"hi\"'  # tail\n", 0, "k", "say \"hi\""},
    {"k=\"\"\n", 0, "k", ""},
    // blank and comment lines
    {"", 1, "", ""},
    {"\n", 1, "", ""},
    {" \t\r\n", 1, "", ""},
    {"# pid=1\n", 1, "", ""},
    {"   #\n", 1, "", ""},
    {"key#comment\n", 1, "", ""},
    {"key", 1, "", ""},  // a bare key at the end of the text
    // syntax errors
    {"key\n", 2, "", ""},                // the same key with its line feed
    {"key value\n", 2, "", ""},          // no '='
    {"k=\n", 2, "", ""},                 // empty unquoted value
    {"k=   ", 2, "", ""},
    {"k=a b\n", 2, "", ""},              // inner blank in an unquoted value
    {"k=a\tb\n", 2, "", ""},
    {"k=a\x7f\n", 2, "", ""},
    {"k=\"open\n", 2, "", ""},           // unterminated quote
    {"k=\"tab\there\"\n", 2, "", ""},    // control byte before the closing quote
    {"k=\"v\" x\n", 2, "", ""},          // text after the closing quote
    {"k='it''s'\n", 2, "", ""},          // no escapes: the second quote ends it
    {"ke y=1\n", 2, "", ""},             // blank inside the key
    {"k\xc3\xa9=1\n", 2, "", ""},        // non-ASCII byte in the key
    {"k:1\n", 2, "", ""},
};

TEST(ConfigParse, GrammarTable)
{
    for (const ParseRow& row : kParseRows) {
        SCOPED_TRACE(::testing::Message() << "line: \"" << row.line << "\"");
        std::string buffer(row.line);
        Config config;
        ustring key("untouched");
        ustring value("untouched");
        int rc = config.parse(&buffer[0], static_cast<int>(buffer.size()), key, value);
        ASSERT_EQ(row.result, rc);
        if (rc == 0) {
            EXPECT_EQ(std::string(row.key), key.c_str());
            EXPECT_EQ(std::string(row.value), value.c_str());
        } else {
            // Nothing is stored for comments and errors.
            EXPECT_STREQ("untouched", key.c_str());
            EXPECT_STREQ("untouched", value.c_str());
        }
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

TEST(ConfigParse, KeepQuotesWrapsOnlyQuotedValues)
{
    Config config;
    config.keepQuotes = true;
    ustring key, value;
    std::string a = "k='a b'\n";
    ASSERT_EQ(0, config.parse(&a[0], 0, key, value));
    EXPECT_STREQ("'a b'", value.c_str());
    std::string b = "k=\"\"\n";
    ASSERT_EQ(0, config.parse(&b[0], 0, key, value));
    EXPECT_STREQ("\"\"", value.c_str());
    std::string c = "k=plain\n";
    ASSERT_EQ(0, config.parse(&c[0], 0, key, value));
    EXPECT_STREQ("plain", value.c_str());
}

class ConfigFile : public ::testing::Test {
protected:
    void SetUp() override
    {
        char tmpl[] = "/tmp/config_test.XXXXXX";
        ASSERT_NE(nullptr, mkdtemp(tmpl));
        dir = tmpl;
    }
    void TearDown() override
    {
        if (!HasFailure()) {
            fs::remove_all(dir);
        }
    }
    ustring Write(const std::string& name, const std::string& text)
    {
        fs::path p = dir / name;
        std::ofstream(p, std::ios::binary) << text;
        return ustring(p.string());
    }
    static std::string Get(Config& config, const char* key)
    {
        return config.table.count(ustring(key)) ? config.table[ustring(key)].c_str() : "<absent>";
    }

    fs::path dir;
};

TEST_F(ConfigFile, ReadsPairsLaterValueWins)
{
    Config config;
    ustring path = Write("a.debug",
                         "# thresholds\n"
                         "launcher_debug=7\n"
                         "\n"
                         "service_debug = 5\r\n"
                         "launcher_debug=6\n"
                         "last=1");
    ASSERT_EQ(0, config.read(path));
    EXPECT_EQ(3u, config.table.size());
    EXPECT_EQ("6", Get(config, "launcher_debug"));
    EXPECT_EQ("5", Get(config, "service_debug"));
    EXPECT_EQ("1", Get(config, "last"));
}

TEST_F(ConfigFile, MissingEmptyAndUnopenable)
{
    Config config;
    config.table[ustring("kept")] = ustring("1");
    EXPECT_EQ(-1, config.read(ustring("")));
    EXPECT_EQ(-1, config.read(ustring((dir / "absent").string())));
    // A folder opens for reading but every read fails.
    EXPECT_EQ(-1, config.read(ustring(dir.string())));
    // An empty file is a successful read that changes nothing.
    EXPECT_EQ(0, config.read(Write("empty", "")));
    EXPECT_EQ("1", Get(config, "kept"));
}

TEST_F(ConfigFile, SyntaxErrorEmptiesTheWholeTable)
{
    Config config;
    ASSERT_EQ(0, config.read(Write("first", "pid=812\n")));
    // Pairs before the bad line, and pairs of the earlier read, all go.
    EXPECT_EQ(-1, config.read(Write("second", "a=1\nb=2\nbroken line\nc=3\n")));
    EXPECT_TRUE(config.table.empty());
}

TEST_F(ConfigFile, BareKeyIsIgnoredOnlyWithoutFinalLineFeed)
{
    Config without;
    EXPECT_EQ(0, without.read(Write("a", "pid=1\nstray")));
    EXPECT_EQ("1", Get(without, "pid"));
    Config with;
    EXPECT_EQ(-1, with.read(Write("b", "pid=1\nstray\n")));
    EXPECT_TRUE(with.table.empty());
}

TEST_F(ConfigFile, LongLinesAreScannedInPiecesOf8191Bytes)
{
    // The first 8,191 bytes form one line: "k=" and a value of 8,189 bytes.
    // The rest of the physical line is scanned on its own, as "next=1".
    std::string value(8189, 'v');
    Config split;
    ASSERT_EQ(0, split.read(Write("split", "k=" + value + "next=1\nlast=2\n")));
    EXPECT_EQ(value, Get(split, "k"));
    EXPECT_EQ("1", Get(split, "next"));
    EXPECT_EQ("2", Get(split, "last"));
    EXPECT_EQ(3u, split.table.size());

    // A line of exactly 8,191 bytes, line feed included, is read whole:
    // "next=1" is the end of the value.
    std::string shorter(8182, 'v');
    Config whole;
    ASSERT_EQ(0, whole.read(Write("whole", "k=" + shorter + "next=1\n")));
    EXPECT_EQ(shorter + "next=1", Get(whole, "k"));
    EXPECT_EQ(1u, whole.table.size());

    // A piece that starts inside a value and does not look like a line is
    // an error for the whole file.
    Config broken;
    EXPECT_EQ(-1, broken.read(Write("broken", "k=" + value + "tail\n")));
    EXPECT_TRUE(broken.table.empty());
}

TEST(ConfigGetInt, ReadsLikeStreamExtraction)
{
    struct Row {
        const char* value;
        int expected;
    };
    const Row rows[] = {
        {"812", 812},
        {"-7", -7},
        {"+3", 3},
        {"12abc", 12},
        {"0x10", 0},
        {"abc", 0},
        {"", 0},
        {"2147483647", INT_MAX},
        {"2147483648", INT_MAX},
        {"99999999999999999999", INT_MAX},
        {"-2147483648", INT_MIN},
        {"-2147483649", INT_MIN},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.value);
        Config config;
        config.table[ustring("k")] = ustring(row.value);
        EXPECT_EQ(row.expected, config.get_int(ustring("k")));
    }
}

TEST(ConfigGetInt, MissingKeyReadsZeroAndIsAdded)
{
    Config config;
    EXPECT_EQ(0, config.get_int(ustring("pid")));
    ASSERT_EQ(1u, config.table.count(ustring("pid")));
    EXPECT_TRUE(config.table[ustring("pid")].empty());
}

}  // namespace
