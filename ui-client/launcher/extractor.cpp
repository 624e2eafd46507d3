#include "ui-client/launcher/extractor.h"

#include <archive_entry.h>
#include <sys/stat.h>

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "lib/liblogger/log.h"
#include "lib/liblogger/printable.h"
#include "lib/platform/durability.h"
#include "ui-client/launcher/archive-handles.h"
#include "ui-client/launcher/entry-guard.h"
#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/package-reader.h"
#include "ui-client/launcher/translations/str-table.h"

#define LOG_SOURCE "extractor"

namespace {

const ustring log_component("extractor_debug");

// From this size on, in bytes, the system is asked to start writing a file to the disk while the
// next ones are unpacked. For smaller files the call isn't worth it.
const la_int64_t kLargeFile = 131072;
const int kWriteOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;

// The error text of the object that failed. When extracting fails, either object may have it. It
// may quote a name, so it is made printable.
std::string ErrorText(archive* failed, archive* other = nullptr) {
    for (archive* const object : {failed, other}) {
        const char* const text = object != nullptr ? archive_error_string(object) : nullptr;
        if (text != nullptr) {
            return Printable(text);
        }
    }
    return "";
}

// Opens the archive for reading its entries' headers; false after a failure, which is logged.
bool OpenForListing(const Extractor& extractor, PackageReader& package) {
    if (extractor.dest_dir.empty() || extractor.archive_path.empty()) {
        LOG_MSG(ERROR, "Invalid argument\n");
        return false;
    }
    if (!package.allocated()) {
        LOG_MSG(ERROR, "Allocate archive failed\n");
        return false;
    }
    if (package.open(extractor.archive_path.c_str_utf8(), PackageReader::Stream::Unverified) !=
        ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_read_open_filename failed: '%s'\n",
                ErrorText(package.get()).c_str());
        return false;
    }
    return true;
}

// The folders that their owner may not read, write or search when everything is unpacked.
// libarchive sets their permissions when the writer is closed, and doesn't report a failure.
class ClosedFolders {
  public:
    // Call it before the entry is written: a folder that exists already keeps its permissions.
    void add(archive_entry* entry) {
        const mode_t mode = archive_entry_perm(entry);
        struct stat status;
        if (archive_entry_filetype(entry) == AE_IFDIR && (mode & S_IRWXU) != S_IRWXU &&
            lstat(archive_entry_pathname(entry), &status) != 0) {
            folders_.emplace_back(archive_entry_pathname(entry), mode);
        }
    }

    // Whether none of those that still exist has a permission that its last entry doesn't give.
    bool areClosed() const {
        std::set<ino_t> seen;
        for (auto folder = folders_.rbegin(); folder != folders_.rend(); ++folder) {
            struct stat status;
            const auto& [path, mode] = *folder;
            const bool found = lstat(path.c_str(), &status) == 0;
            const bool open = found && S_ISDIR(status.st_mode) &&
                              seen.insert(status.st_ino).second &&
                              (status.st_mode & ACCESSPERMS & ~mode) != 0;
            if (open || (!found && errno != ENOENT && errno != ENOTDIR && errno != EACCES)) {
                LOG_MSG(ERROR, "failed to set the permissions of '%s'\n", Printable(path).c_str());
                return false;
            }
        }
        return true;
    }

  private:
    std::vector<std::pair<std::string, mode_t>> folders_;
};

// Reports the entries that are written. A report wakes the main thread, which takes a quarter of
// what unpacking a small file takes, so the reports of one frame on the screen are sent together.
class ProgressReports {
  public:
    explicit ProgressReports(int total) : total_(total) {}
    ~ProgressReports() { send(); }
    ProgressReports(const ProgressReports&) = delete;
    ProgressReports& operator=(const ProgressReports&) = delete;

    void entryIsWritten() {
        ++written_;
        if (Clock::now() - last_sent_ >= kFrame) {
            send();
        }
    }

    int written() const { return written_; }

    void send() {
        while (sent_ < written_) {
            Notify_Adapter::GetInstance()->UpdateProgress(total_, ++sent_);
        }
        last_sent_ = Clock::now();
    }

  private:
    using Clock = std::chrono::steady_clock;
    static constexpr std::chrono::milliseconds kFrame{16};  // at 60 Hz

    const int total_;
    int written_ = 0;
    int sent_ = 0;
    Clock::time_point last_sent_;  // long ago, so that the first report is sent at once
};

int ExtractEntry(archive* reader, archive_entry* entry, archive* writer, EntryGuard& guard,
                 ClosedFolders& closed, ProgressReports& progress) {
    if (archive_entry_pathname(entry) == nullptr) {
        LOG_MSG(ERROR, "archive_entry_pathname failed");
        return -1;
    }
    if (const char* const reason = guard.admit(entry)) {
        LOG_MSG(ERROR, "refused entry '%s': %s\n", Printable(archive_entry_pathname(entry)).c_str(),
                reason);
        return -1;
    }
    closed.add(entry);
    const bool is_large = archive_entry_size(entry) >= kLargeFile;
    if (is_large) {
        progress.send();  // the next report may be a while
    }
    if (archive_read_extract2(reader, entry, writer) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_read_extract2 failed: '%s'\n", ErrorText(writer, reader).c_str());
        return -1;
    }
    progress.entryIsWritten();
    if (archive_write_finish_entry(writer) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_write_finish_entry failed: '%s'\n", ErrorText(writer).c_str());
        return -1;
    }
    if (is_large && archive_entry_filetype(entry) == AE_IFREG) {
        platform::StartWriting(archive_entry_pathname(entry));
    }
    return 0;
}

// Whether an archive that was read to its last entry without an error is complete.
bool IsWhole(PackageReader& package, int entries) {
    if (!package.endIsThere()) {
        LOG_MSG(ERROR, "the archive is truncated after %d entries\n", entries);
        return false;
    }
    if (package.finish() != ARCHIVE_OK) {
        LOG_MSG(ERROR, "the archive is damaged after its last entry: '%s'\n",
                ErrorText(package.get()).c_str());
        return false;
    }
    return true;
}

int ExtractEntries(PackageReader& package, archive* writer, const ustring& dest_dir, int total,
                   ClosedFolders& closed) {
    EntryGuard guard(dest_dir.c_str());
    ProgressReports progress(total);
    for (;;) {
        archive_entry* entry = nullptr;
        const int result = package.next(entry);
        if (result == ARCHIVE_EOF) {
            return IsWhole(package, progress.written()) ? 0 : -1;
        }
        if (result != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_read_next_header failed: '%s'\n",
                    ErrorText(package.get()).c_str());
            return -1;
        }
        if (ExtractEntry(package.get(), entry, writer, guard, closed, progress) != 0) {
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
    PackageReader package;
    const ArchiveHandle writer(package.allocated() ? archive_write_disk_new() : nullptr);
    if (writer == nullptr) {
        LOG_MSG(ERROR, "Allocate extractor failed\n");
        return -1;
    }
    archive_write_disk_set_options(writer.get(), kWriteOptions);
    if (package.open(archive_path.c_str_utf8(), PackageReader::Stream::Verified) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "Failed to read file '%s' ('%s')\n", archive_path.c_str(),
                ErrorText(package.get()).c_str());
        return -1;
    }
    ClosedFolders closed;
    if (ExtractEntries(package, writer.get(), dest_dir, total, closed) != 0) {
        return -1;
    }
    // Closing sets the permissions of folders, which libarchive has postponed.
    if (archive_write_close(writer.get()) != ARCHIVE_OK) {
        LOG_MSG(ERROR, "archive_write_close failed: '%s'\n", ErrorText(writer.get()).c_str());
        return -1;
    }
    return closed.areClosed() ? 0 : -1;
}

int Extractor::Count() {
    PackageReader package;
    if (!OpenForListing(*this, package)) {
        return -1;
    }
    int count = 0;
    archive_entry* entry = nullptr;
    while (package.next(entry) == ARCHIVE_OK) {
        ++count;
        archive_read_data_skip(package.get());  // if that fails, so does the next header
    }
    return count;
}

int Extractor::List() {
    PackageReader package;
    if (!OpenForListing(*this, package)) {
        return -1;
    }
    archive_entry* entry = nullptr;
    while (package.next(entry) == ARCHIVE_OK) {
        const char* const name = archive_entry_pathname(entry);
        std::printf("%s\n", name != nullptr ? name : "");
        static_cast<void>(std::fflush(stdout));
        archive_read_data_skip(package.get());
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
