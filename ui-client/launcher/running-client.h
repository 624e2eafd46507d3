#ifndef UI_CLIENT_LAUNCHER_RUNNING_CLIENT_H
#define UI_CLIENT_LAUNCHER_RUNNING_CLIENT_H

#include <string>

#include "lib/platform/process-info.h"

// Whether a process, whose executable must be known, runs the client of the application folder at
// path app. That is so when its executable, or its script if the client is one, is the client's
// file, was at the client's path before it was removed, or is the client of a backup of the
// application. Threads: any.
bool RunsClient(const platform::ProcessInfo& process, const std::string& app);

#endif
