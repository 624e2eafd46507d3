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

bool IsNoPermission();  // whether errno says so

// Reads the next entry of a stream: 1 and the entry, 0 at the end, -1 with errno set.
int ReadEntry(DIR* stream, const dirent*& entry);

// These log errno, for a folder that can't be opened or read, and return -1.
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
        Pass  // objects in the folders are named, which takes no right to read them
    };

    // Whose the folders are. In a tree of this user, one that its owner may not open is unlocked,
    // and one on another volume than the first isn't entered (EXDEV).
    enum Rights {
        Anyones,
        Own,
        OwnRestored  // and a folder that is left gets its mode back
    };

    explicit FolderChain(Use use = List, Rights rights = Anyones) : use_(use), rights_(rights) {}

    // Makes the folder at place the current one; a link isn't followed. On failure, with errno set,
    // the current folder stays.
    bool enter(const Place& place);

    // Back to the folder that holds the current one, or out of the walk. Returns false, with errno
    // set, when that folder can't be opened again or the one left doesn't get its mode back.
    bool leave();

    // Gives the owner of the current folder all rights to it. Returns whether that has changed
    // anything; nothing is changed in a tree that may be anyone's.
    bool unlock();

    // The permissions of the current folder as it was entered, or as they were set for lock() and
    // leave() to give back.
    mode_t mode() const { return levels_.back().mode; }
    void setMode(mode_t mode) { levels_.back().mode = mode; }

    // Gives the folder that holds the current one its mode back; false with errno set.
    bool lockHolder();

    // The next entry of the current folder, without "." and "..": 1 and the entry, 0 at the end, -1
    // with errno set when the listing has broken off. The first call reads the whole listing, so
    // that what is done with the entries can neither hide one nor add one.
    int read(Entry& entry);

    bool empty() const { return levels_.empty(); }
    const std::string& path() const { return path_; }
    Place at(const char* name) const { return Place(levels_.back().fd(), name, path_); }
    const std::string& name_left() const { return name_left_; }  // of the folder left last

  private:
    struct Level {
        platform::Descriptor folder{-1};  // until its listing begins
        platform::DirStream stream;       // from then on
        dev_t device = 0;
        ino_t inode = 0;
        mode_t mode = 0;            // the permissions to give back
        mode_t mode_now = 0;        // those it has
        std::string name;           // in the folder that holds it
        std::size_t path_size = 0;  // of that folder's path

        bool listed = false;
        std::vector<char> entries;  // of each its type, its name and a NUL
        std::size_t next = 0;       // the position of the entry to be read
        int error = 0;              // what broke the listing off

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

// The one loop of all walks. A walk enters its root in its own way before run().
class Walk {
  public:
    explicit Walk(FolderChain::Rights rights = FolderChain::Anyones)
        : chain_(FolderChain::List, rights) {}
    virtual ~Walk() = default;
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;

  protected:
    // Deals with all entries, until the chain is empty or a step fails, which ends the walk.
    bool run();

    // Deals with an entry of the current folder. A folder that it enters comes next.
    virtual bool take(const Entry& entry) = 0;

    // Leaves the current folder when all of its entries were dealt with. Unless listed, its listing
    // has broken off, with errno set, and there may be more.
    virtual bool finish(bool listed) = 0;

    // The folder that finish() has left, below the current one; root is the walk's own.
    Place left(const Place& root) const {
        return chain_.empty() ? root : chain_.at(chain_.name_left().c_str());
    }

    FolderChain chain_;
};

}  // namespace file_op

#endif
