#ifndef UI_CLIENT_LAUNCHER_UPGRADE_JOURNAL_H
#define UI_CLIENT_LAUNCHER_UPGRADE_JOURNAL_H

#include "ustring/ustring.h"

// The durable record of a running upgrade, ~/.Tarnwell/upgrade.journal: what a later run needs to
// know to finish or undo an upgrade that was cut off. It is a key=value file:
//
//   state=replacing | installed   what the run was doing
//   backup=0 ... 9 | none         the number of the backup that holds, or will hold, the old
//                                 application; none for a first installation
//   object=131077                 the inode of the old application, or of the folder that was made
//                                 for a first installation. A rename keeps it, so it tells what is
//                                 where; device numbers can change from one start of the system to
//                                 the next and are left out
//
// Used by one thread. Failures are logged and returned.
class UpgradeJournal {
  public:
    enum State : int { Replacing, Installed };
    enum : int { kNoBackup = -1, kMaxBackups = 10 };

    struct Record {
        State state = Replacing;
        int backup = kNoBackup;
        ustring object;
    };

    // What read() finds.
    enum Finding : int { None, Damaged, Found };

    explicit UpgradeJournal(const ustring& folder);  // the one that holds the application

    // The identity of the object at path, for Record::object; empty when nothing is there.
    // false when the system doesn't tell.
    static bool Identify(const ustring& path, ustring& object);
    static bool IsAt(const ustring& path, const ustring& object);

    // Writes the record; it is on the disk when this returns 0. -1 leaves no record, if at all
    // possible.
    int write(const Record& record) const;

    // Reads the record. Damaged stands for whatever isn't a record that write() could have made.
    Finding read(Record& record) const;

    // Removes the record, or what stands in its place, when what was renamed before is on the disk;
    // the removal is there, too, when this returns 0.
    int remove() const;

    const ustring& path() const { return path_; }

  private:
    const ustring folder_;
    const ustring path_;
};

#endif
