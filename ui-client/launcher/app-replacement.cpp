#include "ui-client/launcher/app-replacement.h"

#include <unistd.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <thread>
#include <utility>

#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "lib/platform/durability.h"
#include "lib/platform/presence.h"
#include "ui-client/launcher/client-file.h"
#include "ui-client/launcher/move-entries.h"

#define LOG_SOURCE "tarnwell-service"

using platform::Presence;

namespace {

const ustring log_component("service_debug");

const std::chrono::seconds kLockPatience(60);
const std::chrono::milliseconds kLockInterval(50);
const int kRestoreAttempts = 3;  // the user has no application until one of them succeeds

// The name under which the application folder is moved aside at attempt n (0 to 9).
ustring GetAppBackupDir(ustring const& app, int n) {
    ustring backup = app + "_tmp";
    if (n == 0) {
        return backup;
    }
    char postfix[8];
    if (std::snprintf(postfix, sizeof postfix, "%d", n) < 0) {
        LOG_MSG(ERROR, "snprintf failed (continuing without postfix)");
        postfix[0] = 0;
    }
    return backup += postfix;
}

Presence LookAt(const ustring& path, std::uint64_t* object = nullptr) {
    const Presence presence = platform::LookAt(path.c_str(), object);
    if (presence == Presence::CantTell) {
        LOG_MSG(ERROR, "failed to examine '%s': %s (%d)\n", path.c_str(), strerror(errno), errno);
    }
    return presence;
}

bool Is(Presence presence, const ustring& path) {
    return LookAt(path) == presence;
}

// A complete application has a client that can be started.
bool IsComplete(const ustring& app) {
    return FindStartableClient(app.c_str()) == Presence::There;
}

}  // namespace

AppReplacement::AppReplacement(ustring folder, ustring app)
    : folder_(std::move(folder)), app_(std::move(app)), part_(app_ + "_part"), journal_(folder_) {}

ustring AppReplacement::backup() const {
    return GetAppBackupDir(app_, record_.backup);
}

void AppReplacement::Lock() {
    const std::string path((folder_ + "/.upgrade.lock").c_str());
    const auto deadline = std::chrono::steady_clock::now() + kLockPatience;
    lock_ = std::make_unique<platform::InstanceLock>(path);
    if (lock_->heldElsewhere()) {
        LOG_MSG(NOTE, "waiting for another launcher to finish\n");
    }
    while (lock_->heldElsewhere() && std::chrono::steady_clock::now() < deadline) {
        std::this_thread::sleep_for(kLockInterval);
        lock_ = std::make_unique<platform::InstanceLock>(path);
    }
}

bool AppReplacement::MayStart() const {
    UpgradeJournal::Record ignored;
    return !lock_->heldElsewhere() || journal_.read(ignored) == UpgradeJournal::Finding::Nothing;
}

void AppReplacement::Recover() {
    condition_ = Condition::Blocked;
    if (lock_->held()) {
        journal_.removeUnfinished();
    }
    const UpgradeJournal::Finding finding = journal_.read(record_);
    if (finding == UpgradeJournal::Finding::Nothing) {
        condition_ = lock_->heldElsewhere() ? Condition::Blocked : Condition::Settled;
    } else if (!lock_->held() || finding == UpgradeJournal::Finding::CantTell) {
        LOG_MSG(ERROR, "failed to undo an interrupted upgrade\n");
    } else if (finding == UpgradeJournal::Finding::Damaged) {
        LOG_MSG(WARNING, "removing '%s', which isn't the record of an upgrade\n",
                journal_.path().c_str());
        journal_.remove();  // if that fails, the next run tries again
        condition_ = Condition::Settled;
    } else {
        condition_ =
            record_.state == UpgradeJournal::Installed ? RecoverInstalled() : RecoverReplacing();
        if (condition_ == Condition::Blocked) {
            LOG_MSG(ERROR, "failed to undo an interrupted upgrade\n");
        }
    }
}

AppReplacement::Condition AppReplacement::RecoverInstalled() {
    const Presence client = FindStartableClient(app_.c_str());
    if (client == Presence::CantTell) {
        return Condition::Blocked;
    }
    if (client == Presence::There) {
        LOG_MSG(WARNING, "an upgrade was interrupted after its commit, removing backup app\n");
        RemoveBackups();
        return Condition::Settled;
    }
    // Somebody has removed the new application: a backup may be the only one left.
    if (record_.backup != UpgradeJournal::kNone && IsComplete(backup())) {
        LOG_MSG(WARNING, "the new application is gone, rollback to old installation '%s'\n",
                backup().c_str());
        return RestoreBackup(true) ? Settle() : Condition::Blocked;
    }
    journal_.remove();
    return Condition::Settled;
}

AppReplacement::Condition AppReplacement::RecoverReplacing() {
    std::uint64_t object = 0;
    const Presence in_place = LookAt(app_, &object);
    const Presence part = LookAt(part_);
    const bool has_backup = record_.backup != UpgradeJournal::kNone;
    const Presence aside = has_backup ? LookAt(backup()) : Presence::NotThere;
    if (in_place == Presence::CantTell || part == Presence::CantTell ||
        aside == Presence::CantTell) {
        return Condition::Blocked;
    }
    // A backup name is free before a record names it, and the part is renamed to become the backup.
    // So what is at either of the two is the old application. If the record says that it may be
    // incomplete, and it has no client, it doesn't count as an application.
    const bool is_useless = record_.object == 0 && in_place == Presence::There &&
                            aside == Presence::There &&
                            FindStartableClient(backup().c_str()) == Presence::NotThere;
    if (is_useless) {
        record_.leftovers |= 1U << record_.backup;
        FSRemoveOwnTree(backup());
    } else if (aside == Presence::There || part == Presence::There) {
        LOG_MSG(WARNING, "an upgrade was interrupted, rollback to old installation '%s'\n",
                aside == Presence::There ? backup().c_str() : part_.c_str());
        const bool may_remove =
            IsComplete(backup()) || FindStartableClient(app_.c_str()) == Presence::NotThere;
        const bool restored =
            aside == Presence::There ? RestoreBackup(may_remove) : RestoreEntries();
        return restored ? Settle() : Condition::Blocked;
    }
    if (in_place == Presence::NotThere) {
        journal_.remove();
        return Condition::Settled;
    }
    if (has_backup && object == record_.object) {
        LOG_MSG(WARNING, "an upgrade was interrupted before it moved anything\n");
        return Settle();
    }
    LOG_MSG(WARNING, "an upgrade was not finished, '%s' may be incomplete and will be replaced\n",
            app_.c_str());
    record_.object = 0;
    return Settle();
}

// Keeps what is in the application's place: records that, or removes the record.
AppReplacement::Condition AppReplacement::Settle() {
    if (platform::SyncFolder(folder_.c_str()) != 0) {
        return Condition::Blocked;
    }
    if (record_.object == 0) {
        record_.state = UpgradeJournal::Replacing;
        record_.backup = UpgradeJournal::kNone;
        return journal_.write(record_) == 0 ? Condition::Incomplete : Condition::Blocked;
    }
    if (record_.leftovers == 0) {
        journal_.remove();  // if it stays, it says that nothing was moved, which is true
        return Condition::Settled;
    }
    record_.state = UpgradeJournal::Installed;
    record_.backup = UpgradeJournal::kNone;
    if (journal_.write(record_) == 0 && IsComplete(app_)) {
        RemoveBackups();
    }
    return Condition::Settled;
}

int AppReplacement::Begin() {
    if (condition_ == Condition::Blocked) {
        LOG_MSG(ERROR, "not upgrading, because another upgrade is not finished\n");
        return -1;
    }
    const bool incomplete = condition_ == Condition::Incomplete;
    const std::uint32_t leftovers = Removable();
    record_ = UpgradeJournal::Record();
    record_.leftovers = leftovers;
    condition_ = Condition::Blocked;  // until this upgrade is settled
    if (platform::LookAtTarget(app_.c_str()) == Presence::NotThere) {
        return BeginInstallation();  // fails if a dangling link is there
    }
    std::uint64_t object = 0;
    if (LookAt(app_, &object) != Presence::There) {
        return -1;
    }
    record_.object = incomplete ? 0 : object;
    must_have_client_ = FindStartableClient(app_.c_str()) != Presence::NotThere;
    return BackUp();
}

int AppReplacement::BeginInstallation() {
    if (FSMKDir(app_, true) < 0) {
        LOG_MSG(ERROR, "failed to create folder: '%s'\n", app_.c_str());
    } else {
        if (!lock_->held()) {
            Lock();  // the lock's folder may not have existed before
        }
        if (lock_->held() && journal_.write(record_) == 0) {
            return 0;
        }
        rmdir(app_.c_str());  // if it stays, it has no client, so it isn't considered installed
    }
    LOG_MSG(ERROR, "Failed to extract package, and no old installation to rollback\n");
    return -1;
}

int AppReplacement::BackUp() {
    for (int n = 0; n < UpgradeJournal::kMaxBackups; ++n) {
        record_.backup = n;
        const Attempt attempt = TryBackUp();
        if (attempt == Attempt::Moved) {
            return 0;
        }
        LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s'\n", app_.c_str(), backup().c_str());
        if (attempt == Attempt::CantTell) {
            return -1;
        }
    }
    LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s' at max retries, exiting\n", app_.c_str(),
            backup().c_str());
    Settle();
    return -1;
}

// Tries once to move the application to the backup's name, which must be free, so that what is
// there later can only be the application.
AppReplacement::Attempt AppReplacement::TryBackUp() {
    const ustring to = backup();
    const bool is_free = rmdir(to.c_str()) == 0 || errno == ENOENT;
    if (!is_free || !lock_->held() || journal_.write(record_) != 0) {
        return Attempt::NotMoved;
    }
    if (std::rename(app_.c_str(), to.c_str()) != 0 && errno == EXDEV &&
        !MoveFolderByEntries(app_, part_, to) && !RestoreEntries()) {
        return Attempt::CantTell;
    }
    // Check by looking, because a remote disk can report a failure for a rename that it has done.
    // The move must be on the disk before a new application gets the name.
    if (Is(Presence::NotThere, to)) {
        return Attempt::NotMoved;
    }
    if (!Is(Presence::There, to) || !Is(Presence::NotThere, app_)) {
        return Attempt::CantTell;
    }
    const bool durable = platform::SyncFolder(folder_.c_str()) == 0;
    return durable ? Attempt::Moved : RestoreBackup(false) ? Attempt::NotMoved : Attempt::CantTell;
}

// Moves back what was moved entry by entry, also by an earlier run. This can change the
// application's inode.
bool AppReplacement::RestoreEntries() {
    const Presence part = LookAt(part_);
    if (part == Presence::NotThere) {
        return true;
    }
    std::uint64_t object = 0;
    if (part == Presence::There && Is(Presence::NotThere, app_)) {
        return std::rename(part_.c_str(), app_.c_str()) == 0;
    }
    if (part == Presence::CantTell || !MoveEntries(part_, app_) ||
        platform::SyncVolume(app_.c_str()) != 0 || LookAt(app_, &object) != Presence::There) {
        return false;
    }
    return Identify(object) && rmdir(part_.c_str()) == 0;
}

int AppReplacement::Commit() {
    if (must_have_client_ && !IsComplete(app_)) {
        LOG_MSG(ERROR, "the package has no client that can be started\n");
        RollBack();
        return -1;
    }
    if (platform::SyncVolume(app_.c_str()) != 0) {
        LOG_MSG(ERROR, "failed to force '%s' to the disk: %s (%d)\n", app_.c_str(), strerror(errno),
                errno);
        RollBack();
        return -1;
    }
    record_.state = UpgradeJournal::Installed;
    record_.leftovers |= 1;  // an earlier version of the launcher may have left this backup
    if (journal_.write(record_) != 0) {
        return -1;  // either record may be on the disk now, and both describe what is there
    }
    LOG_MSG(INFO, "user installation is ready, removing backup app\n");
    RemoveBackups();
    condition_ = Condition::Settled;
    return 0;
}

void AppReplacement::RollBack() {
    if (record_.backup == UpgradeJournal::kNone) {
        LOG_MSG(ERROR, "Failed to extract package, and no old installation to rollback\n");
        return;
    }
    LOG_MSG(ERROR, "Failed to extract package, rollback to old installation\n");
    if (RestoreBackup(true)) {
        condition_ = Settle();
    }
}

// Moves the old application back. What an unfinished upgrade left in its place is removed, if
// may_remove, or set aside.
bool AppReplacement::RestoreBackup(bool may_remove) {
    for (int attempt = 0; attempt < kRestoreAttempts; ++attempt) {
        std::uint64_t object = 0;
        const Presence aside = LookAt(backup(), &object);
        if (aside == Presence::NotThere) {
            break;
        }
        if (aside == Presence::CantTell || !Identify(object)) {
            continue;
        }
        if (may_remove) {
            FSRemoveOwnTree(app_);  // what can't be removed is set aside
        }
        if (!Is(Presence::NotThere, app_) && !SetAside()) {
            continue;
        }
        static_cast<void>(std::rename(backup().c_str(), app_.c_str()));  // checked by looking
    }
    return Is(Presence::NotThere, backup()) && Is(Presence::There, app_);
}

// Records the old application's present inode: moving it may have changed that.
bool AppReplacement::Identify(std::uint64_t object) {
    if (record_.object == 0 || record_.object == object) {
        return true;
    }
    record_.object = object;
    return journal_.write(record_) == 0;
}

// Moves what is in the application's place to a free backup name, which is recorded first. If it is
// complete, what was set aside earlier isn't needed any more and is removed.
bool AppReplacement::SetAside() {
    for (int n = 0; n < UpgradeJournal::kMaxBackups && IsComplete(app_); ++n) {
        if ((record_.leftovers >> n & 1) != 0 && n != record_.backup) {
            FSRemoveOwnTree(GetAppBackupDir(app_, n));
        }
    }
    for (int n = 0; n < UpgradeJournal::kMaxBackups; ++n) {
        const ustring name = GetAppBackupDir(app_, n);
        if (n == record_.backup || !Is(Presence::NotThere, name)) {
            continue;
        }
        record_.leftovers |= 1U << n;
        return journal_.write(record_) == 0 && std::rename(app_.c_str(), name.c_str()) == 0;
    }
    return false;
}

// The numbers of the backups that may be removed once a complete application is in place.
std::uint32_t AppReplacement::Removable() const {
    const bool installed = record_.state == UpgradeJournal::Installed;
    return record_.leftovers | (installed ? (1U << (record_.backup + 1)) - 1 : 0);
}

// Removes these backups, and then the record. If a backup can't be removed now, the record stays,
// so that the next run tries again.
void AppReplacement::RemoveBackups() {
    bool gone = true;
    for (int n = 0; n < UpgradeJournal::kMaxBackups; ++n) {
        if ((Removable() >> n & 1) != 0) {
            gone = FSRemoveOwnTree(GetAppBackupDir(app_, n)) == 0 && gone;
        }
    }
    if (gone && journal_.remove() == 0) {
        record_ = UpgradeJournal::Record();
    }
}
