#ifndef PACKAGING_TEMPORARY_FOLDER_H
#define PACKAGING_TEMPORARY_FOLDER_H

#include <string>

// A folder below TMPDIR, or below the system's folder for temporary files, which is removed with
// all that is in it. Throws a PackageError when it can't be made.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

    // Throws a PackageError when nothing more can be written to the folder.
    void requireSpace() const;

  private:
    std::string path_;
};

#endif
