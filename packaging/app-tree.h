#ifndef PACKAGING_APP_TREE_H
#define PACKAGING_APP_TREE_H

#include <sys/stat.h>

#include <map>
#include <string>
#include <vector>

// A folder and what is below it, as it was at one moment.
struct AppTree {
    struct Node {
        mode_t mode;             // 0 when it can't be examined
        off_t size;              // of a file, else 0
        std::string target;      // of a link
        std::string stamp;       // differs when the object has been changed or exchanged
        std::string unreadable;  // why it can't be examined or listed; empty when it can
    };

    std::map<std::string, Node> nodes;  // by path below the folder, sorted by bytes

    bool operator==(const AppTree& other) const;
};

// Reads the folder at path; no file in it is opened and no link followed. What can't be read is
// among the nodes and says so.
AppTree ReadTree(const std::string& path);

// Takes out what a desktop leaves in the folders that it shows (.DS_Store and the like), which
// isn't a part of any application, and returns the paths.
std::vector<std::string> TakeOutDroppings(AppTree& tree);

#endif
