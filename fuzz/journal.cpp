// The record of a running upgrade, on arbitrary files in its place.

#include "ui-client/launcher/upgrade-journal.h"

#include "fuzz/support.h"
#include "lib/liblogger/log.h"

namespace {

void CheckRecord(const UpgradeJournal& journal, const UpgradeJournal::Record& record) {
    REQUIRE(record.state == UpgradeJournal::Replacing || record.state == UpgradeJournal::Installed);
    REQUIRE(record.backup == UpgradeJournal::kNoBackup ||
            (record.backup >= 0 && record.backup < UpgradeJournal::kMaxBackups));
    REQUIRE(!record.object.empty());
    REQUIRE(journal.write(record) == 0);
    UpgradeJournal::Record again;
    REQUIRE(journal.read(again) == UpgradeJournal::Found);
    REQUIRE(again.state == record.state);
    REQUIRE(again.backup == record.backup);
    REQUIRE(again.object == record.object);
}

// A folder that is missing, and one that stands where the record belongs.
void CheckSurroundings(const Scratch& scratch) {
    const UpgradeJournal nowhere((scratch / "missing").c_str());
    UpgradeJournal::Record record;
    record.object = "1";
    REQUIRE(nowhere.read(record) == UpgradeJournal::None);
    REQUIRE(nowhere.write(record) == -1);
    REQUIRE(UpgradeJournal::Identify((scratch / "missing").c_str(), record.object));
    REQUIRE(record.object.empty());
    record.object = "1";

    const UpgradeJournal journal(scratch.path().c_str());
    std::filesystem::create_directory(journal.path().c_str());
    REQUIRE(journal.read(record) == UpgradeJournal::Damaged);
    REQUIRE(journal.write(record) == -1);
    REQUIRE(journal.remove() == 0);
    REQUIRE(journal.read(record) == UpgradeJournal::None);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    SilenceLog();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Scratch scratch;
    static const UpgradeJournal journal(scratch.path().c_str());
    static const bool surroundings = (CheckSurroundings(scratch), true);
    REQUIRE(surroundings);

    WriteFile(journal.path().c_str(), TextOf(data, size));
    UpgradeJournal::Record record;
    const UpgradeJournal::Finding finding = journal.read(record);
    REQUIRE(finding == UpgradeJournal::Found || finding == UpgradeJournal::Damaged);
    if (finding == UpgradeJournal::Found) {
        CheckRecord(journal, record);
    }

    // A record of what is really there.
    record.state = size % 2 == 0 ? UpgradeJournal::Replacing : UpgradeJournal::Installed;
    record.backup = static_cast<int>(size % UpgradeJournal::kMaxBackups);
    REQUIRE(UpgradeJournal::Identify(journal.path(), record.object));
    REQUIRE(!record.object.empty());
    CheckRecord(journal, record);
    REQUIRE(journal.remove() == 0);
    return 0;
}
