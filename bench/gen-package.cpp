// gen-package: writes a synthetic client application of a given profile and
// packs it with spk-pack, for the upgrade benchmark.
//
//   gen-package --profile small|typical|many-small [--seed N] [--build N]
//               [--client FILE] [--spk-pack FILE] [--formats zip,tar.gz,...]
//               OUTDIR
//
// Writes OUTDIR/app (the application folder: Contents/MacOS/nimbulo-pelora-ui,
// Contents/Resources/INFO, Contents/Info.plist and the profile's files) and,
// when --spk-pack is given, OUTDIR/<profile>.<format> for each format.
// The same seed, build number and client give the same bytes, on any machine:
// the generator draws from its own generator (no std:: distributions, whose
// output differs between standard libraries) and spk-pack fixes the rest.
#include <fcntl.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <vector>

namespace fs = std::filesystem;

extern char** environ;

namespace {

// splitmix64: small, fast and fully specified.
class Random {
public:
    explicit Random(uint64_t seed) : state(seed) { }
    uint64_t Next()
    {
        uint64_t z = (state += 0x9E3779B97F4A7C15ULL);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
        return z ^ (z >> 31);
    }
    // In [0, n); the slight modulo bias does not matter here.
    uint64_t Below(uint64_t n) { return n == 0 ? 0 : Next() % n; }
    // In [0, 1), from the top 53 bits.
    double Unit() { return static_cast<double>(Next() >> 11) / 9007199254740992.0; }

private:
    uint64_t state;
};

struct Profile {
    const char* name;
    int files;            // regular files besides the client, INFO and Info.plist
    int folders;          // folders to spread them over (frameworks' own not counted)
    int frameworks;       // each brings three symbolic links
    uint64_t totalBytes;  // 0: keep the drawn sizes as they are
    uint64_t minSize;
    uint64_t maxSize;
    bool logSizes;  // log-uniform sizes (few big files) instead of uniform
};

const Profile kProfiles[] = {
    {"small", 100, 12, 1, 5ULL << 20, 64, 1ULL << 20, true},
    {"typical", 3000, 240, 3, 150ULL << 20, 64, 16ULL << 20, true},
    {"many-small", 30000, 600, 1, 0, 0, 4096, false},
};

// Text-like bytes that gzip shrinks about three- to fourfold, without a
// repeating period that a large-window compressor could exploit.
const char* const kWords[32] = {
    "sync ",   "folder ", "client ", "upload ", "share ",    "device ", "version ", "status ",
    "remote ", "local ",  "change ", "queue ",  "conflict ", "the ",    "a ",       "of ",
    "file ",   "path ",   "server ", "task ",   "event ",    "and ",    "to ",      "in ",
    "done\n",  "ok\n",    "error\n", "retry ",  "delta ",    "block ",  "hash ",    "size "};

void FillCompressible(Random& rng, std::string& out, size_t size)
{
    out.clear();
    out.reserve(size + 16);
    while (out.size() < size) {
        uint64_t r = rng.Next();
        for (int i = 0; i < 12 && out.size() < size; ++i) {
            out += kWords[r & 31];
            r >>= 5;
        }
    }
    out.resize(size);
}

void FillIncompressible(Random& rng, std::string& out, size_t size)
{
    out.resize(size);
    size_t i = 0;
    for (; i + 8 <= size; i += 8) {
        uint64_t r = rng.Next();
        memcpy(&out[i], &r, 8);
    }
    if (i < size) {
        uint64_t r = rng.Next();
        memcpy(&out[i], &r, size - i);
    }
}

int WriteFile(const fs::path& path, const std::string& data, mode_t mode)
{
    int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, mode);
    if (fd < 0) {
        fprintf(stderr, "gen-package: cannot create '%s': %s\n", path.c_str(), strerror(errno));
        return -1;
    }
    size_t done = 0;
    while (done < data.size()) {
        ssize_t n = write(fd, data.data() + done, data.size() - done);
        if (n < 0) {
            if (errno == EINTR) {
                continue;
            }
            fprintf(stderr, "gen-package: cannot write '%s': %s\n", path.c_str(), strerror(errno));
            close(fd);
            return -1;
        }
        done += static_cast<size_t>(n);
    }
    // The mode given to open is filtered by the umask; the tree must not be.
    fchmod(fd, mode);
    return close(fd) == 0 ? 0 : -1;
}

int MakeFolder(const fs::path& path)
{
    std::error_code ec;
    fs::create_directories(path, ec);
    if (ec) {
        fprintf(stderr, "gen-package: cannot create '%s': %s\n", path.c_str(), ec.message().c_str());
        return -1;
    }
    return 0;
}

int MakeLink(const std::string& target, const fs::path& link)
{
    if (symlink(target.c_str(), link.c_str()) != 0) {
        fprintf(stderr, "gen-package: cannot link '%s': %s\n", link.c_str(), strerror(errno));
        return -1;
    }
    return 0;
}

int ReadWholeFile(const std::string& path, std::string& data)
{
    FILE* f = fopen(path.c_str(), "rb");
    if (f == nullptr) {
        fprintf(stderr, "gen-package: cannot open '%s': %s\n", path.c_str(), strerror(errno));
        return -1;
    }
    char buf[65536];
    size_t n;
    data.clear();
    while ((n = fread(buf, 1, sizeof buf, f)) > 0) {
        data.append(buf, n);
    }
    bool bad = ferror(f) != 0;
    fclose(f);
    return bad ? -1 : 0;
}

std::string InfoText(int build)
{
    return "[Version]\nmajor_version=3\nminor_version=1\nbuild_version=" + std::to_string(build) +
           "\nicon_overlay_version=1\n";
}

const char kInfoPlist[] = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                          "<plist version=\"1.0\">\n<dict>\n"
                          "  <key>CFBundleExecutable</key>\n  <string>nimbulo-pelora-ui</string>\n"
                          "  <key>CFBundleIdentifier</key>\n  <string>com.nimbulo.pelora-ui</string>\n"
                          "</dict>\n</plist>\n";

// Without a real client the package still needs an executable at the
// client's path; this one waits to be stopped, as the client would.
const char kStandInClient[] = "#!/bin/sh\nexec sleep 600\n";

struct FileSpec {
    fs::path path;
    uint64_t size;
    bool random;
    bool executable;
};

int Generate(const Profile& p, uint64_t seed, int build, const std::string& client, const fs::path& app)
{
    Random rng(seed * 0x100000001B3ULL + static_cast<uint64_t>(p.files));
    const fs::path contents = app / "Contents";

    // Folders: a tree under a few top folders, each new folder placed below
    // an earlier one, so depth varies the way a real bundle's does.
    const char* const tops[] = {"Resources", "PlugIns", "SharedSupport", "Resources/en.lproj", "Library"};
    std::vector<fs::path> folders;
    for (const char* top : tops) {
        folders.push_back(contents / top);
    }
    while (static_cast<int>(folders.size()) < p.folders) {
        const fs::path& parent = folders[rng.Below(folders.size())];
        char name[32];
        snprintf(name, sizeof name, "d%03zu", folders.size());
        folders.push_back(parent / name);
    }
    for (const fs::path& f : folders) {
        if (MakeFolder(f) != 0) {
            return -1;
        }
    }

    // Frameworks in the usual shape: Versions/A holds the files, and three
    // relative links (Current, the binary, Resources) point into it.
    std::vector<fs::path> frameworkFolders;
    for (int i = 0; i < p.frameworks; ++i) {
        std::string name = "Lib" + std::to_string(i);
        fs::path fw = contents / "Frameworks" / (name + ".framework");
        fs::path versionA = fw / "Versions" / "A";
        if (MakeFolder(versionA / "Resources") != 0 || MakeLink("A", fw / "Versions" / "Current") != 0 ||
            MakeLink("Versions/Current/" + name, fw / name) != 0 ||
            MakeLink("Versions/Current/Resources", fw / "Resources") != 0) {
            return -1;
        }
        frameworkFolders.push_back(versionA / "Resources");
        frameworkFolders.push_back(versionA);
    }

    std::vector<FileSpec> specs;
    specs.reserve(static_cast<size_t>(p.files));
    for (int i = 0; i < p.frameworks; ++i) {
        fs::path binary = contents / "Frameworks" / ("Lib" + std::to_string(i) + ".framework") / "Versions" /
                          "A" / ("Lib" + std::to_string(i));
        specs.push_back({binary, 0, false, true});
    }
    while (static_cast<int>(specs.size()) < p.files) {
        bool inFramework = !frameworkFolders.empty() && rng.Below(8) == 0;
        const fs::path& folder = inFramework ? frameworkFolders[rng.Below(frameworkFolders.size())]
                                             : folders[rng.Below(folders.size())];
        char name[32];
        snprintf(name, sizeof name, "f%05zu.dat", specs.size());
        specs.push_back({folder / name, 0, false, false});
    }

    // Sizes, then scaled so the profile's total comes out right.
    double sum = 0;
    for (FileSpec& s : specs) {
        double size;
        if (p.logSizes) {
            double lo = std::log(static_cast<double>(p.minSize));
            double hi = std::log(static_cast<double>(p.maxSize));
            size = std::exp(lo + (hi - lo) * rng.Unit());
        } else {
            size = static_cast<double>(p.minSize + rng.Below(p.maxSize - p.minSize + 1));
        }
        s.size = static_cast<uint64_t>(size);
        sum += size;
    }
    if (p.totalBytes != 0 && sum > 0) {
        double scale = static_cast<double>(p.totalBytes) / sum;
        for (FileSpec& s : specs) {
            s.size = static_cast<uint64_t>(static_cast<double>(s.size) * scale);
        }
    }

    // Half of the bytes incompressible: each file goes to whichever kind
    // holds fewer bytes so far, so the split is even whatever the sizes.
    uint64_t randomBytes = 0;
    uint64_t textBytes = 0;
    for (FileSpec& s : specs) {
        s.random = randomBytes < textBytes || (randomBytes == textBytes && rng.Below(2) == 0);
        (s.random ? randomBytes : textBytes) += s.size;
    }

    std::string data;
    for (const FileSpec& s : specs) {
        if (s.random) {
            FillIncompressible(rng, data, s.size);
        } else {
            FillCompressible(rng, data, s.size);
        }
        if (WriteFile(s.path, data, s.executable ? 0755 : 0644) != 0) {
            return -1;
        }
    }

    std::string clientBytes = kStandInClient;
    if (!client.empty() && ReadWholeFile(client, clientBytes) != 0) {
        return -1;
    }
    if (MakeFolder(contents / "MacOS") != 0 ||
        WriteFile(contents / "MacOS" / "nimbulo-pelora-ui", clientBytes, 0755) != 0 ||
        WriteFile(contents / "Resources" / "INFO", InfoText(build), 0644) != 0 ||
        WriteFile(contents / "Info.plist", kInfoPlist, 0644) != 0) {
        return -1;
    }
    printf("gen-package: %s: %zu files, %llu bytes (%llu incompressible), %d symbolic links\n", p.name,
           specs.size() + 3, static_cast<unsigned long long>(randomBytes + textBytes + clientBytes.size()),
           static_cast<unsigned long long>(randomBytes), 3 * p.frameworks);
    return 0;
}

int RunPacker(const std::string& packer, const std::string& format, const fs::path& app, const fs::path& out)
{
    std::vector<std::string> args = {packer, "--format", format, app.string(), out.string()};
    std::vector<char*> argv;
    for (std::string& a : args) {
        argv.push_back(&a[0]);
    }
    argv.push_back(nullptr);
    pid_t pid = 0;
    int err = posix_spawn(&pid, packer.c_str(), nullptr, nullptr, argv.data(), environ);
    if (err != 0) {
        fprintf(stderr, "gen-package: cannot start '%s': %s\n", packer.c_str(), strerror(err));
        return -1;
    }
    int status = 0;
    while (waitpid(pid, &status, 0) < 0) {
        if (errno != EINTR) {
            return -1;
        }
    }
    if (!WIFEXITED(status) || WEXITSTATUS(status) != 0) {
        fprintf(stderr, "gen-package: spk-pack failed for %s\n", out.c_str());
        return -1;
    }
    return 0;
}

std::vector<std::string> SplitList(const std::string& text)
{
    std::vector<std::string> items;
    size_t start = 0;
    while (start <= text.size()) {
        size_t end = text.find(',', start);
        if (end == std::string::npos) {
            end = text.size();
        }
        if (end > start) {
            items.push_back(text.substr(start, end - start));
        }
        start = end + 1;
    }
    return items;
}

int Usage()
{
    fprintf(
        stderr,
        "usage: gen-package --profile small|typical|many-small [--seed N] [--build N]\n"
        "                   [--client FILE] [--spk-pack FILE] [--formats zip,tar.gz,tar.xz,tar] OUTDIR\n");
    return 2;
}

}  // namespace

int main(int argc, char** argv)
{
    std::string profileName;
    std::string client;
    std::string packer;
    std::string formats = "zip,tar.gz,tar.xz,tar";
    uint64_t seed = 1;
    int build = 1000;
    std::string outdir;
    for (int i = 1; i < argc; ++i) {
        std::string arg = argv[i];
        bool hasValue = i + 1 < argc;
        if (arg == "--profile" && hasValue) {
            profileName = argv[++i];
        } else if (arg == "--seed" && hasValue) {
            seed = strtoull(argv[++i], nullptr, 10);
        } else if (arg == "--build" && hasValue) {
            build = atoi(argv[++i]);
        } else if (arg == "--client" && hasValue) {
            client = argv[++i];
        } else if (arg == "--spk-pack" && hasValue) {
            packer = argv[++i];
        } else if (arg == "--formats" && hasValue) {
            formats = argv[++i];
        } else if (!arg.empty() && arg[0] != '-' && outdir.empty()) {
            outdir = arg;
        } else {
            return Usage();
        }
    }
    const Profile* profile = nullptr;
    for (const Profile& p : kProfiles) {
        if (profileName == p.name) {
            profile = &p;
        }
    }
    if (profile == nullptr || outdir.empty()) {
        return Usage();
    }

    fs::path app = fs::path(outdir) / "app";
    std::error_code ec;
    fs::remove_all(app, ec);
    if (ec) {
        fprintf(stderr, "gen-package: cannot remove '%s': %s\n", app.c_str(), ec.message().c_str());
        return 1;
    }
    if (Generate(*profile, seed, build, client, app) != 0) {
        return 1;
    }
    if (packer.empty()) {
        return 0;
    }
    for (const std::string& format : SplitList(formats)) {
        fs::path out = fs::path(outdir) / (std::string(profile->name) + "." + format);
        if (RunPacker(packer, format, app, out) != 0) {
            return 1;
        }
    }
    return 0;
}
