#include "lib/platform/copy-within-system.h"

#include <unistd.h>

#include <cstddef>

#include "lib/platform/durability.h"

namespace platform {

bool CopyWithinSystem(int from, int to) {
    const std::size_t chunk_size = std::size_t{32} * 1024 * 1024;
    for (bool copied = false;; copied = true) {
        const ssize_t size = copy_file_range(from, nullptr, to, nullptr, chunk_size, 0);
        if (size <= 0) {
            return size == 0 && copied;  // 0 at once: empty, or a special file that must be read
        }
        if (static_cast<std::size_t>(size) == chunk_size) {
            StartWriting(to);  // continues while the next chunk is copied
        }
    }
}

}  // namespace platform
