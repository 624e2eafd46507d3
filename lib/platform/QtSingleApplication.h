#ifndef LIB_PLATFORM_QTSINGLEAPPLICATION_H
#define LIB_PLATFORM_QTSINGLEAPPLICATION_H

#include <QApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <string>

#include "lib/platform/instance-lock.h"

// The application object of a program that runs once per user and per installed copy. The guard is
// a lock in ~/.Tarnwell, the folder that the program works on, so neither the session nor the
// temporary folder matters.
//
// Defined in the header: only the program that uses it knows Qt Widgets.
class QtSingleApplication : public QApplication {
  public:
    // Without guiEnabled the windows are drawn nowhere. argc and argv must outlive the object.
    QtSingleApplication(int& argc, char** argv, bool guiEnabled = true)
        : QApplication(choosePlatform(argc, guiEnabled), argv), lock_(lockPath()) {}

    // Whether another process of this user runs the same executable.
    bool isRunning() const { return lock_.heldElsewhere(); }

  private:
    static int& choosePlatform(int& argc, bool guiEnabled) {
        if (!guiEnabled) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        return argc;
    }

    static std::string lockPath() {
        const QString folder = QDir::homePath() + QStringLiteral("/.Tarnwell");
        QDir().mkpath(folder);  // without it there is no lock, which isRunning() allows for
        const QByteArray key = QCryptographicHash::hash(QFile::encodeName(applicationFilePath()),
                                                        QCryptographicHash::Sha1);
        const QString name = QStringLiteral("/.launcher-%1.lock");
        return QFile::encodeName(folder + name.arg(QString::fromLatin1(key.toHex().left(16))))
            .toStdString();
    }

    const platform::InstanceLock lock_;
};

#endif
