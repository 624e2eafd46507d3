#include "ui-client/launcher/upgrade-journal.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "lib/config/config.h"
#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "lib/platform/durability.h"
#include "lib/platform/handles.h"

#define LOG_SOURCE "upgrade-journal"

namespace {

const ustring log_component("service_debug");

const char* const kStates[] = {"replacing", "installed"};
const char kNone[] = "none";

// Makes a new file of the text, and puts both the file and its name on the disk. What had the name
// before is gone then; it is not written to.
int WriteDurably(const ustring& path, const ustring& folder, const ustring& text) {
    unlink(path.c_str());  // when it fails, so does the open
    platform::Descriptor file(open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
    const bool written =
        file.get() >= 0 &&
        write(file.get(), text.c_str(), text.size()) == static_cast<ssize_t>(text.size()) &&
        platform::SyncFile(file.get()) == 0;
    return written && file.close() == 0 ? platform::SyncFolder(folder.c_str()) : -1;
}

bool ParseState(const ustring& text, UpgradeJournal::State& state) {
    state = text == kStates[UpgradeJournal::Installed] ? UpgradeJournal::Installed
                                                       : UpgradeJournal::Replacing;
    return text == kStates[state];
}

bool ParseBackup(const ustring& text, int& backup) {
    const bool is_number = text.size() == 1 && text[0] >= '0' && text[0] <= '9';
    backup = is_number ? text[0] - '0' : UpgradeJournal::kNoBackup;
    return is_number || text == kNone;
}

bool IsIdentity(const ustring& text) {
    return !text.empty() && text.find_first_not_of("0123456789") == ustring::npos;
}

}  // namespace

UpgradeJournal::UpgradeJournal(const ustring& folder)
    : folder_(folder), path_(folder + "/upgrade.journal") {}

bool UpgradeJournal::Identify(const ustring& path, ustring& object) {
    object.clear();
    struct stat status;
    if (lstat(path.c_str(), &status) != 0) {
        return errno == ENOENT;
    }
    object = std::to_string(status.st_ino);
    return true;
}

bool UpgradeJournal::IsAt(const ustring& path, const ustring& object) {
    ustring there;
    return Identify(path, there) && !there.empty() && there == object;
}

int UpgradeJournal::write(const Record& record) const {
    ustring text("state=");
    text += kStates[record.state];
    text += "\nbackup=";
    text += record.backup == kNoBackup ? std::string(kNone) : std::to_string(record.backup);
    text += ustring("\nobject=") + record.object + "\n";
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
    record.object = config.entries["object"];
    const bool known = ParseState(config.entries["state"], record.state) &&
                       ParseBackup(config.entries["backup"], record.backup) &&
                       IsIdentity(record.object);
    return known && config.entries.size() == 3 ? Found : Damaged;
}

int UpgradeJournal::remove() const {
    if (platform::SyncFolder(folder_.c_str()) != 0 || FSRemove(path_, false) != 0) {
        LOG_MSG(WARNING, "failed to remove '%s': %s (%d)\n", path_.c_str(), strerror(errno), errno);
        return -1;
    }
    return platform::SyncFolder(folder_.c_str());
}
