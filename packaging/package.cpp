#include "packaging/package.h"

#include <fcntl.h>
#include <unistd.h>

#include <QObject>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <utility>
#include <vector>

#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "lib/platform/durability.h"
#include "lib/platform/handles.h"
#include "packaging/app-tree.h"
#include "ui-client/launcher/archive-handles.h"
#include "ui-client/launcher/content-checksum.h"
#include "ui-client/launcher/extractor.h"
#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/package-reader.h"

namespace fs = std::filesystem;

namespace {

const std::size_t kBlockSize = 65536;
const std::time_t kTimeStamp = 315532800;  // 1980, where the time of a zip begins

[[noreturn]] void Fail(const std::string& where, const std::string& what) {
    throw PackageError(where, what + ": " + std::strerror(errno));
}

[[noreturn]] void FailInterrupted(const std::string& where) {
    throw PackageError(where, "was interrupted; run again");
}

// A new file beside the one whose place it takes at the end. Without that it is removed.
class Replacement {
  public:
    explicit Replacement(const fs::path& path)
        : path_(path), temporary_(path.native() + ".XXXXXX"), fd_(mkstemp(temporary_.data())) {
        if (fd_.get() < 0 || fchmod(fd_.get(), 0644) != 0) {
            Fail(path_, "can't be made");
        }
    }
    ~Replacement() { static_cast<void>(unlink(temporary_.c_str())); }  // gone after commit()
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    int fd() const { return fd_.get(); }

    void commit() const {
        if (platform::SyncFile(fd()) != 0 || rename(temporary_.c_str(), path_.c_str()) != 0 ||
            platform::SyncFolder(path_.parent_path().c_str()) != 0) {
            Fail(path_, "can't be put in its place");
        }
    }

  private:
    const fs::path path_;
    std::string temporary_;
    const platform::Descriptor fd_;
};

// Removed with what is in it.
class TemporaryFolder {
  public:
    TemporaryFolder() : path_(fs::temp_directory_path() / "make-package-XXXXXX") {
        if (mkdtemp(path_.data()) == nullptr) {
            Fail(path_, "can't be made; set TMPDIR to a folder that can be written to");
        }
    }
    ~TemporaryFolder() { FSRemove(path_, false); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    std::string operator/(const std::string& name) const { return path_ + "/" + name; }

  private:
    std::string path_;
};

// == Writing

class ZipWriter {
  public:
    ZipWriter(std::string out, int fd, const Progress& progress, std::int64_t total)
        : out_(std::move(out)),
          fd_(fd),
          progress_(progress),
          total_(total),
          zip_(archive_write_new()) {
        check(archive_write_set_format_zip(zip_.get()));
        check(archive_write_set_options(zip_.get(), "zip:hdrcharset=UTF-8"));
        check(archive_write_set_bytes_in_last_block(zip_.get(), 1));
        check(archive_write_open(zip_.get(), this, nullptr, Write, nullptr));
    }

    void add(const std::string& app, const std::string& name, const AppTree::Node& node) {
        const EntryHandle entry(archive_entry_new());
        archive_entry_set_pathname(entry.get(), name.c_str());
        archive_entry_set_filetype(entry.get(), node.mode & AE_IFMT);
        // Those of a link differ between systems and mean nothing.
        archive_entry_set_perm(entry.get(), S_ISLNK(node.mode) ? 0777 : node.mode & 0777);
        archive_entry_set_size(entry.get(), node.size);
        archive_entry_set_mtime(entry.get(), kTimeStamp, 0);
        archive_entry_set_uid(entry.get(), 0);
        archive_entry_set_gid(entry.get(), 0);
        if (S_ISLNK(node.mode)) {
            archive_entry_set_symlink(entry.get(), node.target.c_str());
        }
        check(archive_write_header(zip_.get(), entry.get()));
        if (S_ISREG(node.mode)) {
            addContent(app + "/" + name, node.size);
        }
        check(archive_write_finish_entry(zip_.get()));
    }

    void finish() { check(archive_write_close(zip_.get())); }

  private:
    // A failure is kept for check(), for libarchive knows no text for it and leaks after it.
    static la_ssize_t Write(archive*, void* writer, const void* data, std::size_t size) {
        ZipWriter& self = *static_cast<ZipWriter*>(writer);
        const char* at = static_cast<const char*>(data);
        std::size_t left = size;
        while (left > 0 && self.error_ == 0) {
            const ssize_t count = write(self.fd_, at, left);
            if (count >= 0) {
                at += count;
                left -= static_cast<std::size_t>(count);
            } else if (errno != EINTR) {
                self.error_ = errno;
            }
        }
        return static_cast<la_ssize_t>(size);
    }

    void check(int result) const {
        if (error_ != 0) {
            errno = error_;
            Fail(out_, "can't be written");
        }
        if (result != ARCHIVE_OK) {
            const char* const text = archive_error_string(zip_.get());
            throw PackageError(out_, std::string("can't be written: ") + (text ? text : ""));
        }
    }

    void addContent(const std::string& path, off_t size) {
        const platform::Descriptor file(open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_CLOEXEC));
        if (file.get() < 0) {
            Fail(path, "can't be read");
        }
        std::vector<char> block(kBlockSize);
        off_t left = size;
        ssize_t count = 0;
        while ((count = read(file.get(), block.data(), block.size())) > 0 && count <= left) {
            const la_ssize_t written =
                archive_write_data(zip_.get(), block.data(), static_cast<std::size_t>(count));
            check(written == count ? ARCHIVE_OK : ARCHIVE_FATAL);
            left -= count;
            if (!progress_(done_ += count, total_)) {
                FailInterrupted(out_);
            }
        }
        if (count < 0) {
            Fail(path, "can't be read");
        }
        if (count > 0 || left > 0) {
            throw PackageError(path, "was changed while it was read; pack when nothing writes");
        }
    }

    const std::string out_;
    const int fd_;
    int error_ = 0;  // the first of a write
    const Progress& progress_;
    std::int64_t done_ = 0;
    const std::int64_t total_;
    const ArchiveHandle zip_;  // writes as long as it exists
};

// Where the package will be: its folder with links followed. It must not lie in the application.
fs::path ResolveOut(const std::string& app, const std::string& out) {
    std::error_code error;
    const fs::path folder = fs::canonical(fs::absolute(out).parent_path(), error);
    if (error) {
        throw PackageError(out, "has no folder to stand in; make it");
    }
    fs::path path = folder / fs::path(out).filename();
    if (!path.has_filename() || fs::is_directory(path, error)) {
        throw PackageError(out, "is a folder; name the file to make");
    }
    for (fs::path above = folder;; above = above.parent_path()) {
        if (fs::equivalent(above, app, error)) {
            throw PackageError(out, "lies in the application folder; make the package elsewhere");
        }
        if (above == above.parent_path()) {
            return path;
        }
    }
}

// == Checking

// What the launcher's log says last, without the time and the source.
std::string LastMessage(const std::string& log) {
    std::ifstream file(log);
    std::string last;
    for (std::string line; std::getline(file, line);) {
        last = line.substr(line.find("): ") + 3);
    }
    return last;
}

void Extract(const std::string& file, const std::string& folder, const std::string& log,
             const Progress& progress) {
    Logger::Initialize(Logger::TYPE_FILE, log, "", 1);
    bool go_on = true;  // signals carry no exceptions
    const QMetaObject::Connection connection = QObject::connect(
        Notify_Adapter::GetInstance(), &Notify_Adapter::sigUpdateProgress,
        [&](int total, int current) { go_on = progress(current, total) && go_on; });
    Extractor extractor;
    extractor.dest_dir = folder;
    extractor.archive_path = file;
    const int result = FSMKDir(folder, false) == 0 ? extractor.Extract() : -1;
    QObject::disconnect(connection);
    Logger::Destroy();
    if (!go_on) {
        FailInterrupted(file);
    }
    if (result != 0) {
        throw PackageError(
            file, "the launcher can't unpack it: " + LastMessage(log) + "; make the package again");
    }
}

std::string LastEntry(const std::string& file) {
    PackageReader package;
    archive_entry* entry = nullptr;
    fs::path last;
    if (package.allocated() &&
        package.open(file.c_str(), PackageReader::Stream::Unverified) == ARCHIVE_OK) {
        while (package.next(entry) == ARCHIVE_OK) {
            const char* const name = archive_entry_pathname(entry);
            last = name != nullptr ? name : "";
        }
    }
    return last.lexically_normal();
}

// In a bundle, the launcher compares the number beside the package and installs the one inside.
void CheckBundle(const std::string& file, int build_number) {
    const fs::path resources = fs::canonical(file).parent_path().parent_path();
    const fs::path info = resources / "INFO";
    if (resources.filename() != "Resources" || !fs::exists(info)) {
        return;
    }
    const int number = ReadBuildNumber(info, info);
    if (number != build_number) {
        throw PackageError(info, "says build " + std::to_string(number) + ", but the package is " +
                                     std::to_string(build_number) +
                                     "; copy the INFO of the packed application there");
    }
}

}  // namespace

PackageSummary MakePackage(const std::string& app, const std::string& out,
                           const Progress& progress) {
    const AppTree tree = ReadAppTree(app, app);
    const Replacement file(ResolveOut(app, out));
    std::int64_t total = 0;
    for (const auto& [name, node] : tree.nodes) {
        total += node.size;
    }
    ZipWriter zip(out, file.fd(), progress, total);
    const std::string client = ClientName();
    for (const auto& [name, node] : tree.nodes) {
        if (name != client) {
            zip.add(app, name, node);
        }
    }
    zip.add(app, client, tree.nodes.at(client));
    zip.finish();
    if (!(ReadAppTree(app, app) == tree)) {
        throw PackageError(app, "was changed while it was read; pack when nothing writes to it");
    }
    file.commit();
    return {tree.nodes.size(), tree.build_number, true};
}

PackageSummary CheckPackage(const std::string& file, const Progress& progress) {
    if (!fs::is_regular_file(file)) {
        throw PackageError(file, "isn't a file; name a package");
    }
    const TemporaryFolder folder;
    const std::string app = folder / "Tarnwell.app";
    Extract(file, app, folder / "log", progress);
    const AppTree tree = ReadAppTree(app, file);
    if (LastEntry(file) != ClientName()) {
        throw PackageError(file, "doesn't end with " + ClientName() +
                                     ", so that an installation that was cut off could be taken "
                                     "for complete; make it with make-package");
    }
    CheckBundle(file, tree.build_number);
    return {tree.nodes.size(), tree.build_number, HasContentChecksum(file.c_str())};
}
