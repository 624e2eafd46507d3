#include <fcntl.h>
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

// Deletes an object. One that doesn't exist is a success; false with errno set.
bool RemoveAt(const Place& place, int flags) {
    return unlinkat(place.folder, place.name, flags) == 0 || errno == ENOENT;
}

class RemoveWalk : private file_op::Walk {
  public:
    explicit RemoveWalk(const ustring& path) : root_(path) {}

    // A folder that can't be opened is skipped, the root too.
    bool remove() { return !chain_.enter(root_) || run(); }

  private:
    bool take(const Entry& entry) override {
        const Place place = chain_.at(entry.name);
        look_ups_.info(place);
        if (file_op::TypeAt(place, entry.type) == FILE_TYPE_DIR) {
            chain_.enter(place);
            return true;
        }
        return RemoveAt(place, 0);
    }

    // If the listing failed before its end, what it missed keeps the folder from being deleted.
    bool finish(bool) override {
        if (!chain_.leave()) {
            return false;
        }
        const Place emptied = left(root_);
        return unlinkat(emptied.folder, emptied.name, AT_REMOVEDIR) == 0;
    }

    const Place root_;
    const file_op::LookUpLog look_ups_;
};

// FSRemoveOwnTree of a folder. The walk continues after what can't be removed.
class RemoveOwnWalk : private file_op::Walk {
  public:
    explicit RemoveOwnWalk(const ustring& path) : Walk(FolderChain::Own), root_(path) {}

    bool remove() {
        if (!chain_.enter(root_)) {
            return RemoveAt(root_, AT_REMOVEDIR);
        }
        return run() && complete_;
    }

  private:
    bool take(const Entry& entry) override {
        const Place place = chain_.at(entry.name);
        look_ups_.info(place);
        if (!dealWith(place, entry.type) &&
            !(file_op::IsNoPermission() && chain_.unlock() && dealWith(place, entry.type))) {
            complete_ = false;
        }
        return true;
    }

    // Enters or deletes an entry; false with errno set. A folder of another user may be impossible
    // to enter, but can be deleted when it is empty.
    bool dealWith(const Place& place, std::int32_t listed) {
        switch (file_op::TypeAt(place, listed)) {
            case FILE_TYPE_DIR:
                return chain_.enter(place) || RemoveAt(place, AT_REMOVEDIR);
            case FILE_TYPE_UNKNOWN:
                return errno == ENOENT;
            default:
                return RemoveAt(place, 0);
        }
    }

    bool finish(bool listed) override {
        complete_ = complete_ && listed;
        if (!chain_.leave()) {
            return false;
        }
        const Place emptied = left(root_);
        if (listed && !RemoveAt(emptied, AT_REMOVEDIR) &&
            !(file_op::IsNoPermission() && chain_.unlock() && RemoveAt(emptied, AT_REMOVEDIR))) {
            complete_ = false;
        }
        return true;
    }

    const Place root_;
    const file_op::LookUpLog look_ups_;
    bool complete_ = true;
};

}  // namespace

int FSRemove(const ustring& path, bool) {
    _FILE_INFO_tag info;
    if (path.empty() || GetFileInfo(path, info) != 0) {
        return -1;
    }
    if (!info.exists) {
        return 0;
    }
    if (info.type == FILE_TYPE_DIR) {
        return RemoveWalk(path).remove() ? 0 : -3;
    }
    return std::remove(path.c_str()) == 0 ? 0 : -3;
}

int FSRemoveOwnTree(const ustring& path) {
    ustring object(path);
    object.rtrim("/");  // with a "/" after it, a link's name means its target
    _FILE_INFO_tag info;
    if (object.empty() || GetFileInfo(object, info) != 0) {
        return -1;
    }
    if (!info.exists) {
        return 0;
    }
    const Place place(object);
    const bool removed =
        info.type == FILE_TYPE_DIR ? RemoveOwnWalk(object).remove() : RemoveAt(place, 0);
    return removed ? 0 : -3;
}
