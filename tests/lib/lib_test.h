// What every table of tests/lib shares: a fresh folder per test, made without
// libfile so that a fault there cannot hide itself and kept when the test
// failed, and a check that the test left no descriptor open.
#ifndef NIMBULO_LIB_TEST_H
#define NIMBULO_LIB_TEST_H

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>

inline int OpenDescriptors()
{
    auto it = std::filesystem::directory_iterator("/proc/self/fd");
    return static_cast<int>(std::distance(it, std::filesystem::directory_iterator()));
}

class FolderTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        std::string tmpl = (std::filesystem::temp_directory_path() / "nimbulo-lib.XXXXXX").string();
        ASSERT_NE(mkdtemp(&tmpl[0]), nullptr);
        dir = std::filesystem::canonical(tmpl).string();
        fds = OpenDescriptors();
    }
    void TearDown() override
    {
        EXPECT_EQ(fds, OpenDescriptors()) << "a descriptor was left open";
        if (!HasFailure())
            std::filesystem::remove_all(dir);
        else
            std::cerr << "kept " << dir << "\n";
    }
    std::string P(const std::string& rest) const { return dir + "/" + rest; }
    void Write(const std::string& path, const std::string& data) const
    {
        std::ofstream(path, std::ios::binary) << data;
    }
    static std::string Read(const std::string& path)
    {
        std::ifstream in(path, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }

    std::string dir;
    int fds = 0;
};

#endif
