#ifndef PACKAGING_PACKAGE_H
#define PACKAGING_PACKAGE_H

#include <string>

#include "packaging/package-writer.h"
#include "packaging/summary.h"

// Packages: archives of an application folder's content, which the launcher's bundle carries.
// Failures are PackageErrors, see fault.h. The process must have set a UTF-8 locale (LC_CTYPE) and
// the time zone UTC. Threads: one operation at a time.

struct PackageOptions {
    std::string format = PackageWriter::kDefaultFormat;
    std::string newer_than;  // a package whose build number must be lower; empty for none
};

// Packs the application folder app into out. The bytes depend only on the names, contents,
// permission bits and link targets in that folder. The client comes last, because without it the
// launcher considers the application not installed. Atomic: out is the complete package, or what it
// was before. Nothing but a package is overwritten.
Summary MakePackage(const std::string& app, const std::string& out, const PackageOptions& options,
                    const Progress& progress);

// Checks that MakePackage would accept the application folder app; nothing is written. In the
// summary, entries is the number that the package would have.
Summary CheckFolder(const std::string& app, const PackageOptions& options);

// Throws unless build_number, of what is at where, is greater than that of options.newer_than. Does
// nothing if that is empty.
void RequireNewer(int build_number, const std::string& where, const PackageOptions& options,
                  const Progress& progress);

#endif
