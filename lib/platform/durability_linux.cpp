#include "lib/platform/durability.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "lib/platform/handles.h"

namespace {

int SyncOpened(const char* path, int (*sync)(int)) {
    const platform::Descriptor folder(open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (folder.get() < 0) {
        return -1;
    }
    return sync(folder.get()) == 0 || errno == EINVAL || errno == ENOTSUP ? 0 : -1;
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
