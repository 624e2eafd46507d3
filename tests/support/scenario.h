#ifndef TESTS_SUPPORT_SCENARIO_H
#define TESTS_SUPPORT_SCENARIO_H

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/types.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

// Helpers for tests on real files. Those that create something throw when they fail, which fails
// the test with the reason. Check throws std::runtime_error(failure) unless arranged is true.
void Check(bool arranged, const std::string& failure);

// A new folder with the mode 0755. The destructor removes it with its content.
class Folder {
  public:
    explicit Folder(const std::string& parent = "/tmp");
    ~Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    const std::string& path() const { return path_; }
    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

  private:
    std::string path_;
};

// These also create missing parent folders.
void MakeFolder(const std::string& path);
void MakeFile(const std::string& path, const std::string& content = "", mode_t mode = 0644);
void MakeLink(const std::string& target, const std::string& path);
// Creates a folder and in it a chain of folders named "d", which may be longer than a path can be,
// with a file in the last one. All but the last one get this mode.
void MakeDeepTree(const std::string& path, int depth, mode_t mode = 0755);

// Copies a folder, a file or a link with its mode, times and owner.
void CopyTree(const std::string& from, const std::string& to);
// Removes an object with its content, even if folders in it deny their owner access.
void RemoveTree(const std::string& path);

std::string ReadFile(const std::string& path);  // empty if there is no regular file
bool Exists(const std::string& path);           // also true for a dangling link
std::string Noise(std::size_t size);            // incompressible, the same in each run

// Describes each object in a folder, by relative path: "folder", "file 0644: content" or
// "link: target". Content of more than 60 bytes is replaced by its size and hash. With
// folder_modes, folders are described with their modes ("folder 0755"), and the folder itself has
// an empty path.
using FileTree = std::map<std::string, std::string>;
FileTree Tree(const std::string& path, bool folder_modes = false);
std::string DescribeFolder(mode_t mode);
std::string DescribeFile(mode_t mode, const std::string& content);

// Runs this process as a user other than root, because root bypasses permissions. Does nothing if
// it isn't root.
class AsNobody {
  public:
    AsNobody();
    ~AsNobody();
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;

  private:
    bool active_;
};

// Limits the number of descriptors that this process can have open.
class FewDescriptors {
  public:
    explicit FewDescriptors(rlim_t limit = 100) {
        getrlimit(RLIMIT_NOFILE, &saved_);
        const rlimit few = {limit, saved_.rlim_max};
        setrlimit(RLIMIT_NOFILE, &few);
    }
    ~FewDescriptors() { setrlimit(RLIMIT_NOFILE, &saved_); }
    FewDescriptors(const FewDescriptors&) = delete;
    FewDescriptors& operator=(const FewDescriptors&) = delete;

  private:
    rlimit saved_{};
};

// Waits until the condition is true. Returns false after a minute.
bool WaitFor(const std::function<bool()>& condition);

// How a process ended, from its wait status: the exit code, or 1000 plus the signal.
int EndOf(int status);

// The lines of a text that contain the fragment, and whether there is exactly one.
std::vector<std::string> LinesWith(const std::string& text, const std::string& fragment);
bool HasOneLine(const std::string& text, const std::string& fragment);

// Runs the code and returns what it writes to standard error.
std::string CaptureStderr(const std::function<void()>& code);

#endif
