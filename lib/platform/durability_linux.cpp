#include "lib/platform/durability.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace {

int SyncOpened(const char* path, int (*sync)(int)) {
    const int fd = open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0) {
        return -1;
    }
    const bool done = sync(fd) == 0 || errno == EINVAL || errno == ENOTSUP;
    close(fd);  // nothing was written through it
    return done ? 0 : -1;
}

}  // namespace

namespace platform {

int SyncFile(int fd) {
    return fsync(fd);
}

int SyncFolder(const char* path) {
    return SyncOpened(path, fsync);
}

int SyncVolume(const char* path) {
    return SyncOpened(path, syncfs);
}

}  // namespace platform
