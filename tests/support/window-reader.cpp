// A plug-in for Qt programs under test: writes the title and the label of a progress dialog, as
// they are when its window is shown, to the file that the environment names.

#include <QCoreApplication>
#include <QEvent>
#include <QFile>
#include <QGenericPlugin>
#include <QProgressDialog>

namespace {

class WindowReader : public QObject {
  public:
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

}  // namespace

class WindowReaderPlugin : public QGenericPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QGenericPluginFactoryInterface_iid FILE "window-reader.json")

  public:
    QObject* create(const QString&, const QString&) override {
        QObject* const reader = new WindowReader;
        QCoreApplication::instance()->installEventFilter(reader);
        return reader;
    }
};

#include "window-reader.moc"
