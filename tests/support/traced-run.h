#ifndef TESTS_SUPPORT_TRACED_RUN_H
#define TESTS_SUPPORT_TRACED_RUN_H

#include <sys/types.h>

#include <functional>
#include <string>

// Follows a process through its system calls, all threads together, and counts those that change
// files: creating, writing, renaming, removing, syncing, changing rights. Its child processes are
// left alone.
struct TracedRun {
    // The call, from 1, at which something happens; 0: never. Either this is called, and the call
    // goes on; or the call isn't carried out: it fails with this error, or the process is killed.
    int fault_at = 0;
    std::function<void(pid_t)> interfere;
    int error = 0;

    // Called after each call that put something on the disk: the path, empty for the whole volume.
    std::function<void(const std::string&)> on_sync;

    int calls = 0;  // so far
    int end = -1;   // the exit code, or 1000 plus the signal

    void follow(pid_t pid);  // one that called BeTraced()
};

// For the child, before it becomes the program that is to be followed.
void BeTraced();

#endif
