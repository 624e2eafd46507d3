#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <vector>

#include "lib/install-layout.h"
#include "lib/platform/open-bundle.h"
#include "lib/platform/regular-file.h"
#include "lib/platform/time-zone.h"

namespace {

const std::size_t kMaxPlistSize = std::size_t{1024} * 1024;  // bytes; a real one has a few thousand

std::string ExecutableName(const std::string& bundle) {
    const std::string plist = bundle + "/" + install_layout::kInfoPlist;
    std::string text;  // stays empty, and names nothing, when the file isn't read
    platform::ReadRegularFile(plist.c_str(), kMaxPlistSize, text, bundle.c_str());
    const QByteArray name = platform::BundleExecutable(QByteArray::fromStdString(text)).toUtf8();
    return name.isEmpty() ? std::filesystem::path(bundle).stem().string() : name.toStdString();
}

// Owns the file actions and the attributes of posix_spawn.
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

// Every signal gets its default action and none is blocked, as programs expect when they start.
void ResetSignals(posix_spawnattr_t& attributes) {
    sigset_t signals;
    sigemptyset(&signals);
    posix_spawnattr_setsigmask(&attributes, &signals);
    sigfillset(&signals);
    posix_spawnattr_setsigdefault(&attributes, &signals);
}

// Starts a program that outlives us: in its own session, in the home folder, without our terminal,
// pipes and files. posix_spawn() takes less time than fork(), which copies this process first.
bool StartDetached(const std::string& program) {
    Start start;
    ResetSignals(start.attributes);
    posix_spawnattr_setflags(&start.attributes,
                             POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    const char* const home = std::getenv("HOME");
    posix_spawn_file_actions_addchdir_np(&start.actions,
                                         home != nullptr && *home != 0 ? home : "/");
    posix_spawn_file_actions_addopen(&start.actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
    posix_spawn_file_actions_addopen(&start.actions, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addopen(&start.actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    posix_spawn_file_actions_addclosefrom_np(&start.actions, STDERR_FILENO + 1);
    std::string name = program;
    char* const arguments[] = {name.data(), nullptr};
    pid_t pid = 0;
    return posix_spawn(&pid, program.c_str(), &start.actions, &start.attributes, arguments,
                       EnvironmentToPassOn().data()) == 0;
}

}  // namespace

namespace platform {

bool OpenBundle(const std::string& path) {
    const std::string program = path + "/Contents/MacOS/" + ExecutableName(path);
    struct stat status;
    return FindRegularFile(program.c_str(), status, path.c_str()) == Reading::Done &&
           access(program.c_str(), X_OK) == 0 && StartDetached(program);
}

}  // namespace platform
