// The installation layout as a real bundle sees it: the helper program is
// copied into <tmp>/X.app/Contents/MacOS and run there, because the bundle
// root is derived from the running executable's own folder.
#include <gtest/gtest.h>

#include <atomic>
#include <string>
#include <thread>
#include <vector>

#include "mac-service.h"
#include "service_test_util.h"

using namespace servicetest;

namespace {

const char* const kHelper = SERVICE_HELPER;

TEST(ServiceLayoutTest, PathsOfABundleAndANonAsciiHome)
{
    struct Row {
        const char* what;
        std::string homeName;
    };
    const std::vector<Row> rows = {
        {"ascii", "someone"},
        {"composed", "h\xc3\xb6m\xc3\xa9-\xe9\x9b\xb2 user"},
        // Decomposed u + combining diaeresis must stay decomposed: the paths
        // are joined, never normalised.
        {"decomposed", "u\xcc\x88" "ber"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.what);
        TempDir dir;
        std::string bundle = dir.path() + "/X.app";
        std::string macos = bundle + "/Contents/MacOS";
        fs::create_directories(macos);
        fs::copy_file(kHelper, macos + "/service_helper");
        std::string home = dir.path() + "/" + row.homeName;
        fs::create_directories(home);

        RunResult run = RunProgram({macos + "/service_helper", "layout"}, {{"HOME", home}});
        ASSERT_EQ(run.status, 0) << run.output;
        auto p = ParsePairs(run.output);

        EXPECT_EQ(p["root"], bundle);
        EXPECT_EQ(p["root"].find(".."), std::string::npos);
        EXPECT_NE(p["root"].back(), '/');
        EXPECT_EQ(p["resources"], bundle + "/Contents/Resources");
        EXPECT_EQ(p["home"], home);
        EXPECT_EQ(p["user"], home + "/.Nimbulo");
        EXPECT_EQ(p["app"], home + "/.Nimbulo/Nimbulo.app");
        EXPECT_EQ(p["data"], home + "/.Nimbulo/data");
        EXPECT_EQ(p["userAppPath"], p["app"]);
        EXPECT_EQ(p["images"], macos + "/images");
        EXPECT_EQ(p["logroot"], home + "/.Nimbulo_log");
        EXPECT_EQ(p["debugflag"], macos + "/log/launcher.debug");
        EXPECT_EQ(p["package"], macos + "/package/nimbulo.spk");
        EXPECT_EQ(p["conf"], macos + "/conf");
        // Nothing of the layout is created by computing it.
        EXPECT_FALSE(fs::exists(home + "/.Nimbulo"));
    }
}

TEST(ServiceLayoutTest, FreshMacServiceState)
{
    MacService service;
    EXPECT_EQ(service.timeout, 10000);
    const ustring* versions[] = {&service.targetMajorVersion,  &service.targetMinorVersion,
                                 &service.targetBuildVersion,  &service.targetIconOverlayVersion,
                                 &service.sourceMajorVersion,  &service.sourceMinorVersion,
                                 &service.sourceBuildVersion,  &service.sourceIconOverlayVersion};
    for (const ustring* v : versions)
        EXPECT_TRUE(v->empty()) << v->c_str();
    service.SetTimeout(250);
    EXPECT_EQ(service.timeout, 250);

    // Deleting through the interface frees the whole object (checked by the
    // sanitizer builds).
    Service* base = new MacService();
    delete base;
}

TEST(ServiceLayoutTest, GetInstaceIsOneInstanceAlsoUnderConcurrentFirstCalls)
{
    std::atomic<int> ready(0);
    std::vector<MacService*> seen(8, nullptr);
    std::vector<std::thread> threads;
    for (size_t i = 0; i < seen.size(); ++i) {
        threads.emplace_back([&, i] {
            ready++;
            while (ready.load() < static_cast<int>(seen.size())) {
            }
            seen[i] = MacService::GetInstace();
        });
    }
    for (auto& t : threads)
        t.join();
    for (MacService* s : seen)
        EXPECT_EQ(s, seen[0]);
    EXPECT_NE(seen[0], nullptr);
    EXPECT_EQ(MacService::GetInstace(), seen[0]);
    EXPECT_EQ(seen[0]->timeout, 10000);
}

}  // namespace
