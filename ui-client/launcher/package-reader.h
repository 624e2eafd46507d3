#ifndef UI_CLIENT_LAUNCHER_PACKAGE_READER_H
#define UI_CLIENT_LAUNCHER_PACKAGE_READER_H

#include <zlib.h>

#include <memory>
#include <string>
#include <vector>

#include "ui-client/launcher/archive-handles.h"

// Reads the entries of a package in any format and compression that libarchive decodes itself; no
// other program is run. The package's checksums over its content are verified: those of single
// entries (zip, 7z) when the entry's data is read to its end, that of a compressed stream at the
// latest by finish().
//
// The operations return libarchive's results; after a failure, get() has the error text. Threads:
// one object belongs to one thread.
class PackageReader {
  public:
    PackageReader();
    ~PackageReader() = default;
    PackageReader(const PackageReader&) = delete;
    PackageReader& operator=(const PackageReader&) = delete;

    // False when memory ran out; then nothing else may be called.
    bool allocated() const { return entries_ != nullptr; }

    // Opens the file at path (UTF-8). Call it once, before everything below. With
    // Stream::Unverified, the checksum of a compressed stream isn't verified, which takes less time
    // and is enough to list the entries.
    enum class Stream { Verified, Unverified };
    int open(const char* path, Stream stream);

    // The reader of the current entry's data; owned by this object. Null when memory ran out, and
    // after endIsThere() of a zip.
    archive* get() const { return entries_.get(); }

    // Advances to the next entry, which is owned by this object and valid until the next call.
    // Returns ARCHIVE_EOF after the last one.
    int next(archive_entry*& entry);

    // Whether the mark at the end of a tar, or the directory at the end of a zip, is there: a file
    // that is truncated between two entries has none. True for other formats and for a compressed
    // zip. Call it once, after ARCHIVE_EOF; no entry can be read afterwards.
    bool endIsThere();

    // Reads what follows the entries in a compressed stream, including the checksum at its end.
    // Call it after ARCHIVE_EOF.
    int finish();

    // How the file as a whole is compressed: one of libarchive's ARCHIVE_FILTER_ codes. Of several
    // compressions, the one that was applied last.
    int compression() const { return compression_; }

  private:
    struct GzipCloser {
        void operator()(gzFile file) const { gzclose_r(file); }
    };

    int openVerified();
    static la_ssize_t readFile(archive* stream, void* self, const void** block);
    static la_ssize_t readStream(archive* entries, void* self, const void** block);

    std::string path_;
    int compression_ = ARCHIVE_FILTER_NONE;
    la_int64_t position_ = 0;  // in the archive, where the last entry ended

    // For a compressed file; each reads from the one before.
    std::unique_ptr<gzFile_s, GzipCloser> file_;  // decompresses gzip, passes other bytes through
    std::vector<unsigned char> block_;            // the bytes that were read last
    ArchiveHandle stream_;                        // decompresses everything else

    ArchiveHandle entries_;  // reads from the stream, or from a file that isn't compressed
};

#endif
