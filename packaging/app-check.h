#ifndef PACKAGING_APP_CHECK_H
#define PACKAGING_APP_CHECK_H

#include <QByteArray>
#include <string>
#include <vector>

#include "packaging/app-tree.h"
#include "packaging/executable-kind.h"
#include "packaging/tree-check.h"

// A client's application that the launcher could install, upgrade and start on every user's
// machine.
struct Application {
    AppTree tree;                       // without what was left out
    std::vector<std::string> left_out;  // what a desktop left in the folder
    int build_number;
    QByteArray info_plist;  // the text of its property list
    ExecutableKind client;
};

// Reads the application in the folder app, of whose files only the version file, the property list
// and the beginning of the executables are opened. Throws a PackageError with all its faults, which
// call the folder shown_as.
Application ReadApplication(const std::string& app, const std::string& shown_as);

// Adds a fault unless the file at path, which must have none, can be started by a system.
ExecutableKind CheckKind(const std::string& root, const std::string& path, TreeCheck& check);

// Whether there is a launcher's bundle in the folder, complete or not.
bool IsBundle(const std::string& folder);

#endif
