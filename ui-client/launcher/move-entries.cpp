#include "ui-client/launcher/move-entries.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "lib/libclient/walk.h"
#include "lib/platform/durability.h"
#include "lib/platform/folder-rights.h"

using file_op::Entry;
using file_op::FolderChain;
using file_op::Place;

namespace {

bool IsFolder(const Place& place) {
    struct stat status;
    return fstatat(place.folder, place.name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISDIR(status.st_mode);
}

bool MakeFolderLike(const Place& folder, const Place& copy) {
    struct stat status;
    if (fstatat(folder.folder, folder.name, &status, AT_SYMLINK_NOFOLLOW) != 0 ||
        !S_ISDIR(status.st_mode)) {
        return false;
    }
    return mkdirat(copy.folder, copy.name, S_IRWXU) == 0 &&
           platform::SetFolderMode(copy.folder, copy.name, nullptr, status.st_mode & 07777) == 0;
}

bool IsEmptyFolder(const Place& place) {
    FolderChain chain;
    Entry entry;
    return chain.enter(place) && chain.read(entry) == 0;
}

// Between two steps both chains are at the same level. Both halves of a folder are unlocked at the
// same time only while its own entries are moved; the new half gets its permissions back before the
// next folder is entered, so that they can be read from it after a kill.
class EntryMove : private file_op::Walk {
  public:
    EntryMove(const ustring& from, const ustring& to)
        : Walk(FolderChain::OwnRestored), from_(from), dst_(to) {}

    bool move() {
        const bool moved = enter(from_, dst_) && run();
        while (!chain_.empty()) {
            chain_.leave();
        }
        while (!to_.empty()) {
            to_.leave();
        }
        return moved;
    }

  private:
    bool enter(const Place& src, const Place& dst) {
        if (!to_.enter(dst)) {
            return false;
        }
        if (!to_.lockHolder() || !enterSource(src)) {
            const int error = errno;
            to_.leave();
            errno = error;
            return false;
        }
        const mode_t mode = mergedMode();
        chain_.setMode(mode);
        to_.setMode(mode);
        return true;
    }

    // The permissions of a folder of which a killed move has left a half on each side. One half may
    // have been unlocked for its owner. The newer half, if empty, may have been created just before
    // the kill, for its owner only.
    mode_t mergedMode() const {
        const mode_t others = 07777 & ~S_IRWXU;
        const mode_t mode = to_.mode() & (chain_.mode() | others);
        const mode_t missing = chain_.mode() & ~to_.mode() & others;
        return missing != 0 && IsEmptyFolder(to_.at(".")) ? mode | missing : mode;
    }

    bool enterSource(const Place& src) {
        if (chain_.enter(src) ||
            (file_op::IsNoPermission() && chain_.unlock() && chain_.enter(src))) {
            return true;
        }
        file_op::FailOpenDir(src.path().c_str());
        return false;
    }

    bool take(const Entry& entry) override {
        const Place src = chain_.at(entry.name);
        const Place dst = to_.at(entry.name);
        return take(src, dst) || (file_op::IsNoPermission() && unlock() && take(src, dst));
    }

    bool take(const Place& src, const Place& dst) {
        struct stat status;
        if (fstatat(src.folder, src.name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
            return false;
        }
        const bool is_folder = S_ISDIR(status.st_mode);
        if (!is_folder || !IsFolder(dst)) {
            if (renameat(src.folder, src.name, dst.folder, dst.name) == 0) {
                return true;
            }
            // Renaming a folder changes its "..", which needs the permission to write to it.
            const bool must_stay =
                errno == EXDEV || (errno == EACCES && (status.st_mode & S_IWUSR) == 0);
            if (!is_folder || !must_stay || !MakeFolderLike(src, dst)) {
                return false;
            }
        }
        return enter(src, dst);
    }

    bool unlock() {
        const bool source = chain_.unlock();
        const bool destination = to_.unlock();
        return source || destination;
    }

    bool finish(bool listed) override {
        if (!listed) {
            file_op::FailReadDir(chain_.path().c_str());
            return false;
        }
        if (!chain_.leave() || !to_.leave()) {
            return false;
        }
        return chain_.empty() || removeEmptied() ||
               (file_op::IsNoPermission() && chain_.unlock() && removeEmptied());
    }

    bool removeEmptied() const {
        const Place emptied = left(from_);
        return unlinkat(emptied.folder, emptied.name, AT_REMOVEDIR) == 0;
    }

    const Place from_;
    const Place dst_;
    FolderChain to_{FolderChain::Pass, FolderChain::OwnRestored};
};

}  // namespace

bool MakeFolderLike(const ustring& folder, const ustring& path) {
    return MakeFolderLike(Place(folder), Place(path));
}

bool MoveEntries(const ustring& from, const ustring& to) {
    return EntryMove(from, to).move();
}

bool MoveFolderByEntries(const ustring& from, const ustring& via, const ustring& to) {
    rmdir(via.c_str());  // an earlier run may have left an empty one
    return MakeFolderLike(from, via) && MoveEntries(from, via) &&
           platform::SyncVolume(via.c_str()) == 0 && std::rename(via.c_str(), to.c_str()) == 0 &&
           rmdir(from.c_str()) == 0;
}
