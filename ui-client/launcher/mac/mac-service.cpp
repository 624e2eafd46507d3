#include "ui-client/launcher/mac/mac-service.h"

#include <signal.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <limits>

#include "lib/config/config.h"
#include "lib/install-layout.h"
#include "lib/liblogger/log.h"
#include "lib/platform/open-bundle.h"
#include "lib/platform/process-info.h"
#include "lib/platform/regular-file.h"
#include "ui-client/launcher/app-replacement.h"
#include "ui-client/launcher/client-file.h"
#include "ui-client/launcher/running-client.h"

#define LOG_SOURCE "mac/mac-service"

namespace {

using platform::Reading;

const ustring log_component("service_debug");

const int kTimeout = 10000;
const int kProbes = 5;                // one a second, before SIGKILL
const std::time_t kStartInexact = 1;  // seconds; see ProcessInfo::started

int BuildNumber(const VerInfo& version) {
    return static_cast<int>(std::strtol(version.build_version.c_str(), nullptr, 10));
}

// The process id in the pid file's entry. -1 for what must not be signalled: anything but a
// positive number (0 and less address process groups), an id that no process can have, and our own.
pid_t ClientPid(const std::map<ustring, ustring>& entries, const ustring& pid_file) {
    const auto entry = entries.find("pid");
    const char* const text = entry != entries.end() ? entry->second.c_str() : "";
    const long pid = std::strtol(text, nullptr, 10);
    if (pid <= 0 || pid > std::numeric_limits<pid_t>::max() || pid == getpid()) {
        LOG_MSG(WARNING, "pid file '%s' names no client: pid '%s'\n", pid_file.c_str(), text);
        return -1;
    }
    return static_cast<pid_t>(pid);
}

// Whether the process is the client of this application folder that wrote the pid file at that
// time, and not another process that got its id later. If the process's executable can be read, it
// decides; otherwise the time of the start does. True in doubt: a process that can't be examined
// usually belongs to another user and can't be signalled anyway.
bool IsClient(pid_t pid, std::time_t written, const ustring& app) {
    const platform::ProcessInfo process = platform::DescribeProcess(pid);
    if (!process.executable.empty()) {
        if (RunsClient(process, app.c_str())) {
            return true;
        }
        LOG_MSG(DEBUG, "process %d is not terminated: it runs '%s', not the client\n", +pid,
                process.executable.c_str());
        return false;
    }
    if (process.started <= std::min(written, std::time(nullptr)) + kStartInexact) {
        return true;
    }
    LOG_MSG(DEBUG, "process %d is not terminated: it was started after the pid file was written\n",
            +pid);
    return false;
}

bool IsGone(pid_t pid) {
    return kill(pid, 0) != 0 && errno == ESRCH;
}

// Ends the client. Checks it again before SIGKILL, because another process may have its id by then.
void EndClient(pid_t pid, std::time_t written, const ustring& app) {
    if (kill(pid, SIGTERM) != 0) {
        if (errno == ESRCH) {
            return;
        }
        LOG_MSG_AT(112, ERROR, "kill: %s (%d)\n", strerror(errno), errno);
    }
    for (int probe = 0; probe < kProbes; ++probe) {
        if (IsGone(pid)) {
            return;
        }
        for (unsigned left = 1; left > 0; left = sleep(left)) {
            // a signal can end the sleep early
        }
    }
    if (IsClient(pid, written, app)) {
        static_cast<void>(kill(pid, SIGKILL));  // it may have ended meanwhile
    }
}

}  // namespace

MacService::MacService() {
    timeout = kTimeout;
    user_app_path = Service::GetUserTarnwellAppInstallPath();
}

MacService* MacService::GetInstace() {
    static MacService instance;
    return &instance;
}

void MacService::PreUpgrade() {
    Replacement();
    Service::LoadTargetVersion();
    Service::LoadSourceVersion();
    LOG_MSG_AT(74, DEBUG, "Source version: ('%s', '%s')\n", source_version.build_version.c_str(),
               source_version.icon_overlay_version.c_str());
    LOG_MSG_AT(75, DEBUG, "Target version: ('%s', '%s')\n", target_version.build_version.c_str(),
               target_version.icon_overlay_version.c_str());
}

bool MacService::IsNeedUpgrade() {
    const int source = BuildNumber(source_version);
    const int target = BuildNumber(target_version);
    LOG_MSG_AT(141, DEBUG, "source version = %d, target version = %d\n", source, target);
    if (!PerUserBinPathExist() ||
        Replacement().condition() == AppReplacement::Condition::Incomplete) {
        return true;
    }
    return source_is_known && target > source;
}

int MacService::HandlePackageUpgrade() {
    if (PerUserBinPathExist()) {
        LOG_MSG_AT(154, DEBUG, "local appdata exist\n");
        if (Replacement().condition() != AppReplacement::Condition::Blocked) {
            StopService();
        }
    }
    return PrepareUserEnv();
}

void MacService::StopService() {
    const ustring folder = Service::GetUserTarnwellInstallPath();
    const ustring pid_file = folder + "/" + install_layout::kPidFile;
    struct stat status;
    const Reading found = platform::FindRegularFile(pid_file.c_str(), status, folder.c_str());
    if (found == Reading::Missing) {
        LOG_MSG_AT(92, DEBUG, "pid file '%s' does not exist, no need to terminate\n",
                   pid_file.c_str());
        return;
    }
    Config config;
    if (found != Reading::Done || config.read(pid_file, folder.c_str()) < 0) {
        LOG_MSG_AT(97, NOTE, "Failed to read pid file '%s', not exist ?\n", pid_file.c_str());
        return;
    }
    const pid_t pid = ClientPid(config.entries, pid_file);
    if (pid > 0 && IsClient(pid, status.st_mtime, user_app_path)) {
        EndClient(pid, status.st_mtime, user_app_path);
    }
}

void MacService::PostUpgrade() {
    if (!Replacement().MayStart()) {
        LOG_MSG(ERROR, "another launcher is replacing the application and will start it\n");
    } else if (LaunchPerUserBin() < 0) {
        LOG_MSG_AT(80, ERROR, "Failed to launch Tarnwell UI\n");
    }
}

bool MacService::PerUserBinPathExist() {
    return FindClient(user_app_path.c_str()) != platform::Presence::NotThere;
}

int MacService::LaunchPerUserBin() {
    return platform::OpenBundle(Service::GetUserTarnwellAppInstallPath().c_str()) ? 0 : -1;
}

void MacService::LoadSourceVerInfo() {
    Service::LoadSourceVersion();
}

void MacService::LoadTargetVerInfo() {
    Service::LoadTargetVersion();
}
