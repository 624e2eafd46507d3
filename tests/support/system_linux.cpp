#include "tests/support/system.h"

#include <sched.h>
#include <sys/mount.h>

#include <cstdlib>

#include "tests/support/scenario.h"

namespace {

// Creates a volume of the kind $2 in a file and mounts it. The file is deleted and the loop device
// detached at once; both exist until the volume is unmounted.
const char kMountFile[] = R"(
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

Volume::Volume(const std::string& path, const std::string& code) : path_(path) {
    MakeFolder(path);
    const std::string prepare = "exec >/dev/null 2>&1; PATH=$PATH:/usr/sbin:/sbin; set -- ";
    mounted_ = unshare(CLONE_NEWNS) == 0 &&
               mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
               std::system((prepare + "'" + path + "'\n" + code).c_str()) == 0;
}

Volume::~Volume() {
    if (mounted_) {
        umount2(path_.c_str(), MNT_DETACH);
    }
}

CaseIgnoringVolume::CaseIgnoringVolume(const std::string& path, Kind kind)
    : Volume(path, std::string("set -- \"$1\" ") + (kind == Ntfs ? "ntfs" : "exfat") + kMountFile) {
}
