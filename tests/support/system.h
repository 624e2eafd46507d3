#ifndef TESTS_SUPPORT_SYSTEM_H
#define TESTS_SUPPORT_SYSTEM_H

#include <sys/stat.h>

#include <string>

// What tests need from the operating system, implemented for each system.

// The time when the object's content, name or permissions were last changed (ctime).
timespec ChangeTime(const struct stat& status);

// A volume that a test mounts on a folder, which is created. Only this process and its children see
// it.
class Volume {
  public:
    ~Volume();
    Volume(const Volume&) = delete;
    Volume& operator=(const Volume&) = delete;

    // False if the system has no such volume or this user may not mount it. The test is then
    // skipped.
    bool mounted() const { return mounted_; }

  protected:
    // Mounts the volume with this code of a shell, where $1 is the path.
    Volume(const std::string& path, const std::string& code);

    const std::string path_;
    bool mounted_;
};

// A file system in memory. size is its capacity, for example "64k".
class SmallDisk : public Volume {
  public:
    SmallDisk(const std::string& path, const std::string& size)
        : Volume(path, "mount -t tmpfs -o size=" + size + " none \"$1\"") {}
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
