#ifndef TESTS_SUPPORT_TRACED_RUN_H
#define TESTS_SUPPORT_TRACED_RUN_H

#include <sys/types.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

// Traces a process, counts the system calls on files of all its threads, and causes a fault at one
// of them. Its child processes run undisturbed, but all children of the caller are waited for.
class TracedRun {
  public:
    // Whether only calls that change files are counted: creating, writing, renaming, removing,
    // syncing, changing permissions. Otherwise calls that only read are counted too.
    bool changes_only = true;
    // Only calls on objects at or below these paths are counted; without any path, calls on every
    // file.
    std::vector<std::string> within;
    // Counting starts with the first call on an object at or below this path; if it is empty, with
    // the first call.
    std::string since;

    // The number of the call, from 1, at which the fault happens; 0: never.
    int fault_at = 0;
    // The fault, which gets the process: returns the error with which the call fails, or 0 if it is
    // then carried out. Without one, the process is killed and the call isn't carried out.
    using Fault = std::function<int(pid_t)>;
    Fault fault;
    // The fault also happens at all later calls. With EINTR, a thread's next call after a failed
    // one is carried out, so that a program that repeats the call doesn't do so for ever.
    bool lasting = false;

    // Called before each counted call that syncs, with the path; empty if it syncs the volume.
    std::function<void(const std::string&)> on_sync;

    int calls = 0;              // counted so far
    std::string faulty;         // the call at which the fault happened, and its path
    bool at_change = false;     // whether that call changes files
    std::map<pid_t, int> ends;  // of all children, as EndOf()
    int end = -1;               // the same of the process

    // Traces a child that called BeTraced(). SIGALRM ends it after four minutes.
    void follow(pid_t pid);

  private:
    void handleCall(pid_t task);
    bool counts(const std::string& path);

    pid_t process_ = 0;
    bool has_begun_ = false;
    std::set<pid_t> interrupted_;
};

// The child calls this before the code or the program that is to be traced.
void BeTraced();

#endif
