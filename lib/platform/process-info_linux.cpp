#include "lib/platform/process-info.h"

#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "lib/platform/regular-file.h"

namespace {

// When the system was started, in seconds since the epoch; 0 when it doesn't say.
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

// When the process was started, in clock ticks since the system started; -1 when that isn't known.
long StartTicks(const std::string& folder) {
    std::ifstream stat(folder + "/stat");
    std::string line;
    std::getline(stat, line);
    const std::size_t name_end = line.rfind(')');  // the name may contain blanks and brackets
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

std::time_t StartTime(const std::string& folder) {
    const long boot = BootTime();
    const long ticks = StartTicks(folder);
    return boot > 0 && ticks >= 0 ? boot + ticks / sysconf(_SC_CLK_TCK) : 0;
}

std::string LinkTarget(const std::string& link) {
    char path[PATH_MAX];
    const ssize_t size = readlink(link.c_str(), path, sizeof path);
    return std::string(path, size > 0 ? static_cast<std::size_t>(size) : 0);
}

void DescribeExecutable(const std::string& link, platform::ProcessInfo& info) {
    struct stat status;
    if (stat(link.c_str(), &status) == 0) {
        info.device = status.st_dev;
        info.inode = status.st_ino;
    }
    info.executable = LinkTarget(link);
    const std::string mark = " (deleted)";
    const std::size_t size = info.executable.size();
    if (size > mark.size() && info.executable.compare(size - mark.size(), size, mark) == 0) {
        info.executable.resize(size - mark.size());
        info.executable_gone = true;
    }
}

std::vector<std::string> Arguments(const std::string& file) {
    platform::Descriptor opened(-1);
    std::string text;
    if (platform::OpenRegularFile(file.c_str(), opened) == platform::Reading::Done) {
        platform::ReadUpTo(opened.get(), std::size_t{3} * PATH_MAX, text);
    }
    std::vector<std::string> arguments;
    std::istringstream stream(text);
    for (std::string argument; std::getline(stream, argument, '\0');) {
        arguments.push_back(argument);
    }
    return arguments;
}

}  // namespace

namespace platform {

ProcessInfo DescribeProcess(pid_t pid) {
    const std::string process = "/proc/" + std::to_string(pid);
    ProcessInfo info;
    info.started = StartTime(process);
    DescribeExecutable(process + "/exe", info);
    info.arguments = Arguments(process + "/cmdline");
    info.folder = LinkTarget(process + "/cwd");
    return info;
}

}  // namespace platform
