// Stopping the per-user client with real processes. Every case runs in the
// helper program as process 1 of its own PID namespace: StopService is never
// called in this process, so whatever it signals cannot leave the namespace.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "service_test_util.h"

using namespace servicetest;

namespace {

const char* const kHelper = SERVICE_HELPER;

bool NamespacesAllowed(std::string& why)
{
    RunResult probe = RunProgram({"/usr/bin/unshare", "--pid", "--fork", "--mount-proc", "/bin/true"});
    if (probe.status != 0) {
        why = "cannot create a PID namespace here (unshare --pid --fork --mount-proc exited " +
              std::to_string(probe.status) + "); signal tests are not run outside one";
        return false;
    }
    return true;
}

struct CaseResult {
    std::map<std::string, std::string> values;
    std::vector<std::string> log;
    std::string reaped;
    std::string client;
    std::string pidFile;
    int status = -1;
};

CaseResult RunCase(const TempDir& dir, const std::string& name)
{
    CaseResult r;
    RunResult run = RunProgram({"/usr/bin/unshare", "--pid", "--fork", "--mount-proc", kHelper, "ns", name, dir.path()});
    r.status = run.status;
    r.values = ParsePairs(ReadFile(dir.path() + "/result"));
    r.log = LogMessages(dir.path() + "/service.log");
    r.reaped = ReadFile(dir.path() + "/reaped");
    r.client = ReadFile(dir.path() + "/client");
    r.pidFile = dir.path() + "/home/.Nimbulo/ui.pid";
    return r;
}

long Elapsed(const CaseResult& r)
{
    auto it = r.values.find("elapsed_ms");
    return it == r.values.end() ? -1 : std::stol(it->second);
}

class StopServiceTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        std::string why;
        if (!NamespacesAllowed(why))
            GTEST_SKIP() << why;
    }
};

TEST_F(StopServiceTest, NoPidFileLogsOnceAndReturnsAtOnce)
{
    TempDir dir;
    CaseResult r = RunCase(dir, "nofile");
    ASSERT_EQ(r.status, 0);
    EXPECT_LT(Elapsed(r), 500);
    std::vector<std::string> expected = {"[DEBUG] mac/mac-service(N): pid file '" + r.pidFile +
                                         "' does not exist, no need to terminate"};
    EXPECT_EQ(r.log, expected);
}

// A stale pid: SIGTERM fails with ESRCH, which must end the operation at
// once, without the error message and without the five-second wait.
TEST_F(StopServiceTest, StalePidReturnsAtOnceSilently)
{
    TempDir dir;
    CaseResult r = RunCase(dir, "stale");
    ASSERT_EQ(r.status, 0);
    EXPECT_LT(Elapsed(r), 500);
    EXPECT_TRUE(r.log.empty()) << Join(r.log);
}

// Exits 1.5 s after SIGTERM: probes at 0 s and 1 s find it, the probe at 2 s
// does not. Guards against waiting before the first probe, against a
// missing probe loop and against a SIGKILL sent to a client that went.
TEST_F(StopServiceTest, ClientLeavingWithinTheScheduleIsNotKilled)
{
    TempDir dir;
    CaseResult r = RunCase(dir, "slow");
    ASSERT_EQ(r.status, 0);
    EXPECT_GE(Elapsed(r), 1900);
    EXPECT_LT(Elapsed(r), 2700);
    EXPECT_EQ(r.client, "term\nexit\n");
    EXPECT_EQ(r.values["client_gone"], "1");
    EXPECT_EQ(r.reaped, r.values["client"] + " exit 0\n");
    EXPECT_TRUE(r.log.empty()) << Join(r.log);
}

// Ignores SIGTERM: five one-second waits, then SIGKILL and no further wait.
TEST_F(StopServiceTest, ClientIgnoringTermIsKilledAfterFiveSeconds)
{
    TempDir dir;
    CaseResult r = RunCase(dir, "ignore");
    ASSERT_EQ(r.status, 0);
    EXPECT_GE(Elapsed(r), 4900);
    EXPECT_LT(Elapsed(r), 5700);
    EXPECT_EQ(r.client, "term\n");
    EXPECT_EQ(r.values["client_gone"], "1");
    EXPECT_LT(std::stol(r.values["gone_after_ms"]), 500);
    EXPECT_EQ(r.reaped, r.values["client"] + " signal 9\n");
    EXPECT_TRUE(r.log.empty()) << Join(r.log);
}

// Pid values that must never reach kill(). 0 would signal the caller's
// process group and -1 every process of the namespace: the sentinel, in
// that group and namespace, must survive every row.
TEST_F(StopServiceTest, InvalidPidValuesSignalNothing)
{
    struct Row {
        std::string content;  // the whole pid file
        std::string note;     // the expected NOTE text after the file name
    };
    const std::vector<Row> rows = {
        {"pid=0\n", "' holds no valid pid '0', no need to terminate"},
        {"pid=-1\n", "' holds no valid pid '-1', no need to terminate"},
        {"pid=\"\"\n", "' holds no valid pid '', no need to terminate"},
        {"other=12\n", "' holds no valid pid '', no need to terminate"},
        {"pid=abc\n", "' holds no valid pid 'abc', no need to terminate"},
        {"pid=12abc\n", "' holds no valid pid '12abc', no need to terminate"},
        {"pid=+12\n", "' holds no valid pid '+12', no need to terminate"},
        {"pid=99999999999\n", "' holds no valid pid '99999999999', no need to terminate"},
        {"pid=18446744073709551615\n", "' holds no valid pid '18446744073709551615', no need to terminate"},
        // Unreadable for the key=value reader: the neighbouring message.
        {"pid=\n", "', not exist ?"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.content);
        TempDir dir;
        CaseResult r = RunCase(dir, "file:" + row.content);
        EXPECT_EQ(r.status, 0) << "the case's own process did not end normally";
        EXPECT_LT(Elapsed(r), 500);
        EXPECT_EQ(r.values["client_gone"], "0") << "the sentinel was signalled";
        EXPECT_EQ(r.reaped, "");
        std::string prefix = row.note == "', not exist ?" ? "[NOTE] mac/mac-service(N): Failed to read pid file '"
                                                          : "[NOTE] mac/mac-service(N): pid file '";
        std::vector<std::string> expected = {prefix + r.pidFile + row.note};
        EXPECT_EQ(r.log, expected);
    }
}

// The largest pid the system allows is pid_max - 1: pid_max itself is
// refused, and so is a value just beyond it that still fits an int. The
// limit is read as the namespace sees it (a container may show another
// value outside).
TEST_F(StopServiceTest, PidAbovePidMaxSignalsNothing)
{
    RunResult limit = RunProgram({"/usr/bin/unshare", "--pid", "--fork", "--mount-proc", "/bin/cat",
                                  "/proc/sys/kernel/pid_max"});
    ASSERT_EQ(limit.status, 0);
    long pidMax = std::stol(limit.output);
    for (long value : {pidMax, pidMax + 1}) {
        SCOPED_TRACE(value);
        TempDir dir;
        CaseResult r = RunCase(dir, "file:pid=" + std::to_string(value) + "\n");
        ASSERT_EQ(r.status, 0);
        EXPECT_EQ(r.values["client_gone"], "0");
        ASSERT_EQ(r.log.size(), 1u);
        EXPECT_NE(r.log[0].find("holds no valid pid '" + std::to_string(value) + "'"), std::string::npos);
    }
}

}  // namespace
