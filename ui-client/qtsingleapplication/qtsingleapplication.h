// QtSingleApplication: a QApplication that knows whether another instance of
// the same executable already runs for the same user.
#ifndef NIMBULO_QTSINGLEAPPLICATION_H
#define NIMBULO_QTSINGLEAPPLICATION_H

#include <QApplication>
#include <QString>

class QLockFile;

class QtSingleApplication : public QApplication {
    Q_OBJECT
public:
    // Qt 5's QApplication is always graphical; GUIenabled is kept for the
    // callers' sake and otherwise ignored.
    QtSingleApplication(int& argc, char** argv, bool GUIenabled = true);
    ~QtSingleApplication() override;

    // true when another live process holds this executable's lock. The
    // answer is fixed at construction: the first instance keeps the lock
    // until it is destroyed.
    bool isRunning();

    // The identity shared by instances that exclude each other: a hash of
    // the executable's absolute path and the user.
    QString id() const;

private:
    QString appId;
    QLockFile* lockFile;
    bool running;
};

#endif
