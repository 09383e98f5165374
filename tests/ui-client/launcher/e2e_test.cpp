// End to end: the assembled bundle (build/Nimbulo.app) run as a process, with
// a temporary HOME, the offscreen platform and the sample client as the
// installed application.
//
// Each scenario is a small shell script. Where the launcher may signal a
// client (an installed client with ui.pid present), the script runs as the
// first process of a PID namespace of its own (unshare --pid --fork
// --mount-proc): no signal can leave it, and every client still running dies
// with it. The sample client appends "start", "signal" and "stop" lines to
// the record file; "present=1" on a stop line means its executable was still
// at its path when it ended, i.e. it was stopped before the backup rename.
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <regex>
#include <sstream>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

const char* const kBundle = NIMBULO_BINARY_DIR "/Nimbulo.app";
const char* const kClientRel = "Contents/MacOS/nimbulo-pelora-ui";

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

// Runs argv with extra environment; returns the exit status, -1 on a signal.
int RunProcess(const std::vector<std::string>& args, const std::map<std::string, std::string>& env)
{
    pid_t pid = fork();
    if (pid == 0) {
        for (const auto& kv : env) {
            setenv(kv.first.c_str(), kv.second.c_str(), 1);
        }
        std::vector<char*> argv;
        for (const std::string& a : args) {
            argv.push_back(const_cast<char*>(a.c_str()));
        }
        argv.push_back(nullptr);
        execvp(argv[0], argv.data());
        _exit(127);
    }
    int status = 0;
    if (pid < 0 || waitpid(pid, &status, 0) != pid || !WIFEXITED(status)) {
        return -1;
    }
    return WEXITSTATUS(status);
}

bool NamespaceAvailable()
{
    static const int available = RunProcess({"unshare", "--pid", "--fork", "--mount-proc", "true"}, {}) == 0;
    return available;
}

// Functions every scenario script can use. launch BUNDLE N runs the launcher
// and leaves its stdout, stderr and exit status in out.N, err.N and rc.N.
const char* const kPrelude = R"SH(
set -u
A="$HOME/.Nimbulo/Nimbulo.app"
wait_for() {
  i=0
  while ! eval "$1"; do
    i=$((i + 1)); [ $i -ge 300 ] && { echo "timed out: $1" >&2; return 1; }
    sleep 0.05
  done
}
starts() { awk '/^start /{n++} END{print n+0}' "$NIMBULO_SAMPLE_RECORD"; }
launch() {
  "$1/Contents/MacOS/Nimbulo" >"$BASE/out.$2" 2>"$BASE/err.$2"
  echo $? >"$BASE/rc.$2"
}
client_pid() { sed -n 's/^pid=\([0-9][0-9]*\)$/\1/p' "$HOME/.Nimbulo/ui.pid" 2>/dev/null; }
stop_client() {
  p=$(client_pid)
  if [ -n "$p" ] && [ "$p" -gt 1 ]; then
    kill -TERM "$p" 2>/dev/null
    wait_for "! kill -0 $p 2>/dev/null"
  fi
  return 0
}
)SH";

struct Lines {
    std::vector<std::string> all;
    std::vector<std::string> Matching(const std::string& prefix) const
    {
        std::vector<std::string> out;
        for (const std::string& l : all) {
            if (l.rfind(prefix, 0) == 0) {
                out.push_back(l);
            }
        }
        return out;
    }
};

Lines ReadLines(const fs::path& p)
{
    Lines lines;
    std::istringstream in(ReadFile(p));
    for (std::string l; std::getline(in, l);) {
        lines.all.push_back(l);
    }
    return lines;
}

size_t CountMatches(const std::string& text, const std::string& pattern)
{
    std::regex re(pattern);
    return static_cast<size_t>(std::distance(std::sregex_iterator(text.begin(), text.end(), re), std::sregex_iterator()));
}

class LauncherE2E : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(fs::exists(fs::path(kBundle) / "Contents/MacOS/Nimbulo")) << "bundle not built: " << kBundle;
        char tmpl[] = "/tmp/nimbulo-e2e-XXXXXX";
        ASSERT_NE(nullptr, mkdtemp(tmpl));
        base = fs::canonical(tmpl);
        home = base / "home";
        fs::create_directories(home);
        record = base / "record";
        WriteFile(record, "");
    }

    void TearDown() override
    {
        if (!HasFailure()) {
            std::error_code ec;
            fs::remove_all(base, ec);
        } else {
            std::cerr << "kept for inspection: " << base << "\n";
        }
    }

    fs::path App() const { return home / ".Nimbulo/Nimbulo.app"; }
    std::string Log() const { return ReadFile(home / ".Nimbulo/log/launcher.log"); }
    std::string InstalledBuild() const { return BuildIn(App() / "Contents/Resources/INFO"); }

    static std::string BuildIn(const fs::path& info)
    {
        std::smatch m;
        std::string text = ReadFile(info);
        return std::regex_search(text, m, std::regex("build_version=(\\S*)")) ? m[1].str() : std::string("<none>");
    }

    // A copy of the built bundle at base/<name>/Nimbulo.app whose debug switch
    // file lets the service's INFO lines through. With a build number, its
    // INFO and package are replaced by a package of that build (damaged: cut
    // off inside the client executable's data).
    fs::path MakeBundle(const std::string& name, const std::string& build = "", bool damaged = false)
    {
        fs::path bundle = base / name / "Nimbulo.app";
        fs::create_directories(bundle.parent_path());
        fs::copy(kBundle, bundle, fs::copy_options::recursive | fs::copy_options::copy_symlinks);
        EnableDebug(bundle, "service_debug=7\n");
        if (build.empty()) {
            return bundle;
        }
        std::string info = "[Version]\nmajor_version=3\nminor_version=1\nbuild_version=" + build +
                           "\nicon_overlay_version=1\n";
        fs::path stage = base / ("stage-" + name);
        fs::create_directories(stage / "Contents/MacOS");
        fs::copy_file(SAMPLE_CLIENT_PATH, stage / kClientRel);
        WriteFile(stage / "Contents/Resources/INFO", info);
        WriteFile(stage / "Contents/Info.plist",
                  "<plist><dict><key>CFBundleExecutable</key><string>nimbulo-pelora-ui</string></dict></plist>\n");
        fs::path spk = bundle / "Contents/Resources/package/nimbulo.spk";
        EXPECT_EQ(0, RunProcess({SPK_PACK_PATH, "--format", damaged ? "tar" : "tar.gz", stage.string(), spk.string()}, {}));
        if (damaged) {
            // Uncompressed, the client executable is most of the archive.
            fs::resize_file(spk, fs::file_size(spk) * 6 / 10);
        }
        WriteFile(bundle / "Contents/Resources/INFO", info);
        return bundle;
    }

    static void EnableDebug(const fs::path& bundle, const std::string& text)
    {
        WriteFile(bundle / "log/launcher.debug", text);
    }

    // Runs the scenario; in a PID namespace when inNamespace.
    int RunScenario(const std::string& script, bool inNamespace, const std::map<std::string, std::string>& extraEnv = {})
    {
        std::map<std::string, std::string> env = {
            {"HOME", home.string()},
            {"BASE", base.string()},
            {"QT_QPA_PLATFORM", "offscreen"},
            {"NIMBULO_SAMPLE_RECORD", record.string()},
        };
        for (const auto& kv : extraEnv) {
            env[kv.first] = kv.second;
        }
        std::string full = std::string(kPrelude) + script;
        if (inNamespace) {
            return RunProcess({"unshare", "--pid", "--fork", "--mount-proc", "/bin/sh", "-c", full}, env);
        }
        return RunProcess({"/bin/sh", "-c", full}, env);
    }

    std::string Rc(int n) const { return ReadFile(base / ("rc." + std::to_string(n))); }

    fs::path base;
    fs::path home;
    fs::path record;
};

#define REQUIRE_NAMESPACE()                                                                      \
    if (!NamespaceAvailable()) {                                                                 \
        GTEST_SKIP() << "unshare --pid --fork --mount-proc is not permitted here; the launcher " \
                        "would signal a client outside a PID namespace";                         \
    }

// A fresh home: the package is installed, the client started from it, and
// the plug-in path line names the bundle that ran.
TEST_F(LauncherE2E, FirstInstallation)
{
    fs::path b = MakeBundle("one");
    ASSERT_EQ(0, RunScenario(R"SH(
launch "$B" 1
wait_for '[ $(starts) -ge 1 ]'
stop_client
)SH", NamespaceAvailable(), {{"B", b.string()}}));

    EXPECT_EQ("0\n", Rc(1));
    EXPECT_NE(std::string::npos, ReadFile(base / "out.1").find("lib path = '" + b.string() + "/Contents/Frameworks/plugins'\n"))
        << ReadFile(base / "out.1");
    EXPECT_EQ(BuildIn(b / "Contents/Resources/INFO"), InstalledBuild());
    EXPECT_TRUE(fs::exists(App() / kClientRel));
    Lines rec = ReadLines(record);
    ASSERT_EQ(1u, rec.Matching("start ").size()) << ReadFile(record);
    EXPECT_NE(std::string::npos, rec.Matching("start ")[0].find(" exe=" + (App() / kClientRel).string()));
    EXPECT_EQ(1u, CountMatches(Log(), R"(\[INFO\] nimbulo-service\(\d+\): extract package: ')")) << Log();
    EXPECT_FALSE(fs::exists(home / ".Nimbulo/Nimbulo.app_tmp"));
}

// The same bundle again: nothing is extracted and the client starts once;
// a third run while that client runs starts no second copy.
TEST_F(LauncherE2E, NoUpgradeNeeded)
{
    fs::path b = MakeBundle("one");
    ASSERT_EQ(0, RunScenario(R"SH(
launch "$B" 1
wait_for '[ $(starts) -ge 1 ]'
stop_client
stat -c '%i %Y' "$A/Contents/Resources/INFO" "$A/Contents/MacOS/nimbulo-pelora-ui" >"$BASE/stat.1"
launch "$B" 2
wait_for '[ $(starts) -ge 2 ]'
launch "$B" 3
sleep 1
stat -c '%i %Y' "$A/Contents/Resources/INFO" "$A/Contents/MacOS/nimbulo-pelora-ui" >"$BASE/stat.3"
stop_client
)SH", NamespaceAvailable(), {{"B", b.string()}}));

    EXPECT_EQ("0\n", Rc(1));
    EXPECT_EQ("0\n", Rc(2));
    EXPECT_EQ("0\n", Rc(3));
    EXPECT_EQ(ReadFile(base / "stat.1"), ReadFile(base / "stat.3"));
    EXPECT_EQ(1u, CountMatches(Log(), R"(extract package: ')")) << Log();
    EXPECT_EQ(2u, ReadLines(record).Matching("start ").size()) << ReadFile(record);
}

// An older client runs and takes its time to stop: it is stopped (while its
// executable is still in place, so before the backup) and the new build
// started; the backup is gone afterwards.
TEST_F(LauncherE2E, UpgradeOfRunningClient)
{
    REQUIRE_NAMESPACE();
    fs::path oldB = MakeBundle("old", "300");
    fs::path newB = MakeBundle("new");
    std::string newBuild = BuildIn(newB / "Contents/Resources/INFO");
    ASSERT_GT(std::atoi(newBuild.c_str()), 300);
    ASSERT_EQ(0, RunScenario(R"SH(
launch "$OLD" 1
wait_for '[ $(starts) -ge 1 ]'
launch "$NEW" 2
wait_for '[ $(starts) -ge 2 ]'
stop_client
)SH", true, {{"OLD", oldB.string()}, {"NEW", newB.string()}, {"NIMBULO_SAMPLE_STOP_DELAY_MS", "1500"}}));

    EXPECT_EQ("0\n", Rc(1));
    EXPECT_EQ("0\n", Rc(2));
    EXPECT_EQ(newBuild, InstalledBuild());
    Lines rec = ReadLines(record);
    ASSERT_GE(rec.all.size(), 4u) << ReadFile(record);
    EXPECT_EQ(0u, rec.all[0].rfind("start ", 0));
    EXPECT_NE(std::string::npos, rec.all[0].find(" build=300 "));
    EXPECT_EQ(0u, rec.all[1].rfind("signal ", 0)) << ReadFile(record);
    EXPECT_EQ(0u, rec.all[2].rfind("stop ", 0)) << ReadFile(record);
    EXPECT_NE(std::string::npos, rec.all[2].find(" build=300 present=1 ")) << "stopped after its folder moved";
    EXPECT_EQ(0u, rec.all[3].rfind("start ", 0));
    EXPECT_NE(std::string::npos, rec.all[3].find(" build=" + newBuild + " present=1 "));
    for (const char* suffix : {"_tmp", "_tmp1"}) {
        EXPECT_FALSE(fs::exists(home / (std::string(".Nimbulo/Nimbulo.app") + suffix))) << suffix;
    }
    EXPECT_EQ(2u, CountMatches(Log(), R"(extract package: ')")) << Log();
    EXPECT_EQ(0u, CountMatches(Log(), R"(\[ERROR\])")) << Log();
}

// The installed version file is intact but the executable is gone: the
// package is installed again and the client started.
TEST_F(LauncherE2E, RepairOfDeletedClientExecutable)
{
    fs::path b = MakeBundle("one");
    ASSERT_EQ(0, RunScenario(R"SH(
launch "$B" 1
wait_for '[ $(starts) -ge 1 ]'
stop_client
rm "$A/Contents/MacOS/nimbulo-pelora-ui"
launch "$B" 2
wait_for '[ $(starts) -ge 2 ]'
stop_client
)SH", NamespaceAvailable(), {{"B", b.string()}}));

    EXPECT_EQ("0\n", Rc(2));
    EXPECT_TRUE(fs::exists(App() / kClientRel));
    EXPECT_EQ(2u, CountMatches(Log(), R"(extract package: ')")) << Log();
    Lines rec = ReadLines(record);
    ASSERT_EQ(2u, rec.Matching("start ").size()) << ReadFile(record);
    EXPECT_NE(std::string::npos, rec.Matching("start ")[1].find(" present=1 exe=" + (App() / kClientRel).string()));
}

// A package that breaks off in the middle: the old installation comes back,
// its client is started again, the run still ends with 0.
TEST_F(LauncherE2E, RollbackOnDamagedPackage)
{
    REQUIRE_NAMESPACE();
    fs::path oldB = MakeBundle("old", "300");
    fs::path badB = MakeBundle("bad", "312", true);
    ASSERT_EQ(0, RunScenario(R"SH(
launch "$OLD" 1
wait_for '[ $(starts) -ge 1 ]'
find "$A" | sort >"$BASE/tree.1"
launch "$BAD" 2
wait_for '[ $(starts) -ge 2 ]'
find "$A" | sort >"$BASE/tree.2"
stop_client
)SH", true, {{"OLD", oldB.string()}, {"BAD", badB.string()}}));

    EXPECT_EQ("0\n", Rc(2));
    std::string log = Log();
    EXPECT_EQ(1u, CountMatches(log, R"(\[ERROR\] launcher\(\d+\): Failed to upgrade package)")) << log;
    EXPECT_EQ(1u, CountMatches(log, R"(\[ERROR\] nimbulo-service\(\d+\): Failed to extract package, rollback to old installation)"))
        << log;
    EXPECT_EQ("300", InstalledBuild());
    EXPECT_EQ(ReadFile(base / "tree.1"), ReadFile(base / "tree.2"));
    EXPECT_FALSE(fs::exists(home / ".Nimbulo/Nimbulo.app_tmp"));
    // Stopped, then the old build started again.
    Lines rec = ReadLines(record);
    ASSERT_GE(rec.all.size(), 4u) << ReadFile(record);
    EXPECT_EQ(0u, rec.all[2].rfind("stop ", 0)) << ReadFile(record);
    EXPECT_EQ(0u, rec.all[3].rfind("start ", 0)) << ReadFile(record);
    EXPECT_NE(std::string::npos, rec.all[3].find(" build=300 present=1 "));
    EXPECT_EQ(2u, rec.Matching("start ").size()) << ReadFile(record);
}

// While one instance is busy (stopping a slow client), a second start of the
// same executable ends at once with 0 and its DEBUG line; the first one
// finishes its work undisturbed.
TEST_F(LauncherE2E, SecondStartWhileBusyExitsAtOnce)
{
    REQUIRE_NAMESPACE();
    fs::path oldB = MakeBundle("old", "300");
    fs::path b = MakeBundle("one");
    EnableDebug(b, "launcher_debug=7\n");
    ASSERT_EQ(0, RunScenario(R"SH(
launch "$OLD" 1
wait_for '[ $(starts) -ge 1 ]'
launch "$B" 2 &
wait_for 'grep -q "^signal " "$NIMBULO_SAMPLE_RECORD"'
t0=$(date +%s%N)
launch "$B" 3
t1=$(date +%s%N)
echo $(( (t1 - t0) / 1000000 )) >"$BASE/ms.3"
[ -e "$BASE/rc.2" ] && echo yes >"$BASE/first-done-before-second"
wait
wait_for '[ $(starts) -ge 2 ]'
)SH", true, {{"OLD", oldB.string()}, {"B", b.string()}, {"NIMBULO_SAMPLE_STOP_DELAY_MS", "4000"}}));

    EXPECT_EQ("0\n", Rc(3));
    EXPECT_EQ("0\n", Rc(2));
    EXPECT_FALSE(fs::exists(base / "first-done-before-second")) << "the first instance was not busy any more";
    EXPECT_LT(std::atoi(ReadFile(base / "ms.3").c_str()), 2500);
    EXPECT_EQ(1u, CountMatches(Log(), R"(\[DEBUG\] main\(\d+\): app has already launched, return\n)")) << Log();
    EXPECT_EQ(BuildIn(b / "Contents/Resources/INFO"), InstalledBuild());
    EXPECT_EQ(2u, ReadLines(record).Matching("start ").size()) << ReadFile(record);
}

// The single-instance identity is the executable's path: a copy elsewhere is
// not refused; it waits for the original's installation and then decides on
// what that left.
TEST_F(LauncherE2E, CopyAtAnotherPathIsNotRefused)
{
    REQUIRE_NAMESPACE();
    fs::path oldB = MakeBundle("old", "300");
    fs::path b = MakeBundle("one");
    EnableDebug(b, "launcher_debug=7\n");
    // The copy ships what is installed, so it has nothing to install; its
    // service lines tell that it ran.
    fs::path copy = MakeBundle("copy", "300");
    EnableDebug(copy, "launcher_debug=7\nservice_debug=7\n");
    ASSERT_EQ(0, RunScenario(R"SH(
launch "$OLD" 1
wait_for '[ $(starts) -ge 1 ]'
launch "$B" 2 &
wait_for 'grep -q "^signal " "$NIMBULO_SAMPLE_RECORD"'
launch "$COPY" 3
wait
wait_for '[ $(starts) -ge 2 ]'
)SH", true, {{"OLD", oldB.string()}, {"B", b.string()}, {"COPY", copy.string()}, {"NIMBULO_SAMPLE_STOP_DELAY_MS", "4000"}}));

    EXPECT_EQ("0\n", Rc(3));
    std::string log = Log();
    EXPECT_EQ(0u, CountMatches(log, R"(app has already launched)")) << log;
    // Decided on the new installation, so it waited for it.
    EXPECT_EQ(1u, CountMatches(log, R"(\[DEBUG\] mac/mac-service\(\d+\): source version = 312, target version = 300\n)")) << log;
    EXPECT_EQ("0\n", Rc(2));
    EXPECT_EQ(BuildIn(b / "Contents/Resources/INFO"), InstalledBuild());
}

// A plain file where the log folder belongs costs the log, not the run.
TEST_F(LauncherE2E, PlainFileNamedLogDoesNotStopTheRun)
{
    fs::path b = MakeBundle("one");
    WriteFile(home / ".Nimbulo/log", "not a folder\n");
    ASSERT_EQ(0, RunScenario(R"SH(
launch "$B" 1
wait_for '[ $(starts) -ge 1 ]'
stop_client
)SH", NamespaceAvailable(), {{"B", b.string()}}));

    EXPECT_EQ("0\n", Rc(1));
    EXPECT_TRUE(fs::is_regular_file(home / ".Nimbulo/log"));
    EXPECT_EQ("not a folder\n", ReadFile(home / ".Nimbulo/log"));
    EXPECT_EQ(BuildIn(b / "Contents/Resources/INFO"), InstalledBuild());
    EXPECT_EQ(1u, ReadLines(record).Matching("start ").size()) << ReadFile(record);
}

}  // namespace
