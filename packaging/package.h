#ifndef PACKAGING_PACKAGE_H
#define PACKAGING_PACKAGE_H

#include <string>

#include "packaging/package-writer.h"
#include "packaging/summary.h"

// Packages: archives of an application folder's content, which the launcher's bundle carries.
// Failures are PackageErrors, see fault.h. The process must have a UTF-8 locale for its characters
// and the time zone UTC. Threads: one operation at a time.

struct PackageOptions {
    std::string format = PackageWriter::kDefaultFormat;
    std::string newer_than;  // a package whose build number must be lower; empty for none
};

// Makes the package out of the application folder app. Its bytes depend on nothing but the names,
// contents, permission bits and link targets in that folder. The client comes last, as the launcher
// takes an application without one for not installed. Atomic: out is the complete package, or what
// it was before. Only a package is written over.
Summary MakePackage(const std::string& app, const std::string& out, const PackageOptions& options,
                    const Progress& progress);

// Checks that MakePackage would accept the application folder app; nothing is written. entries is
// what the package would have.
Summary CheckFolder(const std::string& app, const PackageOptions& options);

// Throws unless the package that the options name has a build number lower than this.
void RequireNewer(int build_number, const std::string& where, const PackageOptions& options,
                  const Progress& progress);

#endif
