#ifndef UI_CLIENT_LAUNCHER_APP_REPLACEMENT_H
#define UI_CLIENT_LAUNCHER_APP_REPLACEMENT_H

#include <memory>

#include "lib/platform/instance-lock.h"
#include "ui-client/launcher/upgrade-journal.h"
#include "ustring/ustring.h"

// The replacement of the per-user application as a transaction:
//
//   Lock, Recover, then Begin - unpack into the application's place - Commit or RollBack.
//
// Begin moves the old application aside under a backup name; Commit makes the new one the user's
// and removes the backup; RollBack moves the old one back. A journal on the disk lets the next run
// finish or undo an interrupted upgrade. The invariants, whatever fails or interrupts a run:
//
//   1. Looking at a path says "there", "not there" or "can't tell". "Can't tell" never leads to
//      removing something, unpacking over it, or dropping the record: everything stays as it is.
//   2. A tree is removed only when this run has created it, when this run has seen a complete
//      application elsewhere, or when it has no client, so that it isn't an application, and the
//      old one exists. A tree that could be the only application is set aside instead, under a
//      free backup name.
//   3. Nothing is unpacked without a durable record, also in a first installation. What is in the
//      application's place under such a record is never considered installed.
//   4. The record changes atomically.
//   5. Folders in a tree of ours are made accessible before the tree is removed. Links are not
//      followed, other volumes are not entered.
//   6. One launcher at a time works on a user's folder, also when several copies are installed.
//   7. As soon as a run can remove the others, at most one backup is left, and nothing else.
//   8. Our paths are looked up by the bytes that the system gave.
//
// The log lines have the tag of tarnwell-service, whose operations they report.
// Threads: an object belongs to one thread.
class AppReplacement {
  public:
    // The user folder, and the application folder in it.
    AppReplacement(ustring folder, ustring app);

    // Takes the lock, which is held until the object is destroyed. If another launcher holds it,
    // waits up to a minute.
    void Lock();

    // Whether the application may be started: false when another launcher is replacing it.
    bool MayStart() const;

    enum class Condition {
        Settled,     // what is in the application's place, if anything, is the user's application
        Incomplete,  // it may be an incomplete one: it must be replaced, whatever its version
        Blocked      // the system can't tell, or another launcher is at work: nothing may change
    };

    // Finishes or undoes an interrupted upgrade. Must be called before anything looks at the
    // application.
    void Recover();
    Condition condition() const { return condition_; }

    // Moves the application aside, if there is one, so that a new one can be unpacked into its
    // place. Returns 0, or -1 when nothing may be unpacked; then the application is where it was,
    // or the next run will put it back.
    int Begin();

    // Makes what was unpacked the user's application. Returns 0, or -1: then it was rolled back, or
    // everything has been left for the next run, because the record can't be written.
    int Commit();

    // Undoes Begin after a failed extraction. What a failed first installation has unpacked stays;
    // the next run replaces it.
    void RollBack();

  private:
    enum class Attempt { Moved, NotMoved, CantTell };

    Condition RecoverInstalled();
    Condition RecoverReplacing();

    int BeginInstallation();
    int BackUp();
    Attempt TryBackUp();
    bool RestoreEntries();
    bool RestoreBackup(bool may_remove);
    bool Identify(std::uint64_t object);
    bool SetAside();
    Condition Settle();
    std::uint32_t Removable() const;
    void RemoveBackups();

    ustring backup() const;

    const ustring folder_;
    const ustring app_;
    const ustring part_;  // collects the entries of an application folder that can't be renamed
    const UpgradeJournal journal_;
    std::unique_ptr<platform::InstanceLock> lock_;
    UpgradeJournal::Record record_;
    Condition condition_ = Condition::Blocked;
    bool must_have_client_ = false;  // the old application has a client, or the system can't tell
};

#endif
