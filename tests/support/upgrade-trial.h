#ifndef TESTS_SUPPORT_UPGRADE_TRIAL_H
#define TESTS_SUPPORT_UPGRADE_TRIAL_H

#include <memory>
#include <set>
#include <string>

#include "tests/support/installation.h"
#include "tests/support/system.h"
#include "tests/support/traced-run.h"

// What an upgrade begins with.
struct Scene {
    // The package is whole, was cut off after the client or before it, or has no client.
    enum Damage { Whole, CutAfter, CutBefore, Lacking };
    // Besides the old application there is nothing, or a folder in the first backup's place. Or
    // both are the lower layer of an overlay, so that no folder of the application can be renamed.
    enum Around { Nothing, Leftover, OnOverlay };

    int level;  // the lower it is, the more kinds of faults are tried
    Shape package;
    Damage damage;
    bool has_old;
    Shape old;
    Around around;

    std::string name() const;
};

// An upgrade that something happens to. It is judged by what is on the disk and by the next run.
class UpgradeTrial {
  public:
    // The launcher runs as an ordinary user, or as whoever runs the test. A small disk has room for
    // little more than the upgrade.
    UpgradeTrial(const Scene& scene, bool as_user, bool on_small_disk);
    ~UpgradeTrial();

    bool possible() const { return possible_; }  // for whoever runs the test
    void arrange();
    void setPackage(int build, Scene::Damage damage = Scene::Whole);

    TracedRun follow(TracedRun run);
    int runUndisturbed();  // returns the exit code, or 1000 plus the signal

    // Whether an application is there: in its place, aside, or in two parts.
    bool isWhole(const FileTree& app) const;
    void check(bool good, const std::string& what);
    // Checks that the old or the new application is in its place, unless there was none.
    void checkInPlace();
    // Checks that the right application is in its place and that nothing else is left.
    void checkEnd(bool is_new);
    // Checks that nothing is lost and that the next run ends well. After a first installation from
    // a damaged package that run has a whole one.
    void recover();

    const Scene scene;
    const bool as_user;
    Installation in;
    FileTree old_app;
    FileTree new_app;
    std::string doing;        // for messages
    bool has_failed = false;  // a check, since arrange()
    // After a copy, an old application that can't be recognised keeps its record until a package
    // has replaced it.
    bool may_doubt = false;

  private:
    void mountOverlay();
    std::set<std::string> names() const;

    const std::string sentinel_ = in.home() + "/sentinel";
    std::unique_ptr<SmallDisk> disk_;
    bool possible_ = false;
    std::set<std::string> old_names_;
    int shown_ = 0;
};

#endif
