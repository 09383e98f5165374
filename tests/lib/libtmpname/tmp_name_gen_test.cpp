// TmpNameGen: the keystream and encoding against known vectors, the name
// shape, the time-of-day key, and paths.
#include "tmp_name_gen.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <set>
#include <string>
#include <thread>
#include <vector>

namespace fs = std::filesystem;

namespace {

const std::string kAlphabet = "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_";

void ExpectName(const ustring& name)
{
    ASSERT_EQ(8u, name.length()) << name.c_str();
    EXPECT_EQ(std::string::npos, std::string(name.c_str()).find_first_not_of(kAlphabet)) << name.c_str();
}

class TmpNameGenTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        std::string tmpl = (fs::temp_directory_path() / "tmp_name_gen_test.XXXXXX").string();
        ASSERT_NE(nullptr, mkdtemp(&tmpl[0]));
        dir = tmpl;
    }
    void TearDown() override { fs::remove_all(dir); }
    std::string Source(const std::string& name, const std::string& bytes)
    {
        std::ofstream(dir / name, std::ios::binary) << bytes;
        return (dir / name).string();
    }

    fs::path dir;
};

// With K[0] = 0 and K[i] = 1 - i every swap of the key schedule swaps a byte with itself, so the permutation
// stays the identity. The second name guards against restarting the permutation, or carrying i and j over,
// between draws.
TEST_F(TmpNameGenTest, IdentityPermutationGivesKnownNames)
{
    std::string key(256, '\0');
    for (int i = 1; i < 256; ++i)
        key[i] = static_cast<char>((1 - i) & 0xff);
    TmpNameGen gen(Source("identity", key).c_str());
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
    EXPECT_EQ(2000u, seen.size()) << "48 random bits a name: a repeat in 2000 draws means a broken stream";
    EXPECT_EQ(64u, used.size()) << "all 64 characters, the last two included, are reachable";
}

TEST_F(TmpNameGenTest, ConcurrentDrawsNeverRepeat)
{
    std::vector<std::string> names[2];
    auto draw = [](std::vector<std::string>* into) {
        for (int n = 0; n < 5000; ++n)
            into->push_back(TmpNameGen::getInstance().getTmpName().c_str());
    };
    std::thread a(draw, &names[0]), b(draw, &names[1]);
    a.join();
    b.join();
    std::set<std::string> all(names[0].begin(), names[0].end());
    all.insert(names[1].begin(), names[1].end());
    EXPECT_EQ(10000u, all.size());
}

// A full read is the key as it is; a missing device or a short read leaves "%lu-%lu" (seconds and microseconds)
// written over the start of the buffer and nothing after its terminator changed.
TEST_F(TmpNameGenTest, KeyFromTheDeviceOrTheTimeOfDay)
{
    std::string full(300, '\0');
    for (size_t i = 0; i < full.size(); ++i)
        full[i] = static_cast<char>(i * 7 + 3);
    const struct { const char* tag; std::string source; std::string after; } rows[] = {
        {"full read", Source("full", full), full.substr(0, 256)},
        {"no device", (dir / "no-such-device").string(), std::string(256, '\xa5')},
        {"short read keeps what was read", Source("short", std::string(100, 'Z')),
         std::string(100, 'Z') + std::string(156, '\xa5')},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.tag);
        TmpNameGen gen(row.source.c_str());
        unsigned char key[256];
        memset(key, 0xa5, sizeof(key));
        const unsigned long t0 = time(nullptr);
        gen.get_key(key, sizeof(key));
        const unsigned long t1 = time(nullptr);
        const std::string got(reinterpret_cast<const char*>(key), sizeof(key));
        if (std::string(row.tag) == "full read") {
            EXPECT_EQ(row.after, got);
            continue;
        }
        unsigned long sec = 0, usec = 0;
        int consumed = 0;
        ASSERT_EQ(2, sscanf(got.c_str(), "%lu-%lu%n", &sec, &usec, &consumed)) << got.c_str();
        ASSERT_EQ(strlen(got.c_str()), static_cast<size_t>(consumed)) << got.c_str();
        EXPECT_GE(sec, t0);
        EXPECT_LE(sec, t1);
        EXPECT_LT(usec, 1000000ul);
        EXPECT_EQ(row.after.substr(consumed + 1), got.substr(consumed + 1));
        ExpectName(gen.getTmpName());  // names still come
    }
}

TEST_F(TmpNameGenTest, PathJoinsWithOneSlashAndKeepsTrailingOnes)
{
    for (const auto& row : {std::make_pair("/tmp", "/tmp/"), {"/tmp/", "/tmp//"}, {"", "/"}}) {
        SCOPED_TRACE(row.first);
        ustring path = TmpNameGen::getInstance().getTmpPath(ustring(row.first));
        size_t prefix = strlen(row.second);
        ASSERT_EQ(prefix + 8, path.length());
        EXPECT_EQ(0, strncmp(row.second, path.c_str(), prefix));
        ExpectName(path.substr(prefix));
    }
}

}  // namespace
