#include <unistd.h>

#include <climits>

#include "lib/platform/memory-file.h"

namespace platform {

// A file in this user's temporary folder.
MemoryFile::MemoryFile(const std::string& content) : file_(-1) {
    char folder[PATH_MAX] = {};
    if (confstr(_CS_DARWIN_USER_TEMP_DIR, folder, sizeof folder) == 0) {
        return;
    }
    path_ = std::string(folder) + "/tarnwell-XXXXXX";
    file_.reset(mkstemp(path_.data()));
    if (file_.get() < 0) {
        path_.clear();
    } else if (write(file_.get(), content.data(), content.size()) !=
               static_cast<ssize_t>(content.size())) {
        static_cast<void>(unlink(path_.c_str()));
        path_.clear();
    }
}

MemoryFile::~MemoryFile() {
    if (!path_.empty()) {
        static_cast<void>(unlink(path_.c_str()));
    }
}

}  // namespace platform
