#ifndef PACKAGING_APP_TREE_H
#define PACKAGING_APP_TREE_H

#include <sys/stat.h>

#include <map>
#include <stdexcept>
#include <string>

// What keeps an application from being packed, or a package from being taken: one line that says
// where it is, what it is and what to do about it. Bytes that would break the line are escaped.
class PackageError : public std::runtime_error {
  public:
    PackageError(const std::string& where, const std::string& what_and_advice);
};

// An application folder as it was at one moment.
struct AppTree {
    struct Node {
        mode_t mode;
        off_t size;
        std::string target;  // of a link
        std::string stamp;   // differs when the object has been changed or exchanged
    };

    std::map<std::string, Node> nodes;  // by path below the folder, sorted by bytes
    int build_number;

    bool operator==(const AppTree& other) const;
};

// Reads the application in the folder app. Throws a PackageError for the first thing that the
// launcher couldn't install, upgrade or start on every user's machine. Of the files, only the
// version file and the property list are opened. The error calls the folder shown_as.
AppTree ReadAppTree(const std::string& app, const std::string& shown_as);

// The build number in a version file. Throws a PackageError when the launcher couldn't compare it.
int ReadBuildNumber(const std::string& info_file, const std::string& shown_as);

// The path of the client below an application folder.
std::string ClientName();

#endif
