#include "tests/support/system.h"

#include <sched.h>
#include <sys/mount.h>

#include <cstdlib>

#include "tests/support/scenario.h"

namespace {

// Gives this process a private mount namespace.
bool LeaveMountNamespace() {
    return unshare(CLONE_NEWNS) == 0 &&
           mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0;
}

// Creates a volume of the kind $2 and mounts it on the folder $1. The image file is deleted and the
// loop device detached at once; both exist until the volume is unmounted.
const char kMount[] = R"(
    exec >/dev/null 2>&1
    PATH=$PATH:/usr/sbin:/sbin
    truncate -s 16M "$1.image"
    if [ $2 = ntfs ]; then
        mkntfs -F -Q "$1.image" && lowntfs-3g -o ignore_case "$1.image" "$1"
    else
        device=$(losetup -f --show "$1.image") && mkfs.exfat $device &&
            mount.exfat-fuse $device "$1"
    fi
    result=$?
    rm -f "$1.image"
    [ -z "$device" ] || losetup -d $device
    exit $result)";

}  // namespace

timespec ChangeTime(const struct stat& status) {
    return status.st_ctim;
}

std::string UnreadableFile() {
    return "/proc/self/mem";
}

bool HasLocaleInEnvironment() {
    return true;
}

std::string AnotherVolume() {
    return "/dev/shm";
}

Volume::Volume(const std::string& path) : path_(path) {
    MakeFolder(path);
}

Volume::~Volume() {
    if (mounted_) {
        umount2(path_.c_str(), MNT_DETACH);
    }
}

SmallDisk::SmallDisk(const std::string& path, const char* size) : Volume(path) {
    mounted_ = LeaveMountNamespace() &&
               mount("none", path.c_str(), "tmpfs", 0, ("size=" + std::string(size)).c_str()) == 0;
}

CaseIgnoringVolume::CaseIgnoringVolume(const std::string& path, Kind kind) : Volume(path) {
    const char* const name = kind == Ntfs ? "ntfs" : "exfat";
    mounted_ = LeaveMountNamespace() &&
               std::system(("set -- '" + path + "' " + name + kMount).c_str()) == 0;
}
