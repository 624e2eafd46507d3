#ifndef UI_CLIENT_LAUNCHER_UPGRADE_JOURNAL_H
#define UI_CLIENT_LAUNCHER_UPGRADE_JOURNAL_H

#include "ustring/ustring.h"

// The durable record of a running upgrade, ~/.Tarnwell/upgrade.journal: what a later run needs to
// know to finish or undo an upgrade that was cut off. It is a key=value file:
//
//   state=replacing | installed   what the run was doing
//   backup=Tarnwell.app_tmp       the name under which the old application is or will be kept,
//                                 beside it; '' when there was none
//   object=2049-131077            device and inode of the old application's folder, which a rename
//                                 keeps: it tells whether the folder has been moved; '' for none
//
// Used by one thread. Failures are logged and returned; what was on the disk before stays, or is
// damaged in a way that read() notices.
class UpgradeJournal {
  public:
    enum State : int { Replacing, Installed };

    struct Record {
        State state = Replacing;
        ustring backup;  // a path, empty when there was no old application
        ustring object;
    };

    // What read() finds.
    enum Finding : int { None, Damaged, Found };

    explicit UpgradeJournal(const ustring& app);  // the application folder that is being replaced

    // The identity of the object at path, for Record::object; empty when nothing is there.
    static ustring Identify(const ustring& path);

    // Writes the record; it is on the disk when this returns 0. -1 leaves no valid record.
    int write(const Record& record) const;

    // Reads the record. Damaged stands for whatever isn't a record that write() could have made:
    // another kind of file, other keys, a backup that isn't one of this application's.
    Finding read(Record& record) const;

    // Removes the record, or what stands in its place; the removal is on the disk when this
    // returns 0.
    int remove() const;

    const ustring& path() const { return path_; }

  private:
    const ustring app_;
    const ustring folder_;
    const ustring path_;
};

// The name under which the application folder is moved aside at attempt n (0 to 9).
ustring GetAppBackupDir(ustring const& app, int n);
const int kMaxAppBackups = 10;

#endif
