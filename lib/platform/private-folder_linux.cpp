#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "lib/platform/private-folder.h"

namespace {

const mode_t kOthersWrite = S_IWGRP | S_IWOTH;

// Whether a folder of this user, not a link to one, is at path.
bool IsOurs(const std::string& path, mode_t& permissions) {
    struct stat status;
    if (lstat(path.c_str(), &status) != 0 || !S_ISDIR(status.st_mode) ||
        status.st_uid != geteuid()) {
        return false;
    }
    permissions = status.st_mode & 07777;
    return true;
}

bool MakePrivate(const std::string& path) {
    if (mkdir(path.c_str(), S_IRWXU) != 0 && errno != EEXIST) {
        return false;
    }
    mode_t permissions = 0;
    return IsOurs(path, permissions) &&
           (permissions == S_IRWXU || chmod(path.c_str(), S_IRWXU) == 0);
}

}  // namespace

namespace platform {

// Place 0 is the folder that the session manager creates for each user, the others are in /tmp:
// there another user may have taken a name, but can't remove or rename a folder of ours.
std::string PrivateFolder(const char* name, int n) {
    const std::string user = std::to_string(geteuid());
    const std::string session = "/run/user/" + user;
    mode_t permissions = 0;
    if (n == 0 && (!IsOurs(session, permissions) || (permissions & kOthersWrite) != 0)) {
        return "";
    }
    std::string path = n == 0 ? session + "/" + name : std::string("/tmp/") + name + "-" + user;
    if (n > 1) {
        path += "." + std::to_string(n - 1);
    }
    return MakePrivate(path) ? path : "";
}

}  // namespace platform
