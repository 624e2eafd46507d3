#ifndef TESTS_SUPPORT_UPGRADE_TRIAL_H
#define TESTS_SUPPORT_UPGRADE_TRIAL_H

#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <memory>
#include <set>
#include <string>

#include "tests/support/installation.h"
#include "tests/support/system.h"
#include "tests/support/traced-run.h"

namespace fs = std::filesystem;

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

    std::string name() const {
        const char* const shapes[] = {"plain", "modes",        "links",    "single",
                                      "many",  "client first", "no client"};
        const char* const arounds[] = {"", " and leftover", " on overlay"};
        const char* const damages[] = {"", " cut after", " cut before", ""};
        return (has_old ? shapes[static_cast<int>(old)] : std::string("nothing")) +
               arounds[around] + " to " + shapes[static_cast<int>(package)] + damages[damage];
    }
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
    UpgradeTrial(const Scene& of, bool run_as_user, bool on_small_disk)
        : scene(of), as_user(run_as_user) {
        prctl(PR_SET_CHILD_SUBREAPER, 1);  // the clients become our children
        if (geteuid() == 0) {              // in memory, where a sync takes no time
            disk_ = std::make_unique<SmallDisk>(in.home(), on_small_disk ? "1m" : "64m");
        }
        possible_ = (disk_ != nullptr && disk_->mounted()) ||
                    (!on_small_disk && scene.around != Scene::OnOverlay);
    }
    ~UpgradeTrial() { umount2(in.user().c_str(), MNT_DETACH); }

    bool possible() const { return possible_; }  // for the user who runs the test

    void arrange() {
        has_failed = false;
        umount2(in.user().c_str(), MNT_DETACH);
        for (const std::string& path : {in.user(), sentinel_, in.home() + "/started"}) {
            RemoveTree(path);
        }
        MakeFile(sentinel_ + "/file");
        MakeFolder(in.user("log"));
        setPackage(100, scene.damage);
        if (scene.has_old) {
            in.install("99", scene.old);
            old_app = Tree(in.app(), true);
        }
        if (scene.around != Scene::Nothing) {
            MakeFile(in.user("Tarnwell.app_tmp/leftover"));
        }
        old_names_ = names();
        if (as_user) {
            in.runAsNobody();
        }
        if (scene.around == Scene::OnOverlay) {
            mountOverlay(in.user(), in.home() + "/layers");
        }
    }

    void setPackage(int build, Scene::Damage damage = Scene::Whole) {
        const std::string version = std::to_string(build);
        const char* const whole = scene.package == Shape::Plain ? "zip" : "tar.zst";
        in.setBuild(version, damage == Scene::Whole ? whole : "tar", scene.package);
        new_app = Installation::expectedApp(version, scene.package, true);
        if (damage == Scene::CutAfter || damage == Scene::CutBefore) {
            const char* const last =
                scene.package == Shape::Modes ? "Contents/closed/" : "Contents/Resources/data.bin";
            const char* const at = damage == Scene::CutBefore ? "Contents/MacOS/tarnwell-ui" : last;
            fs::resize_file(in.package(), ReadFile(in.package()).find(at, 0, strlen(at) + 1) + 100);
        }
    }

    // A run with a fault at this call.
    TracedRun at(int call, const TracedRun::Fault& fault = nullptr) const {
        TracedRun run;
        run.fault_at = call;
        run.fault = fault;
        run.changes_only = scope == Changes;
        run.since = in.home();
        if (scope == OnOwn) {
            run.within = {in.home(), in.bundle("log"), in.bundle("Contents/Resources")};
        } else if (scope != OnAny) {
            run.within = {scope == OnTarnwell ? in.user() : in.home()};
        }
        return run;
    }
    TracedRun run(const TracedRun::Fault& fault = nullptr) const {
        return at(1 + number % calls, fault);
    }
    // Starts the launcher for such a run and checks that it exits with 0 or is killed.
    TracedRun follow(TracedRun run) {
        run.follow(in.start(BeTraced));
        doing += run.faulty.empty() ? "" : " at " + run.faulty;
        check(run.end == 0 || run.end == 1000 + SIGKILL, "the exit code isn't 0");
        return run;
    }

    // Whether this application exists completely: installed, as a backup, or in two parts.
    bool isWhole(const FileTree& app) const {
        for (const std::string& name : names()) {
            if (name.find("Tarnwell.app") == 0 && isTree(in.user(name), app)) {
                return true;
            }
        }
        if (!Exists(in.app()) || !Exists(in.user("Tarnwell.app_part"))) {
            return false;
        }
        FileTree parts = Tree(in.user("Tarnwell.app_part"));  // a move sets folder modes last
        parts.merge(Tree(in.app()));
        return std::all_of(app.begin(), app.end(), [&](const auto& entry) {
            const auto part = parts.find(entry.first);
            return entry.first.empty() ||
                   (part != parts.end() && entry.second.find(part->second) == 0);
        });
    }

    void check(bool good, const std::string& what) {
        has_failed |= !good;
        if (!good && ++shown_ <= kMostShown) {
            ADD_FAILURE() << doing << ": " << what << "\n"
                          << testing::PrintToString(names()) << "\n"
                          << ReadFile(in.user("log/launcher.log"));
        }
    }
    // Checks that the old or the new application is installed, unless there was no old one.
    void checkInPlace() {
        check(!scene.has_old || isTree(in.app(), old_app) || isTree(in.app(), new_app),
              "no complete application is installed");
    }
    // Checks that the right application is installed and that there are no leftovers.
    void checkEnd(bool is_new) {
        check(isTree(in.app(), is_new ? new_app : old_app), "the wrong application is installed");
        for (const std::string& name : names()) {
            const bool was_there = !is_new && old_names_.count(name) != 0;
            const bool in_doubt = may_doubt && !is_new && name == "upgrade.journal";
            check(was_there || in_doubt || name == "log" || name == "Tarnwell.app",
                  name + " is left at the end");
        }
        check(Tree(sentinel_).size() == 1, "a file outside of ~/.Tarnwell was changed");
        check(ReadFile(in.home() + "/started").find("half") == std::string::npos,
              "an incomplete application was started");
    }
    // Runs the launcher undisturbed, and checks its exit code and the end.
    void finish(bool is_new) {
        check(WaitForEnd(in.start()) == 0, "the exit code of an undisturbed run isn't 0");
        while (waitpid(-1, nullptr, 0) > 0) {  // waits for its orphans
        }
        checkEnd(is_new);
    }
    // Checks that nothing is lost and that the next run succeeds. After a first installation from a
    // damaged package, the next run gets a whole one.
    void recover() {
        check(!scene.has_old || isWhole(old_app) || isWhole(new_app),
              "no complete application is left");
        const bool is_new = scene.damage == Scene::Whole || !scene.has_old;
        if (scene.damage != Scene::Whole && is_new) {
            setPackage(101);
        }
        finish(is_new);
    }

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
    static constexpr int kMostShown = 5;  // failures reported for each row

    static bool isTree(const std::string& path, const FileTree& tree) {
        return fs::is_directory(fs::symlink_status(path)) && Tree(path, true) == tree;
    }

    // Mounts an overlay on the folder, whose content becomes the lower layer.
    static void mountOverlay(const std::string& folder, const std::string& layers) {
        RemoveTree(layers);
        MakeFolder(layers + "/work");
        CopyTree(folder, layers + "/lower");
        CopyTree(folder + "/log", layers + "/upper");  // an empty folder of the same user
        const std::string options = "lowerdir=" + layers + "/lower,upperdir=" + layers +
                                    "/upper,workdir=" + layers + "/work,redirect_dir=off";
        Check(mount("none", folder.c_str(), "overlay", 0, options.c_str()) == 0,
              "can't mount an overlay");
    }

    std::set<std::string> names() const {
        std::set<std::string> names;
        std::error_code none;
        for (const auto& entry : fs::directory_iterator(in.user(), none)) {
            names.insert(entry.path().filename());
        }
        return names;
    }

    const std::string sentinel_ = in.home() + "/sentinel";
    std::unique_ptr<SmallDisk> disk_;
    bool possible_ = false;
    std::set<std::string> old_names_;
    int shown_ = 0;
};

#endif
