#include "lib/libclient/file-op.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utime.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "lib/libclient/folder-chain.h"
#include "lib/liblogger/log.h"
#include "lib/libtmpname/tmp_name_gen.h"
#include "lib/platform/copy-range.h"
#include "lib/platform/core-services.h"
#include "lib/platform/durability.h"
#include "lib/platform/file-system-type.h"
#include "lib/platform/handles.h"

#define LOG_SOURCE "file-op"

namespace {

using file_op::FolderChain;
using file_op::Place;
using platform::Descriptor;

const ustring log_component("file_op_debug");

const std::uint32_t kUnchanged = 0xFFFFFFFF;  // what chown reads as "leave it"
const std::uint16_t kDefaultMode = 0xFFFF;
const UInt32 kPathSize = 4096;
const int kCopySize = 32 * 1024 * 1024;
const std::size_t kCopyBatch = 32;  // files that are forced to the disk together
// Of a path that is made. With whole paths the system would walk the same folders again and again.
const int kElementsPerName = 32;

std::uint32_t uid = kUnchanged;
std::uint32_t gid = kUnchanged;

const UInt8* SystemPath(const ustring& path) {
    return reinterpret_cast<const UInt8*>(path.c_str());
}

std::int32_t TypeOfMode(mode_t mode) {
    switch (mode & S_IFMT) {
        case S_IFREG:
            return FILE_TYPE_REG;
        case S_IFDIR:
            return FILE_TYPE_DIR;
        case S_IFLNK:
            return FILE_TYPE_LNK;
        case S_IFBLK:
        case S_IFCHR:
            return FILE_TYPE_DEV;
        case S_IFIFO:
            return FILE_TYPE_FIFO;
        case S_IFSOCK:
            return FILE_TYPE_SOCK;
        default:
            return FILE_TYPE_UNKNOWN;
    }
}

std::int32_t TypeOfEntry(const dirent& entry) {
    return TypeOfMode(static_cast<mode_t>(DTTOIF(entry.d_type)));
}

// What stands at a place itself, as its folder's listing told or else the system; unknown, with
// errno set, when that doesn't say either.
std::int32_t TypeAt(const Place& place, std::int32_t listed = FILE_TYPE_UNKNOWN) {
    struct stat status;
    if (listed == FILE_TYPE_UNKNOWN &&
        fstatat(place.folder, place.name, &status, AT_SYMLINK_NOFOLLOW) == 0) {
        return TypeOfMode(status.st_mode);
    }
    return listed;
}

int FailCopy(const char* operation, const std::string* path = nullptr) {
    const int error = errno;
    if (path != nullptr) {
        LOG_MSG(ERROR, "CopyFile: %s(%s): %s (%d)\n", operation, path->c_str(), strerror(error),
                error);
    } else {
        LOG_MSG(ERROR, "CopyFile: %s: %s (%d)\n", operation, strerror(error), error);
    }
    return error;
}

int FailWrite() {
    const int error = FailCopy("write");
    return error == ENOSPC || error == EDQUOT ? -2 : -1;
}

int FailOpen(const Place& place) {
    const std::string path = place.path();
    FailCopy("open", &path);
    return -1;
}

// Writes all of the bytes; 0, or FSCopy's result.
int WriteAll(int fd, const char* bytes, std::size_t size) {
    while (size > 0) {
        const ssize_t written = write(fd, bytes, size);
        if (written <= 0) {
            return FailWrite();
        }
        bytes += written;
        size -= static_cast<std::size_t>(written);
    }
    return 0;
}

// Lets the system copy, which needn't bring the bytes into this process. false when something may
// be left to copy.
bool CopyWithinSystem(int from, int to) {
    bool copied = false;
    for (;;) {
        const ssize_t size = platform::CopyRange(from, to, kCopySize);
        if (size <= 0) {
            return size == 0 && copied;
        }
        if (size == kCopySize) {
            platform::StartWriting(to);  // goes on while the next chunk is copied
        }
        copied = true;
    }
}

int CopyBytes(int from, int to) {
    if (CopyWithinSystem(from, to)) {
        return 0;
    }
    struct Free {
        void operator()(char* memory) const { std::free(memory); }
    };
    const std::unique_ptr<char, Free> buffer(static_cast<char*>(std::malloc(kCopySize)));
    if (buffer == nullptr) {
        LOG_MSG(ERROR, "FSCopy: malloc(%d): %s (%d)\n", kCopySize, strerror(errno), errno);
        return -1;
    }
    for (;;) {
        const ssize_t size = read(from, buffer.get(), kCopySize);
        if (size == 0) {
            return 0;
        }
        if (size < 0) {
            FailCopy("read");
            return -1;
        }
        const int result = WriteAll(to, buffer.get(), static_cast<std::size_t>(size));
        if (result != 0) {
            return result;
        }
        if (size == kCopySize) {
            platform::StartWriting(to);  // goes on while the next chunk is read
        }
    }
}

// Forces what was copied to the disk. What can't be forced there (a device) isn't a failure.
int FinishCopy(Descriptor& destination, int result) {
    const bool synced = fsync(destination.get()) == 0 || errno == EINVAL || errno == ENOTSUP;
    if (!synced && result == 0) {
        result = FailWrite();
    }
    if (destination.close() != 0 && result == 0) {
        result = FailWrite();
    }
    return result;
}

// Empties a destination that was opened, unless it is the source itself.
bool Truncate(int destination, int source) {
    struct stat to;
    struct stat from;
    if (fstat(destination, &to) != 0 || fstat(source, &from) != 0) {
        return false;
    }
    if (to.st_dev == from.st_dev && to.st_ino == from.st_ino) {
        errno = EINVAL;
        return false;
    }
    return !S_ISREG(to.st_mode) || to.st_size == 0 || ftruncate(destination, 0) == 0;
}

// Copies the bytes of a file; the destination is left open, to be forced to the disk.
int CopyContent(const Descriptor& source, const Place& src, const Place& dst,
                Descriptor& destination) {
    if (source.get() < 0) {
        return FailOpen(src);
    }
    destination.reset(openat(dst.folder, dst.name, O_WRONLY | O_CREAT | O_CLOEXEC, 0666));
    if (destination.get() < 0 || !Truncate(destination.get(), source.get())) {
        return FailOpen(dst);
    }
    return CopyBytes(source.get(), destination.get());
}

Descriptor OpenSource(const Place& src) {
    return Descriptor(openat(src.folder, src.name, O_RDONLY | O_CLOEXEC));
}

int CopyFile(const Place& src, const Place& dst, bool remove_src) {
    Descriptor source = OpenSource(src);
    Descriptor destination(-1);
    int result = CopyContent(source, src, dst, destination);
    if (destination.get() >= 0) {
        result = FinishCopy(destination, result);
    }
    if (result != 0 || !remove_src) {
        return result;
    }
    source.close();  // nothing was written to it
    return unlinkat(src.folder, src.name, 0) == 0 ? 0 : -1;
}

int RefuseNonFolder(const char* path, std::int32_t type) {
    LOG_MSG(ERROR, "FSMKDir: Create a folder but local file system is not directory '%s' (%d)\n",
            path, type);
    return -1;
}

int RefuseUnexamined(const char* path) {
    LOG_MSG(ERROR, "FSMKDir: Failed to to file info '%s'\n", path);
    return -1;
}

// FSMKDir for one folder inside a walk.
int MakeFolder(const Place& place) {
    if (mkdirat(place.folder, place.name, 0777) == 0) {
        // As everywhere, failing to hand the folder over is no failure of making it.
        static_cast<void>(fchownat(place.folder, place.name, uid, gid, 0) == 0);
        return 0;
    }
    const std::int32_t type = TypeAt(place);
    if (type == FILE_TYPE_UNKNOWN) {
        return errno == ENOENT ? -2 : RefuseUnexamined(place.path().c_str());
    }
    return type == FILE_TYPE_DIR ? 0 : RefuseNonFolder(place.path().c_str(), type);
}

int FailOpenDir(const char* path) {
    LOG_MSG(ERROR, "FSOpenDir: Failed to open directory '%s'. %s\n", path, strerror(errno));
    return -1;
}

int FailReadDir(const char* path) {
    LOG_MSG(ERROR, "FSOpenDir: Failed to read directory '%s'. %s\n", path, strerror(errno));
    return -1;
}

// Copies files as FSCopy does, but forces them to the disk a batch at a time, which takes far less
// time than one by one. Every file is there, or its failure has been told, when sync() returns.
class CopyBatch {
  public:
    CopyBatch() = default;
    ~CopyBatch() { static_cast<void>(sync()); }
    CopyBatch(const CopyBatch&) = delete;
    CopyBatch& operator=(const CopyBatch&) = delete;

    // Returns also what sync() does.
    int copy(const Place& src, const Place& dst) {
        Descriptor destination(-1);
        const int result = CopyContent(OpenSource(src), src, dst, destination);
        if (destination.get() >= 0) {
            platform::StartWriting(destination.get());
            copied_.push_back(std::move(destination));
        }
        return result == 0 && copied_.size() >= kCopyBatch ? sync() : result;
    }

    // Returns 0, or FSCopy's result.
    int sync() {
        int result = 0;
        for (Descriptor& file : copied_) {
            result = FinishCopy(file, result);
        }
        copied_.clear();
        return result;
    }

  private:
    std::vector<Descriptor> copied_;
};

// One run of FSCopyTree. The two chains are at the same level between the steps, the listings too.
class TreeCopy {
  public:
    explicit TreeCopy(FSCopyListener& listener) : listener_(listener) {}

    int copy(const ustring& src, const ustring& dst) {
        const Place from(src);
        const Place to(dst);
        const std::int32_t type = TypeAt(from);
        if (!(type == FILE_TYPE_DIR ? enter(from, to, FSMKDir(dst, true))
                                    : copyFile(from, to, type))) {
            return -1;
        }
        while (!listings_.empty()) {
            if (!step()) {
                return -1;
            }
        }
        return batch_.sync() == 0 ? 0 : -1;
    }

  private:
    struct Entry {
        std::string name;
        std::int32_t type;
    };

    // The rest of a folder, from the last entry to the next one.
    using Listing = std::vector<Entry>;

    // Copies the next entry of the current folder, or leaves the folder.
    bool step() {
        if (listings_.back().empty()) {
            return leave() || fail(from_.name_left());
        }
        const Entry entry = std::move(listings_.back().back());
        listings_.back().pop_back();
        const Place src = from_.at(entry.name.c_str());
        const Place dst = to_.at(entry.name.c_str());
        const std::int32_t type = TypeAt(src, entry.type);
        return (type == FILE_TYPE_DIR ? copyFolder(src, dst) : copyFile(src, dst, type)) ||
               fail(entry.name);
    }

    bool copyFolder(const Place& src, const Place& dst) {
        listener_.onFolder(src.path().c_str(), dst.path().c_str());
        return enter(src, dst, MakeFolder(dst));
    }

    // Makes a folder and its copy, of which made is FSMKDir's result, the current ones.
    bool enter(const Place& src, const Place& dst, int made) {
        if (made < 0 || !(to_.enter(dst) || FailOpen(dst) == 0)) {
            listener_.onNoFolder(dst.path().c_str());
            return false;
        }
        if (!from_.enter(src)) {
            FailOpenDir(src.path().c_str());
            listener_.onUnlisted(src.path().c_str());
            return to_.leave();
        }
        listings_.push_back(list());
        return true;
    }

    // The entries of the current folder, all of them before the first is copied: what is copied may
    // lead to new ones.
    Listing list() {
        Listing entries;
        const dirent* entry = nullptr;
        int result = 0;
        while ((result = from_.read(entry)) > 0) {
            entries.push_back({entry->d_name, TypeOfEntry(*entry)});
        }
        if (result < 0) {
            FailReadDir(from_.path().c_str());
        }
        std::reverse(entries.begin(), entries.end());
        return entries;
    }

    bool leave() {
        listings_.pop_back();
        const bool source = from_.leave() || FailOpen(from_.at(".")) == 0;
        const bool destination = to_.leave() || FailOpen(to_.at(".")) == 0;
        return source && destination;
    }

    // Opening a pipe could wait for ever, so the type is looked at first, for a link that of its
    // target.
    bool copyFile(const Place& src, const Place& dst, std::int32_t type) {
        struct stat status;
        if (type == FILE_TYPE_LNK && fstatat(src.folder, src.name, &status, 0) == 0) {
            type = TypeOfMode(status.st_mode);
        }
        if (type == FILE_TYPE_DEV || type == FILE_TYPE_FIFO || type == FILE_TYPE_SOCK) {
            listener_.onSpecial(src.path().c_str(), type);
            return false;
        }
        return batch_.copy(src, dst) == 0;
    }

    // Tells of an entry of the current folder, and of each folder on the way out of the walk, that
    // it isn't copied.
    bool fail(std::string name) {
        for (;;) {
            listener_.onFailure(from_.at(name.c_str()).path().c_str(),
                                to_.at(name.c_str()).path().c_str());
            from_.leave();
            to_.leave();
            if (from_.empty()) {
                return false;
            }
            name = from_.name_left();
        }
    }

    FSCopyListener& listener_;
    CopyBatch batch_;
    FolderChain from_;
    FolderChain to_{FolderChain::Pass};
    std::vector<Listing> listings_;  // of the folders from the first to the current one
};

// What a rename that the system refused means to FSRename's caller; 0: copy and delete instead.
int RenameRefused() {
    return errno == EXDEV ? 0 : errno == ENAMETOOLONG ? -100 : -3;
}

// Moves one entry of a walk. A folder is made at the destination and becomes the current one.
int MoveEntry(const char* name, FolderChain& from, FolderChain& to, bool exact) {
    const Place src = from.at(name);
    const Place dst = to.at(name);
    struct stat status;
    if (faccessat(src.folder, name, F_OK, 0) != 0 ||
        fstatat(src.folder, name, &status, AT_SYMLINK_NOFOLLOW) != 0 ||
        (exact && S_ISLNK(status.st_mode))) {
        return -2;
    }
    if (renameat(src.folder, name, dst.folder, name) == 0) {
        return 0;
    }
    if (const int refused = RenameRefused()) {
        return refused;
    }
    if (S_ISREG(status.st_mode)) {
        return CopyFile(src, dst, true);
    }
    if (!S_ISDIR(status.st_mode)) {
        return 0;
    }
    return MakeFolder(dst) == 0 && to.enter(dst) && from.enter(src) ? 0 : -3;
}

// Moves a folder's entries into another folder on another volume and deletes it then.
int MoveFolder(const ustring& src, const ustring& dst, bool exact) {
    FolderChain from;
    FolderChain to;
    if (FSMKDir(dst, true) != 0 || !to.enter(Place(dst)) || !from.enter(Place(src))) {
        return -3;
    }
    for (;;) {
        if (const dirent* const entry = from.next()) {
            const std::string name = entry->d_name;
            if (MoveEntry(name.c_str(), from, to, exact) < 0) {
                return -3;
            }
            continue;
        }
        if (!from.leave() || !to.leave()) {
            return -3;
        }
        if (from.empty()) {
            return std::remove(src.c_str()) == 0 ? 0 : -3;
        }
        const Place emptied = from.at(from.name_left().c_str());
        if (unlinkat(emptied.folder, emptied.name, AT_REMOVEDIR) != 0) {
            return -3;
        }
    }
}

// Deletes an entry that is no folder; a folder becomes the current one of the walk.
bool RemoveEntry(const dirent& entry, FolderChain& chain) {
    const Place place = chain.at(entry.d_name);
    if (TypeAt(place, TypeOfEntry(entry)) == FILE_TYPE_DIR) {
        chain.enter(place);  // one that can't be opened is passed over
        return true;
    }
    return unlinkat(place.folder, place.name, 0) == 0 || errno == ENOENT;
}

int RemoveFolder(const ustring& path) {
    FolderChain chain;
    if (!chain.enter(Place(path))) {
        return 0;
    }
    for (;;) {
        if (const dirent* const entry = chain.next()) {
            if (!RemoveEntry(*entry, chain)) {
                return -3;
            }
            continue;
        }
        if (!chain.leave()) {
            return -3;
        }
        if (chain.empty()) {
            return std::remove(path.c_str()) == 0 ? 0 : -3;
        }
        const Place emptied = chain.at(chain.name_left().c_str());
        if (unlinkat(emptied.folder, emptied.name, AT_REMOVEDIR) != 0) {
            return -3;
        }
    }
}

// Sets the umask to 0 for as long as it lives.
class NoUmask {
  public:
    explicit NoUmask(bool active) : active_(active), saved_(active ? umask(0) : 0) {}
    ~NoUmask() {
        if (active_) {
            umask(saved_);
        }
    }
    NoUmask(const NoUmask&) = delete;
    NoUmask& operator=(const NoUmask&) = delete;

  private:
    const bool active_;
    const mode_t saved_;
};

// Makes sure that one folder on FSMKDirP's way exists; -1 with errno set.
int EnsureFolder(const Place& place, bool last, bool force, mode_t mode) {
    struct stat status;
    if (fstatat(place.folder, place.name, &status, 0) == 0) {
        if (S_ISDIR(status.st_mode)) {
            return 0;
        }
        if (!force) {
            errno = last ? EEXIST : ENOTDIR;
            return -1;
        }
        if (unlinkat(place.folder, place.name, 0) != 0) {
            return -1;
        }
    }
    if (mkdirat(place.folder, place.name, mode) != 0) {
        return -1;
    }
    if (uid != kUnchanged || gid != kUnchanged) {
        static_cast<void>(fchownat(place.folder, place.name, uid == kUnchanged ? geteuid() : uid,
                                   gid == kUnchanged ? getegid() : gid, 0) == 0);
    }
    return 0;
}

// Opens the folder that the next ones are named from; without it, they keep their longer names.
bool MoveTo(const Place& place, Descriptor& base) {
    const int fd =
        openat(place.folder, place.name, platform::kOpenToPass | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        base.reset(fd);
    }
    return fd >= 0;
}

bool CanonicalPath(const ustring& path, ustring& canonical, const char*& failed, OSStatus& status) {
    FSRef ref;
    failed = "FSPathMakeRef";
    status = FSPathMakeRef(SystemPath(path), &ref, nullptr);
    if (status != 0) {
        return false;
    }
    UInt8 buffer[kPathSize] = {};
    failed = "FSRefMakePath";
    status = FSRefMakePath(&ref, buffer, kPathSize);
    if (status != 0) {
        return false;
    }
    canonical = reinterpret_cast<const char*>(buffer);
    return true;
}

}  // namespace

bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b) {
    return a.exists == b.exists && a.size == b.size && a.mtime == b.mtime && a.type == b.type &&
           a.path == b.path && a.alt_path == b.alt_path;
}

bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b) {
    return !(a == b);
}

void FSInitialize(std::uint32_t new_uid, std::uint32_t new_gid) {
    uid = new_uid;
    gid = new_gid;
}

int FSInit(const ustring&) {
    return 0;
}

int FSChown(const ustring& path) {
    return chown(path.c_str(), uid, gid);
}

bool IsFileExist(const ustring& path, bool exact) {
    const ustring normalized = path.normalize(ustring::NFC);
    if (normalized.empty() || access(normalized.c_str(), F_OK) != 0) {
        return false;
    }
    if (!exact) {
        return true;
    }
    LOG_MSG(DEBUG, "Input file path = [%s].\n", normalized.c_str());
    ustring stored;
    const char* failed = nullptr;
    OSStatus status = 0;
    if (!CanonicalPath(normalized, stored, failed, status)) {
        LOG_MSG(ERROR, "%s: %d\n", failed, static_cast<int>(status));
        return false;
    }
    stored = stored.normalize(ustring::NFC);
    LOG_MSG(DEBUG, "FSRefMakePath outTargetPath path = [%s].\n", stored.c_str());
    if (stored != normalized) {
        return false;
    }
    LOG_MSG(DEBUG, "File exist.\n");
    return true;
}

int GetFileInfo(const ustring& path, _FILE_INFO_tag& info) {
    struct stat status;
    if (lstat(path.c_str(), &status) != 0) {
        if (errno != ENOENT) {
            return -1;
        }
        info.exists = false;
        info.mtime = std::time(nullptr);
        info.path = path;
        info.size = 0;
        info.type = FILE_TYPE_REG;
        info.uid = info.gid = info.mode = 0;
        return 0;
    }
    info.exists = true;
    info.mtime = status.st_mtime;
    info.path = path;
    info.size = status.st_size;
    info.uid = status.st_uid;
    info.gid = status.st_gid;
    info.mode = status.st_mode;
    const std::int32_t type = TypeOfMode(status.st_mode);
    if (type == FILE_TYPE_UNKNOWN) {
        return -1;
    }
    info.type = type;
    FSGetRealPath(info.path);  // without it the path stays as it was passed in
    return 0;
}

int FSGetRealPath(ustring& path) {
    LOG_MSG(DEBUG, " org path [%s]\n", path.c_str());
    const char* failed = nullptr;
    OSStatus status = 0;
    if (!CanonicalPath(path, path, failed, status)) {
        return -1;
    }
    LOG_MSG(DEBUG, " get full path [%s]\n", path.c_str());
    return 0;
}

int FSStat(const ustring& path, _FILE_INFO_tag& info, bool exact) {
    if (path.empty()) {
        return -1;
    }
    if (!IsFileExist(path, exact)) {
        info.exists = false;
        return 0;
    }
    return GetFileInfo(path, info) == 0 ? 0 : -2;
}

int FSCopy(const ustring& src, const ustring& dst, bool remove_src) {
    return CopyFile(Place(src), Place(dst), remove_src);
}

int FSCopyTree(const ustring& src, const ustring& dst, FSCopyListener& listener) {
    return TreeCopy(listener).copy(src, dst);
}

int FSRename(const ustring& src, const ustring& dst, bool exact) {
    if (src.empty() || dst.empty()) {
        return -1;
    }
    _FILE_INFO_tag info;
    if (FSStat(src, info, exact) != 0 || !info.exists) {
        return -2;
    }
    if (std::rename(src.c_str(), dst.c_str()) == 0) {
        return 0;
    }
    if (const int refused = RenameRefused()) {
        return refused;
    }
    if (info.type == FILE_TYPE_DIR) {
        return MoveFolder(src, dst, exact);
    }
    if (info.type == FILE_TYPE_REG) {
        return FSCopy(src, dst, true) < 0 ? -3 : 0;
    }
    return 0;
}

int FSMKDir(const ustring& path, bool parents) {
    if (path.empty()) {
        return -1;
    }
    _FILE_INFO_tag info;
    if (GetFileInfo(path, info) != 0) {
        return RefuseUnexamined(path.c_str());
    }
    if (info.exists) {
        return info.type == FILE_TYPE_DIR ? 0 : RefuseNonFolder(path.c_str(), info.type);
    }
    const int made =
        parents ? FSMKDirP(path, nullptr, false, kDefaultMode) : mkdir(path.c_str(), 0777);
    if (made != 0) {
        return -2;
    }
    static_cast<void>(FSChown(path) == 0);
    return 0;
}

int FSMKDirP(const ustring& path, char** end_out, bool force, std::uint16_t mode) {
    if (path.empty()) {
        return -1;
    }
    std::string text(path.c_str());
    const bool exact_mode = mode != kDefaultMode;
    const NoUmask no_umask(exact_mode);
    Descriptor base(-1);    // the folder from which the next ones are named, once there is one
    std::size_t start = 0;  // where the names from there begin
    std::size_t end = 0;
    int elements = 0;
    int result = 0;
    for (bool last = false; !last && result == 0;) {
        // The separator at which the search starts stays part of the name.
        end = std::min(text.find('/', end + (text[end] == '/' ? 1 : 0)), text.size());
        last = end + 1 >= text.size();
        const char separator = text[end];
        text[end] = 0;
        const Place folder(base.get() >= 0 ? base.get() : AT_FDCWD, text.c_str() + start);
        result = EnsureFolder(folder, last, force, exact_mode ? mode : 0777);
        ++elements;
        if (result == 0 && elements % kElementsPerName == 0 && !last && text[end + 1] != '/' &&
            MoveTo(folder, base)) {
            start = end + 1;
        }
        text[end] = separator;
    }
    if (end_out != nullptr) {
        *end_out = const_cast<char*>(path.c_str()) + end;
    }
    return result;
}

int FSRemove(const ustring& path, bool) {
    _FILE_INFO_tag info;
    if (path.empty() || GetFileInfo(path, info) != 0) {
        return -1;
    }
    if (!info.exists) {
        return 0;
    }
    if (info.type == FILE_TYPE_DIR) {
        return RemoveFolder(path);
    }
    return std::remove(path.c_str()) == 0 ? 0 : -3;
}

int FSRemoveOwnTree(const ustring& path) {
    return FSRemove(path, false);
}

int FSMktemp(const ustring& dir, ustring& out) {
    char path[kPathSize];
    static_cast<void>(std::snprintf(path, sizeof path, "%s/XXXXXX", dir.c_str()));
    Descriptor file(mkstemp(path));
    if (file.get() < 0) {
        LOG_MSG(ERROR, "mkstemp(%s): %s\n", path, strerror(errno));
        return -1;
    }
    if (fsync(file.get()) != 0 || file.close() != 0 || chmod(path, 0644) != 0) {
        LOG_MSG(ERROR, "mkstemp(%s): %s\n", path, strerror(errno));
        static_cast<void>(std::remove(path));
        return -1;
    }
    out = path;
    return 0;
}

int FSCreateTempPath(const ustring& dir, ustring& out) {
    out = TmpNameGen::getInstance().getTmpPath(dir);
    return out.empty() ? -1 : 0;
}

int FSUTime(const ustring& path, long atime, long mtime) {
    utimbuf times{};
    times.actime = atime;
    times.modtime = mtime;
    return utime(path.c_str(), &times);
}

int FSOpenDir(const ustring& path, std::int32_t flags, DIR_HANDLE& handle) {
    DIR* const stream = opendir(path.c_str());
    if (stream == nullptr) {
        return FailOpenDir(path.c_str());
    }
    handle.dir.reset(stream);
    handle.path = path;
    handle.flags = flags;
    return 0;
}

int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry) {
    const dirent* read = nullptr;
    errno = EBADF;
    const int result = handle.dir != nullptr ? file_op::ReadEntry(handle.dir.get(), read) : -1;
    if (result < 0) {
        FailReadDir(handle.path.c_str());
    }
    if (result <= 0) {
        return result;
    }
    _FILE_INFO_tag info;
    if ((handle.flags & DIR_OPEN_STAT) != 0) {
        const ustring path = handle.path + "/" + read->d_name;
        if (FSStat(path, info, true) != 0) {
            LOG_MSG(ERROR, "FSOpenDir: Failed to get info for '%s'\n", path.c_str());
            return -1;
        }
    }
    entry.mtime = info.mtime;
    entry.size = info.size;
    entry.name = read->d_name;
    entry.type = TypeOfEntry(*read);
    return 1;
}

void FSCloseDir(DIR_HANDLE& handle) {
    handle.dir.reset();
    handle.path.clear();
}

bool FSTimeEqual(long a, long b) {
    return a == b;
}

bool isFileLocked(const ustring& path, int mode) {
    return access(path.c_str(), mode) != 0 && (errno == EACCES || errno == EPERM);
}

bool isMountPoint(const ustring& path) {
    std::string type;
    if (platform::FileSystemType(path.c_str(), type) != 0) {
        LOG_MSG(ERROR, "isMountPoint: Failed to get file system info '%s'. %s\n", path.c_str(),
                strerror(errno));
        return false;
    }
    return type == "nfs" || type == "smbfs" || type == "afpfs";
}

bool IsMSDOS(const ustring& path) {
    std::string type;
    if (platform::FileSystemType(path.c_str(), type) != 0) {
        LOG_MSG(ERROR, "IsSupportLargeFile: Failed to get file system info '%s'. %s\n",
                path.c_str(), strerror(errno));
        return false;
    }
    if (type != "msdos") {
        return false;
    }
    LOG_MSG(WARNING, "Detect a MSDOS platform for path '%s'.\n", path.c_str());
    return true;
}
