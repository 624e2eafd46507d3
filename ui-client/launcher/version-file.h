#ifndef UI_CLIENT_LAUNCHER_VERSION_FILE_H
#define UI_CLIENT_LAUNCHER_VERSION_FILE_H

#include <cstddef>
#include <string>

#include "lib/platform/regular-file.h"
#include "ustring/ustring.h"

// The version of one installation: the text of its version file, field by field, unconverted.
struct VerInfo {
    ustring major_version;
    ustring minor_version;
    ustring build_version;  // the decimal number that decides about an upgrade
    ustring icon_overlay_version;
};

// A larger version file is refused. In bytes; a real one has about a hundred.
inline constexpr std::size_t kMaxVersionFile = std::size_t{1024} * 1024;

// Reads the text of a version file into version. A missing key leaves its field unchanged. Returns
// false, with version unchanged, when the system can't hold or read the text now. Threads: any.
bool ParseVersion(const std::string& text, VerInfo& version);

// Reads the version file at path (bytes, used unchanged) into version. inside, unless null, is a
// folder that must contain the file, at any depth, once links are followed. A missing key leaves
// its field unchanged, and so does every result but Done:
//   Missing  there is no such file
//   Refused  it isn't a regular file of at most 1 MiB in that folder, or this user may not read it;
//            trying again would give the same result
//   Failed   the system can't say now (EIO, EMFILE, ENFILE, ENOMEM, ...): the version is unknown,
//            which isn't the same as none
// Threads: any.
platform::Reading LoadVersion(const char* path, VerInfo& version, const char* inside = nullptr);

#endif
