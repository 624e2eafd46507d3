#ifndef TESTS_SUPPORT_SCENARIO_H
#define TESTS_SUPPORT_SCENARIO_H

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/types.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

// A small vocabulary for tests on real files. What can't be arranged throws, which fails the test
// with the reason.
void Check(bool arranged, const std::string& failure);

// A folder of one's own, removed with all it holds at the end. It can be entered by every user.
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

// These make the folders above as well.
void MakeFolder(const std::string& path);
void MakeFile(const std::string& path, const std::string& content = "", mode_t mode = 0644);
void MakeLink(const std::string& target, const std::string& path);
// Makes a chain of folders named "d", longer than a path may be, with a file at its end. All but
// the last one have this mode.
void MakeDeepTree(const std::string& path, int depth, mode_t mode = 0755);

// Copies a folder, a file or a link with its mode, times and owner.
void CopyTree(const std::string& from, const std::string& to);
// Removes what is there, also from folders that may not be read or changed.
void RemoveTree(const std::string& path);

std::string ReadFile(const std::string& path);  // empty when there is no regular one
bool Exists(const std::string& path);           // a dangling link does
std::string Noise(std::size_t size);            // bytes that can't be compressed, always the same

// A folder's content by relative path: "folder", "file 0644: content" or "link: target". Content
// that is too long to be read is told by its size and hash. With folder_modes also the modes of the
// folders in it ("folder 0755"), and of itself, whose path is empty.
using FileTree = std::map<std::string, std::string>;
FileTree Tree(const std::string& path, bool folder_modes = false);
std::string DescribeFolder(mode_t mode);
std::string DescribeFile(mode_t mode, const std::string& content);

// Makes this process a user who isn't root, for what root may always do.
class AsNobody {
  public:
    AsNobody();
    ~AsNobody();
    AsNobody(const AsNobody&) = delete;
    AsNobody& operator=(const AsNobody&) = delete;

  private:
    bool active_;
};

// Lets this process have no more than this number of descriptors.
class FewDescriptors {
  public:
    explicit FewDescriptors(rlim_t limit = 100);
    ~FewDescriptors();
    FewDescriptors(const FewDescriptors&) = delete;
    FewDescriptors& operator=(const FewDescriptors&) = delete;

  private:
    rlimit saved_;
};

// Waits until the condition holds; false after a minute.
bool WaitFor(const std::function<bool()>& condition);

// The lines of a text that hold a fragment.
std::vector<std::string> LinesWith(const std::string& text, const std::string& fragment);
bool HasOneLine(const std::string& text, const std::string& fragment);

// What the code under test writes to standard error.
std::string CaptureStderr(const std::function<void()>& code);

#endif
