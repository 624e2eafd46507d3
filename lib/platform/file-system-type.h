#ifndef LIB_PLATFORM_FILE_SYSTEM_TYPE_H
#define LIB_PLATFORM_FILE_SYSTEM_TYPE_H

#include <string>

namespace platform {

// Finds out the type of the file system that the object at path (UTF-8, links followed) is on. name
// is "nfs", "smbfs", "afpfs" or "msdos" on every system, else the system's name for the type.
// Returns 0, or -1 with errno set and name unchanged. Threads: any.
int FileSystemType(const char* path, std::string& name);

}  // namespace platform

#endif
