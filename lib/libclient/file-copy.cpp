#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "lib/libclient/file-op-internal.h"
#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "lib/platform/copy-within-system.h"
#include "lib/platform/durability.h"

#define LOG_SOURCE "file-op"  // the tag of all file operations, not this source's name

using file_op::log_component;
using file_op::Place;
using platform::Descriptor;

namespace {

const int kCopySize = 32 * 1024 * 1024;

// Writes all of the bytes; 0, or FSCopy's result.
int WriteAll(int fd, const char* bytes, std::size_t size) {
    while (size > 0) {
        const ssize_t written = write(fd, bytes, size);
        if (written <= 0) {
            errno = written < 0 ? errno : EIO;
            return file_op::FailWrite();
        }
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
    return 0;
}

int CopyBytes(int from, int to) {
    if (platform::CopyWithinSystem(from, to)) {
        return 0;
    }
    struct Free {
        void operator()(char* memory) const { std::free(memory); }
    };
    const std::unique_ptr<char, Free> buffer(static_cast<char*>(std::malloc(kCopySize)));
    if (buffer == nullptr) {
        LOG_MSG(ERROR, "FSCopy: malloc(%d): %s (%d)\n", kCopySize, strerror(errno), errno);
        return -1;
    }
    for (;;) {
        const ssize_t size = read(from, buffer.get(), kCopySize);
        if (size == 0) {
            return 0;
        }
        if (size < 0) {
            LOG_MSG(ERROR, "CopyFile: read: %s (%d)\n", strerror(errno), errno);
            return -1;
        }
        const int result = WriteAll(to, buffer.get(), static_cast<std::size_t>(size));
        if (result != 0) {
            return result;
        }
        if (size == kCopySize) {
            platform::StartWriting(to);  // continues while the next chunk is read
        }
    }
}

// Empties an open destination, unless it is the source itself; false with errno set.
bool Truncate(int destination, int source) {
    struct stat to;
    struct stat from;
    if (fstat(destination, &to) != 0 || fstat(source, &from) != 0) {
        return false;
    }
    if (to.st_dev == from.st_dev && to.st_ino == from.st_ino) {
        errno = EINVAL;
        return false;
    }
    return !S_ISREG(to.st_mode) || to.st_size == 0 || ftruncate(destination, 0) == 0;
}

}  // namespace

int file_op::FailWrite() {
    const int error = errno;
    LOG_MSG(ERROR, "CopyFile: write: %s (%d)\n", strerror(error), error);
    return error == ENOSPC || error == EDQUOT ? -2 : -1;
}

void file_op::LogOpenFailure(const Place& place) {
    const int error = errno;
    LOG_MSG(ERROR, "CopyFile: open(%s): %s (%d)\n", place.path().c_str(), strerror(error), error);
}

int file_op::CopyContent(const Place& src, const Place& dst, Descriptor& destination) {
    const Descriptor source(openat(src.folder, src.name, O_RDONLY | O_CLOEXEC));
    if (source.get() < 0) {
        LogOpenFailure(src);
        return -1;
    }
    destination.reset(openat(dst.folder, dst.name, O_WRONLY | O_CREAT | O_CLOEXEC, 0666));
    if (destination.get() < 0 || !Truncate(destination.get(), source.get())) {
        LogOpenFailure(dst);
        return -1;
    }
    return CopyBytes(source.get(), destination.get());
}

int file_op::FinishCopy(Descriptor& destination, int result, bool sync) {
    if (sync && platform::SyncFile(destination.get()) != 0 && result == 0) {
        result = FailWrite();
    }
    if (destination.close() != 0 && result == 0) {
        result = FailWrite();
    }
    return result;
}

int file_op::CopyFile(const Place& src, const Place& dst, bool remove_src) {
    Descriptor destination(-1);
    int result = CopyContent(src, dst, destination);
    if (destination.get() >= 0) {
        result = FinishCopy(destination, result, true);
    }
    if (result != 0 || !remove_src) {
        return result;
    }
    return unlinkat(src.folder, src.name, 0) == 0 ? 0 : -1;
}

int FSCopy(const ustring& src, const ustring& dst, bool remove_src) {
    return file_op::CopyFile(Place(src), Place(dst), remove_src);
}
