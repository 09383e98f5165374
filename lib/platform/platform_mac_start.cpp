// macOS: the desktop starts the launcher by the executable inside its
// bundle, and the window server is always there.
#include "platform/platform.h"

#include <CoreFoundation/CoreFoundation.h>
#include <climits>

ustring PlatformExecutablePath()
{
    ustring path;
    CFBundleRef bundle = CFBundleGetMainBundle();
    CFURLRef url = bundle != nullptr ? CFBundleCopyExecutableURL(bundle) : nullptr;
    if (url == nullptr)
        return path;
    UInt8 buffer[PATH_MAX];
    if (CFURLGetFileSystemRepresentation(url, true, buffer, sizeof(buffer)))
        path = reinterpret_cast<const char*>(buffer);
    CFRelease(url);
    return path;
}

bool PlatformDisplayReachable(ustring& reason)
{
    (void)reason;
    return true;
}
