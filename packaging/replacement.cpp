#include "packaging/replacement.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>

#include "lib/platform/durability.h"
#include "packaging/fault.h"

Replacement::Replacement(const std::filesystem::path& path)
    : path_(path), temporary_(path.native() + ".XXXXXX"), fd_(mkstemp(temporary_.data())) {
    if (fd_.get() < 0 || fchmod(fd_.get(), 0644) != 0) {
        FailWithErrno(path_, "can't be made");
    }
}

Replacement::~Replacement() {
    static_cast<void>(unlink(temporary_.c_str()));  // gone after commit()
}

void Replacement::commit() const {
    if (platform::SyncFile(fd()) != 0 || rename(temporary_.c_str(), path_.c_str()) != 0 ||
        platform::SyncFolder(path_.parent_path().c_str()) != 0) {
        FailWithErrno(path_, "can't be put in its place");
    }
}
