#ifndef LIB_PLATFORM_STANDARD_STREAMS_H
#define LIB_PLATFORM_STANDARD_STREAMS_H

namespace platform {

// Makes the standard streams safe to use, whatever this process was started with. Those that are
// closed lead to /dev/null, so that no file opened later gets their number and the messages meant
// for them. Writing where nobody reads any more is an error and not the end of the process.
// Must run before anything is opened.
void SecureStandardStreams();

}  // namespace platform

#endif
