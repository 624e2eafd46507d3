#include "tests/support/scenario.h"

timespec ChangeTime(const struct stat& status) {
    return status.st_ctimespec;
}

std::string AnotherVolume() {
    return std::string();
}

SmallDisk::SmallDisk(const std::string& path, const char*) : path_(path), mounted_(false) {
    MakeFolder(path);
}

SmallDisk::~SmallDisk() = default;
