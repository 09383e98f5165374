// Config::read on an arbitrary file: the table it leaves, its result and every
// get_int must match the model, including pieces of over-long lines, zero
// bytes inside lines and a pair left from an earlier read.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

#include "config.h"
#include "config_model.h"

namespace {

std::string FilePath()
{
    static std::string path;
    if (path.empty()) {
        const char* tmp = getenv("TMPDIR");
        path = std::string(tmp != nullptr && tmp[0] != '\0' ? tmp : "/tmp") + "/nimbulo-config-fuzz." +
               std::to_string(getpid());
    }
    return path;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const std::string path = FilePath();
    FILE* fp = fopen(path.c_str(), "wb");
    if (fp == nullptr)
        abort();
    if (size > 0 && fwrite(data, 1, size, fp) != size)
        abort();
    fclose(fp);

    Config config;
    config.table[ustring("earlier")] = ustring("42");
    int rc = config.read(ustring(path.c_str()));

    std::map<std::string, std::string> want;
    want["earlier"] = "42";
    int wantRc = model::Read(std::string(reinterpret_cast<const char*>(data), size), want);
    unlink(path.c_str());

    if (rc != wantRc) {
        fprintf(stderr, "read gave %d, expected %d\n", rc, wantRc);
        abort();
    }
    if (config.table.size() != want.size())
        abort();
    auto w = want.begin();
    for (auto it = config.table.begin(); it != config.table.end(); ++it, ++w) {
        if (w->first != it->first.c_str() || w->second != it->second.c_str() ||
            it->first.length() != w->first.size() || it->second.length() != w->second.size()) {
            fprintf(stderr, "table holds '%s'='%s', expected '%s'='%s'\n", it->first.c_str(), it->second.c_str(),
                    w->first.c_str(), w->second.c_str());
            abort();
        }
    }
    for (auto& pair : want) {
        if (config.get_int(ustring(pair.first.c_str())) != model::GetInt(pair.second)) {
            fprintf(stderr, "get_int('%s') of '%s' differs\n", pair.first.c_str(), pair.second.c_str());
            abort();
        }
    }
    return 0;
}
