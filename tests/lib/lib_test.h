// What every table of tests/lib shares: a fresh folder per test, made without
// libfile so that a fault there cannot hide itself and kept when the test
// failed, and a check that the test left no descriptor open.
#pragma once

// gtest.h already brings what the tables use of <cerrno>, <cstring>, <functional>, <set>, <sstream>, <string>,
// <tuple> and <vector>.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

namespace fs = std::filesystem;

// A fresh folder under the system's temporary folder.
inline std::string TempDir()
{
    std::string tmpl = (fs::temp_directory_path() / "nimbulo-test.XXXXXX").string();
    return mkdtemp(&tmpl[0]) ? tmpl : "";
}

inline void Put(const fs::path& path, const std::string& data)
{
    fs::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << data;
}

inline std::string Read(const std::string& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), {});
}

inline int OpenDescriptors()
{
    return static_cast<int>(std::distance(fs::directory_iterator("/proc/self/fd"), {}));
}

class FolderTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        dir = TempDir();
        ASSERT_FALSE(dir.empty());
        dir = fs::canonical(dir).string();
        fds = OpenDescriptors();
    }
    void TearDown() override
    {
        EXPECT_EQ(fds, OpenDescriptors()) << "a descriptor was left open";
        if (!HasFailure())
            fs::remove_all(dir);
    }
    std::string P(const std::string& rest) const { return dir + "/" + rest; }
    // dir is canonical: the exact-name test compares with the stored path.
    std::string dir;
    int fds = 0;
};
