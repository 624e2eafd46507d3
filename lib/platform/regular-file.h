#ifndef LIB_PLATFORM_REGULAR_FILE_H
#define LIB_PLATFORM_REGULAR_FILE_H

#include <sys/stat.h>

#include <cstddef>
#include <string>

#include "lib/platform/handles.h"

// Reads files that others wrote and that may not be what their names promise. Each operation
// follows links. inside, unless null, is a folder that must contain the file, at any depth, once
// all links are followed. Only regular files are opened, so no call blocks on a pipe or triggers a
// device. Threads: any.
namespace platform {

// The difference between the last three: nothing is there; something is there that must not be
// read; the system can't say now.
enum class Reading {
    Done,
    Missing,  // also when a folder on the way is missing
    Refused,  // not a regular file, larger than the limit, or outside the given folder
    Failed    // with errno set; EACCES and EPERM are among the reasons
};

// Describes the file. status is unchanged unless the result is Done.
Reading FindRegularFile(const char* path, struct stat& status, const char* inside = nullptr);

// Opens the file for reading. file is unchanged unless the result is Done.
Reading OpenRegularFile(const char* path, Descriptor& file, const char* inside = nullptr);

// Appends what can be read from fd to content, at most limit + 1 bytes; the last of these means
// that there is more than limit. Returns false with errno set on failure; content then has what was
// read before.
bool ReadUpTo(int fd, std::size_t limit, std::string& content);

// Reads a file of at most limit bytes. content is unchanged unless the result is Done.
Reading ReadRegularFile(const char* path, std::size_t limit, std::string& content,
                        const char* inside = nullptr);

}  // namespace platform

#endif
