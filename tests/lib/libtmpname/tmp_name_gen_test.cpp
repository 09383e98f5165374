// TmpNameGen: the keystream and its encoding against known names, shape and
// uniqueness under two threads, and the time-of-day key.
#include "tmp_name_gen.h"

#include "../lib_test.h"

#include <sys/time.h>

using TmpNameGenTest = FolderTest;

// K[0] = 0, K[i] = 1 - i makes every swap of the key schedule a swap with itself: the identity permutation.
// The second name fails when the permutation restarts, or i and j carry over, between draws.
TEST_F(TmpNameGenTest, KnownNamesUniqueNamesAndTheirAlphabet) {
    std::string key(256, '\0');
    for (int i = 1; i < 256; ++i)
        key[i] = static_cast<char>(1 - i);
    Write(P("identity"), key);
    TmpNameGen gen(P("identity").c_str());
    EXPECT_STREQ("0wk73gQn", gen.getTmpName().c_str());
    EXPECT_STREQ("0MM53O8V", gen.getTmpName().c_str());
    EXPECT_EQ(14u, gen.getTmpPath(ustring("/tmp/")).length()) << "'/tmp/' + '/' + 8 characters";
    std::vector<std::string> names[2];
    auto draw = [&names](int t) {
        for (int n = 0; n < 20000; ++n)
            names[t].push_back(TmpNameGen::getInstance().getTmpName().c_str());
    };
    std::thread a(draw, 0), b(draw, 1);
    a.join(), b.join();
    std::set<std::string> all(names[0].begin(), names[0].end());
    all.insert(names[1].begin(), names[1].end());
    std::string used;
    for (const std::string& name : all)
        used += name.size() == 8 ? name : "!";
    EXPECT_EQ(40000u, all.size());
    EXPECT_EQ(std::string::npos, used.find_first_not_of("0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ-_"));
    EXPECT_EQ(64u, std::set<char>(used.begin(), used.end()).size()) << "the last characters are reachable too";
}

// Without a full read from the device the key is "seconds-microseconds"; the bytes after its end are kept.
TEST_F(TmpNameGenTest, TimeOfDayKeyWhenTheDeviceIsMissingOrShort) {
    Write(P("short"), std::string(100, 'Z'));
    for (const std::string& device : {P("missing"), P("short")}) {
        unsigned char key[257];
        memset(key, 0xa5, sizeof(key));
        key[256] = '\0';
        timeval before, after;
        gettimeofday(&before, nullptr);
        TmpNameGen(device.c_str()).get_key(key, 256);
        gettimeofday(&after, nullptr);
        unsigned long sec = 0, usec = 0;
        int used = 0;
        ASSERT_EQ(2, sscanf(reinterpret_cast<char*>(key), "%lu-%lu%n", &sec, &usec, &used)) << device;
        EXPECT_TRUE(key[used] == '\0' && key[used + 1] == (device == P("short") ? 'Z' : 0xa5)) << device;
        // The key reads the clock read here on both sides; time() could run a second behind it.
        EXPECT_TRUE(before.tv_sec <= long(sec) && long(sec) <= after.tv_sec && usec < 1000000) << device << " " << sec;
    }
}
