#ifndef LIB_PLATFORM_FILE_SYSTEM_TYPE_H
#define LIB_PLATFORM_FILE_SYSTEM_TYPE_H

#include <string>

namespace platform {

// The type name of the file system that holds the object at path (UTF-8, links followed): "nfs",
// "smbfs", "afpfs" or "msdos", whatever the system itself calls these, else the system's own name.
// Returns 0, or -1 with errno set and name unchanged. Threads: any.
int FileSystemType(const char* path, std::string& name);

}  // namespace platform

#endif
