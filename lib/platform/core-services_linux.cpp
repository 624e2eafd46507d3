#include <sys/stat.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <string>

#include "lib/platform/core-services.h"

namespace {

bool ParentExists(const char* path) {
    std::string parent(path);
    while (parent.size() > 1 && parent.back() == '/') {
        parent.pop_back();
    }
    const std::size_t slash = parent.rfind('/');
    if (slash == std::string::npos) {
        return true;  // relative to the current folder
    }
    parent.resize(slash + 1);
    struct stat status;
    return stat(parent.c_str(), &status) == 0;
}

OSStatus StatusOf(int error, const char* path) {
    switch (error) {
        case ENOENT:
            return ParentExists(path) ? fnfErr : dirNFErr;
        case ENOTDIR:
            return dirNFErr;
        case ENAMETOOLONG:
            return bdNamErr;
        case EACCES:
        case EPERM:
            return afpAccessDenied;
        default:
            return ioErr;
    }
}

}  // namespace

OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* isDirectory) {
    const char* const text = reinterpret_cast<const char*>(path);
    if (*text == 0) {
        return bdNamErr;
    }
    if (realpath(text, ref->path) == nullptr) {
        return StatusOf(errno, text);
    }
    if (isDirectory != nullptr) {
        struct stat status;
        if (stat(ref->path, &status) != 0) {
            return StatusOf(errno, ref->path);
        }
        *isDirectory = S_ISDIR(status.st_mode);
    }
    return noErr;
}

OSStatus FSRefMakePath(const FSRef* ref, UInt8* path, UInt32 pathBufferSize) {
    const std::size_t size = std::strlen(ref->path) + 1;
    if (size > pathBufferSize) {
        return pathTooLongErr;
    }
    std::memcpy(path, ref->path, size);
    return noErr;
}
