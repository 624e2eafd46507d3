#ifndef LIB_LIBCLIENT_FILE_OP_INTERNAL_H
#define LIB_LIBCLIENT_FILE_OP_INTERNAL_H

#include <dirent.h>
#include <sys/types.h>

#include <cstdint>

#include "lib/libclient/file-op.h"
#include "lib/libclient/walk.h"
#include "lib/platform/handles.h"
#include "ustring/ustring.h"

// Shared by the sources of the file operations, and included by them only.
namespace file_op {

inline const ustring log_component("file_op_debug");

// file-info.cpp

std::int32_t TypeOfMode(mode_t mode);  // FILE_TYPE_UNKNOWN for a type without a code
std::int32_t TypeOfEntry(const dirent& entry);

// Returns the listed type, unless that is unknown, or else the type that the system reports for the
// object itself, not for a link's target. FILE_TYPE_UNKNOWN, with errno set, when that fails too.
std::int32_t TypeAt(const Place& place, std::int32_t listed = FILE_TYPE_UNKNOWN);

// Logs for a walk, which names objects relative to open folders, the lines that looking the objects
// up by their paths would log. Does nothing unless these lines are written: they are expensive.
class LookUpLog {
  public:
    LookUpLog();
    void info(const Place& place) const;              // the lines of GetFileInfo
    void stat(const Place& place, bool exact) const;  // the lines of FSStat

  private:
    const bool is_written_;
};

// file-copy.cpp

// FSCopy of an object that is named relative to an open folder.
int CopyFile(const Place& src, const Place& dst, bool remove_src);

// The two halves of FSCopy, with its results. CopyContent copies the bytes and leaves the
// destination open, if it could be opened. FinishCopy forces it to the disk, if sync is true, and
// closes it; result is that of CopyContent, and is returned if it is a failure.
int CopyContent(const Place& src, const Place& dst, platform::Descriptor& destination);
int FinishCopy(platform::Descriptor& destination, int result, bool sync);

int FailWrite();                          // logs errno and returns FSCopy's result for it
void LogOpenFailure(const Place& place);  // with errno

// make-folder.cpp

int MakeFolder(const Place& place);  // FSMKDir without parents

}  // namespace file_op

#endif
