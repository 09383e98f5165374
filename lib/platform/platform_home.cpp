// The user's home folder, the same on every platform that has POSIX: one
// rule for the whole program, so that the installation, its log and the
// client's process-id file are always looked for in the same place.
#include "platform/platform.h"

#include <cerrno>
#include <cstdlib>
#include <pwd.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <unistd.h>
#include <vector>

ustring PlatformHomeDir()
{
    const char* home = getenv("HOME");
    if (home != nullptr && home[0] == '/')
        return ustring(home);

    // HOME is missing or names no absolute folder (a service manager, a
    // stripped environment): the password database knows the real user's.
    long hint = sysconf(_SC_GETPW_R_SIZE_MAX);
    std::vector<char> buffer(hint > 0 ? static_cast<size_t>(hint) : 1024);
    struct passwd entry;
    struct passwd* found = nullptr;
    int err;
    while ((err = getpwuid_r(getuid(), &entry, buffer.data(), buffer.size(), &found)) == ERANGE &&
           buffer.size() < (1u << 20))
        buffer.resize(buffer.size() * 2);
    if (err != 0 || found == nullptr || found->pw_dir == nullptr || found->pw_dir[0] != '/')
        return ustring();
    // Accounts without a home of their own name a folder that does not exist
    // ("/nonexistent"); installing there would fail halfway.
    struct stat st;
    if (stat(found->pw_dir, &st) != 0 || !S_ISDIR(st.st_mode))
        return ustring();
    return ustring(found->pw_dir);
}
