// A small client for the demonstration package. It shows its version, writes its process id to
// ~/.Tarnwell/ui.pid for the launcher, and ends on SIGTERM or when its window is closed.

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QSettings>
#include <QVBoxLayout>
#include <QWidget>
#include <cerrno>
#include <cstring>

#include "lib/install-layout.h"
#include "lib/platform/quit-on-signal.h"

namespace {

// The pid file, which exists as long as this object. Its lock, which the kernel releases when the
// process ends, keeps a second client from running.
class PidFile {
  public:
    PidFile()
        : path_(QFile::encodeName(QDir::homePath()) + '/' + install_layout::kUserFolder + '/' +
                install_layout::kPidFile) {
        do {
            if (fd_ >= 0) {
                close(fd_);
            }
            fd_ = open(path_.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0644);
            if (fd_ < 0) {
                qWarning("can't open %s: %s", path_.constData(), strerror(errno));
                return;
            }
            running_elsewhere_ = flock(fd_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK;
        } while (!running_elsewhere_ && wasRemoved());
        if (!running_elsewhere_) {
            writePid();
        }
    }
    ~PidFile() {
        if (fd_ < 0) {
            return;
        }
        if (!running_elsewhere_) {
            unlink(path_.constData());
        }
        close(fd_);
    }
    PidFile(const PidFile&) = delete;
    PidFile& operator=(const PidFile&) = delete;

    bool runningElsewhere() const { return running_elsewhere_; }

  private:
    // Whether an earlier client removed the file after we opened and before we locked it.
    bool wasRemoved() const {
        struct stat ours;
        struct stat there;
        return fstat(fd_, &ours) == 0 &&
               (stat(path_.constData(), &there) != 0 || ours.st_dev != there.st_dev ||
                ours.st_ino != there.st_ino);
    }

    void writePid() const {
        const QByteArray text = "pid=" + QByteArray::number(getpid()) + '\n';
        if (ftruncate(fd_, 0) != 0 ||
            write(fd_, text.constData(), static_cast<std::size_t>(text.size())) < 0) {
            qWarning("can't write %s: %s", path_.constData(), strerror(errno));
        }
    }

    const QByteArray path_;
    int fd_ = -1;
    bool running_elsewhere_ = false;
};

// The path of a file or folder in the application, by its name there.
QString InApplication(const char* name) {
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../../") +
           QString::fromLatin1(name);
}

QString VersionText() {
    const QSettings info(InApplication(install_layout::kInfo), QSettings::IniFormat);
    return QStringLiteral("Version %1.%2, build %3")
        .arg(info.value(QStringLiteral("Version/major_version")).toString(),
             info.value(QStringLiteral("Version/minor_version")).toString(),
             info.value(QStringLiteral("Version/build_version")).toString());
}

}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    platform::QuitOnSignal();
    const PidFile pid_file;
    if (pid_file.runningElsewhere()) {
        return 0;
    }

    QWidget window;
    window.setWindowTitle(QStringLiteral("Orvane Tarnwell"));
    QLabel icon;
    icon.setPixmap(QPixmap(InApplication(install_layout::kResources) + QLatin1Char('/') +
                           QString::fromLatin1(install_layout::kIcon)));
    icon.setAlignment(Qt::AlignCenter);
    QLabel version(VersionText());
    version.setAlignment(Qt::AlignCenter);
    QLabel status(QStringLiteral("Up to date"));
    status.setAlignment(Qt::AlignCenter);
    QVBoxLayout layout(&window);
    layout.addWidget(&icon);
    layout.addWidget(&version);
    layout.addWidget(&status);
    window.setMinimumWidth(280);
    window.show();
    return QApplication::exec();
}
