#ifndef LIB_PLATFORM_QTSINGLEAPPLICATION_H
#define LIB_PLATFORM_QTSINGLEAPPLICATION_H

#include <QApplication>
#include <QDir>
#include <QFile>
#include <string>

#include "lib/install-layout.h"
#include "lib/platform/single-instance.h"

// The application object of a program that runs once per user and installed copy. A lock in
// ~/.Tarnwell ensures that; see platform::SingleInstance.
//
// Header-only, so that only the program that uses it links Qt Widgets.
class QtSingleApplication : public QApplication {
  public:
    // Without guiEnabled no window is shown (Qt's platform "offscreen"). argc and argv must outlive
    // the object.
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
