#include "ui-client/launcher/package-reader.h"

#include <cerrno>

namespace {

const std::size_t kBlockSize = 10240;                // bytes read from the file at a time
const std::size_t kDecompressedBlock = 65536;        // bytes
const unsigned kGzipBlock = kDecompressedBlock / 2;  // with more, zlib copies all that it read

// Enables the compressions that libarchive decodes itself. For one whose library it was built
// without, it would run a program, and enabling it returns a warning. lrzip and grzip are left out:
// for them it always runs a program.
void SupportCompressions(archive* reader) {
    const ArchiveHandle trial(archive_read_new());
    for (int (*const support)(archive*) :
         {archive_read_support_filter_bzip2, archive_read_support_filter_compress,
          archive_read_support_filter_gzip, archive_read_support_filter_lz4,
          archive_read_support_filter_lzip, archive_read_support_filter_lzma,
          archive_read_support_filter_lzop, archive_read_support_filter_rpm,
          archive_read_support_filter_uu, archive_read_support_filter_xz,
          archive_read_support_filter_zstd}) {
        if (trial != nullptr && support(trial.get()) == ARCHIVE_OK) {
            support(reader);
        }
    }
}

// From a zip whose directory at the end is truncated, libarchive still reads the files, but without
// their modes and links.
bool HasWholeDirectory(const char* path) {
    const ArchiveHandle reader(archive_read_new());
    archive_entry* entry = nullptr;
    return reader != nullptr &&
           archive_read_support_format_zip_seekable(reader.get()) == ARCHIVE_OK &&
           archive_read_open_filename(reader.get(), path, kBlockSize) == ARCHIVE_OK &&
           archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK;
}

}  // namespace

PackageReader::PackageReader() : entries_(archive_read_new()) {}

int PackageReader::open(const char* path, Stream stream) {
    path_ = path;
    SupportCompressions(entries_.get());
    archive_read_support_format_all(entries_.get());
    const int result = archive_read_open_filename(entries_.get(), path, kBlockSize);
    const int filters = archive_filter_count(entries_.get());
    if (result != ARCHIVE_OK || filters < 2) {
        return result;
    }
    compression_ = archive_filter_code(entries_.get(), filters - 2);  // the last is the file
    return stream == Stream::Verified ? openVerified() : ARCHIVE_OK;
}

// A single libarchive reader would neither verify gzip's checksum nor read to the end of the
// stream, where the other checksums are. So zlib reads the file and passes through what isn't gzip,
// one reader decompresses that, and another one finds the entries.
int PackageReader::openVerified() {
    entries_.reset(archive_read_new());
    stream_.reset(archive_read_new());
    if (entries_ == nullptr || stream_ == nullptr) {
        return ARCHIVE_FATAL;
    }
    file_.reset(gzopen(path_.c_str(), "rbe"));
    if (file_ == nullptr || gzbuffer(file_.get(), kGzipBlock) != 0) {
        archive_set_error(entries_.get(), errno, "Failed to open '%s'", path_.c_str());
        return ARCHIVE_FATAL;
    }
    block_.resize(kDecompressedBlock);
    SupportCompressions(stream_.get());
    archive_read_support_format_raw(stream_.get());
    archive_read_support_format_empty(stream_.get());
    archive_entry* whole = nullptr;
    const int result =
        archive_read_open(stream_.get(), this, nullptr, readFile, nullptr) == ARCHIVE_OK
            ? archive_read_next_header(stream_.get(), &whole)
            : ARCHIVE_FATAL;
    if (result != ARCHIVE_OK && result != ARCHIVE_EOF) {
        archive_copy_error(entries_.get(), stream_.get());
        return ARCHIVE_FATAL;
    }
    archive_read_support_format_all(entries_.get());
    return archive_read_open(entries_.get(), this, nullptr, readStream, nullptr);
}

la_ssize_t PackageReader::readFile(archive* stream, void* self, const void** block) {
    PackageReader& reader = *static_cast<PackageReader*>(self);
    *block = reader.block_.data();
    const int count = gzread(reader.file_.get(), reader.block_.data(), kDecompressedBlock);
    int error = Z_OK;
    const char* const text = gzerror(reader.file_.get(), &error);
    if (count < 0 || (count == 0 && error != Z_OK)) {  // 0: the file ends before its data does
        archive_set_error(stream, EILSEQ, "%s", text);
        return -1;
    }
    return count;
}

la_ssize_t PackageReader::readStream(archive* entries, void* self, const void** block) {
    PackageReader& reader = *static_cast<PackageReader*>(self);
    std::size_t size = 0;
    la_int64_t offset = 0;
    const bool empty = archive_format(reader.stream_.get()) == ARCHIVE_FORMAT_EMPTY;
    const int result =
        empty ? ARCHIVE_EOF : archive_read_data_block(reader.stream_.get(), block, &size, &offset);
    if (result == ARCHIVE_EOF) {
        return 0;
    }
    if (result != ARCHIVE_OK) {
        archive_copy_error(entries, reader.stream_.get());
        return -1;
    }
    return static_cast<la_ssize_t>(size);
}

int PackageReader::next(archive_entry*& entry) {
    position_ = archive_filter_bytes(entries_.get(), 0);
    return archive_read_next_header(entries_.get(), &entry);
}

bool PackageReader::endIsThere() {
    const int format = archive_format(entries_.get()) & ARCHIVE_FORMAT_BASE_MASK;
    if (format == ARCHIVE_FORMAT_TAR) {
        return archive_filter_bytes(entries_.get(), 0) != position_;
    }
    if (format != ARCHIVE_FORMAT_ZIP || compression_ != ARCHIVE_FILTER_NONE) {
        return true;  // nothing marks the end
    }
    entries_.reset();  // to have one copy of the directory in memory, not two
    return HasWholeDirectory(path_.c_str());
}

int PackageReader::finish() {
    const void* block = nullptr;
    la_ssize_t size = stream_ != nullptr ? 1 : 0;
    while (size > 0) {
        size = readStream(entries_.get(), this, &block);
    }
    return size == 0 ? ARCHIVE_OK : ARCHIVE_FATAL;
}
