// The platform layer. Each platform provides these functions; callers hold no
// platform conditionals of their own. It knows files, processes and bundles,
// never the product's own layout: callers pass every path it needs.
//
//   platform_mac.cpp            paths through CoreServices, volume types through
//                               statfs, processes through libproc.
//   platform_mac_bundle.cpp     the Launch Services tool and the desktop's open
//                               service.
//   platform_mac_start.cpp      where the executable is; a display is always there.
//   platform_linux.cpp          the same promises for paths, volumes and
//                               processes from POSIX and /proc.
//   platform_linux_bundle.cpp   bundles without Launch Services: the tool only
//                               when set, opening as starting the executable.
//   platform_linux_start.cpp    where the executable is, whether a display is there.
//   platform_home.cpp           the home folder (POSIX, both platforms).
#ifndef NIMBULO_PLATFORM_H
#define NIMBULO_PLATFORM_H

#include <cstdint>
#include <sys/types.h>
#include <vector>

#include "libustring/ustring.h"

// Resolves path to the absolute path of the same object with every existing
// component spelled as the file system stores it (letter case, Unicode form).
// followLeaf false keeps a final symbolic link as the link itself; true
// resolves it. Returns 0 and sets resolved, or a non-zero status when the
// path cannot be resolved (resolved is then untouched).
int PlatformResolvePath(const ustring& path, bool followLeaf, ustring& resolved);

// Name of the file-system type of the volume holding path, in the spelling
// callers compare ("nfs", "smbfs", "afpfs", "msdos", ...). 0 on success,
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
// application already runs. Where the desktop keeps no record of running
// applications, it runs when a process of this user runs the bundle's
// executable. true when the request was accepted.
bool PlatformOpenBundle(const ustring& bundle);

// Absolute path of the running executable, the one answer from which the
// bundle and everything in it is found. Linux: the kernel's record, so links
// and PATH look-ups are resolved; macOS: the main bundle's executable.
// Empty when the system cannot tell.
ustring PlatformExecutablePath();

// The user's home folder: HOME when it is set and absolute; otherwise the
// real user's folder in the password database, when that folder exists.
// Empty when neither is usable.
ustring PlatformHomeDir();

// Whether Qt's default platform can reach a display. When it cannot, reason
// says why, in a few words for the log.
bool PlatformDisplayReachable(ustring& reason);

// The largest process id the system hands out.
long PlatformMaxProcessId();

// The executable file that process pid runs, as an absolute path. On Linux a
// file removed or replaced since the process started reads as its old path
// followed by " (deleted)". 0 on success; -1 with errno set otherwise (ESRCH:
// no such process; EACCES or EPERM: the process may not be examined).
int PlatformProcessExecutable(pid_t pid, ustring& executable);

// Whether process pid runs the program at executable: the file itself, or
// the script an interpreter runs. Both sides are compared with symbolic links
// resolved. false when the process is gone or may not be examined.
bool PlatformProcessRuns(pid_t pid, const ustring& executable);

// Linux only (the macOS build neither has nor needs it): the name-matching
// step of PlatformResolvePath, kept free of the disk so it can be tested.
// Given the listing of a folder that may compare names without regard to
// letter case or Unicode form, returns the spelling the folder stores for
// name: an exact match; else an entry equal after NFD normalisation and ASCII
// case folding (the one whose inode is ino when several are); else the one
// entry whose inode is ino (ino 0: unknown); else name itself.
struct PlatformDirEntry {
    ustring name;
    uint64_t ino;
};
ustring PlatformStoredName(const std::vector<PlatformDirEntry>& listing, const ustring& name, uint64_t ino);

#endif
