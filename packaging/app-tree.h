#ifndef PACKAGING_APP_TREE_H
#define PACKAGING_APP_TREE_H

#include <sys/stat.h>

#include <map>
#include <string>
#include <vector>

// What was below a folder at one moment.
struct AppTree {
    struct Node {
        mode_t mode;             // 0 when it can't be examined
        off_t size;              // of a file, else 0
        std::string target;      // of a link
        std::string stamp;       // differs when the object was changed or replaced
        std::string unreadable;  // why it can't be examined or listed; empty when it can
    };

    std::map<std::string, Node> nodes;  // by path below the folder, sorted by bytes

    bool operator==(const AppTree& other) const;
};

// Reads the folder at path. No file in it is opened and no link followed. What can't be read is
// among the nodes, with the reason.
AppTree ReadTree(const std::string& path);

// Removes from the tree the files that desktops leave in folders (.DS_Store and the like), which
// aren't part of any application. Returns their paths.
std::vector<std::string> RemoveDesktopFiles(AppTree& tree);

#endif
