#include "lib/platform/process-info.h"

#include <libproc.h>

namespace platform {

bool DescribeProcess(pid_t pid, ProcessInfo& info) {
    proc_bsdinfo described;
    char path[PROC_PIDPATHINFO_MAXSIZE];
    if (proc_pidinfo(pid, PROC_PIDTBSDINFO, 0, &described, sizeof described) !=
        static_cast<int>(sizeof described)) {
        return false;
    }
    info.started = static_cast<std::time_t>(described.pbi_start_tvsec);
    info.executable = proc_pidpath(pid, path, sizeof path) > 0 ? path : "";
    return true;
}

}  // namespace platform
