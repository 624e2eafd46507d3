#include "lib/platform/durability.h"

#include <fcntl.h>
#include <unistd.h>

namespace platform {

int SyncFile(int fd) {
    return fcntl(fd, F_FULLFSYNC);  // fsync() leaves the data in the drive's cache
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
    sync();  // starts the writing of everything; what follows waits for the drive
    return SyncFolder(path);
}

}  // namespace platform
