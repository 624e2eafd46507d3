#include "lib/platform/copy-range.h"

namespace platform {

// The system copies whole files only, with their rights and times.
ssize_t CopyRange(int, int, std::size_t) {
    return -1;
}

}  // namespace platform
