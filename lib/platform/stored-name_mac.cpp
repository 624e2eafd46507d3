#include "lib/platform/stored-name.h"

#include <sys/attr.h>
#include <unistd.h>

#include <climits>

namespace platform {

bool StoredName(int folder, const char* name, std::string& stored) {
    attrlist wanted{};
    wanted.bitmapcount = ATTR_BIT_MAP_COUNT;
    wanted.commonattr = ATTR_CMN_NAME;
    struct {
        u_int32_t size;
        attrreference_t name;
        char text[NAME_MAX * 3 + 1];
    } __attribute__((aligned(4), packed)) found;
    if (getattrlistat(folder, name, &wanted, &found, sizeof found, FSOPT_NOFOLLOW) != 0) {
        return false;
    }
    stored = reinterpret_cast<const char*>(&found.name) + found.name.attr_dataoffset;
    if (stored == name) {
        stored.clear();
    }
    return true;
}

// Even volumes that distinguish letter case ignore how letters are composed.
bool MayIgnoreSpelling(const std::string&) {
    return true;
}

}  // namespace platform
