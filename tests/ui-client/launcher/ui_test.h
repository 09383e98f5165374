// Shared by the dialog and extractor tests: folders, files and archives
// written here.
#pragma once

#include <archive.h>
#include <archive_entry.h>
#include <gtest/gtest.h>

#include "../../lib/lib_test.h"

// A ustar archive of (path, data) entries, names stored as they are; a path
// ending in "/" is a folder.
inline void WriteArchive(const fs::path& file,
                         const std::vector<std::pair<std::string, std::string>>& entries)
{
    fs::create_directories(file.parent_path());
    archive* a = archive_write_new();
    archive_write_set_format_ustar(a);
    archive_write_open_filename(a, file.c_str());
    for (const auto& [path, data] : entries) {
        archive_entry* e = archive_entry_new();
        archive_entry_set_pathname(e, path.c_str());
        archive_entry_set_mode(e, (path.back() == '/' ? AE_IFDIR : AE_IFREG) | 0755);
        archive_entry_set_size(e, static_cast<la_int64_t>(data.size()));
        archive_write_header(a, e);
        archive_write_data(a, data.data(), data.size());
        archive_entry_free(e);
    }
    archive_write_free(a);
}
