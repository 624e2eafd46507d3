#ifndef PACKAGING_APP_CHECK_H
#define PACKAGING_APP_CHECK_H

#include <QByteArray>
#include <string>
#include <vector>

#include "packaging/app-tree.h"
#include "packaging/executable-kind.h"
#include "packaging/tree-check.h"

// A client's application that the launcher can install, upgrade and start on every user's machine.
struct Application {
    AppTree tree;                       // without left_out
    std::vector<std::string> left_out;  // files that a desktop left in the folder
    int build_number;
    QByteArray info_plist;  // the text of its property list
    ExecutableKind client;
};

// Reads the application in the folder app. The only files opened are the version file, the property
// list and the executables. Throws a PackageError with all faults; their paths begin with shown_as
// instead of app.
Application ReadApplication(const std::string& app, const std::string& shown_as);

// Adds a fault if no system could start the file at path below root, which must have no fault yet.
ExecutableKind CheckKind(const std::string& root, const std::string& path, TreeCheck& check);

// Whether there is a launcher's bundle in the folder, complete or not.
bool IsBundle(const std::string& folder);

#endif
