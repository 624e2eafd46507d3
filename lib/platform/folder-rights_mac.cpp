#include "lib/platform/folder-rights.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>

namespace platform {

int MountOf(int fd, MountId& mount) {
    struct stat status;
    if (fstat(fd, &status) != 0) {
        return -1;
    }
    mount = static_cast<MountId>(status.st_dev);
    return 0;
}

int SetFolderMode(int folder, mode_t mode) {
    return fchmod(folder, mode);
}

// Works on the name: macOS can't open a folder that may be neither read nor searched.
int SetFolderMode(int parent, const char* name, const MountId* within, mode_t mode) {
    struct stat status;
    if (fstatat(parent, name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return -1;
    }
    if (!S_ISDIR(status.st_mode)) {
        errno = ENOTDIR;
        return -1;
    }
    if (within != nullptr && static_cast<MountId>(status.st_dev) != *within) {
        errno = EXDEV;
        return -1;
    }
    return fchmodat(parent, name, mode, AT_SYMLINK_NOFOLLOW);
}

}  // namespace platform
