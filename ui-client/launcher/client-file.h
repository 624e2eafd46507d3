#ifndef UI_CLIENT_LAUNCHER_CLIENT_FILE_H
#define UI_CLIENT_LAUNCHER_CLIENT_FILE_H

#include <string>

#include "lib/platform/presence.h"

// Look for the client in the application folder at path app (bytes, used unchanged). CantTell when
// the system doesn't let us look (no permission, too many open files, a failing disk).
// Threads: any.

// Whether there is one: a regular file with content, reached without leaving that folder.
platform::Presence FindClient(const std::string& app);

// Whether there is one that may be executed.
platform::Presence FindStartableClient(const std::string& app);

#endif
