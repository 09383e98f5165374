#include "extractor.h"

#include <archive.h>
#include <archive_entry.h>

#include <cstdint>
#include <iostream>

#include "log.h"
#include "notify-adapter.h"
#include "str-table.h"

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

void FreeHandles(archive* reader, archive* writer)
{
    archive_read_free(reader);
    archive_write_free(writer);
}

}  // namespace

int Extractor::Extract()
{
    if (archivePath.empty() || destination.empty()) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "[ERROR] extractor(%d): Invalid Argument\n", __LINE__);
        return -1;
    }
    Logger::LogMsg(Logger::LEVEL_DEBUG, kComponent, "[DEBUG] extractor(%d): decompress from '%s' to '%s'\n", __LINE__,
                   archivePath.c_str(), destination.c_str());

    Notify_Adapter::GetInstance()->UpdateDialogText(StrTable::LoadStr(457));

    // The archive is read twice: the progress bar needs the total first.
    const int total = Count();
    if (total < 1) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                       "[ERROR] extractor(%d): Failed to calculate total file numbers, ret: %d\n", __LINE__, total);
        return -1;
    }

    archive* reader = archive_read_new();
    if (reader == nullptr) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "[ERROR] extractor(%d): Allocate extractor failed\n", __LINE__);
        return -1;
    }
    archive* writer = archive_write_disk_new();
    if (writer == nullptr) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "[ERROR] extractor(%d): Allocate extractor failed\n", __LINE__);
        archive_read_free(reader);
        return -1;
    }
    archive_write_disk_set_options(writer, kWriteOptions);

    // The older name is kept here on purpose; it enables the same filters as
    // archive_read_support_filter_all, and libarchive 3.6 marks it deprecated.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"
    archive_read_support_compression_all(reader);
#pragma GCC diagnostic pop
    archive_read_support_format_all(reader);

    if (archive_read_open_filename(reader, archivePath.c_str_utf8(), kBlockSize) != ARCHIVE_OK) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "[ERROR] extractor(%d): Failed to read file '%s' ('%s')\n",
                       __LINE__, archivePath.c_str(), ErrorText(reader));
        FreeHandles(reader, writer);
        return -1;
    }

    // A warning is a failure at every step below: the installation must be
    // exactly what the package holds, or it is rolled back.
    int counter = 1;
    const ustring prefix = destination + "/";
    ustring target;
    for (;;) {
        archive_entry* entry = nullptr;
        int ret = archive_read_next_header(reader, &entry);
        if (ret == ARCHIVE_EOF) {
            FreeHandles(reader, writer);
            return 0;
        }
        if (ret != ARCHIVE_OK) {
            Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                           "[ERROR] extractor(%d): archive_read_next_header failed: '%s'\n", __LINE__,
                           ErrorText(reader));
            FreeHandles(reader, writer);
            return -1;
        }

        const char* name = archive_entry_pathname(entry);
        if (name == nullptr) {
            Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "[ERROR] extractor(%d): archive_entry_pathname failed",
                           __LINE__);
            FreeHandles(reader, writer);
            return -1;
        }
        // Link targets stay as stored; only the entry's own place moves. One
        // buffer serves every entry: a package may hold tens of thousands.
        target.assign(prefix);
        target.append(name);
        archive_entry_set_pathname(entry, target.c_str_utf8());

        ret = archive_read_extract2(reader, entry, writer);
        if (ret != ARCHIVE_OK) {
            Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                           "[ERROR] extractor(%d): archive_read_extract2 failed: '%s'\n", __LINE__, ErrorText(writer));
            FreeHandles(reader, writer);
            return -1;
        }

        Notify_Adapter::GetInstance()->UpdateProgress(total, counter);

        ret = archive_write_finish_entry(writer);
        ++counter;
        if (ret != ARCHIVE_OK) {
            Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                           "[ERROR] extractor(%d): archive_write_finish_entry failed: '%s'\n", __LINE__,
                           ErrorText(writer));
            FreeHandles(reader, writer);
            return -1;
        }
    }
}

// Count and List read the archive alike: a fresh handle with every filter
// and format. nullptr, after logging why, when that fails.
archive* Extractor::OpenForListing()
{
    if (destination.empty() || archivePath.empty()) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "[ERROR] extractor(%d): Invalid argument\n", __LINE__);
        return nullptr;
    }
    archive* reader = archive_read_new();
    if (reader == nullptr) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "[ERROR] extractor(%d): Allocate archive failed\n", __LINE__);
        return nullptr;
    }
    archive_read_support_filter_all(reader);
    archive_read_support_format_all(reader);

    if (archive_read_open_filename(reader, archivePath.c_str_utf8(), kBlockSize) != ARCHIVE_OK) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                       "[ERROR] extractor(%d): archive_read_open_filename failed: '%s'\n", __LINE__,
                       ErrorText(reader));
        archive_read_free(reader);
        return nullptr;
    }
    return reader;
}

int Extractor::Count()
{
    archive* reader = OpenForListing();
    if (reader == nullptr)
        return -1;

    // Stops quietly at the end or at the first damage: a damaged archive
    // counts what comes before it, and Extract reports the damage itself.
    int count = 0;
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader, &entry) == ARCHIVE_OK) {
        ++count;
        archive_read_data_skip(reader);
    }
    archive_read_free(reader);
    return count;
}

int Extractor::List()
{
    archive* reader = OpenForListing();
    if (reader == nullptr)
        return -1;

    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader, &entry) == ARCHIVE_OK) {
        const char* name = archive_entry_pathname(entry);
        std::cout << (name != nullptr ? name : kNoPathName) << std::endl;
        archive_read_data_skip(reader);
    }
    archive_read_close(reader);
    archive_read_free(reader);
    return 0;
}

int Extractor::copy_data(archive* ar, archive* aw)
{
    if (ar == nullptr || aw == nullptr) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "[ERROR] extractor(%d): Invalid Argument\n", __LINE__);
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
                           "[ERROR] extractor(%d): archive_read_data_block failed: '%s'\n", __LINE__, ErrorText(ar));
            return -1;
        }
        if (archive_write_data_block(aw, buffer, size, offset) != 0) {
            Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                           "[ERROR] extractor(%d): archive_write_data_block failed: '%s'\n", __LINE__, ErrorText(aw));
            return -1;
        }
    }
}
