#ifndef LIB_PLATFORM_OPEN_BUNDLE_H
#define LIB_PLATFORM_OPEN_BUNDLE_H

#include <QByteArray>
#include <QString>
#include <string>

namespace platform {

// Asks the system to start the application bundle at path (bytes, used unchanged). The bundle's
// Contents/Info.plist names the executable. If it names none, or isn't a regular file of at most
// 1 MiB in the bundle, the executable has the bundle's name. The program gets no arguments, none of
// our open files and signal settings, starts in the home folder (on macOS in "/"), and is neither
// waited for nor watched. Returns false when the request wasn't accepted: there is no bundle, or no
// regular file in it that can be started. Threads: any.
bool OpenBundle(const std::string& path);

// Returns the value of the top-level key CFBundleExecutable in the text of an Info.plist (XML).
// Empty when there is none, when it isn't a plain file name, and when the text can't be parsed.
// Threads: any.
QString BundleExecutable(const QByteArray& info_plist);

// Returns the string value of a top-level key of a property list (XML). Empty when there is none,
// and when the list can't be parsed up to it. Threads: any.
QString PropertyListText(const QByteArray& list, const QString& wanted);

}  // namespace platform

#endif
