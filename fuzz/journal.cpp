// Fuzzes the reader of a running upgrade's record with arbitrary files.

#include "ui-client/launcher/upgrade-journal.h"

#include "fuzz/support.h"

namespace {

using Finding = UpgradeJournal::Finding;

void CheckRecord(const UpgradeJournal& journal, const UpgradeJournal::Record& record) {
    REQUIRE(record.backup >= UpgradeJournal::kNone && record.backup < UpgradeJournal::kMaxBackups);
    REQUIRE(journal.write(record) == 0);
    UpgradeJournal::Record again;
    REQUIRE(journal.read(again) == Finding::Found);
    REQUIRE(again.state == record.state && again.backup == record.backup);
    REQUIRE(again.object == record.object && again.leftovers == record.leftovers);
}

}  // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    SilenceLog();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Folder folder(std::filesystem::temp_directory_path());
    static const UpgradeJournal journal(folder.path().c_str());
    MakeFile(journal.path().c_str(), TextOf(data, size));
    UpgradeJournal::Record record;
    const Finding finding = journal.read(record);
    REQUIRE(finding == Finding::Found || finding == Finding::Damaged);
    if (finding == Finding::Found) {
        CheckRecord(journal, record);
    }
    record.state = size % 2 == 0 ? UpgradeJournal::Replacing : UpgradeJournal::Installed;
    record.backup = static_cast<int>(size % UpgradeJournal::kMaxBackups);
    record.leftovers = static_cast<std::uint32_t>(size % 1024);
    record.object = size;
    CheckRecord(journal, record);
    REQUIRE(journal.remove() == 0);
    return 0;
}
