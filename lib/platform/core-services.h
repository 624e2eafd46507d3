#ifndef LIB_PLATFORM_CORE_SERVICES_H
#define LIB_PLATFORM_CORE_SERVICES_H

// References to file system objects, and the canonical spelling of their paths. On macOS these are
// system calls; elsewhere those that the launcher needs are declared here, with the same meaning.
#ifdef __APPLE__

#include <CoreServices/CoreServices.h>

#else

#include <climits>
#include <cstdint>

using UInt8 = std::uint8_t;
using UInt32 = std::uint32_t;
using Boolean = unsigned char;

// 0, or one of these. The numbers are those of macOS.
using OSStatus = std::int32_t;
enum : OSStatus {
    noErr = 0,
    ioErr = -36,             // any failure without a status here
    bdNamErr = -37,          // the name is empty or too long
    fnfErr = -43,            // the folder is there, the object isn't
    dirNFErr = -120,         // a folder on the way isn't there
    pathTooLongErr = -2110,  // the buffer is too small for the path and its terminator
    afpAccessDenied = -5000
};

// Refers to an object that existed when the reference was made.
struct FSRef {
    char path[PATH_MAX];  // absolute, without links, as stored
};

// Makes a reference to the object at path (UTF-8, absolute or relative); all links are followed.
// isDirectory may be null. ref is undefined unless the status is 0.
// Threads: any.
OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* isDirectory);

// Writes the object's absolute path, NUL-terminated UTF-8 without links, each component spelled as
// it is stored.
// Threads: any.
OSStatus FSRefMakePath(const FSRef* ref, UInt8* path, UInt32 pathBufferSize);

#endif

#endif
