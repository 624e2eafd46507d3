#ifndef LIB_PLATFORM_FOLDER_RIGHTS_H
#define LIB_PLATFORM_FOLDER_RIGHTS_H

#include <sys/types.h>

#include <cstdint>

namespace platform {

// What a walk through a tree of this user needs to know and to change about its folders. All
// return 0, or -1 with errno set. Threads: any.

// The volume that an open object is on. On Linux it is the mount, so that a folder of the same
// device that is mounted (bound) elsewhere is on another one. -1 when the system doesn't say.
using MountId = std::uint64_t;
int MountOf(int fd, MountId& mount);

// Sets the permissions of an open folder, which may be open only to be passed.
int SetFolderMode(int folder, mode_t mode);

// Sets the permissions of the folder that has this name in an open folder. A link isn't followed
// (ENOTDIR). With within, a folder on another volume is left alone (EXDEV).
int SetFolderMode(int parent, const char* name, const MountId* within, mode_t mode);

}  // namespace platform

#endif
