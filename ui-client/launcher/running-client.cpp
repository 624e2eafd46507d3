#include "ui-client/launcher/running-client.h"

#include <filesystem>
#include <system_error>

#include "lib/install-layout.h"
#include "lib/platform/regular-file.h"

namespace fs = std::filesystem;

namespace {

// Whether a canonical path is that of a client in the application folder or in one of its backups,
// whose names begin with the application's and "_".
bool IsClientPath(const fs::path& path, const fs::path& app) {
    std::error_code error;
    const fs::path relative = path.lexically_relative(fs::canonical(app.parent_path(), error));
    if (error || relative.empty()) {
        return false;
    }
    const std::string folder = relative.begin()->string();
    const std::string name = app.filename().string();
    return (folder == name || folder.compare(0, name.size() + 1, name + "_") == 0) &&
           relative == fs::path(folder) / install_layout::kClient;
}

bool IsScript(const std::string& path, const std::string& app) {
    platform::Descriptor file(-1);
    std::string begin;
    return platform::OpenRegularFile(path.c_str(), file, app.c_str()) == platform::Reading::Done &&
           platform::ReadUpTo(file.get(), 1, begin) && begin == "#!";
}

// The script of an interpreter: its first argument, or the second if the first is an option.
fs::path Script(const platform::ProcessInfo& process) {
    const auto& arguments = process.arguments;
    const std::size_t at = arguments.size() > 2 && arguments[1][0] == '-' ? 2 : 1;
    std::error_code error;
    return at < arguments.size()
               ? fs::weakly_canonical(fs::path(process.folder) / arguments[at], error)
               : fs::path();
}

}  // namespace

bool RunsClient(const platform::ProcessInfo& process, const std::string& app) {
    const std::string client = app + "/" + install_layout::kClient;
    const auto is_run = [&](const struct stat& file) {
        return file.st_dev == process.device && file.st_ino == process.inode;
    };
    struct stat file;
    if (platform::FindRegularFile(client.c_str(), file, app.c_str()) == platform::Reading::Done &&
        is_run(file)) {
        return true;
    }
    // A process in a container may run another file that has the same path there.
    const bool elsewhere =
        !process.executable_gone && stat(process.executable.c_str(), &file) == 0 && !is_run(file);
    if (!elsewhere && IsClientPath(process.executable, app)) {
        return true;
    }
    if (!IsScript(client, app)) {
        return false;
    }
    std::error_code error;
    const fs::path script = Script(process);
    return fs::equivalent(script, client, error) || IsClientPath(script, app);
}
