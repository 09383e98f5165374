// The upgrade decision from real INFO files: the bundle's own (this test
// program runs from a bundle of its own, see service_bundle_main.cpp) and
// the per-user installation's under a temporary HOME.
#include <memory>
#include <optional>

#include "log.h"
#include "mac-service.h"
#include "service_test_util.h"

using namespace servicetest;

namespace {

std::string Info(const std::string& build)
{
    return "[Version]\nmajor_version=3\nminor_version=1\nbuild_version=" + build + "\nicon_overlay_version=2\n";
}

class VersionDecisionTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        const char* bundle = getenv("NIMBULO_TEST_BUNDLE");
        ASSERT_NE(bundle, nullptr);
        ASSERT_EQ(std::string(Service::GetRootNimbuloInstallPath().c_str()), bundle);
        targetInfo = std::string(bundle) + "/Contents/Resources/INFO";
    }

    // A fresh HOME and log, the given INFO files, with or without the client.
    void Prepare(const std::optional<std::string>& target, const std::optional<std::string>& source, bool client)
    {
        home = std::make_unique<TempDir>();
        setenv("HOME", home->path().c_str(), 1);
        app = home->path() + "/.Nimbulo/Nimbulo.app";
        logPath = home->path() + "/service.log";
        WriteFile(home->path() + "/debug", "service_debug=7\n");
        ASSERT_EQ(Logger::Initialize(Logger::TYPE_FILE, logPath.c_str(), (home->path() + "/debug").c_str(), 50), 0);
        fs::remove(targetInfo);
        if (target)
            WriteFile(targetInfo, *target);
        if (source)
            WriteFile(app + "/Contents/Resources/INFO", *source);
        fs::create_directories(app + "/Contents/MacOS");
        if (client)
            WriteFile(app + "/Contents/MacOS/nimbulo-pelora-ui", "");
    }

    std::unique_ptr<TempDir> home;
    std::string targetInfo, app, logPath;
};

TEST_F(VersionDecisionTest, DecisionTable)
{
    struct Row {
        const char* what;
        std::optional<std::string> target, source;
        bool client, upgrade;
        int sourceNumber, targetNumber;  // as the DEBUG line shows them
    };
    const std::string garbage("\x01\xff=] [[Version\n==\x7f\n\0junk", 24);
    const std::vector<Row> rows = {
        {"no installation at all", Info("312"), std::nullopt, false, true, 0, 312},
        {"client deleted, equal versions", Info("310"), Info("310"), false, true, 310, 310},
        {"equal", Info("310"), Info("310"), true, false, 310, 310},
        {"newer shipped", Info("312"), Info("310"), true, true, 310, 312},
        {"older shipped: never downgrade", Info("300"), Info("310"), true, false, 310, 300},
        {"0042 shipped, 42 installed", Info("0042"), Info("42"), true, false, 42, 42},
        {"42 shipped, 0042 installed", Info("42"), Info("0042"), true, false, 42, 42},
        {"leading digits count", Info("315abc"), Info("310"), true, true, 310, 315},
        {"no digits count as 0", Info("abc"), Info("310"), true, false, 310, 0},
        {"installed without build_version", Info("5"), std::string("[Version]\nmajor_version=3\n"), true, true, 0, 5},
        {"installed INFO without the group", Info("312"), std::string("build_version=310\n"), true, true, 0, 312},
        {"installed INFO is garbage", Info("312"), garbage, true, true, 0, 312},
        {"shipped INFO without the group", std::string("[Other]\nbuild_version=312\n"), Info("310"), true, false,
         310, 0},
        {"shipped INFO is garbage", garbage, Info("310"), true, false, 310, 0},
        {"shipped INFO missing", std::nullopt, Info("310"), true, false, 310, 0},
        {"both missing, no client", std::nullopt, std::nullopt, false, true, 0, 0},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        Prepare(row.target, row.source, row.client);
        MacService service;
        service.PreUpgrade();
        EXPECT_EQ(service.IsNeedUpgrade(), row.upgrade);
        const std::string log = Join(LogMessages(logPath));
        EXPECT_NE(log.find("[DEBUG] mac/mac-service(N): source version = " + std::to_string(row.sourceNumber) +
                           ", target version = " + std::to_string(row.targetNumber) + "\n"),
                  std::string::npos) << log;
        EXPECT_EQ(log.find("source does not exist") != std::string::npos, !row.source);
    }
}

TEST_F(VersionDecisionTest, LoadedFieldsAndTheirLogLines)
{
    Prepare(Info("312"), std::string("[Version]\nmajor_version=2\nminor_version=9\nbuild_version=0310\n"), true);
    MacService s;
    s.PreUpgrade();
    EXPECT_EQ(std::vector<std::string>({s.targetMajorVersion.c_str(), s.targetMinorVersion.c_str(),
                                        s.targetBuildVersion.c_str(), s.targetIconOverlayVersion.c_str(),
                                        s.sourceMajorVersion.c_str(), s.sourceMinorVersion.c_str(),
                                        s.sourceBuildVersion.c_str(), s.sourceIconOverlayVersion.c_str()}),
              std::vector<std::string>({"3", "1", "312", "2", "2", "9", "0310", ""}));
    EXPECT_TRUE(s.IsNeedUpgrade());
    EXPECT_EQ(LogMessages(logPath), (std::vector<std::string>{
                                        "[INFO] nimbulo-service(N): target_version = (3, 1, 312, 2)",
                                        "[INFO] nimbulo-service(N): source_version = (2, 9, 0310, )",
                                        "[DEBUG] mac/mac-service(N): Source version: ('0310', '')",
                                        "[DEBUG] mac/mac-service(N): Target version: ('312', '2')",
                                        "[DEBUG] mac/mac-service(N): source version = 310, target version = 312",
                                    }));
}

TEST_F(VersionDecisionTest, MissingInstallationLogsAndKeepsFields)
{
    Prepare(Info("312"), std::nullopt, false);
    MacService service;
    service.sourceBuildVersion = "77";
    service.LoadSourceVerInfo();
    EXPECT_STREQ(service.sourceBuildVersion.c_str(), "77");
    service.LoadTargetVerInfo();
    EXPECT_STREQ(service.targetBuildVersion.c_str(), "312");
    // A key the file lacks leaves the field as it was.
    WriteFile(targetInfo, "[Version]\nmajor_version=4\n");
    service.LoadTargetVerInfo();
    EXPECT_STREQ(service.targetMajorVersion.c_str(), "4");
    EXPECT_STREQ(service.targetBuildVersion.c_str(), "312");
    EXPECT_EQ(LogMessages(logPath), (std::vector<std::string>{
                                        "[INFO] nimbulo-service(N): source does not exist",
                                        "[INFO] nimbulo-service(N): target_version = (3, 1, 312, 2)",
                                        "[INFO] nimbulo-service(N): target_version = (4, 1, 312, 2)",
                                    }));
}

// The client executable counts when it exists, executable or not, and not
// when only the bundle folder is there.
TEST_F(VersionDecisionTest, PerUserBinPathExist)
{
    Prepare(Info("1"), std::nullopt, false);
    MacService service;
    EXPECT_FALSE(service.PerUserBinPathExist());
    WriteFile(app + "/Contents/MacOS/nimbulo-pelora-ui", "not executable");
    fs::permissions(app + "/Contents/MacOS/nimbulo-pelora-ui", fs::perms::owner_read);
    EXPECT_TRUE(service.PerUserBinPathExist());
}

}  // namespace
