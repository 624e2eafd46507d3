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

Volume::Volume(const std::string& path) : path_(path) {
    MakeFolder(path);
}

Volume::~Volume() = default;

SmallDisk::SmallDisk(const std::string& path, const char*) : Volume(path) {}

CaseIgnoringVolume::CaseIgnoringVolume(const std::string& path, Kind) : Volume(path) {
    mounted_ = pathconf(path.c_str(), _PC_CASE_SENSITIVE) == 0;
}
