#ifndef PACKAGING_TEMPORARY_FOLDER_H
#define PACKAGING_TEMPORARY_FOLDER_H

#include <string>

// A folder in TMPDIR, or in /tmp if that isn't set. It is removed with the object, with everything
// in it. Throws a PackageError when it can't be created.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

    // Throws a PackageError when nothing can be written to the folder any more.
    void requireSpace() const;

  private:
    std::string path_;
};

#endif
