#ifndef PACKAGING_BUILD_NUMBER_H
#define PACKAGING_BUILD_NUMBER_H

#include <QByteArray>
#include <string>

#include "packaging/fault.h"

// The files that name and number an application. Both readings return false and say why in fault,
// all but where, when the launcher couldn't use the file on every user's machine.

// Reads the build number of a version file. A number that the launcher would understand, but not as
// it is written there, is refused.
bool ReadBuildNumber(const std::string& file, int& number, Fault& fault);

// Reads a whole property list, which must be XML that names an executable.
bool ReadInfoPlist(const std::string& file, QByteArray& text, Fault& fault);

#endif
