#ifndef TESTS_SUPPORT_UPGRADE_TRIAL_H
#define TESTS_SUPPORT_UPGRADE_TRIAL_H

#include <memory>
#include <set>
#include <string>

#include "tests/support/installation.h"
#include "tests/support/traced-run.h"

// What an upgrade begins with.
struct Scene {
    // A package that is whole, or that was cut off after the client or before it.
    enum Cut { Whole, CutAfter, CutBefore };
    // Besides the old application: nothing; a folder in the first backup's place; or that and an
    // overlay, whose lower layer the application came with, so that no folder of it can be renamed.
    enum Around { Nothing, Leftover, OnOverlay };

    int level;  // the lower it is, the more faults are tried
    Shape package;
    Cut cut;
    bool has_old;
    Shape old;
    Around around;

    std::string name() const;
};

// An upgrade that something happens to. It is judged by what is on the disk and by the next run.
class UpgradeTrial {
  public:
    // The launcher is run by a user who isn't root, or by the one that we are. With a small disk
    // the home folder has room for little more than the upgrade.
    UpgradeTrial(const Scene& scene, bool as_user, bool on_small_disk);
    ~UpgradeTrial();

    bool possible() const { return disk_ == nullptr || disk_->mounted(); }  // for us
    void arrange();
    void setPackage(int build, Scene::Cut cut = Scene::Whole);

    // Return how a run ended: its exit code, or 1000 plus the signal.
    int follow(TracedRun& run);
    int runUndisturbed();

    void check(bool good, const std::string& what);
    // Whether an application is there: in its place, aside, or in two parts.
    bool isWhole(const FileTree& app) const;
    // The old one or the new one, unless there was none.
    void checkInPlace();
    // The right one is in its place, and nothing else is left.
    void checkEnd(bool is_new);
    // Nothing is lost, and the next run comes to the right end. What has never worked gets a good
    // package for that.
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
    std::set<std::string> old_names_;
    int shown_ = 0;
};

#endif
