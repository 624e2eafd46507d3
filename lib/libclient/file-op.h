#ifndef LIB_LIBCLIENT_FILE_OP_H
#define LIB_LIBCLIENT_FILE_OP_H

#include <cstdint>
#include <ctime>

#include "lib/platform/handles.h"
#include "ustring/ustring.h"

// The file operations of the launcher.
//
// Shared rules. Paths are UTF-8, absolute or relative to the current folder, and are handed to the
// system as they are. Failures are return values; nothing throws. Where no other rule is given,
// 0 is success, an empty path is refused with -1 before the disk is touched, and a failure leaves
// what was done before it. errno says nothing afterwards, except where it is named. What fails is
// logged under the component "file_op_debug"; the operations on whole trees log only what the
// operations that they are made of log.
//
// Threads: any thread may call anything, on different objects of the file system at the same time;
// FSInitialize must not run beside any other operation. FSMKDirP with an explicit mode changes the
// umask of the process during the call.

// Type codes of file system objects. 4 is not used.
enum : std::int32_t {
    FILE_TYPE_UNKNOWN = 0,  // of directory entries only: the folder doesn't say
    FILE_TYPE_REG = 1,      // also of a path where nothing is
    FILE_TYPE_DIR = 2,
    FILE_TYPE_LNK = 3,
    FILE_TYPE_DEV = 5,
    FILE_TYPE_FIFO = 6,
    FILE_TYPE_SOCK = 7
};

// What is known of one path.
struct _FILE_INFO_tag {
    ustring path;      // canonical after GetFileInfo of an existing object, else as passed in
    ustring alt_path;  // for the caller; nothing here writes it
    std::int32_t type = FILE_TYPE_UNKNOWN;
    std::time_t mtime = 0;  // last modification, seconds since the epoch
    std::int64_t size = 0;  // bytes
    bool exists = false;
    std::uint32_t uid = 0;
    std::uint32_t gid = 0;
    std::uint32_t mode = 0;  // type and permission bits
};

// Equal when exists, size, mtime, type, path and alt_path are; owner and mode don't count.
bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);
bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);

// A flag of FSOpenDir: fill the time and the size of each entry.
enum : std::int32_t { DIR_OPEN_STAT = 1 };

// A folder being listed; owns the open stream.
struct DIR_HANDLE {
    ustring path;  // as opened
    std::int32_t flags = 0;
    platform::DirStream dir;  // none when closed
};

struct DIR_ENTRY {
    ustring name;  // without the folder
    std::int32_t type = FILE_TYPE_UNKNOWN;
    std::time_t mtime = 0;  // seconds since the epoch; 0 without DIR_OPEN_STAT
    std::int64_t size = 0;  // bytes; 0 without DIR_OPEN_STAT
};

// Sets the owner and the group of what is created from now on; all bits set (-1), as at the start,
// leaves them to the system.
void FSInitialize(std::uint32_t uid, std::uint32_t gid);

// Does nothing and returns 0, whatever the path.
int FSInit(const ustring& path);

// chown to the owner and group of FSInitialize; returns its result and leaves its errno.
int FSChown(const ustring& path);

// Whether the object exists; links are followed, a dangling one doesn't exist. The path is looked
// up in its NFC form. With exact, also whether its canonical path spells that form exactly: on a
// volume that ignores letter case this refuses other spellings, everywhere it refuses links.
bool IsFileExist(const ustring& path, bool exact);

// Describes the object at path, a link itself and not its target. Nothing there, an empty path
// too, is a success: then exists is false, the type regular, the time now, and the numbers are 0.
// Returns -1 when the system doesn't say, with info unchanged, or when the type is none of ours.
int GetFileInfo(const ustring& path, _FILE_INFO_tag& info);

// Replaces path by its canonical form: absolute, links followed, spelled as stored.
// Returns -1 with path unchanged when there is no such object.
int FSGetRealPath(ustring& path);

// IsFileExist and GetFileInfo in one. Where nothing is, only info.exists is set, to false.
// Returns -2 when the information can't be read.
int FSStat(const ustring& path, _FILE_INFO_tag& info, bool exact);

// Copies a file's bytes, and nothing but them, and forces them to the disk. A new destination gets
// the mode 0666 under the umask; an existing one is truncated and keeps its mode and owner. Links
// are followed on both sides; a file isn't copied onto itself. With remove_src the source is
// deleted once the copy is on the disk. Not atomic: a failure leaves what was written. Returns -2
// for a full disk or an exhausted quota, -1 for any other failure.
int FSCopy(const ustring& src, const ustring& dst, bool remove_src);

// Is told what FSCopyTree meets, with the paths that it is at; they are valid during the call.
class FSCopyListener {
  public:
    FSCopyListener() = default;
    virtual ~FSCopyListener() = default;
    FSCopyListener(const FSCopyListener&) = delete;
    FSCopyListener& operator=(const FSCopyListener&) = delete;

    virtual void onInside(const char* src, const char* dst) = 0;  // dst lies in the folder src
    virtual void onFolder(const char* src, const char* dst) = 0;  // comes next; not the first one
    virtual void onMissing(const char* src) = 0;   // that folder, or can't be examined
    virtual void onNoFolder(const char* dst) = 0;  // can't be made
    virtual void onUnlisted(const char* src) = 0;  // can't be listed: treated as empty
    virtual void onSpecial(const char* src, std::int32_t type) = 0;  // a pipe, socket or device
    // An entry of a folder isn't copied; afterwards once more for each folder above it but the
    // first.
    virtual void onFailure(const char* src, const char* dst) = 0;
};

// Copies a file as FSCopy does, or a folder with everything below it. An existing folder is merged
// into; links in the source are followed to files; pipes, sockets and devices are refused. The
// files are forced to the disk a batch at a time, which takes far less time than one by one. Depth
// and size of a tree are not limited. A folder isn't copied into itself: before anything is made,
// dst is followed to where FSMKDir would make it. Not atomic: a failure ends the copy and leaves
// what was copied. Returns -1 for it.
int FSCopyTree(const ustring& src, const ustring& dst, FSCopyListener& listener);

// Moves src to dst. On one volume this is atomic and replaces an existing file or empty folder.
// Across volumes it copies and deletes, entry by entry: a file replaces a file, a folder is merged
// into an existing one, which needn't be readable. There, links, pipes, sockets and devices stay
// where they are, which is a success for such an object alone and a failure for the folder that
// holds it.
// Not atomic there: what was moved before a failure is at dst, the rest at src. Depth and size of a
// tree are not limited. Returns -1 for an empty path, -2 when src is missing (see IsFileExist for
// exact) or can't be examined, -100 for a name that is too long, -3 for any other failure.
int FSRename(const ustring& src, const ustring& dst, bool exact);

// Creates a folder with the mode 0777 under the umask, with parents the missing ones above it too.
// An existing folder is a success; anything else in its place, a link to a folder too, is refused.
// Returns -1 for an empty path, for one that can't be examined and for an existing object that is
// no folder, -2 when the folder can't be created.
int FSMKDir(const ustring& path, bool parents);

// Creates a folder and the missing ones above it. A mode of 0xFFFF means 0777 under the umask; any
// other is used exactly. Links to folders count as folders. With force, what stands in the way and
// is no folder is deleted. *end_out (unless null) is set to the character of path's own buffer that
// ends the last component handled.
// Returns -1 with errno set (EEXIST when path itself isn't a folder, ENOTDIR when one above isn't);
// the folders made before stay.
int FSMKDirP(const ustring& path, char** end_out, bool force, std::uint16_t mode);

// Deletes a file, a link itself, or a whole tree; nothing there is a success. A folder that can't
// be opened is left in place, which is a success for that folder and a failure for the one that
// holds it. Not atomic: a failure leaves the rest. Depth and size of a tree are not limited. flag
// changes nothing.
// Returns -1 for an empty path and for one that can't be examined, -3 for any other failure.
int FSRemove(const ustring& path, bool flag);

// Deletes whatever is at path, as FSRemove does, of a tree that belongs to this user:
// - A folder in it that its owner may not read, search or write is made accessible to its owner
//   first, when that turns out to be needed. Nothing outside the tree is changed.
// - Other volumes that are mounted in it are not entered, on Linux other mounts of the same volume
//   too. Links are deleted and not followed; a "/" at the end of path changes nothing.
// - An entry that can't be removed is left, as is a folder whose listing breaks off; all others
//   are removed.
// Not atomic. Depth and size of a tree are not limited; at most 16 of its folders are open.
// Returns 0 when nothing is left at path or nothing was there, -1 for an empty path, "/" and one
// that can't be examined, -3 for any other failure.
int FSRemoveOwnTree(const ustring& path);

// Creates an empty file with a fresh name and the mode 0644 in the folder dir (empty: the root), on
// the disk when the call returns; out is its path. Returns -1, with out unchanged, on failure.
int FSMktemp(const ustring& dir, ustring& out);

// Makes up a fresh path in dir (empty: the root); nothing is created. Returns -1 when none was
// produced.
int FSCreateTempPath(const ustring& dir, ustring& out);

// Sets the times of the object at path, in seconds since the epoch. Returns -1 on failure.
int FSUTime(const ustring& path, long atime, long mtime);

// Opens a folder to be listed. Returns -1, with handle unchanged, on failure.
int FSOpenDir(const ustring& path, std::int32_t flags, DIR_HANDLE& handle);

// Reads the next entry, "." and ".." included, in the folder's own order. Returns 1 for an entry,
// 0 at the end, -1 on failure, which also means a handle that isn't open. With DIR_OPEN_STAT an
// entry that doesn't exist (a dangling link) has the time and size 0.
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);

// Closes the handle; does nothing when it isn't open.
void FSCloseDir(DIR_HANDLE& handle);

bool FSTimeEqual(long a, long b);  // exactly, in seconds

// Whether this process lacks the permissions that mode (the bits of access()) asks for.
bool isFileLocked(const ustring& path, int mode);

// Whether the path lies on a network volume (NFS, SMB, AFP), on a FAT one. false when the system
// doesn't say.
bool isMountPoint(const ustring& path);
bool IsMSDOS(const ustring& path);

#endif
