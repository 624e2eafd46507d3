#include "lib/platform/folder-rights.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <string>

#include "lib/platform/handles.h"

namespace platform {

int MountOf(int fd, MountId& mount) {
    struct statx status;
    if (statx(fd, "", AT_EMPTY_PATH, STATX_MNT_ID, &status) != 0) {
        return -1;
    }
    if ((status.stx_mask & STATX_MNT_ID) == 0) {
        errno = ENOSYS;  // a kernel without mount ids (before 5.8)
        return -1;
    }
    mount = status.stx_mnt_id;
    return 0;
}

int SetFolderMode(int folder, mode_t mode) {
    if (fchmod(folder, mode) == 0) {
        return 0;
    }
    // fchmod() refuses a descriptor that was opened with O_PATH.
    return errno == EBADF ? chmod(("/proc/self/fd/" + std::to_string(folder)).c_str(), mode) : -1;
}

// Examines and changes an open folder, so that both are the same one if the name is reused
// meanwhile.
int SetFolderMode(int parent, const char* name, const MountId* within, mode_t mode) {
    const Descriptor folder(openat(parent, name, O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC));
    if (folder.get() < 0) {
        return -1;
    }
    MountId mount = 0;
    if (within != nullptr && MountOf(folder.get(), mount) != 0) {
        return -1;
    }
    if (within != nullptr && mount != *within) {
        errno = EXDEV;
        return -1;
    }
    return SetFolderMode(folder.get(), mode);
}

}  // namespace platform
