#ifndef PACKAGING_REPLACEMENT_H
#define PACKAGING_REPLACEMENT_H

#include <filesystem>
#include <string>

#include "lib/platform/handles.h"

// A new file that replaces another one when it is complete. Until commit() it has a temporary name
// in the same folder; without commit() it is removed.
class Replacement {
  public:
    // The file's folder must exist. Throws a PackageError on failure.
    explicit Replacement(const std::filesystem::path& path);
    ~Replacement();
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    int fd() const { return fd_.get(); }
    const std::string& temporary() const { return temporary_; }

    // Atomic and durable: a power cut leaves the old file or the new one. Throws on failure.
    void commit() const;

  private:
    const std::filesystem::path path_;
    std::string temporary_;
    const platform::Descriptor fd_;
};

#endif
