// TmpNameGen: the keystream and encoding against known vectors, the name
// shape, the time-of-day key, and paths.
#include "tmp_name_gen.h"

#include <gtest/gtest.h>

#include <sys/time.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace fs = std::filesystem;

namespace {

const std::string kAlphabet = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

class TmpNameGenTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        std::string tmpl = (fs::temp_directory_path() / "tmp_name_gen_test.XXXXXX").string();
        ASSERT_NE(nullptr, mkdtemp(&tmpl[0]));
        dir = tmpl;
    }
    void TearDown() override
    {
        if (!HasFailure()) {
            fs::remove_all(dir);
        }
    }
    std::string WriteSource(const std::string& name, const std::string& bytes)
    {
        fs::path p = dir / name;
        std::ofstream(p, std::ios::binary) << bytes;
        return p.string();
    }
    static void ExpectName(const ustring& name)
    {
        ASSERT_EQ(8u, name.length()) << name.c_str();
        for (size_t i = 0; i < name.length(); ++i) {
            EXPECT_NE(std::string::npos, kAlphabet.find(name[i])) << name.c_str();
        }
    }

    fs::path dir;
};

// With K[0] = 0 and K[i] = 1 - i, every swap of the key schedule is a swap
// of a byte with itself, so the permutation stays the identity: a random
// source holding this key puts the generator at the known starting point.
std::string IdentityKey()
{
    std::string key(256, '\0');
    for (int i = 1; i < 256; ++i) {
        key[i] = static_cast<char>((1 - i) & 0xff);
    }
    return key;
}

TEST_F(TmpNameGenTest, IdentityPermutationGivesKnownNames)
{
    std::string source = WriteSource("identity", IdentityKey());
    TmpNameGen gen(source.c_str());
    // The second name guards against restarting the permutation, or
    // carrying i and j over, between draws.
    EXPECT_STREQ("0wk73gQn", gen.getTmpName().c_str());
    EXPECT_STREQ("0MM53O8V", gen.getTmpName().c_str());
}

TEST_F(TmpNameGenTest, NamesAreEightAlphabetCharactersAndVary)
{
    TmpNameGen& gen = TmpNameGen::getInstance();
    EXPECT_EQ(&gen, &TmpNameGen::getInstance());
    std::set<std::string> seen;
    std::set<char> used;
    for (int n = 0; n < 2000; ++n) {
        ustring name = gen.getTmpName();
        ExpectName(name);
        seen.insert(name.c_str());
        used.insert(name.c_str(), name.c_str() + name.length());
    }
    // 48 random bits a name: a repeat in 2000 draws means a broken stream.
    EXPECT_EQ(2000u, seen.size());
    // All 64 characters, including the last two, are reachable.
    EXPECT_EQ(64u, used.size());
}

TEST_F(TmpNameGenTest, ConcurrentDrawsNeverRepeat)
{
    std::vector<std::string> names[2];
    auto draw = [](std::vector<std::string>* into) {
        for (int n = 0; n < 5000; ++n) {
            into->push_back(TmpNameGen::getInstance().getTmpName().c_str());
        }
    };
    std::thread a(draw, &names[0]);
    std::thread b(draw, &names[1]);
    a.join();
    b.join();
    std::set<std::string> all(names[0].begin(), names[0].end());
    all.insert(names[1].begin(), names[1].end());
    EXPECT_EQ(10000u, all.size());
}

// Checks the "%lu-%lu" key written over a buffer that held `before`, and
// that nothing after its terminator changed.
void ExpectTimeKey(const unsigned char* key, const unsigned char* before, unsigned long t0, unsigned long t1)
{
    const char* text = reinterpret_cast<const char*>(key);
    unsigned long sec = 0;
    unsigned long usec = 0;
    int consumed = 0;
    ASSERT_EQ(2, sscanf(text, "%lu-%lu%n", &sec, &usec, &consumed)) << text;
    ASSERT_EQ(strlen(text), static_cast<size_t>(consumed)) << text;
    EXPECT_GE(sec, t0);
    EXPECT_LE(sec, t1);
    EXPECT_LT(usec, 1000000ul);
    EXPECT_EQ(0, memcmp(key + consumed + 1, before + consumed + 1, 256 - consumed - 1));
}

TEST_F(TmpNameGenTest, FallsBackToTimeOfDayWithoutRandomDevice)
{
    struct timeval start;
    gettimeofday(&start, nullptr);
    TmpNameGen gen((dir / "no-such-device").c_str());
    unsigned char before[256];
    memset(before, 0xa5, sizeof(before));
    unsigned char key[256];
    memcpy(key, before, sizeof(key));
    gen.get_key(key, sizeof(key));
    struct timeval end;
    gettimeofday(&end, nullptr);
    ExpectTimeKey(key, before, start.tv_sec, end.tv_sec);

    // Construction still succeeds and names still come.
    ExpectName(gen.getTmpName());
    ExpectName(gen.getTmpPath(ustring("/tmp")).substr(5));
}

TEST_F(TmpNameGenTest, ShortReadFallsBackAndKeepsWhatWasRead)
{
    std::string source = WriteSource("short", std::string(100, 'Z'));
    TmpNameGen gen(source.c_str());
    unsigned char key[256];
    memset(key, 0, sizeof(key));
    unsigned char before[256];
    memset(before, 0, sizeof(before));
    memset(before, 'Z', 100);  // what the short read leaves behind the time
    time_t t0 = time(nullptr);
    gen.get_key(key, sizeof(key));
    ExpectTimeKey(key, before, t0, time(nullptr));
}

TEST_F(TmpNameGenTest, FullDeviceReadIsTakenAsIs)
{
    std::string bytes(300, '\0');
    for (size_t i = 0; i < bytes.size(); ++i) {
        bytes[i] = static_cast<char>(i * 7 + 3);
    }
    std::string source = WriteSource("full", bytes);
    TmpNameGen gen(source.c_str());
    unsigned char key[256];
    gen.get_key(key, sizeof(key));
    EXPECT_EQ(0, memcmp(bytes.data(), key, sizeof(key)));
}

TEST_F(TmpNameGenTest, PathJoinsWithOneSlashAndKeepsTrailingOnes)
{
    TmpNameGen& gen = TmpNameGen::getInstance();
    struct Row {
        const char* dir;
        const char* prefix;
    };
    const Row rows[] = {{"/tmp", "/tmp/"}, {"/tmp/", "/tmp//"}, {"", "/"}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.dir);
        ustring path = gen.getTmpPath(ustring(row.dir));
        size_t prefix = strlen(row.prefix);
        ASSERT_EQ(prefix + 8, path.length());
        EXPECT_EQ(0, strncmp(row.prefix, path.c_str(), prefix));
        ExpectName(path.substr(prefix));
    }
}

}  // namespace
