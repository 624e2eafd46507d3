#include <sys/mount.h>

#include "lib/platform/file-system-type.h"

namespace platform {

int FileSystemType(const char* path, std::string& name) {
    struct statfs status;
    if (statfs(path, &status) != 0) {
        return -1;
    }
    name = status.f_fstypename;
    return 0;
}

}  // namespace platform
