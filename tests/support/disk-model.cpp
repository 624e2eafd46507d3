#include "tests/support/disk-model.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>

#include "tests/support/scenario.h"

namespace fs = std::filesystem;

Disk::Disk(std::string root)
    : root_(std::move(root)), store_(root_ + ".cut"), synced_(snapshot()) {}

Disk::Id Disk::identify(const std::string& path) {
    struct statx status {};
    Check(statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, STATX_INO | STATX_BTIME, &status) == 0,
          "can't read the inode number of " + path);
    return {status.stx_btime.tv_sec * 1000000000 + status.stx_btime.tv_nsec, status.stx_ino};
}

Disk::Objects Disk::snapshot() const {
    Objects objects;
    const auto add = [&](const std::string& path, const Place& place) {
        struct stat status {};
        lstat(path.c_str(), &status);
        const bool is_link = S_ISLNK(status.st_mode);
        objects[identify(path)] = {
            status.st_mode, is_link ? fs::read_symlink(path).string() : ReadFile(path), place};
    };
    add(root_, {});
    for (const auto& entry :
         fs::recursive_directory_iterator(root_, fs::directory_options::skip_permission_denied)) {
        add(entry.path(), {identify(entry.path().parent_path()), entry.path().filename()});
    }
    return objects;
}

// Returns the synced state of an existing object. If nothing was synced, adds its mode and, for a
// link, its target.
Disk::Object& Disk::known(const Id& id, const Objects& now) {
    const Object& object = now.at(id);
    return synced_.emplace(id, Object{object.mode, S_ISLNK(object.mode) ? object.content : "", {}})
        .first->second;
}

void Disk::sync(const std::string& path) {
    const Objects now = snapshot();
    if (path.empty()) {
        synced_ = now;
    } else if (Exists(path) && now.count(identify(path)) != 0) {
        const Id id = identify(path);
        known(id, now).mode = now.at(id).mode;
        known(id, now).content = now.at(id).content;
        for (const auto& [other, object] : now) {
            if (object.place.first == id) {
                known(other, now);
            }
        }
        // Also what was moved from or to another folder: a rename takes effect in both or neither.
        for (auto& [other, object] : synced_) {
            const Place place = now.count(other) != 0 ? now.at(other).place : Place();
            if (place.first == id || object.place.first == id) {
                object.place = place;
            }
        }
    }
}

void Disk::chooseStates(Objects& chosen, const Objects& now) {
    for (const auto& [id, object] : now) {
        Object& choice = chosen[id];
        if (S_ISREG(choice.mode) && object.content != choice.content) {
            const std::string choices[] = {
                choice.content, object.content, "",
                object.content.substr(0, random_() % (object.content.size() + 1))};
            choice.content = choices[random_() % 4];
        }
        choice.mode = random_() % 2 != 0 ? object.mode : choice.mode;
    }
}

// Chooses the old or the new place for each object. No two objects get the same place, and an
// object that was replaced stays unless the new one is in its place.
void Disk::choosePlaces(Objects& chosen, const Objects& now, double chance) {
    std::map<Id, bool> is_new;
    for (const auto& [id, object] : chosen) {
        is_new[id] = std::bernoulli_distribution(chance)(random_);
    }
    for (bool settled = false; !settled;) {
        settled = true;
        for (const auto& named : now) {
            const auto other = std::find_if(synced_.begin(), synced_.end(), [&](const auto& old) {
                return !old.second.place.second.empty() && old.second.place == named.second.place;
            });
            if (other != synced_.end() && is_new[named.first] != is_new[other->first] &&
                (is_new[named.first] || now.count(other->first) == 0)) {
                is_new[named.first] = is_new[other->first] = false;
                settled = false;
            }
        }
    }
    for (auto& [id, object] : chosen) {
        const Objects& source = is_new[id] ? now : synced_;
        object.place = source.count(id) != 0 ? source.at(id).place : Place();
    }
}

void Disk::cut(unsigned seed) {
    random_.seed(seed);
    const Objects now = snapshot();
    Objects chosen = synced_;
    for (const auto& [id, object] : now) {
        if (chosen.emplace(id, object).second && S_ISREG(object.mode)) {
            chosen[id].content.clear();
        }
    }
    const double chances[] = {0.1, 0.5, 0.9};
    if (seed > 1) {
        chooseStates(chosen, now);
    }
    choosePlaces(chosen, now, seed > 1 ? chances[seed % 3] : seed);
    MakeFolder(store_);
    store(root_);
    build(chosen, identify(root_), root_);
    RemoveTree(store_);
}

std::string Disk::stored(const Id& id) const {
    return store_ + "/" + std::to_string(id.first) + "-" + std::to_string(id.second);
}

void Disk::store(const std::string& folder) const {
    for (const auto& entry : fs::directory_iterator(folder)) {
        if (entry.is_directory() && !entry.is_symlink()) {
            chmod(entry.path().c_str(), 0700);
            store(entry.path());
        }
        fs::rename(entry.path(), stored(identify(entry.path())));
    }
}

void Disk::build(const Objects& objects, const Id& folder, const std::string& path) const {
    for (const auto& [id, object] : objects) {
        if (object.place.first != folder) {
            continue;
        }
        const std::string entry = path + "/" + object.place.second;
        if (Exists(stored(id))) {
            fs::rename(stored(id), entry);
        } else if (S_ISLNK(object.mode)) {
            MakeLink(object.content, entry);
        }
        if (S_ISDIR(object.mode)) {
            MakeFolder(entry);
            build(objects, id, entry);
        } else if (S_ISREG(object.mode) && (!Exists(entry) || ReadFile(entry) != object.content)) {
            chmod(entry.c_str(), 0600);  // if it exists
            MakeFile(entry, object.content);
        }
        if (!S_ISLNK(object.mode)) {
            chmod(entry.c_str(), object.mode & 07777);
        }
    }
}
