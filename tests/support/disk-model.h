#ifndef TESTS_SUPPORT_DISK_MODEL_H
#define TESTS_SUPPORT_DISK_MODEL_H

#include <sys/types.h>

#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <utility>

// A model of what a power cut leaves below a folder. Only what was synced is certain to be there.
// Any other object is at its old or its new place, but a rename never takes effect in one folder
// only; any other file has its old content, its new content, the beginning of the new content, or
// none.
class Disk {
  public:
    explicit Disk(std::string root);  // what exists now counts as synced

    // Records that the entries of a folder or the content of a file were synced; for an empty path,
    // everything below the root.
    void sync(const std::string& path);

    // Changes the folder's content to what a power cut leaves. Objects that still exist keep their
    // inodes; removed ones that reappear belong to this process's user. With the seed 0, everything
    // that wasn't synced is lost; with 1, it is kept, but new files are empty; with any other seed,
    // the model chooses at random.
    void cut(unsigned seed);

  private:
    using Id = std::pair<std::int64_t, ino_t>;  // birth time and inode number, which is reused
    using Place = std::pair<Id, std::string>;   // a folder and the name in it; empty: in none
    struct Object {
        mode_t mode = 0;
        std::string content;  // of a file, or the target of a link
        Place place;
    };
    using Objects = std::map<Id, Object>;

    static Id identify(const std::string& path);
    Objects snapshot() const;
    Object& known(const Id& id, const Objects& now);
    void chooseStates(Objects& chosen, const Objects& now);
    void choosePlaces(Objects& chosen, const Objects& now, double chance);
    void store(const std::string& folder) const;
    void build(const Objects& objects, const Id& folder, const std::string& path) const;
    std::string stored(const Id& id) const;

    const std::string root_;
    const std::string store_;  // holds the objects while the tree is rebuilt
    Objects synced_;
    std::mt19937 random_;
};

#endif
