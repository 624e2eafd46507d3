#ifndef LIB_PLATFORM_MEMORY_FILE_H
#define LIB_PLATFORM_MEMORY_FILE_H

#include <string>

#include "lib/platform/handles.h"

namespace platform {

// A private copy of some text, for libraries that can only read from a path. It is removed with the
// object, on Linux also when the process ends in any way. No two copies of a process have both the
// same path and the same modification time: Qt would take them for the same file.
//
// Threads: any thread may create one; an object belongs to one thread.
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
