#ifndef LIB_PLATFORM_QTSINGLEAPPLICATION_H
#define LIB_PLATFORM_QTSINGLEAPPLICATION_H

#include <QApplication>
#include <QDir>
#include <QFile>
#include <string>

#include "lib/install-layout.h"
#include "lib/platform/single-instance.h"

// The application object of a program that runs once per user and per installed copy. The guard is
// a lock in ~/.Tarnwell, the folder that the program works on; see platform::SingleInstance.
//
// Defined in the header: only the program that uses it knows Qt Widgets.
class QtSingleApplication : public QApplication {
  public:
    // Without guiEnabled the windows are drawn nowhere. argc and argv must outlive the object.
    QtSingleApplication(int& argc, char** argv, bool guiEnabled = true)
        : QApplication(choosePlatform(argc, guiEnabled), argv),
          instance_(bytes(QDir::homePath()) + "/" + install_layout::kUserFolder,
                    bytes(applicationFilePath())) {}

    // Whether another process of this user runs the same executable.
    bool isRunning() const { return instance_.runsElsewhere(); }

  private:
    static int& choosePlatform(int& argc, bool guiEnabled) {
        if (!guiEnabled) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        return argc;
    }

    static std::string bytes(const QString& path) { return QFile::encodeName(path).toStdString(); }

    const platform::SingleInstance instance_;
};

#endif
