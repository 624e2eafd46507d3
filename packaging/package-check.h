#ifndef PACKAGING_PACKAGE_CHECK_H
#define PACKAGING_PACKAGE_CHECK_H

#include <string>

#include "packaging/executable-kind.h"
#include "packaging/summary.h"

// A package that the launcher accepts, and whose application is complete.
struct CheckedPackage {
    Summary summary;
    ExecutableKind client;
};

// Unpacks the package in this file into a temporary folder, with the launcher's own code, and
// checks the result. Throws a PackageError with all faults.
CheckedPackage CheckPackage(const std::string& file, const Progress& progress);

#endif
