// bench-runner: the upgrade and start-up benchmark. scripts/bench builds
// everything and calls it with the paths; see bench/README.md.
//
// Each round runs, interleaved and in a rotating order:
//   - per profile and format: the launcher's upgrade (a fresh HOME, a bundle
//     copy carrying the profile's package), extract-ref and `bsdtar -xf` on
//     the same archive;
//   - the launcher's start when nothing needs installing, and qt-min.
// Every measured program runs as the first process of its own PID namespace
// (unshare --pid --fork --mount-proc) under a small timer (this program in
// --exec-timed mode): the client that the launcher starts dies with the
// namespace when the timer exits, and nothing outside can be signalled.
// Wall time and peak RSS come from the timer's wait4 on the measured program.
// Setting up and removing destinations, and sync, happen outside the timing.
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace fs = std::filesystem;

extern char** environ;

namespace {

// The build number written into the generated packages and the bundle
// copies: equal, so that after an upgrade the installation is current.
const int kBuild = 1000;
const uint64_t kSeed = 20240601;

const double kUpgradeGoal = 1.10;
const double kStartGoal = 1.30;
const double kRssGoalMiB = 48.0;
const double kRssManySmallSlackMiB = 4.0;

struct Options {
    bool quick = false;
    int rounds = 5;
    std::vector<std::string> profiles = {"small", "typical", "many-small"};
    std::vector<std::string> formats = {"zip", "tar.gz", "tar.xz", "tar"};
    fs::path work;
    fs::path destRoot;  // where the destinations and homes go; the work folder by default
    fs::path bundle;
    fs::path candidate;  // another build of the bundle (a proposed fix), measured alongside
    std::string spkPack;
    std::string client;
    std::string genPackage;
    std::string extractRef;
    std::string qtMin;
    std::string bsdtar = "/usr/bin/bsdtar";
    std::string loggerBench;
    std::string unshare = "/usr/bin/unshare";
};

struct Sample {
    double ms = 0;
    double cpuMs = 0;
    double rssMiB = 0;
};

// Raised when the runner itself cannot go on: a missing tool, a program
// that did not do its job. Missed goals are not failures of the runner.
bool gBroken = false;

void Broken(const char* fmt, const std::string& detail)
{
    fprintf(stderr, "bench: ");
    fprintf(stderr, fmt, detail.c_str());
    fprintf(stderr, "\n");
    gBroken = true;
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

double Median(std::vector<double> v)
{
    if (v.empty()) {
        return 0;
    }
    std::sort(v.begin(), v.end());
    size_t n = v.size();
    return n % 2 == 1 ? v[n / 2] : (v[n / 2 - 1] + v[n / 2]) / 2.0;
}

double Max(const std::vector<double>& v)
{
    return v.empty() ? 0 : *std::max_element(v.begin(), v.end());
}

double MonotonicMs()
{
    timespec ts;
    clock_gettime(CLOCK_MONOTONIC, &ts);
    return static_cast<double>(ts.tv_sec) * 1e3 + static_cast<double>(ts.tv_nsec) / 1e6;
}

double TimevalMs(const timeval& tv)
{
    return static_cast<double>(tv.tv_sec) * 1e3 + static_cast<double>(tv.tv_usec) / 1e3;
}

// --exec-timed RESULT -- PROGRAM ARGS...: runs PROGRAM, writes
// "<wall ms> <cpu ms> <peak RSS KiB> <exit status>" to RESULT.
int ExecTimed(int argc, char** argv)
{
    if (argc < 5 || strcmp(argv[3], "--") != 0) {
        fprintf(stderr, "bench-runner: bad --exec-timed call\n");
        return 2;
    }
    const char* result = argv[2];
    double start = MonotonicMs();
    pid_t pid = fork();
    if (pid < 0) {
        perror("bench-runner: fork");
        return 2;
    }
    if (pid == 0) {
        execv(argv[4], argv + 4);
        fprintf(stderr, "bench-runner: cannot start '%s': %s\n", argv[4], strerror(errno));
        _exit(127);
    }
    int status = 0;
    rusage ru;
    memset(&ru, 0, sizeof ru);
    while (wait4(pid, &status, 0, &ru) < 0) {
        if (errno != EINTR) {
            perror("bench-runner: wait4");
            return 2;
        }
    }
    double wall = MonotonicMs() - start;
    FILE* f = fopen(result, "w");
    if (f == nullptr) {
        return 2;
    }
    int code = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
    fprintf(f, "%.3f %.3f %ld %d\n", wall, TimevalMs(ru.ru_utime) + TimevalMs(ru.ru_stime), ru.ru_maxrss, code);
    fclose(f);
    // Returning ends this PID namespace, and with it whatever the measured
    // program left running (the client the launcher started).
    return 0;
}

std::string SelfPath()
{
    char buf[4096];
    ssize_t n = readlink("/proc/self/exe", buf, sizeof buf - 1);
    if (n <= 0) {
        return "";
    }
    buf[n] = '\0';
    // A rebuild while a run goes on replaces the file; its new version
    // serves as well for --exec-timed.
    std::string path = buf;
    const std::string deleted = " (deleted)";
    if (path.size() > deleted.size() && path.compare(path.size() - deleted.size(), deleted.size(), deleted) == 0) {
        path.erase(path.size() - deleted.size());
    }
    return path;
}

struct Env {
    std::vector<std::string> vars;
    void Set(const std::string& name, const std::string& value)
    {
        std::string prefix = name + "=";
        vars.erase(std::remove_if(vars.begin(), vars.end(),
                                  [&](const std::string& v) { return v.compare(0, prefix.size(), prefix) == 0; }),
                   vars.end());
        vars.push_back(prefix + value);
    }
    void Unset(const std::string& name)
    {
        std::string prefix = name + "=";
        vars.erase(std::remove_if(vars.begin(), vars.end(),
                                  [&](const std::string& v) { return v.compare(0, prefix.size(), prefix) == 0; }),
                   vars.end());
    }
};

Env BaseEnv(const Options& o)
{
    Env env;
    for (char** e = environ; *e != nullptr; ++e) {
        env.vars.push_back(*e);
    }
    env.Set("QT_QPA_PLATFORM", "offscreen");
    env.Set("XDG_RUNTIME_DIR", (o.work / "xdg").string());
    env.Unset("NIMBULO_SAMPLE_STOP_DELAY_MS");
    env.Unset("NIMBULO_SAMPLE_RECORD");
    env.Unset("QT_PLUGIN_PATH");
    return env;
}

// Runs argv under the timer in a PID namespace of its own; output goes to
// log. Returns false when the program could not be measured or failed.
bool RunTimed(const Options& o, const std::vector<std::string>& argv, const Env& env, const fs::path& log,
              Sample& sample)
{
    static const std::string self = SelfPath();
    const fs::path result = o.work / "result.txt";
    unlink(result.c_str());
    std::vector<std::string> full = {o.unshare, "--pid", "--fork", "--mount-proc", self,
                                     "--exec-timed", result.string(), "--"};
    full.insert(full.end(), argv.begin(), argv.end());

    pid_t pid = fork();
    if (pid < 0) {
        Broken("fork failed: %s", strerror(errno));
        return false;
    }
    if (pid == 0) {
        int fd = open(log.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0644);
        if (fd >= 0) {
            dup2(fd, 1);
            dup2(fd, 2);
        }
        int null = open("/dev/null", O_RDONLY | O_CLOEXEC);
        if (null >= 0) {
            dup2(null, 0);
        }
        std::vector<char*> args;
        for (const std::string& a : full) {
            args.push_back(const_cast<char*>(a.c_str()));
        }
        args.push_back(nullptr);
        std::vector<char*> envp;
        for (const std::string& v : env.vars) {
            envp.push_back(const_cast<char*>(v.c_str()));
        }
        envp.push_back(nullptr);
        execve(args[0], args.data(), envp.data());
        _exit(127);
    }
    int status = 0;
    while (waitpid(pid, &status, 0) < 0) {
        if (errno != EINTR) {
            break;
        }
    }
    FILE* f = fopen(result.c_str(), "r");
    if (f == nullptr) {
        Broken("no timing from '%s' (is unshare usable here? see the log)", log.string());
        return false;
    }
    long rssKiB = 0;
    int code = -1;
    int n = fscanf(f, "%lf %lf %ld %d", &sample.ms, &sample.cpuMs, &rssKiB, &code);
    fclose(f);
    sample.rssMiB = static_cast<double>(rssKiB) / 1024.0;
    if (n != 4 || code != 0) {
        Broken("'%s' failed; see its log", argv[0] + " (" + log.string() + ")");
        return false;
    }
    return true;
}

bool RunPlain(const std::vector<std::string>& argv)
{
    pid_t pid = fork();
    if (pid == 0) {
        std::vector<char*> args;
        for (const std::string& a : argv) {
            args.push_back(const_cast<char*>(a.c_str()));
        }
        args.push_back(nullptr);
        execv(args[0], args.data());
        fprintf(stderr, "bench: cannot start '%s': %s\n", args[0], strerror(errno));
        _exit(127);
    }
    int status = 0;
    if (pid < 0 || waitpid(pid, &status, 0) < 0) {
        return false;
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

void RemoveTree(const fs::path& p)
{
    std::error_code ec;
    fs::remove_all(p, ec);
    if (ec) {
        Broken("cannot remove %s", p.string() + ": " + ec.message());
    }
}

// Lets the writes of the previous run reach the disk before the next one
// is timed, so no run pays for another's write-back.
void Settle()
{
    sync();
}

// Entries below root, the root itself not counted, links not followed.
long CountEntries(const fs::path& root)
{
    std::error_code ec;
    long n = 0;
    fs::recursive_directory_iterator it(root, fs::directory_options::none, ec);
    if (ec) {
        return -1;
    }
    for (fs::recursive_directory_iterator end; it != end; it.increment(ec)) {
        if (ec) {
            return -1;
        }
        ++n;
    }
    return n;
}

ino_t Inode(const fs::path& p)
{
    struct stat st;
    return stat(p.c_str(), &st) == 0 ? st.st_ino : 0;
}

double FileMiB(const fs::path& p)
{
    std::error_code ec;
    uintmax_t size = fs::file_size(p, ec);
    return ec ? 0 : static_cast<double>(size) / (1024.0 * 1024.0);
}

bool WriteText(const fs::path& p, const std::string& text)
{
    FILE* f = fopen(p.c_str(), "w");
    if (f == nullptr) {
        return false;
    }
    bool ok = fwrite(text.data(), 1, text.size(), f) == text.size();
    return fclose(f) == 0 && ok;
}

std::string ReadText(const fs::path& p)
{
    std::string text;
    FILE* f = fopen(p.c_str(), "r");
    if (f == nullptr) {
        return text;
    }
    char buf[4096];
    size_t n;
    while ((n = fread(buf, 1, sizeof buf, f)) > 0) {
        text.append(buf, n);
    }
    fclose(f);
    return text;
}

std::string InfoText()
{
    return "[Version]\nmajor_version=3\nminor_version=1\nbuild_version=" + std::to_string(kBuild) +
           "\nicon_overlay_version=1\n";
}

// The package of a profile is made again only when what it is made from
// changed: the generator is deterministic, so the stamp says it all.
bool PreparePackages(const Options& o, const std::string& profile)
{
    fs::path dir = o.work / "packages" / profile;
    std::error_code ec;
    fs::create_directories(dir, ec);
    struct stat cl, gen, pack;
    if (stat(o.client.c_str(), &cl) != 0 || stat(o.genPackage.c_str(), &gen) != 0 ||
        stat(o.spkPack.c_str(), &pack) != 0) {
        Broken("missing tool: %s", o.client + ", " + o.genPackage + " or " + o.spkPack);
        return false;
    }
    std::string formats;
    for (const std::string& f : o.formats) {
        formats += (formats.empty() ? "" : ",") + f;
    }
    std::string stamp = std::to_string(kSeed) + " " + std::to_string(kBuild) + " " + std::to_string(cl.st_size) +
                        " " + std::to_string(cl.st_mtime) + " " + std::to_string(gen.st_mtime) + " " +
                        std::to_string(pack.st_mtime) + " " + formats + "\n";
    bool present = true;
    for (const std::string& f : o.formats) {
        present = present && fs::exists(dir / (profile + "." + f));
    }
    if (present && ReadText(dir / "stamp") == stamp) {
        return true;
    }
    printf("bench: generating the %s packages (once; kept in %s)\n", profile.c_str(), dir.c_str());
    fflush(stdout);
    unlink((dir / "stamp").c_str());
    if (!RunPlain({o.genPackage, "--profile", profile, "--seed", std::to_string(kSeed), "--build",
                   std::to_string(kBuild), "--client", o.client, "--spk-pack", o.spkPack, "--formats", formats,
                   dir.string()})) {
        Broken("gen-package failed for %s", profile);
        return false;
    }
    WriteText(dir / "stamp", stamp);
    return true;
}

// A copy of the built bundle carrying the profile's package; the package is
// hard-linked (copied where that fails) to spare the disk.
bool PrepareBundle(const fs::path& original, const fs::path& archive, const fs::path& copy)
{
    RemoveTree(copy);
    std::error_code ec;
    fs::create_directories(copy.parent_path(), ec);
    fs::copy(original, copy, fs::copy_options::recursive | fs::copy_options::copy_symlinks, ec);
    if (ec) {
        Broken("cannot copy the bundle: %s", ec.message());
        return false;
    }
    // A debug switch file left by a demo would make the launcher log more.
    fs::remove_all(copy / "log", ec);
    fs::path package = copy / "Contents/Resources/package/nimbulo.spk";
    fs::remove(package, ec);
    fs::create_hard_link(archive, package, ec);
    if (ec) {
        fs::copy_file(archive, package, ec);
    }
    if (ec || !WriteText(copy / "Contents/Resources/INFO", InfoText())) {
        Broken("cannot set up the bundle copy %s", copy.string());
        return false;
    }
    return true;
}

struct Cell {
    std::vector<Sample> launcher, ref, bsdtar, candidate;
};

std::vector<double> Pick(const std::vector<Sample>& v, double Sample::*field)
{
    std::vector<double> out;
    for (const Sample& s : v) {
        out.push_back(s.*field);
    }
    return out;
}

std::string LoadAverage()
{
    std::string text = ReadText("/proc/loadavg");
    size_t cut = 0;
    for (int i = 0; i < 3 && cut != std::string::npos; ++i) {
        cut = text.find(' ', cut + 1);
    }
    return text.substr(0, cut);
}

std::string CpuModel()
{
    std::string text = ReadText("/proc/cpuinfo");
    size_t pos = text.find("model name");
    if (pos == std::string::npos) {
        return "unknown";
    }
    pos = text.find(':', pos);
    size_t end = text.find('\n', pos);
    return text.substr(pos + 2, end - pos - 2);
}

std::string MemTotal()
{
    std::string text = ReadText("/proc/meminfo");
    long kib = 0;
    sscanf(text.c_str(), "MemTotal: %ld kB", &kib);
    char buf[32];
    snprintf(buf, sizeof buf, "%.1f GiB", static_cast<double>(kib) / (1024.0 * 1024.0));
    return buf;
}

// Runs logger_bench (the logger's own benchmark) and picks its two figures.
void LoggerFigures(const Options& o, double& ratio, double& suppressedNs, std::string& raw)
{
    ratio = -1;
    suppressedNs = -1;
    if (o.loggerBench.empty() || access(o.loggerBench.c_str(), X_OK) != 0) {
        return;
    }
    std::string cmd = o.loggerBench + (o.quick ? " --quick" : "") + " 2>&1";
    FILE* p = popen(cmd.c_str(), "r");
    if (p == nullptr) {
        return;
    }
    char line[512];
    while (fgets(line, sizeof line, p) != nullptr) {
        raw += line;
        double v;
        if (sscanf(line, " ratio %lf", &v) == 1) {
            ratio = v;
        }
        if (strstr(line, "ns/call") != nullptr && sscanf(line, " Logger::LogMsg %lf", &v) == 1) {
            suppressedNs = v;
        }
    }
    pclose(p);
}

const char* Verdict(bool met)
{
    return met ? "met" : "**missed**";
}

int Usage()
{
    fprintf(stderr,
            "usage: bench-runner [--quick] [--rounds N] [--profiles a,b] [--formats a,b] --work DIR --bundle APP\n"
            "                    --spk-pack F --client F --gen-package F --extract-ref F --qt-min F\n"
            "                    [--bsdtar F] [--logger-bench F] [--candidate APP] [--dest-root DIR]\n");
    return 2;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc > 1 && strcmp(argv[1], "--exec-timed") == 0) {
        return ExecTimed(argc, argv);
    }
    Options o;
    bool roundsGiven = false;
    bool profilesGiven = false;
    for (int i = 1; i < argc; ++i) {
        std::string a = argv[i];
        bool v = i + 1 < argc;
        if (a == "--quick") {
            o.quick = true;
        } else if (a == "--rounds" && v) {
            o.rounds = std::max(1, atoi(argv[++i]));
            roundsGiven = true;
        } else if (a == "--profiles" && v) {
            o.profiles = SplitList(argv[++i]);
            profilesGiven = true;
        } else if (a == "--formats" && v) {
            o.formats = SplitList(argv[++i]);
        } else if (a == "--dest-root" && v) {
            o.destRoot = fs::absolute(argv[++i]);
        } else if (a == "--work" && v) {
            o.work = fs::absolute(argv[++i]);
        } else if (a == "--bundle" && v) {
            o.bundle = fs::absolute(argv[++i]);
        } else if (a == "--candidate" && v) {
            o.candidate = fs::absolute(argv[++i]);
        } else if (a == "--spk-pack" && v) {
            o.spkPack = fs::absolute(argv[++i]).string();
        } else if (a == "--client" && v) {
            o.client = fs::absolute(argv[++i]).string();
        } else if (a == "--gen-package" && v) {
            o.genPackage = fs::absolute(argv[++i]).string();
        } else if (a == "--extract-ref" && v) {
            o.extractRef = fs::absolute(argv[++i]).string();
        } else if (a == "--qt-min" && v) {
            o.qtMin = fs::absolute(argv[++i]).string();
        } else if (a == "--bsdtar" && v) {
            o.bsdtar = argv[++i];
        } else if (a == "--logger-bench" && v) {
            o.loggerBench = fs::absolute(argv[++i]).string();
        } else {
            return Usage();
        }
    }
    if (o.quick) {
        if (!roundsGiven) {
            o.rounds = 1;
        }
        if (!profilesGiven) {
            o.profiles = {"small"};
        }
    }
    if (o.work.empty() || o.bundle.empty() || o.extractRef.empty() || o.qtMin.empty()) {
        return Usage();
    }
    for (const std::string& tool : {o.extractRef, o.qtMin, o.bsdtar, o.unshare,
                                    (o.bundle / "Contents/MacOS/Nimbulo").string()}) {
        if (access(tool.c_str(), X_OK) != 0) {
            fprintf(stderr, "bench: missing %s\n", tool.c_str());
            return 1;
        }
    }

    std::error_code ec;
    fs::create_directories(o.work / "logs", ec);
    fs::create_directories(o.work / "xdg", ec);
    chmod((o.work / "xdg").c_str(), 0700);
    const fs::path logs = o.work / "logs";

    for (const std::string& p : o.profiles) {
        if (!PreparePackages(o, p)) {
            return 1;
        }
    }

    // Bundle copies, and how many entries each package holds.
    std::map<std::string, long> expected;
    for (const std::string& p : o.profiles) {
        expected[p] = CountEntries(o.work / "packages" / p / "app");
        for (const std::string& f : o.formats) {
            const fs::path archive = o.work / "packages" / p / (p + "." + f);
            if (!PrepareBundle(o.bundle, archive, o.work / "bundles" / (p + "-" + f) / "Nimbulo.app") ||
                (!o.candidate.empty() &&
                 !PrepareBundle(o.candidate, archive, o.work / "candidate-bundles" / (p + "-" + f) / "Nimbulo.app"))) {
                return 1;
            }
        }
    }

    const Env base = BaseEnv(o);
    if (o.destRoot.empty()) {
        o.destRoot = o.work;
    }
    fs::create_directories(o.destRoot, ec);
    const fs::path upgradeHome = o.destRoot / "home-upgrade";
    const fs::path currentHome = o.destRoot / "home-current";
    const fs::path dest = o.destRoot / "dest";

    // The home for the start without upgrade: installed once, untimed.
    const std::string firstProfile = o.profiles.front();
    const fs::path currentBundle = o.work / "bundles" / (firstProfile + "-" + o.formats.front()) / "Nimbulo.app";
    {
        RemoveTree(currentHome);
        fs::create_directories(currentHome, ec);
        Env env = base;
        env.Set("HOME", currentHome.string());
        Sample s;
        if (!RunTimed(o, {(currentBundle / "Contents/MacOS/Nimbulo").string()}, env, logs / "launcher-install.log", s) ||
            CountEntries(currentHome / ".Nimbulo/Nimbulo.app") != expected[firstProfile]) {
            Broken("the launcher did not install %s; see logs/launcher-install.log", firstProfile);
            return 1;
        }
    }
    const fs::path installedInfo = currentHome / ".Nimbulo/Nimbulo.app/Contents/Resources/INFO";
    const ino_t installedInode = Inode(installedInfo);

    std::string startLoad = LoadAverage();
    time_t startTime = time(nullptr);
    std::map<std::string, Cell> cells;  // "profile format"
    std::vector<Sample> startLauncher, startQt, startCandidate;

    printf("bench: %d round%s, profiles", o.rounds, o.rounds == 1 ? "" : "s");
    for (const std::string& p : o.profiles) {
        printf(" %s", p.c_str());
    }
    printf("; load average %s\n", startLoad.c_str());
    fflush(stdout);

    for (int round = 0; round < o.rounds && !gBroken; ++round) {
        for (const std::string& p : o.profiles) {
            for (const std::string& f : o.formats) {
                Cell& cell = cells[p + " " + f];
                const fs::path archive = o.work / "packages" / p / (p + "." + f);
                const int programs = o.candidate.empty() ? 3 : 4;
                for (int k = 0; k < programs && !gBroken; ++k) {
                    int which = (round + k) % programs;
                    Sample s;
                    if (which == 0 || which == 3) {
                        const fs::path bundle =
                            o.work / (which == 0 ? "bundles" : "candidate-bundles") / (p + "-" + f) / "Nimbulo.app";
                        RemoveTree(upgradeHome);
                        fs::create_directories(upgradeHome, ec);
                        Settle();
                        Env env = base;
                        env.Set("HOME", upgradeHome.string());
                        if (RunTimed(o, {(bundle / "Contents/MacOS/Nimbulo").string()}, env, logs / "launcher-upgrade.log", s)) {
                            long n = CountEntries(upgradeHome / ".Nimbulo/Nimbulo.app");
                            if (n != expected[p]) {
                                Broken("launcher upgrade wrote a wrong tree: %s",
                                       p + " " + f + ": " + std::to_string(n) + " entries, expected " +
                                           std::to_string(expected[p]));
                            }
                            (which == 0 ? cell.launcher : cell.candidate).push_back(s);
                        }
                        RemoveTree(upgradeHome);
                    } else {
                        RemoveTree(dest);
                        fs::create_directories(dest, ec);
                        Settle();
                        std::vector<std::string> cmd =
                            which == 1 ? std::vector<std::string>{o.extractRef, archive.string(), dest.string()}
                                       : std::vector<std::string>{o.bsdtar, "-xf", archive.string(), "-C", dest.string()};
                        if (RunTimed(o, cmd, base, logs / (which == 1 ? "extract-ref.log" : "bsdtar.log"), s)) {
                            long n = CountEntries(dest);
                            if (n != expected[p]) {
                                Broken("reference wrote a wrong tree: %s", p + " " + f + " " + cmd[0]);
                            }
                            (which == 1 ? cell.ref : cell.bsdtar).push_back(s);
                        }
                        RemoveTree(dest);
                    }
                }
            }
        }
        // The start without upgrade, against the Qt floor, twice each in
        // alternating order: the figures are small, so more samples help.
        const int programs = o.candidate.empty() ? 2 : 3;
        for (int k = 0; k < 2 * programs && !gBroken; ++k) {
            Sample s;
            int which = (round + k) % programs;
            if (which != 1) {
                unlink((currentHome / ".Nimbulo/ui.pid").c_str());
                Env env = base;
                env.Set("HOME", currentHome.string());
                const fs::path b = which == 0 ? currentBundle : o.work / "candidate-bundles" / currentBundle.parent_path().filename() / "Nimbulo.app";
                if (RunTimed(o, {(b / "Contents/MacOS/Nimbulo").string()}, env, logs / "launcher-start.log", s)) {
                    if (Inode(installedInfo) != installedInode) {
                        Broken("the launcher reinstalled on a current installation (%s)", currentHome.string());
                    }
                    (which == 0 ? startLauncher : startCandidate).push_back(s);
                }
            } else if (RunTimed(o, {o.qtMin}, base, logs / "qt-min.log", s)) {
                startQt.push_back(s);
            }
        }
        printf("bench: round %d of %d done\n", round + 1, o.rounds);
        fflush(stdout);
    }
    RemoveTree(dest);
    RemoveTree(upgradeHome);
    RemoveTree(currentHome);
    if (gBroken) {
        fprintf(stderr, "bench: the runner broke; logs are in %s\n", logs.c_str());
        return 1;
    }

    double qtMs = Median(Pick(startQt, &Sample::ms));
    double launcherStartMs = Median(Pick(startLauncher, &Sample::ms));
    double startRatio = qtMs > 0 ? launcherStartMs / qtMs : 0;

    char date[64];
    strftime(date, sizeof date, "%Y-%m-%d %H:%M", localtime(&startTime));
    printf("\nMachine: %ld cores, %s, %s memory; %s; load average %s at the start, %s at the end.\n",
           sysconf(_SC_NPROCESSORS_ONLN), CpuModel().c_str(), MemTotal().c_str(), date, startLoad.c_str(),
           LoadAverage().c_str());
    printf("Medians of %d round%s; times in ms, peak RSS in MiB (largest of the rounds); destinations in %s.\n\n",
           o.rounds, o.rounds == 1 ? "" : "s", o.destRoot.c_str());

    printf("| profile | format | package MiB | launcher | two-pass ref | bsdtar | ref + qt-min | launcher / (ref + qt-min) | launcher / bsdtar | ref / bsdtar | launcher RSS |\n");
    printf("|---|---|---:|---:|---:|---:|---:|---:|---:|---:|---:|\n");
    bool upgradeMet = true;
    bool zipMet = true;
    bool rssMet = true;
    bool rssSlackMet = true;
    double worstUpgrade = 0;
    double worstRss = 0;
    std::map<std::string, double> rssBy;  // "profile format" -> largest peak
    for (const std::string& p : o.profiles) {
        for (const std::string& f : o.formats) {
            const Cell& c = cells[p + " " + f];
            double l = Median(Pick(c.launcher, &Sample::ms));
            double r = Median(Pick(c.ref, &Sample::ms));
            double b = Median(Pick(c.bsdtar, &Sample::ms));
            double rss = Max(Pick(c.launcher, &Sample::rssMiB));
            double floor = r + qtMs;
            double ratio = floor > 0 ? l / floor : 0;
            rssBy[p + " " + f] = rss;
            worstUpgrade = std::max(worstUpgrade, ratio);
            worstRss = std::max(worstRss, rss);
            upgradeMet = upgradeMet && ratio <= kUpgradeGoal;
            rssMet = rssMet && rss <= kRssGoalMiB;
            if (f == "zip" && (p == "typical" || p == "many-small")) {
                zipMet = zipMet && l <= b;
            }
            printf("| %s | %s | %.1f | %.0f | %.0f | %.0f | %.0f | %.2f | %.2f | %.2f | %.1f |\n", p.c_str(),
                   f.c_str(), FileMiB(o.work / "packages" / p / (p + "." + f)), l, r, b, floor, ratio,
                   b > 0 ? l / b : 0, b > 0 ? r / b : 0, rss);
        }
    }
    double worstSlack = -1e9;
    for (const std::string& f : o.formats) {
        if (rssBy.count("many-small " + f) && rssBy.count("typical " + f)) {
            double slack = rssBy["many-small " + f] - rssBy["typical " + f];
            worstSlack = std::max(worstSlack, slack);
            rssSlackMet = rssSlackMet && slack <= kRssManySmallSlackMiB;
        }
    }

    printf("\n| start, nothing to install | median ms | peak RSS MiB |\n|---|---:|---:|\n");
    printf("| launcher (client started) | %.1f | %.1f |\n", launcherStartMs, Max(Pick(startLauncher, &Sample::rssMiB)));
    printf("| qt-min | %.1f | %.1f |\n", qtMs, Max(Pick(startQt, &Sample::rssMiB)));
    printf("| ratio | %.2f | |\n", startRatio);

    if (!o.candidate.empty()) {
        printf("\nCandidate build %s, in the same rounds:\n\n", o.candidate.c_str());
        printf("| profile | format | launcher | candidate | ref + qt-min | launcher / (ref + qt-min) | candidate / (ref + qt-min) | candidate / bsdtar | candidate RSS |\n");
        printf("|---|---|---:|---:|---:|---:|---:|---:|---:|\n");
        for (const std::string& p : o.profiles) {
            for (const std::string& f : o.formats) {
                const Cell& c = cells[p + " " + f];
                double l = Median(Pick(c.launcher, &Sample::ms));
                double v = Median(Pick(c.candidate, &Sample::ms));
                double floor = Median(Pick(c.ref, &Sample::ms)) + qtMs;
                double b = Median(Pick(c.bsdtar, &Sample::ms));
                printf("| %s | %s | %.0f | %.0f | %.0f | %.2f | %.2f | %.2f | %.1f |\n", p.c_str(), f.c_str(), l, v, floor,
                       floor > 0 ? l / floor : 0, floor > 0 ? v / floor : 0, b > 0 ? v / b : 0,
                       Max(Pick(c.candidate, &Sample::rssMiB)));
            }
        }
        double cs = Median(Pick(startCandidate, &Sample::ms));
        printf("| start | | %.1f | %.1f | qt-min %.1f | %.2f | %.2f | | %.1f |\n", launcherStartMs, cs, qtMs, startRatio,
               qtMs > 0 ? cs / qtMs : 0, Max(Pick(startCandidate, &Sample::rssMiB)));
    }

    double loggerRatio;
    double suppressedNs;
    std::string loggerRaw;
    LoggerFigures(o, loggerRatio, suppressedNs, loggerRaw);

    printf("\n| goal | figure | verdict |\n|---|---|---|\n");
    printf("| upgrade <= %.2fx (two-pass ref + qt-min), every profile and format | worst %.2fx | %s |\n", kUpgradeGoal,
           worstUpgrade, Verdict(upgradeMet));
    bool zipMeasured = cells.count("typical zip") || cells.count("many-small zip");
    if (zipMeasured) {
        printf("| zip: launcher no slower than bsdtar (typical, many-small) | see launcher / bsdtar | %s |\n",
               Verdict(zipMet));
    }
    printf("| start without upgrade <= %.1fx qt-min | %.2fx | %s |\n", kStartGoal, startRatio,
           Verdict(startRatio <= kStartGoal));
    printf("| peak RSS during an upgrade <= %.0f MiB | worst %.1f MiB | %s |\n", kRssGoalMiB, worstRss,
           Verdict(rssMet));
    if (worstSlack > -1e9) {
        printf("| many-small RSS <= typical + %.0f MiB | worst %+.1f MiB | %s |\n", kRssManySmallSlackMiB, worstSlack,
               Verdict(rssSlackMet));
    }
    if (loggerRatio >= 0) {
        printf("| logger: written line <= 1.2x fprintf+fflush | %.2fx | %s |\n", loggerRatio, Verdict(loggerRatio <= 1.2));
    }
    if (suppressedNs >= 0) {
        printf("| logger: suppressed line < 150 ns | %.1f ns | %s |\n", suppressedNs, Verdict(suppressedNs < 150));
    }
    if (!loggerRaw.empty() && (loggerRatio < 0 || suppressedNs < 0)) {
        printf("\nlogger_bench said:\n%s", loggerRaw.c_str());
    }

    // CPU time: less disturbed than wall time by other load on the machine.
    printf("\nCPU time (user + system), medians in ms:\n\n| profile | format | launcher | two-pass ref | bsdtar |\n|---|---|---:|---:|---:|\n");
    for (const std::string& p : o.profiles) {
        for (const std::string& f : o.formats) {
            const Cell& c = cells[p + " " + f];
            printf("| %s | %s | %.0f | %.0f | %.0f |\n", p.c_str(), f.c_str(), Median(Pick(c.launcher, &Sample::cpuMs)),
                   Median(Pick(c.ref, &Sample::cpuMs)), Median(Pick(c.bsdtar, &Sample::cpuMs)));
        }
    }
    printf("| start | | %.1f | qt-min %.1f | |\n", Median(Pick(startLauncher, &Sample::cpuMs)),
           Median(Pick(startQt, &Sample::cpuMs)));
    return 0;
}
