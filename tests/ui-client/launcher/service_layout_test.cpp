// The installation layout as a real bundle sees it: the helper is copied into
// <tmp>/X.app/Contents/MacOS and run there, since the bundle root is derived
// from the running executable's own folder.
#include <atomic>
#include <thread>

#include "mac-service.h"
#include "service_test_util.h"

using namespace servicetest;

namespace {

TEST(ServiceLayoutTest, PathsOfABundleAndANonAsciiHome)
{
    const std::vector<std::pair<const char*, std::string>> rows = {
        {"ascii", "someone"},
        {"composed", "h\xc3\xb6m\xc3\xa9-\xe9\x9b\xb2 user"},
        // Decomposed u + combining diaeresis stays decomposed: paths are
        // joined, never normalised.
        {"decomposed", "u\xcc\x88" "ber"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.first);
        TempDir dir;
        const std::string bundle = dir.path() + "/X.app", macos = bundle + "/Contents/MacOS";
        const std::string home = dir.path() + "/" + row.second;
        fs::create_directories(macos);
        fs::create_directories(home);
        fs::copy_file(SERVICE_HELPER, macos + "/service_helper");
        RunResult run = RunProgram({macos + "/service_helper", "layout"}, {{"HOME", home}});
        ASSERT_EQ(run.status, 0) << run.output;
        EXPECT_EQ(ParsePairs(run.output), (std::map<std::string, std::string>{
                                              {"root", bundle},  // no "..", no trailing "/"
                                              {"resources", bundle + "/Contents/Resources"},
                                              {"home", home},
                                              {"user", home + "/.Nimbulo"},
                                              {"app", home + "/.Nimbulo/Nimbulo.app"},
                                              {"data", home + "/.Nimbulo/data"},
                                              {"userAppPath", home + "/.Nimbulo/Nimbulo.app"},
                                              {"images", macos + "/images"},
                                              {"logroot", home + "/.Nimbulo_log"},
                                              {"debugflag", macos + "/log/launcher.debug"},
                                              {"package", macos + "/package/nimbulo.spk"},
                                              {"conf", macos + "/conf"},
                                          }));
        EXPECT_FALSE(fs::exists(home + "/.Nimbulo")) << "computing the layout created it";
    }
}

TEST(ServiceLayoutTest, FreshMacServiceState)
{
    MacService s;
    EXPECT_EQ(s.timeout, 10000);
    for (const ustring* v : {&s.targetMajorVersion, &s.targetMinorVersion, &s.targetBuildVersion,
                             &s.targetIconOverlayVersion, &s.sourceMajorVersion, &s.sourceMinorVersion,
                             &s.sourceBuildVersion, &s.sourceIconOverlayVersion})
        EXPECT_TRUE(v->empty()) << v->c_str();
}

TEST(ServiceLayoutTest, GetInstaceIsOneInstanceAlsoUnderConcurrentFirstCalls)
{
    std::atomic<int> ready(0);
    std::vector<MacService*> seen(8, nullptr);
    std::vector<std::thread> threads;
    for (size_t i = 0; i < seen.size(); ++i)
        threads.emplace_back([&, i] {
            for (ready++; ready.load() < static_cast<int>(seen.size());) {
            }
            seen[i] = MacService::GetInstace();
        });
    for (auto& t : threads)
        t.join();
    EXPECT_NE(seen[0], nullptr);
    EXPECT_EQ(seen, std::vector<MacService*>(seen.size(), MacService::GetInstace()));
    EXPECT_EQ(seen[0]->timeout, 10000);
}

}  // namespace
