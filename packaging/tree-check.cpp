#include "packaging/tree-check.h"

#include <QString>

namespace {

// A Mac accepts paths of 1023 bytes; this leaves 223 for the home folder and
// .Tarnwell/Tarnwell.app.
const std::size_t kMaxPath = 800;
const int kMaxLinks = 32;  // in one path; macOS follows no more

std::string FolderOf(const std::string& name) {
    const std::size_t end = name.rfind('/');
    return end == std::string::npos ? "" : name.substr(0, end);
}

std::string Join(const std::string& above, const std::string& name) {
    return above.empty() ? name : above + "/" + name;
}

}  // namespace

TreeCheck::TreeCheck(const AppTree& tree) : tree_(tree) {
    std::map<QString, std::string> seen;  // without letter case
    for (const auto& [path, node] : tree.nodes) {
        const auto [other, is_new] =
            seen.emplace(QString::fromStdString(path).toCaseFolded(), path);
        if (isFaulty(path)) {
            continue;
        }
        checkName(path);
        checkMode(path, node);
        if (!is_new) {
            add(path,
                "differs from '" + other->second +
                    "' in letter case only, and a Mac's disk would keep one of them",
                "rename it");
        }
    }
    for (const auto& [path, node] : tree.nodes) {
        if (S_ISLNK(node.mode) && !isFaulty(path)) {
            checkLink(path);
        }
    }
}

void TreeCheck::add(const std::string& path, const std::string& what, const std::string& advice) {
    faults_.push_back({path, what, advice});
    faulty_.insert(path);
}

bool TreeCheck::isFaulty(const std::string& path) const {
    for (std::string above = path; !above.empty(); above = FolderOf(above)) {
        if (faulty_.count(above) != 0) {
            return true;
        }
    }
    return false;
}

void TreeCheck::checkName(const std::string& path) {
    const QString name = QString::fromStdString(path);
    if (name.toStdString() != path) {
        add(path, "isn't named in UTF-8", "rename it");
    } else if (name.normalized(QString::NormalizationForm_C) != name) {
        add(path,
            "has a name that isn't in Unicode's composed form (NFC), so other systems may not find "
            "it",
            "rename it");
    } else if (path.size() > kMaxPath) {
        add(path,
            "has a path of more than " + std::to_string(kMaxPath) +
                " bytes, too long for a Mac below every home folder",
            "shorten it");
    }
}

void TreeCheck::checkMode(const std::string& path, const AppTree::Node& node) {
    const mode_t mode = node.mode;
    if (S_ISDIR(mode) && (mode & S_IRWXU) != S_IRWXU) {
        add(path,
            "is a folder that its owner can't read, write and enter, so that no upgrade could "
            "replace it",
            "chmod u+rwx");
    } else if (!node.unreadable.empty()) {
        add(path, "can't be read: " + node.unreadable, "");
    } else if (!S_ISDIR(mode) && !S_ISLNK(mode) && !S_ISREG(mode)) {
        add(path, "is a pipe, socket or device, which the launcher refuses", "remove it");
    } else if (S_ISREG(mode) && (mode & (S_ISUID | S_ISGID)) != 0) {
        add(path, "is set-user-id or set-group-id, which the launcher doesn't keep", "chmod ug-s");
    } else if (S_ISREG(mode) && (mode & S_IRUSR) == 0) {
        add(path, "can't be read by its owner", "chmod u+r");
    }
}

// Follows a link as the system would if there were nothing outside the tree.
void TreeCheck::checkLink(const std::string& path) {
    std::string at = FolderOf(path);
    std::string rest = tree_.nodes.at(path).target;
    for (int links = 1; !rest.empty();) {
        if (rest.front() == '/') {
            return add(path, "is a link to an absolute path", "make it relative");
        }
        const std::string element = rest.substr(0, rest.find('/'));
        rest.erase(0, element.size());
        rest.erase(0, rest.find_first_not_of('/'));
        if (element == "..") {
            if (at.empty()) {
                return add(path, "is a link that leads out of the application",
                           "change its target to one inside");
            }
            at = FolderOf(at);
        } else if (element != ".") {
            const std::string next = Join(at, element);
            const auto node = tree_.nodes.find(next);
            if (node == tree_.nodes.end()) {
                return isFaulty(next)
                           ? void()
                           : add(path, "is a link to nothing", "remove it, or add its target");
            }
            if (!S_ISLNK(node->second.mode)) {
                at = next;
            } else if (++links > kMaxLinks) {
                return add(path, "is a link that leads in a circle", "remove it");
            } else {
                const std::string& target = node->second.target;
                rest.insert(0, rest.empty() ? target : target + "/");
            }
        }
    }
}

bool TreeCheck::requireFile(const std::string& path, const std::string& advice) {
    if (isFaulty(path)) {
        return false;
    }
    const auto node = tree_.nodes.find(path);
    if (node == tree_.nodes.end()) {
        add(path, "is missing", advice);
    } else if (!S_ISREG(node->second.mode) || node->second.size == 0) {
        add(path, "isn't a file with content", advice);
    }
    return !isFaulty(path);
}

bool TreeCheck::requireExecutable(const std::string& path, const std::string& advice) {
    if (requireFile(path, advice) && (tree_.nodes.at(path).mode & S_IXUSR) == 0) {
        add(path, "isn't executable", "chmod 755");
    }
    return !isFaulty(path);
}
