#include "ui-client/launcher/move-entries.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "lib/libclient/walk.h"

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
    return fstatat(folder.folder, folder.name, &status, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISDIR(status.st_mode) && mkdirat(copy.folder, copy.name, 0700) == 0 &&
           fchmodat(copy.folder, copy.name, status.st_mode & 07777, 0) == 0;
}

// The two chains are at the same level between the steps.
class EntryMove : private file_op::Walk {
  public:
    EntryMove(const ustring& from, const ustring& to) : from_(from), dst_(to) {}

    bool move() { return enter(from_, dst_) && run(); }

  private:
    bool enter(const Place& src, const Place& dst) {
        if (!chain_.enter(src)) {
            file_op::FailOpenDir(src.path().c_str());
            return false;
        }
        return to_.enter(dst);
    }

    bool take(const Entry& entry) override {
        const Place src = chain_.at(entry.name);
        const Place dst = to_.at(entry.name);
        const bool is_folder = IsFolder(src);
        if (!is_folder || !IsFolder(dst)) {
            if (renameat(src.folder, src.name, dst.folder, dst.name) == 0) {
                return true;
            }
            if (!is_folder || errno != EXDEV || !MakeFolderLike(src, dst)) {
                return false;
            }
        }
        return enter(src, dst);
    }

    bool finish(bool listed) override {
        if (!listed) {
            file_op::FailReadDir(chain_.path().c_str());
            return false;
        }
        if (!chain_.leave() || !to_.leave()) {
            return false;
        }
        const Place emptied = left(from_);
        return chain_.empty() || unlinkat(emptied.folder, emptied.name, AT_REMOVEDIR) == 0;
    }

    const Place from_;
    const Place dst_;
    FolderChain to_{FolderChain::Pass};
};

}  // namespace

bool MakeFolderLike(const ustring& folder, const ustring& path) {
    return MakeFolderLike(Place(folder), Place(path));
}

bool MoveEntries(const ustring& from, const ustring& to) {
    return EntryMove(from, to).move();
}
