#ifndef LIB_PLATFORM_REGULAR_FILE_H
#define LIB_PLATFORM_REGULAR_FILE_H

#include <sys/stat.h>

#include <cstddef>
#include <string>

#include "lib/platform/handles.h"

// Files that somebody else wrote, and that may not be what their names promise. Each operation
// follows links. With inside, the path of a folder, the file must be in that folder or below it
// once all links are followed. Nothing but a regular file is ever opened, so no call waits for the
// other end of a pipe or sets off a device. Threads: any.
namespace platform {

// Missing, Refused and Failed are three different answers: nothing is there; something is there
// that must not be read; the system can't tell now.
enum class Reading {
    Done,
    Missing,  // also when a folder on the way is missing
    Refused,  // not a regular file, larger than the limit, or outside the folder it must be in
    Failed    // with errno set; EACCES and EPERM are among the reasons
};

// Describes the file. status is unchanged unless the result is Done.
Reading FindRegularFile(const char* path, struct stat& status, const char* inside = nullptr);

// Opens the file for reading. file is unchanged unless the result is Done.
Reading OpenRegularFile(const char* path, Descriptor& file, const char* inside = nullptr);

// Appends what fd has to offer to content, up to its end or to one byte more than limit, which
// tells that it has more. Returns false with errno set on failure; content then holds what came
// before it.
bool ReadUpTo(int fd, std::size_t limit, std::string& content);

// Reads the file, of limit bytes at most. content is unchanged unless the result is Done.
Reading ReadRegularFile(const char* path, std::size_t limit, std::string& content,
                        const char* inside = nullptr);

}  // namespace platform

#endif
