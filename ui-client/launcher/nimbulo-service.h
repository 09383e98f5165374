// The upgrade service: every path of the per-user installation, the two
// version records the upgrade decision compares, and the steps the worker
// thread runs in order. MacService (mac/mac-service.h) implements them.
//
// Layout, for a bundle at /Applications/Nimbulo.app and home /Users/someone:
//   B  bundle root          /Applications/Nimbulo.app
//      bundle resources     B/Contents/Resources   (INFO, package/nimbulo.spk)
//   H  home                 /Users/someone
//   R  per-user root        H/.Nimbulo             (ui.pid, launcher.lock, log/,
//                                                   app/, data/)
//   A  per-user application R/Nimbulo.app          (backups: A_tmp, A_tmp1..9)
#ifndef NIMBULO_SERVICE_H
#define NIMBULO_SERVICE_H

#include <cstdint>

#include "libustring/ustring.h"

class Service {
public:
    Service();
    virtual ~Service();

    // Ends the running per-user client, if any.
    virtual void StopService() = 0;
    virtual void SetTimeout(int value);
    // Installs the package into A. 0, or -1 (the old A is back when it existed).
    virtual int HandlePackageUpgrade() = 0;
    // Starts the per-user client; failures are only logged.
    virtual void PostUpgrade() = 0;
    // Loads both version records.
    virtual void PreUpgrade() = 0;
    // true when the package must be installed. Call PreUpgrade first.
    virtual bool IsNeedUpgrade() = 0;
    // Extracts the bundle's package into A, creating A. 0, or -1.
    virtual int ExtractPackage();
    // Reads A's INFO into the source fields; a missing file leaves them.
    virtual void LoadSourceVersion();
    // Reads the bundle's INFO into the target fields.
    virtual void LoadTargetVersion();
    // Backs A up, extracts, then removes the backups or rolls back. 0, or -1.
    virtual int PrepareUserEnv();

    // Path operations: plain concatenation, nothing is created on disk.
    static ustring GetUserInstallPath();                 // H
    static ustring GetRootNimbuloInstallPath();          // B
    static ustring GetRootNimbuloResourceInstallPath();  // B/Contents/Resources
    static ustring GetUserNimbuloInstallPath();          // R
    static ustring GetUserNimbuloAppInstallPath();       // A
    static ustring GetUserNimbuloDataInstallPath();      // R/data
    static ustring GetUserNimbuloLockPath();             // R/launcher.lock

    // A version file's build text as the upgrade decision compares it.
    static int BuildNumber(const ustring& text);

    // Copies a file or a folder tree. 0, or -1; a folder whose listing cannot
    // be opened is created empty and counts as copied.
    int FSCopyPath(const ustring& src, const ustring& dst);
    // Removes the aged application folder R/app; the result is not reported.
    void RemoveAgedFolders();

    int32_t timeout;
    ustring userAppPath;
    ustring targetMajorVersion;
    ustring targetMinorVersion;
    ustring targetBuildVersion;
    ustring targetIconOverlayVersion;
    ustring sourceMajorVersion;
    ustring sourceMinorVersion;
    ustring sourceBuildVersion;
    ustring sourceIconOverlayVersion;
};

// One installation at a time per home. The single-instance guard is keyed on
// the executable's path, so launchers of two copies of the bundle run
// together; they take turns here, each deciding on what the one before left.
// A flock on R/launcher.lock: R is the one folder the launcher never moves
// or removes (A and its backups move during an installation, R/app goes in
// the clean-up), and the file itself is never deleted, since a launcher that
// opened a new file of the same name would lock something else. The kernel
// drops the lock with the process, so a launcher that dies blocks nobody.
class InstallLock {
public:
    InstallLock();
    // Releases the lock when held.
    ~InstallLock();

    // Takes the lock, waiting at most waitSeconds for the launcher holding
    // it. 0 when held; -1 when the lock file cannot be used or the wait ran
    // out, both logged: the caller goes on without it.
    int Acquire(int waitSeconds);
    void Release();

private:
    int fd;
};

// Further paths of the running bundle; the upgrade flow does not use them.
class PackageInfo {
public:
    PackageInfo();

    ustring imagesPath;     // Contents/MacOS/images
    ustring logRootPath;    // H/.Nimbulo_log
    ustring debugFlagPath;  // Contents/MacOS/log/launcher.debug
    ustring packagePath;    // Contents/MacOS/package/nimbulo.spk
    ustring confPath;       // Contents/MacOS/conf
};

#endif
