// What the fuzz targets share. Built with libFuzzer (NIMBULO_FUZZ) a target is
// its entry point; built without, this header gives it a main() that runs the
// entry point on every file of the folders named: the checked-in corpus,
// replayed by the normal test run.
#pragma once

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#define FUZZ_CHECK(condition) ((condition) ? (void)0 : (fprintf(stderr, "failed: %s\n", #condition), abort()))

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

// The input as a file in a fresh folder, removed afterwards with what was
// written there. Folders written without owner permissions may stay behind
// (scripts/fuzz gives the targets a private /tmp).
struct FuzzFile {
    FuzzFile(const uint8_t* data, size_t size)
        : dir(std::filesystem::temp_directory_path() / "nimbulo-fuzz-XXXXXX")
    {
        FUZZ_CHECK(mkdtemp(&dir[0]) != nullptr);
        std::ofstream(path = dir + "/input", std::ios::binary)
            .write(reinterpret_cast<const char*>(data), long(size));
    }
    ~FuzzFile()
    {
        std::error_code ignored;
        std::filesystem::remove_all(dir, ignored);
    }
    std::string dir, path;
};

#ifndef NIMBULO_FUZZ
int main(int argc, char** argv)
{
    int inputs = 0;
    for (int i = 1; i < argc; ++i)
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            fprintf(stderr, "input %d: %s\n", ++inputs, entry.path().c_str());
            std::string data(entry.file_size(), '\0');
            std::ifstream(entry.path(), std::ios::binary).read(&data[0], long(data.size()));
            LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(data.data()), data.size());
        }
    return inputs > 0 ? 0 : 1;
}
#endif
