#ifndef LIB_PLATFORM_COPY_WITHIN_SYSTEM_H
#define LIB_PLATFORM_COPY_WITHIN_SYSTEM_H

namespace platform {

// Lets the system copy a file that was opened just now to another one that is empty, and nothing
// but the bytes, which needn't come into this process. Returns true when all is copied. Otherwise,
// where the system can't or the copy fails, reading and writing go on from where both are then, or
// say why not. Threads: any.
bool CopyWithinSystem(int from, int to);

}  // namespace platform

#endif
