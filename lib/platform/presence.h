#ifndef LIB_PLATFORM_PRESENCE_H
#define LIB_PLATFORM_PRESENCE_H

#include <cstdint>

namespace platform {

// The three answers to whether something is there. A failed look-up is neither of the other two.
enum class Presence { There, NotThere, CantTell };

// Looks for an object at path, by the bytes given; a link counts itself, not its target. CantTell
// leaves errno set. object, unless null, becomes the number that a rename doesn't change and that
// nothing else on the volume has at the moment: the inode. Threads: any.
Presence LookAt(const char* path, std::uint64_t* object = nullptr);

// The same for what a link at path leads to: a dangling one is NotThere.
Presence LookAtTarget(const char* path);

}  // namespace platform

#endif
