#ifndef PACKAGING_PACKAGE_H
#define PACKAGING_PACKAGE_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>

// Packages: archives of an application folder's content, which the launcher's bundle carries.
// Failures are PackageErrors, see app-tree.h. The process must have a UTF-8 locale for its
// characters and the time zone UTC. Threads: one operation at a time.

struct PackageSummary {
    std::size_t entries;
    int build_number;
    bool has_checksum;  // over its content: damage is found before anything damaged is installed
};

// Told how much of the work is done; returns whether to go on.
using Progress = std::function<bool(std::int64_t done, std::int64_t total)>;

// Makes the package out of the application folder app: a zip whose bytes depend on nothing but the
// names, contents, permission bits and link targets in that folder. The client comes last, as the
// launcher takes an application without one for not installed. Atomic: out, which is replaced, is
// the complete package or what it was before.
PackageSummary MakePackage(const std::string& app, const std::string& out,
                           const Progress& progress);

// Checks that the launcher takes the package in this file and that what it installs is complete.
// When the file stands in a bundle, its build number must be the bundle's.
PackageSummary CheckPackage(const std::string& file, const Progress& progress);

#endif
