#include "ui-client/launcher/extractor.h"

#include <archive_entry.h>
#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "lib/platform/durability.h"
#include "lib/platform/handles.h"
#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/translations/str-table.h"

#define LOG_SOURCE "extractor"

namespace {

const ustring log_component("extractor_debug");

const std::size_t kBlockSize = 10240;  // bytes read from the archive file at a time
// Bytes of a file that is worth a call of its own, to be on its way to the disk while the next ones
// are unpacked.
const la_int64_t kLargeFile = 131072;
const int kOpenFolder = platform::kOpenToPass | O_DIRECTORY | O_CLOEXEC;
const int kWriteOptions =
    ARCHIVE_EXTRACT_UNLINK | ARCHIVE_EXTRACT_SECURE_NODOTDOT | ARCHIVE_EXTRACT_MAC_METADATA;

struct ReaderCloser {
    void operator()(archive* reader) const { archive_read_free(reader); }
};
struct WriterCloser {
    // Only releases: what closing the writer says has been looked at, or the extraction has failed.
    void operator()(archive* writer) const { archive_write_free(writer); }
};
using Reader = std::unique_ptr<archive, ReaderCloser>;
using Writer = std::unique_ptr<archive, WriterCloser>;

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

bool IsNode(archive_entry* entry) {
    const auto type = archive_entry_filetype(entry);
    return type == AE_IFCHR || type == AE_IFBLK || type == AE_IFIFO || type == AE_IFSOCK;
}

// The destination as the entries see it: they get their paths below it, and those that would lead
// out of it are found. The archive is not trusted; nobody else changes the destination meanwhile.
class Target {
  public:
    explicit Target(const ustring& dest_dir) : root_(std::string(dest_dir.c_str()) + '/') {
        path_ = checked_ = root_;
    }

    // Why an entry must not be written; null when it may. Asked of every entry, before rewrite().
    const char* refusal(archive_entry* entry);

    // Makes the folder that the entry asked of last stands in. The writer would make it as well,
    // but in a time that grows with the square of its depth. It also tells of what fails.
    void makeFolder() const {
        if (!missing_.empty()) {
            FSMKDir(missing_, true);
        }
    }

    // Puts the entry's path, and the target of a hard link, below the destination; false when the
    // entry has no name.
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
    // The prefix is built once; each name takes the place of the one before.
    const char* below(const char* name) {
        path_.resize(root_.size());
        path_ += name;
        return path_.c_str();
    }

    bool resolve(std::string_view name, std::string& path) const;
    enum Way { Free, Missing, Linked, Unknown };
    Way wayTo(const std::string& folder);
    const char* linkRefusal(const char* target);

    const std::string root_;  // ends in "/"
    std::string path_;
    std::string checked_;  // the folder that wayTo() found last
    ustring missing_;      // the folder that makeFolder() has to make
};

// The path of a name as the writer reads it: without empty and "." elements, every element ending
// in "/". false when there is a ".." among them.
bool Target::resolve(std::string_view name, std::string& path) const {
    path = root_;
    while (!name.empty()) {
        const std::string_view element = name.substr(0, name.find('/'));
        name.remove_prefix(std::min(name.size(), element.size() + 1));
        if (element == "..") {
            return false;
        }
        if (!element.empty() && element != ".") {
            path.append(element) += '/';
        }
    }
    return true;
}

// What the elements of a folder's path below the destination are: no links, or from one of them on
// not there. A file among them is the writer's business. What the path shares with the one found
// before is not looked at again: only a link entry can put a link there, and then the path before
// is that of the folder it stands in. Each element is looked at from the one before, as whole paths
// would be walked from the start.
Target::Way Target::wayTo(const std::string& folder) {
    const auto shared =
        std::mismatch(checked_.begin(), checked_.end(), folder.begin(), folder.end()).second;
    std::size_t start =
        folder.rfind('/', static_cast<std::size_t>(shared - folder.begin()) - 1) + 1;
    checked_.resize(start);
    if (start == folder.size()) {
        return Free;
    }
    platform::Descriptor base(open(checked_.c_str(), kOpenFolder));
    if (base.get() < 0) {
        return errno == ENOENT ? Missing : Unknown;
    }
    while (start < folder.size()) {
        const std::size_t end = folder.find('/', start);
        const std::string name = folder.substr(start, end - start);
        platform::Descriptor next(openat(base.get(), name.c_str(), kOpenFolder | O_NOFOLLOW));
        if (next.get() < 0) {
            struct stat status;
            if (fstatat(base.get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
                return errno == ENOENT ? Missing : Unknown;
            }
            return S_ISLNK(status.st_mode) ? Linked : S_ISDIR(status.st_mode) ? Unknown : Free;
        }
        base = std::move(next);
        start = end + 1;
        checked_.assign(folder, 0, start);
    }
    return Free;
}

// The same as refusal() for the target of a hard link; the writer tells of one that doesn't exist.
const char* Target::linkRefusal(const char* target) {
    std::string path;
    if (!resolve(target, path)) {
        return "links to what is outside";
    }
    path.pop_back();
    struct stat status;
    const Way way = wayTo(path.substr(0, path.rfind('/') + 1));
    if (way == Linked || way == Unknown) {
        return way == Linked ? "links through a link" : "its target can't be looked at";
    }
    return lstat(path.c_str(), &status) == 0 && !S_ISREG(status.st_mode) ? "links to no file"
                                                                         : nullptr;
}

const char* Target::refusal(archive_entry* entry) {
    const char* const name = archive_entry_pathname(entry);
    const char* const hardlink = archive_entry_hardlink(entry);
    missing_.clear();
    const bool folder = archive_entry_filetype(entry) == AE_IFDIR && hardlink == nullptr;
    std::string path;
    if (name == nullptr || !resolve(name, path)) {
        return nullptr;  // rewrite() finds the one, the writer the other
    }
    if (IsNode(entry)) {
        return "is a pipe, socket or device";
    }
    // The text formats can call a link a file or a folder. The writer makes the link, and then
    // gives what it leads to the rights of the file.
    if (archive_entry_symlink(entry) != nullptr && archive_entry_filetype(entry) != AE_IFLNK) {
        return "is a link and something else";
    }
    if (path == root_ && !folder) {
        return "would replace the target folder";
    }
    if (path.size() > PATH_MAX) {
        return "its path is too long";  // the writer would change the working directory
    }
    // The writer takes a link to a folder for the folder, but replaces a link in a file's place.
    const std::string parent = path.substr(0, path.rfind('/', path.size() - 2) + 1);
    const Way way = wayTo(folder ? path : parent);
    if (way == Linked || way == Unknown) {
        return way == Linked ? "leads through a link" : "its folder can't be opened";
    }
    if (way == Missing && checked_.size() < parent.size()) {
        missing_ = parent.substr(0, parent.size() - 1);
    }
    return hardlink != nullptr ? linkRefusal(hardlink) : nullptr;
}

int ExtractEntry(archive* reader, archive_entry* entry, archive* writer, Target& target, int total,
                 int number) {
    if (const char* const reason = target.refusal(entry)) {
        LOG_MSG(ERROR, "refused entry '%s': %s\n", archive_entry_pathname(entry), reason);
        return -1;
    }
    target.makeFolder();
    if (!target.rewrite(entry)) {
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
    if (archive_entry_size(entry) >= kLargeFile && archive_entry_filetype(entry) == AE_IFREG) {
        platform::StartWriting(archive_entry_pathname(entry));
    }
    return 0;
}

// A zip that was cut in the directory at its end still gives its files, but their modes and links
// are lost. Within another compression the directory is never read.
bool HasWholeDirectory(const ustring& archive_path) {
    const Reader reader(archive_read_new());
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
bool IsWhole(Reader reader, la_int64_t read, const ustring& archive_path) {
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

int ExtractEntries(const Extractor& extractor, Reader reader, archive* writer, int total) {
    Target target(extractor.dest_dir);
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
            LOG_MSG(ERROR, "archive_read_next_header failed: '%s'\n", ErrorText(reader.get()));
            return -1;
        }
        if (ExtractEntry(reader.get(), entry, writer, target, total, number) != 0) {
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
    Reader reader(archive_read_new());
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
    if (ExtractEntries(*this, std::move(reader), writer.get(), total) != 0) {
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
            LOG_MSG(ERROR, "archive_read_data_block failed: '%s'\n", ErrorText(in));
            return -1;
        }
        if (archive_write_data_block(out, buffer, size, offset) != ARCHIVE_OK) {
            LOG_MSG(ERROR, "archive_write_data_block failed: '%s'\n", ErrorText(out));
            return -1;
        }
    }
}
