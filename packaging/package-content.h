#ifndef PACKAGING_PACKAGE_CONTENT_H
#define PACKAGING_PACKAGE_CONTENT_H

#include <cstddef>
#include <cstdint>
#include <string>

#include "packaging/summary.h"

// What a package contains. It was read from its first byte to its last, as the launcher reads it,
// but not unpacked.
struct PackageContent {
    std::size_t entries = 0;
    std::string last;  // the last entry's path
    bool has_client = false;
    std::string wrapper;   // a folder around the application, which isn't allowed; empty if none
    int build_number = 0;  // 0 when there is no version file, or none that holds a number
    std::string digest;    // equal for equal names, contents, modes and link targets
};

// Throws a PackageError when the file can't be read, is damaged or truncated.
PackageContent ReadPackage(const std::string& file, const Progress& progress);

std::int64_t SizeOf(const std::string& file);   // in bytes
std::string Sha256Of(const std::string& file);  // in hexadecimal digits

#endif
