#include "ui-client/launcher/mac/mac-service.h"

#include <signal.h>
#include <unistd.h>

#include <QDir>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "lib/config/config.h"
#include "lib/install-layout.h"
#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "lib/platform/open-bundle.h"
#include "lib/platform/process-info.h"
#include "ui-client/launcher/app-replacement.h"
#include "ui-client/launcher/client-file.h"

#define LOG_SOURCE "mac/mac-service"

namespace {

const ustring log_component("service_debug");

const int kTimeout = 10000;
const int kProbes = 5;              // one a second, before SIGKILL
const std::time_t kStartGrace = 5;  // seconds by which the clocks of files and processes may differ

int BuildNumber(const VerInfo& version) {
    return static_cast<int>(std::strtol(version.build_version.c_str(), nullptr, 10));
}

// The process id in the pid file's entry, or -1 for what must not be signalled: no positive number
// (0 and less address process groups), one that no process can have, and ourselves.
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

// Whether the process can't be the one that wrote the pid file: it was started after that, and it
// isn't the client. Its id was given to it when the client's was free again. In doubt it may be;
// but one whose executable isn't told is another user's.
bool IsAnother(pid_t pid, const ustring& pid_file, ustring client) {
    platform::ProcessInfo process;
    _FILE_INFO_tag file;
    if (!platform::DescribeProcess(pid, process) || GetFileInfo(pid_file, file) != 0 ||
        FSGetRealPath(client) != 0) {
        return false;
    }
    return process.started > file.mtime + kStartGrace && process.executable != client.c_str();
}

bool IsGone(pid_t pid) {
    return kill(pid, 0) != 0 && errno == ESRCH;
}

void EndProcess(pid_t pid) {
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
            // a signal may end the sleep too early
        }
    }
    static_cast<void>(kill(pid, SIGKILL));  // it may have ended meanwhile
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
    const ustring pid_file = Service::GetUserTarnwellInstallPath() + "/ui.pid";
    if (!IsFileExist(pid_file, false)) {
        LOG_MSG_AT(92, DEBUG, "pid file '%s' does not exist, no need to terminate\n",
                   pid_file.c_str());
        return;
    }
    Config config;
    if (config.read(pid_file) < 0) {
        LOG_MSG_AT(97, NOTE, "Failed to read pid file '%s', not exist ?\n", pid_file.c_str());
        return;
    }
    const pid_t pid = ClientPid(config.entries, pid_file);
    if (pid > 0 && !IsAnother(pid, pid_file, user_app_path + "/" + install_layout::kClient)) {
        EndProcess(pid);
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
    const QString path = QDir::homePath() + QStringLiteral("/.Tarnwell/Tarnwell.app");
    return platform::OpenBundle(path) ? 0 : -1;
}

void MacService::LoadSourceVerInfo() {
    Service::LoadSourceVersion();
}

void MacService::LoadTargetVerInfo() {
    Service::LoadTargetVersion();
}
