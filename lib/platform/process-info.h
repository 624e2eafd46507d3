#ifndef LIB_PLATFORM_PROCESS_INFO_H
#define LIB_PLATFORM_PROCESS_INFO_H

#include <sys/types.h>

#include <ctime>
#include <string>
#include <vector>

namespace platform {

// What the system reports about a running process. What it doesn't report is empty or 0. Paths are
// bytes.
struct ProcessInfo {
    std::time_t started = 0;  // seconds since the epoch, accurate to a second

    // The canonical path of the file that it runs. The system hides those of other users.
    std::string executable;
    bool executable_gone = false;  // removed or replaced since; executable is its former path
    dev_t device = 0;
    ino_t inode = 0;

    std::vector<std::string> arguments;  // at least the first three, argv[0] included
    std::string folder;                  // the current working directory
};

// Describes the process with that id. Empty when there is none. Threads: any.
ProcessInfo DescribeProcess(pid_t pid);

}  // namespace platform

#endif
