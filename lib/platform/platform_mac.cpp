// macOS: the File Manager gives back the spelling a volume stores (letter
// case, Unicode form) of every component; statfs names the volume's type.
#include "platform.h"

#include <CoreServices/CoreServices.h>
#include <cstring>
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
