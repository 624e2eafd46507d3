#include "packaging/package-content.h"

#include <QCryptographicHash>
#include <filesystem>
#include <fstream>
#include <map>
#include <utility>
#include <vector>

#include "lib/install-layout.h"
#include "packaging/build-number.h"
#include "packaging/fault.h"
#include "ui-client/launcher/package-reader.h"
#include "ui-client/launcher/version-file.h"

namespace fs = std::filesystem;

namespace {

const int kBlockSize = 65536;

// Reads one package.
class Scan {
  public:
    Scan(std::string file, const Progress& progress)
        : file_(std::move(file)), progress_(progress) {}

    PackageContent read() {
        if (!reader_.allocated() ||
            reader_.open(file_.c_str(), PackageReader::Stream::Verified) != ARCHIVE_OK) {
            fail(kNoArchive);
        }
        archive_entry* entry = nullptr;
        int result = ARCHIVE_OK;
        while ((result = reader_.next(entry)) == ARCHIVE_OK) {
            add(entry);
        }
        if (result != ARCHIVE_EOF && content_.entries == 0) {
            fail(kNoArchive);
        }
        if (result != ARCHIVE_EOF) {
            fail("is damaged after " + std::to_string(content_.entries) + " entries: ");
        }
        if (!reader_.endIsThere()) {
            throw PackageError(
                file_, "is truncated after " + std::to_string(content_.entries) + " entries",
                kAdvice);
        }
        if (reader_.finish() != ARCHIVE_OK) {
            fail("is damaged after its last entry: ");
        }
        finish();
        return content_;
    }

  private:
    static constexpr char kNoArchive[] = "isn't an archive that the launcher can read: ";
    static constexpr char kAdvice[] = "make it again, or copy it again";

    [[noreturn]] void fail(const std::string& what) const {
        const char* const text =
            reader_.get() != nullptr ? archive_error_string(reader_.get()) : nullptr;
        throw PackageError(file_, what + (text != nullptr ? text : "out of memory"), kAdvice);
    }

    void add(archive_entry* entry) {
        const char* const name = archive_entry_pathname(entry);
        std::string path = fs::path(name != nullptr ? name : "").lexically_normal();
        if (!path.empty() && path.back() == '/') {
            path.pop_back();
        }
        content_.last = path;
        ++content_.entries;
        const std::string client = std::string("/") + install_layout::kClient;
        if ("/" + path == client) {
            content_.has_client = true;
        } else if (path.size() > client.size() &&
                   path.compare(path.size() - client.size(), client.size(), client) == 0) {
            content_.wrapper = path.substr(0, path.size() - client.size());
        }
        digests_[path] = digest(path, entry);
        if (!progress_(0, 1)) {
            throw PackageError(file_, "was interrupted", "run again");
        }
    }

    QByteArray digest(const std::string& path, archive_entry* entry) {
        const char* const link = archive_entry_symlink(entry);
        const char* const hard = archive_entry_hardlink(entry);
        QCryptographicHash hash(QCryptographicHash::Sha256);
        for (const std::string& fact :
             {path, std::to_string(archive_entry_mode(entry)), std::string(link ? link : ""),
              std::string(hard ? hard : "")}) {
            hash.addData(fact.c_str(), static_cast<int>(fact.size() + 1));
        }
        const bool is_info = path == install_layout::kInfo;
        const void* block = nullptr;
        std::size_t size = 0;
        la_int64_t offset = 0;
        int result = ARCHIVE_OK;
        while ((result = archive_read_data_block(reader_.get(), &block, &size, &offset)) ==
               ARCHIVE_OK) {
            const char* const bytes = static_cast<const char*>(block);
            hash.addData(bytes, static_cast<int>(size));
            if (is_info && info_.size() + size <= kMaxVersionFile) {
                info_.append(bytes, size);
            }
        }
        if (result != ARCHIVE_EOF) {
            fail("is damaged in " + path + ": ");
        }
        return hash.result();
    }

    void finish() {
        QCryptographicHash all(QCryptographicHash::Sha256);
        for (const auto& [path, digest] : digests_) {
            all.addData(digest);
        }
        content_.digest = all.result().toStdString();
        Fault ignored;
        if (!ParseBuildNumber(info_, content_.build_number, ignored)) {
            content_.build_number = 0;
        }
    }

    const std::string file_;
    const Progress& progress_;
    PackageReader reader_;
    PackageContent content_;
    std::map<std::string, QByteArray> digests_;  // of the entries, by path
    std::string info_;                           // the version file's text
};

}  // namespace

PackageContent ReadPackage(const std::string& file, const Progress& progress) {
    std::error_code error;
    if (!fs::is_regular_file(file, error)) {
        throw PackageError(file, error ? "can't be opened: " + error.message() : "isn't a file",
                           "name a package");
    }
    if (fs::file_size(file, error) == 0) {
        throw PackageError(file, "is empty", "make the package again");
    }
    return Scan(file, progress).read();
}

std::int64_t SizeOf(const std::string& file) {
    return static_cast<std::int64_t>(fs::file_size(file));
}

std::string Sha256Of(const std::string& file) {
    std::ifstream content(file, std::ios::binary);
    QCryptographicHash hash(QCryptographicHash::Sha256);
    std::vector<char> block(kBlockSize);
    while (content.read(block.data(), kBlockSize), content.gcount() > 0) {
        hash.addData(block.data(), static_cast<int>(content.gcount()));
    }
    if (!content.eof()) {
        throw PackageError(file, "can't be read", "");
    }
    return hash.result().toHex().toStdString();
}
