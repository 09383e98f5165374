// Notify_Adapter: how code without Qt objects (the extractor, on the worker
// thread) reports to the progress dialog. It needs Qt Core only, so the
// extractor can be built and run without the user interface.
#ifndef NIMBULO_NOTIFY_ADAPTER_H
#define NIMBULO_NOTIFY_ADAPTER_H

#include <QObject>
#include <QString>

// Turns plain calls into signals that Qt queues to the user-interface thread.
class Notify_Adapter : public QObject {
    Q_OBJECT
public:
    static Notify_Adapter* GetInstance();

    void UpdateProgress(int total, int current);
    void UpdateDialogText(QString text);

signals:
    void sigUpdateProgress(int total, int current);
    void sigUpdateDialogText(QString text);

private:
    Notify_Adapter() = default;
};

#endif
