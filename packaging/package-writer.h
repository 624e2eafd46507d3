#ifndef PACKAGING_PACKAGE_WRITER_H
#define PACKAGING_PACKAGE_WRITER_H

#include <cstdint>
#include <memory>
#include <string>

#include "packaging/app-tree.h"
#include "packaging/summary.h"
#include "packaging/zstd-stream.h"
#include "ui-client/launcher/archive-handles.h"

// Writes an archive whose bytes depend only on the names, contents, permission bits and link
// targets that are added, and on their order. Throws PackageErrors.
class PackageWriter {
  public:
    static const char* const kDefaultFormat;
    static bool knows(const std::string& format);
    static std::string formats();  // all names, separated by blanks

    // Writes to fd, which the caller owns; messages call the file shown_as. total is the sum of the
    // files' sizes, for the progress.
    PackageWriter(const std::string& format, int fd, std::string shown_as, const Progress& progress,
                  std::int64_t total);
    ~PackageWriter() = default;
    PackageWriter(const PackageWriter&) = delete;
    PackageWriter& operator=(const PackageWriter&) = delete;

    // Adds the object with this path below the folder app.
    void add(const std::string& app, const std::string& name, const AppTree::Node& node);

    // Completes the archive. Must be called after the last add().
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
    std::string error_;                 // of the first failed write; libarchive has no text for it
    std::unique_ptr<ZstdStream> zstd_;  // between the archive and the file, unless null
    const ArchiveHandle archive_;       // last, because freeing it can still write
};

#endif
