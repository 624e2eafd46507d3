#include "ui-client/launcher/tarnwell-service.h"

#include <sys/stat.h>

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

// Moves the application folder aside, each attempt announced in the journal, and keeps in record
// where it went. Without a record nothing is moved. Returns 0, or -1 when every attempt has failed.
int MoveAside(ustring const& app, const UpgradeJournal& journal, UpgradeJournal::Record& record) {
    ustring backup;
    UpgradeJournal::Identify(app, record.object);
    for (int n = 0; n < UpgradeJournal::kMaxBackups; ++n) {
        record.backup = n;
        backup = GetAppBackupDir(app, n);
        if (journal.write(record) == 0 && FSRename(app, backup, false) == 0) {
            if (!UpgradeJournal::IsAt(backup, record.object)) {
                UpgradeJournal::Identify(backup, record.object);  // it was copied, not renamed
                journal.write(record);
            }
            return 0;
        }
        if (UpgradeJournal::IsAt(backup, record.object)) {
            return 0;  // a remote disk can report a failure for what it has done
        }
        LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s'\n", app.c_str(), backup.c_str());
    }
    LOG_MSG(ERROR, "failed to backup app from '%s' -> '%s' at max retries, exiting\n", app.c_str(),
            backup.c_str());
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
    if (UpgradeJournal::IsAt(app, record.object)) {
        return 0;
    }
    // Where a rename is impossible, moving file by file is all that is left.
    return UpgradeJournal::IsAt(backup, record.object) ? FSRename(backup, app, false) : -1;
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

// Removes what a first installation has left, unless something else has taken its place.
bool RemoveRest(ustring const& app, ustring const& object) {
    if (UpgradeJournal::IsAt(app, object)) {
        LOG_MSG(WARNING, "a first installation was not finished, removing '%s'\n", app.c_str());
        FSRemove(app, false);
    }
    return !UpgradeJournal::IsAt(app, object);
}

// Undoes an upgrade of which the record says that it was replacing the application. Returns whether
// that is settled; otherwise the record must stay.
bool Undo(ustring const& app, const UpgradeJournal::Record& record) {
    if (record.backup == UpgradeJournal::kNoBackup) {
        return RemoveRest(app, record.object);
    }
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
        journal.remove();
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
        if (Undo(user_app_path, record)) {
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
