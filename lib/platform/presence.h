#ifndef LIB_PLATFORM_PRESENCE_H
#define LIB_PLATFORM_PRESENCE_H

#include <cstdint>

namespace platform {

// Whether something is at a path. CantTell means that looking it up failed, which says nothing.
enum class Presence { There, NotThere, CantTell };

// Looks for an object at path (bytes, used unchanged); a link isn't followed. CantTell leaves errno
// set. *object, unless object is null, receives the inode, which a rename doesn't change and which
// no other object of the volume has at the same time. Threads: any.
Presence LookAt(const char* path, std::uint64_t* object = nullptr);

// The same, but follows links: a dangling one is NotThere.
Presence LookAtTarget(const char* path);

}  // namespace platform

#endif
