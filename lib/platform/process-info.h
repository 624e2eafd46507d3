#ifndef LIB_PLATFORM_PROCESS_INFO_H
#define LIB_PLATFORM_PROCESS_INFO_H

#include <sys/types.h>

#include <ctime>
#include <string>

namespace platform {

struct ProcessInfo {
    std::time_t started;     // seconds since the epoch, exact to a second or so
    std::string executable;  // its path, UTF-8, links followed; empty for another user's
};

// Describes a running process. Returns false when there is none of that id, or when the system
// doesn't tell when it was started. Threads: any.
bool DescribeProcess(pid_t pid, ProcessInfo& info);

}  // namespace platform

#endif
