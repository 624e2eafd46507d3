#ifndef LIB_LIBCLIENT_FOLDER_CHAIN_H
#define LIB_LIBCLIENT_FOLDER_CHAIN_H

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "lib/platform/handles.h"
#include "ustring/ustring.h"

// What the file operations walk trees with; their own, for nobody else. With whole paths the system
// would walk the outer folders again for each object.
namespace file_op {

// An object named relative to an open folder. folder_path is for messages; without it the name is
// a path of its own.
struct Place {
    int folder;
    const char* name;
    const std::string* folder_path;

    explicit Place(const ustring& path) : Place(AT_FDCWD, path.c_str()) {}
    Place(int in_folder, const char* entry)
        : folder(in_folder), name(entry), folder_path(nullptr) {}
    Place(int in_folder, const char* entry, const std::string& path_of_folder)
        : folder(in_folder), name(entry), folder_path(&path_of_folder) {}

    std::string path() const { return folder_path ? *folder_path + "/" + name : name; }
};

// Reads the next entry of a stream: 1 and the entry, 0 at the end, -1 with errno set.
inline int ReadEntry(DIR* stream, const dirent*& entry) {
    errno = 0;
    entry = readdir(stream);
    return entry != nullptr ? 1 : errno == 0 ? 0 : -1;
}

// The folders from the root of a walk down to the current one. Only the innermost few are open, so
// neither the depth nor the length of the paths is limited; one that was closed is opened again
// through ".." of its child, and must be the same folder then. Its listing then starts anew, which
// is right for walks that take away the entries that they have dealt with.
class FolderChain {
  public:
    enum Use {
        List,
        Pass  // objects in the folders are named, which takes no right to read them
    };

    explicit FolderChain(Use use = List)
        : access_(use == Pass ? platform::kOpenToPass : O_RDONLY) {}

    // On failure, with errno set, the current folder stays.
    bool enter(const Place& place) {
        Level level;
        if (!open(place, O_NOFOLLOW, level)) {
            return false;
        }
        level.name = place.name;
        level.path_size = path_.size();
        path_ = place.path();
        levels_.push_back(std::move(level));
        if (levels_.size() > kMaxOpen) {
            levels_[levels_.size() - 1 - kMaxOpen].close();
        }
        return true;
    }

    // Back to the folder that holds the current one, or out of the walk; false, with errno set,
    // when it can't be opened again.
    bool leave() {
        Level left = std::move(levels_.back());
        levels_.pop_back();
        path_.resize(left.path_size);
        name_left_ = std::move(left.name);
        if (levels_.empty() || levels_.back().fd() >= 0) {
            return true;
        }
        Level& parent = levels_.back();
        Level reopened;
        if (!open(Place(left.fd(), ".."), 0, reopened)) {
            return false;
        }
        if (reopened.device != parent.device || reopened.inode != parent.inode) {
            errno = ESTALE;
            return false;
        }
        parent.folder = std::move(reopened.folder);
        return true;
    }

    // ReadEntry for the current folder, without "." and "..".
    int read(const dirent*& entry) {
        Level& level = levels_.back();
        if (level.stream == nullptr) {
            level.stream = platform::OpenStream(level.folder.release());
        }
        if (level.stream == nullptr) {
            return -1;
        }
        int result = 0;
        do {
            result = ReadEntry(level.stream.get(), entry);
        } while (result > 0 && IsDotOrDotDot(entry->d_name));
        return result;
    }

    // The next entry; null at the end of the folder and after a read error.
    const dirent* next() {
        const dirent* entry = nullptr;
        return read(entry) > 0 ? entry : nullptr;
    }

    bool empty() const { return levels_.empty(); }
    const std::string& path() const { return path_; }
    const std::string& name_left() const { return name_left_; }
    Place at(const char* name) const { return Place(levels_.back().fd(), name, path_); }

  private:
    static const std::size_t kMaxOpen = 16;  // of one chain; a walk can have two

    struct Level {
        platform::Descriptor folder{-1};  // until its listing begins
        platform::DirStream stream;       // from then on
        dev_t device = 0;
        ino_t inode = 0;
        std::string name;           // in the folder that holds it
        std::size_t path_size = 0;  // of that folder's path

        int fd() const { return stream != nullptr ? dirfd(stream.get()) : folder.get(); }
        void close() {
            stream.reset();
            folder.reset(-1);
        }
    };

    bool open(const Place& place, int flags, Level& level) const {
        struct stat status;
        level.folder.reset(
            openat(place.folder, place.name, access_ | O_DIRECTORY | O_CLOEXEC | flags));
        if (level.folder.get() < 0 || fstat(level.folder.get(), &status) != 0) {
            return false;
        }
        level.device = status.st_dev;
        level.inode = status.st_ino;
        return true;
    }

    static bool IsDotOrDotDot(const char* name) {
        return name[0] == '.' && (name[1] == 0 || (name[1] == '.' && name[2] == 0));
    }

    int access_;
    std::vector<Level> levels_;
    std::string path_;  // of the current folder, for messages
    std::string name_left_;
};

}  // namespace file_op

#endif
