#include "ui-client/launcher/extractor.h"

#include <archive_entry.h>

#include <cstdio>
#include <string>
#include <utility>

#include "lib/liblogger/log.h"
#include "lib/liblogger/printable.h"
#include "lib/platform/durability.h"
#include "ui-client/launcher/archive-handles.h"
#include "ui-client/launcher/entry-guard.h"
#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/translations/str-table.h"

#define LOG_SOURCE "extractor"

namespace {

const ustring log_component("extractor_debug");

const std::size_t kBlockSize = 10240;  // bytes read from the archive file at a time
// Bytes of a file that is worth a call of its own, to be on its way to the disk while the next ones
// are unpacked.
const la_int64_t kLargeFile = 131072;
const int kWriteOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;

int Open(archive* reader, const ustring& path) {
    archive_read_support_filter_all(reader);
    archive_read_support_format_all(reader);
    return archive_read_open_filename(reader, path.c_str_utf8(), kBlockSize);
}

// The message of the object that failed; for a failed extraction it can be either's. It may quote
// a name.
std::string ErrorText(archive* failed, archive* other = nullptr) {
    for (archive* const object : {failed, other}) {
        const char* const text = object != nullptr ? archive_error_string(object) : nullptr;
        if (text != nullptr) {
            return Printable(text);
        }
    }
    return "";
}

// Opens the archive for reading its entries' headers; null after a failure, which is logged.
ArchiveHandle OpenForListing(const Extractor& extractor) {
    if (extractor.dest_dir.empty() || extractor.archive_path.empty()) {
        LOG_MSG(ERROR, "Invalid argument\n");
        return nullptr;
    }
    ArchiveHandle reader(archive_read_new());
    if (reader == nullptr) {
        LOG_MSG(ERROR, "Allocate archive failed\n");
        return nullptr;
    }
    if (Open(reader.get(), extractor.archive_path) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_read_open_filename failed: '%s'\n",
                ErrorText(reader.get()).c_str());
        return nullptr;
    }
    return reader;
}

int ExtractEntry(archive* reader, archive_entry* entry, archive* writer, EntryGuard& guard,
                 int total, int number) {
    if (archive_entry_pathname(entry) == nullptr) {
        LOG_MSG(ERROR, "archive_entry_pathname failed");
        return -1;
    }
    if (const char* const reason = guard.admit(entry)) {
        LOG_MSG(ERROR, "refused entry '%s': %s\n", Printable(archive_entry_pathname(entry)).c_str(),
                reason);
        return -1;
    }
    if (archive_read_extract2(reader, entry, writer) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_read_extract2 failed: '%s'\n", ErrorText(writer, reader).c_str());
        return -1;
    }
    Notify_Adapter::GetInstance()->UpdateProgress(total, number);
    if (archive_write_finish_entry(writer) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_write_finish_entry failed: '%s'\n", ErrorText(writer).c_str());
        return -1;
    }
    if (archive_entry_size(entry) >= kLargeFile && archive_entry_filetype(entry) == AE_IFREG) {
        platform::StartWriting(archive_entry_pathname(entry));
    }
    return 0;
}

// A zip that was cut in the directory at its end still gives its files, but their modes and links
// are lost. Within another compression the directory is never read.
bool HasWholeDirectory(const ustring& archive_path) {
    const ArchiveHandle reader(archive_read_new());
    archive_entry* entry = nullptr;
    return reader != nullptr &&
           archive_read_support_format_zip_seekable(reader.get()) == ARCHIVE_OK &&
           archive_read_open_filename(reader.get(), archive_path.c_str_utf8(), kBlockSize) ==
               ARCHIVE_OK &&
           archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK;
}

// Whether an archive that was read to its end without an error is all there; read is where the last
// entry ended. A tar that was cut between two entries only lacks the mark at its end. The reader is
// freed: it may hold as much of the directory as the next one.
bool IsWhole(ArchiveHandle reader, la_int64_t read, const ustring& archive_path) {
    const int format = archive_format(reader.get()) & ARCHIVE_FORMAT_BASE_MASK;
    if (format == ARCHIVE_FORMAT_TAR) {
        return archive_filter_bytes(reader.get(), 0) != read;
    }
    if (format != ARCHIVE_FORMAT_ZIP || archive_filter_count(reader.get()) > 1) {
        return true;
    }
    reader.reset();
    return HasWholeDirectory(archive_path);
}

int ExtractEntries(const Extractor& extractor, ArchiveHandle reader, archive* writer, int total) {
    EntryGuard guard(extractor.dest_dir.c_str());
    for (int number = 1;; ++number) {
        const la_int64_t read = archive_filter_bytes(reader.get(), 0);
        archive_entry* entry = nullptr;
        const int result = archive_read_next_header(reader.get(), &entry);
        if (result == ARCHIVE_EOF && IsWhole(std::move(reader), read, extractor.archive_path)) {
            return 0;
        }
        if (result == ARCHIVE_EOF) {
            LOG_MSG(ERROR, "the archive was cut off after %d entries\n", number - 1);
            return -1;
        }
        if (result != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_read_next_header failed: '%s'\n",
                    ErrorText(reader.get()).c_str());
            return -1;
        }
        if (ExtractEntry(reader.get(), entry, writer, guard, total, number) != 0) {
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
    ArchiveHandle reader(archive_read_new());
    const ArchiveHandle writer(reader != nullptr ? archive_write_disk_new() : nullptr);
    if (writer == nullptr) {
        LOG_MSG(ERROR, "Allocate extractor failed\n");
        return -1;
    }
    archive_write_disk_set_options(writer.get(), kWriteOptions);
    if (Open(reader.get(), archive_path) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "Failed to read file '%s' ('%s')\n", archive_path.c_str(),
                ErrorText(reader.get()).c_str());
        return -1;
    }
    if (ExtractEntries(*this, std::move(reader), writer.get(), total) != 0) {
        return -1;
    }
    // Closing applies what was put off until now: the permissions of folders.
    if (archive_write_close(writer.get()) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_write_close failed: '%s'\n", ErrorText(writer.get()).c_str());
        return -1;
    }
    return 0;
}

int Extractor::Count() {
    const ArchiveHandle reader = OpenForListing(*this);
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
    const ArchiveHandle reader = OpenForListing(*this);
    if (reader == nullptr) {
        return -1;
    }
    archive_entry* entry = nullptr;
    while (archive_read_next_header(reader.get(), &entry) == ARCHIVE_OK) {
        const char* const name = archive_entry_pathname(entry);
        std::printf("%s\n", name != nullptr ? name : "");
        static_cast<void>(std::fflush(stdout));
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
            LOG_MSG(ERROR, "archive_read_data_block failed: '%s'\n", ErrorText(in).c_str());
            return -1;
        }
        if (archive_write_data_block(out, buffer, size, offset) != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_write_data_block failed: '%s'\n", ErrorText(out).c_str());
            return -1;
        }
    }
}
