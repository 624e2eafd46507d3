#include "lib/libclient/walk.h"

#include <sys/stat.h>

#include <cerrno>
#include <cstring>
#include <utility>

#include "lib/libclient/file-op-internal.h"

namespace file_op {

namespace {

const std::size_t kMaxOpen = 16;  // of one chain; a walk can have two

bool IsDotOrDotDot(const char* name) {
    return name[0] == '.' && (name[1] == 0 || (name[1] == '.' && name[2] == 0));
}

}  // namespace

int ReadEntry(DIR* stream, const dirent*& entry) {
    errno = 0;
    entry = readdir(stream);
    return entry != nullptr ? 1 : errno == 0 ? 0 : -1;
}

FolderChain::FolderChain(Use use) : access_(use == Pass ? platform::kOpenToPass : O_RDONLY) {}

bool FolderChain::enter(const Place& place) {
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

bool FolderChain::leave() {
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

bool FolderChain::open(const Place& place, int flags, Level& level) const {
    struct stat status;
    level.folder.reset(openat(place.folder, place.name, access_ | O_DIRECTORY | O_CLOEXEC | flags));
    if (level.folder.get() < 0 || fstat(level.folder.get(), &status) != 0) {
        return false;
    }
    level.device = status.st_dev;
    level.inode = status.st_ino;
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
