#include "ui-client/launcher/content-checksum.h"

#include <array>
#include <fstream>
#include <string_view>

#include "ui-client/launcher/package-reader.h"

namespace {

const std::size_t kHeadSize = 8;  // bytes; enough for the field that says which checksum there is

// Whether a file with this compression that begins with head has a checksum.
bool StreamHasChecksum(int compression, std::string_view head) {
    switch (compression) {
        case ARCHIVE_FILTER_GZIP:
        case ARCHIVE_FILTER_BZIP2:
        case ARCHIVE_FILTER_LZIP:
            return true;
        case ARCHIVE_FILTER_XZ:  // CRC-32, CRC-64 or SHA-256; 0 is none
            return head[7] == 1 || head[7] == 4 || head[7] == 10;
        case ARCHIVE_FILTER_ZSTD:
            return head.substr(0, 4) == "\x28\xB5\x2F\xFD" && (head[4] & 4) != 0;
        case ARCHIVE_FILTER_LZ4:
            return head.substr(0, 4) == "\x04\x22\x4D\x18" && (head[4] & 4) != 0;
        default:
            return false;
    }
}

}  // namespace

bool HasContentChecksum(const char* path) {
    PackageReader package;
    archive_entry* entry = nullptr;
    if (!package.allocated() ||
        package.open(path, PackageReader::Stream::Unverified) != ARCHIVE_OK ||
        package.next(entry) != ARCHIVE_OK) {
        return false;
    }
    const int format = archive_format(package.get()) & ARCHIVE_FORMAT_BASE_MASK;
    if (format == ARCHIVE_FORMAT_ZIP || format == ARCHIVE_FORMAT_7ZIP ||
        format == ARCHIVE_FORMAT_XAR) {
        return true;
    }
    std::array<char, kHeadSize> head{};
    std::ifstream(path, std::ios::binary).read(head.data(), kHeadSize);
    return StreamHasChecksum(package.compression(), std::string_view(head.data(), kHeadSize));
}
