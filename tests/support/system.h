#ifndef TESTS_SUPPORT_SYSTEM_H
#define TESTS_SUPPORT_SYSTEM_H

#include <sys/stat.h>

#include <string>

// What tests need of the operating system, in its own way on each. What one doesn't have makes the
// tests skip that need it.

// When the object was changed last, its name and permissions included.
timespec ChangeTime(const struct stat& status);

// A regular file whose beginning can't be read; empty where there is none.
std::string UnreadableFile();

// Whether the environment names the system's locale.
bool HasLocaleInEnvironment();

// A folder on another volume than /tmp that every user can write to; empty where there is none.
std::string AnotherVolume();

// A small disk in memory on this folder, where this process and its children alone see it. Not
// every system has one, and not every user may mount one.
class SmallDisk {
  public:
    SmallDisk(const std::string& path, const char* size);
    ~SmallDisk();
    SmallDisk(const SmallDisk&) = delete;
    SmallDisk& operator=(const SmallDisk&) = delete;

    bool mounted() const { return mounted_; }

  private:
    const std::string path_;
    bool mounted_;
};

// A volume on this folder that ignores letter case, where this process and its children alone see
// it. exFAT keeps names as they are given, but knows no links and no permissions; NTFS, as it is
// mounted here, lists them in lower case. On a Mac every volume does that knows no other way.
class CaseIgnoringVolume {
  public:
    enum Kind { ExFat, Ntfs };

    CaseIgnoringVolume(const std::string& path, Kind kind);
    ~CaseIgnoringVolume();
    CaseIgnoringVolume(const CaseIgnoringVolume&) = delete;
    CaseIgnoringVolume& operator=(const CaseIgnoringVolume&) = delete;

    bool mounted() const { return mounted_; }

  private:
    const std::string path_;
    bool mounted_;
};

#endif
