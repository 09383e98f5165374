// File operations: free functions over the file system. Results are codes
// (0 success, negative failure) and failures are logged under
// "file_op_debug"; nothing throws for a file-system failure.
#ifndef NIMBULO_FILE_OP_H
#define NIMBULO_FILE_OP_H

#include <cstdint>
#include <dirent.h>

#include "ustring.h"

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
    DIR_HANDLE() : flags(0), dir(nullptr) {}

    ustring path;
    int32_t flags;  // bit 0: fill size and mtime of every entry
    DIR* dir;
};

struct DIR_ENTRY {
    DIR_ENTRY() : type(FILE_TYPE_NONE), mtime(0), size(0) {}

    ustring name;
    int32_t type;
    int32_t mtime;
    int64_t size;
};

int GetFileInfo(ustring const& path, _FILE_INFO_tag& info);
bool IsFileExist(ustring const& path, bool exact);
int FSStat(ustring const& path, _FILE_INFO_tag& info, bool exact);
ustring FSParentPath(ustring const& path);
ustring FSBaseName(ustring const& path);
bool FSIsParentFolder(ustring const& parent, ustring const& child);
int FSMKDirP(ustring const& path, char** stop, bool replace_file, unsigned short mode);
int FSMKDir(ustring const& path, bool parents);
int FSMKDirFromRoot(ustring const& target, ustring const& root);
int FSCopy(ustring const& src, ustring const& dst, bool move);
int FSRename(ustring const& src, ustring const& dst, bool exact);
int FSRemove(ustring const& path, bool flag);
int FSOpenDir(ustring const& path, int flags, DIR_HANDLE& handle);
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);
void FSCloseDir(DIR_HANDLE& handle);
int FSMktemp(ustring const& dir, ustring& created);
int FSCreateTempPath(ustring const& dir, ustring& path);
int FSUTime(ustring const& path, long atime, long mtime);
bool FSTimeEqual(long a, long b);
bool isFileLocked(ustring const& path, int mode);
bool hasFilePermission(ustring const& path, int mode);
bool isMountPoint(ustring const& path);
bool IsMSDOS(ustring const& path);
int FSGetRealPath(ustring& path);
int FSCreateSymbolicLink(ustring const& target, ustring const& link);
int FSReadSymbolicLink(ustring const& link, ustring& target);
int FSChown(ustring const& path, unsigned int uid, unsigned int gid);

#endif
