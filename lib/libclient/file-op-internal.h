#ifndef LIB_LIBCLIENT_FILE_OP_INTERNAL_H
#define LIB_LIBCLIENT_FILE_OP_INTERNAL_H

#include <dirent.h>
#include <sys/types.h>

#include <cstdint>

#include "lib/libclient/file-op.h"
#include "lib/libclient/walk.h"
#include "lib/platform/handles.h"
#include "ustring/ustring.h"

// What the sources of the file operations share; nobody else includes it.
namespace file_op {

inline const ustring log_component("file_op_debug");  // theirs all

// file-info.cpp

std::int32_t TypeOfMode(mode_t mode);  // unknown for a type that is none of ours
std::int32_t TypeOfEntry(const dirent& entry);

// The type of the object itself, as its folder's listing says or else the system; unknown, with
// errno set, when that doesn't say either.
std::int32_t TypeAt(const Place& place, std::int32_t listed = FILE_TYPE_UNKNOWN);

// Logs what looking up objects by their paths would log. The walks name objects relative to open
// folders, and compute nothing for the log unless these lines are written.
class LookUpLog {
  public:
    LookUpLog();
    void info(const Place& place) const;              // the lines of GetFileInfo
    void stat(const Place& place, bool exact) const;  // the lines of FSStat

  private:
    const bool is_written_;
};

// file-copy.cpp

// FSCopy.
int CopyFile(const Place& src, const Place& dst, bool remove_src);

// The two halves of FSCopy, with its results: copies the bytes, and forces them to the disk unless
// result says that the copy has failed already. The destination is open in between, if it could be
// opened.
int CopyContent(const Place& src, const Place& dst, platform::Descriptor& destination);
int FinishCopy(platform::Descriptor& destination, int result);

void LogOpenFailure(const Place& place);  // with errno

// make-folder.cpp

int MakeFolder(const Place& place);  // FSMKDir without parents

}  // namespace file_op

#endif
