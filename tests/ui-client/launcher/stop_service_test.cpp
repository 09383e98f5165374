// Stopping the per-user client with real processes. Every case runs in the
// helper program as process 1 of its own PID namespace: StopService is never
// called in this process, so whatever it signals cannot leave the namespace.
#include <optional>

#include "service_test_util.h"

using namespace servicetest;

namespace {

const std::vector<std::string> kUnshare = {"/usr/bin/unshare", "--pid", "--fork", "--mount-proc"};

std::vector<std::string> InNamespace(std::vector<std::string> argv)
{
    argv.insert(argv.begin(), kUnshare.begin(), kUnshare.end());
    return argv;
}

struct CaseResult {
    int status = -1;
    std::map<std::string, std::string> values;  // elapsed_ms, client, client_gone, gone_after_ms
    std::vector<std::string> log;
    std::string reaped, client, pidFile;
};

CaseResult RunCase(const std::string& name)
{
    TempDir dir;
    CaseResult r;
    r.status = RunProgram(InNamespace({SERVICE_HELPER, "ns", name, dir.path()})).status;
    r.values = ParsePairs(ReadFile(dir.path() + "/result"));
    r.log = LogMessages(dir.path() + "/service.log");
    r.reaped = ReadFile(dir.path() + "/reaped");
    r.client = ReadFile(dir.path() + "/client");
    r.pidFile = dir.path() + "/home/.Nimbulo/ui.pid";
    return r;
}

long Value(const CaseResult& r, const char* key)
{
    auto it = r.values.find(key);
    return it == r.values.end() ? -1 : std::stol(it->second);
}

class StopServiceTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        int status = RunProgram(InNamespace({"/bin/true"})).status;
        if (status != 0)
            GTEST_SKIP() << "cannot create a PID namespace here (unshare --pid --fork --mount-proc exited " << status
                         << "); signal tests are not run outside one";
    }
};

// The schedule: SIGTERM, five probes one second apart, then SIGKILL.
TEST_F(StopServiceTest, Schedule)
{
    struct Row {
        const char* name;
        long minMs, maxMs;
        std::string client;                 // what the client recorded
        std::optional<std::string> reaped;  // how it ended, after its pid
        bool pidFileMissing;
    };
    const std::vector<Row> rows = {
        {"nofile", 0, 500, "", "", true},
        // ESRCH on SIGTERM ends the operation at once, silently, without the wait.
        {"stale", 0, 500, "", std::nullopt, false},
        // Exits 1.5 s after SIGTERM: probes at 0 s and 1 s find it, 2 s does
        // not. Guards a wait before the first probe, a missing probe loop, a
        // SIGKILL for a client that went.
        {"slow", 1900, 2700, "term\nexit\n", " exit 0\n", false},
        // Ignores SIGTERM: killed right after the fifth wait.
        {"ignore", 4900, 5700, "term\n", " signal 9\n", false},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        CaseResult r = RunCase(row.name);
        ASSERT_EQ(r.status, 0);
        EXPECT_GE(Value(r, "elapsed_ms"), row.minMs);
        EXPECT_LT(Value(r, "elapsed_ms"), row.maxMs);
        EXPECT_EQ(r.client, row.client);
        if (row.reaped) {
            EXPECT_EQ(r.reaped, row.reaped->empty() ? "" : r.values["client"] + *row.reaped);
        }
        if (!row.pidFileMissing) {
            EXPECT_EQ(r.values["client_gone"], "1");
            EXPECT_LT(Value(r, "gone_after_ms"), 500);
        }
        EXPECT_EQ(r.log, row.pidFileMissing ? std::vector<std::string>{"[DEBUG] mac/mac-service(N): pid file '" +
                                                                       r.pidFile + "' does not exist, no need to terminate"}
                                            : std::vector<std::string>{});
    }
}

// Pid values that must never reach kill(): 0 would signal the caller's
// process group, -1 every process of the namespace. The sentinel, in that
// group and namespace, must survive every row.
TEST_F(StopServiceTest, InvalidPidValuesSignalNothing)
{
    // The largest pid is pid_max - 1, as the namespace sees it (a container
    // may show another value outside).
    RunResult limit = RunProgram(InNamespace({"/bin/cat", "/proc/sys/kernel/pid_max"}));
    ASSERT_EQ(limit.status, 0);
    const std::string max = std::to_string(std::stol(limit.output)), beyond = std::to_string(std::stol(max) + 1);
    // The pid file's content and the value its NOTE names; none: the file is
    // unreadable for the key=value reader, which has a message of its own.
    const std::vector<std::pair<std::string, std::optional<std::string>>> rows = {
        {"pid=0\n", "0"}, {"pid=-1\n", "-1"}, {"pid=\"\"\n", ""}, {"other=12\n", ""}, {"pid=abc\n", "abc"},
        {"pid=12abc\n", "12abc"}, {"pid=+12\n", "+12"}, {"pid=99999999999\n", "99999999999"},
        {"pid=18446744073709551615\n", "18446744073709551615"}, {"pid=" + max + "\n", max},
        {"pid=" + beyond + "\n", beyond}, {"pid=\n", std::nullopt},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.first);
        CaseResult r = RunCase("file:" + row.first);
        EXPECT_EQ(r.status, 0) << "the case's own process did not end normally";
        EXPECT_LT(Value(r, "elapsed_ms"), 500);
        EXPECT_EQ(r.values["client_gone"], "0") << "the sentinel was signalled";
        EXPECT_EQ(r.reaped, "");
        EXPECT_EQ(r.log, std::vector<std::string>{
                             row.second ? "[NOTE] mac/mac-service(N): pid file '" + r.pidFile +
                                              "' holds no valid pid '" + *row.second + "', no need to terminate"
                                        : "[NOTE] mac/mac-service(N): Failed to read pid file '" + r.pidFile +
                                              "', not exist ?"});
    }
}

}  // namespace
