#ifndef LIB_PLATFORM_HANDLES_H
#define LIB_PLATFORM_HANDLES_H

#include <dirent.h>
#include <fcntl.h>
#include <unistd.h>

#include <memory>

namespace platform {

// Owners of the C library's handles. Threads: one object belongs to one thread.

// Owns a file descriptor, or none when it is negative.
class Descriptor {
  public:
    explicit Descriptor(int fd) : fd_(fd) {}
    ~Descriptor() { reset(-1); }
    Descriptor(Descriptor&& other) noexcept : fd_(other.release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        reset(other.release());
        return *this;
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    int get() const { return fd_; }
    int release() {
        const int fd = fd_;
        fd_ = -1;
        return fd;
    }
    // Call it after writing: returns 0, or -1 with errno set. The descriptor is closed either way.
    int close() { return ::close(release()); }
    // Closes the descriptor, ignoring the result, and owns fd from then on.
    void reset(int fd) {
        if (fd_ >= 0) {
            ::close(fd_);
        }
        fd_ = fd;
    }

  private:
    int fd_;
};

// The flag to open a folder only to name what is in it. This needs no permission to read the
// folder, except when built for macOS 11 or 12.
#if !defined(__APPLE__)
const int kOpenToPass = O_PATH;
#elif __MAC_OS_X_VERSION_MIN_REQUIRED >= 130000
const int kOpenToPass = O_SEARCH;
#else
const int kOpenToPass = O_RDONLY;
#endif

struct DirCloser {
    void operator()(DIR* stream) const { static_cast<void>(closedir(stream)); }
};

// A folder that is being listed.
using DirStream = std::unique_ptr<DIR, DirCloser>;

// Returns a stream on an open folder, or none with errno set. Takes ownership of fd, also on
// failure.
inline DirStream OpenStream(int fd) {
    Descriptor folder(fd);
    DirStream stream(fd >= 0 ? fdopendir(fd) : nullptr);
    if (stream != nullptr) {
        folder.release();
    }
    return stream;
}

}  // namespace platform

#endif
