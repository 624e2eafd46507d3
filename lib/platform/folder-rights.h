#ifndef LIB_PLATFORM_FOLDER_RIGHTS_H
#define LIB_PLATFORM_FOLDER_RIGHTS_H

#include <sys/types.h>

#include <cstdint>

namespace platform {

// What walks through a tree of this user need to know and to change about its folders. All return
// 0, or -1 with errno set. Threads: any.

// Identifies the volume that an open object is on. On Linux it is the mount, so that a bind mount
// of the same device counts as another volume.
using MountId = std::uint64_t;
int MountOf(int fd, MountId& mount);

// Sets the permissions of an open folder. One that was opened with kOpenToPass will do.
int SetFolderMode(int folder, mode_t mode);

// Sets the permissions of the folder that has this name in an open folder. A link isn't followed
// (ENOTDIR). With within, a folder on another volume is left alone (EXDEV).
int SetFolderMode(int parent, const char* name, const MountId* within, mode_t mode);

}  // namespace platform

#endif
