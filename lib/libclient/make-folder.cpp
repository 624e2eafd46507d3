#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <string>

#include "lib/libclient/file-op-internal.h"
#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"

#define LOG_SOURCE "file-op"  // the tag of all file operations, not this source's name

using file_op::log_component;
using file_op::Place;
using platform::Descriptor;

namespace {

const std::uint32_t kUnchanged = 0xFFFFFFFF;  // chown leaves such an owner or group unchanged
const std::uint16_t kDefaultMode = 0xFFFF;
// After so many elements, names become relative to the folder reached: at each call the system
// walks every element of the name that it is given.
const int kElementsPerName = 32;

std::uint32_t uid = kUnchanged;
std::uint32_t gid = kUnchanged;

// A failure is ignored: the folder exists all the same.
void HandOver(const Place& folder, uid_t owner, gid_t group) {
    [[maybe_unused]] const int ignored = fchownat(folder.folder, folder.name, owner, group, 0);
}

int RefuseNonFolder(const char* path, std::int32_t type) {
    LOG_MSG(ERROR, "FSMKDir: Create a folder but local file system is not directory '%s' (%d)\n",
            path, type);
    return -1;
}

int RefuseUnexamined(const char* path) {
    LOG_MSG(ERROR, "FSMKDir: Failed to to file info '%s'\n", path);
    return -1;
}

// Sets the umask to 0 while it exists, if active.
class NoUmask {
  public:
    explicit NoUmask(bool active) : active_(active), saved_(active ? umask(0) : 0) {}
    ~NoUmask() {
        if (active_) {
            umask(saved_);
        }
    }
    NoUmask(const NoUmask&) = delete;
    NoUmask& operator=(const NoUmask&) = delete;

  private:
    const bool active_;
    const mode_t saved_;
};

// Makes sure that one folder of FSMKDirP's path exists; -1 with errno set.
int EnsureFolder(const Place& place, bool last, bool force, mode_t mode) {
    struct stat status;
    if (fstatat(place.folder, place.name, &status, 0) == 0) {
        if (S_ISDIR(status.st_mode)) {
            return 0;
        }
        if (!force) {
            errno = last ? EEXIST : ENOTDIR;
            return -1;
        }
        if (unlinkat(place.folder, place.name, 0) != 0) {
            return -1;
        }
    }
    if (mkdirat(place.folder, place.name, mode) != 0) {
        return -1;
    }
    if (uid != kUnchanged || gid != kUnchanged) {
        HandOver(place, uid == kUnchanged ? geteuid() : uid, gid == kUnchanged ? getegid() : gid);
    }
    return 0;
}

// Opens the folder that the next names are relative to. If that fails, the names stay longer.
bool MoveTo(const Place& place, Descriptor& base) {
    const int fd =
        openat(place.folder, place.name, platform::kOpenToPass | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        base.reset(fd);
    }
    return fd >= 0;
}

}  // namespace

int file_op::MakeFolder(const Place& place) {
    if (mkdirat(place.folder, place.name, 0777) == 0) {
        HandOver(place, uid, gid);
        return 0;
    }
    const std::int32_t type = TypeAt(place);
    if (type == FILE_TYPE_UNKNOWN) {
        return errno == ENOENT ? -2 : RefuseUnexamined(place.path().c_str());
    }
    return type == FILE_TYPE_DIR ? 0 : RefuseNonFolder(place.path().c_str(), type);
}

void FSInitialize(std::uint32_t new_uid, std::uint32_t new_gid) {
    uid = new_uid;
    gid = new_gid;
}

int FSInit(const ustring&) {
    return 0;
}

int FSChown(const ustring& path) {
    return chown(path.c_str(), uid, gid);
}

int FSMKDir(const ustring& path, bool parents) {
    if (path.empty()) {
        return -1;
    }
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0) {
        return RefuseUnexamined(path.c_str());
    }
    if (info.exists) {
        return info.type == FILE_TYPE_DIR ? 0 : RefuseNonFolder(path.c_str(), info.type);
    }
    const int made =
        parents ? FSMKDirP(path, nullptr, false, kDefaultMode) : mkdir(path.c_str(), 0777);
    if (made != 0) {
        return -2;
    }
    HandOver(Place(path), uid, gid);
    return 0;
}

int FSMKDirP(const ustring& path, char** end_out, bool force, std::uint16_t mode) {
    if (path.empty()) {
        return -1;
    }
    std::string text(path.c_str());
    const bool exact_mode = mode != kDefaultMode;
    const NoUmask no_umask(exact_mode);
    Descriptor base(-1);    // the folder that names are relative to, once there is one
    std::size_t start = 0;  // where these names begin
    std::size_t end = 0;
    int elements = 0;
    int result = 0;
    for (bool last = false; !last && result == 0;) {
        // The separator at which the search starts stays part of the name.
        end = std::min(text.find('/', end + (text[end] == '/' ? 1 : 0)), text.size());
        last = end + 1 >= text.size();
        const char separator = text[end];
        text[end] = 0;
        const Place folder(base.get() >= 0 ? base.get() : AT_FDCWD, text.c_str() + start);
        result = EnsureFolder(folder, last, force, exact_mode ? mode : 0777);
        ++elements;
        if (result == 0 && elements % kElementsPerName == 0 && !last && text[end + 1] != '/' &&
            MoveTo(folder, base)) {
            start = end + 1;
        }
        text[end] = separator;
    }
    if (end_out != nullptr) {
        *end_out = const_cast<char*>(path.c_str()) + end;
    }
    return result;
}
