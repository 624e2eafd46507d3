#include "lib/platform/single-instance.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QByteArray>
#include <QCryptographicHash>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <vector>

#include "lib/install-layout.h"
#include "lib/platform/handles.h"
#include "lib/platform/private-folder.h"

namespace platform {

namespace {

namespace fs = std::filesystem;

const int kMaxWaits = 100;  // of a millisecond each
const std::string kPrefix = ".launcher-";
const std::string kSuffix = ".lock";

std::string LockName(const std::string& executable) {
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(executable), QCryptographicHash::Sha1);
    return kPrefix + hash.toHex().left(16).toStdString() + kSuffix;
}

bool IsLockName(const std::string& name) {
    return name.size() > kPrefix.size() + kSuffix.size() &&
           name.compare(0, kPrefix.size(), kPrefix) == 0 &&
           name.compare(name.size() - kSuffix.size(), kSuffix.size(), kSuffix) == 0;
}

// Finding out whether a leftover lock file is held means locking it, and a copy that is started at
// that moment must not mistake this for a running copy. So a process that takes a lock holds the
// gate, a lock on the folder itself, shared; one that removes leftovers holds it exclusively.
class Gate {
  public:
    explicit Gate(const std::string& folder)
        : folder_(open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
        for (int i = 0; i < kMaxWaits && !take(LOCK_SH) && errno == EWOULDBLOCK; ++i) {
            usleep(1000);
        }
    }
    bool closeForOthers() const { return take(LOCK_EX); }

  private:
    bool take(int lock) const { return flock(folder_.get(), lock | LOCK_NB) == 0; }

    const Descriptor folder_;
};

bool IsOurFile(const fs::path& path) {
    struct stat status;
    return lstat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode) &&
           status.st_uid == geteuid();
}

void RemoveLeftoverLocks(const fs::path& folder, const std::string& own_name) {
    std::vector<fs::path> leftovers;
    std::error_code error;  // what can't be listed is left to the next start
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string name = entry->path().filename();
        if (IsLockName(name) && name != own_name && IsOurFile(entry->path())) {
            leftovers.push_back(entry->path());
        }
    }
    for (const fs::path& path : leftovers) {
        const InstanceLock lock(path);  // its destructor removes the file, unless somebody holds it
    }
}

std::unique_ptr<InstanceLock> LockIn(const std::string& folder, const std::string& name) {
    const Gate gate(folder);
    auto lock = std::make_unique<InstanceLock>(folder + "/" + name);
    if (lock->held() && gate.closeForOthers()) {
        RemoveLeftoverLocks(folder, name);
    }
    return lock;
}

}  // namespace

SingleInstance::SingleInstance(const std::string& folder, const std::string& executable) {
    const std::string name = LockName(executable);
    std::error_code ignored;  // without the folder, locking in it fails below
    fs::create_directories(folder, ignored);
    lock_ = LockIn(folder, name);
    for (int n = 0; n < kPrivateFolders && !lock_->held() && !lock_->heldElsewhere(); ++n) {
        const std::string other = PrivateFolder(install_layout::kPrivateFolder, n);
        if (!other.empty()) {
            lock_ = LockIn(other, name);
        }
    }
}

}  // namespace platform
