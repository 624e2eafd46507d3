// A Qt plug-in for programs under test. When a progress dialog is shown, it writes the dialog's
// title and label to the file that WINDOW_READER_FILE names.

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QGenericPlugin>
#include <QProgressDialog>

class WindowReader : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "window-reader.json")

  public:
    QObject* create(const QString&, const QString&) override {
        QCoreApplication::instance()->installEventFilter(this);
        return new QObject;
    }

    bool eventFilter(QObject* object, QEvent* event) override {
        const auto* const dialog = qobject_cast<QProgressDialog*>(object);
        if (event->type() == QEvent::Show && dialog != nullptr) {
            QFile file(qEnvironmentVariable("WINDOW_READER_FILE"));
            if (file.open(QIODevice::WriteOnly)) {
                file.write(
                    (dialog->windowTitle() + QLatin1Char('\n') + dialog->labelText()).toUtf8());
            }
        }
        return false;
    }
};

#include "window-reader.moc"
