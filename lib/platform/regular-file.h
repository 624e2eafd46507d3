#ifndef LIB_PLATFORM_REGULAR_FILE_H
#define LIB_PLATFORM_REGULAR_FILE_H

#include <cstddef>
#include <string>

namespace platform {

// How reading a file ended. Missing, Refused and Failed are three different answers: nothing is
// there; something is there that must not be read; the system can't tell now.
enum class Reading {
    Done,
    Missing,  // also when a folder on the way is missing
    Refused,  // not a regular file, larger than the limit, or outside the folder it must be in
    Failed    // with errno set
};

// Reads the regular file at path (links followed) into content. Never waits for the other end of a
// pipe and reads at most limit bytes. With inside, the path of a folder, the file must be in that
// folder or below it once all links are followed. content is unchanged unless the file was read.
// Threads: any.
Reading ReadRegularFile(const char* path, std::size_t limit, std::string& content,
                        const char* inside = nullptr);

}  // namespace platform

#endif
