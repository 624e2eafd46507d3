#include "lib/libclient/walk.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "lib/libclient/file-op-internal.h"

namespace file_op {

namespace {

const std::size_t kMaxOpen = 16;  // of one chain; a walk can have two
const mode_t kPermissions = 07777;

bool IsDotOrDotDot(const char* name) {
    return name[0] == '.' && (name[1] == 0 || (name[1] == '.' && name[2] == 0));
}

}  // namespace

bool IsNoPermission() {
    return errno == EACCES || errno == EPERM;
}

int ReadEntry(DIR* stream, const dirent*& entry) {
    errno = 0;
    entry = readdir(stream);
    return entry != nullptr ? 1 : errno == 0 ? 0 : -1;
}

bool FolderChain::enter(const Place& place) {
    Level level;
    if (!open(place, O_NOFOLLOW, level) && !openLocked(place, level)) {
        return false;
    }
    if (rights_ != Anyones && !isOnVolume(level)) {
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

bool FolderChain::leave() {
    Level left = std::move(levels_.back());
    levels_.pop_back();
    path_.resize(left.path_size);
    name_left_ = std::move(left.name);
    const bool open = levels_.empty() || levels_.back().fd() >= 0 || reopenHolder(left);
    const int error = errno;
    const bool restored = rights_ != OwnRestored || left.change(left.mode);
    errno = open ? errno : error;
    return open && restored;
}

bool FolderChain::unlock() {
    return rights_ != Anyones && !levels_.empty() && levels_.back().unlock();
}

bool FolderChain::lockHolder() {
    const std::size_t size = levels_.size();
    return size < 2 || levels_[size - 2].change(levels_[size - 2].mode);
}

int FolderChain::read(Entry& entry) {
    Level& level = levels_.back();
    if (!level.listed) {
        level.list();
    }
    if (level.next == level.entries.size()) {
        errno = level.error;
        return level.error == 0 ? 0 : -1;
    }
    entry.type = static_cast<unsigned char>(level.entries[level.next]);
    entry.name = &level.entries[level.next + 1];
    level.next += 1 + std::strlen(entry.name) + 1;
    return 1;
}

void FolderChain::Level::close() {
    stream.reset();
    folder.reset(-1);
}

void FolderChain::Level::list() {
    listed = true;
    stream = platform::OpenStream(folder.release());
    if (stream == nullptr) {
        error = errno;
        return;
    }
    const dirent* entry = nullptr;
    int result = 0;
    while ((result = ReadEntry(stream.get(), entry)) > 0) {
        if (!IsDotOrDotDot(entry->d_name)) {
            entries.push_back(static_cast<char>(TypeOfEntry(*entry)));
            entries.insert(entries.end(), entry->d_name,
                           entry->d_name + std::strlen(entry->d_name) + 1);
        }
    }
    error = result < 0 ? errno : 0;
}

bool FolderChain::Level::change(mode_t new_mode) {
    if (mode_now != new_mode && platform::SetFolderMode(fd(), new_mode) != 0) {
        return false;
    }
    mode_now = new_mode;
    return true;
}

bool FolderChain::Level::unlock() {
    return (mode_now & S_IRWXU) != S_IRWXU && change(mode_now | S_IRWXU);
}

bool FolderChain::open(const Place& place, int flags, Level& level) const {
    struct stat status;
    const int access = use_ == Pass ? platform::kOpenToPass : O_RDONLY;
    level.folder.reset(openat(place.folder, place.name, access | O_DIRECTORY | O_CLOEXEC | flags));
    if (level.folder.get() < 0 || fstat(level.folder.get(), &status) != 0) {
        return false;
    }
    level.device = status.st_dev;
    level.inode = status.st_ino;
    level.mode = level.mode_now = status.st_mode & kPermissions;
    return true;
}

// Unlocks and opens a folder, if errno says that its owner has no permission to open it.
bool FolderChain::openLocked(const Place& place, Level& level) const {
    struct stat status;
    if (rights_ == Anyones || !IsNoPermission() ||
        fstatat(place.folder, place.name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return false;
    }
    const mode_t mode = status.st_mode & kPermissions;
    const platform::MountId* const within = levels_.empty() ? nullptr : &volume_;
    if (platform::SetFolderMode(place.folder, place.name, within, mode | S_IRWXU) != 0 ||
        !open(place, O_NOFOLLOW, level)) {
        return false;
    }
    level.mode = mode;
    return true;
}

bool FolderChain::isOnVolume(const Level& level) {
    platform::MountId volume = 0;
    if (platform::MountOf(level.fd(), volume) != 0) {
        return false;
    }
    if (levels_.empty()) {
        volume_ = volume;
    }
    errno = EXDEV;
    return volume == volume_;
}

// Reopens the current folder through ".." of the one left, which needs permission to search that.
bool FolderChain::reopenHolder(Level& left) {
    Level& holder = levels_.back();
    Level reopened;
    const Place above(left.fd(), "..");
    if (!open(above, 0, reopened) &&
        (rights_ == Anyones || !IsNoPermission() || !left.unlock() || !open(above, 0, reopened))) {
        return false;
    }
    if (reopened.device != holder.device || reopened.inode != holder.inode) {
        errno = ESTALE;
        return false;
    }
    holder.folder = std::move(reopened.folder);
    return true;
}

bool Walk::run() {
    while (!chain_.empty()) {
        Entry entry;
        const int read = chain_.read(entry);
        if (!(read > 0 ? take(entry) : finish(read == 0))) {
            return false;
        }
    }
    return true;
}

}  // namespace file_op
