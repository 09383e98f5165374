// TmpNameGen: the keystream and its encoding against known names, the shape
// and uniqueness of names, and the time-of-day key.
#include "libtmpname/tmp_name_gen.h"

#include "../lib_test.h"

#include <sys/time.h>

// K[0] = 0, K[i] = 1 - i makes every swap of the key schedule a swap with itself: the identity permutation.
// The second name fails when the permutation restarts, or i and j carry over, between draws.
TEST_F(FolderTest, TmpNamesKnownUniqueAndFromTheAlphabet)
{
    std::string key(256, '\0');
    for (int i = 1; i < 256; ++i)
        key[i] = static_cast<char>(1 - i);
    Put(P("identity"), key);
    TmpNameGen gen(P("identity").c_str());
    EXPECT_STREQ("0wk73gQn", gen.getTmpName().c_str());
    EXPECT_STREQ("0MM53O8V", gen.getTmpName().c_str());
    EXPECT_EQ(14u, gen.getTmpPath(ustring("/tmp/")).length()) << "'/tmp/' + '/' + 8 characters";
    std::set<std::string> names;
    std::string used;
    for (int n = 0; n < 5000; ++n)
        used += *names.insert(TmpNameGen::getInstance().getTmpName().c_str()).first;
    EXPECT_EQ(std::make_pair(size_t(5000), size_t(40000)), std::make_pair(names.size(), used.size()));
    EXPECT_EQ(std::string::npos,
              used.find_first_not_of("0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_"));
    EXPECT_EQ(64u, std::set<char>(used.begin(), used.end()).size())
        << "the last characters are reachable too";
}

// A short read from the device keys with "seconds-microseconds" written over what arrived, the rest kept.
TEST_F(FolderTest, TmpNameKeyFromTheTimeOfDayWhenTheDeviceGivesTooLittle)
{
    Put(P("short"), std::string(100, 'Z'));
    unsigned char key[257] = {};
    timeval before, after;
    gettimeofday(&before, nullptr);
    TmpNameGen(P("short").c_str()).get_key(key, 256);
    gettimeofday(&after, nullptr);
    unsigned long sec = 0, usec = 0;
    int used = 0;
    ASSERT_EQ(2, sscanf(reinterpret_cast<char*>(key), "%lu-%lu%n", &sec, &usec, &used));
    EXPECT_TRUE(key[used] == '\0' && key[used + 1] == 'Z' && usec < 1000000);
    // The same clock on both sides as in the key; time() could run a second behind it.
    EXPECT_TRUE(before.tv_sec <= long(sec) && long(sec) <= after.tv_sec) << sec << " " << before.tv_sec;
    EXPECT_EQ(8u, TmpNameGen(P("missing").c_str()).getTmpName().length()) << "no device, still names";
}
