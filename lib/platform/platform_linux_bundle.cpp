// Bundles on Linux. There is no registration database to forget, and the
// desktop's open service would only show a bundle's folder, so opening a
// bundle does what it does on macOS: it starts the bundle's application,
// unless that application already runs.
#include "platform/platform.h"
#include "platform/platform_linux_files.h"

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

ustring& RegistrationTool()
{
    static ustring tool;
    return tool;
}

// The executable a bundle names in Contents/Info.plist:
//   <key>CFBundleExecutable</key> <string>NAME</string>
// A missing file or key, or a name that would leave Contents/MacOS, gives
// the bundle's own name without its extension, as macOS does:
// /x/Some.app -> Some.
std::string BundleExecutableName(const std::string& bundle)
{
    std::string fallback = bundle.substr(bundle.rfind('/') + 1);
    if (fallback.size() > 4 && fallback.compare(fallback.size() - 4, 4, ".app") == 0)
        fallback.erase(fallback.size() - 4);
    std::string plist;
    if (!PlatformReadWholeFile(bundle + "/Contents/Info.plist", plist))
        return fallback;
    const std::string key = "<key>CFBundleExecutable</key>";
    size_t pos = plist.find(key);
    if (pos == std::string::npos)
        return fallback;
    pos = plist.find_first_not_of(" \t\r\n", pos + key.size());
    const std::string open = "<string>";
    if (pos == std::string::npos || plist.compare(pos, open.size(), open) != 0)
        return fallback;
    pos += open.size();
    size_t end = plist.find("</string>", pos);
    if (end == std::string::npos)
        return fallback;
    std::string name = plist.substr(pos, end - pos);
    if (name.empty() || name == "." || name == ".." || name.find('/') != std::string::npos)
        return fallback;
    return name;
}

// Whether a process of this user, other than this one, runs executable. The
// whole process table is asked rather than a pid file: a client started a
// moment ago by another launcher counts once its exec has succeeded, before
// it has written anything.
bool UserRuns(const std::string& executable)
{
    DIR* proc = opendir("/proc");
    if (proc == nullptr)
        return false;
    const uid_t uid = getuid();
    const pid_t self = getpid();
    bool found = false;
    while (!found) {
        struct dirent* entry = readdir(proc);
        if (entry == nullptr)
            break;
        char* end = nullptr;
        long pid = strtol(entry->d_name, &end, 10);
        if (pid <= 0 || *end != '\0' || pid == self)
            continue;
        struct stat st;
        if (fstatat(dirfd(proc), entry->d_name, &st, 0) != 0 || st.st_uid != uid)
            continue;
        found = PlatformProcessRuns(static_cast<pid_t>(pid), executable.c_str());
    }
    closedir(proc);
    return found;
}

// Starts executable in its own session with standard input from /dev/null,
// as a grandchild so that it is nobody's child here and leaves no zombie.
// A close-on-exec pipe carries the errno of a failed exec back; end of file
// on it means the exec succeeded.
bool StartDetached(const std::string& executable)
{
    int fds[2];
    if (pipe2(fds, O_CLOEXEC) != 0)
        return false;

    // Everything the children use is prepared before fork: after it only
    // async-signal-safe calls are allowed, the caller having threads.
    char* const argv[] = {const_cast<char*>(executable.c_str()), nullptr};
    // The launcher ignores SIGPIPE for itself; the client starts with the
    // usual disposition.
    struct sigaction defaultAction = {};
    defaultAction.sa_handler = SIG_DFL;
    sigemptyset(&defaultAction.sa_mask);

    pid_t child = fork();
    if (child < 0) {
        close(fds[0]);
        close(fds[1]);
        return false;
    }
    if (child == 0) {
        close(fds[0]);
        setsid();
        pid_t grandchild = fork();
        if (grandchild != 0) {
            if (grandchild < 0) {
                int err = errno;
                (void)!write(fds[1], &err, sizeof(err));
            }
            _exit(0);
        }
        int devnull = open("/dev/null", O_RDONLY);
        if (devnull >= 0) {
            dup2(devnull, STDIN_FILENO);
            if (devnull != STDIN_FILENO)
                close(devnull);
        }
#ifdef CLOSE_RANGE_CLOEXEC
        // What this process opens is close-on-exec already; this also keeps
        // back what it was itself handed above 2 by whoever started it.
        close_range(3, ~0U, CLOSE_RANGE_CLOEXEC);
#endif
        sigaction(SIGPIPE, &defaultAction, nullptr);
        sigset_t none;
        sigemptyset(&none);
        sigprocmask(SIG_SETMASK, &none, nullptr);
        execve(executable.c_str(), argv, environ);
        int err = errno;
        (void)!write(fds[1], &err, sizeof(err));
        _exit(127);
    }

    close(fds[1]);
    int status = 0;
    while (waitpid(child, &status, 0) < 0 && errno == EINTR) { }
    int err = 0;
    ssize_t n;
    while ((n = read(fds[0], &err, sizeof(err))) < 0 && errno == EINTR) { }
    close(fds[0]);
    return n == 0;
}

}  // namespace

void PlatformSetRegistrationTool(const ustring& tool)
{
    RegistrationTool() = tool;
}

ustring PlatformRegistrationTool()
{
    return RegistrationTool();
}

int PlatformForgetBundle(const ustring& bundle)
{
    const ustring tool = RegistrationTool();
    if (tool.empty())
        return 0;

    char* const argv[] = {const_cast<char*>(tool.c_str()), const_cast<char*>("-u"),
                          const_cast<char*>(bundle.c_str()), nullptr};
    // Not the launcher's own SIGPIPE disposition: the tool gets the default.
    posix_spawnattr_t attr;
    posix_spawnattr_init(&attr);
    sigset_t pipeOnly;
    sigemptyset(&pipeOnly);
    sigaddset(&pipeOnly, SIGPIPE);
    posix_spawnattr_setsigdefault(&attr, &pipeOnly);
    posix_spawnattr_setflags(&attr, POSIX_SPAWN_SETSIGDEF);
    pid_t pid = 0;
    int spawned = posix_spawn(&pid, tool.c_str(), nullptr, &attr, argv, environ);
    posix_spawnattr_destroy(&attr);
    if (spawned != 0)
        return -2;
    int status = 0;
    pid_t done;
    while ((done = waitpid(pid, &status, 0)) < 0 && errno == EINTR) { }
    if (done < 0 || !WIFEXITED(status))
        return -1;
    return WEXITSTATUS(status);
}

bool PlatformOpenBundle(const ustring& bundle)
{
    const std::string root = bundle.c_str();
    const std::string executable = root + "/Contents/MacOS/" + BundleExecutableName(root);
    if (UserRuns(executable))
        return true;
    return StartDetached(executable);
}
