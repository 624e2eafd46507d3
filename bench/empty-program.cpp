// The least that a Qt program does that builds a progress dialog: what the launcher's start and its
// memory are measured against.
//
//     bench-empty-program CLIENT  starts CLIENT and ends
//     bench-empty-program         shows the dialog and ends when it is painted

#include <spawn.h>
#include <unistd.h>

#include <QApplication>
#include <QProgressDialog>
#include <QTimer>

namespace {

class Dialog : public QProgressDialog {
  protected:
    void paintEvent(QPaintEvent* event) override {
        QProgressDialog::paintEvent(event);
        QTimer::singleShot(0, qApp, SLOT(quit()));
    }
};

}  // namespace

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    Dialog dialog;
    if (argc < 2) {
        dialog.show();
    } else {
        pid_t pid = 0;
        char* const arguments[] = {argv[1], nullptr};
        if (posix_spawn(&pid, argv[1], nullptr, nullptr, arguments, environ) != 0) {
            return 1;
        }
        QTimer::singleShot(0, &app, SLOT(quit()));
    }
    return QApplication::exec();
}
