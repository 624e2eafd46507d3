#ifndef TESTS_SUPPORT_DISK_MODEL_H
#define TESTS_SUPPORT_DISK_MODEL_H

#include <sys/types.h>

#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <utility>

// What would be found below a folder after a power cut. Only what was put on the disk is certain.
// Of the rest, each object is where it was or where it is, but a rename is never half done; each
// file has its old content, its new one, the beginning of that, or none.
class Disk {
  public:
    explicit Disk(std::string root);  // what is there now is on the disk

    // Puts the entries of a folder or the content of a file on the disk; for an empty path,
    // everything.
    void sync(const std::string& path);

    // Makes the folder's content what a power cut leaves. What stays keeps its inode; what comes
    // back is ours. With the seed 0, everything that isn't on the disk is lost; with 1, it is
    // there, but empty; any other one mixes.
    void cut(unsigned seed);

  private:
    using Id = std::pair<std::int64_t, ino_t>;  // with the time of birth: inodes are used again
    using Place = std::pair<Id, std::string>;   // a folder, and the name in it; none: nowhere
    struct Object {
        mode_t mode = 0;
        std::string content;  // of a file; the target of a link
        Place place;
    };
    using Objects = std::map<Id, Object>;

    static Id identify(const std::string& path);
    Objects look() const;
    Object& known(const Id& id, const Objects& now);
    void chooseStates(Objects& chosen, const Objects& now);
    void choosePlaces(Objects& chosen, const Objects& now, double chance);
    void bury(const std::string& folder) const;
    void build(const Objects& objects, const Id& folder, const std::string& path) const;
    std::string graveOf(const Id& id) const;

    const std::string root_;
    const std::string grave_;  // where objects are while there is no folder that they could be in
    Objects synced_;
    std::mt19937 random_;
};

#endif
