#ifndef PACKAGING_TREE_CHECK_H
#define PACKAGING_TREE_CHECK_H

#include <set>
#include <string>

#include "packaging/app-tree.h"
#include "packaging/fault.h"

// The faults of a tree that is to be put on a user's disk. Paths are below the tree's folder. What
// is in a faulty folder isn't looked at, so that one cause gives one fault.
class TreeCheck {
  public:
    // Finds what is wrong with every tree, whatever is in it: names that not every system keeps,
    // links that lead elsewhere, modes that keep the owner from using or removing something. The
    // tree must outlive this object.
    explicit TreeCheck(const AppTree& tree);

    const AppTree& tree() const { return tree_; }
    const Faults& faults() const { return faults_; }

    void add(const std::string& path, const std::string& what, const std::string& advice);

    // Whether the object at path, or a folder above it, has a fault.
    bool isFaulty(const std::string& path) const;

    // Adds a fault unless there is a file with content at path, or an executable one. The advice is
    // what to do where there is none. Returns whether it has no fault.
    bool requireFile(const std::string& path, const std::string& advice);
    bool requireExecutable(const std::string& path, const std::string& advice);

  private:
    void checkName(const std::string& path);
    void checkMode(const std::string& path, const AppTree::Node& node);
    void checkLink(const std::string& path);

    const AppTree& tree_;
    Faults faults_;
    std::set<std::string> faulty_;  // the faults' paths
};

#endif
