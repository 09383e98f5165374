// Helper program of the upgrade-service tests.
//   service_helper layout: prints the installation paths as key=value lines,
//       run from a copy inside a bundle's Contents/MacOS.
//   service_helper ns <case> <dir>: runs one StopService case as process 1
//       of a fresh PID namespace, and refuses otherwise: the cases hand kill()
//       ids such as 0 and -1, which address process groups or every process.
//       Process 1 reaps every process and records how each ended in
//       <dir>/reaped; the case runs in a child and writes <dir>/result.
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QCoreApplication>

#include "log.h"
#include "mac-service.h"

namespace {

std::string g_dir;

void Append(const std::string& path, const std::string& text)
{
    FILE* fp = fopen(path.c_str(), "a");
    if (fp != nullptr) {
        fputs(text.c_str(), fp);
        fclose(fp);
    }
}

void SleepMs(long ms)
{
    struct timespec left = {ms / 1000, (ms % 1000) * 1000000L};
    while (nanosleep(&left, &left) != 0 && errno == EINTR) {
    }
}

int Layout(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    MacService service;
    PackageInfo info;
    // clang-format off
    printf("root=%s\n", Service::GetRootNimbuloInstallPath().c_str());
    printf("resources=%s\n", Service::GetRootNimbuloResourceInstallPath().c_str());
    printf("home=%s\n", Service::GetUserInstallPath().c_str());
    printf("user=%s\n", Service::GetUserNimbuloInstallPath().c_str());
    printf("app=%s\n", Service::GetUserNimbuloAppInstallPath().c_str());
    printf("data=%s\n", Service::GetUserNimbuloDataInstallPath().c_str());
    printf("userAppPath=%s\n", service.userAppPath.c_str());
    printf("images=%s\n", info.imagesPath.c_str());
    printf("logroot=%s\n", info.logRootPath.c_str());
    printf("debugflag=%s\n", info.debugFlagPath.c_str());
    printf("package=%s\n", info.packagePath.c_str());
    printf("conf=%s\n", info.confPath.c_str());
    // clang-format on
    return 0;
}

volatile sig_atomic_t g_terminated = 0;

void OnTerm(int)
{
    g_terminated = 1;
}

enum ClientKind { kExitsAtOnce, kExitsLater, kIgnoresTerm, kSentinel };

void ClientMain(ClientKind kind, int readyFd)
{
    std::string record = g_dir + "/client";
    if (kind == kExitsLater || kind == kIgnoresTerm) {
        struct sigaction sa;
        memset(&sa, 0, sizeof(sa));
        sa.sa_handler = OnTerm;
        sigaction(SIGTERM, &sa, nullptr);
    }
    pid_t self = getpid();
    (void)!write(readyFd, &self, sizeof(self));
    close(readyFd);
    if (kind == kExitsAtOnce)
        _exit(0);
    for (;;) {
        if (g_terminated) {
            g_terminated = 0;
            Append(record, "term\n");
            if (kind == kExitsLater) {
                SleepMs(1500);
                Append(record, "exit\n");
                _exit(0);
            }
        }
        pause();
    }
}

// The client's pid once it is ready for signals, -1 on failure. A grandchild,
// so that process 1 reaps it the moment it ends: a child of ours would linger
// as a zombie, which kill(pid, 0) still finds.
pid_t StartClient(ClientKind kind)
{
    int fds[2];
    if (pipe(fds) != 0)
        return -1;
    pid_t child = fork();
    if (child == 0) {
        close(fds[0]);
        if (fork() == 0)
            ClientMain(kind, fds[1]);
        _exit(0);
    }
    close(fds[1]);
    waitpid(child, nullptr, 0);
    pid_t pid = -1;
    if (read(fds[0], &pid, sizeof(pid)) != sizeof(pid))
        pid = -1;
    close(fds[0]);
    return pid;
}

bool Gone(pid_t pid)
{
    return kill(pid, 0) != 0 && errno == ESRCH;
}

int RunCase(const std::string& name)
{
    std::string home = g_dir + "/home";
    setenv("HOME", home.c_str(), 1);
    mkdir(home.c_str(), 0755);
    mkdir((home + "/.Nimbulo").c_str(), 0755);
    std::string pidFile = home + "/.Nimbulo/ui.pid";
    std::string result = g_dir + "/result";

    Append(g_dir + "/debug", "service_debug=7\n");
    Logger::Initialize(Logger::TYPE_FILE, (g_dir + "/service.log").c_str(), (g_dir + "/debug").c_str(), 50);

    pid_t client = -1;
    if (name == "nofile") {
    } else if (name == "stale") {
        client = StartClient(kExitsAtOnce);
        for (int i = 0; i < 200 && !Gone(client); ++i)
            SleepMs(10);
        if (!Gone(client))
            return 2;
        Append(pidFile, "pid=" + std::to_string(client) + "\n");
    } else if (name == "slow" || name == "ignore") {
        client = StartClient(name == "slow" ? kExitsLater : kIgnoresTerm);
        if (client <= 1)
            return 2;
        // The client runs this program: installed as the client executable,
        // it passes for the client.
        std::string macos = home + "/.Nimbulo/Nimbulo.app/Contents/MacOS";
        std::error_code ec;
        std::filesystem::create_directories(macos, ec);
        std::filesystem::create_symlink(std::filesystem::read_symlink("/proc/self/exe", ec),
                                        macos + "/nimbulo-pelora-ui", ec);
        if (ec)
            return 2;
        Append(pidFile, "pid=" + std::to_string(client) + "\n");
    } else if (name.compare(0, 5, "file:") == 0) {
        // The pid file's content from the test; a sentinel in the same
        // group and namespace shows whether anything was signalled.
        client = StartClient(kSentinel);
        if (client <= 1)
            return 2;
        Append(pidFile, name.substr(5));
    } else {
        return 2;
    }

    MacService service;
    auto start = std::chrono::steady_clock::now();
    service.StopService();
    auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start);
    Append(result, "elapsed_ms=" + std::to_string(elapsed.count()) + "\n");

    if (client > 1) {
        long long waited = 0;
        // Process 1 reaps a killed client within moments; one still alive
        // ends with the namespace.
        for (; (name == "ignore" || name == "slow") && !Gone(client) && waited < 1000; waited += 10)
            SleepMs(10);
        if (name != "ignore" && name != "slow")
            SleepMs(200);
        Append(result, "client=" + std::to_string(client) + "\nclient_gone=" + (Gone(client) ? "1" : "0") +
                           "\ngone_after_ms=" + std::to_string(waited) + "\n");
    }
    return 0;
}

int Namespace(const std::string& name)
{
    if (getpid() != 1) {
        fprintf(stderr, "service_helper: not process 1 of a fresh PID namespace, refusing to run\n");
        return 3;
    }
    // kill(0, ...) from the case must not reach the group of whoever started us.
    if (setsid() < 0) {
        fprintf(stderr, "service_helper: setsid failed, refusing to run\n");
        return 3;
    }
    std::string reaped = g_dir + "/reaped";
    pid_t runner = fork();
    if (runner == 0)
        _exit(RunCase(name));
    for (;;) {
        int status = 0;
        pid_t pid = waitpid(-1, &status, 0);
        if (pid < 0) {
            if (errno == EINTR)
                continue;
            return 4;
        }
        if (pid == runner)
            return WIFEXITED(status) ? WEXITSTATUS(status) : 5;
        Append(reaped, std::to_string(pid) + (WIFSIGNALED(status) ? " signal " + std::to_string(WTERMSIG(status))
                                                                   : " exit " + std::to_string(WEXITSTATUS(status))) +
                           "\n");
    }
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc >= 2 && strcmp(argv[1], "layout") == 0)
        return Layout(argc, argv);
    if (argc == 4 && strcmp(argv[1], "ns") == 0) {
        g_dir = argv[3];
        return Namespace(argv[2]);
    }
    fprintf(stderr, "usage: service_helper layout | ns <case> <dir>\n");
    return 2;
}
