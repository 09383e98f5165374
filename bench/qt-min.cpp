// qt-min: the least any Qt widgets launcher does from start to exit: build
// the application object, start a worker thread, stop it, leave. Its time is
// the floor for the launcher's start when nothing needs installing.
#include <QApplication>
#include <QThread>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QThread thread;
    thread.start();
    thread.quit();
    thread.wait();
    return 0;
}
