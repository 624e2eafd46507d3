#ifndef PACKAGING_BUNDLE_CHECK_H
#define PACKAGING_BUNDLE_CHECK_H

#include <string>

#include "packaging/summary.h"

// Checks a launcher's bundle with all that is in it: that every user of a machine can run it, that
// its package is accepted, and that its numbers agree. Throws a PackageError with all faults. The
// summary is that of the package.
Summary CheckBundle(const std::string& bundle, const Progress& progress);

// The bundle whose package this file is, by its place; empty when it is in none.
std::string BundleOf(const std::string& package);

#endif
