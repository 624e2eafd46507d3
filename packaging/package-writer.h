#ifndef PACKAGING_PACKAGE_WRITER_H
#define PACKAGING_PACKAGE_WRITER_H

#include <cstdint>
#include <memory>
#include <string>

#include "packaging/app-tree.h"
#include "packaging/summary.h"
#include "packaging/zstd-stream.h"
#include "ui-client/launcher/archive-handles.h"

// Writes an archive whose bytes depend on nothing but the names, contents, permission bits and link
// targets that are added, and the order in which that is done. Failures are PackageErrors.
class PackageWriter {
  public:
    static const char* const kDefaultFormat;
    static bool knows(const std::string& format);
    static std::string formats();  // all names, with blanks between them

    // Writes to fd, which stays the caller's; messages call it shown_as. total is the sum of the
    // files' sizes, for the progress.
    PackageWriter(const std::string& format, int fd, std::string shown_as, const Progress& progress,
                  std::int64_t total);
    ~PackageWriter() = default;
    PackageWriter(const PackageWriter&) = delete;
    PackageWriter& operator=(const PackageWriter&) = delete;

    // Adds the object at name below the folder app.
    void add(const std::string& app, const std::string& name, const AppTree::Node& node);

    // Must be called after everything was added. Without it the archive isn't complete.
    void finish();

  private:
    static la_ssize_t write(archive* object, void* self, const void* data, std::size_t size);
    void writeAll(const char* data, std::size_t size);
    void check(int result) const;
    void addContent(const std::string& path, off_t size);

    const int fd_;
    const std::string shown_as_;
    const Progress& progress_;
    std::int64_t done_ = 0;
    const std::int64_t total_;
    std::string error_;                 // of the first write that failed; libarchive knows no text
    std::unique_ptr<ZstdStream> zstd_;  // between the archive and the file, unless null
    const ArchiveHandle archive_;       // writes as long as it exists
};

#endif
