#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <fstream>
#include <sstream>

#include "lib/platform/file-system-type.h"

namespace {

std::string CommonName(const std::string& name) {
    if (name == "nfs4") {
        return "nfs";
    }
    if (name == "cifs" || name == "smb3") {
        return "smbfs";
    }
    if (name == "vfat") {
        return "msdos";
    }
    return name;
}

// The type of a mount: the first field after the "-" in its line of the mount table.
std::string MountType(std::uint64_t mount_id) {
    std::ifstream table("/proc/self/mountinfo");
    std::string line;
    while (std::getline(table, line)) {
        std::istringstream fields(line);
        std::uint64_t id = 0;
        fields >> id;
        if (id != mount_id) {
            continue;
        }
        std::string field;
        while (fields >> field && field != "-") {
        }
        fields >> field;
        return field;
    }
    return std::string();
}

}  // namespace

namespace platform {

int FileSystemType(const char* path, std::string& name) {
    struct statx status;
    if (statx(AT_FDCWD, path, AT_NO_AUTOMOUNT, STATX_MNT_ID, &status) != 0) {
        return -1;
    }
    const std::string type = MountType(status.stx_mnt_id);
    if (type.empty()) {
        errno = ENOSYS;  // no mount table, or a kernel without mount ids (before 5.8)
        return -1;
    }
    name = CommonName(type);
    return 0;
}

}  // namespace platform
