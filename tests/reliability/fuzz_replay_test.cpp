// Replays the checked-in inputs of every fuzz target (fuzz/corpus/<target>/),
// crash reproducers included, as an ordinary test in every build. A target
// aborts on any disagreement with its model, which fails the test; the name
// of the input is printed first.
#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace fs = std::filesystem;

extern "C" int FuzzConfigParse(const uint8_t* data, size_t size);
extern "C" int FuzzConfigRead(const uint8_t* data, size_t size);
extern "C" int FuzzUstringOps(const uint8_t* data, size_t size);
extern "C" int FuzzExtract(const uint8_t* data, size_t size);

namespace {

struct Target {
    const char* name;
    int (*run)(const uint8_t*, size_t);
};

class FuzzReplay : public ::testing::TestWithParam<Target> {};

void PrintTo(const Target& t, std::ostream* os)
{
    *os << t.name;
}

std::vector<fs::path> Inputs(const std::string& target)
{
    std::vector<fs::path> files;
    fs::path dir = fs::path(NIMBULO_SOURCE_DIR) / "fuzz/corpus" / target;
    if (fs::is_directory(dir))
        for (const auto& e : fs::directory_iterator(dir))
            if (e.is_regular_file())
                files.push_back(e.path());
    std::sort(files.begin(), files.end());
    return files;
}

TEST_P(FuzzReplay, CorpusAndEdgeInputs)
{
    char tmpl[] = "/tmp/nimbulo-fuzz-replay-XXXXXX";
    ASSERT_NE(nullptr, mkdtemp(tmpl));
    setenv("TMPDIR", tmpl, 1);

    std::vector<std::string> inputs = {"", std::string(1, '\0'), std::string(20000, '='), std::string(9000, 'k') + "=v\n"};
    for (const fs::path& p : Inputs(GetParam().name)) {
        std::ifstream in(p, std::ios::binary);
        inputs.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
        fprintf(stderr, "input %s\n", p.filename().c_str());
        const std::string& data = inputs.back();
        EXPECT_EQ(0, GetParam().run(reinterpret_cast<const uint8_t*>(data.data()), data.size()));
    }
    for (size_t i = 0; i < 4; ++i)
        EXPECT_EQ(0, GetParam().run(reinterpret_cast<const uint8_t*>(inputs[i].data()), inputs[i].size()));
    EXPECT_TRUE(fs::is_empty(tmpl)) << "a target left files behind in " << tmpl;
    fs::remove_all(tmpl);
    unsetenv("TMPDIR");
}

INSTANTIATE_TEST_SUITE_P(Targets, FuzzReplay,
                         ::testing::Values(Target{"config_parse", FuzzConfigParse}, Target{"config_read", FuzzConfigRead},
                                           Target{"ustring_ops", FuzzUstringOps}, Target{"extract", FuzzExtract}),
                         [](const ::testing::TestParamInfo<Target>& info) { return std::string(info.param.name); });

}  // namespace
