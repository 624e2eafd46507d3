#ifndef UI_CLIENT_LAUNCHER_NOTIFY_ADAPTER_H
#define UI_CLIENT_LAUNCHER_NOTIFY_ADAPTER_H

#include <QObject>
#include <QString>

// Passes on the progress of an extraction, which has no user interface itself. There is one object
// in the process; it belongs to the thread of the first GetInstance(), which must be the main
// thread. Threads: the methods may be called from any thread.
class Notify_Adapter : public QObject {
    Q_OBJECT

  public:
    static Notify_Adapter* GetInstance();

    void UpdateProgress(int total, int current);  // entries of the package, and those written
    void UpdateDialogText(QString text);

  signals:
    void sigUpdateProgress(int total, int current);
    void sigUpdateDialogText(QString);
};

#endif
