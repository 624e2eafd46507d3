#ifndef LIB_PLATFORM_TIME_ZONE_H
#define LIB_PLATFORM_TIME_ZONE_H

namespace platform {

// Without TZ in the environment the C library asks for the system's time zone file again at each
// conversion of a time, and reading a package converts several for each entry. Names that file in
// TZ unless there is one, which changes no time. Must run before there are other threads.
void NameTimeZone();

// Whether an entry of the environment ("NAME=value") is what NameTimeZone() puts there, which is
// for us and not for the programs that we start. Threads: any.
bool IsNamedTimeZone(const char* entry);

}  // namespace platform

#endif
