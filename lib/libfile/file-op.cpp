// File operations over POSIX calls. Paths that need the spelling the file
// system stores go through the platform layer (PlatformResolvePath).
#include "libfile/file-op.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/time.h>
#include <unistd.h>

#include "liblogger/log.h"
#include "libtmpname/tmp_name_gen.h"
#include "platform/platform.h"

namespace {

const size_t kCopyChunk = 33554432;  // 32 MiB
const size_t kPathBuffer = 4096;
const size_t kLinkBuffer = 1024;

const ustring& Component()
{
    static const ustring component("file_op_debug");
    return component;
}

const char* ErrorText(int err)
{
    const char* text = strerror(err);
    return text ? text : "";
}

// Stand-ins, among a PosixError message's arguments, for the failed call's
// errno and its text; the messages place them in different orders.
enum ErrnoNumber { kErrno };
enum ErrnoText { kErrnoText };

template<typename T> T ErrnoArg(T value, int)
{
    return value;
}
int ErrnoArg(ErrnoNumber, int err)
{
    return err;
}
const char* ErrnoArg(ErrnoText, int err)
{
    return ErrorText(err);
}

// The one place where a failed call's errno becomes a message and a result:
// logs format at error level with the line and args (kErrno and kErrnoText
// filled in), leaves errno as the call set it, and gives back code.
template<typename Result, typename... Args>
Result PosixError(Result code, int line, const char* format, Args... args)
{
    const int err = errno;
    Logger::LogMsg(Logger::LEVEL_ERROR, Component(), format, line, ErrnoArg(args, err)...);
    errno = err;
    return code;
}

// A write that failed for want of room gives -2, so that callers can tell a
// full disk from other failures.
int WriteFailure(int err)
{
    return err == ENOSPC || err == EDQUOT ? -2 : -1;
}

// The text after the last '/'; empty after a trailing '/'; all of it
// without any '/'.
ustring LastComponent(ustring const& path)
{
    const char* s = path.c_str();
    const char* slash = strrchr(s, '/');
    return ustring(slash ? slash + 1 : s);
}

int TypeFromMode(mode_t mode)
{
    switch (mode & S_IFMT) {
    case S_IFREG:
        return FILE_TYPE_FILE;
    case S_IFDIR:
        return FILE_TYPE_DIR;
    case S_IFLNK:
        return FILE_TYPE_LINK;
    case S_IFCHR:
    case S_IFBLK:
        return FILE_TYPE_DEVICE;
    case S_IFIFO:
        return FILE_TYPE_FIFO;
    case S_IFSOCK:
        return FILE_TYPE_SOCKET;
    default:
        return -1;
    }
}

int TypeFromDirent(unsigned char type)
{
    switch (type) {
    case DT_REG:
        return FILE_TYPE_FILE;
    case DT_DIR:
        return FILE_TYPE_DIR;
    case DT_LNK:
        return FILE_TYPE_LINK;
    case DT_CHR:
    case DT_BLK:
        return FILE_TYPE_DEVICE;
    case DT_FIFO:
        return FILE_TYPE_FIFO;
    case DT_SOCK:
        return FILE_TYPE_SOCKET;
    default:
        return FILE_TYPE_NONE;
    }
}

// NFC form for the exact-name test. A name that is not valid UTF-8 has no
// normal form (normalize would give an empty text and make every such name
// equal), so it is compared as it is.
ustring ComparableForm(ustring const& s)
{
    if (!ustring::is_valid(s))
        return s;
    return ustring::normalize(s, ustring::nfc);
}

bool IsDotOrDotDot(ustring const& name)
{
    return strcmp(name.c_str(), ".") == 0 || strcmp(name.c_str(), "..") == 0;
}

// Moves what is neither a folder nor a regular file to another volume.
// A symbolic link is recreated with the same target, so that a folder tree
// holding links (frameworks inside a bundle) moves whole; devices, pipes and
// sockets cannot be carried over and stay where they are.
int MoveSpecialAcrossVolumes(ustring const& src, ustring const& dst, int type)
{
    if (type != FILE_TYPE_LINK) {
        Logger::LogMsg(Logger::LEVEL_ERROR, Component(),
                       "[ERROR] file-op(%d): FSRename: Cannot move '%s' of type %d to another volume '%s'\n",
                       __LINE__, src.c_str(), type, dst.c_str());
        return -3;
    }
    ustring target;
    if (FSReadSymbolicLink(src, target) != 0)
        return -3;
    if (symlink(target.c_str(), dst.c_str()) != 0)
        return PosixError(
            -3, __LINE__,
            "[ERROR] file-op(%d): FSRename: Failed to recreate symbolic link '%s' as '%s'. %s\n", src.c_str(),
            dst.c_str(), kErrnoText);
    if (remove(src.c_str()) != 0)
        return PosixError(-3, __LINE__,
                          "[ERROR] file-op(%d): FSRename: Failed to remove moved symbolic link '%s'. %s\n",
                          src.c_str(), kErrnoText);
    return 0;
}

}  // namespace

_FILE_INFO_tag::_FILE_INFO_tag()
    : type(FILE_TYPE_NONE), mtime(0), size(0), exists(false), uid(0), gid(0), mode(0), dev(0)
{
}

bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b)
{
    return a.exists == b.exists && a.size == b.size && a.mtime == b.mtime && a.type == b.type &&
           a.path == b.path && a.name == b.name;
}

bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b)
{
    return !(a == b);
}

int GetFileInfo(ustring const& path, _FILE_INFO_tag& info)
{
    struct stat st;
    if (lstat(path.c_str(), &st) != 0) {
        if (errno != ENOENT)
            return -1;
        // path may be one of info's own strings: take the name first.
        ustring name = LastComponent(path);
        if (&info.path != &path)
            info.path = path;
        info.name.swap(name);
        info.exists = false;
        info.mtime = 0;
        info.size = 0;
        info.type = FILE_TYPE_NONE;
        info.uid = 0;
        info.gid = 0;
        info.mode = 0;
        info.dev = 0;
        return 0;
    }

    ustring name = LastComponent(path);
    if (&info.path != &path)
        info.path = path;
    info.name.swap(name);
    info.exists = true;
    info.mtime = static_cast<int32_t>(st.st_mtime);
    info.size = static_cast<int64_t>(st.st_size);
    info.uid = st.st_uid;
    info.gid = st.st_gid;
    info.mode = st.st_mode;
    info.dev = static_cast<int64_t>(st.st_dev);
    int type = TypeFromMode(st.st_mode);
    if (type < 0)
        return -1;
    info.type = type;

    // From here on info.path holds the given path, whatever path refers to.
    Logger::LogMsg(Logger::LEVEL_DEBUG, Component(), "[DEBUG] file-op(%d): Input file path = [%s].\n",
                   __LINE__, info.path.c_str());
    ustring resolved;
    int status = PlatformResolvePath(info.path, false, resolved);
    if (status != 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, Component(), "[ERROR] file-op(%d): FSPathMakeRef: %d\n", __LINE__,
                       status);
        return -1;
    }
    Logger::LogMsg(Logger::LEVEL_DEBUG, Component(),
                   "[DEBUG] file-op(%d): FSRefMakePath outTargetPath path = [%s].\n", __LINE__,
                   resolved.c_str());
    info.name = LastComponent(resolved);
    info.path.swap(resolved);
    return 0;
}

bool IsFileExist(ustring const& path, bool exact)
{
    if (path.empty())
        return false;
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0 || !info.exists)
        return false;
    if (!exact)
        return true;
    return ComparableForm(info.path) == ComparableForm(path);
}

int FSStat(ustring const& path, _FILE_INFO_tag& info, bool exact)
{
    if (path.empty())
        return -1;
    if (!IsFileExist(path, exact)) {
        info.exists = false;
        return 0;
    }
    return GetFileInfo(path, info) < 0 ? -2 : 0;
}

ustring FSParentPath(ustring const& path)
{
    const char* s = path.c_str();
    const char* slash = strrchr(s, '/');
    if (slash == nullptr || slash == s)
        return ustring("/");
    ustring parent;
    parent.assign(s, static_cast<size_t>(slash - s));
    return parent;
}

ustring FSBaseName(ustring const& path)
{
    return LastComponent(path);
}

bool FSIsParentFolder(ustring const& parent, ustring const& child)
{
    size_t n = parent.length();
    if (child.length() < n)
        return false;
    if (child.length() > n && child[n] != '/')
        return false;
    return memcmp(parent.c_str(), child.c_str(), n) == 0;
}

int FSMKDirP(ustring const& path, char** stop, bool replace_file, unsigned short mode)
{
    if (path.empty())
        return -1;
    char* copy = strdup(path.c_str());
    if (copy == nullptr)
        return -1;

    bool keepMask = mode == 0xFFFF;
    mode_t folderMode = keepMask ? 0777 : mode;
    mode_t oldMask = 0;
    if (!keepMask)
        oldMask = umask(0);

    int result = 0;
    int savedErrno = 0;
    char* p = copy;
    if (*p == '/')
        ++p;
    char* end = p;
    // A path of nothing but "/" has no component to create.
    while (*p != '\0') {
        end = strchr(p, '/');
        if (end == nullptr)
            end = p + strlen(p);
        bool last = *end == '\0' || end[1] == '\0';
        char saved = *end;
        *end = '\0';

        struct stat st;
        if (stat(copy, &st) != 0) {
            if (mkdir(copy, folderMode) != 0) {
                result = -1;
                savedErrno = errno;
            }
        } else if (S_ISDIR(st.st_mode)) {
            // Already a folder, possibly through a symbolic link.
        } else if (replace_file) {
            remove(copy);
            if (mkdir(copy, folderMode) != 0) {
                result = -1;
                savedErrno = errno;
            }
        } else if (!last) {
            Logger::LogMsg(Logger::LEVEL_INFO, Component(),
                           "[INFO] file-op(%d): FSMKDirP: path: %s is symbolic link pointed to folder\n",
                           __LINE__, copy);
        } else {
            result = -1;
            savedErrno = EEXIST;
            Logger::LogMsg(
                Logger::LEVEL_INFO, Component(),
                "[INFO] file-op(%d): FSMKDirP: path: %s is existing file or symbolic link pointed to file\n",
                __LINE__, copy);
        }

        *end = saved;
        if (result != 0 || last)
            break;
        p = end + 1;
    }

    if (stop != nullptr)
        *stop = const_cast<char*>(path.c_str()) + (end - copy);
    if (!keepMask)
        umask(oldMask);
    free(copy);
    if (result != 0)
        errno = savedErrno;
    return result;
}

int FSMKDir(ustring const& path, bool parents)
{
    if (path.empty())
        return -1;
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, Component(),
                       "[ERROR] file-op(%d): FSMKDir: Failed to to file info '%s'\n", __LINE__, path.c_str());
        return -1;
    }
    if (info.exists) {
        if (info.type == FILE_TYPE_DIR)
            return 0;
        Logger::LogMsg(Logger::LEVEL_ERROR, Component(),
                       "[ERROR] file-op(%d): FSMKDir: Create a folder but local file system is not directory "
                       "'%s' (%d)\n",
                       __LINE__, path.c_str(), info.type);
        return -1;
    }
    int rc = parents ? FSMKDirP(path, nullptr, false, 0xFFFF) : mkdir(path.c_str(), 0777);
    if (rc != 0)
        return PosixError(-2, __LINE__, "[ERROR] file-op(%d): path = %s errno : %s\n", path.c_str(),
                          kErrnoText);
    return 0;
}

int FSMKDirFromRoot(ustring const& target, ustring const& root)
{
    size_t n = root.length();
    if (n > target.length()) {
        Logger::LogMsg(Logger::LEVEL_ERROR, Component(),
                       "[ERROR] file-op(%d): Giving a root '%s' whose length is larger then target's '%s'.\n",
                       __LINE__, root.c_str(), target.c_str());
        return -1;
    }
    if ((target.length() > n && target[n] != '/') || memcmp(target.c_str(), root.c_str(), n) != 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, Component(),
                       "[ERROR] file-op(%d): root '%s' is not a parent folder of target '%s'\n", __LINE__,
                       root.c_str(), target.c_str());
        return -1;
    }

    const char* rest = target.c_str() + n;
    size_t restLength = target.length() - n;
    size_t doneLength = 0;
    while (doneLength != restLength) {
        const char* next = strchr(rest + doneLength + 1, '/');
        doneLength = next ? static_cast<size_t>(next - rest) : restLength;
        ustring done;
        done.assign(rest, doneLength);
        Logger::LogMsg(Logger::LEVEL_DEBUG, Component(), "[DEBUG] file-op(%d): FSMKDirFromRoot: create %s\n",
                       __LINE__, done.c_str());
        if (FSMKDir(root + done, false) < 0)
            return -1;
    }
    return 0;
}

int FSCopy(ustring const& src, ustring const& dst, bool move)
{
    int in = open(src.c_str(), O_RDONLY | O_CLOEXEC);
    if (in < 0)
        return PosixError(-1, __LINE__, "[ERROR] file-op(%d): CopyFile: open(%s): %s (%d)\n", src.c_str(),
                          kErrnoText, kErrno);
    int out = open(dst.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (out < 0) {
        PosixError(-1, __LINE__, "[ERROR] file-op(%d): CopyFile: open(%s): %s (%d)\n", dst.c_str(),
                   kErrnoText, kErrno);
        close(in);
        return -1;
    }

    int result = 0;
    char* buffer = static_cast<char*>(malloc(kCopyChunk));
    if (buffer == nullptr)
        result = PosixError(-1, __LINE__, "[ERROR] file-op(%d): FSCopy: malloc(%d): %s (%d)\n",
                            static_cast<int>(kCopyChunk), kErrnoText, kErrno);
    while (buffer != nullptr) {
        ssize_t got = read(in, buffer, kCopyChunk);
        if (got == 0)
            break;
        if (got < 0) {
            result = PosixError(-1, __LINE__, "[ERROR] file-op(%d): CopyFile: read: %s (%d)\n", kErrnoText,
                                kErrno);
            break;
        }
        ssize_t written = 0;
        while (written < got) {
            ssize_t n = write(out, buffer + written, static_cast<size_t>(got - written));
            if (n <= 0) {
                result = PosixError(WriteFailure(errno), __LINE__,
                                    "[ERROR] file-op(%d): CopyFile: write: %s (%d)\n", kErrnoText, kErrno);
                break;
            }
            written += n;
        }
        if (result != 0)
            break;
    }

    bool srcOpen = true;
    if (buffer != nullptr && result == 0 && move) {
        close(in);
        srcOpen = false;
        if (remove(src.c_str()) != 0)
            result = -1;
    }
    if (srcOpen)
        close(in);
    fsync(out);
    close(out);
    free(buffer);
    return result;
}

int FSRename(ustring const& src, ustring const& dst, bool exact)
{
    if (src.empty() || dst.empty())
        return -1;
    _FILE_INFO_tag info;
    if (FSStat(src, info, exact) < 0 || !info.exists)
        return -2;
    if (rename(src.c_str(), dst.c_str()) == 0)
        return 0;
    if (errno == ENAMETOOLONG)
        return -100;
    if (errno != EXDEV)
        return -3;

    if (info.type == FILE_TYPE_FILE)
        return FSCopy(src, dst, true) < 0 ? -3 : 0;
    if (info.type != FILE_TYPE_DIR)
        return MoveSpecialAcrossVolumes(src, dst, info.type);

    if (FSMKDir(dst, true) != 0)
        return -3;
    DIR_HANDLE handle;
    if (FSOpenDir(src, 0, handle) != 0)
        return -3;
    int result = 0;
    DIR_ENTRY entry;
    // A read error ends the listing like its end; the removal below then
    // fails on what is left.
    while (FSReadDir(handle, entry) == 1) {
        if (IsDotOrDotDot(entry.name))
            continue;
        if (FSRename(src + "/" + entry.name, dst + "/" + entry.name, exact) != 0) {
            result = -3;
            break;
        }
    }
    FSCloseDir(handle);
    if (result != 0)
        return result;
    return remove(src.c_str()) != 0 ? -3 : 0;
}

int FSRemove(ustring const& path, bool flag)
{
    (void)flag;
    if (path.empty())
        return -1;
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0)
        return -1;
    if (!info.exists)
        return 0;
    if (info.type != FILE_TYPE_DIR)
        return remove(path.c_str()) != 0 ? -3 : 0;

    // A folder that cannot be listed stays whole: FSOpenDir logs the path and
    // the reason, and the caller learns that something was left in place.
    DIR_HANDLE handle;
    if (FSOpenDir(path, 0, handle) != 0)
        return -3;
    int result = 0;
    DIR_ENTRY entry;
    while (FSReadDir(handle, entry) == 1) {
        if (IsDotOrDotDot(entry.name))
            continue;
        if (FSRemove(path + "/" + entry.name, false) != 0) {
            result = -3;
            break;
        }
    }
    FSCloseDir(handle);
    if (result != 0)
        return result;
    return remove(path.c_str()) != 0 ? -3 : 0;
}

int FSOpenDir(ustring const& path, int flags, DIR_HANDLE& handle)
{
    DIR* dir = opendir(path.c_str());
    if (dir == nullptr)
        return PosixError(-1, __LINE__, "[ERROR] file-op(%d): FSOpenDir: Failed to open directory '%s'. %s\n",
                          path.c_str(), kErrnoText);
    handle.dir = dir;
    handle.path = path;
    handle.flags = flags;
    return 0;
}

int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry)
{
    if (handle.dir == nullptr)
        return -1;
    // readdir is re-entrant for distinct streams on every platform we build
    // for, and readdir_r is deprecated; a handle is never shared.
    errno = 0;
    struct dirent* ent = readdir(handle.dir);
    if (ent == nullptr) {
        if (errno == 0)
            return 0;
        return PosixError(-1, __LINE__, "[ERROR] file-op(%d): FSOpenDir: Failed to read directory '%s'. %s\n",
                          handle.path.c_str(), kErrnoText);
    }

    ustring name(ent->d_name);
    int type = TypeFromDirent(ent->d_type);
    int32_t mtime = 0;
    int64_t size = 0;
    if (handle.flags & 1) {
        ustring full = handle.path + "/" + name;
        _FILE_INFO_tag record;
        if (FSStat(full, record, true) < 0) {
            Logger::LogMsg(Logger::LEVEL_ERROR, Component(),
                           "[ERROR] file-op(%d): FSOpenDir: Failed to get info for '%s'\n", __LINE__,
                           full.c_str());
            return -1;
        }
        mtime = record.mtime;
        size = record.size;
    }
    entry.name.swap(name);
    entry.type = type;
    entry.mtime = mtime;
    entry.size = size;
    return 1;
}

void FSCloseDir(DIR_HANDLE& handle)
{
    if (handle.dir != nullptr)
        closedir(handle.dir);
    handle.dir = nullptr;
    handle.path.clear();
}

int FSMktemp(ustring const& dir, ustring& created)
{
    char buffer[kPathBuffer];
    snprintf(buffer, sizeof(buffer), "%s/XXXXXX", dir.c_str());
    // mkstemp may leave a tried name in the buffer when it fails.
    char pattern[kPathBuffer];
    memcpy(pattern, buffer, sizeof(pattern));
    int fd = mkostemp(buffer, O_CLOEXEC);
    if (fd < 0)
        return PosixError(-1, __LINE__, "[ERROR] file-op(%d): mkstemp(%s): %s\n", pattern, kErrnoText);
    close(fd);
    created = buffer;
    chmod(buffer, 0644);
    return 0;
}

int FSCreateTempPath(ustring const& dir, ustring& path)
{
    path = TmpNameGen::getInstance().getTmpPath(dir);
    return path.empty() ? -1 : 0;
}

int FSUTime(ustring const& path, long atime, long mtime)
{
    struct timeval times[2];
    times[0].tv_sec = atime;
    times[0].tv_usec = 0;
    times[1].tv_sec = mtime;
    times[1].tv_usec = 0;
    return lutimes(path.c_str(), times) != 0 ? -1 : 0;
}

bool FSTimeEqual(long a, long b)
{
    return a == b;
}

bool isFileLocked(ustring const& path, int mode)
{
    if (access(path.c_str(), mode) == 0)
        return false;
    return errno == EACCES || errno == EPERM;
}

bool hasFilePermission(ustring const& path, int mode)
{
    if (access(path.c_str(), mode) == 0)
        return true;
    return errno != EACCES && errno != EPERM;
}

bool isMountPoint(ustring const& path)
{
    ustring typeName;
    if (PlatformFileSystemTypeName(path, typeName) != 0)
        return PosixError(false, __LINE__,
                          "[ERROR] file-op(%d): isMountPoint: Failed to get file system info '%s'. %s\n",
                          path.c_str(), kErrnoText);
    return typeName == ustring("nfs") || typeName == ustring("smbfs") || typeName == ustring("afpfs");
}

bool IsMSDOS(ustring const& path)
{
    ustring typeName;
    if (PlatformFileSystemTypeName(path, typeName) != 0)
        return PosixError(
            false, __LINE__,
            "[ERROR] file-op(%d): IsSupportLargeFile: Failed to get file system info '%s'. %s\n",
            path.c_str(), kErrnoText);
    if (typeName != ustring("msdos"))
        return false;
    Logger::LogMsg(Logger::LEVEL_WARNING, Component(),
                   "[WARNING] file-op(%d): Detect a MSDOS platform for path '%s'.\n", __LINE__, path.c_str());
    return true;
}

int FSGetRealPath(ustring& path)
{
    Logger::LogMsg(Logger::LEVEL_DEBUG, Component(), "[DEBUG] file-op(%d):  org path [%s]\n", __LINE__,
                   path.c_str());
    ustring resolved;
    if (PlatformResolvePath(path, true, resolved) != 0)
        return -1;
    path.swap(resolved);
    Logger::LogMsg(Logger::LEVEL_DEBUG, Component(), "[DEBUG] file-op(%d):  get full path [%s]\n", __LINE__,
                   path.c_str());
    return 0;
}

int FSCreateSymbolicLink(ustring const& target, ustring const& link)
{
    if (symlink(target.c_str(), link.c_str()) == 0)
        return 0;
    return PosixError(-1, __LINE__,
                      "[ERROR] file-op(%d): FSCreateSymbolicLink: Failed to create symbolic link '%s' -> "
                      "'%s' (code: %d, msg: %s)\n",
                      target.c_str(), link.c_str(), kErrno, kErrnoText);
}

int FSReadSymbolicLink(ustring const& link, ustring& target)
{
    char buffer[kLinkBuffer];
    memset(buffer, 0, sizeof(buffer));
    ssize_t n = readlink(link.c_str(), buffer, sizeof(buffer));
    if (n < 0)
        return PosixError(-1, __LINE__,
                          "[ERROR] file-op(%d): FSReadSymbolicLink: Failed to read symbolic link '%s' (code: "
                          "%d, msg: %s)\n",
                          link.c_str(), kErrno, kErrnoText);
    // A full buffer may hold a cut target and has no room for the NUL.
    if (static_cast<size_t>(n) >= sizeof(buffer)) {
        Logger::LogMsg(Logger::LEVEL_ERROR, Component(),
                       "[ERROR] file-op(%d): FSReadSymbolicLink: path of '%s' is more than %d\n", __LINE__,
                       link.c_str(), static_cast<int>(kLinkBuffer));
        return -1;
    }
    target = buffer;
    return 0;
}

int FSChown(ustring const& path, unsigned int uid, unsigned int gid)
{
    if (lchown(path.c_str(), uid, gid) == 0)
        return 0;
    return PosixError(-1, __LINE__,
                      "[ERROR] file-op(%d): FSChown: Failed to chown '%s' (code: %d, msg: %s)\n",
                      path.c_str(), kErrno, kErrnoText);
}
