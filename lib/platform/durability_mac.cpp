#include "lib/platform/durability.h"

#include <fcntl.h>
#include <unistd.h>

namespace platform {

int SyncFile(int fd) {
    // fsync() leaves the data in the drive's cache; it is all that some volumes can do.
    return fcntl(fd, F_FULLFSYNC) == 0 ? 0 : fsync(fd);
}

int SyncFolder(const char* path) {
    const int fd = open(path, O_RDONLY | O_CLOEXEC);
    const int result = fd >= 0 ? SyncFile(fd) : -1;
    if (fd >= 0) {
        close(fd);
    }
    return result;
}

int SyncVolume(const char* path) {
    return sync_volume_np(path, SYNC_VOLUME_FULLSYNC | SYNC_VOLUME_WAIT);
}

}  // namespace platform
