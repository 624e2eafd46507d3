#ifndef UI_CLIENT_LAUNCHER_RUNNING_CLIENT_H
#define UI_CLIENT_LAUNCHER_RUNNING_CLIENT_H

#include <string>

#include "lib/platform/process-info.h"

// Whether a process, of which the executable is known, runs the client of the application folder at
// path app: its executable, or the script when the client is one, is that very file, or is gone
// from there, or is in the folder of a backup of the application. Threads: any.
bool RunsClient(const platform::ProcessInfo& process, const std::string& app);

#endif
