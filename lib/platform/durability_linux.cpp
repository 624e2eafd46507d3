#include "lib/platform/durability.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

#include "lib/platform/handles.h"

namespace {

// Returns 0 also when the volume or the object doesn't support the request.
int IfKnown(int result) {
    return result == 0 || errno == EINVAL || errno == ENOTSUP ? 0 : -1;
}

int SyncOpened(const char* path, int (*sync)(int)) {
    const platform::Descriptor folder(open(path, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return folder.get() >= 0 ? IfKnown(sync(folder.get())) : -1;
}

}  // namespace

namespace platform {

int SyncFile(int fd) {
    return IfKnown(fsync(fd));
}

int SyncFolder(const char* path) {
    return SyncOpened(path, fsync);
}

int SyncVolume(const char* path) {
    return SyncOpened(path, syncfs);
}

void StartWriting(int fd) {
    static_cast<void>(sync_file_range(fd, 0, 0, SYNC_FILE_RANGE_WRITE) == 0);
}

void StartWriting(const char* path) {
    const Descriptor file(open(path, O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK));
    if (file.get() >= 0) {
        StartWriting(file.get());
    }
}

}  // namespace platform
