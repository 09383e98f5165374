#include "qtsingleapplication/qtsingleapplication.h"

#include <unistd.h>

#include <QCryptographicHash>
#include <QDir>
#include <QLockFile>
#include <QStandardPaths>

namespace {

// A folder only this user writes to when the platform has one; the temporary
// folder otherwise, where the user id in the identity keeps users apart.
QString LockFolder()
{
    QString folder = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (folder.isEmpty() || !QDir().mkpath(folder))
        folder = QDir::tempPath();
    return folder;
}

}  // namespace

QtSingleApplication::QtSingleApplication(int& argc, char** argv, bool /*GUIenabled*/)
    : QApplication(argc, argv), lockFile(nullptr), running(false)
{
    // applicationFilePath() needs the application object, hence here and not
    // in the initialiser list. It resolves symbolic links, so a link to the
    // bundle counts as the bundle itself while a copy elsewhere does not.
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(QCoreApplication::applicationFilePath().toUtf8());
    hash.addData("\n", 1);
    hash.addData(QByteArray::number(static_cast<qulonglong>(::getuid())));
    appId = QString::fromLatin1(hash.result().toHex().left(20));

    lockFile = new QLockFile(LockFolder() + QLatin1String("/qtsingleapp-") + appId + QLatin1String(".lock"));
    // Age never makes the lock stale; only the death of its owner does.
    // QLockFile sees that from the owner's pid, and a holder that died
    // (SIGKILL included) also left the file's native lock behind.
    lockFile->setStaleLockTime(0);
    if (lockFile->tryLock(0))
        return;
    if (lockFile->error() != QLockFile::LockFailedError) {
        // The guard cannot work here (folder not writable): better two
        // instances than none.
        return;
    }

    // An owner pid equal to ours cannot be a live other instance: the file
    // was left by a process that had our pid in another pid namespace (both
    // then run as pid 1, for example), which QLockFile takes for alive.
    // removeStaleLockFile() still refuses while a live process holds the
    // file's native lock.
    qint64 pid = 0;
    QString host;
    QString app;
    if (lockFile->getLockInfo(&pid, &host, &app) && pid == QCoreApplication::applicationPid() &&
        lockFile->removeStaleLockFile() && lockFile->tryLock(0))
        return;
    running = lockFile->error() == QLockFile::LockFailedError;
}

QtSingleApplication::~QtSingleApplication()
{
    delete lockFile;
}

bool QtSingleApplication::isRunning()
{
    return running;
}

QString QtSingleApplication::id() const
{
    return appId;
}
