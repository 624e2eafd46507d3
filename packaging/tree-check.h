#ifndef PACKAGING_TREE_CHECK_H
#define PACKAGING_TREE_CHECK_H

#include <set>
#include <string>

#include "packaging/app-tree.h"
#include "packaging/fault.h"

// The faults of a tree that is to be installed on a user's disk. Paths are relative to the tree's
// folder. The content of a faulty folder isn't checked, so that one cause gives one fault.
class TreeCheck {
  public:
    // Makes the checks that apply to any tree: for names that not every system can store, for links
    // that lead elsewhere, and for modes that keep the owner from using or removing something. The
    // tree must outlive this object.
    explicit TreeCheck(const AppTree& tree);

    const AppTree& tree() const { return tree_; }
    const Faults& faults() const { return faults_; }

    void add(const std::string& path, const std::string& what, const std::string& advice);

    // Whether the object at path, or a folder above it, has a fault.
    bool isFaulty(const std::string& path) const;

    // Add a fault unless a file with content, or one that is also executable, is at path. advice
    // says what to do if there is none. Return whether path has no fault.
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
