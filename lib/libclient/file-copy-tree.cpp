#include <fcntl.h>
#include <sys/stat.h>

#include <sstream>
#include <string>
#include <utility>

#include "lib/libclient/file-op-internal.h"
#include "lib/libclient/file-op.h"
#include "lib/libclient/walk.h"
#include "lib/platform/durability.h"

using file_op::Entry;
using file_op::FolderChain;
using file_op::Place;
using platform::Descriptor;

namespace {

const int kFolderToPass = platform::kOpenToPass | O_DIRECTORY | O_CLOEXEC;

bool IsSame(const struct stat& a, const struct stat& b) {
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

enum Answer { No, Yes, CannotTell };  // the last with errno set

// Opens the deepest folder on the way to path that exists. FSMKDir would create the missing ones,
// so a ".." after one of them leads back.
Descriptor OpenExisting(const std::string& path) {
    Descriptor folder(open(path[0] == '/' ? "/" : ".", kFolderToPass));
    std::istringstream names(path);
    int missing = 0;
    for (std::string name; std::getline(names, name, '/');) {
        if (name.empty() || name == ".") {
            continue;
        }
        if (missing > 0) {
            missing += name == ".." ? -1 : 1;
            continue;
        }
        Descriptor next(openat(folder.get(), name.c_str(), kFolderToPass));
        if (next.get() >= 0) {
            folder = std::move(next);
        } else {
            ++missing;
        }
    }
    return folder;
}

// Whether an open folder is the one that outer describes, or is inside it.
Answer LiesIn(Descriptor folder, const struct stat& outer) {
    struct stat status;
    if (fstat(folder.get(), &status) != 0) {
        return CannotTell;
    }
    while (!IsSame(status, outer)) {
        const struct stat inner = status;
        folder = Descriptor(openat(folder.get(), "..", kFolderToPass));
        if (folder.get() < 0 || fstat(folder.get(), &status) != 0) {
            return CannotTell;
        }
        if (IsSame(status, inner)) {
            return No;  // the root
        }
    }
    return Yes;
}

// One run of FSCopyTree. Between two steps both chains are at the same level.
class TreeCopy : private file_op::Walk {
  public:
    explicit TreeCopy(FSCopyListener& listener) : listener_(listener) {}

    int copy(const ustring& src, const ustring& dst) {
        const Place from(src);
        const Place to(dst);
        const std::int32_t type = file_op::TypeAt(from);
        if (type != FILE_TYPE_DIR) {
            return copyFile(from, to, type) ? 0 : -1;
        }
        if (!isOutside(from, to) || !enter(from, to, FSMKDir(dst, true))) {
            return -1;
        }
        volume_ = volumeToSync(dst);
        const bool copied = run();
        if (volume_ != 0 && platform::SyncVolume(dst.c_str()) != 0) {
            static_cast<void>(file_op::FailWrite());
            return -1;
        }
        return copied ? 0 : -1;
    }

  private:
    bool take(const Entry& entry) override {
        const Place src = chain_.at(entry.name);
        const Place dst = to_.at(entry.name);
        const std::int32_t type = file_op::TypeAt(src, entry.type);
        return (type == FILE_TYPE_DIR ? copyFolder(src, dst) : copyFile(src, dst, type)) ||
               fail(entry.name);
    }

    // When the listing failed before its end, the entries listed so far have been copied.
    bool finish(bool listed) override {
        if (!listed) {
            file_op::FailReadDir(chain_.path().c_str());
        }
        const bool source = leave(chain_);
        const bool destination = leave(to_);
        return (source && destination) || fail(chain_.name_left());
    }

    static bool leave(FolderChain& chain) {
        const bool left = chain.leave();
        if (!left) {
            file_op::LogOpenFailure(chain.at("."));
        }
        return left;
    }

    // The volume of a folder that can be read, as SyncVolume() needs it, or 0.
    static dev_t volumeToSync(const ustring& folder) {
        const Descriptor opened(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
        struct stat status;
        return fstat(opened.get(), &status) == 0 ? status.st_dev : 0;
    }

    bool copyFolder(const Place& src, const Place& dst) {
        listener_.onFolder(src.path().c_str(), dst.path().c_str());
        look_ups_.stat(src, false);
        if (file_op::TypeAt(src) == FILE_TYPE_UNKNOWN) {
            listener_.onMissing(src.path().c_str());
            return false;
        }
        look_ups_.info(dst);
        return enter(src, dst, file_op::MakeFolder(dst));
    }

    bool isOutside(const Place& src, const Place& dst) {
        struct stat source;
        const bool examined = fstatat(src.folder, src.name, &source, AT_SYMLINK_NOFOLLOW) == 0;
        const Answer inside = examined ? LiesIn(OpenExisting(dst.name), source) : CannotTell;
        if (inside == Yes) {
            listener_.onInside(src.path().c_str(), dst.path().c_str());
        } else if (inside == CannotTell) {
            file_op::LogOpenFailure(dst);
            listener_.onNoFolder(dst.path().c_str());
        }
        return inside == No;
    }

    // Makes src and its copy dst the current folders. made is FSMKDir's result for dst.
    bool enter(const Place& src, const Place& dst, int made) {
        if (made < 0 || !enterCopy(dst)) {
            listener_.onNoFolder(dst.path().c_str());
            return false;
        }
        if (!chain_.enter(src)) {
            file_op::FailOpenDir(src.path().c_str());
            listener_.onUnlisted(src.path().c_str());
            return to_.leave();
        }
        return true;
    }

    bool enterCopy(const Place& dst) {
        const bool entered = to_.enter(dst);
        if (!entered) {
            file_op::LogOpenFailure(dst);
        }
        return entered;
    }

    // Opening a pipe could block for ever, so the type is checked first: for a link, the target's.
    bool copyFile(const Place& src, const Place& dst, std::int32_t type) {
        struct stat status;
        if (type == FILE_TYPE_LNK && fstatat(src.folder, src.name, &status, 0) == 0) {
            type = file_op::TypeOfMode(status.st_mode);
        }
        if (type == FILE_TYPE_DEV || type == FILE_TYPE_FIFO || type == FILE_TYPE_SOCK) {
            listener_.onSpecial(src.path().c_str(), type);
            return false;
        }
        Descriptor destination(-1);
        const int result = file_op::CopyContent(src, dst, destination);
        if (destination.get() < 0) {
            return false;
        }
        // Through a link or a mount, the file can be on another volume.
        const bool sync = fstat(destination.get(), &status) != 0 || status.st_dev != volume_;
        return file_op::FinishCopy(destination, result, sync) == 0;
    }

    // Reports that an entry of the current folder wasn't copied, then the same of each folder above
    // it, and leaves them all.
    bool fail(std::string name) {
        for (;;) {
            listener_.onFailure(chain_.at(name.c_str()).path().c_str(),
                                to_.at(name.c_str()).path().c_str());
            chain_.leave();
            to_.leave();
            if (chain_.empty()) {
                return false;
            }
            name = chain_.name_left();
        }
    }

    FSCopyListener& listener_;
    dev_t volume_ = 0;  // that is forced to the disk at the end; 0: each file is
    const file_op::LookUpLog look_ups_;
    FolderChain to_{FolderChain::Pass};
};

}  // namespace

int FSCopyTree(const ustring& src, const ustring& dst, FSCopyListener& listener) {
    return TreeCopy(listener).copy(src, dst);
}
