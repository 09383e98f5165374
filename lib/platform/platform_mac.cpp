// macOS: the File Manager gives back the spelling a volume stores (letter
// case, Unicode form) of every component; statfs names the volume's type;
// libproc tells what a process runs.
#include "platform/platform.h"

#include <CoreServices/CoreServices.h>
#include <cerrno>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <libproc.h>
#include <string>
#include <sys/mount.h>
#include <sys/param.h>

// The FSRef path calls are deprecated, yet they are the ones that return the
// stored spelling of a whole path in one step.
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wdeprecated-declarations"

int PlatformResolvePath(const ustring& path, bool followLeaf, ustring& resolved)
{
    const UInt8* in = reinterpret_cast<const UInt8*>(path.c_str());
    FSRef ref;
    OSStatus status = followLeaf
                          ? FSPathMakeRef(in, &ref, nullptr)
                          : FSPathMakeRefWithOptions(in, kFSPathMakeRefDoNotFollowLeafSymlink, &ref, nullptr);
    if (status != noErr)
        return static_cast<int>(status);
    UInt8 buffer[4096];
    memset(buffer, 0, sizeof(buffer));
    status = FSRefMakePath(&ref, buffer, sizeof(buffer));
    if (status != noErr)
        return static_cast<int>(status);
    resolved = reinterpret_cast<const char*>(buffer);
    return 0;
}

#pragma clang diagnostic pop

int PlatformFileSystemTypeName(const ustring& path, ustring& typeName)
{
    struct statfs sfs;
    if (statfs(path.c_str(), &sfs) != 0)
        return -1;
    typeName = sfs.f_fstypename;
    return 0;
}

long PlatformMaxProcessId()
{
    // The kernel hands out ids below PID_MAX (99999), which no public header
    // or sysctl names.
    return 99998;
}

int PlatformProcessExecutable(pid_t pid, ustring& executable)
{
    if (pid <= 0) {
        errno = ESRCH;
        return -1;
    }
    char path[PROC_PIDPATHINFO_MAXSIZE];
    if (proc_pidpath(pid, path, sizeof(path)) <= 0)
        return -1;
    executable = path;
    return 0;
}

// The client is a binary there; a script's interpreter is not looked into.
bool PlatformProcessRuns(pid_t pid, const ustring& executable)
{
    ustring running;
    if (PlatformProcessExecutable(pid, running) != 0)
        return false;
    char wanted[PATH_MAX];
    if (realpath(executable.c_str(), wanted) == nullptr)
        return std::string(running.c_str()) == executable.c_str();
    return std::string(running.c_str()) == wanted;
}
