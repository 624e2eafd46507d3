#include "lib/platform/regular-file.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <memory>
#include <utility>

namespace platform {

namespace {

struct Free {
    void operator()(char* memory) const { std::free(memory); }
};
using CanonicalPath = std::unique_ptr<char, Free>;

// ELOOP is a loop of links or, with O_NOFOLLOW, a link; ENXIO is a socket.
Reading ReasonOf(int error) {
    return error == ENOENT || error == ENOTDIR                         ? Reading::Missing
           : error == ELOOP || error == ENXIO || error == ENAMETOOLONG ? Reading::Refused
                                                                       : Reading::Failed;
}

bool IsBelow(const std::string& path, const std::string& folder) {
    return folder == "/" ||
           (path.compare(0, folder.size(), folder) == 0 && path[folder.size()] == '/');
}

// Replaces the path of a file that must be inside a folder by its canonical one.
Reading Resolve(std::string& path, const char* inside) {
    if (inside == nullptr) {
        return Reading::Done;
    }
    const CanonicalPath canonical(realpath(path.c_str(), nullptr));
    const CanonicalPath folder(canonical ? realpath(inside, nullptr) : nullptr);
    if (folder == nullptr) {
        return ReasonOf(errno);
    }
    path = canonical.get();
    return IsBelow(path, folder.get()) ? Reading::Done : Reading::Refused;
}

// Checks the type before anything is opened: opening a device can already have an effect.
Reading Find(std::string& path, struct stat& status, const char* inside) {
    const Reading resolved = Resolve(path, inside);
    if (resolved != Reading::Done) {
        return resolved;
    }
    struct stat found;
    if (stat(path.c_str(), &found) != 0) {
        return ReasonOf(errno);
    }
    if (!S_ISREG(found.st_mode)) {
        return Reading::Refused;
    }
    status = found;
    return Reading::Done;
}

}  // namespace

Reading FindRegularFile(const char* path, struct stat& status, const char* inside) {
    std::string canonical(path);
    return Find(canonical, status, inside);
}

Reading OpenRegularFile(const char* path, Descriptor& file, const char* inside) {
    std::string canonical(path);
    struct stat status;
    const Reading found = Find(canonical, status, inside);
    if (found != Reading::Done) {
        return found;
    }
    // Another object may have taken the file's place since.
    const int no_links = inside != nullptr ? O_NOFOLLOW : 0;
    Descriptor opened(
        open(canonical.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | no_links));
    if (opened.get() < 0 || fstat(opened.get(), &status) != 0) {
        return ReasonOf(errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return Reading::Refused;
    }
    file = std::move(opened);
    return Reading::Done;
}

bool ReadUpTo(int fd, std::size_t limit, std::string& content) {
    char block[4096];
    for (std::size_t left = limit + 1; left > 0;) {
        const ssize_t size = read(fd, block, std::min(left, sizeof block));
        if (size > 0) {
            content.append(block, static_cast<std::size_t>(size));
            left -= static_cast<std::size_t>(size);
        } else if (size == 0) {
            return true;
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

Reading ReadRegularFile(const char* path, std::size_t limit, std::string& content,
                        const char* inside) {
    Descriptor file(-1);
    const Reading opened = OpenRegularFile(path, file, inside);
    if (opened != Reading::Done) {
        return opened;
    }
    std::string read;
    if (!ReadUpTo(file.get(), limit, read)) {
        return Reading::Failed;
    }
    if (read.size() > limit) {
        return Reading::Refused;
    }
    content = std::move(read);
    return Reading::Done;
}

}  // namespace platform
