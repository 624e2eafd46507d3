#include "lib/platform/instance-lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace platform {

namespace {

const int kMaxAttempts = 100;  // one fails only if another process ends at that very moment

bool SameObject(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

}  // namespace

InstanceLock::InstanceLock(std::string path) : path_(std::move(path)) {
    for (int i = 0; i < kMaxAttempts; ++i) {
        const Attempt attempt = tryLock();
        if (attempt == Attempt::Locked) {
            return;
        }
        if (fd_ >= 0) {
            close(fd_);  // nothing was written
            fd_ = -1;
        }
        if (attempt == Attempt::Held || attempt == Attempt::Impossible) {
            held_elsewhere_ = attempt == Attempt::Held;
            return;
        }
        if (attempt == Attempt::Foreign && unlink(path_.c_str()) != 0 && errno != ENOENT) {
            return;
        }
    }
}

InstanceLock::Attempt InstanceLock::tryLock() {
    fd_ = open(path_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK, 0600);
    struct stat there;
    if (fd_ < 0) {
        const bool foreign = lstat(path_.c_str(), &there) == 0 &&
                             (there.st_uid != geteuid() || !S_ISREG(there.st_mode));
        return foreign ? Attempt::Foreign : Attempt::Impossible;
    }
    struct stat ours;
    if (fstat(fd_, &ours) != 0) {
        return Attempt::Impossible;
    }
    if (ours.st_uid != geteuid() || !S_ISREG(ours.st_mode)) {
        return Attempt::Foreign;
    }
    if (flock(fd_, LOCK_EX | LOCK_NB) != 0) {
        const bool no_locks = errno == ENOLCK || errno == ENOSYS || errno == EOPNOTSUPP;
        return no_locks               ? Attempt::Locked
               : errno == EWOULDBLOCK ? Attempt::Held
                                      : Attempt::Impossible;
    }
    // The process that held it before may have removed the file between our open and our lock.
    const bool current = lstat(path_.c_str(), &there) == 0 && SameObject(ours, there);
    return current ? Attempt::Locked : Attempt::Gone;
}

InstanceLock::~InstanceLock() {
    if (fd_ >= 0) {
        // Remove the file while we hold the lock. If that fails, an empty file stays, which blocks
        // nobody.
        unlink(path_.c_str());
        close(fd_);
    }
}

}  // namespace platform
