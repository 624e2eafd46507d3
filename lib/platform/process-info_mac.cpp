#include "lib/platform/process-info.h"

#include <libproc.h>
#include <sys/stat.h>
#include <sys/sysctl.h>

#include <cstring>

namespace {

void DescribeExecutable(pid_t pid, platform::ProcessInfo& info) {
    char path[PROC_PIDPATHINFO_MAXSIZE];
    if (proc_pidpath(pid, path, sizeof path) <= 0) {
        return;
    }
    struct stat status;
    info.executable = path;
    info.executable_gone = stat(path, &status) != 0;
    if (!info.executable_gone) {
        info.device = status.st_dev;
        info.inode = status.st_ino;
    }
}

// Reads the kernel's copy of what the process was started with: the number of arguments, the path
// of the executable, NULs, then the arguments.
std::vector<std::string> Arguments(pid_t pid) {
    int largest = 0;
    std::size_t size = sizeof largest;
    int name[] = {CTL_KERN, KERN_ARGMAX};
    if (sysctl(name, 2, &largest, &size, nullptr, 0) != 0) {
        return {};
    }
    std::string text(static_cast<std::size_t>(largest), '\0');
    size = text.size();
    int count = 0;
    int process[] = {CTL_KERN, KERN_PROCARGS2, pid};
    if (sysctl(process, 3, text.data(), &size, nullptr, 0) != 0 || size < sizeof count) {
        return {};
    }
    text.resize(size);
    std::memcpy(&count, text.data(), sizeof count);
    std::size_t at = text.find('\0', sizeof count);
    at = at != text.npos ? text.find_first_not_of('\0', at) : at;
    std::vector<std::string> arguments;
    for (int i = 0; i < count && at < text.size(); ++i) {
        arguments.emplace_back(text.c_str() + at);
        at += arguments.back().size() + 1;
    }
    return arguments;
}

}  // namespace

namespace platform {

ProcessInfo DescribeProcess(pid_t pid) {
    ProcessInfo info;
    proc_bsdinfo described;
    if (proc_pidinfo(pid, PROC_PIDTBSDINFO, 0, &described, sizeof described) ==
        static_cast<int>(sizeof described)) {
        info.started = static_cast<std::time_t>(described.pbi_start_tvsec);
    }
    proc_vnodepathinfo folders;
    if (proc_pidinfo(pid, PROC_PIDVNODEPATHINFO, 0, &folders, sizeof folders) ==
        static_cast<int>(sizeof folders)) {
        info.folder = folders.pvi_cdir.vip_path;
    }
    DescribeExecutable(pid, info);
    info.arguments = Arguments(pid);
    return info;
}

}  // namespace platform
