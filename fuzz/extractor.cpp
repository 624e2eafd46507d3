// Fuzzes the extractor with arbitrary bytes as the package.

#include "ui-client/launcher/extractor.h"

#include <dlfcn.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <csignal>
#include <cstring>
#include <filesystem>
#include <numeric>

#include "fuzz/support.h"
#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/package-reader.h"
#include "ui-client/launcher/translations/str-table.h"

namespace fs = std::filesystem;

namespace {

const rlim_t kMaxFileSize = 4 * 1024 * 1024;  // bytes; a package can claim any size
const std::size_t kTarBlock = 512;

const Folder world(fs::temp_directory_path());
const std::string package_file = world / "package";
const std::string destination = world / "dest";
const std::string outside = world / "outside";  // the extractor must not write into it

// Describes what the extractor must not change: the objects outside of the destination, with inode
// and the time of the last change, which covers permissions and links too. The time is 0 for the
// destination itself.
std::map<std::string, std::pair<ino_t, long>> Surroundings() {
    std::map<std::string, std::pair<ino_t, long>> found;
    for (const std::string& folder : {world.path(), outside}) {
        for (const fs::path& path : fs::directory_iterator(folder)) {
            struct stat status {};
            REQUIRE(lstat(path.c_str(), &status) == 0);
            const timespec& changed = status.st_ctim;
            const bool is_ours = path == destination;
            found[path] = {status.st_ino,
                           is_ours ? 0 : changed.tv_sec * 1000000000 + changed.tv_nsec};
        }
    }
    return found;
}

void LimitFileSize(rlim_t limit) {
    rlimit limits{};
    REQUIRE(getrlimit(RLIMIT_FSIZE, &limits) == 0);
    limits.rlim_cur = std::min(limit, limits.rlim_max);
    REQUIRE(setrlimit(RLIMIT_FSIZE, &limits) == 0);
}

// Copies the data of every entry to the same file.
void CopyAllData(Extractor& extractor) {
    PackageReader package;
    archive_entry* entry = nullptr;
    if (package.open(extractor.archive_path.c_str(), PackageReader::Stream::Verified) !=
        ARCHIVE_OK) {
        return;
    }
    while (package.next(entry) == ARCHIVE_OK) {
        const EntryHandle copy(archive_entry_new());
        archive_entry_set_pathname(copy.get(), (destination + "/copy").c_str());
        archive_entry_set_mode(copy.get(), AE_IFREG | 0600);
        const ArchiveHandle out(archive_write_disk_new());
        REQUIRE(archive_write_header(out.get(), copy.get()) == ARCHIVE_OK);
        const int result = extractor.copy_data(package.get(), out.get());
        REQUIRE(result == 0 || result == -1);
    }
}

// Corrects the checksum of a tar header. libarchive doesn't recognise a header with a wrong one.
void SealTarHeader(std::uint8_t* header) {
    char* const checksum = reinterpret_cast<char*>(header) + 148;
    std::memset(checksum, ' ', 8);  // which it counts as
    std::snprintf(checksum, 7, "%06o", std::accumulate(header, header + kTarBlock, 0U));
}

int reports;  // how often progress was reported since this was last set to 0

}  // namespace

// Replaces the C library's function. If the extractor wrote through a link of a package, it could
// damage the machine's files, so every link that could leave the destination is redirected to the
// watched folder.
extern "C" int symlink(const char* target, const char* path) noexcept {
    static const auto make =
        reinterpret_cast<int (*)(const char*, const char*)>(dlsym(RTLD_NEXT, "symlink"));
    if (target[0] != '/' && std::strstr(target, "..") == nullptr) {
        return make(target, path);
    }
    const bool to_file = std::strstr(target, "sentinel") != nullptr;
    return make((to_file ? outside + "/sentinel" : outside).c_str(), path);
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
    MakeFile(outside + "/sentinel");
    return 0;
}

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t max_size);

extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size,
                                               std::size_t max_size, unsigned seed) {
    size = LLVMFuzzerMutate(data, size, max_size);
    if (seed % 8 != 0) {
        for (std::size_t at = 0; at + kTarBlock <= size; at += kTarBlock) {
            if (std::memcmp(data + at + 257, "ustar", 5) == 0) {
                SealTarHeader(data + at);
            }
        }
    }
    return size;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    MakeFolder(destination);
    MakeFile(package_file, TextOf(data, size));
    const auto before = Surroundings();

    Extractor extractor;
    extractor.dest_dir = destination.c_str();
    extractor.archive_path = package_file.c_str();
    LimitFileSize(kMaxFileSize);
    const int count = extractor.Count();
    REQUIRE(count >= -1);
    REQUIRE(extractor.List() == (count < 0 ? -1 : 0));
    REQUIRE(fs::is_empty(destination));
    reports = 0;
    const int result = extractor.Extract();
    REQUIRE(result == 0 || result == -1);
    REQUIRE(result != 0 || reports == count);
    REQUIRE(Surroundings() == before);

    RemoveTree(destination);
    MakeFolder(destination);
    CopyAllData(extractor);
    LimitFileSize(RLIM_INFINITY);
    RemoveTree(destination);
    return 0;
}
