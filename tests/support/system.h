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

// A volume that a test has mounted on a folder, where this process and its children alone see it.
class Volume {
  public:
    ~Volume();
    Volume(const Volume&) = delete;
    Volume& operator=(const Volume&) = delete;

    // Not every system has such volumes, and not every user may mount one.
    bool mounted() const { return mounted_; }

  protected:
    explicit Volume(const std::string& path);  // which it makes

    const std::string path_;
    bool mounted_ = false;
};

// A small disk in memory.
class SmallDisk : public Volume {
  public:
    SmallDisk(const std::string& path, const char* size);
};

// A volume that ignores letter case. exFAT keeps names as they are given, but knows no links and no
// permissions; NTFS, as it is mounted here, lists them in lower case. On a Mac every volume does
// that knows no other way.
class CaseIgnoringVolume : public Volume {
  public:
    enum Kind { ExFat, Ntfs };

    CaseIgnoringVolume(const std::string& path, Kind kind);
};

#endif
