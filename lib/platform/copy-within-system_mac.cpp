#include "lib/platform/copy-within-system.h"

#include <copyfile.h>
#include <sys/stat.h>
#include <unistd.h>

namespace platform {

namespace {

bool IsRegular(int fd) {
    struct stat status;
    return fstat(fd, &status) == 0 && S_ISREG(status.st_mode);
}

}  // namespace

bool CopyWithinSystem(int from, int to) {
    if (!IsRegular(from) || !IsRegular(to)) {
        return false;
    }
    if (fcopyfile(from, to, nullptr, COPYFILE_DATA) == 0) {
        return true;
    }
    // It may have read more than it has written, so start again.
    static_cast<void>(lseek(from, 0, SEEK_SET) + lseek(to, 0, SEEK_SET));
    return false;
}

}  // namespace platform
