#include "packaging/app-tree.h"

#include <QFile>
#include <QSettings>
#include <QString>
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <limits>
#include <set>

#include "lib/install-layout.h"
#include "lib/liblogger/printable.h"
#include "lib/platform/open-bundle.h"

namespace fs = std::filesystem;

namespace {

using Node = AppTree::Node;
using Nodes = std::map<std::string, Node>;
using install_layout::kInfo;
using install_layout::kInfoPlist;

// A Mac takes paths of 1023 bytes; this leaves 223 for the home folder and .Tarnwell/Tarnwell.app.
const std::size_t kMaxPath = 800;
const int kMaxLinks = 32;  // on the way of one path; a Mac follows no more

QString ToQt(const std::string& text) {
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

bool IsUtf8(const std::string& text) {
    return ToQt(text).toUtf8().toStdString() == text;
}

std::string FolderOf(const std::string& name) {
    const std::size_t end = name.rfind('/');
    return end == std::string::npos ? "" : name.substr(0, end);
}

std::string Join(const std::string& above, const std::string& name) {
    return above.empty() ? name : above + "/" + name;
}

// Why an object can't be in a package, and what to do; empty when it can.
std::string Fault(const std::string& path, const Node& node) {
    const QString name = ToQt(path);
    if (!IsUtf8(path)) {
        return "isn't named in UTF-8; rename it";
    }
    if (name.normalized(QString::NormalizationForm_C) != name) {
        return "has a name that isn't in Unicode's composed form (NFC), which other systems would "
               "not find again; rename it";
    }
    if (path.size() > kMaxPath) {
        return "has a path of more than " + std::to_string(kMaxPath) +
               " bytes, which a Mac doesn't take below every home folder; shorten it";
    }
    if (S_ISDIR(node.mode)) {
        return (node.mode & S_IRWXU) == S_IRWXU
                   ? ""
                   : "is a folder that its owner can't read, write and enter, so that no upgrade "
                     "could replace it; chmod u+rwx";
    }
    if (S_ISLNK(node.mode)) {
        return "";
    }
    if (!S_ISREG(node.mode)) {
        return "is a pipe, socket or device, which the launcher refuses; remove it";
    }
    if ((node.mode & (S_ISUID | S_ISGID)) != 0) {
        return "is set-user-id or set-group-id, which the launcher doesn't keep; chmod ug-s";
    }
    return (node.mode & S_IRUSR) != 0 ? "" : "can't be read by its owner; chmod u+r";
}

// == Reading

Node Describe(const std::string& path) {
    struct stat status;
    if (lstat(path.c_str(), &status) != 0) {
        throw PackageError(path, std::string("can't be examined: ") + std::strerror(errno));
    }
    Node node;
    node.mode = status.st_mode;
    node.size = S_ISREG(node.mode) ? status.st_size : 0;
    node.stamp = std::to_string(status.st_ino) + ' ' + std::to_string(status.st_ctime);
    std::error_code error;
    if (S_ISLNK(node.mode)) {
        node.target = fs::read_symlink(path, error).native();
    } else {  // to the nanosecond, which the structure has under another name on each system
        const auto modified = fs::last_write_time(path, error).time_since_epoch();
        node.stamp += ' ' + std::to_string(std::chrono::nanoseconds(modified).count());
    }
    if (error) {
        throw PackageError(path, "can't be read: " + error.message());
    }
    return node;
}

// Sorted, so that the same fault is found first everywhere.
std::set<std::string> ListFolder(const std::string& path) {
    std::set<std::string> names;
    std::error_code error;
    for (fs::directory_iterator entry(path, error), end; !error && entry != end;
         entry.increment(error)) {
        names.insert(entry->path().filename());
    }
    if (error) {
        throw PackageError(path, "can't be listed: " + error.message());
    }
    return names;
}

void ReadFolder(const std::string& app, const std::string& folder, Nodes& nodes) {
    for (const std::string& name : ListFolder(Join(app, folder))) {
        const std::string path = Join(folder, name);
        const Node& node = nodes[path] = Describe(Join(app, path));
        if (Fault(path, node).empty() && S_ISDIR(node.mode)) {
            ReadFolder(app, path, nodes);
        }
    }
}

// == Checking

// Follows a link as the system will where nothing but the application is there. Returns why that
// fails; null when the link leads to something in the application.
const char* LinkFault(const Nodes& nodes, const std::string& link) {
    std::string at = FolderOf(link);
    std::string rest = nodes.at(link).target;
    for (int links = 1; !rest.empty();) {
        if (rest.front() == '/') {
            return "is a link to an absolute path; make it relative";
        }
        const std::string element = rest.substr(0, rest.find('/'));
        rest.erase(0, element.size());
        rest.erase(0, rest.find_first_not_of('/'));
        if (element == "..") {
            if (at.empty()) {
                return "is a link that leads out of the application; let it lead to what is inside";
            }
            at = FolderOf(at);
        } else if (element != ".") {
            const auto node = nodes.find(Join(at, element));
            if (node == nodes.end()) {
                return "is a link to nothing; remove it or add what it leads to";
            }
            if (!S_ISLNK(node->second.mode)) {
                at = node->first;
            } else if (++links > kMaxLinks) {
                return "is a link that leads in a circle; remove it";
            } else {
                const std::string& target = node->second.target;
                rest.insert(0, rest.empty() ? target : target + "/");
            }
        }
    }
    return nullptr;
}

void CheckNodes(const std::string& shown_as, const Nodes& nodes) {
    std::map<QString, std::string> seen;  // without letter case
    for (const auto& [path, node] : nodes) {
        std::string fault = Fault(path, node);
        const auto [other, is_new] = seen.emplace(ToQt(path).toCaseFolded(), path);
        if (fault.empty() && !is_new) {
            fault = "differs from '" + other->second +
                    "' in letter case only, and a Mac's disk would keep one of them; rename it";
        }
        if (!fault.empty()) {
            throw PackageError(Join(shown_as, path), fault);
        }
    }
    for (const auto& [path, node] : nodes) {
        const char* const fault = S_ISLNK(node.mode) ? LinkFault(nodes, path) : nullptr;
        if (fault != nullptr) {
            throw PackageError(Join(shown_as, path), fault);
        }
    }
}

void CheckFile(const std::string& shown_as, const Nodes& nodes, const std::string& name,
               const std::string& advice) {
    const auto node = nodes.find(name);
    if (node == nodes.end() || !S_ISREG(node->second.mode) || node->second.size == 0) {
        const bool there = node != nodes.end();
        throw PackageError(Join(shown_as, name),
                           (there ? "isn't a file with content; " : "is missing; ") + advice);
    }
}

void CheckExecutable(const std::string& shown_as, const Nodes& nodes, const std::string& name,
                     const std::string& advice) {
    CheckFile(shown_as, nodes, name, advice);
    if ((nodes.at(name).mode & S_IXUSR) == 0) {
        throw PackageError(Join(shown_as, name), "isn't executable; chmod 755");
    }
}

// The system starts what the property list names, not what the launcher looks for.
void CheckInfoPlist(const std::string& app, const std::string& shown_as, const Nodes& nodes) {
    CheckFile(shown_as, nodes, kInfoPlist, "without it the application can't be opened");
    QFile file(ToQt(Join(app, kInfoPlist)));
    const QString name =
        file.open(QIODevice::ReadOnly) ? platform::BundleExecutable(file.readAll()) : QString();
    if (name.isEmpty()) {
        throw PackageError(Join(shown_as, kInfoPlist),
                           "isn't an XML property list with the key CFBundleExecutable; add it, or "
                           "convert it with: plutil -convert xml1");
    }
    CheckExecutable(shown_as, nodes, "Contents/MacOS/" + name.toStdString(),
                    "CFBundleExecutable in Contents/Info.plist names it");
}

}  // namespace

PackageError::PackageError(const std::string& where, const std::string& what_and_advice)
    : std::runtime_error(Printable(where + ": " + what_and_advice)) {}

bool AppTree::operator==(const AppTree& other) const {
    const auto same = [](const auto& a, const auto& b) {
        return a.first == b.first && a.second.mode == b.second.mode &&
               a.second.size == b.second.size && a.second.target == b.second.target &&
               a.second.stamp == b.second.stamp;
    };
    return build_number == other.build_number &&
           std::equal(nodes.begin(), nodes.end(), other.nodes.begin(), other.nodes.end(), same);
}

AppTree ReadAppTree(const std::string& app, const std::string& shown_as) {
    std::error_code error;
    if (!IsUtf8(app) || !fs::is_directory(app, error)) {
        throw PackageError(shown_as,
                           "isn't an application folder; name the one that holds Contents");
    }
    AppTree tree;
    ReadFolder(app, "", tree.nodes);
    CheckNodes(shown_as, tree.nodes);
    CheckExecutable(shown_as, tree.nodes, ClientName(), "put the client's executable there");
    CheckInfoPlist(app, shown_as, tree.nodes);
    CheckFile(shown_as, tree.nodes, kInfo, "write the version file, see docs/shipping.md");
    tree.build_number = ReadBuildNumber(Join(app, kInfo), Join(shown_as, kInfo));
    return tree;
}

int ReadBuildNumber(const std::string& info_file, const std::string& shown_as) {
    // The launcher reads it like this, and takes the number up to the first other character.
    const QSettings settings(ToQt(info_file), QSettings::IniFormat);
    const QString text = settings.value(QStringLiteral("Version/build_version")).toString();
    bool is_number = false;
    const int number = text.toInt(&is_number);
    if (!is_number || number <= 0 || QString::number(number) != text) {
        throw PackageError(shown_as,
                           "has no build_version from 1 to " +
                               std::to_string(std::numeric_limits<int>::max()) +
                               " in its group [Version], but '" + text.toStdString() +
                               "'; write the number in digits, greater than the last one shipped");
    }
    return number;
}

std::string ClientName() {
    return install_layout::kClient;
}
