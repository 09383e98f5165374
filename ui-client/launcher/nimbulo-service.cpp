#include "nimbulo-service.h"

#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QDir>
#include <QSettings>
#include <QString>
#include <QVariant>

#include "extractor.h"
#include "libfile/file-op.h"
#include "liblogger/log.h"
#include "platform/platform.h"

namespace {

const char* const kComponent = "service_debug";

// How long a launcher waits for another one's turn before it says so.
const long kLockPatienceSeconds = 10;

ustring ToUstring(const QString& s)
{
    return ustring(s.toUtf8().constData());
}

// The folder of the running executable, Contents/MacOS in the bundle.
QString ExecutableFolder()
{
    return QDir::cleanPath(QString::fromUtf8(PlatformExecutablePath().c_str_utf8()) + "/..");
}

// The four keys of an INFO file's "Version" group, in the order they are
// read and logged. A key the group lacks leaves its field as it was.
void ReadVersionFile(const ustring& path, ustring& major, ustring& minor, ustring& build, ustring& overlay)
{
    QSettings settings(QString::fromUtf8(path.c_str_utf8()), QSettings::IniFormat);
    settings.beginGroup("Version");
    const char* const keys[] = {"major_version", "minor_version", "build_version", "icon_overlay_version"};
    ustring* const fields[] = {&major, &minor, &build, &overlay};
    for (int i = 0; i < 4; ++i) {
        if (settings.contains(keys[i]))
            *fields[i] = ToUstring(settings.value(keys[i]).toString());
    }
    settings.endGroup();
}

// Backup names: A_tmp for index 0, then A_tmp1 ... A_tmp9, so
// ~/.Nimbulo/Nimbulo.app with index 3 gives ~/.Nimbulo/Nimbulo.app_tmp3.
ustring GetAppBackupDir(const ustring& appPath, int index)
{
    ustring base = appPath + "_tmp";
    if (index == 0)
        return base;
    char suffix[8] = {0};
    if (snprintf(suffix, sizeof(suffix), "%d", index) < 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                       "[ERROR] nimbulo-service(%d): snprintf failed (continuing without postfix)", __LINE__);
        suffix[0] = '\0';
    }
    return base + suffix;
}

}  // namespace

Service::Service() : timeout(0) { }

Service::~Service() { }

void Service::SetTimeout(int value)
{
    timeout = value;
}

ustring Service::GetUserInstallPath()
{
    return ToUstring(QDir::cleanPath(QString::fromUtf8(PlatformHomeDir().c_str_utf8())));
}

ustring Service::GetRootNimbuloInstallPath()
{
    return ToUstring(QDir::cleanPath(ExecutableFolder() + "/" + "../.."));
}

ustring Service::GetRootNimbuloResourceInstallPath()
{
    return GetRootNimbuloInstallPath() + "/Contents/Resources";
}

ustring Service::GetUserNimbuloInstallPath()
{
    return GetUserInstallPath() + "/" + ".Nimbulo";
}

ustring Service::GetUserNimbuloAppInstallPath()
{
    return GetUserNimbuloInstallPath() + "/" + "Nimbulo.app";
}

ustring Service::GetUserNimbuloDataInstallPath()
{
    return GetUserNimbuloInstallPath() + "/" + "data";
}

// The atoi rule, kept inside the int range instead of overflowing.
int Service::BuildNumber(const ustring& text)
{
    if (text.empty())
        return 0;
    long value = strtol(text.c_str(), nullptr, 10);
    if (value > INT_MAX)
        return INT_MAX;
    if (value < INT_MIN)
        return INT_MIN;
    return static_cast<int>(value);
}

ustring Service::GetUserNimbuloLockPath()
{
    return GetUserNimbuloInstallPath() + "/" + "launcher.lock";
}

void Service::LoadTargetVersion()
{
    ustring path = GetRootNimbuloResourceInstallPath() + "/" + "INFO";
    // Unreadable, the file would read as empty and the bundle as no newer
    // than any installation.
    if (access(path.c_str(), R_OK) != 0) {
        int err = errno;
        Logger::LogMsg(Logger::LEVEL_WARNING, kComponent,
                       "[WARNING] nimbulo-service(%d): cannot read '%s': %s\n", __LINE__, path.c_str(),
                       strerror(err));
    }
    ReadVersionFile(path, targetMajorVersion, targetMinorVersion, targetBuildVersion,
                    targetIconOverlayVersion);
    Logger::LogMsg(Logger::LEVEL_INFO, kComponent,
                   "[INFO] nimbulo-service(%d): target_version = (%s, %s, %s, %s)\n", __LINE__,
                   targetMajorVersion.c_str(), targetMinorVersion.c_str(), targetBuildVersion.c_str(),
                   targetIconOverlayVersion.c_str());
}

void Service::LoadSourceVersion()
{
    ustring path = GetUserNimbuloAppInstallPath() + "/Contents/Resources" + "/" + "INFO";
    if (!IsFileExist(path, false)) {
        Logger::LogMsg(Logger::LEVEL_INFO, kComponent, "[INFO] nimbulo-service(%d): source does not exist\n",
                       __LINE__);
        return;
    }
    ReadVersionFile(path, sourceMajorVersion, sourceMinorVersion, sourceBuildVersion,
                    sourceIconOverlayVersion);
    Logger::LogMsg(Logger::LEVEL_INFO, kComponent,
                   "[INFO] nimbulo-service(%d): source_version = (%s, %s, %s, %s)\n", __LINE__,
                   sourceMajorVersion.c_str(), sourceMinorVersion.c_str(), sourceBuildVersion.c_str(),
                   sourceIconOverlayVersion.c_str());
}

int Service::PrepareUserEnv()
{
    const ustring appPath = userAppPath;
    ustring backupPath;
    int index = 0;

    if (IsFileExist(appPath, false)) {
        // Each attempt takes the next name, so backups stranded by an
        // interrupted earlier run are stepped over rather than overwritten.
        for (index = 0;; ++index) {
            ustring candidate = GetAppBackupDir(appPath, index);
            if (FSRename(appPath, candidate, false) == 0) {
                backupPath = candidate;
                break;
            }
            Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                           "[ERROR] nimbulo-service(%d): failed to backup app from '%s' -> '%s'\n", __LINE__,
                           appPath.c_str(), candidate.c_str());
            if (index >= 9) {
                Logger::LogMsg(
                    Logger::LEVEL_ERROR, kComponent,
                    "[ERROR] nimbulo-service(%d): failed to backup app from '%s' -> '%s' at max retries, "
                    "exiting\n",
                    __LINE__, appPath.c_str(), candidate.c_str());
                return -1;
            }
        }
    }

    if (ExtractPackage() != 0) {
        if (!backupPath.empty()) {
            Logger::LogMsg(
                Logger::LEVEL_ERROR, kComponent,
                "[ERROR] nimbulo-service(%d): Failed to extract package, rollback to old installation\n",
                __LINE__);
            FSRemove(appPath, false);
            FSRename(backupPath, appPath, false);
        } else {
            Logger::LogMsg(
                Logger::LEVEL_ERROR, kComponent,
                "[ERROR] nimbulo-service(%d): Failed to extract package, and no old installation to "
                "rollback\n",
                __LINE__);
            // A package that could not even be opened leaves the folder made
            // for it empty; an empty folder is no installation. What an
            // extraction that went further left stays.
            rmdir(appPath.c_str());
        }
        return -1;
    }

    Logger::LogMsg(Logger::LEVEL_INFO, kComponent,
                   "[INFO] nimbulo-service(%d): user installation is ready, removing backup app\n", __LINE__);
    // Lower names too: they may hold leftovers of earlier runs.
    for (int i = 0; i <= index; ++i)
        FSRemove(GetAppBackupDir(appPath, i), false);

    // A package whose INFO names an older build than the bundle's installs
    // again at every start; say so once per installation.
    ustring major, minor, build, overlay;
    ReadVersionFile(appPath + "/Contents/Resources/INFO", major, minor, build, overlay);
    if (BuildNumber(build) < BuildNumber(targetBuildVersion)) {
        Logger::LogMsg(
            Logger::LEVEL_WARNING, kComponent,
            "[WARNING] nimbulo-service(%d): installed build %d is still older than the bundle's build %d: "
            "the package's INFO does not match the bundle's, so every start installs it again\n",
            __LINE__, BuildNumber(build), BuildNumber(targetBuildVersion));
    }
    return 0;
}

int Service::ExtractPackage()
{
    ustring packagePath = GetRootNimbuloResourceInstallPath() + "/package/nimbulo.spk";
    ustring appPath = GetUserNimbuloAppInstallPath();

    if (FSMKDir(appPath, true) < 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                       "[ERROR] nimbulo-service(%d): failed to create folder: '%s'\n", __LINE__,
                       appPath.c_str());
        return -1;
    }
    Logger::LogMsg(Logger::LEVEL_INFO, kComponent,
                   "[INFO] nimbulo-service(%d): extract package: '%s' -> '%s'\n", __LINE__,
                   packagePath.c_str(), appPath.c_str());

    Extractor extractor;
    extractor.archivePath = packagePath;
    extractor.destination = appPath;
    return extractor.Extract();
}

void Service::RemoveAgedFolders()
{
    ustring path = GetUserNimbuloInstallPath() + "/app";
    Logger::LogMsg(Logger::LEVEL_INFO, kComponent,
                   "[INFO] nimbulo-service(%d): removing aged app folder %s\n", __LINE__, path.c_str());
    FSRemove(path, false);
}

int Service::FSCopyPath(const ustring& src, const ustring& dst)
{
    Logger::LogMsg(Logger::LEVEL_DEBUG, kComponent, "[DEBUG] nimbulo-service(%d): copy from '%s' to '%s'\n",
                   __LINE__, src.c_str(), dst.c_str());

    FILE_INFO info;
    if (FSStat(src, info, false) < 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                       "[ERROR] nimbulo-service(%d): FSCopyPath: failed to stat source '%s'\n", __LINE__,
                       src.c_str());
        return -1;
    }
    if (!info.exists) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                       "[ERROR] nimbulo-service(%d): FSCopyPath: source path '%s' does not exist\n", __LINE__,
                       src.c_str());
        return -1;
    }
    // A symbolic link is not a folder here: FSCopy copies what it points to.
    if (info.type != FILE_TYPE_DIR)
        return FSCopy(src, dst, false) == 0 ? 0 : -1;

    if (FSMKDir(dst, true) < 0) {
        Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                       "[ERROR] nimbulo-service(%d): FSCopyPath: failed to create dest folder '%s'\n",
                       __LINE__, dst.c_str());
        return -1;
    }

    DIR_HANDLE handle;
    if (FSOpenDir(src, 0, handle) < 0) {
        Logger::LogMsg(
            Logger::LEVEL_WARNING, kComponent,
            "[WARNING] nimbulo-service(%d): FSCopyPath: failed to create handle  for src '%s' failed\n",
            __LINE__, src.c_str());
        return 0;
    }

    DIR_ENTRY entry;
    while (FSReadDir(handle, entry) > 0) {
        if (entry.name == ustring(".") || entry.name == ustring(".."))
            continue;
        ustring childSrc = src + "/" + entry.name;
        ustring childDst = dst + "/" + entry.name;
        int ret =
            entry.type == FILE_TYPE_DIR ? FSCopyPath(childSrc, childDst) : FSCopy(childSrc, childDst, false);
        if (ret < 0) {
            Logger::LogMsg(Logger::LEVEL_ERROR, kComponent,
                           "[ERROR] nimbulo-service(%d): FSCopyPath: failed to copy from '%s' to '%s'\n",
                           __LINE__, childSrc.c_str(), childDst.c_str());
            FSCloseDir(handle);
            return -1;
        }
    }
    FSCloseDir(handle);
    return 0;
}

InstallLock::InstallLock() : fd(-1) { }

InstallLock::~InstallLock()
{
    Release();
}

int InstallLock::Acquire(int waitSeconds)
{
    Release();
    const ustring path = Service::GetUserNimbuloLockPath();
    // Read-write: where flock is emulated with record locks (NFS), an
    // exclusive lock needs a descriptor open for writing.
    fd = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
    // Polled rather than blocking, so that the wait has an end: an
    // installation takes seconds, and a holder still there after minutes
    // hangs.
    const auto start = std::chrono::steady_clock::now();
    bool told = false;
    int err = fd < 0 ? errno : 0;
    while (err == 0 && flock(fd, LOCK_EX | LOCK_NB) != 0) {
        if (errno == EINTR)
            continue;
        if (errno != EWOULDBLOCK) {
            err = errno;
            break;
        }
        long waited = static_cast<long>(
            std::chrono::duration_cast<std::chrono::seconds>(std::chrono::steady_clock::now() - start)
                .count());
        if (waited >= waitSeconds) {
            Logger::LogMsg(
                Logger::LEVEL_WARNING, kComponent,
                "[WARNING] nimbulo-service(%d): another launcher still holds '%s' after %ld seconds, going "
                "on without it\n",
                __LINE__, path.c_str(), waited);
            Release();
            return -1;
        }
        if (!told && waited >= kLockPatienceSeconds) {
            Logger::LogMsg(Logger::LEVEL_NOTE, kComponent,
                           "[NOTE] nimbulo-service(%d): waiting for another launcher to finish with '%s'\n",
                           __LINE__, path.c_str());
            told = true;
        }
        struct timespec pause = {0, 100 * 1000 * 1000};
        nanosleep(&pause, nullptr);
    }
    if (err != 0) {
        Logger::LogMsg(Logger::LEVEL_WARNING, kComponent,
                       "[WARNING] nimbulo-service(%d): cannot lock '%s': %s (%d), going on without it\n",
                       __LINE__, path.c_str(), strerror(err), err);
        Release();
        return -1;
    }
    return 0;
}

void InstallLock::Release()
{
    // Closing the only descriptor of the open file drops the lock.
    if (fd >= 0)
        close(fd);
    fd = -1;
}

PackageInfo::PackageInfo()
{
    ustring appDir = ToUstring(ExecutableFolder());
    ustring home = Service::GetUserInstallPath();
    imagesPath = appDir + "/images";
    logRootPath = home + "/.Nimbulo_log";
    debugFlagPath = appDir + "/log/launcher.debug";
    packagePath = appDir + "/package/nimbulo.spk";
    confPath = appDir + "/conf";
}
