#include "ui-client/launcher/extractor.h"

#include <archive_entry.h>

#include <cstdio>
#include <memory>
#include <string>

#include "lib/liblogger/log.h"
#include "ui-client/launcher/launcher.h"
#include "ui-client/launcher/translations/str-table.h"

#define LOG_SOURCE "extractor"

namespace {

const ustring log_component("extractor_debug");

const std::size_t kBlockSize = 10240;  // bytes read from the archive file at a time
const int kWriteOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;

struct ReaderCloser {
    void operator()(archive* reader) const { archive_read_free(reader); }
};
struct WriterCloser {
    // Only releases: what closing the writer says has been looked at, or the extraction has failed.
    void operator()(archive* writer) const { archive_write_free(writer); }
};
typedef std::unique_ptr<archive, ReaderCloser> Reader;
typedef std::unique_ptr<archive, WriterCloser> Writer;

int Open(archive* reader, const ustring& path) {
    archive_read_support_filter_all(reader);
    archive_read_support_format_all(reader);
    return archive_read_open_filename(reader, path.c_str_utf8(), kBlockSize);
}

// The message of the object that failed; for a failed extraction it can be either's.
const char* ErrorText(archive* failed, archive* other = nullptr) {
    const char* text = archive_error_string(failed);
    if (text == nullptr && other != nullptr) {
        text = archive_error_string(other);
    }
    return text != nullptr ? text : "";
}

// Opens the archive for reading its entries' headers; null after a failure, which is logged.
Reader OpenForListing(const Extractor& extractor) {
    if (extractor.dest_dir.empty() || extractor.archive_path.empty()) {
        LOG_MSG(ERROR, "Invalid argument\n");
        return nullptr;
    }
    Reader reader(archive_read_new());
    if (reader == nullptr) {
        LOG_MSG(ERROR, "Allocate archive failed\n");
        return nullptr;
    }
    if (Open(reader.get(), extractor.archive_path) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_read_open_filename failed: '%s'\n", ErrorText(reader.get()));
        return nullptr;
    }
    return reader;
}

// The paths of entries, and the targets of hard links, below the destination. The prefix is built
// once; each name takes the place of the one before.
class Rewriter {
  public:
    explicit Rewriter(const ustring& dest_dir) : path_(dest_dir.c_str()) {
        path_ += '/';
        prefix_size_ = path_.size();
    }

    // false when the entry has no name.
    bool rewrite(archive_entry* entry) {
        const char* const name = archive_entry_pathname(entry);
        if (name == nullptr) {
            return false;
        }
        archive_entry_set_pathname(entry, below(name));
        if (const char* const target = archive_entry_hardlink(entry)) {
            archive_entry_set_hardlink(entry, below(target));
        }
        return true;
    }

  private:
    const char* below(const char* name) {
        path_.resize(prefix_size_);
        path_ += name;
        return path_.c_str();
    }

    std::string path_;
    std::size_t prefix_size_;
};

int ExtractEntry(archive* reader, archive_entry* entry, archive* writer, Rewriter& rewriter,
                 int total, int number) {
    if (!rewriter.rewrite(entry)) {
        LOG_MSG(ERROR, "archive_entry_pathname failed");
        return -1;
    }
    if (archive_read_extract2(reader, entry, writer) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_read_extract2 failed: '%s'\n", ErrorText(writer, reader));
        return -1;
    }
    Notify_Adapter::GetInstance()->UpdateProgress(total, number);
    if (archive_write_finish_entry(writer) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_write_finish_entry failed: '%s'\n", ErrorText(writer));
        return -1;
    }
    return 0;
}

int ExtractEntries(archive* reader, archive* writer, const ustring& dest_dir, int total) {
    Rewriter rewriter(dest_dir);
    for (int number = 1;; ++number) {
        archive_entry* entry = nullptr;
        const int result = archive_read_next_header(reader, &entry);
        if (result == ARCHIVE_EOF) {
            return 0;
        }
        if (result != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_read_next_header failed: '%s'\n", ErrorText(reader));
            return -1;
        }
        if (ExtractEntry(reader, entry, writer, rewriter, total, number) != 0) {
            return -1;
        }
    }
}

}  // namespace

int Extractor::Extract() {
    if (archive_path.empty() || dest_dir.empty()) {
        LOG_MSG(ERROR, "Invalid Argument\n");
        return -1;
    }
    LOG_MSG(DEBUG, "decompress from '%s' to '%s'\n", archive_path.c_str(), dest_dir.c_str());
    Notify_Adapter::GetInstance()->UpdateDialogText(StrTable::LoadStr(StrTable::kPreparing));

    const int total = Count();
    if (total < 1) {
        LOG_MSG(ERROR, "Failed to calculate total file numbers, ret: %d\n", total);
        return -1;
    }
    const Reader reader(archive_read_new());
    const Writer writer(reader != nullptr ? archive_write_disk_new() : nullptr);
    if (writer == nullptr) {
        LOG_MSG(ERROR, "Allocate extractor failed\n");
        return -1;
    }
    archive_write_disk_set_options(writer.get(), kWriteOptions);
    if (Open(reader.get(), archive_path) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "Failed to read file '%s' ('%s')\n", archive_path.c_str(),
                ErrorText(reader.get()));
        return -1;
    }
    if (ExtractEntries(reader.get(), writer.get(), dest_dir, total) != 0) {
        return -1;
    }
    // Closing applies what was put off until now: the permissions of folders.
    if (archive_write_close(writer.get()) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_write_close failed: '%s'\n", ErrorText(writer.get()));
        return -1;
    }
    return 0;
}

int Extractor::Count() {
    const Reader reader = OpenForListing(*this);
    if (reader == nullptr) {
        return -1;
    }
    int count = 0;
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        ++count;
        archive_read_data_skip(reader.get());  // a damaged entry shows at the next header
    }
    return count;
}

int Extractor::List() {
    const Reader reader = OpenForListing(*this);
    if (reader == nullptr) {
        return -1;
    }
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        const char* const name = archive_entry_pathname(entry);
        std::printf("%s\n", name != nullptr ? name : "");
        std::fflush(stdout);
        archive_read_data_skip(reader.get());
    }
    return 0;
}

int Extractor::copy_data(archive* in, archive* out) {
    if (in == nullptr || out == nullptr) {
        LOG_MSG(ERROR, "Invalid Argument\n");
        return -1;
    }
    for (;;) {
        const void* buffer = nullptr;
        std::size_t size = 0;
        la_int64_t offset = 0;
        const int read = archive_read_data_block(in, &buffer, &size, &offset);
        if (read == ARCHIVE_EOF) {
            return 0;
        }
        if (read != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_read_data_block failed: '%s'\n", ErrorText(in));
            return -1;
        }
        if (archive_write_data_block(out, buffer, size, offset) != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_write_data_block failed: '%s'\n", ErrorText(out));
            return -1;
        }
    }
}
