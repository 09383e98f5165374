// Linux: path resolution and file-system type names from POSIX and the
// kernel's statfs and inode-flag interfaces; processes through /proc.
#include "platform/platform.h"
#include "platform/platform_linux_files.h"

#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <limits>
#include <linux/fs.h>
#include <linux/magic.h>
#include <string>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <unistd.h>

// Not every kernel header knows these yet.
#ifndef EXFAT_SUPER_MAGIC
#define EXFAT_SUPER_MAGIC 0x2011BAB0
#endif
#ifndef CIFS_SUPER_MAGIC
#define CIFS_SUPER_MAGIC 0xFF534D42
#endif
#ifndef SMB2_SUPER_MAGIC
#define SMB2_SUPER_MAGIC 0xFE534D42
#endif
#ifndef F2FS_SUPER_MAGIC
#define F2FS_SUPER_MAGIC 0xF2F52010
#endif
#ifndef FS_CASEFOLD_FL
#define FS_CASEFOLD_FL 0x40000000
#endif

namespace {

const int kMaxLinks = 40;  // as the kernel's own lookup allows

// The volume of the folder last examined, so that a walk down one volume
// asks statfs only once.
struct VolumeCache {
    VolumeCache() : known(false), dev(0), type(0) { }
    bool known;
    dev_t dev;
    uint32_t type;
};

// Case folding needs kernel support, which the kernel lists per file-system
// type once a volume of that type is mounted. Without it no folder of the
// type carries the flag, and asking each folder is wasted work.
bool KernelFeature(const char* path)
{
    return access(path, F_OK) == 0;
}

// Whether names in folder may match without regard to letter case: always on
// FAT-family volumes, and on volumes that support per-folder case folding
// when the folder carries the casefold flag. Everything else compares names
// byte for byte, so the given spelling is the stored one.
bool MayFoldCase(const std::string& folder, dev_t dev, VolumeCache& cache)
{
    if (!cache.known || cache.dev != dev) {
        struct statfs sfs;
        if (statfs(folder.c_str(), &sfs) != 0)
            return false;
        cache.known = true;
        cache.dev = dev;
        cache.type = static_cast<uint32_t>(sfs.f_type);
    }
    switch (cache.type) {
    case MSDOS_SUPER_MAGIC:
    case EXFAT_SUPER_MAGIC:
        return true;
    case EXT4_SUPER_MAGIC: {
        static const bool supported = KernelFeature("/sys/fs/ext4/features/casefold");
        if (!supported)
            return false;
        break;
    }
    case F2FS_SUPER_MAGIC: {
        static const bool supported = KernelFeature("/sys/fs/f2fs/features/casefold");
        if (!supported)
            return false;
        break;
    }
    case TMPFS_MAGIC: {
        static const bool supported = KernelFeature("/sys/fs/tmpfs/features/casefold");
        if (!supported)
            return false;
        break;
    }
    default:
        return false;
    }
    int fd = open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0)
        return false;
    int flags = 0;
    bool folded = ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0 && (flags & FS_CASEFOLD_FL) != 0;
    close(fd);
    return folded;
}

bool ListFolder(const std::string& folder, std::vector<PlatformDirEntry>& listing)
{
    DIR* dir = opendir(folder.c_str());
    if (dir == nullptr)
        return false;
    while (struct dirent* ent = readdir(dir)) {
        if (strcmp(ent->d_name, ".") == 0 || strcmp(ent->d_name, "..") == 0)
            continue;
        PlatformDirEntry entry;
        entry.name = ent->d_name;
        entry.ino = ent->d_ino;
        listing.push_back(entry);
    }
    closedir(dir);
    return true;
}

// NFD with ASCII letters folded to lower case. Decomposed, so that the base
// letter of an accented one is folded too ('E' + U+0301 composes to a
// non-ASCII capital). A name that is not valid UTF-8 has no normal form and
// keeps its bytes.
ustring FoldKey(const ustring& name)
{
    ustring key = ustring::is_valid(name) ? ustring::normalize(name, ustring::nfd) : name;
    for (size_t i = 0; i < key.length(); ++i) {
        char c = key[i];
        if (c >= 'A' && c <= 'Z')
            key[i] = static_cast<char>(c - 'A' + 'a');
    }
    return key;
}

// Appends the components of path to pending, last first, so that the walk
// pops them in order. A trailing '/' becomes a final "." so that the
// component before it must be a folder and a link there is followed.
void PushComponents(const std::string& path, std::vector<std::string>& pending)
{
    std::vector<std::string> parts;
    size_t pos = 0;
    while (pos < path.size()) {
        size_t slash = path.find('/', pos);
        if (slash == std::string::npos)
            slash = path.size();
        if (slash > pos)
            parts.push_back(path.substr(pos, slash - pos));
        pos = slash + 1;
    }
    if (!parts.empty() && path[path.size() - 1] == '/')
        parts.push_back(".");
    for (size_t i = parts.size(); i > 0; --i)
        pending.push_back(parts[i - 1]);
}

int ReadLink(const std::string& path, off_t sizeHint, std::string& target)
{
    std::vector<char> buffer(sizeHint > 0 ? static_cast<size_t>(sizeHint) + 1 : 256);
    for (;;) {
        ssize_t n = readlink(path.c_str(), buffer.data(), buffer.size());
        if (n < 0)
            return errno;
        if (static_cast<size_t>(n) < buffer.size()) {
            target.assign(buffer.data(), static_cast<size_t>(n));
            return 0;
        }
        buffer.resize(buffer.size() * 2);
    }
}

int Fail(int err)
{
    errno = err != 0 ? err : EIO;
    return errno;
}

}  // namespace

ustring PlatformStoredName(const std::vector<PlatformDirEntry>& listing, const ustring& name, uint64_t ino)
{
    for (size_t i = 0; i < listing.size(); ++i) {
        if (listing[i].name == name)
            return listing[i].name;
    }
    ustring key = FoldKey(name);
    const PlatformDirEntry* similar = nullptr;
    const PlatformDirEntry* sameInode = nullptr;
    int sameInodeCount = 0;
    for (size_t i = 0; i < listing.size(); ++i) {
        const PlatformDirEntry& entry = listing[i];
        bool inodeMatches = ino != 0 && entry.ino == ino;
        if (inodeMatches) {
            if (sameInode == nullptr)
                sameInode = &entry;
            ++sameInodeCount;
        }
        if (FoldKey(entry.name) == key) {
            if (similar == nullptr || (inodeMatches && similar->ino != ino))
                similar = &entry;
        }
    }
    if (similar != nullptr)
        return similar->name;
    // Letters outside ASCII fold only by the volume's own rules; the inode
    // still tells which entry the lookup found.
    if (sameInodeCount == 1)
        return sameInode->name;
    return name;
}

// Walks the path one component at a time from the root. Each component is
// looked up with lstat; a symbolic link met on the way (and the final one
// when followLeaf) is replaced by its target, so the result holds no link
// but perhaps the last. Returns an errno value as the status.
int PlatformResolvePath(const ustring& path, bool followLeaf, ustring& resolved)
{
    if (path.empty())
        return Fail(ENOENT);
    std::string input(path.c_str(), path.length());
    if (input[0] != '/') {
        char* cwd = getcwd(nullptr, 0);
        if (cwd == nullptr)
            return Fail(errno);
        input = std::string(cwd) + "/" + input;
        free(cwd);
    }

    struct stat st;
    if (lstat("/", &st) != 0)
        return Fail(errno);
    const dev_t rootDev = st.st_dev;

    std::vector<std::string> pending;
    PushComponents(input, pending);
    std::string done;  // the resolved prefix; empty stands for "/"
    dev_t folderDev = rootDev;
    VolumeCache cache;
    int links = 0;
    while (!pending.empty()) {
        std::string name = pending.back();
        pending.pop_back();
        if (name == ".")
            continue;
        if (name == "..") {
            // done holds no link, so its parent is simply the text before
            // its last '/'.
            done.erase(done.rfind('/') == std::string::npos ? 0 : done.rfind('/'));
            if (lstat(done.empty() ? "/" : done.c_str(), &st) != 0)
                return Fail(errno);
            folderDev = st.st_dev;
            continue;
        }

        std::string candidate = done + "/" + name;
        if (lstat(candidate.c_str(), &st) != 0)
            return Fail(errno);
        const std::string folder = done.empty() ? std::string("/") : done;
        if (MayFoldCase(folder, folderDev, cache)) {
            std::vector<PlatformDirEntry> listing;
            if (ListFolder(folder, listing)) {
                ustring stored = PlatformStoredName(listing, ustring(name), st.st_ino);
                candidate = done + "/" + std::string(stored.c_str(), stored.length());
            }
        }

        bool last = pending.empty();
        if (S_ISLNK(st.st_mode) && (!last || followLeaf)) {
            if (++links > kMaxLinks)
                return Fail(ELOOP);
            std::string target;
            int err = ReadLink(candidate, st.st_size, target);
            if (err != 0)
                return Fail(err);
            if (target.empty())
                return Fail(ENOENT);
            if (target[0] == '/') {
                done.clear();
                folderDev = rootDev;
            }
            PushComponents(target, pending);
            continue;
        }
        if (!last && !S_ISDIR(st.st_mode))
            return Fail(ENOTDIR);
        done.swap(candidate);
        folderDev = st.st_dev;
    }
    resolved = done.empty() ? "/" : done.c_str();
    return 0;
}

int PlatformFileSystemTypeName(const ustring& path, ustring& typeName)
{
    struct statfs sfs;
    if (statfs(path.c_str(), &sfs) != 0)
        return -1;
    switch (static_cast<uint32_t>(sfs.f_type)) {
    case NFS_SUPER_MAGIC:
        typeName = "nfs";
        break;
    case SMB_SUPER_MAGIC:
    case CIFS_SUPER_MAGIC:
    case SMB2_SUPER_MAGIC:
        typeName = "smbfs";
        break;
    case MSDOS_SUPER_MAGIC:
    case EXFAT_SUPER_MAGIC:
        typeName = "msdos";
        break;
    case EXT4_SUPER_MAGIC:
        typeName = "ext4";
        break;
    case TMPFS_MAGIC:
        typeName = "tmpfs";
        break;
    default: {
        // A name no caller compares against: the number itself.
        char number[32];
        snprintf(number, sizeof(number), "0x%lx",
                 static_cast<unsigned long>(static_cast<uint32_t>(sfs.f_type)));
        typeName = number;
        break;
    }
    }
    return 0;
}

bool PlatformReadWholeFile(const std::string& path, std::string& text)
{
    FILE* fp = fopen(path.c_str(), "re");
    if (fp == nullptr)
        return false;
    char buf[4096];
    size_t n;
    text.clear();
    while ((n = fread(buf, 1, sizeof(buf), fp)) > 0)
        text.append(buf, n);
    fclose(fp);
    return true;
}

namespace {

std::string RealPath(const std::string& path)
{
    char buf[PATH_MAX];
    return realpath(path.c_str(), buf) != nullptr ? buf : "";
}

// The interpreter a script names on its first line: "#!/bin/sh -e" gives
// /bin/sh. Empty for a file that is no script.
std::string ScriptInterpreter(const std::string& script)
{
    FILE* fp = fopen(script.c_str(), "re");
    if (fp == nullptr)
        return "";
    char line[256] = {0};
    bool read = fgets(line, sizeof(line), fp) != nullptr;
    fclose(fp);
    if (!read || line[0] != '#' || line[1] != '!')
        return "";
    std::string text(line + 2);
    size_t start = text.find_first_not_of(" \t");
    if (start == std::string::npos)
        return "";
    size_t end = text.find_first_of(" \t\r\n", start);
    return text.substr(start, end == std::string::npos ? std::string::npos : end - start);
}

}  // namespace

long PlatformMaxProcessId()
{
    // The kernel allocates ids below /proc/sys/kernel/pid_max; where that
    // cannot be read, only pid_t's own range bounds the value.
    long limit = std::numeric_limits<pid_t>::max();
    FILE* fp = fopen("/proc/sys/kernel/pid_max", "re");
    if (fp == nullptr)
        return limit;
    long pidMax = 0;
    if (fscanf(fp, "%ld", &pidMax) == 1 && pidMax > 1 && pidMax - 1 < limit)
        limit = pidMax - 1;
    fclose(fp);
    return limit;
}

int PlatformProcessExecutable(pid_t pid, ustring& executable)
{
    if (pid <= 0) {
        errno = ESRCH;
        return -1;
    }
    const std::string link = "/proc/" + std::to_string(pid) + "/exe";
    std::string target;
    int err = ReadLink(link, 0, target);
    if (err != 0) {
        // A zombie or a kernel thread has no executable; /proc tells them
        // from a process that is not there by the folder itself.
        struct stat st;
        errno = stat(("/proc/" + std::to_string(pid)).c_str(), &st) == 0 ? err : ESRCH;
        return -1;
    }
    executable = target.c_str();
    return 0;
}

bool PlatformProcessRuns(pid_t pid, const ustring& executable)
{
    std::string wanted = RealPath(executable.c_str());
    if (wanted.empty())
        wanted = executable.c_str();
    ustring running;
    if (PlatformProcessExecutable(pid, running) != 0)
        return false;
    std::string exe = running.c_str();
    if (exe == wanted)
        return true;
    // Replaced or removed at its path since it started: still that program, an older copy of it.
    const std::string deleted = " (deleted)";
    const std::string proc = "/proc/" + std::to_string(pid);
    struct stat st;
    if (exe.size() > deleted.size() &&
        exe.compare(exe.size() - deleted.size(), deleted.size(), deleted) == 0 &&
        stat((proc + "/exe").c_str(), &st) == 0 && st.st_nlink == 0)
        return exe.compare(0, exe.size() - deleted.size(), wanted) == 0;

    // A script: the process runs its interpreter, and the kernel hands it the
    // script as argv[1], or argv[2] after the option of a "#!" line.
    const std::string interpreter = ScriptInterpreter(wanted);
    if (interpreter.empty())
        return false;
    const bool viaEnv =
        interpreter.size() >= 4 && interpreter.compare(interpreter.size() - 4, 4, "/env") == 0;
    if (!viaEnv && RealPath(interpreter) != exe)
        return false;
    std::string cmdline;
    if (!PlatformReadWholeFile(proc + "/cmdline", cmdline))
        return false;
    std::vector<std::string> args;
    for (size_t start = 0; start < cmdline.size() && args.size() < 3;) {
        size_t end = cmdline.find('\0', start);
        if (end == std::string::npos)
            end = cmdline.size();
        args.push_back(cmdline.substr(start, end - start));
        start = end + 1;
    }
    if (args.size() > 1 && RealPath(args[1]) == wanted)
        return true;
    return args.size() > 2 && !args[1].empty() && args[1][0] == '-' && RealPath(args[2]) == wanted;
}
