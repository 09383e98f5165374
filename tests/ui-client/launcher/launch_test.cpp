// Starting the per-user client: real bundles whose executable is a shell
// script, started as real detached processes.
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <string>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

#include "log.h"
#include "mac-service.h"
#include "platform.h"
#include "service_test_util.h"

using namespace servicetest;

namespace {

// Records each start with its standard input, publishes its pid the way the
// client does, then stays alive. Output goes nowhere, so that a client left
// behind cannot hold the test runner's pipes open.
const char* const kClientScript =
    "#!/bin/sh\n"
    "exec >/dev/null 2>&1\n"
    "echo \"$(basename \"$0\") $(readlink /proc/$$/fd/0)\" >> \"$HOME/starts\"\n"
    "echo \"pid=$$\" > \"$HOME/.Nimbulo/ui.pid.new\" && mv \"$HOME/.Nimbulo/ui.pid.new\" \"$HOME/.Nimbulo/ui.pid\"\n"
    "sleep 30\n";

class LaunchTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        home = dir.path() + "/home";
        fs::create_directories(home + "/.Nimbulo");
        setenv("HOME", home.c_str(), 1);
        bundle = home + "/.Nimbulo/Nimbulo.app";
        logPath = dir.path() + "/service.log";
        WriteFile(dir.path() + "/debug", "service_debug=7\n");
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, logPath.c_str(), (dir.path() + "/debug").c_str(), 50), 0);
        PlatformSetRegistrationTool("");
    }

    void TearDown() override
    {
        PlatformSetRegistrationTool("");
        // End the started client and its sleep: they share a process group
        // of their own, never ours.
        auto pairs = ParsePairs(ReadFile(home + "/.Nimbulo/ui.pid"));
        if (pairs.count("pid") != 0) {
            pid_t pid = static_cast<pid_t>(std::stol(pairs["pid"]));
            pid_t group = pid > 1 ? getpgid(pid) : -1;
            if (group > 1 && group != getpgrp())
                kill(-group, SIGKILL);
        }
    }

    void AddExecutable(const std::string& name, const std::string& content, mode_t mode = 0755)
    {
        std::string path = bundle + "/Contents/MacOS/" + name;
        WriteFile(path, content);
        chmod(path.c_str(), mode);
    }

    // Waits until the client has published its pid; the starts file by then.
    std::string WaitForStart()
    {
        for (int i = 0; i < 500; ++i) {
            if (ParsePairs(ReadFile(home + "/.Nimbulo/ui.pid")).count("pid") != 0)
                break;
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return ReadFile(home + "/starts");
    }

    pid_t ClientPid() { return static_cast<pid_t>(std::stol(ParsePairs(ReadFile(home + "/.Nimbulo/ui.pid"))["pid"])); }

    TempDir dir;
    std::string home;
    std::string bundle;
    std::string logPath;
};

TEST_F(LaunchTest, StartsTheClientOnceDetachedAndNotAgainWhileItRuns)
{
    AddExecutable("nimbulo-pelora-ui", kClientScript);
    MacService service;
    service.PostUpgrade();
    EXPECT_EQ(WaitForStart(), "nimbulo-pelora-ui /dev/null\n");
    pid_t client = ClientPid();
    EXPECT_NE(getsid(client), getsid(0)) << "the client must have a session of its own";

    // Opened again while it runs: the running client is the answer.
    EXPECT_EQ(service.LaunchPerUserBin(), 0);
    service.PostUpgrade();
    std::this_thread::sleep_for(std::chrono::milliseconds(700));
    EXPECT_EQ(ReadFile(home + "/starts"), "nimbulo-pelora-ui /dev/null\n");
    EXPECT_TRUE(LogMessages(logPath).empty()) << Join(LogMessages(logPath));
}

// A pid file naming a live process that is not this bundle's client (here:
// the test itself) must not pass for a running client.
TEST_F(LaunchTest, UnrelatedLiveProcessInPidFileDoesNotPreventTheStart)
{
    AddExecutable("nimbulo-pelora-ui", kClientScript);
    WriteFile(home + "/.Nimbulo/ui.pid", "pid=" + std::to_string(getpid()) + "\n");
    MacService service;
    EXPECT_EQ(service.LaunchPerUserBin(), 0);
    for (int i = 0; i < 500 && ReadFile(home + "/starts").empty(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_EQ(ReadFile(home + "/starts"), "nimbulo-pelora-ui /dev/null\n");
    for (int i = 0; i < 500 && ClientPid() == getpid(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

TEST_F(LaunchTest, InfoPlistChoosesTheExecutable)
{
    struct Row {
        std::string plist;  // empty: no Info.plist
        std::string started;
    };
    const std::vector<Row> rows = {
        {"<plist><dict><key>CFBundleExecutable</key>\n\t<string>custom-ui</string></dict></plist>", "custom-ui"},
        {"<plist><dict><key>CFBundleName</key><string>custom-ui</string></dict></plist>", "nimbulo-pelora-ui"},
        {"<plist><dict><key>CFBundleExecutable</key><string>../escape</string></dict></plist>", "nimbulo-pelora-ui"},
        {"", "nimbulo-pelora-ui"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.plist);
        TearDown();
        fs::remove_all(bundle);
        fs::remove(home + "/starts");
        fs::remove(home + "/.Nimbulo/ui.pid");
        AddExecutable("nimbulo-pelora-ui", kClientScript);
        AddExecutable("custom-ui", kClientScript);
        if (!row.plist.empty())
            WriteFile(bundle + "/Contents/Info.plist", row.plist);
        MacService service;
        EXPECT_EQ(service.LaunchPerUserBin(), 0);
        EXPECT_EQ(WaitForStart(), row.started + " /dev/null\n");
    }
}

// Nothing to start, or a file that cannot be executed: the exec failure
// must come back as a failed launch, not as a started client.
TEST_F(LaunchTest, UnstartableExecutableReportsFailure)
{
    struct Row {
        const char* what;
        bool create;
        mode_t mode;
    };
    const std::vector<Row> rows = {{"missing", false, 0}, {"not executable", true, 0644}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        fs::remove_all(bundle);
        fs::create_directories(bundle + "/Contents/MacOS");
        fs::remove(logPath);
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, logPath.c_str(), (dir.path() + "/debug").c_str(), 50), 0);
        if (row.create)
            AddExecutable("nimbulo-pelora-ui", kClientScript, row.mode);
        MacService service;
        EXPECT_EQ(service.LaunchPerUserBin(), -1);
        service.PostUpgrade();
        std::vector<std::string> expected = {"[ERROR] mac/mac-service(N): Failed to launch Nimbulo UI"};
        EXPECT_EQ(LogMessages(logPath), expected);
        EXPECT_EQ(ReadFile(home + "/starts"), "");
    }
}

TEST_F(LaunchTest, RegistrationToolGetsTheBundleAndItsExitCodeIsReported)
{
    std::string record = dir.path() + "/tool-args";
    std::string recorder = dir.path() + "/recorder";
    WriteFile(recorder, "#!/bin/sh\nprintf '%s|%s\\n' \"$1\" \"$2\" >> '" + record + "'\nexit 3\n");
    chmod(recorder.c_str(), 0755);
    std::string crasher = dir.path() + "/crasher";
    WriteFile(crasher, "#!/bin/sh\nkill -9 $$\n");
    chmod(crasher.c_str(), 0755);

    struct Row {
        std::string tool;
        int code;
    };
    const std::vector<Row> rows = {
        {"", 0}, {"/bin/true", 0}, {"/bin/false", 1}, {recorder, 3}, {crasher, -1}, {dir.path() + "/absent", -2}};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.tool);
        PlatformSetRegistrationTool(row.tool.c_str());
        EXPECT_EQ(PlatformRegistrationTool(), ustring(row.tool.c_str()));
        EXPECT_EQ(PlatformForgetBundle(bundle.c_str()), row.code);
    }
    // The launch bundle is the per-user application folder A.
    PlatformSetRegistrationTool(recorder.c_str());
    MacService service;
    service.LaunchPerUserBin();
    EXPECT_EQ(ReadFile(record), "-u|" + bundle + "\n-u|" + bundle + "\n");
    EXPECT_EQ(std::string(Service::GetUserNimbuloAppInstallPath().c_str()), bundle);
}

// A failing or missing registration tool is reported with the bundle path
// and the bundle is opened all the same.
TEST_F(LaunchTest, CannotUnregisterBundleStillOpensIt)
{
    AddExecutable("nimbulo-pelora-ui", kClientScript);
    for (std::string tool : {std::string("/bin/false"), dir.path() + "/no-such-tool"}) {
        SCOPED_TRACE(tool);
        TearDown();
        fs::remove(home + "/starts");
        fs::remove(home + "/.Nimbulo/ui.pid");
        fs::remove(logPath);
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, logPath.c_str(), (dir.path() + "/debug").c_str(), 50), 0);
        PlatformSetRegistrationTool(tool.c_str());
        MacService service;
        service.PostUpgrade();
        EXPECT_EQ(WaitForStart(), "nimbulo-pelora-ui /dev/null\n");
        // The message has no line break of its own.
        std::vector<std::string> expected = {"[ERROR] mac/mac-service(N): Cannot unregister bundle, " + bundle};
        EXPECT_EQ(LogMessages(logPath), expected);
        std::string raw = ReadFile(logPath);
        EXPECT_TRUE(!raw.empty() && raw.back() == 'p') << "no line break after the bundle path";
    }
}

}  // namespace
