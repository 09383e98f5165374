#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>

#include <cstdarg>
#include <cstdint>
#include <iostream>

#include "liblogger/log.h"
#include "locale/str-table.h"
#include "notify-adapter.h"

namespace {

const char* const kComponent = "extractor_debug";
const size_t kBlockSize = 10240;

// Replace what is there, refuse ".." components, restore the macOS
// metadata; nothing else (no owners, modes, times, ACLs or overwrite guard).
const int kWriteOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;
static_assert(kWriteOptions == 8720, "the package writer options changed");

// libarchive may hold no error text at all (for example on the writer when
// the reading side failed); a null must never reach a "%s".
const char* ErrorText(archive* a)
{
    const char* text = archive_error_string(a);
    return text != nullptr ? text : "";
}

// Entries without a stored path name still get a line of their own, so the
// listing keeps one line per entry.
const char* const kNoPathName = "";

// The handles of one pass over the archive, freed together on every way
// out: the reader first (freeing it also closes the archive file), then the
// writer when there is one.
struct Handles {
    archive* reader = nullptr;
    archive* writer = nullptr;

    Handles() = default;
    Handles(const Handles&) = delete;
    Handles& operator=(const Handles&) = delete;
    ~Handles()
    {
        if (reader != nullptr)
            archive_read_free(reader);
        if (writer != nullptr)
            archive_write_free(writer);
    }
};

// Logs an error of this file; gives the failure result, -1.
int Failed(const char* format, ...) __attribute__((format(printf, 1, 2)));
int Failed(const char* format, ...)
{
    va_list args;
    va_start(args, format);
    Logger::LogMsg2(Logger::LEVEL_ERROR, kComponent, format, args);
    va_end(args);
    return -1;
}

// The one way every pass opens the package: every filter and format, the
// format recognised from the contents.
int OpenPackage(archive* reader, const ustring& path)
{
    archive_read_support_filter_all(reader);
    archive_read_support_format_all(reader);
    return archive_read_open_filename(reader, path.c_str_utf8(), kBlockSize);
}

// Count and List: a reader on the package, after their own argument check
// and with their own messages. 0, or -1 after logging why.
int OpenForListing(const ustring& destination, const ustring& archivePath, Handles& h)
{
    if (destination.empty() || archivePath.empty())
        return Failed("[ERROR] extractor(%d): Invalid argument\n", __LINE__);
    h.reader = archive_read_new();
    if (h.reader == nullptr)
        return Failed("[ERROR] extractor(%d): Allocate archive failed\n", __LINE__);
    if (OpenPackage(h.reader, archivePath) != ARCHIVE_OK)
        return Failed("[ERROR] extractor(%d): archive_read_open_filename failed: '%s'\n", __LINE__,
                      ErrorText(h.reader));
    return 0;
}

}  // namespace

int Extractor::Extract()
{
    if (archivePath.empty() || destination.empty())
        return Failed("[ERROR] extractor(%d): Invalid Argument\n", __LINE__);
    Logger::LogMsg(Logger::LEVEL_DEBUG, kComponent, "[DEBUG] extractor(%d): decompress from '%s' to '%s'\n",
                   __LINE__, archivePath.c_str(), destination.c_str());

    Notify_Adapter::GetInstance()->UpdateDialogText(StrTable::LoadStr(457));

    // The archive is read twice: the progress bar needs the total first.
    const int total = Count();
    if (total < 1)
        return Failed("[ERROR] extractor(%d): Failed to calculate total file numbers, ret: %d\n", __LINE__,
                      total);

    Handles h;
    h.reader = archive_read_new();
    h.writer = h.reader != nullptr ? archive_write_disk_new() : nullptr;
    if (h.writer == nullptr)
        return Failed("[ERROR] extractor(%d): Allocate extractor failed\n", __LINE__);
    archive_write_disk_set_options(h.writer, kWriteOptions);
    if (OpenPackage(h.reader, archivePath) != ARCHIVE_OK)
        return Failed("[ERROR] extractor(%d): Failed to read file '%s' ('%s')\n", __LINE__,
                      archivePath.c_str(), ErrorText(h.reader));

    // Every result but ARCHIVE_OK fails below, ARCHIVE_WARN included: the
    // installation is exactly what the package holds, or it is rolled back.
    const ustring prefix = destination + "/";
    ustring target;
    for (int counter = 1;; ++counter) {
        archive_entry* entry = nullptr;
        int ret = archive_read_next_header(h.reader, &entry);
        if (ret == ARCHIVE_EOF)
            return 0;
        if (ret != ARCHIVE_OK)
            return Failed("[ERROR] extractor(%d): archive_read_next_header failed: '%s'\n", __LINE__,
                          ErrorText(h.reader));
        const char* name = archive_entry_pathname(entry);
        if (name == nullptr)
            return Failed("[ERROR] extractor(%d): archive_entry_pathname failed", __LINE__);

        // Link targets stay as stored; only the entry's own place moves. One
        // buffer serves every entry: a package may hold tens of thousands.
        target.assign(prefix);
        target.append(name);
        archive_entry_set_pathname(entry, target.c_str_utf8());
        if (archive_read_extract2(h.reader, entry, h.writer) != ARCHIVE_OK)
            return Failed("[ERROR] extractor(%d): archive_read_extract2 failed: '%s'\n", __LINE__,
                          ErrorText(h.writer));
        Notify_Adapter::GetInstance()->UpdateProgress(total, counter);
        if (archive_write_finish_entry(h.writer) != ARCHIVE_OK)
            return Failed("[ERROR] extractor(%d): archive_write_finish_entry failed: '%s'\n", __LINE__,
                          ErrorText(h.writer));
    }
}

int Extractor::Count()
{
    Handles h;
    if (OpenForListing(destination, archivePath, h) != 0)
        return -1;

    // Stops quietly at the end or at the first damage: a damaged archive
    // counts what comes before it, and Extract reports the damage itself.
    int count = 0;
    archive_entry* entry = nullptr;
    while (archive_read_next_header(h.reader, &entry) == ARCHIVE_OK) {
        ++count;
        archive_read_data_skip(h.reader);
    }
    return count;
}

int Extractor::List()
{
    Handles h;
    if (OpenForListing(destination, archivePath, h) != 0)
        return -1;

    archive_entry* entry = nullptr;
    while (archive_read_next_header(h.reader, &entry) == ARCHIVE_OK) {
        const char* name = archive_entry_pathname(entry);
        std::cout << (name != nullptr ? name : kNoPathName) << std::endl;
        archive_read_data_skip(h.reader);
    }
    archive_read_close(h.reader);
    return 0;
}

int Extractor::copy_data(archive* ar, archive* aw)
{
    if (ar == nullptr || aw == nullptr) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "[ERROR] extractor(%d): Invalid Argument\n",
                       __LINE__);
        return -1;
    }
    for (;;) {
        const void* buffer = nullptr;
        size_t size = 0;
        int64_t offset = 0;
        int ret = archive_read_data_block(ar, &buffer, &size, &offset);
        if (ret == ARCHIVE_EOF) {
            return 0;
        }
        if (ret != ARCHIVE_OK) {
            Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                           "[ERROR] extractor(%d): archive_read_data_block failed: '%s'\n", __LINE__,
                           ErrorText(ar));
            return -1;
        }
        if (archive_write_data_block(aw, buffer, size, offset) != 0) {
            Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                           "[ERROR] extractor(%d): archive_write_data_block failed: '%s'\n", __LINE__,
                           ErrorText(aw));
            return -1;
        }
    }
}
