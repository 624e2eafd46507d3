#include "tests/support/system.h"

#include <unistd.h>

#include "tests/support/scenario.h"

timespec ChangeTime(const struct stat& status) {
    return status.st_ctimespec;
}

Volume::Volume(const std::string& path, const std::string&) : path_(path), mounted_(false) {
    MakeFolder(path);
}

Volume::~Volume() = default;

CaseIgnoringVolume::CaseIgnoringVolume(const std::string& path, Kind) : Volume(path, "") {
    mounted_ = pathconf(path.c_str(), _PC_CASE_SENSITIVE) == 0;
}
