#ifndef UI_CLIENT_LAUNCHER_LAUNCHER_H
#define UI_CLIENT_LAUNCHER_LAUNCHER_H

#include <QObject>
#include <QThread>
#include <memory>

#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/progress-dialog.h"

class Service;

// A thread that runs an event loop.
class HandlerThread : public QThread {
    Q_OBJECT

  protected:
    void run() override;
};

// Runs the upgrade on a thread that it owns. Created and destroyed on the main thread; its slot
// runs on the worker thread. The destructor waits for a run that has begun.
class Worker : public QObject {
    Q_OBJECT
    Q_DISABLE_COPY(Worker)

  public:
    Worker();
    ~Worker() override;

    void StartThread();
    void QuitThread();  // takes effect when the slot has returned
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
    void Start();  // makes the worker begin

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
