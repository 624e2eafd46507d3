#include "tests/support/upgrade-trial.h"

#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

const int kMostShown = 5;  // failures reported for each row

bool IsTree(const std::string& path, const FileTree& tree) {
    return fs::is_directory(fs::symlink_status(path)) && Tree(path, true) == tree;
}

// Mounts an overlay on the folder, whose content becomes the lower layer.
void MountOverlay(const std::string& folder, const std::string& layers) {
    RemoveTree(layers);
    MakeFolder(layers + "/work");
    CopyTree(folder, layers + "/lower");
    CopyTree(folder + "/log", layers + "/upper");  // an empty folder of the same user
    const std::string options = "lowerdir=" + layers + "/lower,upperdir=" + layers +
                                "/upper,workdir=" + layers + "/work,redirect_dir=off";
    Check(mount("none", folder.c_str(), "overlay", 0, options.c_str()) == 0,
          "can't mount an overlay");
}

}  // namespace

std::string Scene::name() const {
    const char* const shapes[] = {"plain", "modes",        "links",    "single",
                                  "many",  "client first", "no client"};
    const char* const arounds[] = {"", " and leftover", " on overlay"};
    const char* const damages[] = {"", " cut after", " cut before", ""};
    return (has_old ? shapes[static_cast<int>(old)] : std::string("nothing")) + arounds[around] +
           " to " + shapes[static_cast<int>(package)] + damages[damage];
}

UpgradeTrial::UpgradeTrial(const Scene& of, bool run_as_user, bool on_small_disk)
    : scene(of), as_user(run_as_user) {
    prctl(PR_SET_CHILD_SUBREAPER, 1);  // the clients become our children
    if (geteuid() == 0) {              // in memory, where a sync takes no time
        disk_ = std::make_unique<SmallDisk>(in.home(), on_small_disk ? "1m" : "64m");
    }
    possible_ = (disk_ != nullptr && disk_->mounted()) ||
                (!on_small_disk && scene.around != Scene::OnOverlay);
}

UpgradeTrial::~UpgradeTrial() {
    umount2(in.user().c_str(), MNT_DETACH);
}

void UpgradeTrial::setPackage(int build, Scene::Damage damage) {
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

void UpgradeTrial::arrange() {
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
        MountOverlay(in.user(), in.home() + "/layers");
    }
}

TracedRun UpgradeTrial::at(int call) const {
    TracedRun run;
    run.fault_at = call;
    run.changes_only = scope == Changes;
    run.since = in.home();
    if (scope == OnOwn) {
        run.within = {in.home(), in.bundle("log"), in.bundle("Contents/Resources")};
    } else if (scope != OnAny) {
        run.within = {scope == OnTarnwell ? in.user() : in.home()};
    }
    return run;
}

TracedRun UpgradeTrial::follow(TracedRun run) {
    run.follow(in.start(BeTraced));
    doing += run.faulty.empty() ? "" : " at " + run.faulty;
    check(run.end == 0 || run.end == 1000 + SIGKILL, "the exit code isn't 0");
    return run;
}

void UpgradeTrial::runUndisturbed() {
    check(WaitForEnd(in.start()) == 0, "the exit code of an undisturbed run isn't 0");
    while (waitpid(-1, nullptr, 0) > 0) {  // waits for its orphans
    }
}

std::set<std::string> UpgradeTrial::names() const {
    std::set<std::string> names;
    std::error_code none;
    for (const auto& entry : fs::directory_iterator(in.user(), none)) {
        names.insert(entry.path().filename());
    }
    return names;
}

bool UpgradeTrial::isWhole(const FileTree& app) const {
    const std::set<std::string> there = names();
    if (std::any_of(there.begin(), there.end(), [&](const std::string& name) {
            return name.find("Tarnwell.app") == 0 && IsTree(in.user(name), app);
        })) {
        return true;
    }
    if (there.count("Tarnwell.app") == 0 || there.count("Tarnwell.app_part") == 0) {
        return false;
    }
    FileTree parts = Tree(in.user("Tarnwell.app_part"));  // a move sets folder modes last
    parts.merge(Tree(in.app()));
    return std::all_of(app.begin(), app.end(), [&](const auto& entry) {
        const auto part = parts.find(entry.first);
        return entry.first.empty() || (part != parts.end() && entry.second.find(part->second) == 0);
    });
}

void UpgradeTrial::check(bool good, const std::string& what) {
    has_failed |= !good;
    if (!good && ++shown_ <= kMostShown) {
        ADD_FAILURE() << doing << ": " << what << "\n"
                      << testing::PrintToString(names()) << "\n"
                      << ReadFile(in.user("log/launcher.log"));
    }
}

void UpgradeTrial::checkInPlace() {
    check(!scene.has_old || IsTree(in.app(), old_app) || IsTree(in.app(), new_app),
          "no complete application is installed");
}

void UpgradeTrial::checkEnd(bool is_new) {
    check(IsTree(in.app(), is_new ? new_app : old_app), "the wrong application is installed");
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

void UpgradeTrial::recover() {
    check(!scene.has_old || isWhole(old_app) || isWhole(new_app),
          "no complete application is left");
    const bool is_new = scene.damage == Scene::Whole || !scene.has_old;
    if (scene.damage != Scene::Whole && is_new) {
        setPackage(101);
    }
    runUndisturbed();
    checkEnd(is_new);
}
