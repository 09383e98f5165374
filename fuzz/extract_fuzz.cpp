// Extractor::Extract on an arbitrary archive file, written each run into a
// fresh temporary folder that is removed afterwards.
//
// A mutated archive may hold links that lead out of the destination (the
// extraction options allow that), so scripts/fuzz runs this target as an
// unprivileged user over private temporary folders.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <system_error>

#include "extractor.h"
#include "log.h"

namespace fs = std::filesystem;

namespace {

std::string TempRoot()
{
    const char* tmp = getenv("TMPDIR");
    return tmp != nullptr && tmp[0] != '\0' ? tmp : "/tmp";
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    std::string pattern = TempRoot() + "/nimbulo-extract-fuzz.XXXXXX";
    if (mkdtemp(&pattern[0]) == nullptr)
        abort();
    const std::string folder = pattern;
    const std::string archivePath = folder + "/nimbulo.spk";
    FILE* fp = fopen(archivePath.c_str(), "wb");
    if (fp == nullptr)
        abort();
    if (size > 0 && fwrite(data, 1, size, fp) != size)
        abort();
    fclose(fp);

    Extractor extractor;
    extractor.archivePath = ustring(archivePath.c_str());
    extractor.destination = ustring((folder + "/Nimbulo.app").c_str());
    int rc = extractor.Extract();
    if (rc != 0 && rc != -1) {
        fprintf(stderr, "Extract returned %d\n", rc);
        abort();
    }
    int count = extractor.Count();
    if (count < -1)
        abort();

    // Entries may have been written without owner permissions; make the tree
    // removable first. remove_all never follows symbolic links.
    std::error_code ec;
    for (auto it = fs::recursive_directory_iterator(folder, fs::directory_options::skip_permission_denied, ec);
         !ec && it != fs::recursive_directory_iterator(); it.increment(ec)) {
        if (it->is_directory(ec) && !it->is_symlink(ec))
            fs::permissions(it->path(), fs::perms::owner_all, fs::perm_options::add, ec);
    }
    fs::permissions(folder, fs::perms::owner_all, fs::perm_options::add, ec);
    fs::remove_all(folder, ec);
    return 0;
}
