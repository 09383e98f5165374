// main() of the service tests that need a bundle of their own: the bundle
// root is derived from the running executable's folder, so the program runs
// a copy of itself from <tmp>/Test.app/Contents/MacOS, which finds the bundle
// in NIMBULO_TEST_BUNDLE. Each test process has its own bundle, so CTest may
// run them in parallel.
#include <QCoreApplication>
#include <algorithm>
#include <cstring>

#include "service_test_util.h"

using namespace servicetest;

namespace {

int RunRelocated(int argc, char** argv)
{
    TempDir root;
    const std::string bundle = root.path() + "/Test.app";
    const std::string copy = bundle + "/Contents/MacOS/" + fs::path(argv[0]).filename().string();
    std::error_code ec;
    fs::create_directories(fs::path(copy).parent_path(), ec);
    fs::copy_file("/proc/self/exe", copy, ec);
    fs::permissions(copy, fs::perms::owner_all, fs::perm_options::add, ec);
    if (ec) {
        fprintf(stderr, "cannot copy the test program: %s\n", ec.message().c_str());
        return 1;
    }
    std::vector<std::string> args(argv, argv + argc);
    args[0] = copy;
    // Standard output goes through the pipe; pass it on.
    RunResult run = RunProgram(args, {{"NIMBULO_TEST_BUNDLE", bundle}});
    fputs(run.output.c_str(), stdout);
    return run.status;
}

}  // namespace

int main(int argc, char** argv)
{
    bool listing =
        std::any_of(argv + 1, argv + argc, [](const char* a) { return strncmp(a, "--gtest_list_tests", 18) == 0; });
    if (getenv("NIMBULO_TEST_BUNDLE") == nullptr && !listing)
        return RunRelocated(argc, argv);
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
