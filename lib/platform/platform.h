// The platform layer. Each platform provides these functions; callers hold no
// platform conditionals of their own.
//
//   platform_mac.cpp    CoreServices, the Launch Services tool, the desktop's
//                       open service.
//   platform_linux.cpp  the same promises from POSIX and /proc.
#ifndef NIMBULO_PLATFORM_H
#define NIMBULO_PLATFORM_H

#include "ustring.h"

// Resolves path to the absolute path of the same object with every existing
// component spelled as the file system stores it (letter case, Unicode form).
// followLeaf false keeps a final symbolic link as the link itself; true
// resolves it. Returns 0 and sets resolved, or a non-zero status when the
// path cannot be resolved (resolved is then untouched).
int PlatformResolvePath(const ustring& path, bool followLeaf, ustring& resolved);

// Name of the file-system type of the volume holding path, as the design's
// callers compare it ("nfs", "smbfs", "afpfs", "msdos", ...). 0 on success,
// -1 with errno set when the volume cannot be examined.
int PlatformFileSystemTypeName(const ustring& path, ustring& typeName);

// Makes the desktop forget its registration of the bundle. Returns the
// registration tool's exit code: 0 success; -2 when it cannot be started;
// -1 when it crashed. Where the platform has no registration database and
// no tool is set, nothing runs and the result is 0.
int PlatformForgetBundle(const ustring& bundle);

// Replaces the registration tool (tests); an empty path restores the default.
void PlatformSetRegistrationTool(const ustring& tool);
ustring PlatformRegistrationTool();

// Opens the application bundle, which starts its application unless that
// application already runs. true when the request was accepted.
bool PlatformOpenBundle(const ustring& bundle);

#endif
