// A minimal Qt program that builds a progress dialog. The launcher's start and memory are compared
// with it.
//
//     bench-empty-program CLIENT  starts CLIENT and exits
//     bench-empty-program         shows the dialog and exits when it is painted

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
