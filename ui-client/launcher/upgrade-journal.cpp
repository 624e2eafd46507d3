#include "ui-client/launcher/upgrade-journal.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "lib/config/config.h"
#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "lib/platform/durability.h"

#define LOG_SOURCE "upgrade-journal"

namespace {

const ustring log_component("service_debug");

const char* const kStates[] = {"replacing", "installed"};

// Writes the text into the file, the file to the disk and its name into the folder.
int WriteDurably(const ustring& path, const ustring& folder, const ustring& text) {
    const int fd = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (fd < 0) {
        return -1;
    }
    const bool written =
        write(fd, text.c_str(), text.size()) == static_cast<ssize_t>(text.size()) &&
        platform::SyncFile(fd) == 0;
    const bool closed = close(fd) == 0;
    return written && closed ? platform::SyncFolder(folder.c_str()) : -1;
}

bool IsState(const ustring& text, UpgradeJournal::State& state) {
    for (const UpgradeJournal::State known :
         {UpgradeJournal::Replacing, UpgradeJournal::Installed}) {
        if (text == kStates[known]) {
            state = known;
            return true;
        }
    }
    return false;
}

// Whether the text is one that Identify() makes, or empty.
bool IsIdentity(const ustring& text) {
    const char* const digits = "0123456789";
    const ustring::size_type dash = text.find_first_not_of(digits);
    return text.empty() ||
           (dash != ustring::npos && dash != 0 && text[dash] == '-' && dash + 1 < text.size() &&
            text.find_first_not_of(digits, dash + 1) == ustring::npos);
}

// Turns the name of a backup into its path; false when it isn't one of the application's.
bool IsBackup(const ustring& name, const ustring& app, ustring& path) {
    for (int n = 0; n < kMaxAppBackups; ++n) {
        path = GetAppBackupDir(app, n);
        if (path.substr(path.rfind('/') + 1) == name) {
            return true;
        }
    }
    return false;
}

}  // namespace

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

UpgradeJournal::UpgradeJournal(const ustring& app)
    : app_(app), folder_(app.substr(0, app.rfind('/') + 1)), path_(folder_ + "upgrade.journal") {}

ustring UpgradeJournal::Identify(const ustring& path) {
    struct stat status;
    if (lstat(path.c_str(), &status) != 0) {
        return ustring();
    }
    char text[64];
    std::snprintf(text, sizeof text, "%ju-%ju", static_cast<std::uintmax_t>(status.st_dev),
                  static_cast<std::uintmax_t>(status.st_ino));
    return ustring(text);
}

int UpgradeJournal::write(const Record& record) const {
    ustring text("state=");
    text += kStates[record.state];
    text += ustring("\nbackup='") + record.backup.substr(record.backup.rfind('/') + 1);
    text += ustring("'\nobject='") + record.object + "'\n";
    if (WriteDurably(path_, folder_, text) == 0) {
        return 0;
    }
    LOG_MSG(WARNING, "failed to write '%s': %s (%d)\n", path_.c_str(), strerror(errno), errno);
    unlink(path_.c_str());  // half a record is none
    return -1;
}

UpgradeJournal::Finding UpgradeJournal::read(Record& record) const {
    _FILE_INFO_tag info;
    if (GetFileInfo(path_, info) == 0 && !info.exists) {
        return None;
    }
    Config config;
    if (info.type != FILE_TYPE_REG || config.read(path_) != 0 || config.entries.size() != 3) {
        return Damaged;
    }
    const ustring backup = config.entries["backup"];
    record.object = config.entries["object"];
    record.backup.clear();
    const bool known = IsState(config.entries["state"], record.state) &&
                       IsIdentity(record.object) && backup.empty() == record.object.empty() &&
                       (backup.empty() || IsBackup(backup, app_, record.backup));
    return known && config.entries.size() == 3 ? Found : Damaged;
}

int UpgradeJournal::remove() const {
    const int removed = FSRemove(path_, false);
    return removed == 0 ? platform::SyncFolder(folder_.c_str()) : removed;
}
