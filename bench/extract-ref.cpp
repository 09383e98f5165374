// extract-ref: the launcher's extraction algorithm and nothing else, as the
// floor that the launcher's upgrade is measured against.
//
//   extract-ref ARCHIVE DESTINATION
//
// Same two passes as the launcher: count the entries, skipping their data,
// then extract with the same writer options and block size, each entry's
// path moved below DESTINATION. No Qt, no logging, no progress.
#include <archive.h>
#include <archive_entry.h>

#include <cstdio>
#include <string>

namespace {

const size_t kBlockSize = 10240;
const int kWriteOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;
static_assert(kWriteOptions == 8720, "must match the launcher's writer options");

int Count(const char* path)
{
    archive* a = archive_read_new();
    archive_read_support_filter_all(a);
    archive_read_support_format_all(a);
    if (archive_read_open_filename(a, path, kBlockSize) != ARCHIVE_OK) {
        fprintf(stderr, "extract-ref: %s\n", archive_error_string(a));
        archive_read_free(a);
        return -1;
    }
    int count = 0;
    archive_entry* entry = nullptr;
    while (archive_read_next_header(a, &entry) == ARCHIVE_OK) {
        ++count;
        archive_read_data_skip(a);
    }
    archive_read_free(a);
    return count;
}

int Extract(const char* path, const std::string& destination)
{
    archive* reader = archive_read_new();
    archive* writer = archive_write_disk_new();
    archive_write_disk_set_options(writer, kWriteOptions);
    archive_read_support_filter_all(reader);
    archive_read_support_format_all(reader);
    int result = -1;
    if (archive_read_open_filename(reader, path, kBlockSize) != ARCHIVE_OK) {
        fprintf(stderr, "extract-ref: %s\n", archive_error_string(reader));
    } else {
        std::string target;
        for (;;) {
            archive_entry* entry = nullptr;
            int ret = archive_read_next_header(reader, &entry);
            if (ret == ARCHIVE_EOF) {
                result = 0;
                break;
            }
            const char* name = ret == ARCHIVE_OK ? archive_entry_pathname(entry) : nullptr;
            if (name == nullptr) {
                fprintf(stderr, "extract-ref: bad header: %s\n", archive_error_string(reader));
                break;
            }
            target.assign(destination).append("/").append(name);
            archive_entry_set_pathname(entry, target.c_str());
            if (archive_read_extract2(reader, entry, writer) != ARCHIVE_OK ||
                archive_write_finish_entry(writer) != ARCHIVE_OK) {
                const char* text = archive_error_string(writer);
                fprintf(stderr, "extract-ref: %s: %s\n", target.c_str(), text != nullptr ? text : "");
                break;
            }
        }
    }
    archive_read_free(reader);
    archive_write_free(writer);
    return result;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc != 3) {
        fprintf(stderr, "usage: extract-ref ARCHIVE DESTINATION\n");
        return 2;
    }
    if (Count(argv[1]) < 1) {
        return 1;
    }
    return Extract(argv[1], argv[2]) == 0 ? 0 : 1;
}
