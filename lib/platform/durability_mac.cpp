#include "lib/platform/durability.h"

#include <fcntl.h>
#include <unistd.h>

#include "lib/platform/handles.h"

namespace platform {

int SyncFile(int fd) {
    // fsync() leaves the data in the drive's cache; it is all that some volumes can do.
    return fcntl(fd, F_FULLFSYNC) == 0 ? 0 : fsync(fd);
}

int SyncFolder(const char* path) {
    const Descriptor folder(open(path, O_RDONLY | O_CLOEXEC));
    return folder.get() >= 0 ? SyncFile(folder.get()) : -1;
}

int SyncVolume(const char* path) {
    return sync_volume_np(path, SYNC_VOLUME_FULLSYNC | SYNC_VOLUME_WAIT);
}

// The system has no such request.
void StartWriting(int) {}
void StartWriting(const char*) {}

}  // namespace platform
