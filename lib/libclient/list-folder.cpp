#include <dirent.h>

#include <cerrno>
#include <cstring>

#include "lib/libclient/file-op-internal.h"
#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"

#define LOG_SOURCE "file-op"  // the tag of all file operations, not this source's name

using file_op::log_component;

int file_op::FailOpenDir(const char* path) {
    LOG_MSG(ERROR, "FSOpenDir: Failed to open directory '%s'. %s\n", path, strerror(errno));
    return -1;
}

int file_op::FailReadDir(const char* path) {
    LOG_MSG(ERROR, "FSOpenDir: Failed to read directory '%s'. %s\n", path, strerror(errno));
    return -1;
}

int FSOpenDir(const ustring& path, std::int32_t flags, DIR_HANDLE& handle) {
    DIR* const stream = opendir(path.c_str());
    if (stream == nullptr) {
        return file_op::FailOpenDir(path.c_str());
    }
    handle.dir.reset(stream);
    handle.path = path;
    handle.flags = flags;
    return 0;
}

int FSReadDir(DIR_HANDLE& handle, DIR_ENTRY& entry) {
    if (handle.dir == nullptr) {
        errno = EBADF;
        return file_op::FailReadDir(handle.path.c_str());
    }
    const dirent* read = nullptr;
    const int result = file_op::ReadEntry(handle.dir.get(), read);
    if (result <= 0) {
        return result == 0 ? 0 : file_op::FailReadDir(handle.path.c_str());
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
    entry.type = file_op::TypeOfEntry(*read);
    return 1;
}

void FSCloseDir(DIR_HANDLE& handle) {
    handle.dir.reset();
    handle.path.clear();
}
