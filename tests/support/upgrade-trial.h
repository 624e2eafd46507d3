#ifndef TESTS_SUPPORT_UPGRADE_TRIAL_H
#define TESTS_SUPPORT_UPGRADE_TRIAL_H

#include <memory>
#include <set>
#include <string>

#include "tests/support/installation.h"
#include "tests/support/system.h"
#include "tests/support/traced-run.h"

// The state in which an upgrade starts.
struct Scene {
    // The package is whole, truncated after the client or before it, or has no client.
    enum Damage { Whole, CutAfter, CutBefore, Lacking };
    // Besides the old application there is nothing, or a folder with the name of the first backup.
    // OnOverlay: both are in the lower layer of an overlay, where no folder can be renamed.
    enum Around { Nothing, Leftover, OnOverlay };

    int level;  // the lower it is, the more kinds of faults are tried
    Shape package;
    Damage damage;
    bool has_old;
    Shape old;
    Around around;

    std::string name() const;
};

// The system calls that are counted, from the first one on the home folder: those that change files
// in it; all on ~/.Tarnwell; all on the home folder and on the bundle's resources and log folder;
// or all on any file.
enum Scope { Changes, OnTarnwell, OnOwn, OnAny };

// An upgrade with a fault. The checks look at the files that it leaves and at the next run.
class UpgradeTrial {
  public:
    // The launcher runs as an ordinary user, or as the user who runs the test. A small disk has
    // little more space than the upgrade needs.
    UpgradeTrial(const Scene& scene, bool as_user, bool on_small_disk);
    ~UpgradeTrial();

    bool possible() const { return possible_; }  // for the user who runs the test
    void arrange();
    void setPackage(int build, Scene::Damage damage = Scene::Whole);

    TracedRun at(int call) const;  // a run with a fault at this call
    TracedRun run() const { return at(1 + number % calls); }
    // Starts the launcher for such a run and checks that it exits with 0 or is killed.
    TracedRun follow(TracedRun run);
    void runUndisturbed();  // checks that the launcher exits with 0

    // Whether this application exists completely: installed, as a backup, or in two parts.
    bool isWhole(const FileTree& app) const;
    void check(bool good, const std::string& what);
    // Checks that the old or the new application is installed, unless there was no old one.
    void checkInPlace();
    // Checks that the right application is installed and that there are no leftovers.
    void checkEnd(bool is_new);
    // Checks that nothing is lost and that the next run succeeds. After a first installation from a
    // damaged package, the next run gets a whole one.
    void recover();

    const Scene scene;
    const bool as_user;
    Installation in;
    FileTree old_app;
    FileTree new_app;
    // The case: a variant of the fault, and the system call at which it happens.
    Scope scope = Changes;
    int calls = 1;  // N, counted in the undisturbed run
    int number = 0;
    int variant = 0;
    std::string doing;        // a description of the case, for messages
    bool has_failed = false;  // whether a check has failed since arrange()
    // After ~/.Tarnwell was copied, the launcher can't recognise the old application by its inode
    // and keeps the record until a package has replaced the application.
    bool may_doubt = false;

  private:
    std::set<std::string> names() const;

    const std::string sentinel_ = in.home() + "/sentinel";
    std::unique_ptr<SmallDisk> disk_;
    bool possible_ = false;
    std::set<std::string> old_names_;
    int shown_ = 0;
};

#endif
