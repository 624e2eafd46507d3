#ifndef PACKAGING_BUILD_NUMBER_H
#define PACKAGING_BUILD_NUMBER_H

#include <QByteArray>
#include <string>

#include "packaging/fault.h"

// Read the files that name and number an application. All return false when the launcher couldn't
// use the file on every user's machine, and set fault except for its path.

// Reads the build number of a version file. A number that the launcher would read differently from
// how it is written is refused.
bool ReadBuildNumber(const std::string& file, int& number, Fault& fault);

// The same for the text of a version file.
bool ParseBuildNumber(const std::string& text, int& number, Fault& fault);

// Reads a property list, which must be XML and name an executable.
bool ReadInfoPlist(const std::string& file, QByteArray& text, Fault& fault);

#endif
