#include "ui-client/launcher/upgrade-journal.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "lib/platform/durability.h"
#include "lib/platform/handles.h"
#include "lib/platform/presence.h"
#include "lib/platform/regular-file.h"

#define LOG_SOURCE "upgrade-journal"

namespace {

const ustring log_component("service_debug");

const std::size_t kMaxSize = 4096;  // bytes; a record has fewer than 100

const char* const kStates[] = {"replacing", "installed"};
const char kNoNumber[] = "none";

std::string NumberText(bool known, std::uint64_t number) {
    return known ? std::to_string(number) : kNoNumber;
}

std::string DigitsOf(std::uint32_t numbers) {
    std::string digits;
    for (int n = 0; n < UpgradeJournal::kMaxBackups; ++n) {
        if ((numbers >> n & 1) != 0) {
            digits += std::to_string(n);
        }
    }
    return digits;
}

std::string TextOf(const UpgradeJournal::Record& record) {
    std::string text = std::string("state=") + kStates[record.state];
    text += "\nbackup=" + NumberText(record.backup >= 0, static_cast<std::uint64_t>(record.backup));
    text += "\nobject=" + NumberText(record.object != 0, record.object) + "\n";
    return record.leftovers == 0 ? text : text + "leftovers=" + DigitsOf(record.leftovers) + "\n";
}

std::string ValueOf(const std::string& key, const std::string& text) {
    const std::size_t at = text.find(key + "=");
    const std::size_t begin = at != std::string::npos ? at + key.size() + 1 : text.size();
    return text.substr(begin, text.find('\n', begin) - begin);
}

int BackupIn(const std::string& value) {
    return value.size() == 1 && value[0] >= '0' && value[0] <= '9' ? value[0] - '0'
                                                                   : UpgradeJournal::kNone;
}

// Parses what it can. The caller formats the result again and compares the texts to detect damage.
UpgradeJournal::Record RecordIn(const std::string& text) {
    UpgradeJournal::Record record;
    record.state = ValueOf("state", text) == kStates[UpgradeJournal::Installed]
                       ? UpgradeJournal::Installed
                       : UpgradeJournal::Replacing;
    record.backup = BackupIn(ValueOf("backup", text));
    record.object = std::strtoull(ValueOf("object", text).c_str(), nullptr, 10);
    for (const char digit : ValueOf("leftovers", text)) {
        record.leftovers |= digit >= '0' && digit <= '9' ? 1U << (digit - '0') : 0;
    }
    return record;
}

// Creates a file with the text and forces it to the disk. Returns 0, or -1 with errno set.
int WriteDurably(const char* path, const std::string& text) {
    unlink(path);  // if this fails on an existing file, so does open()
    platform::Descriptor file(
        open(path, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    const bool written =
        file.get() >= 0 &&
        write(file.get(), text.data(), text.size()) == static_cast<ssize_t>(text.size()) &&
        platform::SyncFile(file.get()) == 0;
    return written ? file.close() : -1;
}

}  // namespace

UpgradeJournal::UpgradeJournal(const ustring& folder)
    : folder_(folder), path_(folder + "/upgrade.journal"), new_path_(path_ + ".new") {}

int UpgradeJournal::write(const Record& record) const {
    if (WriteDurably(new_path_.c_str(), TextOf(record)) == 0 &&
        std::rename(new_path_.c_str(), path_.c_str()) == 0 &&
        platform::SyncFolder(folder_.c_str()) == 0) {
        return 0;
    }
    LOG_MSG(WARNING, "failed to write '%s': %s (%d)\n", path_.c_str(), strerror(errno), errno);
    removeUnfinished();
    return -1;
}

UpgradeJournal::Finding UpgradeJournal::read(Record& record) const {
    const platform::Presence presence = platform::LookAt(path_.c_str());
    if (presence == platform::Presence::NotThere) {
        return Finding::Nothing;
    }
    std::string text;
    const platform::Reading reading =
        presence == platform::Presence::There
            ? platform::ReadRegularFile(path_.c_str(), kMaxSize, text, folder_.c_str())
            : platform::Reading::Failed;
    if (reading == platform::Reading::Failed) {
        LOG_MSG(ERROR, "failed to read '%s': %s (%d)\n", path_.c_str(), strerror(errno), errno);
        return Finding::CantTell;
    }
    const Record found = RecordIn(text);
    if (reading != platform::Reading::Done || TextOf(found) != text) {
        return Finding::Damaged;
    }
    record = found;
    return Finding::Found;
}

int UpgradeJournal::remove() const {
    if (platform::SyncFolder(folder_.c_str()) != 0 ||
        (unlink(path_.c_str()) != 0 && errno != ENOENT && FSRemoveOwnTree(path_) != 0)) {
        LOG_MSG(WARNING, "failed to remove '%s'\n", path_.c_str());
        return -1;
    }
    return platform::SyncFolder(folder_.c_str());
}

void UpgradeJournal::removeUnfinished() const {
    unlink(new_path_.c_str());  // usually there is none
}
