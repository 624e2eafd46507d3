#ifndef LIB_PLATFORM_TIME_ZONE_H
#define LIB_PLATFORM_TIME_ZONE_H

namespace platform {

// Sets TZ to the system's time zone file, unless TZ is set. Times stay the same; but without TZ the
// C library looks at that file for each conversion of a time, and reading a package converts
// several times for each entry. Must be called before other threads exist.
void NameTimeZone();

// Whether an entry of the environment ("NAME=value") is the one that NameTimeZone() sets. It is for
// this process, not for the programs that it starts. Threads: any.
bool IsNamedTimeZone(const char* entry);

}  // namespace platform

#endif
