#ifndef LIB_PLATFORM_SINGLE_INSTANCE_H
#define LIB_PLATFORM_SINGLE_INSTANCE_H

#include <memory>
#include <string>

#include "lib/platform/instance-lock.h"

namespace platform {

// Keeps a program from running more than once for each user and installed copy. The guard is a lock
// file in a folder of the user or, where none can be created, in a folder elsewhere that nobody
// else can write to (see PrivateFolder). The process that gets the lock also removes lock files
// that other copies left behind in that folder.
//
// Threads: an object belongs to one thread.
class SingleInstance {
  public:
    // folder is created if needed, with those above it. executable is the path of this copy. Both
    // are bytes.
    SingleInstance(const std::string& folder, const std::string& executable);

    // Whether another process of this user runs the same copy. Also false when no lock could be
    // created anywhere: that must not keep the program from running.
    bool runsElsewhere() const { return lock_->heldElsewhere(); }

  private:
    std::unique_ptr<InstanceLock> lock_;
};

}  // namespace platform

#endif
