#ifndef LIB_PLATFORM_DURABILITY_H
#define LIB_PLATFORM_DURABILITY_H

namespace platform {

// The one place that forces data to the disk.
//
// These return when what was written has reached the disk: 0, or -1 with errno set. On a volume or
// an object (a device, a pipe) that knows no such request they do what it offers, which may be
// nothing, and return 0. Threads: any, for the whole header.

int SyncFile(int fd);              // a file's data, or a folder's entries
int SyncFolder(const char* path);  // the entries of the folder at path
int SyncVolume(const char* path);  // everything on the volume that holds the folder at path

// These only make the system begin to write a file to the disk, so that the call that waits for it,
// which is needed all the same, has less to wait for. errno says nothing afterwards.
void StartWriting(int fd);
void StartWriting(const char* path);

}  // namespace platform

#endif
