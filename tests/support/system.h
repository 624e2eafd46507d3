#ifndef TESTS_SUPPORT_SYSTEM_H
#define TESTS_SUPPORT_SYSTEM_H

#include <sys/stat.h>

#include <string>

// What tests need from the operating system, implemented for each system. A test is skipped on
// systems that don't have what it needs.

// The time when the object's content, name or permissions were last changed (ctime).
timespec ChangeTime(const struct stat& status);

// The path of a regular file whose beginning can't be read; empty if the system has none.
std::string UnreadableFile();

// Whether the system takes the locale from environment variables.
bool HasLocaleInEnvironment();

// The path of a folder that is on another volume than /tmp and that every user can write to; empty
// if the system has none.
std::string AnotherVolume();

// A volume that a test mounts on a folder. Only this process and its children see it.
class Volume {
  public:
    ~Volume();
    Volume(const Volume&) = delete;
    Volume& operator=(const Volume&) = delete;

    // False if the system has no such volume or this user may not mount it.
    bool mounted() const { return mounted_; }

  protected:
    explicit Volume(const std::string& path);  // creates the folder

    const std::string path_;
    bool mounted_ = false;
};

// A file system in memory. size is its capacity, for example "64k".
class SmallDisk : public Volume {
  public:
    SmallDisk(const std::string& path, const char* size);
};

// A case-insensitive volume. exFAT lists names as they were created, but has no links or
// permissions; NTFS, as it is mounted here, lists names in lower case. On a Mac nothing is mounted:
// the folder's own volume is used if it is case-insensitive.
class CaseIgnoringVolume : public Volume {
  public:
    enum Kind { ExFat, Ntfs };

    CaseIgnoringVolume(const std::string& path, Kind kind);
};

#endif
