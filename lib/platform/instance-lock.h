#ifndef LIB_PLATFORM_INSTANCE_LOCK_H
#define LIB_PLATFORM_INSTANCE_LOCK_H

#include <string>

namespace platform {

// A lock that one process at a time can hold. The kernel releases it when the process ends in any
// way; a file that a killed process left behind blocks nobody.
//
// The lock is on the file at path, which is created if needed, with the mode 0600, and removed when
// the lock is released. An object in its place that isn't a regular file of this user is removed if
// possible, and otherwise left alone.
//
// Threads: an object belongs to one thread.
class InstanceLock {
  public:
    explicit InstanceLock(std::string path);
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    // True when another process held the lock. False when this one holds it, and also when locking
    // was impossible (a read-only folder, another user's file, a folder in its place).
    bool heldElsewhere() const { return held_elsewhere_; }

    // True when this process holds the lock, or when the volume doesn't support locks.
    bool held() const { return fd_ >= 0; }

  private:
    enum class Attempt { Locked, Held, Gone, Foreign, Impossible };

    Attempt tryLock();

    const std::string path_;
    int fd_ = -1;
    bool held_elsewhere_ = false;
};

}  // namespace platform

#endif
