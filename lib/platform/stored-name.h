#ifndef LIB_PLATFORM_STORED_NAME_H
#define LIB_PLATFORM_STORED_NAME_H

#include <string>

namespace platform {

// Finds out how an open folder spells the name of an object in it. stored becomes empty when that
// is name itself; it can differ on volumes that look names up without regard to letter case or to
// how letters are composed. A link isn't followed. Returns false, with errno set, when the system
// doesn't say. Threads: any.
bool StoredName(int folder, const char* name, std::string& stored);

// Whether the volume of an existing folder may treat two spellings as the same name. True in doubt.
// Threads: any.
bool MayIgnoreSpelling(const std::string& folder);

}  // namespace platform

#endif
