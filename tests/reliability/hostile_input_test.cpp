// Hostile and broken input, one table: every row puts one odd input in place,
// runs the real bundle as a process with a temporary HOME, and checks the
// outcome the row names.
//
// Everywhere: exit status 0; nothing outside ~/.Nimbulo written or removed
// (the whole test folder except ~/.Nimbulo, the run folder and TMPDIR is
// compared before and after); with an old installation, it is byte-identical
// afterwards whenever the new one could not be completed. Rows marked "reach"
// show where the fixed extraction options let a hostile package write
// outside: they check that exactly the expected outside path changed.
//
// Each run is the first process of a PID namespace of its own (and of a mount
// namespace, for the small-volume row). Run as root, the launcher itself runs
// as user nobody (65534), so that permissions mean something; another user's
// process is a sleeper run as 65533.
#include <gtest/gtest.h>

#include <archive.h>
#include <archive_entry.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <thread>
#include <vector>

namespace fs = std::filesystem;

namespace {

const char* const kBundle = NIMBULO_BINARY_DIR "/Nimbulo.app";
const char* const kClientRel = "Contents/MacOS/nimbulo-pelora-ui";
const char* const kInfoRel = "Contents/Resources/INFO";
const char* const kPlist =
    "<plist><dict><key>CFBundleExecutable</key><string>nimbulo-pelora-ui</string></dict></plist>\n";
const uid_t kRunUid = 65534;
const uid_t kOtherUid = 65533;

std::string ReadFile(const fs::path& p)
{
    std::ifstream in(p, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void WriteFile(const fs::path& p, const std::string& content)
{
    fs::create_directories(p.parent_path());
    std::ofstream(p, std::ios::binary | std::ios::trunc) << content;
}

std::string Info(const std::string& build)
{
    return "[Version]\nmajor_version=3\nminor_version=1\nbuild_version=" + build + "\nicon_overlay_version=1\n";
}

int RunProgram(const std::vector<std::string>& args, const std::vector<std::string>& env)
{
    pid_t pid = fork();
    if (pid == 0) {
        std::vector<char*> argv, envp;
        for (const std::string& a : args)
            argv.push_back(const_cast<char*>(a.c_str()));
        argv.push_back(nullptr);
        for (const std::string& e : env)
            envp.push_back(const_cast<char*>(e.c_str()));
        envp.push_back(nullptr);
        execvpe(argv[0], argv.data(), envp.data());
        _exit(127);
    }
    int status = 0;
    if (pid < 0 || waitpid(pid, &status, 0) != pid || !WIFEXITED(status))
        return -1;
    return WEXITSTATUS(status);
}

bool IsRoot()
{
    return geteuid() == 0;
}

bool CanUseNamespaces(bool mount)
{
    std::vector<std::string> args = {"unshare", "--pid", "--fork", "--mount-proc"};
    if (mount)
        args = {"unshare", "--mount", "--pid", "--fork", "--mount-proc", "sh", "-c",
                "mount -t tmpfs -o size=1m tmpfs /mnt"};
    else
        args.push_back("true");
    return RunProgram(args, {"PATH=/usr/sbin:/usr/bin:/sbin:/bin"}) == 0;
}

// ---------------------------------------------------------------- packages

struct Entry {
    char kind;  // 'f' file, 'd' folder, 'l' symbolic link, 'c' character device, 's' sparse file
    std::string path;
    std::string data;  // file contents, or the link target
    int64_t size = 0;  // sparse files: the logical size
};

struct Format {
    Format(std::string n = "pax_restricted", bool z = false, std::string o = "") : name(n), gzip(z), options(o) {}
    std::string name;
    bool gzip;
    std::string options;  // archive_write_set_options text
};

// Writes entries with libarchive's writer in the given format.
void WritePackage(const fs::path& out, const std::vector<Entry>& entries, const Format& format = Format())
{
    // Names are UTF-8; the writer needs a locale that can say so (as the
    // packaging tool does), whatever the test process started with.
    setlocale(LC_CTYPE, "C.UTF-8");
    archive* a = archive_write_new();
    if (format.name == "ustar")
        archive_write_set_format_ustar(a);
    else if (format.name == "gnutar")
        archive_write_set_format_gnutar(a);
    else
        archive_write_set_format_pax_restricted(a);
    if (format.gzip)
        archive_write_add_filter_gzip(a);
    if (!format.options.empty()) {
        ASSERT_EQ(ARCHIVE_OK, archive_write_set_options(a, format.options.c_str())) << archive_error_string(a);
    }
    fs::create_directories(out.parent_path());
    ASSERT_EQ(ARCHIVE_OK, archive_write_open_filename(a, out.c_str()));
    for (const Entry& e : entries) {
        archive_entry* entry = archive_entry_new();
        archive_entry_set_pathname_utf8(entry, e.path.c_str());
        archive_entry_set_mtime(entry, 1577836800, 0);
        switch (e.kind) {
        case 'd':
            archive_entry_set_filetype(entry, AE_IFDIR);
            archive_entry_set_perm(entry, 0755);
            break;
        case 'l':
            archive_entry_set_filetype(entry, AE_IFLNK);
            archive_entry_set_perm(entry, 0755);
            archive_entry_set_symlink_utf8(entry, e.data.c_str());
            break;
        case 'c':
            archive_entry_set_filetype(entry, AE_IFCHR);
            archive_entry_set_perm(entry, 0666);
            archive_entry_set_rdevmajor(entry, 1);
            archive_entry_set_rdevminor(entry, 3);
            break;
        case 's':
            archive_entry_set_filetype(entry, AE_IFREG);
            archive_entry_set_perm(entry, 0644);
            archive_entry_set_size(entry, e.size);
            // One data block at the very end; the rest is a hole.
            archive_entry_sparse_add_entry(entry, e.size - 4096, 4096);
            break;
        default:
            archive_entry_set_filetype(entry, AE_IFREG);
            archive_entry_set_perm(entry, e.path == kClientRel ? 0755 : 0644);
            archive_entry_set_size(entry, static_cast<la_int64_t>(e.data.size()));
            break;
        }
        ASSERT_EQ(ARCHIVE_OK, archive_write_header(a, entry)) << e.path << ": " << archive_error_string(a);
        if (e.kind == 'f' && !e.data.empty()) {
            ASSERT_EQ(static_cast<la_ssize_t>(e.data.size()), archive_write_data(a, e.data.data(), e.data.size()));
        }
        if (e.kind == 's') {
            // The writer takes the whole logical stream and keeps only the
            // data blocks.
            std::string zeros(1 << 20, '\0');
            for (int64_t left = e.size; left > 0;) {
                size_t n = static_cast<size_t>(std::min<int64_t>(left, static_cast<int64_t>(zeros.size())));
                if (left <= static_cast<int64_t>(n))
                    std::memset(&zeros[n - std::min<size_t>(n, 4096)], 'S', std::min<size_t>(n, 4096));
                ASSERT_EQ(static_cast<la_ssize_t>(n), archive_write_data(a, zeros.data(), n));
                left -= static_cast<int64_t>(n);
            }
        }
        archive_entry_free(entry);
    }
    ASSERT_EQ(ARCHIVE_OK, archive_write_close(a));
    archive_write_free(a);
}

// A tar header block of the ustar layout, filled by hand: libarchive's
// writers refuse to give a hard link a data size, and that is the hostile part.
std::string TarBlock(const std::string& name, char type, const std::string& link, size_t size)
{
    std::string h(512, '\0');
    auto put = [&](size_t off, const std::string& s) { h.replace(off, s.size(), s); };
    auto octal = [](size_t v, int width) {
        char buf[32];
        snprintf(buf, sizeof(buf), "%0*lo", width - 1, static_cast<unsigned long>(v));
        return std::string(buf);
    };
    put(0, name);
    put(100, octal(0644, 8));
    put(108, octal(0, 8));
    put(116, octal(0, 8));
    put(124, octal(size, 12));
    put(136, octal(1577836800, 12));
    put(148, "        ");
    h[156] = type;
    put(157, link);
    put(257, std::string("ustar\0" "00", 8));
    unsigned sum = 0;
    for (unsigned char c : h)
        sum += c;
    put(148, octal(sum, 7));
    return h;
}

// Where the header block naming path starts in an uncompressed tar file.
uintmax_t OffsetOf(const fs::path& tar, const std::string& path)
{
    std::string bytes = ReadFile(tar);
    for (size_t off = 0; off + 512 <= bytes.size(); off += 512)
        if (bytes.compare(off, path.size() + 1, path.c_str(), path.size() + 1) == 0)
            return off;
    ADD_FAILURE() << path << " not found in " << tar;
    return 0;
}

std::string Padded(const std::string& data)
{
    return data + std::string((512 - data.size() % 512) % 512, '\0');
}

// ------------------------------------------------------------ file snapshots

// Every object below root, by relative path: type, permission bits and
// contents (files) or target (links). Subtrees in skip are left out.
std::map<std::string, std::string> Snapshot(const fs::path& root, const std::set<std::string>& skip = {})
{
    std::map<std::string, std::string> out;
    std::error_code ec;
    if (!fs::exists(fs::symlink_status(root, ec)))
        return out;
    for (auto it = fs::recursive_directory_iterator(root, ec); !ec && it != fs::recursive_directory_iterator();
         it.increment(ec)) {
        std::string rel = fs::relative(it->path(), root).string();
        if (skip.count(rel)) {
            it.disable_recursion_pending();
            continue;
        }
        struct stat st;
        if (lstat(it->path().c_str(), &st) != 0)
            continue;
        std::ostringstream d;
        d << std::oct << st.st_mode << std::dec;
        if (S_ISREG(st.st_mode))
            d << " size=" << st.st_size << " " << std::hash<std::string>()(ReadFile(it->path()));
        else if (S_ISLNK(st.st_mode))
            d << " -> " << fs::read_symlink(it->path(), ec).string();
        out[rel] = d.str();
    }
    return out;
}

std::string Diff(const std::map<std::string, std::string>& before, const std::map<std::string, std::string>& after)
{
    std::ostringstream d;
    for (const auto& kv : before) {
        auto it = after.find(kv.first);
        if (it == after.end())
            d << "removed " << kv.first << "\n";
        else if (it->second != kv.second)
            d << "changed " << kv.first << "\n";
    }
    for (const auto& kv : after)
        if (!before.count(kv.first))
            d << "added " << kv.first << "\n";
    return d.str();
}

// ------------------------------------------------------------------ the table

enum class Outcome {
    NewInstalled,  // the package's files in place, no backup left
    OldIntact,     // the old installation byte-identical, no backup left
    NothingInstalled,
};

struct Case;

// Per-row preparation: package, bundle files, pid file, debug switch file...
struct Scene {
    fs::path base, home, bundle, canary, run, stage;
    std::vector<Entry> package;  // written as the bundle's package unless packageWritten
    Format format;
    bool packageWritten = false;
    bool oldInstall = true;
    std::string bundleInfo = Info("312");
    bool writeBundleInfo = true;
    std::string debugFile = "service_debug=7\nextractor_debug=7\nlauncher_debug=7\n";
    std::vector<std::string> env = {"LANG=C.UTF-8"};
    std::string before;  // shell run in the namespace before the launcher, as root
    std::string after;   // and after it
    bool smallVolume = false;
    std::string pidFile;  // written to ~/.Nimbulo/ui.pid when not empty
    bool writePidFile = false;
};

struct Expect {
    Expect(Outcome o = Outcome::NewInstalled, std::string build = "312", std::vector<std::string> has = {},
           std::vector<std::string> lacks = {}, bool toStderr = false, std::string diff = "",
           std::function<void(const Scene&)> extra = nullptr)
        : outcome(o), clientBuild(build), logHas(has), logLacks(lacks), logToStderr(toStderr), outsideDiff(diff),
          check(extra)
    {
    }
    Outcome outcome;
    std::string clientBuild;           // build of the started client; empty: none started
    std::vector<std::string> logHas;   // in launcher.log, or stderr when logToStderr
    std::vector<std::string> logLacks;
    bool logToStderr;
    std::string outsideDiff;  // the expected difference outside ~/.Nimbulo ("" = none)
    std::function<void(const Scene&)> check;
};

struct Case {
    Case(const char* n, std::function<void(Scene&)> p, Expect e, bool root = false)
        : name(n), prepare(p), expect(e), needsRoot(root)
    {
    }
    const char* name;
    std::function<void(Scene&)> prepare;
    Expect expect;
    bool needsRoot;
};

std::vector<Entry> GoodPackage(const std::string& build = "312", std::vector<Entry> extra = {})
{
    std::vector<Entry> entries = {
        {'d', "Contents", ""},
        {'d', "Contents/MacOS", ""},
        {'d', "Contents/Resources", ""},
        {'f', "Contents/Info.plist", kPlist},
        {'f', "Contents/Resources/readme.txt", "the new build\n"},
    };
    for (Entry& e : extra)
        entries.push_back(e);
    entries.push_back({'f', kClientRel, ReadFile(SAMPLE_CLIENT_PATH)});
    entries.push_back({'f', kInfoRel, Info(build)});
    return entries;
}

std::string Garbage(size_t n, unsigned seed)
{
    std::string s(n, '\0');
    for (size_t i = 0; i < n; ++i) {
        seed = seed * 1103515245u + 12345u;
        s[i] = static_cast<char>(seed >> 16);
    }
    return s;
}

fs::path OldApp(const Scene& s)
{
    return s.stage / "old/Nimbulo.app";
}

fs::path App(const Scene& s)
{
    return s.home / ".Nimbulo/Nimbulo.app";
}

// Rows are grouped as the inputs are: version files, the pid file, the debug
// switch file, the log and home folders, the package.
std::vector<Case> Cases()
{
    const std::string rollback = "Failed to extract package, rollback to old installation";
    const std::string failed = "[ERROR] launcher(";
    std::vector<Case> c;

    // ---- version files
    c.push_back({"InstalledInfoMissing", [](Scene& s) { fs::remove(OldApp(s) / kInfoRel); },
                 {Outcome::NewInstalled, "312", {"source does not exist", "source version = 0, target version = 312"}}});
    c.push_back({"BundleInfoMissing", [](Scene& s) { s.writeBundleInfo = false; },
                 {Outcome::OldIntact, "100", {"source version = 100, target version = 0"}}});
    c.push_back({"BundleInfoWithoutGroup", [](Scene& s) { s.bundleInfo = "build_version=312\nmajor_version=3\n"; },
                 {Outcome::OldIntact, "100", {"target_version = (, , , )", "target version = 0"}}});
    c.push_back({"BundleInfoBinaryGarbage", [](Scene& s) { s.bundleInfo = Garbage(4096, 7); },
                 {Outcome::OldIntact, "100", {"target version = 0"}}});
    c.push_back({"InstalledInfoBinaryGarbage", [](Scene& s) { WriteFile(OldApp(s) / kInfoRel, Garbage(4096, 9)); },
                 {Outcome::NewInstalled, "312", {"source version = 0, target version = 312"}}});
    c.push_back({"InstalledInfoTenMegabytes",
                 [](Scene& s) {
                     std::string big;
                     for (int i = 0; big.size() < 10u * 1024 * 1024; ++i)
                         big += "[Junk" + std::to_string(i) + "]\nkey" + std::to_string(i) + "=" +
                                std::string(200, 'v') + "\n";
                     WriteFile(OldApp(s) / kInfoRel, big + Info("100"));
                 },
                 {Outcome::NewInstalled, "312", {"source version = 100, target version = 312"}}});
    c.push_back({"BundleBuildNotNumeric", [](Scene& s) { s.bundleInfo = Info("abc"); },
                 {Outcome::OldIntact, "100", {"target version = 0"}}});
    c.push_back({"InstalledBuildNotNumeric", [](Scene& s) { WriteFile(OldApp(s) / kInfoRel, Info("abc")); },
                 {Outcome::NewInstalled, "312", {"source version = 0, target version = 312"}}});
    c.push_back({"InstalledBuildNegative", [](Scene& s) { WriteFile(OldApp(s) / kInfoRel, Info("-5")); },
                 {Outcome::NewInstalled, "312", {"source version = -5, target version = 312"}}});
    c.push_back({"BundleBuildNegative", [](Scene& s) { s.bundleInfo = Info("-312"); },
                 {Outcome::OldIntact, "100", {"source version = 100, target version = -312"}}});
    // Beyond 64 bits: the number stays at the int limit instead of wrapping.
    c.push_back({"BundleBuildOverflows64Bits", [](Scene& s) { s.bundleInfo = Info("99999999999999999999"); },
                 {Outcome::NewInstalled, "312", {"target version = 2147483647"}}});
    // 2^32 + 100 would read as 100 if it wrapped; it reads as the int limit,
    // so such an installation is never upgraded again (an installed build
    // beyond the int range pins it).
    c.push_back({"InstalledBuildBeyondIntRange", [](Scene& s) { WriteFile(OldApp(s) / kInfoRel, Info("4294967396")); },
                 {Outcome::OldIntact, "4294967396", {"source version = 2147483647, target version = 312"}}});

    // ---- the pid file; every run has a sleeper of the launcher's own user
    // ($SAME) that no variant may reach.
    const char* const noSignal = "holds no valid pid";
    struct PidValue {
        const char* name;
        const char* text;
        const char* log;
    };
    const PidValue values[] = {
        {"PidFileEmpty", "", noSignal},
        {"PidValueMissing", "other=5\n", noSignal},
        {"PidValueEmpty", "pid=\n", "Failed to read pid file"},
        {"PidValueEmptyQuoted", "pid=\"\"\n", noSignal},
        {"PidValueZero", "pid=0\n", noSignal},
        {"PidValueMinusOne", "pid=-1\n", noSignal},
        {"PidValueMinusOneQuoted", "pid='-1'\n", noSignal},
        {"PidValueNegativeSameUserSleeper", "pid=-$SAME\n", noSignal},
        {"PidValuePlusSign", "pid=+$SAME\n", noSignal},
        {"PidValueTrailingText", "pid=${SAME}abc\n", noSignal},
        {"PidValueHex", "pid=0x10\n", noSignal},
        {"PidValueWrapsToMinusOne", "pid=4294967295\n", noSignal},
        {"PidValueWrapsToZero", "pid=4294967296\n", noSignal},
        {"PidValueLongMax", "pid=9223372036854775807\n", noSignal},
        {"PidValueBeyond64Bits", "pid=99999999999999999999\n", noSignal},
        {"PidValueInnerBlank", "pid=1 2\n", "Failed to read pid file"},
        {"PidFileBinary", nullptr, "Failed to read pid file"},
    };
    for (const PidValue& v : values) {
        std::string text = v.text != nullptr ? v.text : Garbage(512, 3) + "\npid=1\n";
        std::string log = v.log;
        c.push_back({v.name,
                     [text](Scene& s) {
                         s.pidFile = text;
                         s.writePidFile = true;
                     },
                     {Outcome::NewInstalled, "312", {log}, {"kill:"}, false, "",
                      [](const Scene& s) {
                          EXPECT_EQ("alive\n", ReadFile(s.run / "same")) << "the same-user sleeper was signalled";
                      }}});
    }
    c.push_back({"PidOfAnotherUsersProcess",
                 [](Scene& s) {
                     s.pidFile = "pid=$OTHER\n";
                     s.writePidFile = true;
                 },
                 {Outcome::NewInstalled, "312", {"runs 'unknown (Permission denied)', not the client"}, {"kill:"}, false, "",
                  [](const Scene& s) {
                      EXPECT_EQ("alive\n", ReadFile(s.run / "other"));
                      EXPECT_EQ("alive\n", ReadFile(s.run / "same"));
                  }},
                 true});
    // A stale pid file whose number now belongs to an unrelated process of
    // the same user: that process is left alone.
    c.push_back({"StalePidOfUnrelatedSameUserProcess",
                 [](Scene& s) {
                     s.pidFile = "pid=$SAME\n";
                     s.writePidFile = true;
                 },
                 {Outcome::NewInstalled, "312", {"not the client"}, {"kill:"}, false, "",
                  [](const Scene& s) { EXPECT_EQ("alive\n", ReadFile(s.run / "same")); }}});

    // ---- the debug switch file: whatever it holds, the run goes on
    c.push_back({"DebugFileBinary", [](Scene& s) { s.debugFile = Garbage(2048, 5); },
                 {Outcome::NewInstalled, "312", {}, {"[INFO]", "[DEBUG]"}}});
    c.push_back({"DebugFileLongCommentLine",
                 [](Scene& s) { s.debugFile = "#" + std::string(100000, 'x') + "\nservice_debug=7\n"; },
                 {Outcome::NewInstalled, "312", {}, {"[INFO]", "[DEBUG]"}}});
    c.push_back({"DebugFileLongValueLine",
                 [](Scene& s) { s.debugFile = "service_debug=" + std::string(100000, '7') + "\n"; },
                 {Outcome::NewInstalled, "312", {}, {"[INFO]", "[DEBUG]"}}});
    c.push_back({"DebugThresholdBeyondInt", [](Scene& s) { s.debugFile = "service_debug=99999999999999\n"; },
                 {Outcome::NewInstalled, "312", {"[DEBUG] mac/mac-service("}, {"[DEBUG] extractor("}}});
    c.push_back({"DebugThresholdNegative",
                 [](Scene& s) {
                     s.debugFile = "service_debug=-7\nlauncher_debug=-2147483649\n";
                     s.package.clear();
                     s.packageWritten = true;  // no package: errors that the thresholds now hide
                 },
                 {Outcome::OldIntact, "100", {"Failed to calculate total file numbers"}, {"nimbulo-service(", failed}}});

    // ---- log and home folders
    c.push_back({"LogFolderIsAFile",
                 [](Scene& s) {
                     WriteFile(s.stage / "root/log", "not a folder\n");
                     s.packageWritten = true;
                 },
                 {Outcome::OldIntact, "100", {rollback, "Failed to calculate total file numbers"}, {}, true}});
    c.push_back({"LogFolderUnwritable",
                 [](Scene& s) {
                     fs::create_directories(s.stage / "root/log");
                     fs::permissions(s.stage / "root/log", fs::perms(0555));
                     s.packageWritten = true;
                 },
                 {Outcome::OldIntact, "100", {rollback}, {}, true},
                 true});
    c.push_back({"HomeUnwritable",
                 [](Scene& s) {
                     s.oldInstall = false;
                     fs::permissions(s.home, fs::perms(0555));
                 },
                 {Outcome::NothingInstalled, "", {"failed to create folder", "no old installation to rollback"}, {}, true},
                 true});

    // ---- the package
    c.push_back({"PackageMissing", [](Scene& s) { s.packageWritten = true; },
                 {Outcome::OldIntact, "100", {"Failed to calculate total file numbers, ret: -1", rollback, failed}}});
    c.push_back({"PackageEmpty",
                 [](Scene& s) {
                     WriteFile(s.bundle / "Contents/Resources/package/nimbulo.spk", "");
                     s.packageWritten = true;
                 },
                 {Outcome::OldIntact, "100", {"Failed to calculate total file numbers", rollback}}});
    c.push_back({"PackageGarbage",
                 [](Scene& s) {
                     WriteFile(s.bundle / "Contents/Resources/package/nimbulo.spk", Garbage(100000, 11));
                     s.packageWritten = true;
                 },
                 {Outcome::OldIntact, "100", {"Failed to calculate total file numbers", rollback}}});
    c.push_back({"PackageTruncatedInHeader",
                 [](Scene& s) {
                     fs::path spk = s.bundle / "Contents/Resources/package/nimbulo.spk";
                     WritePackage(spk, GoodPackage(), Format{"ustar"});
                     // Cut in the middle of the version file's header block.
                     fs::resize_file(spk, OffsetOf(spk, kInfoRel) + 300);
                     s.packageWritten = true;
                 },
                 {Outcome::OldIntact, "100", {"archive_read_next_header failed", rollback}}});
    c.push_back({"PackageTruncatedInData",
                 [](Scene& s) {
                     fs::path spk = s.bundle / "Contents/Resources/package/nimbulo.spk";
                     WritePackage(spk, GoodPackage(), Format{"ustar"});
                     fs::resize_file(spk, OffsetOf(spk, kClientRel) + 512 + 4096);  // inside the client's data
                     s.packageWritten = true;
                 },
                 {Outcome::OldIntact, "100", {"archive_read_extract2 failed", rollback}}});
    c.push_back({"PackageTruncatedCompressed",
                 [](Scene& s) {
                     fs::path spk = s.bundle / "Contents/Resources/package/nimbulo.spk";
                     WritePackage(spk, GoodPackage(), Format{"pax_restricted", true});
                     fs::resize_file(spk, fs::file_size(spk) * 6 / 10);
                     s.packageWritten = true;
                 },
                 {Outcome::OldIntact, "100", {rollback}}});
    c.push_back({"PackageDotDotPath",
                 [](Scene& s) {
                     s.package = GoodPackage("312", {{'f', "Contents/../../../../canary/dotdot.txt", "escaped\n"}});
                 },
                 {Outcome::OldIntact, "100", {"archive_read_extract2 failed", rollback}}});
    // An absolute name is appended to the destination folder, so it lands
    // inside the installation.
    c.push_back({"PackageAbsolutePath",
                 [](Scene& s) { s.package = GoodPackage("312", {{'f', (s.canary / "absolute.txt").string(), "x\n"}}); },
                 {Outcome::NewInstalled, "312", {}, {}, false, "",
                  [](const Scene& s) {
                      EXPECT_EQ("x\n", ReadFile(App(s).string() + "/" + (s.canary / "absolute.txt").string()));
                  }}});
    // Reach: a link to a folder outside, then a file written through it.
    c.push_back({"PackageSymlinkToOutsideFolderAbsolute",
                 [](Scene& s) {
                     s.package = GoodPackage("312", {{'l', "Contents/Resources/out", s.canary.string()},
                                                     {'f', "Contents/Resources/out/escaped.txt", "written outside\n"}});
                 },
                 {Outcome::NewInstalled, "312", {}, {}, false, "added canary/escaped.txt\n",
                  [](const Scene& s) { EXPECT_EQ("written outside\n", ReadFile(s.canary / "escaped.txt")); }}});
    c.push_back({"PackageSymlinkToOutsideFolderRelative",
                 [](Scene& s) {
                     s.package = GoodPackage("312", {{'l', "Contents/Resources/out", "../../../../../canary"},
                                                     {'f', "Contents/Resources/out/a.txt", "replaced\n"}});
                 },
                 {Outcome::NewInstalled, "312", {}, {}, false, "changed canary/a.txt\n",
                  [](const Scene& s) { EXPECT_EQ("replaced\n", ReadFile(s.canary / "a.txt")); }}});
    // Reach: a hard link to a file outside that carries data of its own
    // overwrites that file in place (bytes built by hand, see TarBlock).
    c.push_back({"PackageHardLinkToOutsideFileWithData",
                 [](Scene& s) {
                     fs::path spk = s.bundle / "Contents/Resources/package/nimbulo.spk";
                     fs::path good = s.stage / "good.tar";
                     WritePackage(good, GoodPackage(), Format{"ustar"});
                     std::string tail = ReadFile(good);
                     const std::string data = "overwritten through a hard link\n";
                     std::string pax = "20 comment=hardlink\n";
                     std::string bytes = TarBlock("PaxHeader/hl", 'x', "", pax.size()) + Padded(pax) +
                                         TarBlock("Contents/hl", '1', (s.canary / "a.txt").string(), data.size()) +
                                         Padded(data) + tail;
                     WriteFile(spk, bytes);
                     s.packageWritten = true;
                 },
                 {Outcome::NewInstalled, "312", {}, {}, false, "changed canary/a.txt\n",
                  [](const Scene& s) { EXPECT_EQ("overwritten through a hard link\n", ReadFile(s.canary / "a.txt")); }}});
    c.push_back({"PackageDeviceNode",
                 [](Scene& s) { s.package = GoodPackage("312", {{'c', "Contents/Resources/null", ""}}); },
                 {Outcome::OldIntact, "100", {"archive_read_extract2 failed", rollback}}});
    // 2 GiB logical size, 4 KiB of data, on a 64 MiB volume: the hole is
    // kept as a hole, so the installation fits.
    c.push_back({"PackageSparse2GiBOnSmallVolume",
                 [](Scene& s) {
                     s.smallVolume = true;
                     s.package = GoodPackage("312", {{'s', "Contents/Resources/sparse.bin", "", int64_t(2) << 30}});
                 },
                 {Outcome::NewInstalled, "312", {}, {}, false, "",
                  [](const Scene& s) {
                      EXPECT_EQ("2147483648\n", ReadFile(s.run / "sparse-size"));
                  }},
                 true});
    // Non-ASCII names with no locale at all: pax headers name the entry in
    // UTF-8, which libarchive cannot convert to the C locale's character set
    // and reports as a warning; the extraction counts that as a failure.
    const std::string accented = "Contents/Resources/R\xc3\xa9sum\xc3\xa9-\xe6\x97\xa5\xe6\x9c\xac.txt";
    c.push_back({"NonAsciiNamesPaxNoLocale",
                 [accented](Scene& s) {
                     s.package = GoodPackage("312", {{'f', accented, "accent\n"}});
                     s.env = {};
                 },
                 {Outcome::OldIntact, "100", {"Pathname can't be converted from UTF-8 to current locale", rollback}}});
    c.push_back({"NonAsciiNamesPaxLcAllC",
                 [accented](Scene& s) {
                     s.package = GoodPackage("312", {{'f', accented, "accent\n"}});
                     s.env = {"LC_ALL=C"};
                 },
                 {Outcome::OldIntact, "100", {"Pathname can't be converted from UTF-8 to current locale", rollback}}});
    c.push_back({"NonAsciiNamesPaxUtf8Locale",
                 [accented](Scene& s) { s.package = GoodPackage("312", {{'f', accented, "accent\n"}}); },
                 {Outcome::NewInstalled, "312"}});
    // The way out for the packaging tool: names stored as raw bytes
    // (hdrcharset=BINARY) need no conversion in any locale.
    c.push_back({"NonAsciiNamesPaxBinaryNoLocale",
                 [accented](Scene& s) {
                     s.package = GoodPackage("312", {{'f', accented, "accent\n"}});
                     s.format = Format{"pax_restricted", true, "hdrcharset=BINARY"};
                     s.env = {};
                 },
                 {Outcome::NewInstalled, "312", {}, {}, false, "",
                  [accented](const Scene& s) { EXPECT_EQ("accent\n", ReadFile(App(s) / accented)); }}});
    c.push_back({"NonAsciiNamesGnutarLcAllC",
                 [accented](Scene& s) {
                     s.package = GoodPackage("312", {{'f', accented, "accent\n"}});
                     s.format = Format{"gnutar", true};
                     s.env = {"LC_ALL=C"};
                 },
                 {Outcome::NewInstalled, "312"}});
    return c;
}

void PrintTo(const Case& c, std::ostream* os)
{
    *os << c.name;
}

class HostileInput : public ::testing::TestWithParam<Case> {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(fs::exists(fs::path(kBundle) / "Contents/MacOS/Nimbulo")) << "bundle not built: " << kBundle;
        char tmpl[] = "/tmp/nimbulo-hostile-XXXXXX";
        ASSERT_NE(nullptr, mkdtemp(tmpl));
        s.base = fs::canonical(tmpl);
        fs::permissions(s.base, fs::perms(0755));
        s.home = s.base / "home";
        s.bundle = s.base / "bundle/Nimbulo.app";
        s.canary = s.base / "canary";
        s.run = s.base / "run";
        s.stage = s.base / "stage";
        for (const fs::path& p : {s.home, s.canary, s.run, s.stage, s.base / "tmp"})
            fs::create_directories(p);
        WriteFile(s.canary / "a.txt", "canary a\n");
        WriteFile(s.canary / "sub/b.txt", "canary b\n");

        // The bundle: a copy of the built one (the launcher takes its paths
        // from its own location), plug-ins shared through a link.
        fs::create_directories(s.bundle / "Contents/MacOS");
        fs::create_directories(s.bundle / "Contents/Frameworks");
        fs::copy_file(fs::path(kBundle) / "Contents/MacOS/Nimbulo", s.bundle / "Contents/MacOS/Nimbulo");
        fs::create_symlink(fs::path(kBundle) / "Contents/Frameworks/plugins", s.bundle / "Contents/Frameworks/plugins");
        fs::copy(fs::path(kBundle) / "Contents/Resources", s.bundle / "Contents/Resources", fs::copy_options::recursive);
        fs::copy_file(fs::path(kBundle) / "Contents/Info.plist", s.bundle / "Contents/Info.plist");
        fs::remove(s.bundle / "Contents/Resources/package/nimbulo.spk");

        // The old installation, build 100, staged; copied into place (or onto
        // the small volume) by the run itself.
        WriteFile(OldApp(s) / "Contents/Info.plist", kPlist);
        fs::create_directories(OldApp(s) / "Contents/MacOS");
        fs::copy_file(SAMPLE_CLIENT_PATH, OldApp(s) / kClientRel);
        WriteFile(OldApp(s) / kInfoRel, Info("100"));
        WriteFile(OldApp(s) / "Contents/Resources/old-only.txt", "from build 100\n");
        fs::create_directories(s.stage / "root");
        s.package = GoodPackage();
    }

    void TearDown() override
    {
        if (HasFailure()) {
            std::cerr << "kept for inspection: " << s.base << "\n";
            return;
        }
        RunProgram({"chmod", "-R", "u+rwX", s.base.string()}, {"PATH=/usr/bin:/bin"});
        std::error_code ec;
        fs::remove_all(s.base, ec);
    }

    // Runs the launcher once as the row describes; returns its exit status.
    int Launch()
    {
        const bool root = IsRoot();
        if (s.writeBundleInfo)
            WriteFile(s.bundle / kInfoRel, s.bundleInfo);
        else
            fs::remove(s.bundle / kInfoRel);
        if (!s.debugFile.empty())
            WriteFile(s.bundle / "log/launcher.debug", s.debugFile);
        if (!s.packageWritten)
            WritePackage(s.bundle / "Contents/Resources/package/nimbulo.spk", s.package, s.format);
        if (s.oldInstall)
            fs::copy(s.stage / "old", s.stage / "root", fs::copy_options::recursive | fs::copy_options::copy_symlinks);
        if (s.writePidFile)
            WriteFile(s.stage / "ui.pid.in", s.pidFile);
        before = Snapshot(s.base, {"home/.Nimbulo", "run", "tmp", "stage"});

        const std::string runAs =
            root ? "setpriv --reuid=" + std::to_string(kRunUid) + " --regid=" + std::to_string(kRunUid) +
                       " --clear-groups "
                 : "";
        std::ostringstream sh;
        sh << "set -u\n"
           << "R=\"$HOME/.Nimbulo\"\n";
        if (s.smallVolume)
            sh << "mkdir -p \"$R\" && mount -t tmpfs -o size=64m,mode=0755 tmpfs \"$R\" || exit 90\n";
        if (!fs::is_empty(s.stage / "root"))
            sh << "mkdir -p \"$R\" && cp -a \"$STAGE/root/.\" \"$R/\"\n";
        if (root)
            sh << "chown -R " << kRunUid << ":" << kRunUid << " \"$HOME\" \"$BASE/canary\" \"$BASE/run\" \"$BASE/tmp\"\n";
        // Sleepers: one of the launcher's own user, one of another user.
        sh << runAs << "sleep 1000 & SAME=$!\n";
        if (root)
            sh << "setpriv --reuid=" << kOtherUid << " --regid=" << kOtherUid << " --clear-groups sleep 1000 & OTHER=$!\n";
        else
            sh << "OTHER=1\n";
        if (s.writePidFile) {
            // The value may name the sleepers: expand $SAME and $OTHER only.
            sh << "sed -e \"s/\\${SAME}/$SAME/g; s/\\$SAME/$SAME/g; s/\\$OTHER/$OTHER/g\" \"$STAGE/ui.pid.in\" > \"$R/ui.pid\"\n";
            if (root)
                sh << "chown " << kRunUid << " \"$R/ui.pid\"\n";
        }
        sh << s.before;
        sh << runAs << "\"$BUNDLE/Contents/MacOS/Nimbulo\" >\"$RUN/out\" 2>\"$RUN/err\"; echo $? >\"$RUN/rc\"\n";
        // A started client records itself; wait for it, or a little while
        // when none is expected.
        sh << "i=0; while ! grep -q '^start ' \"$RUN/record\" 2>/dev/null; do i=$((i+1)); [ $i -ge "
           << (expect().clientBuild.empty() ? 20 : 300) << " ] && break; sleep 0.05; done\n";
        sh << "for p in SAME OTHER; do eval v=\\$$p; if kill -0 $v 2>/dev/null"
              " && [ \"$(cut -d' ' -f3 /proc/$v/stat)\" != Z ]; then echo alive; else echo gone; fi"
              " > \"$RUN/$(echo $p | tr A-Z a-z)\"; done\n";
        sh << "[ -f \"$R/Nimbulo.app/Contents/Resources/sparse.bin\" ] && stat -c %s \"$R/Nimbulo.app/Contents/Resources/sparse.bin\" > \"$RUN/sparse-size\"\n";
        // What the small volume holds must be read before it goes away.
        if (s.smallVolume)
            sh << "mkdir -p \"$RUN/volume\" && cp -a \"$R/.\" \"$RUN/volume/\"\n";
        sh << s.after;
        sh << "exit 0\n";
        WriteFile(s.run / "script.sh", sh.str());
        WriteFile(s.run / "record", "");

        std::vector<std::string> env = {
            "PATH=/usr/sbin:/usr/bin:/sbin:/bin",
            "HOME=" + s.home.string(),
            "TMPDIR=" + (s.base / "tmp").string(),
            "QT_QPA_PLATFORM=offscreen",
            "NIMBULO_SAMPLE_RECORD=" + (s.run / "record").string(),
            "BASE=" + s.base.string(),
            "RUN=" + s.run.string(),
            "STAGE=" + s.stage.string(),
            "BUNDLE=" + s.bundle.string(),
        };
        for (const char* name : {"ASAN_OPTIONS", "UBSAN_OPTIONS", "LSAN_OPTIONS", "TSAN_OPTIONS"})
            if (const char* v = getenv(name))
                env.push_back(std::string(name) + "=" + v);
        for (const std::string& e : s.env)
            env.push_back(e);
        std::vector<std::string> args = {"unshare"};
        if (s.smallVolume)
            args.push_back("--mount");
        for (const std::string& a : {std::string("--pid"), std::string("--fork"), std::string("--mount-proc"),
                                     std::string("/bin/sh"), (s.run / "script.sh").string()})
            args.push_back(a);
        int rc = RunProgram(args, env);
        if (rc != 0)
            return -1000 - rc;
        std::string text = ReadFile(s.run / "rc");
        return text.empty() ? -1 : std::atoi(text.c_str());
    }

    const Expect& expect() const { return GetParam().expect; }

    fs::path InstalledRoot() const { return s.smallVolume ? s.run / "volume" : s.home / ".Nimbulo"; }

    Scene s;
    std::map<std::string, std::string> before;
};

TEST_P(HostileInput, Row)
{
    const Case& row = GetParam();
    if (row.needsRoot && !IsRoot())
        GTEST_SKIP() << "this row needs root: it runs the launcher as another user or mounts a volume";
    if (!CanUseNamespaces(row.name == std::string("PackageSparse2GiBOnSmallVolume")))
        GTEST_SKIP() << "unshare --pid --fork --mount-proc (and mount for the small volume) is not permitted here";
    row.prepare(s);

    ASSERT_EQ(0, Launch()) << "stderr:\n" << ReadFile(s.run / "err");

    const fs::path root = InstalledRoot();
    const fs::path app = root / "Nimbulo.app";
    const std::string log = expect().logToStderr ? ReadFile(s.run / "err") : ReadFile(root / "log/launcher.log");
    for (const std::string& want : expect().logHas)
        EXPECT_NE(std::string::npos, log.find(want)) << "missing: " << want << "\nlog:\n" << log;
    for (const std::string& unwanted : expect().logLacks)
        EXPECT_EQ(std::string::npos, log.find(unwanted)) << "unexpected: " << unwanted << "\nlog:\n" << log;

    EXPECT_EQ(expect().outsideDiff, Diff(before, Snapshot(s.base, {"home/.Nimbulo", "run", "tmp", "stage"})))
        << "outside ~/.Nimbulo";

    for (int i = 0; i < 10; ++i) {
        std::string name = i == 0 ? "Nimbulo.app_tmp" : "Nimbulo.app_tmp" + std::to_string(i);
        EXPECT_FALSE(fs::exists(fs::symlink_status(root / name))) << name << " left behind";
    }
    switch (expect().outcome) {
    case Outcome::NewInstalled:
        for (const Entry& e : s.package) {
            if (e.kind == 'f') {
                EXPECT_EQ(e.data, ReadFile(app.string() + "/" + e.path)) << e.path;
            }
        }
        EXPECT_EQ(Info("312"), ReadFile(app / kInfoRel));
        EXPECT_EQ(ReadFile(SAMPLE_CLIENT_PATH), ReadFile(app / kClientRel));
        EXPECT_FALSE(fs::exists(app / "Contents/Resources/old-only.txt"));
        break;
    case Outcome::OldIntact:
        EXPECT_EQ(Snapshot(OldApp(s)), Snapshot(app)) << Diff(Snapshot(OldApp(s)), Snapshot(app));
        break;
    case Outcome::NothingInstalled:
        EXPECT_FALSE(fs::exists(app));
        break;
    }

    std::string record = ReadFile(s.run / "record");
    if (expect().clientBuild.empty()) {
        EXPECT_EQ(std::string::npos, record.find("start ")) << record;
    } else {
        EXPECT_NE(std::string::npos, record.find("start ")) << "client not started\n" << ReadFile(s.run / "err");
        EXPECT_NE(std::string::npos, record.find("build=" + expect().clientBuild)) << record;
    }
    if (expect().check)
        expect().check(s);
}

INSTANTIATE_TEST_SUITE_P(Table, HostileInput, ::testing::ValuesIn(Cases()),
                         [](const ::testing::TestParamInfo<Case>& info) { return std::string(info.param.name); });

}  // namespace
