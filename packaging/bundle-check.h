#ifndef PACKAGING_BUNDLE_CHECK_H
#define PACKAGING_BUNDLE_CHECK_H

#include <string>

#include "packaging/summary.h"

// Checks a launcher's bundle and everything in it: that every user of a machine can run it, that
// the launcher accepts its package, and that its build numbers agree. Throws a PackageError with
// all faults. Returns the package's summary.
Summary CheckBundle(const std::string& bundle, const Progress& progress);

// The bundle that this package file is in; empty when it isn't at the place of a bundle's package.
std::string BundleOf(const std::string& package);

#endif
