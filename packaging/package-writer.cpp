#include "packaging/package-writer.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <ctime>
#include <exception>
#include <utility>
#include <vector>

#include "lib/platform/handles.h"
#include "packaging/fault.h"

namespace {

const std::size_t kBlockSize = 65536;
const std::time_t kTimeStamp = 315532800;  // 1980-01-01, the earliest time in a zip

struct Format {
    const char* name;
    const char* container;
    const char* filter;   // libarchive's; null for none
    const char* options;  // to write the same bytes each time; null for none
};

// GNU tar stores names byte for byte.
const Format kFormats[] = {{"tar.zst", "gnutar", nullptr, nullptr},
                           {"tar.gz", "gnutar", "gzip", "gzip:!timestamp"},
                           {"tar.xz", "gnutar", "xz", nullptr},
                           {"zip", "zip", nullptr, "zip:hdrcharset=UTF-8"}};

const Format* Find(const std::string& name) {
    const auto* const found =
        std::find_if(std::begin(kFormats), std::end(kFormats),
                     [&](const Format& format) { return name == format.name; });
    return found != std::end(kFormats) ? found : nullptr;
}

}  // namespace

const char* const PackageWriter::kDefaultFormat = kFormats[0].name;

bool PackageWriter::knows(const std::string& format) {
    return Find(format) != nullptr;
}

std::string PackageWriter::formats() {
    std::string names;
    for (const Format& format : kFormats) {
        names += (names.empty() ? "" : " ") + std::string(format.name);
    }
    return names;
}

PackageWriter::PackageWriter(const std::string& format, int fd, std::string shown_as,
                             const Progress& progress, std::int64_t total)
    : fd_(fd),
      shown_as_(std::move(shown_as)),
      progress_(progress),
      total_(total),
      archive_(archive_write_new()) {
    const Format& chosen = *Find(format);
    if (format == kDefaultFormat) {
        zstd_ = std::make_unique<ZstdStream>(
            [this](const char* data, std::size_t size) { writeAll(data, size); });
    }
    check(archive_write_set_format_by_name(archive_.get(), chosen.container));
    if (chosen.filter != nullptr) {
        check(archive_write_add_filter_by_name(archive_.get(), chosen.filter));
    }
    if (chosen.options != nullptr) {
        check(archive_write_set_options(archive_.get(), chosen.options));
    }
    check(archive_write_set_bytes_in_last_block(archive_.get(), 1));
    check(archive_write_open(archive_.get(), this, nullptr, write, nullptr));
}

void PackageWriter::add(const std::string& app, const std::string& name,
                        const AppTree::Node& node) {
    const EntryHandle entry(archive_entry_new());
    archive_entry_set_pathname(entry.get(), name.c_str());
    archive_entry_set_filetype(entry.get(), node.mode & AE_IFMT);
    // A link's permissions differ between systems and have no meaning.
    archive_entry_set_perm(entry.get(), S_ISLNK(node.mode) ? 0777 : node.mode & 0777);
    archive_entry_set_size(entry.get(), node.size);
    archive_entry_set_mtime(entry.get(), kTimeStamp, 0);
    archive_entry_set_uid(entry.get(), 0);
    archive_entry_set_gid(entry.get(), 0);
    if (S_ISLNK(node.mode)) {
        archive_entry_set_symlink(entry.get(), node.target.c_str());
    }
    check(archive_write_header(archive_.get(), entry.get()));
    if (S_ISREG(node.mode)) {
        addContent(app + "/" + name, node.size);
    }
    check(archive_write_finish_entry(archive_.get()));
}

void PackageWriter::finish() {
    check(archive_write_close(archive_.get()));
    if (zstd_ != nullptr) {
        zstd_->finish();
        check(ARCHIVE_OK);
    }
}

// Stores a failure for check(): libarchive would leak memory after one, and exceptions must not
// pass through it.
la_ssize_t PackageWriter::write(archive*, void* self, const void* data, std::size_t size) {
    PackageWriter& writer = *static_cast<PackageWriter*>(self);
    try {
        if (writer.zstd_ != nullptr) {
            writer.zstd_->write(data, size);
        } else {
            writer.writeAll(static_cast<const char*>(data), size);
        }
    } catch (const std::exception& error) {
        writer.error_ = error.what();
    }
    return static_cast<la_ssize_t>(size);
}

void PackageWriter::writeAll(const char* data, std::size_t size) {
    while (size > 0 && error_.empty()) {
        const ssize_t count = ::write(fd_, data, size);
        if (count >= 0) {
            data += count;
            size -= static_cast<std::size_t>(count);
        } else if (errno != EINTR) {
            error_ = std::strerror(errno);
        }
    }
}

void PackageWriter::check(int result) const {
    std::string error = error_;
    if (error.empty() && result != ARCHIVE_OK) {
        const char* const text = archive_error_string(archive_.get());
        error = text != nullptr ? text : "libarchive gives no reason";
    }
    if (!error.empty()) {
        throw PackageError(shown_as_, "can't be written: " + error, "");
    }
}

void PackageWriter::addContent(const std::string& path, off_t size) {
    const platform::Descriptor file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
    if (file.get() < 0) {
        FailWithErrno(path, "can't be read");
    }
    std::vector<char> block(kBlockSize);
    off_t left = size;
    ssize_t count = 0;
    while ((count = read(file.get(), block.data(), block.size())) > 0 && count <= left) {
        const la_ssize_t written =
            archive_write_data(archive_.get(), block.data(), static_cast<std::size_t>(count));
        check(written == count ? ARCHIVE_OK : ARCHIVE_FATAL);
        left -= count;
        if (!progress_(done_ += count, total_)) {
            throw PackageError(shown_as_, "was interrupted", "run again");
        }
    }
    if (count < 0) {
        FailWithErrno(path, "can't be read");
    }
    if (count > 0 || left > 0) {
        throw PackageError(path, "was changed while it was read", "pack when nothing writes to it");
    }
}
