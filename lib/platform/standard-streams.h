#ifndef LIB_PLATFORM_STANDARD_STREAMS_H
#define LIB_PLATFORM_STANDARD_STREAMS_H

namespace platform {

// Makes the standard streams safe to use, whatever this process was started with. A closed one is
// opened on /dev/null; otherwise a file opened later would get its number, and the messages meant
// for it. Writing to a closed pipe returns an error instead of ending the process. Must be called
// before anything is opened.
void SecureStandardStreams();

}  // namespace platform

#endif
