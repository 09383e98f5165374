// File operations: free functions over the file system. Results are codes
// (0 success, negative failure) and failures are logged under
// "file_op_debug"; nothing throws for a file-system failure.
#ifndef NIMBULO_FILE_OP_H
#define NIMBULO_FILE_OP_H

#include <cstdint>
#include <dirent.h>

#include "libustring/ustring.h"

enum FILE_TYPE {
    FILE_TYPE_NONE = 0,
    FILE_TYPE_FILE = 1,
    FILE_TYPE_DIR = 2,
    FILE_TYPE_LINK = 3,
    FILE_TYPE_DEVICE = 5,
    FILE_TYPE_FIFO = 6,
    FILE_TYPE_SOCKET = 7,
};

struct _FILE_INFO_tag {
    _FILE_INFO_tag();

    ustring path;
    ustring name;
    int32_t type;
    int32_t mtime;
    int64_t size;
    bool exists;
    uint32_t uid;
    uint32_t gid;
    uint32_t mode;
    int64_t dev;
};
typedef _FILE_INFO_tag FILE_INFO;

// Compare exists, size, mtime, type, path and name.
bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);
bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);

struct DIR_HANDLE {
    DIR_HANDLE() : flags(0), dir(nullptr) { }

    ustring path;
    int32_t flags;  // bit 0: fill size and mtime of every entry
    DIR* dir;
};

struct DIR_ENTRY {
    DIR_ENTRY() : type(FILE_TYPE_NONE), mtime(0), size(0) { }

    ustring name;
    int32_t type;
    int32_t mtime;
    int64_t size;
};

// 0 with info filled (exists false when missing), -1 when it cannot be examined or resolved; never follows a last link.
int GetFileInfo(ustring const& path, _FILE_INFO_tag& info);
// Whether path exists (with exact: only as spelled on disk, in any Unicode form); false for an empty path.
bool IsFileExist(ustring const& path, bool exact);
// 0 (a missing path only sets info.exists false), -1 for an empty path, -2 when the information fails.
int FSStat(ustring const& path, _FILE_INFO_tag& info, bool exact);
// The text before the last '/', or "/" when that is the first byte or there is none; never touches the disk.
ustring FSParentPath(ustring const& path);
// The text after the last '/', empty after a trailing '/'; never touches the disk.
ustring FSBaseName(ustring const& path);
// Whether child is parent itself or lies below it, compared as bytes; never touches the disk.
bool FSIsParentFolder(ustring const& parent, ustring const& child);
// 0 when every folder of path exists, else -1 with errno set; *stop marks where it ended. Never removes a folder.
int FSMKDirP(ustring const& path, char** stop, bool replace_file, unsigned short mode);
// 0 when path is a folder, -1 when empty, unexaminable or something else, -2 when creating fails; never replaces.
int FSMKDir(ustring const& path, bool parents);
// 0 when every folder of target below root exists, else -1; never creates root itself.
int FSMKDirFromRoot(ustring const& target, ustring const& root);
// 0, -1, or -2 on a full disk; copies bytes only (no owner, mode or times); never removes a partial destination.
int FSCopy(ustring const& src, ustring const& dst, bool move);
// 0; -1 empty path, -2 src missing, -3 failed (also across volumes), -100 name too long. Never rolls back.
int FSRename(ustring const& src, ustring const& dst, bool exact);
// 0 when path is gone (or never was), -1 empty or unexaminable, -3 when something stayed; never follows a link.
int FSRemove(ustring const& path, bool flag);
// 0 with handle open, else -1 (logged) and handle untouched.
int FSOpenDir(ustring const& path, int flags, DIR_HANDLE& handle);
// 1 with entry filled ("." and ".." too), 0 at the end, -1 on failure; entry changes only on 1.
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);
// Closes the listing if one is open and empties handle; never fails, also on a handle never opened.
void FSCloseDir(DIR_HANDLE& handle);
// 0 with created naming a new empty file (mode 0644) in dir, else -1 (logged); never removes the file.
int FSMktemp(ustring const& dir, ustring& created);
// 0 with path set to dir + "/" + a random 8-character name, -1 when no name was made; never creates anything.
int FSCreateTempPath(ustring const& dir, ustring& path);
// 0, or -1; sets the times of a link itself, never of its target; never logs.
int FSUTime(ustring const& path, long atime, long mtime);
// Exactly a == b, no tolerance.
bool FSTimeEqual(long a, long b);
// True only when access(path, mode) is refused (EACCES, EPERM); a missing path is not locked.
bool isFileLocked(ustring const& path, int mode);
// False only when access(path, mode) is refused (EACCES, EPERM); a missing path counts as permitted.
bool hasFilePermission(ustring const& path, int mode);
// True on a network volume (nfs, smbfs, afpfs); false otherwise and when unknown (logged).
bool isMountPoint(ustring const& path);
// True, with a warning, on an msdos volume; false otherwise and when unknown (logged).
bool IsMSDOS(ustring const& path);
// 0 with path resolved, final links followed; else -1 with path unchanged; never logs a failure.
int FSGetRealPath(ustring& path);
// 0, or -1 (logged); never replaces what is at link.
int FSCreateSymbolicLink(ustring const& target, ustring const& link);
// 0 with target set; -1 (logged) on failure or a target of 1024 bytes or more; target changes only on 0.
int FSReadSymbolicLink(ustring const& link, ustring& target);
// 0, or -1 (logged); changes a link itself, never its target.
int FSChown(ustring const& path, unsigned int uid, unsigned int gid);

#endif
