// The extractor, on arbitrary bytes as the package.

#include "ui-client/launcher/extractor.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <numeric>
#include <set>

#include "fuzz/support.h"
#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/package-reader.h"
#include "ui-client/launcher/translations/str-table.h"

namespace {

const rlim_t kMaxFileSize = 4 * 1024 * 1024;  // bytes: a package can promise any size
const std::size_t kTarBlock = 512;
const std::size_t kMagicAt = 257;
const std::size_t kChecksumAt = 148;
const std::size_t kChecksumSize = 8;
const char kSentinel[] = "must stay";

const Folder& World() {
    static const Folder folder(InMemory());
    return folder;
}

// The folder beside the destination, into which nothing may be written.
std::string Outside() {
    return World() / "outside";
}

std::set<std::string> NamesIn(const std::string& folder) {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        names.insert(entry.path().filename());
    }
    return names;
}

struct stat StatusOf(const std::string& path) {
    struct stat status {};
    REQUIRE(lstat(path.c_str(), &status) == 0);
    return status;
}

bool SameStatus(const struct stat& a, const struct stat& b) {
    return a.st_ino == b.st_ino && a.st_mode == b.st_mode && a.st_nlink == b.st_nlink &&
           a.st_uid == b.st_uid && a.st_size == b.st_size && a.st_mtim.tv_sec == b.st_mtim.tv_sec &&
           a.st_mtim.tv_nsec == b.st_mtim.tv_nsec;
}

void Remove(const std::string& path) {
    if (FSRemove(path, false) != 0) {  // a folder without permissions
        const std::string command = "chmod -R u+rwx '" + path + "'; rm -rf '" + path + "'";
        REQUIRE(std::system(command.c_str()) == 0);
    }
}

void LimitFileSize(rlim_t limit) {
    rlimit limits{};
    REQUIRE(getrlimit(RLIMIT_FSIZE, &limits) == 0);
    limits.rlim_cur = std::min(limit, limits.rlim_max);
    REQUIRE(setrlimit(RLIMIT_FSIZE, &limits) == 0);
}

// Copies the data of every entry into one and the same file.
void CopyAllData(Extractor& extractor) {
    PackageReader package;
    archive_entry* entry = nullptr;
    if (package.open(extractor.archive_path.c_str(), PackageReader::Stream::Verified) !=
        ARCHIVE_OK) {
        return;
    }
    while (package.next(entry) == ARCHIVE_OK) {
        const EntryHandle copy(archive_entry_new());
        archive_entry_set_pathname(copy.get(), (World() / "dest/copy").c_str());
        archive_entry_set_mode(copy.get(), AE_IFREG | 0600);
        const ArchiveHandle out(archive_write_disk_new());
        REQUIRE(archive_write_header(out.get(), copy.get()) == ARCHIVE_OK);
        const int result = extractor.copy_data(package.get(), out.get());
        REQUIRE(result == 0 || result == -1);
    }
}

// Puts the checksum of a tar header right, without which libarchive takes it for none.
void SealTarHeader(std::uint8_t* header) {
    std::uint8_t* const field = header + kChecksumAt;
    std::fill_n(field, kChecksumSize, std::uint8_t(' '));
    char digits[kChecksumSize];
    std::snprintf(digits, sizeof digits, "%06o", std::accumulate(header, header + kTarBlock, 0u));
    std::copy_n(digits, kChecksumSize - 1, field);
}

int reports;  // of the progress, since it was last set to 0

}  // namespace

// A link in a package may lead anywhere, and a target that writes through it must not do damage:
// every link that leaves the destination leads into the watched folder instead.
extern "C" int symlink(const char* target, const char* path) noexcept {
    static const auto make =
        reinterpret_cast<int (*)(const char*, const char*)>(dlsym(RTLD_NEXT, "symlink"));
    if (target[0] != '/' && std::strstr(target, "..") == nullptr) {
        return make(target, path);
    }
    const bool to_file = std::strstr(target, "sentinel") != nullptr;
    return make((to_file ? Outside() + "/sentinel" : Outside()).c_str(), path);
}

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    SilenceLog();
    StrTable::InitStrTable();
    Notify_Adapter* const adapter = Notify_Adapter::GetInstance();
    QObject::connect(adapter, &Notify_Adapter::sigUpdateProgress, [](int total, int current) {
        ++reports;
        REQUIRE(current == reports);
        REQUIRE(total > 0);
    });
    REQUIRE(std::freopen("/dev/null", "w", stdout) != nullptr);
    std::signal(SIGXFSZ, SIG_IGN);
    umask(022);
    MakeFolder(Outside());
    MakeFile(Outside() + "/sentinel", kSentinel);
    return 0;
}

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t max_size);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t max_size, unsigned seed) {
    size = LLVMFuzzerMutate(data, size, max_size);
    if (seed % 8 != 0) {
        for (std::size_t at = 0; size >= kTarBlock && at <= size - kTarBlock; at += kTarBlock) {
            if (std::memcmp(data + at + kMagicAt, "ustar", 5) == 0) {
                SealTarHeader(data + at);
            }
        }
    }
    return size;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string sentinel = Outside() + "/sentinel";
    const struct stat folder_before = StatusOf(Outside());
    const struct stat sentinel_before = StatusOf(sentinel);
    MakeFolder(World() / "dest");
    const struct stat dest_before = StatusOf(World() / "dest");
    MakeFile(World() / "package", TextOf(data, size));

    Extractor extractor;
    extractor.dest_dir = (World() / "dest").c_str();
    extractor.archive_path = (World() / "package").c_str();
    LimitFileSize(kMaxFileSize);
    const int count = extractor.Count();
    REQUIRE(count >= -1);
    REQUIRE(extractor.List() == (count < 0 ? -1 : 0));
    REQUIRE(NamesIn(World() / "dest").empty());
    reports = 0;
    const int result = extractor.Extract();
    REQUIRE(result == 0 || result == -1);
    REQUIRE(result != 0 || reports == count);

    const struct stat dest_after = StatusOf(World() / "dest");
    REQUIRE(S_ISDIR(dest_after.st_mode) && dest_after.st_ino == dest_before.st_ino);
    REQUIRE(NamesIn(World() / "") == (std::set<std::string>{"dest", "outside", "package"}));
    REQUIRE(NamesIn(Outside()) == std::set<std::string>{"sentinel"});
    REQUIRE(SameStatus(StatusOf(Outside()), folder_before));
    REQUIRE(SameStatus(StatusOf(sentinel), sentinel_before));

    Remove(World() / "dest");
    MakeFolder(World() / "dest");
    CopyAllData(extractor);
    LimitFileSize(RLIM_INFINITY);
    Remove(World() / "dest");

    extractor.dest_dir.clear();
    REQUIRE(extractor.Extract() == -1);
    REQUIRE(extractor.Count() == -1);
    return 0;
}
