// The least that a Qt program with a progress dialog does: what a run with nothing to do is
// measured against.

#include <QApplication>
#include <QProgressDialog>
#include <QTimer>

int main(int argc, char** argv) {
    const QApplication app(argc, argv);
    const QProgressDialog dialog;
    QTimer::singleShot(0, &app, SLOT(quit()));
    return QApplication::exec();
}
