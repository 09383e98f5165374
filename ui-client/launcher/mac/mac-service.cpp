#include "mac/mac-service.h"

#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <sys/types.h>
#include <unistd.h>

#include "libfile/file-op.h"
#include "liblogger/config.h"
#include "liblogger/log.h"
#include "platform/platform.h"

namespace {

const char* const kComponent = "service_debug";

// A process id as the client writes it: decimal digits only, greater than 0
// and no larger than the system allows.
//
// Everything else is refused before it can reach kill(). There a process id
// of 0 addresses the caller's own process group, and -1 every process the
// caller may signal: as root, kill(-1, SIGKILL) ends every process on the
// machine. A text such as "-1", an empty value or a number that would wrap
// into a negative pid_t must therefore never be converted and used.
bool ParseProcessId(const ustring& text, pid_t& pid)
{
    if (text.empty())
        return false;
    const long limit = PlatformMaxProcessId();
    long value = 0;
    for (size_t i = 0; i < text.length(); ++i) {
        char c = text[i];
        if (c < '0' || c > '9')
            return false;
        value = value * 10 + (c - '0');
        if (value > limit)
            return false;
    }
    if (value <= 0)
        return false;
    pid = static_cast<pid_t>(value);
    return true;
}

// Results of ReadClientPid besides 0.
const int kPidFileMissing = -1;
const int kPidFileUnreadable = -2;
const int kPidValueInvalid = -3;

// The one reader of the client's process-id file. 0 and the pid; or one of
// the codes above, with the value as the file holds it for kPidValueInvalid.
int ReadClientPid(const ustring& pidFile, pid_t& pid, ustring& value)
{
    if (!IsFileExist(pidFile, false))
        return kPidFileMissing;
    Config config;
    if (config.read(pidFile) < 0)
        return kPidFileUnreadable;
    value = config.table["pid"];
    return ParseProcessId(value, pid) ? 0 : kPidValueInvalid;
}

ustring ClientPidFile()
{
    return Service::GetUserNimbuloInstallPath() + "/ui.pid";
}

void SleepOneSecond()
{
    struct timespec left = {1, 0};
    while (nanosleep(&left, &left) != 0 && errno == EINTR) { }
}

}  // namespace

MacService::MacService()
{
    timeout = 10000;
    userAppPath = GetUserNimbuloAppInstallPath();
}

MacService* MacService::GetInstace()
{
    static MacService instance;
    return &instance;
}

void MacService::LoadSourceVerInfo()
{
    Service::LoadSourceVersion();
}

void MacService::LoadTargetVerInfo()
{
    Service::LoadTargetVersion();
}

void MacService::PreUpgrade()
{
    Service::LoadTargetVersion();
    Service::LoadSourceVersion();
    Logger::LogMsg(Logger::LEVEL_DEBUG, kComponent,
                   "[DEBUG] mac/mac-service(%d): Source version: ('%s', '%s')\n", __LINE__,
                   sourceBuildVersion.c_str(), sourceIconOverlayVersion.c_str());
    Logger::LogMsg(Logger::LEVEL_DEBUG, kComponent,
                   "[DEBUG] mac/mac-service(%d): Target version: ('%s', '%s')\n", __LINE__,
                   targetBuildVersion.c_str(), targetIconOverlayVersion.c_str());
}

bool MacService::IsNeedUpgrade()
{
    int source = BuildNumber(sourceBuildVersion);
    int target = BuildNumber(targetBuildVersion);
    Logger::LogMsg(Logger::LEVEL_DEBUG, kComponent,
                   "[DEBUG] mac/mac-service(%d): source version = %d, target version = %d\n", __LINE__,
                   source, target);
    return !PerUserBinPathExist() || target > source;
}

int MacService::HandlePackageUpgrade()
{
    if (PerUserBinPathExist()) {
        Logger::LogMsg(Logger::LEVEL_DEBUG, kComponent, "[DEBUG] mac/mac-service(%d): local appdata exist\n",
                       __LINE__);
        StopService();
    }
    return PrepareUserEnv();
}

void MacService::StopService()
{
    ustring pidFile = ClientPidFile();
    ustring value;
    pid_t pid = 0;
    switch (ReadClientPid(pidFile, pid, value)) {
    case kPidFileMissing:
        Logger::LogMsg(Logger::LEVEL_DEBUG, kComponent,
                       "[DEBUG] mac/mac-service(%d): pid file '%s' does not exist, no need to terminate\n",
                       __LINE__, pidFile.c_str());
        return;
    case kPidFileUnreadable:
        Logger::LogMsg(Logger::LEVEL_NOTE, kComponent,
                       "[NOTE] mac/mac-service(%d): Failed to read pid file '%s', not exist ?\n", __LINE__,
                       pidFile.c_str());
        return;
    case kPidValueInvalid:
        Logger::LogMsg(
            Logger::LEVEL_NOTE, kComponent,
            "[NOTE] mac/mac-service(%d): pid file '%s' holds no valid pid '%s', no need to terminate\n",
            __LINE__, pidFile.c_str(), value.c_str());
        return;
    default:
        break;
    }

    // A client that crashed leaves its pid behind, and the system may have
    // given that id to any other process since: only a process running the
    // installed client is signalled, never this launcher nor process 1.
    ustring client = ClientExecutable();
    if (pid == getpid() || pid == 1 || !PlatformProcessRuns(pid, client)) {
        ustring runs;
        if (PlatformProcessExecutable(pid, runs) != 0) {
            int err = errno;
            if (err == ESRCH)
                return;
            const char* text = strerror(err);
            runs = ustring("unknown (") + (text != nullptr ? text : "") + ")";
        }
        Logger::LogMsg(
            Logger::LEVEL_NOTE, kComponent,
            "[NOTE] mac/mac-service(%d): pid %d runs '%s', not the client '%s', no need to terminate\n",
            __LINE__, static_cast<int>(pid), runs.c_str(), client.c_str());
        return;
    }

    if (kill(pid, SIGTERM) != 0) {
        int err = errno;
        if (err == ESRCH)
            return;
        const char* text = strerror(err);
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent, "[ERROR] mac/mac-service(%d): kill: %s (%d)\n",
                       __LINE__, text != nullptr ? text : "", err);
    }

    // Five probes, each followed by a one-second pause while the process is
    // still there (or cannot be probed), then the forced end.
    for (int probe = 0; probe < 5; ++probe) {
        if (kill(pid, 0) != 0 && errno == ESRCH)
            return;
        SleepOneSecond();
    }
    kill(pid, SIGKILL);
}

ustring MacService::ClientExecutable() const
{
    return userAppPath + "/" + "Contents/MacOS" + "/" + "nimbulo-pelora-ui";
}

bool MacService::PerUserBinPathExist()
{
    return access(ClientExecutable().c_str(), F_OK) == 0;
}

int MacService::LaunchPerUserBin()
{
    ustring bundle = GetUserInstallPath() + "/.Nimbulo/Nimbulo.app";
    if (PlatformForgetBundle(bundle) != 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                       "[ERROR] mac/mac-service(%d): Cannot unregister bundle, %s", __LINE__, bundle.c_str());
    }
    return PlatformOpenBundle(bundle) ? 0 : -1;
}

void MacService::PostUpgrade()
{
    if (LaunchPerUserBin() < 0)
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                       "[ERROR] mac/mac-service(%d): Failed to launch Nimbulo UI\n", __LINE__);
}
