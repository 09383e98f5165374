// main() of the service tests that need a bundle of their own: the bundle
// root is derived from the running executable's folder, so the program
// copies itself into <tmp>/Test.app/Contents/MacOS and runs that copy. Each
// test process thus has its own bundle and CTest may run them in parallel.
// The copy finds the bundle root in NIMBULO_TEST_BUNDLE.
#include <gtest/gtest.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <string>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>

namespace fs = std::filesystem;

namespace {

bool ListingOnly(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i)
        if (strncmp(argv[i], "--gtest_list_tests", 18) == 0)
            return true;
    return false;
}

int RunRelocated(int argc, char** argv)
{
    std::string tmpl = (fs::temp_directory_path() / "nimbulo-bundle-XXXXXX").string();
    if (mkdtemp(&tmpl[0]) == nullptr) {
        perror("mkdtemp");
        return 1;
    }
    std::string root = fs::canonical(tmpl).string();
    std::string bundle = root + "/Test.app";
    std::string macos = bundle + "/Contents/MacOS";
    std::error_code ec;
    fs::create_directories(macos, ec);
    std::string copy = macos + "/" + fs::path(argv[0]).filename().string();
    fs::copy_file("/proc/self/exe", copy, ec);
    if (ec) {
        fprintf(stderr, "cannot copy the test program: %s\n", ec.message().c_str());
        fs::remove_all(root, ec);
        return 1;
    }
    fs::permissions(copy, fs::perms::owner_all, fs::perm_options::add, ec);

    pid_t pid = fork();
    if (pid == 0) {
        setenv("NIMBULO_TEST_BUNDLE", bundle.c_str(), 1);
        argv[0] = &copy[0];
        (void)argc;
        execv(copy.c_str(), argv);
        perror("execv");
        _exit(127);
    }
    int status = 0;
    while (waitpid(pid, &status, 0) < 0 && errno == EINTR) {
    }
    if (getenv("NIMBULO_KEEP_TMP") == nullptr) {
        fs::permissions(root, fs::perms::owner_all, fs::perm_options::add, ec);
        fs::remove_all(root, ec);
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

}  // namespace

int main(int argc, char** argv)
{
    if (getenv("NIMBULO_TEST_BUNDLE") == nullptr && !ListingOnly(argc, argv))
        return RunRelocated(argc, argv);
    QCoreApplication app(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
