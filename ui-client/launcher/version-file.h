#ifndef UI_CLIENT_LAUNCHER_VERSION_FILE_H
#define UI_CLIENT_LAUNCHER_VERSION_FILE_H

#include "lib/platform/regular-file.h"
#include "ustring/ustring.h"

// The version of one installation: the text of its version file, field by field, unconverted.
struct VerInfo {
    ustring major_version;
    ustring minor_version;
    ustring build_version;  // the decimal number that decides about an upgrade
    ustring icon_overlay_version;
};

// Reads the version file at path (bytes, used as they are) into version. With inside, the file must
// be in that folder once links are followed. A key that is missing leaves its field as it was, and
// so does every result but Done:
//   Missing  there is no such file
//   Refused  it isn't a regular file of at most 1 MiB in that folder, or this user may not read it;
//            it will be no different at the next try
//   Failed   the system can't tell now (EIO, EMFILE, ENFILE, ENOMEM, ...): the version is unknown,
//            which isn't the same as none
// Threads: any.
platform::Reading LoadVersion(const char* path, VerInfo& version, const char* inside = nullptr);

#endif
