#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>

#include "lib/platform/private-folder.h"

namespace platform {

// In this user's temporary folder, which is private already.
std::string PrivateFolder(const char* name, int n) {
    char folder[PATH_MAX] = {};
    if (n > 0 || confstr(_CS_DARWIN_USER_TEMP_DIR, folder, sizeof folder) == 0) {
        return "";
    }
    const std::string path = std::string(folder) + "/" + name;
    return mkdir(path.c_str(), S_IRWXU) == 0 || errno == EEXIST ? path : "";
}

}  // namespace platform
