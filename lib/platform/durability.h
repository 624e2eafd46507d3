#ifndef LIB_PLATFORM_DURABILITY_H
#define LIB_PLATFORM_DURABILITY_H

namespace platform {

// These return when what was written has reached the disk: 0, or -1 with errno set. On a volume
// that knows no such request they do what it offers. Threads: any.

int SyncFile(int fd);              // a file's data, or a folder's entries
int SyncFolder(const char* path);  // the entries of the folder at path
int SyncVolume(const char* path);  // everything on the volume that holds the folder at path

}  // namespace platform

#endif
