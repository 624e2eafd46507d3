#ifndef LIB_PLATFORM_COPY_WITHIN_SYSTEM_H
#define LIB_PLATFORM_COPY_WITHIN_SYSTEM_H

namespace platform {

// Lets the system copy the bytes of a file that was just opened to an empty one, without passing
// them through this process. Returns true when all bytes are copied. Returns false when the system
// can't do that or the copy fails: then continue with read() and write() from where both
// descriptors are, which also report the error. Threads: any.
bool CopyWithinSystem(int from, int to);

}  // namespace platform

#endif
