#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <vector>

#include "lib/platform/open-bundle.h"
#include "lib/platform/time-zone.h"

namespace {

const qint64 kMaxPlistSize = qint64{1024} * 1024;  // bytes; a real one has a few thousand

QString ReadExecutableName(const QString& bundle) {
    QFile file(bundle + QStringLiteral("/Contents/Info.plist"));
    const QString name = file.open(QIODevice::ReadOnly)
                             ? platform::BundleExecutable(file.read(kMaxPlistSize))
                             : QString();
    return name.isEmpty() ? QFileInfo(bundle).completeBaseName() : name;
}

// The actions and attributes of a program that is about to be started.
class Start {
  public:
    Start() {
        posix_spawn_file_actions_init(&actions);
        posix_spawnattr_init(&attributes);
    }
    ~Start() {
        posix_spawn_file_actions_destroy(&actions);
        posix_spawnattr_destroy(&attributes);
    }
    Start(const Start&) = delete;
    Start& operator=(const Start&) = delete;

    posix_spawn_file_actions_t actions;
    posix_spawnattr_t attributes;
};

std::vector<char*> EnvironmentToPassOn() {
    std::vector<char*> entries;
    for (char** entry = environ; *entry != nullptr; ++entry) {
        if (!platform::IsNamedTimeZone(*entry)) {
            entries.push_back(*entry);
        }
    }
    entries.push_back(nullptr);
    return entries;
}

// Starts a program that outlives us: in a session of its own, in the home folder, without a hold on
// a terminal or pipe of ours. A copy of this process, however short its life, would cost more than
// the start itself.
bool StartDetached(const QByteArray& program) {
    Start start;
    posix_spawnattr_setflags(&start.attributes, POSIX_SPAWN_SETSID);
    const QByteArray home = QFile::encodeName(QDir::homePath());
    posix_spawn_file_actions_addchdir_np(&start.actions, home.constData());
    posix_spawn_file_actions_addopen(&start.actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&start.actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&start.actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    QByteArray name = program;
    char* const arguments[] = {name.data(), nullptr};
    pid_t pid = 0;
    return posix_spawn(&pid, program.constData(), &start.actions, &start.attributes, arguments,
                       EnvironmentToPassOn().data()) == 0;
}

}  // namespace

namespace platform {

bool OpenBundle(const QString& path) {
    const QString program = path + QStringLiteral("/Contents/MacOS/") + ReadExecutableName(path);
    const QFileInfo info(program);
    return info.isFile() && info.isExecutable() && StartDetached(QFile::encodeName(program));
}

}  // namespace platform
