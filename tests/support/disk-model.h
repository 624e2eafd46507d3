#ifndef TESTS_SUPPORT_DISK_MODEL_H
#define TESTS_SUPPORT_DISK_MODEL_H

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <random>
#include <string>
#include <utility>

#include "tests/support/scenario.h"

namespace fs = std::filesystem;

// A model of what a power cut leaves below a folder. Only what was synced is certain to be there.
// Any other object is at its old or its new place, but a rename never takes effect in one folder
// only; any other file has its old content, its new content, the beginning of the new content, or
// none.
class Disk {
  public:
    explicit Disk(std::string root) : root_(std::move(root)) {}  // what exists counts as synced

    // Records that the entries of a folder or the content of a file were synced; for an empty path,
    // everything below the root.
    void sync(const std::string& path) {
        const Objects now = snapshot();
        if (path.empty()) {
            synced_ = now;
        } else if (Exists(path) && now.count(identify(path)) != 0) {
            const Id id = identify(path);
            for (const auto& [other, object] : now) {
                if (other == id || object.place.first == id) {
                    const std::string target = S_ISLNK(object.mode) ? object.content : "";
                    synced_.emplace(other, Object{object.mode, target, {}});
                }
            }
            synced_[id].mode = now.at(id).mode;
            synced_[id].content = now.at(id).content;
            // Also what was moved from or to another folder: a rename takes effect in both.
            for (auto& [other, object] : synced_) {
                const Place place = now.count(other) != 0 ? now.at(other).place : Place();
                if (place.first == id || object.place.first == id) {
                    object.place = place;
                }
            }
        }
    }

    // Changes the folder's content to what a power cut leaves. Folders that still exist keep
    // their inodes; removed ones that reappear belong to this process's user. With the seed 0,
    // everything that wasn't synced is lost; with 1, it is kept, but new files are empty; with any
    // other seed, the model chooses at random.
    void cut(unsigned seed) {
        random_.seed(seed);
        const Objects now = snapshot();
        Objects chosen = synced_;
        for (const auto& [id, object] : now) {
            if (chosen.emplace(id, object).second && S_ISREG(object.mode)) {
                chosen[id].content.clear();
            }
        }
        if (seed > 1) {
            chooseStates(chosen, now);
        }
        choosePlaces(chosen, now, seed > 1 ? 0.1 + 0.4 * (seed % 3) : seed);
        MakeFolder(store_);
        store(root_);
        build(chosen, identify(root_), root_);
        RemoveTree(store_);
    }

  private:
    using Id = std::pair<std::int64_t, ino_t>;  // birth time and inode number, which is reused
    using Place = std::pair<Id, std::string>;   // a folder and the name in it; empty: in none
    struct Object {
        mode_t mode = 0;
        std::string content;  // of a file, or the target of a link
        Place place;
    };
    using Objects = std::map<Id, Object>;

    static Id identify(const std::string& path) {
        struct statx status {};
        Check(statx(AT_FDCWD, path.c_str(), AT_SYMLINK_NOFOLLOW, STATX_ALL, &status) == 0,
              "can't read the birth time of " + path);
        return {status.stx_btime.tv_sec * 1000000000 + status.stx_btime.tv_nsec, status.stx_ino};
    }

    Objects snapshot() const {
        Objects objects;
        const auto add = [&](const fs::path& path) {
            struct stat status {};
            lstat(path.c_str(), &status);
            const bool is_link = S_ISLNK(status.st_mode);
            objects[identify(path)] = {status.st_mode,
                                       is_link ? fs::read_symlink(path).string() : ReadFile(path),
                                       {identify(path.parent_path()), path.filename()}};
        };
        add(root_);
        for (const auto& entry : fs::recursive_directory_iterator(
                 root_, fs::directory_options::skip_permission_denied)) {
            add(entry);
        }
        return objects;
    }

    void chooseStates(Objects& chosen, const Objects& now) {
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
    void choosePlaces(Objects& chosen, const Objects& now, double chance) {
        std::map<Id, bool> is_new;
        for (const auto& [id, object] : chosen) {
            is_new[id] = std::bernoulli_distribution(chance)(random_);
        }
        for (bool settled = false; !settled;) {
            settled = true;
            for (const auto& [id, object] : now) {
                const auto is_here = [&place = object.place](const auto& old) {
                    return !old.second.place.second.empty() && old.second.place == place;
                };
                const auto other = std::find_if(synced_.begin(), synced_.end(), is_here);
                if (other != synced_.end() && is_new[id] != is_new[other->first] &&
                    (is_new[id] || now.count(other->first) == 0)) {
                    is_new[id] = is_new[other->first] = false;
                    settled = false;
                }
            }
        }
        for (auto& [id, object] : chosen) {
            const Objects& source = is_new[id] ? now : synced_;
            object.place = source.count(id) != 0 ? source.at(id).place : Place();
        }
    }

    // Where a folder is while the tree is rebuilt.
    std::string stored(const Id& id) const {
        return store_ + "/" + std::to_string(id.first) + "-" + std::to_string(id.second);
    }

    void store(const std::string& folder) const {
        for (const auto& entry : fs::directory_iterator(folder)) {
            if (fs::is_directory(entry.symlink_status())) {
                fs::permissions(entry, fs::perms::owner_all);
                store(entry.path());
                fs::rename(entry, stored(identify(entry.path())));
            } else {
                fs::remove(entry);
            }
        }
    }

    void build(const Objects& objects, const Id& folder, const std::string& path) const {
        for (const auto& [id, object] : objects) {
            const std::string entry = path + "/" + object.place.second;
            const mode_t mode = object.mode & 07777;
            if (object.place.first != folder) {
                continue;
            }
            if (S_ISLNK(object.mode)) {
                MakeLink(object.content, entry);
            } else if (S_ISREG(object.mode)) {
                MakeFile(entry, object.content, mode);
            } else {
                MakeFolder(stored(id));  // unless it was stored
                fs::rename(stored(id), entry);
                build(objects, id, entry);
                chmod(entry.c_str(), mode);
            }
        }
    }

    const std::string root_;
    const std::string store_ = root_ + ".cut";
    Objects synced_ = snapshot();
    std::mt19937 random_;
};

#endif
