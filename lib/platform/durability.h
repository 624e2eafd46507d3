#ifndef LIB_PLATFORM_DURABILITY_H
#define LIB_PLATFORM_DURABILITY_H

namespace platform {

// All code that forces data to the disk calls these functions.
//
// Each returns 0 once the data has reached the disk, or -1 with errno set. If the volume or the
// object (a device, a pipe) doesn't support that, it does what is supported, possibly nothing, and
// returns 0. Threads: any, for the whole header.

int SyncFile(int fd);              // a file's data, or a folder's entries
int SyncFolder(const char* path);  // the entries of the folder at path
int SyncVolume(const char* path);  // everything on the volume that holds the folder at path

// These only make the system start writing a file to the disk, so that the Sync call, which must
// follow all the same, takes less time. errno is undefined afterwards.
void StartWriting(int fd);
void StartWriting(const char* path);

}  // namespace platform

#endif
