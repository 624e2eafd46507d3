#include "ui-client/launcher/tarnwell-service.h"

#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QDir>
#include <QSettings>
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "lib/platform/durability.h"
#include "lib/platform/instance-lock.h"
#include "ui-client/launcher/extractor.h"
#include "ui-client/launcher/move-entries.h"
#include "ui-client/launcher/upgrade-journal.h"

#define LOG_SOURCE "tarnwell-service"

namespace {

const ustring log_component("service_debug");

const int kPutBackAttempts = 3;  // a failure may pass, and the user has no application until then

ustring FromQt(const QString& text) {
    return ustring(text.toUtf8().constData());
}

void LoadField(const QSettings& settings, const char* key, ustring& field) {
    const QString name = QString::fromLatin1(key);
    if (settings.contains(name)) {
        field = FromQt(settings.value(name).toString());
    }
}

void LoadVersion(const ustring& path, VerInfo& version) {
    QSettings settings(QString::fromUtf8(path.c_str()), QSettings::IniFormat);
    settings.beginGroup(QStringLiteral("Version"));
    LoadField(settings, "major_version", version.major_version);
    LoadField(settings, "minor_version", version.minor_version);
    LoadField(settings, "build_version", version.build_version);
    LoadField(settings, "icon_overlay_version", version.icon_overlay_version);
}

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

// Where the entries of an application folder that can't be renamed are gathered on their way to the
// backup. Nothing else has that name, so what is in it belongs into the application.
ustring GetAppPartDir(ustring const& app) {
    return app + "_part";
}

// FSRename without its way of moving between volumes, which loses permissions and isn't undone. -1
// with errno set, to EXDEV where a folder can't be renamed.
int RenameApp(ustring const& app, ustring const& backup) {
    _FILE_INFO_tag info;
    return FSStat(app, info, false) == 0 ? std::rename(app.c_str(), backup.c_str()) : -1;
}

// Moves an application folder that can't be renamed to a backup name entry by entry, by way of a
// new folder, which the record names from before the first entry is moved. That folder gets the
// backup's name when it holds them all, which makes it the backup: there is no other moment at
// which something could be cut off between. A name that is occupied is left alone.
bool MoveByEntry(ustring const& app, ustring const& backup, const UpgradeJournal& journal,
                 UpgradeJournal::Record& record) {
    const ustring part = GetAppPartDir(app);
    if (rmdir(backup.c_str()) != 0 && errno != ENOENT) {
        return false;
    }
    rmdir(part.c_str());  // an empty one may be left
    if (!MakeFolderLike(app, part)) {
        return false;
    }
    if (!UpgradeJournal::Identify(part, record.object) || journal.write(record) != 0 ||
        !MoveEntries(app, part) || platform::SyncVolume(part.c_str()) != 0) {
        return false;
    }
    static_cast<void>(std::rename(part.c_str(), backup.c_str()));  // a look tells more
    if (!UpgradeJournal::IsAt(backup, record.object)) {
        return false;
    }
    rmdir(app.c_str());  // empty; if it stays, it is unpacked into
    return true;
}

// Moves back what MoveByEntry has moved, also in an earlier run. The record names the application
// in its place then, and only after that the way there is taken down. As long as this fails, the
// record must stay.
bool TakeBack(ustring const& app, const UpgradeJournal& journal, UpgradeJournal::Record& record) {
    const ustring part = GetAppPartDir(app);
    if (!MoveEntries(part, app) || platform::SyncVolume(app.c_str()) != 0 ||
        !UpgradeJournal::Identify(app, record.object)) {
        return false;
    }
    if (journal.write(record) == 0) {
        rmdir(part.c_str());
    }
    return true;
}

enum Attempt : int { Moved, NotMoved, HalfMoved };

// One attempt to move the application aside, announced in the journal; entry by entry only if
// allowed. Without a record nothing is moved. The record tells where it went.
Attempt TryBackup(ustring const& app, ustring const& backup, const UpgradeJournal& journal,
                  UpgradeJournal::Record& record, bool by_entry) {
    const ustring object = record.object;
    const bool announced = journal.write(record) == 0;
    if (announced && RenameApp(app, backup) == 0) {
        if (!UpgradeJournal::IsAt(backup, object)) {
            UpgradeJournal::Identify(backup, record.object);  // the rename has numbered it anew
            journal.write(record);
        }
        return Moved;
    }
    by_entry = by_entry && announced && errno == EXDEV;
    // A remote disk can report a failure for what it has done.
    if (UpgradeJournal::IsAt(backup, object) ||
        (by_entry && MoveByEntry(app, backup, journal, record))) {
        return Moved;
    }
    return record.object == object ? NotMoved : HalfMoved;
}

// Moves the application folder aside. Returns 0, or -1 when every attempt has failed; then the
// application is in its place and the record gone, or the next run has something to take back.
int MoveAside(ustring const& app, const UpgradeJournal& journal, UpgradeJournal::Record& record) {
    ustring backup;
    bool by_entry = true;
    bool in_place = true;
    UpgradeJournal::Identify(app, record.object);
    for (int n = 0; n < UpgradeJournal::kMaxBackups && in_place; ++n) {
        record.backup = n;
        backup = GetAppBackupDir(app, n);
        const Attempt attempt = TryBackup(app, backup, journal, record, by_entry);
        if (attempt == Moved) {
            return 0;
        }
        if (attempt == HalfMoved) {
            by_entry = false;  // it would fail again
            in_place = TakeBack(app, journal, record);
        }
        LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s'\n", app.c_str(), backup.c_str());
    }
    LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s' at max retries, exiting\n", app.c_str(),
            backup.c_str());
    if (in_place) {
        journal.remove();
    }
    return -1;
}

// Takes what can't be removed out of the application's place, under the name of a free backup.
void StepAside(ustring const& app, int taken) {
    for (int n = 0; n < UpgradeJournal::kMaxBackups; ++n) {
        if (n != taken && std::rename(app.c_str(), GetAppBackupDir(app, n).c_str()) == 0) {
            return;
        }
    }
}

// Puts the old application back in the place of what an unfinished upgrade has left there. Looks
// before each step, so that nothing is removed but those rests.
int PutBack(ustring const& app, const UpgradeJournal::Record& record) {
    const ustring backup = GetAppBackupDir(app, record.backup);
    for (int attempt = 0; attempt < kPutBackAttempts; ++attempt) {
        if (!UpgradeJournal::IsAt(backup, record.object)) {
            break;
        }
        FSRemove(app, false);
        if (std::rename(backup.c_str(), app.c_str()) != 0) {
            StepAside(app, record.backup);
        }
    }
    return UpgradeJournal::IsAt(app, record.object) ? 0 : -1;
}

// After a failed extraction: puts the old installation back, if there was one. As long as the
// journal holds the record, the next run knows that this one hasn't got to the end.
void RollBack(ustring const& app, const UpgradeJournal& journal,
              const UpgradeJournal::Record& record) {
    if (record.backup == UpgradeJournal::kNoBackup) {
        LOG_MSG(ERROR, "Failed to extract package, and no old installation to rollback\n");
        return;
    }
    LOG_MSG(ERROR, "Failed to extract package, rollback to old installation\n");
    if (PutBack(app, record) == 0) {
        journal.remove();
    }
}

// Makes the folder of a first installation and announces it in the journal. Without a record the
// installation goes on all the same: there is nothing that it could lose.
void BeginInstallation(ustring const& app, const UpgradeJournal& journal,
                       UpgradeJournal::Record& record) {
    if (mkdir(app.c_str(), 0777) == 0 && UpgradeJournal::Identify(app, record.object)) {
        journal.write(record);
    }
}

// Whether the new application lacks the client that the old one had: then the package is a wrong
// one, and the user keeps what works.
bool HasLostClient(ustring const& app, const UpgradeJournal::Record& record) {
    if (record.backup == UpgradeJournal::kNoBackup ||
        !IsFileExist(Service::GetClientPath(GetAppBackupDir(app, record.backup)), false) ||
        IsFileExist(Service::GetClientPath(app), false)) {
        return false;
    }
    LOG_MSG(ERROR, "the package has no client\n");
    return true;
}

// Makes the unpacked application outlast a power cut.
int SyncApp(ustring const& app) {
    const int result = platform::SyncVolume(app.c_str());
    if (result != 0) {
        LOG_MSG(ERROR, "failed to put '%s' on the disk: %s (%d)\n", app.c_str(), strerror(errno),
                errno);
    }
    return result;
}

// Removes the backup of the record, those whose names were tried before it, and then the record,
// which up to now says that they are no longer needed.
void RemoveBackups(ustring const& app, const UpgradeJournal& journal,
                   const UpgradeJournal::Record& record) {
    for (int n = 0; n <= std::max(record.backup, 0); ++n) {
        FSRemove(GetAppBackupDir(app, n), false);  // what can't be removed is tried again next time
    }
    journal.remove();
}

// Removes what an unfinished installation has left. Returns whether it is gone.
bool RemoveRest(ustring const& app, ustring const& object) {
    FSRemove(app, false);
    return !UpgradeJournal::IsAt(app, object);
}

// Removes what a first installation has left, unless something else has taken its place.
bool UndoInstallation(ustring const& app, ustring const& object) {
    if (!UpgradeJournal::IsAt(app, object)) {
        return true;
    }
    LOG_MSG(WARNING, "a first installation was not finished, removing '%s'\n", app.c_str());
    return RemoveRest(app, object);
}

// Undoes an upgrade of which the record says that it was replacing the application. Returns whether
// that is settled; otherwise the record must stay.
bool UndoUpgrade(ustring const& app, const UpgradeJournal& journal,
                 UpgradeJournal::Record& record) {
    const ustring backup = GetAppBackupDir(app, record.backup);
    ustring in_place;
    ustring aside;
    if (!UpgradeJournal::Identify(app, in_place) || !UpgradeJournal::Identify(backup, aside)) {
        return false;
    }
    if (in_place == record.object) {
        LOG_MSG(WARNING, "an upgrade was cut off before it moved anything\n");
        return true;
    }
    if (aside == record.object) {
        LOG_MSG(WARNING, "an upgrade was cut off, rollback to old installation '%s'\n",
                backup.c_str());
        return PutBack(app, record) == 0;
    }
    const ustring part = GetAppPartDir(app);
    if (!UpgradeJournal::Identify(part, aside)) {
        return false;
    }
    if (!aside.empty()) {
        LOG_MSG(WARNING, "an upgrade was cut off, rollback to old installation '%s'\n",
                part.c_str());
        return TakeBack(app, journal, record);
    }
    LOG_MSG(WARNING, "an upgrade was cut off, and '%s' is gone; removing '%s'\n", backup.c_str(),
            app.c_str());
    return RemoveRest(app, in_place);
}

// One upgrade at a time works on the per-user folder, also when the launcher is installed twice.
ustring UpgradeLockPath() {
    return Service::GetUserTarnwellInstallPath() + "/.upgrade.lock";
}

}  // namespace

void Service::SetTimeout(int value) {
    timeout = value;
}

int Service::ExtractPackage() {
    const ustring package = GetRootTarnwellResourceInstallPath() + "/package/tarnwell.opk";
    const ustring target = GetUserTarnwellAppInstallPath();
    if (FSMKDir(target, true) < 0) {
        LOG_MSG(ERROR, "failed to create folder: '%s'\n", target.c_str());
        return -1;
    }
    LOG_MSG(INFO, "extract package: '%s' -> '%s'\n", package.c_str(), target.c_str());
    Extractor extractor;
    extractor.dest_dir = target;
    extractor.archive_path = package;
    return extractor.Extract();
}

void Service::LoadSourceVersion() {
    const ustring path = GetUserTarnwellAppInstallPath() + "/Contents/Resources" + "/" + "INFO";
    if (!IsFileExist(path, false)) {
        LOG_MSG(INFO, "source does not exist\n");
        return;
    }
    LoadVersion(path, source_version);
    LOG_MSG(INFO, "source_version = (%s, %s, %s, %s)\n", source_version.major_version.c_str(),
            source_version.minor_version.c_str(), source_version.build_version.c_str(),
            source_version.icon_overlay_version.c_str());
}

void Service::LoadTargetVersion() {
    LoadVersion(GetRootTarnwellResourceInstallPath() + "/" + "INFO", target_version);
    LOG_MSG(INFO, "target_version = (%s, %s, %s, %s)\n", target_version.major_version.c_str(),
            target_version.minor_version.c_str(), target_version.build_version.c_str(),
            target_version.icon_overlay_version.c_str());
}

int Service::PrepareUserEnv() {
    const ustring app = user_app_path;
    const UpgradeJournal journal(GetUserTarnwellInstallPath());
    const platform::InstanceLock lock(UpgradeLockPath().c_str());
    UpgradeJournal::Record record;
    if (lock.heldElsewhere() || journal.read(record) == UpgradeJournal::Found) {
        LOG_MSG(ERROR, "another upgrade is not finished\n");
        return -1;
    }
    record = UpgradeJournal::Record();
    if (!IsFileExist(app, false)) {
        BeginInstallation(app, journal, record);
    } else if (MoveAside(app, journal, record) != 0) {
        return -1;
    }
    if (ExtractPackage() != 0 || HasLostClient(app, record) || SyncApp(app) != 0) {
        RollBack(app, journal, record);
        return -1;
    }
    record.state = UpgradeJournal::Installed;
    const bool settled = journal.write(record) == 0 || journal.remove() == 0;
    LOG_MSG(INFO, "user installation is ready, removing backup app\n");
    if (settled) {
        RemoveBackups(app, journal, record);
    }
    return 0;
}

void Service::FinishCutOffUpgrade() {
    const UpgradeJournal journal(GetUserTarnwellInstallPath());
    UpgradeJournal::Record record;
    if (journal.read(record) == UpgradeJournal::None) {
        return;
    }
    const platform::InstanceLock lock(UpgradeLockPath().c_str());
    if (lock.heldElsewhere()) {
        return;  // it isn't cut off, it is running
    }
    const UpgradeJournal::Finding finding = journal.read(record);
    if (finding == UpgradeJournal::Damaged) {
        LOG_MSG(WARNING, "removing '%s', which is no record of an upgrade\n",
                journal.path().c_str());
        journal.remove();
    } else if (finding == UpgradeJournal::Found && record.state == UpgradeJournal::Installed) {
        LOG_MSG(WARNING, "an upgrade was cut off after its end, removing backup app\n");
        RemoveBackups(user_app_path, journal, record);
    } else if (finding == UpgradeJournal::Found) {
        const bool undone = record.backup == UpgradeJournal::kNoBackup
                                ? UndoInstallation(user_app_path, record.object)
                                : UndoUpgrade(user_app_path, journal, record);
        if (undone) {
            journal.remove();
        } else {
            LOG_MSG(ERROR, "failed to undo an upgrade that was cut off\n");
        }
    }
}

void Service::RemoveAgedFolders() {
    const ustring path = GetUserTarnwellInstallPath() + "/app";
    LOG_MSG(INFO, "removing aged app folder %s\n", path.c_str());
    FSRemove(path, false);  // tried again at the next start
}

ustring Service::GetUserInstallPath() {
    return FromQt(QDir::homePath());
}

ustring Service::GetUserTarnwellInstallPath() {
    return GetUserInstallPath() + "/" + ".Tarnwell";
}

ustring Service::GetUserTarnwellAppInstallPath() {
    return GetUserTarnwellInstallPath() + "/" + "Tarnwell.app";
}

ustring Service::GetUserTarnwellDataInstallPath() {
    return GetUserTarnwellInstallPath() + "/" + "data";
}

ustring Service::GetClientPath(ustring const& app) {
    return app + "/" + "Contents/MacOS" + "/" + "tarnwell-ui";
}

ustring Service::GetRootTarnwellInstallPath() {
    return FromQt(QDir::cleanPath(QCoreApplication::applicationDirPath() + QStringLiteral("/") +
                                  QStringLiteral("../..")));
}

ustring Service::GetRootTarnwellResourceInstallPath() {
    return GetRootTarnwellInstallPath() + "/Contents/Resources";
}
