#ifndef UI_CLIENT_LAUNCHER_UPGRADE_JOURNAL_H
#define UI_CLIENT_LAUNCHER_UPGRADE_JOURNAL_H

#include <cstdint>
#include <string>

#include "ustring/ustring.h"

// The durable record of a running replacement, ~/.Tarnwell/upgrade.journal: what a later run needs
// to know to finish or undo an interrupted one. A text file of lines key=value:
//
//   state=replacing | installed
//   backup=0 ... 9 | none       the number of the backup that holds, or will hold, the old
//                               application; none when there is none. When the new application is
//                               installed, the backups from 0 to this one may be removed
//   object=131077 | none        replacing: the inode of the old application, which identifies it
//                               until it is moved; none when what is in its place may be
//                               incomplete. The device number isn't recorded, because it can change
//                               when the system restarts
//   leftovers=07                one digit for each other backup that may be removed once a complete
//                               application is in place; without leftovers there is no such line
//
// Threads: one object belongs to one thread. Failures are logged and returned.
class UpgradeJournal {
  public:
    enum State : int { Replacing, Installed };
    enum : int { kNone = -1, kMaxBackups = 10 };

    struct Record {
        State state = Replacing;
        int backup = kNone;
        std::uint64_t object = 0;     // 0: none
        std::uint32_t leftovers = 0;  // bit n for the backup with the number n
    };

    // The result of read(). Damaged: something is there that write() would not have written.
    enum class Finding { Nothing, Found, Damaged, CantTell };

    explicit UpgradeJournal(const ustring& folder);  // the one that holds the application

    // Replaces the record and forces it to the disk. Atomic: after a failure (-1) or an
    // interruption there is either the old record or the new one.
    int write(const Record& record) const;

    // Reads the record; record is unchanged unless one is found.
    Finding read(Record& record) const;

    // Removes the record, or what is in its place, after forcing earlier renames to the disk. When
    // this returns 0 the removal is on the disk too; after -1 the record may still be there.
    int remove() const;

    // Removes the temporary file that a killed write() has left.
    void removeUnfinished() const;

    const ustring& path() const { return path_; }

  private:
    const ustring folder_;
    const ustring path_;
    const ustring new_path_;  // of the record that is being written
};

#endif
