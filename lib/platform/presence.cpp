#include "lib/platform/presence.h"

#include <sys/stat.h>

#include <cerrno>

namespace platform {

namespace {

Presence Missing() {
    return errno == ENOENT || errno == ENOTDIR ? Presence::NotThere : Presence::CantTell;
}

}  // namespace

Presence LookAt(const char* path, std::uint64_t* object) {
    struct stat status;
    if (lstat(path, &status) != 0) {
        return Missing();
    }
    if (object != nullptr) {
        *object = status.st_ino;
    }
    return Presence::There;
}

Presence LookAtTarget(const char* path) {
    struct stat status;
    return stat(path, &status) == 0 ? Presence::There : Missing();
}

}  // namespace platform
