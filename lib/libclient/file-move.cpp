#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "lib/libclient/file-op-internal.h"
#include "lib/libclient/file-op.h"
#include "lib/libclient/walk.h"

using file_op::Entry;
using file_op::FolderChain;
using file_op::Place;

namespace {

// FSRename's result for a rename that failed with errno; 0 means: copy and delete instead.
int RenameRefused() {
    return errno == EXDEV ? 0 : errno == ENAMETOOLONG ? -100 : -3;
}

// Moves a folder's entries into a folder on another volume, then deletes the folder. Between two
// steps both chains are at the same level.
class MoveWalk : private file_op::Walk {
  public:
    MoveWalk(const ustring& src, const ustring& dst, bool exact)
        : src_(src), dst_(dst), exact_(exact) {}

    bool move() { return to_.enter(dst_) && chain_.enter(src_) && run(); }

  private:
    bool take(const Entry& entry) override {
        const Place src = chain_.at(entry.name);
        const Place dst = to_.at(entry.name);
        look_ups_.stat(src, exact_);
        struct stat status;
        if (faccessat(src.folder, src.name, F_OK, 0) != 0 ||
            fstatat(src.folder, src.name, &status, AT_SYMLINK_NOFOLLOW) != 0 ||
            (exact_ && S_ISLNK(status.st_mode))) {
            return false;
        }
        if (renameat(src.folder, src.name, dst.folder, dst.name) == 0) {
            return true;
        }
        if (RenameRefused() != 0) {
            return false;
        }
        if (S_ISREG(status.st_mode)) {
            return file_op::CopyFile(src, dst, true) == 0;
        }
        return !S_ISDIR(status.st_mode) || enter(src, dst);
    }

    bool enter(const Place& src, const Place& dst) {
        look_ups_.info(dst);
        return file_op::MakeFolder(dst) == 0 && to_.enter(dst) && chain_.enter(src);
    }

    // If the listing failed before its end, what it missed keeps the folder from being deleted.
    bool finish(bool) override {
        if (!chain_.leave() || !to_.leave()) {
            return false;
        }
        const Place emptied = left(src_);
        return unlinkat(emptied.folder, emptied.name, AT_REMOVEDIR) == 0;
    }

    const Place src_;
    const Place dst_;
    const bool exact_;
    const file_op::LookUpLog look_ups_;
    FolderChain to_{FolderChain::Pass};
};

}  // namespace

int FSRename(const ustring& src, const ustring& dst, bool exact) {
    if (src.empty() || dst.empty()) {
        return -1;
    }
    _FILE_INFO_tag info;
    if (FSStat(src, info, exact) != 0 || !info.exists) {
        return -2;
    }
    if (std::rename(src.c_str(), dst.c_str()) == 0) {
        return 0;
    }
    if (const int refused = RenameRefused()) {
        return refused;
    }
    if (info.type == FILE_TYPE_DIR) {
        return FSMKDir(dst, true) == 0 && MoveWalk(src, dst, exact).move() ? 0 : -3;
    }
    if (info.type == FILE_TYPE_REG) {
        return FSCopy(src, dst, true) < 0 ? -3 : 0;
    }
    return 0;
}
