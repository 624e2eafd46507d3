#ifndef TESTS_SUPPORT_TRACED_RUN_H
#define TESTS_SUPPORT_TRACED_RUN_H

#include <sys/types.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

// Follows a process through those of its system calls that name or use a file, all threads
// together, counts them, and makes something happen at one of them. Nothing happens to other
// processes, but all children of the caller are waited for.
struct TracedRun {
    // Only calls that change files count: creating, writing, renaming, removing, syncing, changing
    // rights. Otherwise also those that look at files or read them.
    bool changes_only = true;
    // Only calls on what is at or below these paths count; without any, on every file.
    std::vector<std::string> within;
    // Counting begins with the first call on what is at or below this path.
    std::string since;

    // The call, from 1, at which something happens; 0: never. Either this is called, and the call
    // is carried out; or the call isn't carried out: it fails with this error, or the process is
    // killed.
    int fault_at = 0;
    std::function<void(pid_t)> interfere;
    int error = 0;
    // The calls after it fail as well. A call that EINTR has ended is carried out when it is
    // repeated: no signal comes for ever.
    bool lasting = false;

    // Called before each call that puts something on the disk: the path, empty for the volume.
    std::function<void(const std::string&)> on_sync;

    int calls = 0;       // so far
    std::string struck;  // the call at which it happened, and its path
    bool struck_a_change = false;
    std::map<pid_t, int> ends;  // of all children: the exit code, or 1000 plus the signal
    int end = -1;               // of the process

    // Follows one that called BeTraced(). After four minutes it is killed.
    void follow(pid_t pid);
};

// For the child, before it becomes the program that is to be followed.
void BeTraced();

#endif
