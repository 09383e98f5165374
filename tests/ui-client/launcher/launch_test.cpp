// Starting the per-user client: real bundles whose executable is a shell
// script, started as real detached processes.
#include <sys/stat.h>

#include <chrono>
#include <csignal>
#include <thread>

#include "log.h"
#include "mac-service.h"
#include "platform.h"
#include "service_test_util.h"

using namespace servicetest;

namespace {

// Records each start with its standard input, publishes its pid as the client
// does, then stays. Output goes nowhere, so a client left behind cannot hold
// the test runner's pipes open.
const char* const kClientScript =
    "#!/bin/sh\n"
    "exec >/dev/null 2>&1\n"
    "echo \"$(basename \"$0\") $(readlink /proc/$$/fd/0)\" >> \"$HOME/starts\"\n"
    "echo \"pid=$$\" > \"$HOME/.Nimbulo/ui.pid.new\" && mv \"$HOME/.Nimbulo/ui.pid.new\" \"$HOME/.Nimbulo/ui.pid\"\n"
    "sleep 30\n";

// As the package ships it.
const char* const kPlist = "<plist><dict><key>CFBundleExecutable</key><string>nimbulo-pelora-ui</string></dict></plist>";

class LaunchTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        setenv("HOME", home.c_str(), 1);
        WriteFile(dir.path() + "/debug", "service_debug=7\n");
        Fresh();
    }

    void TearDown() override
    {
        PlatformSetRegistrationTool("");
        // The started client and its sleep share a process group of their own, never ours.
        pid_t pid = ClientPid();
        pid_t group = pid > 1 ? getpgid(pid) : -1;
        if (group > 1 && group != getpgrp())
            kill(-group, SIGKILL);
    }

    // Ends a started client; no bundle, no records, a fresh log.
    void Fresh()
    {
        TearDown();
        fs::remove_all(home);
        fs::create_directories(home + "/.Nimbulo");
        WriteFile(bundle + "/Contents/Info.plist", kPlist);
        fs::remove(logPath);
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, logPath.c_str(), (dir.path() + "/debug").c_str(), 50), 0);
    }

    void AddExecutable(const std::string& name, mode_t mode = 0755)
    {
        std::string path = bundle + "/Contents/MacOS/" + name;
        WriteFile(path, kClientScript);
        chmod(path.c_str(), mode);
    }

    pid_t ClientPid() const
    {
        auto pairs = ParsePairs(ReadFile(home + "/.Nimbulo/ui.pid"));
        return pairs.count("pid") ? static_cast<pid_t>(std::stol(pairs["pid"])) : -1;
    }

    // The starts recorded once a client other than `other` published its pid.
    std::string WaitForStart(pid_t other = -1)
    {
        for (int i = 0; i < 500 && (ClientPid() == -1 || ClientPid() == other); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        return ReadFile(home + "/starts");
    }

    TempDir dir;
    std::string home = dir.path() + "/home", bundle = home + "/.Nimbulo/Nimbulo.app";
    std::string logPath = dir.path() + "/service.log";
};

const char* const kStarted = "nimbulo-pelora-ui /dev/null\n";

TEST_F(LaunchTest, StartsTheClientOnceDetachedAndNotAgainWhileItRuns)
{
    AddExecutable("nimbulo-pelora-ui");
    MacService service;
    service.PostUpgrade();
    EXPECT_EQ(WaitForStart(), kStarted);
    EXPECT_NE(getsid(ClientPid()), getsid(0)) << "the client must have a session of its own";
    // Opened again while it runs: the running client is the answer.
    EXPECT_EQ(service.LaunchPerUserBin(), 0);
    service.PostUpgrade();
    std::this_thread::sleep_for(std::chrono::milliseconds(700));
    EXPECT_EQ(ReadFile(home + "/starts"), kStarted);
    EXPECT_EQ(LogMessages(logPath), std::vector<std::string>{});
}

// A pid file naming a live process that is not this bundle's client (the
// test itself) must not pass for a running client.
TEST_F(LaunchTest, UnrelatedLiveProcessInPidFileDoesNotPreventTheStart)
{
    AddExecutable("nimbulo-pelora-ui");
    WriteFile(home + "/.Nimbulo/ui.pid", "pid=" + std::to_string(getpid()) + "\n");
    MacService service;
    EXPECT_EQ(service.LaunchPerUserBin(), 0);
    EXPECT_EQ(WaitForStart(getpid()), kStarted);
}

// Guards: the plist ignored, a name escaping Contents/MacOS, no fallback to
// the bundle's name.
TEST_F(LaunchTest, InfoPlistChoosesTheExecutable)
{
    const std::vector<std::pair<std::string, std::string>> rows = {
        {"<plist><dict><key>CFBundleExecutable</key>\n\t<string>custom-ui</string></dict></plist>", "custom-ui"},
        {"<plist><dict><key>CFBundleName</key><string>custom-ui</string></dict></plist>", "Nimbulo"},
        {"<plist><dict><key>CFBundleExecutable</key><string>../escape</string></dict></plist>", "Nimbulo"},
        {"", "Nimbulo"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.first);
        Fresh();
        AddExecutable("nimbulo-pelora-ui");
        AddExecutable("custom-ui");
        AddExecutable("Nimbulo");
        if (row.first.empty())
            fs::remove(bundle + "/Contents/Info.plist");
        else
            WriteFile(bundle + "/Contents/Info.plist", row.first);
        MacService service;
        EXPECT_EQ(service.LaunchPerUserBin(), 0);
        EXPECT_EQ(WaitForStart(), row.second + " /dev/null\n");
    }
}

// Nothing to start, or a file that cannot be executed: the exec failure must
// come back as a failed launch.
TEST_F(LaunchTest, UnstartableExecutableReportsFailure)
{
    for (bool create : {false, true}) {
        SCOPED_TRACE(create ? "not executable" : "missing");
        Fresh();
        fs::create_directories(bundle + "/Contents/MacOS");
        if (create)
            AddExecutable("nimbulo-pelora-ui", 0644);
        MacService service;
        EXPECT_EQ(service.LaunchPerUserBin(), -1);
        service.PostUpgrade();
        EXPECT_EQ(LogMessages(logPath),
                  std::vector<std::string>{"[ERROR] mac/mac-service(N): Failed to launch Nimbulo UI"});
        EXPECT_EQ(ReadFile(home + "/starts"), "");
    }
}

TEST_F(LaunchTest, RegistrationToolGetsTheBundleAndItsExitCodeIsReported)
{
    const std::string record = dir.path() + "/tool-args", recorder = dir.path() + "/recorder";
    const std::string crasher = dir.path() + "/crasher";
    WriteFile(recorder, "#!/bin/sh\nprintf '%s|%s\\n' \"$1\" \"$2\" >> '" + record + "'\nexit 3\n");
    WriteFile(crasher, "#!/bin/sh\nkill -9 $$\n");
    chmod(recorder.c_str(), 0755);
    chmod(crasher.c_str(), 0755);
    const std::vector<std::pair<std::string, int>> rows = {
        {"", 0}, {"/bin/true", 0}, {"/bin/false", 1}, {recorder, 3}, {crasher, -1}, {dir.path() + "/absent", -2}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.first);
        PlatformSetRegistrationTool(row.first.c_str());
        EXPECT_EQ(PlatformRegistrationTool(), ustring(row.first.c_str()));
        EXPECT_EQ(PlatformForgetBundle(bundle.c_str()), row.second);
    }
    // The launch bundle is the per-user application folder A.
    PlatformSetRegistrationTool(recorder.c_str());
    MacService service;
    service.LaunchPerUserBin();
    EXPECT_EQ(ReadFile(record), "-u|" + bundle + "\n-u|" + bundle + "\n");
    EXPECT_EQ(std::string(Service::GetUserNimbuloAppInstallPath().c_str()), bundle);
}

// A failing or missing tool is reported with the bundle path, without a line
// break of its own, and the bundle is opened all the same.
TEST_F(LaunchTest, CannotUnregisterBundleStillOpensIt)
{
    for (std::string tool : {std::string("/bin/false"), dir.path() + "/no-such-tool"}) {
        SCOPED_TRACE(tool);
        Fresh();
        AddExecutable("nimbulo-pelora-ui");
        PlatformSetRegistrationTool(tool.c_str());
        MacService service;
        service.PostUpgrade();
        EXPECT_EQ(WaitForStart(), kStarted);
        EXPECT_EQ(LogMessages(logPath),
                  std::vector<std::string>{"[ERROR] mac/mac-service(N): Cannot unregister bundle, " + bundle});
        EXPECT_EQ(ReadFile(logPath).back(), 'p') << "no line break after the bundle path";
    }
}

}  // namespace
