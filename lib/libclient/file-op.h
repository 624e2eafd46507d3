#ifndef LIB_LIBCLIENT_FILE_OP_H
#define LIB_LIBCLIENT_FILE_OP_H

#include <cstdint>
#include <ctime>

#include "lib/platform/handles.h"
#include "ustring/ustring.h"

// The file operations of the launcher.
//
// Shared rules. Paths are UTF-8, absolute or relative to the current folder, and are passed to the
// system unchanged. Failures are return values; nothing throws. Unless stated otherwise, 0 is
// success, an empty path is refused with -1 before the disk is touched, and what was done before a
// failure stays. errno is undefined afterwards, except where it is named. Failures are logged under
// the component "file_op_debug"; the operations on whole trees log only what the operations that
// they are made of log.
//
// Threads: any thread may call any operation; calls that run at the same time must work on
// different objects of the file system. FSInitialize must not run at the same time as any other
// operation. FSMKDirP with an explicit mode changes the umask of the process during the call.

// Type codes of file system objects. 4 is not used.
enum : std::int32_t {
    FILE_TYPE_UNKNOWN = 0,  // in directory entries only: the file system doesn't report the type
    FILE_TYPE_REG = 1,      // also for a path that doesn't exist
    FILE_TYPE_DIR = 2,
    FILE_TYPE_LNK = 3,
    FILE_TYPE_DEV = 5,
    FILE_TYPE_FIFO = 6,
    FILE_TYPE_SOCK = 7
};

struct _FILE_INFO_tag {
    ustring path;      // canonical after GetFileInfo of an existing object, else as passed in
    ustring alt_path;  // for the caller; not set by these operations
    std::int32_t type = FILE_TYPE_UNKNOWN;
    std::time_t mtime = 0;  // last modification, seconds since the epoch
    std::int64_t size = 0;  // bytes
    bool exists = false;
    std::uint32_t uid = 0;
    std::uint32_t gid = 0;
    std::uint32_t mode = 0;  // type and permission bits
};

// Equal when exists, size, mtime, type, path and alt_path are equal; owner and mode are ignored.
bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);
bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b);

// A flag of FSOpenDir: report the time and the size of each entry.
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

// Sets the owner and group that FSChown sets and that FSMKDir and FSMKDirP give to new folders. The
// initial value, all bits set (-1), leaves them to the system.
void FSInitialize(std::uint32_t uid, std::uint32_t gid);

// Does nothing and returns 0, whatever the path.
int FSInit(const ustring& path);

// Calls chown with the owner and group of FSInitialize; returns its result and leaves its errno.
int FSChown(const ustring& path);

// Whether the object exists; links are followed, and a dangling link doesn't exist. The path is
// looked up in its NFC form. With exact, the canonical path must equal that form: false for a
// relative path, for a path through a link and, on a volume that ignores letter case, for another
// spelling.
bool IsFileExist(const ustring& path, bool exact);

// Describes the object at path, a link itself and not its target. A path that doesn't exist, or is
// empty, is a success: exists is false, the type regular, the time now, and the numbers are 0.
// Returns -1 when the object can't be examined, with info unchanged, or when its type has no code.
int GetFileInfo(const ustring& path, _FILE_INFO_tag& info);

// Replaces path by its canonical form: absolute, links followed, spelled as stored.
// Returns -1 with path unchanged when there is no such object.
int FSGetRealPath(ustring& path);

// IsFileExist and GetFileInfo in one. When the object doesn't exist, only info.exists is set, to
// false. Returns -2 when the object can't be described.
int FSStat(const ustring& path, _FILE_INFO_tag& info, bool exact);

// Copies a file's bytes, nothing else, and forces them to the disk. A new destination gets
// the mode 0666 under the umask; an existing one is truncated and keeps its mode and owner. Links
// are followed on both sides; a file isn't copied onto itself. With remove_src the source is
// deleted once the copy is on the disk. Not atomic: a failure leaves what was written. Returns -2
// for a full disk or an exhausted quota, -1 for any other failure.
int FSCopy(const ustring& src, const ustring& dst, bool remove_src);

// Receives the events of FSCopyTree. The paths are valid during the call.
class FSCopyListener {
  public:
    FSCopyListener() = default;
    virtual ~FSCopyListener() = default;
    FSCopyListener(const FSCopyListener&) = delete;
    FSCopyListener& operator=(const FSCopyListener&) = delete;

    virtual void onInside(const char* src, const char* dst) = 0;  // dst is inside the folder src
    virtual void onFolder(const char* src, const char* dst) = 0;  // is next; not for the root
    virtual void onMissing(const char* src) = 0;   // the folder has gone or can't be examined
    virtual void onNoFolder(const char* dst) = 0;  // the folder can't be created
    virtual void onUnlisted(const char* src) = 0;  // can't be listed: treated as empty
    virtual void onSpecial(const char* src, std::int32_t type) = 0;  // a pipe, socket or device
    // An entry of a folder wasn't copied. Called again for each folder above it, except the root.
    virtual void onFailure(const char* src, const char* dst) = 0;
};

// Copies a file as FSCopy does, or a folder with everything below it. An existing folder is merged
// into; links to files in the source are followed; pipes, sockets and devices are refused. The
// volume of a folder's copy is forced to the disk once, at the end, which takes far less time than
// file by file. Depth and size of a tree are not limited. A folder isn't copied into itself: where
// dst would be is found out before anything is created. Not atomic: a failure ends the copy, leaves
// what was copied, and returns -1.
int FSCopyTree(const ustring& src, const ustring& dst, FSCopyListener& listener);

// Moves src to dst. On one volume this is atomic and replaces an existing file or empty folder.
// Across volumes it copies and deletes, entry by entry: a file replaces a file, a folder is merged
// into an existing one, which needn't be readable. Links, pipes, sockets and devices aren't moved
// across volumes: that is a success when src is such an object, and a failure when it is a folder
// with one in it. Not atomic there: what was moved before a failure is at dst, the rest at src.
// Depth and size of a tree are not limited. Returns -1 for an empty path, -2 when src is missing
// (see IsFileExist for exact) or can't be examined, -100 for a name that is too long, -3 for any
// other failure.
int FSRename(const ustring& src, const ustring& dst, bool exact);

// Creates a folder with the mode 0777 under the umask and, with parents, the missing folders above
// it. An existing folder is a success; any other object at path, a link to a folder too, is
// refused. Returns -1 for an empty path, for one that can't be examined and for an existing object
// that isn't a folder, -2 when the folder can't be created.
int FSMKDir(const ustring& path, bool parents);

// Creates a folder and the missing ones above it. A mode of 0xFFFF means 0777 under the umask; any
// other is used exactly. Links to folders count as folders. With force, an object in the way that
// isn't a folder is deleted. *end_out, unless null, is set to the character in path's own buffer
// that ends the last component handled.
// Returns -1 with errno set (EEXIST when path itself isn't a folder, ENOTDIR when one above isn't);
// the folders made before stay.
int FSMKDirP(const ustring& path, char** end_out, bool force, std::uint16_t mode);

// Deletes a file, a link itself, or a whole tree; a path that doesn't exist is a success. A folder
// that can't be opened is left in place: a success when it is the root, a failure below it. Not
// atomic: a failure leaves the rest. Depth and size of a tree are not limited. flag has no effect.
// Returns -1 for an empty path and for one that can't be examined, -3 for any other failure.
int FSRemove(const ustring& path, bool flag);

// Deletes whatever is at path, as FSRemove does, but for a tree that belongs to this user:
// - A folder that its owner may not read, search or write is made accessible to its owner, but only
//   when its permissions are in the way. Nothing outside the tree is changed.
// - Other volumes mounted in the tree are not entered, and on Linux no other mounts of the same
//   volume. Links are deleted and not followed; a "/" at the end of path is ignored.
// - An entry that can't be removed is left, and so is a folder that can't be listed to its end; all
//   others are removed.
// Not atomic. Depth and size of a tree are not limited; at most 16 of its folders are open.
// Returns 0 when nothing is left at path, -1 for an empty path, "/" and one that can't be examined,
// -3 for any other failure.
int FSRemoveOwnTree(const ustring& path);

// Creates an empty file with a new name and the mode 0644 in the folder dir (empty: the root) and
// forces it to the disk; out is its path. Returns -1, with out unchanged, on failure.
int FSMktemp(const ustring& dir, ustring& out);

// Generates a random path in dir (empty: the root). Nothing is created, and nothing checks that the
// path is free. Returns -1 when no path was generated.
int FSCreateTempPath(const ustring& dir, ustring& out);

// Sets the times of the object at path, in seconds since the epoch. Returns -1 on failure.
int FSUTime(const ustring& path, long atime, long mtime);

// Opens a folder to be listed. Returns -1, with handle unchanged, on failure.
int FSOpenDir(const ustring& path, std::int32_t flags, DIR_HANDLE& handle);

// Reads the next entry, "." and ".." included, in the folder's own order. Returns 1 for an entry, 0
// at the end, -1 on failure, also when the handle isn't open. With DIR_OPEN_STAT, the time and the
// size are 0 for an entry that IsFileExist with exact refuses: a link, "." or "..", or any entry of
// a folder whose path isn't canonical.
int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry);

// Closes the handle; does nothing when it isn't open.
void FSCloseDir(DIR_HANDLE& handle);

bool FSTimeEqual(long a, long b);  // exactly, in seconds

// Whether this process lacks one of the permissions in mode (the bits of access()).
bool isFileLocked(const ustring& path, int mode);

// Whether the path is on a network volume (NFS, SMB, AFP) or on a FAT volume. False when the system
// doesn't say.
bool isMountPoint(const ustring& path);
bool IsMSDOS(const ustring& path);

#endif
