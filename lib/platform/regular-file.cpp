#include "lib/platform/regular-file.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <memory>
#include <utility>

#include "lib/platform/handles.h"

namespace platform {

namespace {

struct Free {
    void operator()(char* memory) const { std::free(memory); }
};
using CanonicalPath = std::unique_ptr<char, Free>;

// What the errno of a path that can't be resolved or opened says. ELOOP is a loop of links or, with
// O_NOFOLLOW, a link; ENXIO a socket.
Reading ReasonOf(int error) {
    return error == ENOENT || error == ENOTDIR ? Reading::Missing
           : error == ELOOP || error == ENXIO  ? Reading::Refused
                                               : Reading::Failed;
}

bool IsBelow(const std::string& path, const std::string& folder) {
    return path.compare(0, folder.size(), folder) == 0 && path[folder.size()] == '/';
}

// Reads to the end, or to one byte more than the limit.
bool ReadUpTo(int fd, std::size_t limit, std::string& content) {
    char block[4096];
    while (content.size() <= limit) {
        const ssize_t size = read(fd, block, sizeof block);
        if (size > 0) {
            content.append(block, static_cast<std::size_t>(size));
        } else if (size == 0) {
            return true;
        } else if (errno != EINTR) {
            return false;
        }
    }
    return true;
}

}  // namespace

Reading ReadRegularFile(const char* path, std::size_t limit, std::string& content,
                        const char* inside) {
    CanonicalPath canonical;
    if (inside != nullptr) {
        canonical.reset(realpath(path, nullptr));
        const CanonicalPath folder(canonical ? realpath(inside, nullptr) : nullptr);
        if (folder == nullptr) {
            return ReasonOf(errno);
        }
        if (!IsBelow(canonical.get(), folder.get())) {
            return Reading::Refused;
        }
        path = canonical.get();
    }
    const int no_links = inside != nullptr ? O_NOFOLLOW : 0;
    const Descriptor file(open(path, O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC | no_links));
    struct stat status;
    if (file.get() < 0 || fstat(file.get(), &status) != 0) {
        return ReasonOf(errno);
    }
    if (!S_ISREG(status.st_mode)) {
        return Reading::Refused;
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
