#ifndef LIB_PLATFORM_MEMORY_FILE_H
#define LIB_PLATFORM_MEMORY_FILE_H

#include <string>

#include "lib/platform/handles.h"

namespace platform {

// A private copy of some text, for libraries that read by path only. It is gone with the object,
// and on Linux also with the process, however that ends. No two copies of one process have the same
// path and the same time of modification, by which Qt would take them for the same file.
//
// Threads: any may make one; an object belongs to one thread.
class MemoryFile {
  public:
    explicit MemoryFile(const std::string& content);
    ~MemoryFile();
    MemoryFile(const MemoryFile&) = delete;
    MemoryFile& operator=(const MemoryFile&) = delete;

    // Empty when the copy couldn't be made. Valid in this process only.
    const std::string& path() const { return path_; }

  private:
    Descriptor file_;
    std::string path_;
};

}  // namespace platform

#endif
