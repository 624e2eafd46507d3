#include <sched.h>
#include <sys/mount.h>

#include "tests/support/scenario.h"

timespec ChangeTime(const struct stat& status) {
    return status.st_ctim;
}

std::string AnotherVolume() {
    return "/dev/shm";
}

SmallDisk::SmallDisk(const std::string& path, const char* size) : path_(path) {
    MakeFolder(path);
    mounted_ = (unshare(CLONE_NEWNS) == 0 || unshare(CLONE_NEWUSER | CLONE_NEWNS) == 0) &&
               mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               mount("none", path.c_str(), "tmpfs", 0, ("size=" + std::string(size)).c_str()) == 0;
}

SmallDisk::~SmallDisk() {
    if (mounted_) {
        umount2(path_.c_str(), MNT_DETACH);
    }
}
