#include "tests/support/scenario.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <stdexcept>
#include <thread>

namespace fs = std::filesystem;

void Check(bool arranged, const std::string& failure) {
    if (!arranged) {
        throw std::runtime_error(failure);
    }
}

namespace {

std::string Octal(mode_t mode) {
    char text[8];
    std::snprintf(text, sizeof text, "%04o", mode);
    return text;
}

}  // namespace

Folder::Folder(const std::string& parent)
    : path_(fs::canonical(parent).string() + "/tarnwell-test-XXXXXX") {
    Check(mkdtemp(path_.data()) != nullptr, "can't create a folder in " + parent);
    Check(chmod(path_.c_str(), 0755) == 0, "can't set the mode of " + path_);
}

Folder::~Folder() {
    RemoveTree(path_);
}

void MakeFolder(const std::string& path) {
    fs::create_directories(path);
}

void MakeFile(const std::string& path, const std::string& content, mode_t mode) {
    MakeFolder(fs::absolute(path).parent_path());
    std::ofstream file(path, std::ios::binary);
    file << content;
    file.close();
    Check(file.good() && chmod(path.c_str(), mode) == 0, "can't write " + path);
}

void MakeLink(const std::string& target, const std::string& path) {
    MakeFolder(fs::absolute(path).parent_path());
    fs::create_symlink(target, path);
}

void MakeDeepTree(const std::string& path, int depth, mode_t mode) {
    MakeFolder(path);
    int fd = open(path.c_str(), O_RDONLY | O_DIRECTORY);
    for (int level = 0; level < depth; ++level) {
        Check(mkdirat(fd, "d", 0755) == 0, "can't create a folder in " + path);
        const int next = openat(fd, "d", O_RDONLY | O_DIRECTORY);
        fchmod(fd, mode);
        close(fd);
        fd = next;
    }
    close(openat(fd, "file", O_WRONLY | O_CREAT, 0644));
    close(fd);
}

void CopyTree(const std::string& from, const std::string& to) {
    const std::string command = "cp -a '" + from + "' '" + to + "'";
    // NOLINTNEXTLINE(cert-env33-c): a standard tool, with paths that tests choose
    Check(std::system(command.c_str()) == 0, "can't copy " + from);
}

void RemoveTree(const std::string& path) {
    std::error_code error;
    fs::remove_all(path, error);
    if (error) {
        const std::string command =
            "exec 2>&-; chmod -R u+rwX '" + path + "'; rm -rf '" + path + "'";
        static_cast<void>(std::system(command.c_str()));  // NOLINT(cert-env33-c): as above
    }
}

std::string ReadFile(const std::string& path) {
    std::ostringstream text;
    if (fs::is_regular_file(path)) {
        text << std::ifstream(path, std::ios::binary).rdbuf();
    }
    return text.str();
}

bool Exists(const std::string& path) {
    return fs::exists(fs::symlink_status(path));
}

std::string Noise(std::size_t size) {
    std::string noise(size, 0);
    std::generate(noise.begin(), noise.end(), std::minstd_rand());
    return noise;
}

std::string DescribeFolder(mode_t mode) {
    return "folder " + Octal(mode);
}

std::string DescribeFile(mode_t mode, const std::string& content) {
    return "file " + Octal(mode) + ": " +
           (content.size() <= 60 ? content
                                 : std::to_string(content.size()) + " bytes, hash " +
                                       std::to_string(std::hash<std::string>()(content)));
}

FileTree Tree(const std::string& path, bool folder_modes) {
    const auto mode = [](const fs::path& file) {
        return static_cast<mode_t>(fs::status(file).permissions());
    };
    FileTree tree;
    if (folder_modes) {
        tree[""] = DescribeFolder(mode(path));
    }
    for (const fs::directory_entry& entry :
         fs::recursive_directory_iterator(path, fs::directory_options::skip_permission_denied)) {
        std::string& description = tree[entry.path().lexically_relative(path).string()];
        if (entry.is_symlink()) {
            description = "link: " + fs::read_symlink(entry.path()).string();
        } else if (entry.is_directory()) {
            description = folder_modes ? DescribeFolder(mode(entry.path())) : "folder";
        } else {
            description = DescribeFile(mode(entry.path()), ReadFile(entry.path()));
        }
    }
    return tree;
}

AsNobody::AsNobody() : active_(getuid() == 0) {
    const uid_t nobody = 65534;
    const auto unchanged = static_cast<uid_t>(-1);
    // These two calls keep root as the saved user id; not every system has setresuid().
    Check(!active_ || (setreuid(nobody, unchanged) == 0 && seteuid(nobody) == 0),
          "can't switch to another user");
}

AsNobody::~AsNobody() {
    if (active_ && (seteuid(0) != 0 || setreuid(0, 0) != 0)) {
        std::abort();
    }
}

bool WaitFor(const std::function<bool()>& condition) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!condition()) {
        if (std::chrono::steady_clock::now() > deadline) {
            return false;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return true;
}

int EndOf(int status) {
    return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
}

std::vector<std::string> LinesWith(const std::string& text, const std::string& fragment) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);) {
        if (line.find(fragment) != std::string::npos) {
            lines.push_back(line);
        }
    }
    return lines;
}

bool HasOneLine(const std::string& text, const std::string& fragment) {
    return LinesWith(text, fragment).size() == 1;
}

std::string CaptureStderr(const std::function<void()>& code) {
    testing::internal::CaptureStderr();
    code();
    return testing::internal::GetCapturedStderr();
}
