#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utime.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "lib/libclient/file-op-internal.h"
#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "lib/platform/core-services.h"
#include "lib/platform/file-system-type.h"

#define LOG_SOURCE "file-op"  // the tag of all file operations, not this source's name

using file_op::log_component;

namespace {

const UInt32 kPathSize = 4096;

const UInt8* SystemPath(const ustring& path) {
    return reinterpret_cast<const UInt8*>(path.c_str());
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

std::int32_t file_op::TypeOfMode(mode_t mode) {
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

std::int32_t file_op::TypeOfEntry(const dirent& entry) {
    return TypeOfMode(static_cast<mode_t>(DTTOIF(entry.d_type)));
}

std::int32_t file_op::TypeAt(const Place& place, std::int32_t listed) {
    struct stat status;
    if (listed != FILE_TYPE_UNKNOWN) {
        return listed;
    }
    if (fstatat(place.folder, place.name, &status, AT_SYMLINK_NOFOLLOW) != 0) {
        return FILE_TYPE_UNKNOWN;
    }
    listed = TypeOfMode(status.st_mode);
    if (listed == FILE_TYPE_UNKNOWN) {
        errno = EINVAL;
    }
    return listed;
}

file_op::LookUpLog::LookUpLog()
    : is_written_(Logger::IsWritten(Logger::LEVEL_DEBUG, log_component)) {}

void file_op::LookUpLog::info(const Place& place) const {
    if (is_written_) {
        _FILE_INFO_tag info;
        GetFileInfo(place.path(), info);
    }
}

void file_op::LookUpLog::stat(const Place& place, bool exact) const {
    if (is_written_) {
        _FILE_INFO_tag info;
        FSStat(place.path(), info, exact);
    }
}

bool operator==(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b) {
    return a.exists == b.exists && a.size == b.size && a.mtime == b.mtime && a.type == b.type &&
           a.path == b.path && a.alt_path == b.alt_path;
}

bool operator!=(const _FILE_INFO_tag& a, const _FILE_INFO_tag& b) {
    return !(a == b);
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
    const std::int32_t type = file_op::TypeOfMode(status.st_mode);
    if (type == FILE_TYPE_UNKNOWN) {
        return -1;
    }
    info.type = type;
    FSGetRealPath(info.path);  // if this fails, the path stays as it was passed in
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

int FSUTime(const ustring& path, long atime, long mtime) {
    utimbuf times{};
    times.actime = atime;
    times.modtime = mtime;
    return utime(path.c_str(), &times);
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
