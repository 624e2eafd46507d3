#include "lib/platform/process-info.h"

#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <fstream>
#include <sstream>

namespace {

// When the system was started, seconds since the epoch; 0 when it doesn't say.
long BootTime() {
    std::ifstream stat("/proc/stat");
    std::string line;
    while (std::getline(stat, line)) {
        if (line.compare(0, 6, "btime ") == 0) {
            return std::strtol(line.c_str() + 6, nullptr, 10);
        }
    }
    return 0;
}

// When the process was started, in clock ticks since the system was; -1 when that isn't known.
long StartTicks(const std::string& folder) {
    std::ifstream stat(folder + "/stat");
    std::string line;
    std::getline(stat, line);
    const std::size_t name_end = line.rfind(')');  // the name may hold blanks and brackets itself
    if (name_end == std::string::npos) {
        return -1;
    }
    std::istringstream fields(line.substr(name_end + 1));
    std::string skipped;
    for (int field = 3; field < 22; ++field) {
        fields >> skipped;
    }
    long ticks = -1;
    return fields >> ticks ? ticks : -1;
}

std::string Executable(const std::string& folder) {
    char path[PATH_MAX];
    const ssize_t size = readlink((folder + "/exe").c_str(), path, sizeof path);
    std::string executable(path, size > 0 ? static_cast<std::size_t>(size) : 0);
    const std::string replaced = " (deleted)";
    if (executable.size() > replaced.size() &&
        executable.compare(executable.size() - replaced.size(), replaced.size(), replaced) == 0) {
        executable.resize(executable.size() - replaced.size());
    }
    return executable;
}

}  // namespace

namespace platform {

bool DescribeProcess(pid_t pid, ProcessInfo& info) {
    const std::string folder = "/proc/" + std::to_string(pid);
    const long boot = BootTime();
    const long ticks = StartTicks(folder);
    info.executable = Executable(folder);
    info.started = boot + ticks / sysconf(_SC_CLK_TCK);
    return boot > 0 && ticks >= 0;
}

}  // namespace platform
