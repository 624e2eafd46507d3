#ifndef LIB_LIBCLIENT_WALK_H
#define LIB_LIBCLIENT_WALK_H

#include <dirent.h>
#include <fcntl.h>
#include <sys/types.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "lib/platform/folder-rights.h"
#include "lib/platform/handles.h"
#include "ustring/ustring.h"

// Walks through trees of folders, for the file operations and for what moves an application. Each
// object is named relative to its open folder: with whole paths the system would walk the outer
// folders again for each object, a tree could not be deeper than the longest path, and a link put
// in a folder's place would be followed. One object belongs to one thread.
namespace file_op {

// An object named relative to an open folder. folder_path is for messages; null when name is the
// whole path.
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

bool IsNoPermission();  // whether errno is EACCES or EPERM

// Reads the next entry of a stream: 1 and the entry, 0 at the end, -1 with errno set.
int ReadEntry(DIR* stream, const dirent*& entry);

// Log errno for a folder that can't be opened or read. Return -1.
int FailOpenDir(const char* path);
int FailReadDir(const char* path);

// An entry of a folder in a walk. The name is valid until the walk leaves the folder.
struct Entry {
    const char* name = nullptr;
    std::int32_t type = 0;  // a file type code, FILE_TYPE_UNKNOWN when the folder doesn't say
};

// The folders from the root of a walk down to the current one. Only the innermost 16 are open, so
// neither the depth nor the length of the paths is limited; one that was closed is opened again
// through ".." of its child, and must be the same folder then.
class FolderChain {
  public:
    enum Use {
        List,
        Pass  // only name objects in the folders, which needs no permission to read them
    };

    // Who owns the folders. In a tree of this user (all but Anyones), a folder that its owner may
    // not open is unlocked, and one on another volume than the first isn't entered (EXDEV).
    enum Rights {
        Anyones,
        Own,
        OwnRestored  // and a folder that is left gets its mode back
    };

    explicit FolderChain(Use use = List, Rights rights = Anyones) : use_(use), rights_(rights) {}

    // Makes the folder at place the current one; a link isn't followed. On failure errno is set and
    // the current folder stays.
    bool enter(const Place& place);

    // Returns to the parent of the current folder, or ends the walk. Returns false, with errno set,
    // when the parent can't be reopened or the mode of the folder left can't be restored.
    bool leave();

    // Gives the owner of the current folder all rights to it, unless the tree may be anyone's.
    // Returns whether that changed anything.
    bool unlock();

    // The permissions that lockHolder() and leave() restore for the current folder: those that it
    // was entered with, unless setMode() replaced them.
    mode_t mode() const { return levels_.back().mode; }
    void setMode(mode_t mode) { levels_.back().mode = mode; }

    // Restores the permissions of the current folder's parent; false with errno set.
    bool lockHolder();

    // The next entry of the current folder, without "." and "..": 1 and the entry, 0 at the end, -1
    // with errno set when the listing failed before its end. The first call reads the whole
    // listing, so that removing or moving entries can neither hide one nor return one twice.
    int read(Entry& entry);

    bool empty() const { return levels_.empty(); }
    const std::string& path() const { return path_; }
    Place at(const char* name) const { return Place(levels_.back().fd(), name, path_); }
    const std::string& name_left() const { return name_left_; }  // of the last folder left

  private:
    struct Level {
        platform::Descriptor folder{-1};  // until its listing begins
        platform::DirStream stream;       // from then on
        dev_t device = 0;
        ino_t inode = 0;
        mode_t mode = 0;            // the permissions to restore
        mode_t mode_now = 0;        // the present ones
        std::string name;           // in the parent
        std::size_t path_size = 0;  // of the parent's path

        bool listed = false;
        std::vector<char> entries;  // for each its type, its name and a NUL
        std::size_t next = 0;       // position of the entry to read next
        int error = 0;              // that ended the listing early

        int fd() const { return stream != nullptr ? dirfd(stream.get()) : folder.get(); }
        bool change(mode_t new_mode);
        bool unlock();
        void close();
        void list();
    };

    bool open(const Place& place, int flags, Level& level) const;
    bool openLocked(const Place& place, Level& level) const;
    bool isOnVolume(const Level& level);
    bool reopenHolder(Level& left);

    const Use use_;
    const Rights rights_;
    platform::MountId volume_ = 0;  // of the first folder
    std::vector<Level> levels_;
    std::string path_;  // of the current folder, for messages
    std::string name_left_;
};

// The loop that all walks share. A derived walk enters its root before it calls run().
class Walk {
  public:
    explicit Walk(FolderChain::Rights rights = FolderChain::Anyones)
        : chain_(FolderChain::List, rights) {}
    virtual ~Walk() = default;
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;

  protected:
    // Handles all entries. Returns true when the chain is empty, false as soon as a step fails.
    bool run();

    // Handles one entry of the current folder. If it enters a folder, that folder's entries follow.
    virtual bool take(const Entry& entry) = 0;

    // Leaves the current folder after its last entry. Unless listed, the listing failed before its
    // end, with errno set, and there may be more entries.
    virtual bool finish(bool listed) = 0;

    // The folder that finish() just left, below the current one; root is the walk's own.
    Place left(const Place& root) const {
        return chain_.empty() ? root : chain_.at(chain_.name_left().c_str());
    }

    FolderChain chain_;
};

}  // namespace file_op

#endif
