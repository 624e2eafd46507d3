#include "lib/platform/time-zone.h"

#include <cstdlib>
#include <string_view>

namespace {

const std::string_view kEntry = "TZ=:/etc/localtime";
const std::size_t kValue = 3;  // where its value begins

}  // namespace

namespace platform {

void NameTimeZone() {
    static_cast<void>(setenv("TZ", kEntry.data() + kValue, 0) == 0);  // if it fails, we are slower
}

bool IsNamedTimeZone(const char* entry) {
    return entry == kEntry;
}

}  // namespace platform
