#ifndef UI_CLIENT_LAUNCHER_UPGRADE_JOURNAL_H
#define UI_CLIENT_LAUNCHER_UPGRADE_JOURNAL_H

#include <cstdint>
#include <string>

#include "ustring/ustring.h"

// The durable record of a running replacement, ~/.Tarnwell/upgrade.journal: what a later run needs
// to know to finish or undo one that was cut off. A text file of lines key=value:
//
//   state=replacing | installed
//   backup=0 ... 9 | none       the number of the backup that holds, or will hold, the old
//                               application; none when there is none. When the new application is
//                               installed, the backups from 0 to this one may be removed
//   object=131077 | none        replacing: the inode of the old application, by which it is known
//                               as long as it hasn't been moved; none when what is in its place
//                               may be incomplete. Device numbers change between two starts of
//                               the system and are left out
//   leftovers=07                the numbers, a digit each, of other backup names under which
//                               something has been set aside that may be removed once a complete
//                               application is in place; the line is missing when there are none
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

    // What read() finds. Damaged stands for whatever write() doesn't write.
    enum class Finding { Nothing, Found, Damaged, CantTell };

    explicit UpgradeJournal(const ustring& folder);  // the one that holds the application

    // Replaces the record, which is on the disk when this returns 0. Atomic: after a failure (-1)
    // or a cut the record is the old one, or the new one.
    int write(const Record& record) const;

    // Reads the record; record is unchanged unless one is found.
    Finding read(Record& record) const;

    // Removes the record, or what is in its place. What was renamed before is on the disk by then,
    // and the removal is too when this returns 0; -1 may leave the record.
    int remove() const;

    // Removes what a write() that was killed has left beside the record.
    void removeUnfinished() const;

    const ustring& path() const { return path_; }

  private:
    const ustring folder_;
    const ustring path_;
    const ustring new_path_;  // of the record that is being written
};

#endif
