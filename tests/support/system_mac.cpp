#include "tests/support/system.h"

#include <unistd.h>

#include "tests/support/scenario.h"

timespec ChangeTime(const struct stat& status) {
    return status.st_ctimespec;
}

std::string UnreadableFile() {
    return std::string();
}

bool HasLocaleInEnvironment() {
    return false;
}

std::string AnotherVolume() {
    return std::string();
}

SmallDisk::SmallDisk(const std::string& path, const char*) : path_(path), mounted_(false) {
    MakeFolder(path);
}

SmallDisk::~SmallDisk() = default;

CaseIgnoringVolume::CaseIgnoringVolume(const std::string& path, Kind) : path_(path) {
    MakeFolder(path);
    mounted_ = pathconf(path.c_str(), _PC_CASE_SENSITIVE) == 0;
}

CaseIgnoringVolume::~CaseIgnoringVolume() = default;
