#include "ui-client/launcher/launcher.h"

#include <QApplication>
#include <limits>

#include "lib/liblogger/log.h"
#include "ui-client/launcher/mac/mac-service.h"
#include "ui-client/launcher/translations/str-table.h"

#define LOG_SOURCE "launcher"

namespace {

const ustring log_component("launcher_debug");

}  // namespace

void HandlerThread::run() {
    exec();
}

Worker::Worker() {
    service = std::make_unique<MacService>();
    thread = std::make_unique<HandlerThread>();
    moveToThread(thread.get());
}

Worker::~Worker() {
    QuitThread();
    JoinThread();
    thread.reset();  // before the service, which only that thread has used
}

void Worker::StartThread() {
    thread->start(QThread::InheritPriority);
}

void Worker::QuitThread() {
    thread->quit();
}

void Worker::JoinThread() {
    thread->wait(std::numeric_limits<unsigned long>::max());
}

void Worker::HandleServicce() {
    LOG_MSG_AT(87, DEBUG, "running\n");
    service->PreUpgrade();
    if (service->IsNeedUpgrade()) {
        emit sigShowMsg();
        if (service->HandlePackageUpgrade() == 0) {
            emit sigUpdateProgress(100, 100);
            emit sigSetLabelText(StrTable::LoadStr(StrTable::kPreparationDone));
        } else {
            LOG_MSG_AT(99, ERROR, "Failed to upgrade package\n");
        }
    } else {
        LOG_MSG_AT(92, DEBUG, "no need to upgrade\n");
    }
    service->RemoveAgedFolders();
    service->PostUpgrade();
    LOG_MSG_AT(115, DEBUG, "done\n");
    emit sigServiceDone();
}

Launcher::Launcher() : worker(new Worker), dialog(ProcessingProgressDialog::Create()) {
    dialog->setCancelButton(nullptr);
    dialog->setAutoReset(false);
    // By default a progress dialog shows itself after a while, even if there is no upgrade.
    dialog->setMinimumDuration(std::numeric_limits<int>::max());
    // The user may close the window; the run continues until the work is done.
    QGuiApplication::setQuitOnLastWindowClosed(false);

    connect(this, SIGNAL(sigStart()), worker.get(), SLOT(HandleServicce()));
    connect(worker.get(), SIGNAL(sigShowMsg()), this, SLOT(ShowMsgBox()));
    connect(worker.get(), SIGNAL(sigServiceDone()), this, SLOT(LaunchDone()));
    connect(worker.get(), SIGNAL(sigUpdateProgress(int, int)), this,
            SLOT(UpdateProgress(int, int)));
    connect(worker.get(), SIGNAL(sigSetLabelText(QString)), this, SLOT(SetLabelText(QString)));
    connect(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateProgress(int, int)), this,
            SLOT(UpdateProgress(int, int)));
    connect(Notify_Adapter::GetInstance(), SIGNAL(sigUpdateDialogText(QString)), this,
            SLOT(SetLabelText(QString)));
}

Launcher::~Launcher() {
    worker.reset();  // waits for a run that has begun, which may still refer to the dialog
}

void Launcher::Run() {
    worker->StartThread();
}

void Launcher::Start() {
    emit sigStart();
}

void Launcher::ShowMsgBox() {
    dialog->show();
}

// The 32-bit product can't overflow before a package has 21 million entries.
void Launcher::UpdateProgress(int total, int steps) {
    dialog->setValue(steps * 100 / total);
}

void Launcher::SetLabelText(const QString& text) {
    dialog->setLabelText(text);
}

void Launcher::LaunchDone() {
    dialog->setValue(100);
    dialog->hide();
    worker->QuitThread();
    worker->JoinThread();
    QCoreApplication::quit();
}
