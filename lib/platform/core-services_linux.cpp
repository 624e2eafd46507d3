#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

#include "lib/platform/core-services.h"
#include "lib/platform/handles.h"
#include "lib/platform/stored-name.h"

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

bool IsSameObject(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// Replaces each name in a resolved path by its stored spelling, which can differ in folders that
// ignore letter case. Opens one folder from the other, so that each step takes the same time.
// Returns false when the path gets too long.
bool SpellAsStored(char* path) {
    platform::Descriptor folder(open("/", O_PATH | O_DIRECTORY | O_CLOEXEC));
    std::string stored;
    for (char* begin = path + 1; folder.get() >= 0 && *begin != 0;) {
        char* end = begin + std::strcspn(begin, "/");
        const bool last = *end == 0;
        *end = 0;
        const bool is_known = platform::StoredName(folder.get(), begin, stored);
        folder.reset(last ? -1 : openat(folder.get(), begin, O_PATH | O_CLOEXEC));
        *end = last ? 0 : '/';
        if (is_known && !stored.empty()) {
            const std::string spelled = stored + end;
            if (static_cast<std::size_t>(begin - path) + spelled.size() >= PATH_MAX) {
                return false;
            }
            std::memcpy(begin, spelled.c_str(), spelled.size() + 1);
            end = begin + stored.size();
        }
        begin = last ? end : end + 1;
    }
    return true;
}

// Asks the system for the path of an open object. Returns false when it can't say (as without
// /proc) and when another object is at that path by now.
bool PathOfOpened(int fd, char* resolved) {
    char link[32];
    static_cast<void>(std::snprintf(link, sizeof link, "/proc/self/fd/%d", fd));
    const ssize_t size = readlink(link, resolved, PATH_MAX);
    if (size <= 0 || size >= PATH_MAX) {
        return false;
    }
    resolved[size] = 0;
    struct stat opened;
    struct stat named;
    return fstat(fd, &opened) == 0 && lstat(resolved, &named) == 0 && IsSameObject(opened, named);
}

// Like realpath(), but in fewer steps: that looks up every element by its whole path.
bool Resolve(const char* path, char* resolved) {
    const platform::Descriptor object(open(path, O_PATH | O_CLOEXEC));
    return object.get() >= 0 &&
           (PathOfOpened(object.get(), resolved) || realpath(path, resolved) != nullptr);
}

}  // namespace

OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* isDirectory) {
    const char* const text = reinterpret_cast<const char*>(path);
    if (*text == 0) {
        return bdNamErr;
    }
    if (!Resolve(text, ref->path)) {
        return StatusOf(errno, text);
    }
    if (!SpellAsStored(ref->path)) {
        return bdNamErr;
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
