#ifndef LIB_PLATFORM_PROCESS_INFO_H
#define LIB_PLATFORM_PROCESS_INFO_H

#include <sys/types.h>

#include <ctime>
#include <string>
#include <vector>

namespace platform {

// What the system lets us know of a running process; the rest is empty or 0. Paths are bytes.
struct ProcessInfo {
    std::time_t started = 0;  // seconds since the epoch, one more or less

    // The file that it runs, links followed. The system hides those of other users.
    std::string executable;
    bool executable_gone = false;  // removed or replaced since; then executable is where it was
    dev_t device = 0;
    ino_t inode = 0;

    std::vector<std::string> arguments;  // the first three or more, its name among them
    std::string folder;                  // its current one
};

// Describes the process of that id. Nothing is known of one that doesn't exist. Threads: any.
ProcessInfo DescribeProcess(pid_t pid);

}  // namespace platform

#endif
