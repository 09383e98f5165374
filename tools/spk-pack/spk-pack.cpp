// spk-pack: turns an application folder into the package archive that the
// launcher installs (Contents/Resources/package/nimbulo.spk).
//
//   spk-pack [--format tar.gz|tar|tar.xz|zip|7z] <application folder> <output>
//
// The same folder always gives the same bytes: entries are sorted, and every
// entry gets fixed times, owner 0/0 ("root"/"root") and normalised permission
// bits (0755 for folders, links and files with any execute bit, else 0644).
// The gzip stream carries no time stamp, and zip's local times are taken in
// UTC whatever the packer's time zone.
#include <archive.h>
#include <archive_entry.h>

#include <langinfo.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <string>
#include <system_error>
#include <vector>

namespace fs = std::filesystem;

namespace {

// 2020-01-01 00:00:00 UTC; any fixed value would do.
const time_t kEntryTime = 1577836800;

// Entry order and why it matters.
//
// Extraction writes the entries one after another into the per-user
// application folder, and the launcher decides whether that folder is a
// current installation from two things only: the build number in
// Contents/Resources/INFO and the presence of Contents/MacOS/nimbulo-pelora-ui.
// If extraction stops part-way (power loss, the process killed), whatever it
// left must make the next start install again. So:
//   1. every other entry, sorted by path component, which puts each folder
//      before its contents;
//   2. the client executable: until it exists the next start reinstalls;
//   3. the version file, last: until it exists the installed build counts as
//      0, so any shipped build is newer and the next start reinstalls.
// Only an archive that was extracted completely looks current.
// libarchive's 7z writer stores its entries in an order of its own (files
// first, folders last), so "7z" is offered for size comparisons only.
const char* const kClientPath = "Contents/MacOS/nimbulo-pelora-ui";
const char* const kVersionPath = "Contents/Resources/INFO";

struct Item {
    std::string rel;  // "Contents/Info.plist": no "./", no leading "/"
    fs::path path;    // where it lies on disk
};

int Rank(const std::string& rel)
{
    if (rel == kVersionPath) {
        return 2;
    }
    if (rel == kClientPath) {
        return 1;
    }
    return 0;
}

// Component-wise comparison: "a/b" sorts right after "a", before "a-b".
bool EntryLess(const Item& x, const Item& y)
{
    int rx = Rank(x.rel);
    int ry = Rank(y.rel);
    if (rx != ry) {
        return rx < ry;
    }
    fs::path px(x.rel);
    fs::path py(y.rel);
    return std::lexicographical_compare(
        px.begin(), px.end(), py.begin(), py.end(),
        [](const fs::path& a, const fs::path& b) { return a.native() < b.native(); });
}

int Fail(const char* what, const std::string& path, const char* detail)
{
    fprintf(stderr, "spk-pack: %s '%s': %s\n", what, path.c_str(), detail ? detail : "");
    return -1;
}

int CollectItems(const fs::path& root, std::vector<Item>& items)
{
    std::error_code ec;
    fs::recursive_directory_iterator it(root, fs::directory_options::none, ec);
    if (ec) {
        return Fail("cannot read folder", root.string(), ec.message().c_str());
    }
    for (fs::recursive_directory_iterator end; it != end; it.increment(ec)) {
        if (ec) {
            return Fail("cannot read folder", root.string(), ec.message().c_str());
        }
        Item item;
        item.path = it->path();
        item.rel = item.path.lexically_relative(root).generic_string();
        items.push_back(item);
    }
    if (ec) {
        return Fail("cannot read folder", root.string(), ec.message().c_str());
    }
    std::sort(items.begin(), items.end(), EntryLess);
    return 0;
}

int WriteData(struct archive* a, const Item& item)
{
    FILE* f = fopen(item.path.c_str(), "rb");
    if (f == nullptr) {
        return Fail("cannot open", item.path.string(), strerror(errno));
    }
    char buf[65536];
    size_t n;
    int ret = 0;
    while ((n = fread(buf, 1, sizeof buf, f)) > 0) {
        if (archive_write_data(a, buf, n) != static_cast<la_ssize_t>(n)) {
            ret = Fail("cannot write data of", item.rel, archive_error_string(a));
            break;
        }
    }
    if (ret == 0 && ferror(f)) {
        ret = Fail("cannot read", item.path.string(), strerror(errno));
    }
    fclose(f);
    return ret;
}

int WriteItem(struct archive* a, const Item& item)
{
    struct stat st;
    if (lstat(item.path.c_str(), &st) != 0) {
        return Fail("cannot stat", item.path.string(), strerror(errno));
    }

    struct archive_entry* e = archive_entry_new();
    archive_entry_set_pathname(e, item.rel.c_str());
    archive_entry_set_mtime(e, kEntryTime, 0);
    archive_entry_set_uid(e, 0);
    archive_entry_set_gid(e, 0);
    archive_entry_set_uname(e, "root");
    archive_entry_set_gname(e, "root");

    bool withData = false;
    std::string target;
    if (S_ISDIR(st.st_mode)) {
        archive_entry_set_filetype(e, AE_IFDIR);
        archive_entry_set_perm(e, 0755);
    } else if (S_ISLNK(st.st_mode)) {
        std::error_code ec;
        target = fs::read_symlink(item.path, ec).string();
        if (ec) {
            archive_entry_free(e);
            return Fail("cannot read link", item.path.string(), ec.message().c_str());
        }
        archive_entry_set_filetype(e, AE_IFLNK);
        archive_entry_set_perm(e, 0755);
        archive_entry_set_symlink(e, target.c_str());
    } else if (S_ISREG(st.st_mode)) {
        // A file with several links is stored whole under each of its names:
        // a hard-link entry's target would be resolved against the extracting
        // process's working folder, not the destination.
        archive_entry_set_filetype(e, AE_IFREG);
        archive_entry_set_perm(e, (st.st_mode & 0111) ? 0755 : 0644);
        archive_entry_set_size(e, st.st_size);
        withData = true;
    } else {
        archive_entry_free(e);
        return Fail("cannot pack", item.path.string(), "not a file, folder or symbolic link");
    }

    int ret = 0;
    if (archive_write_header(a, e) != ARCHIVE_OK) {
        ret = Fail("cannot write header of", item.rel, archive_error_string(a));
    } else if (withData) {
        ret = WriteData(a, item);
    }
    archive_entry_free(e);
    return ret;
}

// Names are stored as raw bytes (pax "hdrcharset=BINARY"). Declared UTF-8
// names must be converted to the reader's locale, and where the launcher
// starts without one (the C locale) libarchive warns for every non-ASCII
// name; the launcher counts any warning as a failed installation.
int SetTarFormat(struct archive* a)
{
    int r = archive_write_set_format_pax_restricted(a);
    if (r == ARCHIVE_OK) {
        r = archive_write_set_format_option(a, "pax", "hdrcharset", "BINARY");
    }
    return r;
}

int SetFormat(struct archive* a, const std::string& format)
{
    int r;
    if (format == "tar.gz") {
        r = SetTarFormat(a);
        if (r == ARCHIVE_OK) {
            r = archive_write_add_filter_gzip(a);
        }
        if (r == ARCHIVE_OK) {
            // A NULL value switches the option off: no time in the gzip header.
            r = archive_write_set_filter_option(a, "gzip", "timestamp", nullptr);
        }
    } else if (format == "tar") {
        r = SetTarFormat(a);
    } else if (format == "tar.xz") {
        r = SetTarFormat(a);
        if (r == ARCHIVE_OK) {
            r = archive_write_add_filter_xz(a);
        }
    } else if (format == "zip") {
        r = archive_write_set_format_zip(a);
    } else if (format == "7z") {
        r = archive_write_set_format_7zip(a);
    } else {
        fprintf(stderr, "spk-pack: unknown format '%s'\n", format.c_str());
        return -1;
    }
    if (r != ARCHIVE_OK) {
        return Fail("cannot set up format", format, archive_error_string(a));
    }
    return 0;
}

int Pack(const std::string& format, const fs::path& root, const fs::path& output)
{
    std::vector<Item> items;
    if (CollectItems(root, items) != 0) {
        return -1;
    }
    bool hasClient = false;
    bool hasVersion = false;
    for (const Item& item : items) {
        hasClient = hasClient || item.rel == kClientPath;
        hasVersion = hasVersion || item.rel == kVersionPath;
    }
    if (!hasClient || !hasVersion) {
        fprintf(stderr, "spk-pack: warning: '%s' lacks %s; an installation from it never counts as current\n",
                root.c_str(), !hasClient ? kClientPath : kVersionPath);
    }

    // Written beside the output and renamed at the end, so a failed or
    // interrupted run never leaves a half-written package under the real name.
    fs::path tmp = output;
    tmp += ".part";
    struct archive* a = archive_write_new();
    if (a == nullptr) {
        fprintf(stderr, "spk-pack: out of memory\n");
        return -1;
    }
    int ret = SetFormat(a, format);
    if (ret == 0 && archive_write_open_filename(a, tmp.c_str()) != ARCHIVE_OK) {
        ret = Fail("cannot create", tmp.string(), archive_error_string(a));
    }
    for (size_t i = 0; ret == 0 && i < items.size(); ++i) {
        ret = WriteItem(a, items[i]);
    }
    if (ret == 0 && archive_write_close(a) != ARCHIVE_OK) {
        ret = Fail("cannot finish", tmp.string(), archive_error_string(a));
    }
    archive_write_free(a);
    if (ret == 0 && rename(tmp.c_str(), output.c_str()) != 0) {
        ret = Fail("cannot rename to", output.string(), strerror(errno));
    }
    if (ret != 0) {
        unlink(tmp.c_str());
    }
    return ret;
}

int Usage()
{
    fprintf(stderr, "usage: spk-pack [--format tar.gz|tar|tar.xz|zip|7z] <application folder> <output>\n");
    return 2;
}

}  // namespace

int main(int argc, char** argv)
{
    // File names are UTF-8 here and in the launcher; libarchive converts
    // names through the character set of LC_CTYPE, so it must be UTF-8 too,
    // or the package would depend on the locale the build ran in.
    setlocale(LC_ALL, "");
    if (strcmp(nl_langinfo(CODESET), "UTF-8") != 0 && setlocale(LC_CTYPE, "C.UTF-8") == nullptr) {
        fprintf(stderr, "spk-pack: no UTF-8 locale (C.UTF-8) available\n");
        return 1;
    }
    // zip stores each entry's time as a local date and time, converted
    // through the time zone: without this, packers in Tokyo and in London
    // would write different bytes for the same folder.
    setenv("TZ", "UTC0", 1);
    tzset();
    std::string format = "tar.gz";
    std::vector<std::string> args;
    for (int i = 1; i < argc; ++i) {
        std::string arg = argv[i];
        if (arg == "--format" && i + 1 < argc) {
            format = argv[++i];
        } else if (arg.rfind("--format=", 0) == 0) {
            format = arg.substr(9);
        } else if (arg == "-h" || arg == "--help") {
            Usage();
            return 0;
        } else {
            args.push_back(arg);
        }
    }
    if (args.size() != 2) {
        return Usage();
    }
    std::error_code ec;
    if (!fs::is_directory(fs::symlink_status(args[0], ec))) {
        fprintf(stderr, "spk-pack: '%s' is not a folder\n", args[0].c_str());
        return 1;
    }
    return Pack(format, fs::path(args[0]), fs::path(args[1])) == 0 ? 0 : 1;
}
