#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>

#include "lib/libclient/file-op-internal.h"
#include "lib/libclient/file-op.h"
#include "lib/libclient/walk.h"

using file_op::Entry;
using file_op::Place;

namespace {

class RemoveWalk : private file_op::Walk {
  public:
    explicit RemoveWalk(const ustring& path) : root_(path) {}

    // A folder that can't be opened is passed over, the root too.
    bool remove() { return !chain_.enter(root_) || run(); }

  private:
    bool take(const Entry& entry) override {
        const Place place = chain_.at(entry.name);
        if (file_op::TypeAt(place, entry.type) == FILE_TYPE_DIR) {
            chain_.enter(place);
            return true;
        }
        return unlinkat(place.folder, place.name, 0) == 0 || errno == ENOENT;
    }

    // A folder of which a broken off listing has left something isn't empty and so isn't deleted.
    bool finish(bool) override {
        if (!chain_.leave()) {
            return false;
        }
        const Place emptied = left(root_);
        return unlinkat(emptied.folder, emptied.name, AT_REMOVEDIR) == 0;
    }

    const Place root_;
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
    return FSRemove(path, false);
}
