#ifndef LIB_PLATFORM_OPEN_BUNDLE_H
#define LIB_PLATFORM_OPEN_BUNDLE_H

#include <QByteArray>
#include <QString>
#include <string>

namespace platform {

// Asks the system to start the application bundle at path, whose bytes are used as they are. Which
// executable runs is decided by the bundle's Contents/Info.plist, or by the bundle's name when that
// names none or isn't a regular file of at most 1 MiB in the bundle. The program gets no arguments,
// no open files and no signal settings of ours, starts in the home folder (on macOS in the root),
// and is neither waited for nor watched. Returns false when the request wasn't accepted: no bundle,
// or no regular file in it that can be started. Threads: any.
bool OpenBundle(const std::string& path);

// The executable's name in the text of an Info.plist (XML): the value of the top-level key
// CFBundleExecutable, empty when there is none, when it isn't a plain file name, and when the text
// can't be read. Threads: any.
QString BundleExecutable(const QByteArray& info_plist);

// The string that a top-level key of a property list (XML) has; empty when it has none, and when
// the list can't be read that far. Threads: any.
QString PropertyListText(const QByteArray& list, const QString& wanted);

}  // namespace platform

#endif
