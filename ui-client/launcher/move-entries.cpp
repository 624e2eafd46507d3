#include "ui-client/launcher/move-entries.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <vector>

#include "lib/libclient/file-op.h"

namespace {

// The names in a folder, read to the end before the first is moved.
bool ListNames(const ustring& folder, std::vector<ustring>& names) {
    DIR_HANDLE handle;
    if (FSOpenDir(folder, 0, handle) != 0) {
        return false;
    }
    DIR_ENTRY entry;
    int result = 0;
    while ((result = FSReadDir(handle, entry)) > 0) {
        if (entry.name != "." && entry.name != "..") {
            names.push_back(entry.name);
        }
    }
    return result == 0;
}

bool IsFolder(const ustring& path) {
    struct stat status;
    return lstat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool MoveEntry(const ustring& src, const ustring& dst) {
    const bool is_folder = IsFolder(src);
    if (!is_folder || !IsFolder(dst)) {
        if (std::rename(src.c_str(), dst.c_str()) == 0) {
            return true;
        }
        if (!is_folder || errno != EXDEV || !MakeFolderLike(src, dst)) {
            return false;
        }
    }
    return MoveEntries(src, dst) && rmdir(src.c_str()) == 0;
}

}  // namespace

bool MakeFolderLike(const ustring& folder, const ustring& path) {
    struct stat status;
    return lstat(folder.c_str(), &status) == 0 && S_ISDIR(status.st_mode) &&
           mkdir(path.c_str(), 0700) == 0 && chmod(path.c_str(), status.st_mode & 07777) == 0;
}

bool MoveEntries(const ustring& from, const ustring& to) {
    std::vector<ustring> names;
    return ListNames(from, names) &&
           std::all_of(names.begin(), names.end(), [&](const ustring& name) {
               return MoveEntry(from + "/" + name, to + "/" + name);
           });
}
