#include "lib/platform/durability.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "lib/platform/handles.h"

namespace {

bool IsUnknownRequest(int error) {
    return error == EINVAL || error == ENOTSUP || error == ENOTTY;
}

}  // namespace

namespace platform {

int SyncFile(int fd) {
    if (fcntl(fd, F_FULLFSYNC) == 0) {
        return 0;
    }
    // fsync() may leave the data in the drive's cache, but some volumes support nothing else.
    return IsUnknownRequest(errno) && (fsync(fd) == 0 || IsUnknownRequest(errno)) ? 0 : -1;
}

int SyncFolder(const char* path) {
    const Descriptor folder(open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return folder.get() >= 0 ? SyncFile(folder.get()) : -1;
}

int SyncVolume(const char* path) {
    // Returns an error number. Not every volume can flush the drive's cache or wait.
    int error = sync_volume_np(path, SYNC_VOLUME_FULLSYNC | SYNC_VOLUME_WAIT);
    if (IsUnknownRequest(error)) {
        error = sync_volume_np(path, SYNC_VOLUME_WAIT);
    }
    if (IsUnknownRequest(error)) {
        sync();
        error = 0;
    }
    if (error != 0) {
        errno = error;
        return -1;
    }
    return 0;
}

// The system has no such request.
void StartWriting(int) {}
void StartWriting(const char*) {}

}  // namespace platform
