#ifndef LIB_PLATFORM_COPY_RANGE_H
#define LIB_PLATFORM_COPY_RANGE_H

#include <sys/types.h>

#include <cstddef>

namespace platform {

// Lets the system copy up to size bytes from one open file to another, from where each of them
// stands, and moves both on. Returns the number of bytes, 0 at the end of the source, or -1 where
// the system can't or the copy fails: then reading and writing goes on from there, or tells why
// not. Some special files give 0 and can be read all the same. Threads: any.
ssize_t CopyRange(int from, int to, std::size_t size);

}  // namespace platform

#endif
