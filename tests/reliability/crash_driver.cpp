// crash_driver: starts the launcher and kills it with SIGKILL the moment a
// condition on disk holds, for scripts/crash-consistency.
//
//   crash_driver <condition> <launcher> [args...]
//
// Conditions (A = $HOME/.Nimbulo/Nimbulo.app, B = A + "_tmp"):
//   delay:MS         MS milliseconds after the start
//   log:TEXT         the launcher's log file contains TEXT
//   record:TEXT      the file $NIMBULO_SAMPLE_RECORD contains TEXT
//   backup           B exists
//   entries:K        B exists and A holds at least K entries (files,
//                    folders, links): the extraction is under way
//   installed        B was seen, and A/Contents/Resources/INFO exists (the
//                    package's last entry)
//   removing:K       installed, and B holds fewer than K entries
//   cleaned          installed, and B no longer exists
//
// Prints one line: "killed <condition> after <ms> ms: entries=<n> backup=<n>
// info=<0|1>", or "exited <condition> ..." when the launcher ended first.
// Exit status: 0 killed, 3 exited first, 2 usage or start failure. Polls
// every 200 microseconds; meant to run inside a PID namespace of its own.
#include <dirent.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>

namespace {

// Entries below path, not counting path itself; -1 when it does not exist.
long CountEntries(const std::string& path)
{
    DIR* dir = opendir(path.c_str());
    if (dir == nullptr)
        return -1;
    long n = 0;
    while (struct dirent* e = readdir(dir)) {
        if (strcmp(e->d_name, ".") == 0 || strcmp(e->d_name, "..") == 0)
            continue;
        ++n;
        if (e->d_type == DT_DIR) {
            long sub = CountEntries(path + "/" + e->d_name);
            if (sub > 0)
                n += sub;
        }
    }
    closedir(dir);
    return n;
}

bool Exists(const std::string& path)
{
    struct stat st;
    return lstat(path.c_str(), &st) == 0;
}

bool FileContains(const std::string& path, const std::string& text)
{
    std::ifstream in(path, std::ios::binary);
    std::string all((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
    return all.find(text) != std::string::npos;
}

}  // namespace

int main(int argc, char** argv)
{
    if (argc < 3) {
        fprintf(stderr, "usage: crash_driver <condition> <launcher> [args...]\n");
        return 2;
    }
    const char* homeEnv = getenv("HOME");
    const std::string home = homeEnv != nullptr ? homeEnv : "";
    const std::string app = home + "/.Nimbulo/Nimbulo.app";
    const std::string backup = app + "_tmp";
    const std::string info = app + "/Contents/Resources/INFO";
    const std::string log = home + "/.Nimbulo/log/launcher.log";
    const char* recordEnv = getenv("NIMBULO_SAMPLE_RECORD");
    const std::string record = recordEnv != nullptr ? recordEnv : "";
    const std::string cond = argv[1];
    const std::string kind = cond.substr(0, cond.find(':'));
    const std::string arg = cond.find(':') == std::string::npos ? "" : cond.substr(cond.find(':') + 1);
    const long k = atol(arg.c_str());

    const auto start = std::chrono::steady_clock::now();
    pid_t pid = fork();
    if (pid < 0)
        return 2;
    if (pid == 0) {
        // The launcher's own start-up line would mix with the report.
        if (freopen("/dev/null", "w", stdout) == nullptr)
            _exit(127);
        execv(argv[2], argv + 2);
        _exit(127);
    }

    auto elapsedMs = [&] {
        return std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - start).count();
    };
    // The old installation has a version file too: the phases after the
    // extraction only count once the backup has been seen.
    bool sawBackup = false;
    auto holds = [&]() -> bool {
        sawBackup = sawBackup || Exists(backup);
        if (kind == "delay")
            return elapsedMs() >= k;
        if (kind == "log")
            return FileContains(log, arg);
        if (kind == "record")
            return FileContains(record, arg);
        if (kind == "backup")
            return Exists(backup);
        if (kind == "entries")
            return Exists(backup) && CountEntries(app) >= k;
        if (kind == "installed")
            return sawBackup && Exists(info);
        if (kind == "removing")
            return sawBackup && Exists(info) && CountEntries(backup) < k;
        if (kind == "cleaned")
            return sawBackup && Exists(info) && !Exists(backup);
        fprintf(stderr, "crash_driver: unknown condition '%s'\n", cond.c_str());
        kill(pid, SIGKILL);
        waitpid(pid, nullptr, 0);
        exit(2);
    };

    bool killed = false;
    for (;;) {
        if (holds()) {
            kill(pid, SIGKILL);
            killed = true;
            break;
        }
        if (waitpid(pid, nullptr, WNOHANG) == pid)
            break;
        usleep(200);
    }
    if (killed)
        waitpid(pid, nullptr, 0);
    printf("%s %s after %ld ms: entries=%ld backup=%ld info=%d\n", killed ? "killed" : "exited", cond.c_str(),
           static_cast<long>(elapsedMs()), CountEntries(app), CountEntries(backup), Exists(info) ? 1 : 0);
    return killed ? 0 : 3;
}
