#ifndef UI_CLIENT_LAUNCHER_LAUNCHER_H
#define UI_CLIENT_LAUNCHER_LAUNCHER_H

#include <QObject>
#include <QProgressDialog>
#include <QThread>
#include <memory>

class Service;

// The small window that is shown while the per-user installation is replaced: a label and a bar
// from 0 to 100. Main thread only.
class ProcessingProgressDialog : public QProgressDialog {
    Q_OBJECT

  public:
    ProcessingProgressDialog();
};

// Carries the progress of an extraction, which knows no user interface, to whoever listens. There
// is one in the process; it belongs to the thread of the first GetInstance(), which must be the
// main thread. The methods may be called from any thread.
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

// A thread that runs an event loop.
class HandlerThread : public QThread {
    Q_OBJECT

  protected:
    void run() override;
};

// Runs the upgrade on a thread of its own, which it owns. Made and destroyed on the main thread;
// its slot runs on the worker thread. Destroying it waits for a run that has begun.
class Worker : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY(Worker)

  public:
    Worker();
    ~Worker() override;

    void StartThread();
    void QuitThread();  // once the slot has returned
    void JoinThread();  // waits without a time limit

  signals:
    void sigServiceDone();
    void sigShowMsg();
    void sigUpdateProgress(int, int);
    void sigSetLabelText(const QString&);

  private slots:
    void HandleServicce();

  private:
    std::unique_ptr<HandlerThread> thread;
    std::unique_ptr<Service> service;
};

// The controller: starts the worker, shows its progress, and ends the event loop when it is done.
// Main thread only.
class Launcher : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY(Launcher)

  public:
    Launcher();
    ~Launcher() override;

    void Run();    // starts the worker's thread
    void Start();  // tells the worker to begin

  signals:
    void sigStart();

  private slots:
    void LaunchDone();
    void UpdateProgress(int total, int steps);
    void SetLabelText(const QString&);
    void ShowMsgBox();

  private:
    std::unique_ptr<Worker> worker;
    std::unique_ptr<ProcessingProgressDialog> dialog;
};

#endif
