#include "packaging/app-tree.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <filesystem>
#include <tuple>

namespace fs = std::filesystem;

namespace {

using Node = AppTree::Node;

Node Describe(const std::string& path) {
    Node node = {};
    struct stat status;
    if (lstat(path.c_str(), &status) != 0) {
        node.unreadable = std::strerror(errno);
        return node;
    }
    node.mode = status.st_mode;
    node.size = S_ISREG(node.mode) ? status.st_size : 0;
    node.stamp = std::to_string(status.st_ino) + ' ' + std::to_string(status.st_ctime);
    std::error_code error;
    if (S_ISLNK(node.mode)) {
        node.target = fs::read_symlink(path, error).native();
    } else {  // to the nanosecond; in struct stat each system has another name for that field
        const auto modified = fs::last_write_time(path, error).time_since_epoch();
        node.stamp += ' ' + std::to_string(std::chrono::nanoseconds(modified).count());
    }
    if (error) {
        node.unreadable = error.message();
    }
    return node;
}

// Adds the content of the folder to the nodes. Returns why it can't be listed, or "".
std::string ReadFolder(const fs::path& root, const std::string& folder,
                       std::map<std::string, Node>& nodes) {
    std::error_code error;
    for (fs::directory_iterator entry(root / folder, error), end; !error && entry != end;
         entry.increment(error)) {
        const std::string path = folder + entry->path().filename().native();
        Node& node = nodes[path] = Describe(root / path);
        if (S_ISDIR(node.mode)) {
            node.unreadable = ReadFolder(root, path + "/", nodes);
        }
    }
    return error ? error.message() : "";
}

bool IsDesktopFile(const std::string& path) {
    const std::string name = path.substr(path.rfind('/') + 1);
    return name == ".DS_Store" || name == "Thumbs.db" || name == "desktop.ini" ||
           name.rfind("._", 0) == 0;  // a file's metadata, on a disk that can't store it
}

}  // namespace

bool AppTree::operator==(const AppTree& other) const {
    const auto same = [](const auto& a, const auto& b) {
        const auto facts = [](const Node& node) {
            return std::tie(node.mode, node.size, node.target, node.stamp, node.unreadable);
        };
        return a.first == b.first && facts(a.second) == facts(b.second);
    };
    return std::equal(nodes.begin(), nodes.end(), other.nodes.begin(), other.nodes.end(), same);
}

AppTree ReadTree(const std::string& path) {
    AppTree tree;
    const std::string unreadable = ReadFolder(path, "", tree.nodes);
    if (!unreadable.empty()) {
        tree.nodes["."].unreadable = unreadable;
    }
    return tree;
}

std::vector<std::string> RemoveDesktopFiles(AppTree& tree) {
    std::vector<std::string> paths;
    for (auto node = tree.nodes.begin(); node != tree.nodes.end();) {
        if (S_ISREG(node->second.mode) && IsDesktopFile(node->first)) {
            paths.push_back(node->first);
            node = tree.nodes.erase(node);
        } else {
            ++node;
        }
    }
    return paths;
}
