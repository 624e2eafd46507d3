// The two calls of the system's framework that the launcher makes, so that sources that include its
// header compile for macOS on Linux. Apple's own headers come with a Mac's developer tools only.
#ifndef CORE_SERVICES_H
#define CORE_SERVICES_H

#include <Availability.h>
#include <MacTypes.h>

#ifdef __cplusplus
extern "C" {
#endif

struct FSRef {
    UInt8 hidden[80];
};
typedef struct FSRef FSRef;

OSStatus FSPathMakeRef(const UInt8* path, FSRef* ref, Boolean* isDirectory)
    __attribute__((availability(macos, introduced = 10.0, deprecated = 10.8)));
OSStatus FSRefMakePath(const FSRef* ref, UInt8* path, UInt32 pathBufferSize)
    __attribute__((availability(macos, introduced = 10.0, deprecated = 10.8)));

#ifdef __cplusplus
}
#endif

#endif
