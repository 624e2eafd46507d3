#include <vector>

#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "ui-client/launcher/tarnwell-service.h"

#define LOG_SOURCE "tarnwell-service"

namespace {

const ustring log_component("service_debug");

// Whether a copy of the folder at path would be made inside it: whether the deepest folder that
// exists already on the way to its destination is that folder, or lies in it.
bool WouldCopyIntoItself(ustring path, ustring destination) {
    if (FSGetRealPath(path) != 0) {
        return false;
    }
    while (FSGetRealPath(destination) != 0) {
        destination.rtrim("/");
        const ustring::size_type name = destination.rfind('/') + 1;  // 0 when there is no folder
        if (destination == "." || destination.substr(name) == "..") {
            return true;  // it can't be told where that would lead once the way is made
        }
        destination = name == 0 ? ustring(".") : destination.substr(0, name);
    }
    const ustring inside = path == "/" ? path : path + "/";
    return (destination + "/").compare(inside, inside.size()) == 0;
}

bool IsSpecial(std::int32_t type) {
    return type == FILE_TYPE_DEV || type == FILE_TYPE_FIFO || type == FILE_TYPE_SOCK;
}

// Opening a pipe could wait for ever, so the type is looked at first, for a link that of its
// target.
int CopySingle(FSCopyBatch& batch, ustring const& src, ustring const& dst, std::int32_t type) {
    if (type == FILE_TYPE_LNK || type == FILE_TYPE_UNKNOWN) {
        ustring target = src;
        _FILE_INFO_tag info;
        if (FSGetRealPath(target) == 0 && GetFileInfo(target, info) == 0) {
            type = info.type;
        }
    }
    if (IsSpecial(type)) {
        LOG_MSG(ERROR, "FSCopyPath: source path '%s' is a pipe, socket or device (%d)\n",
                src.c_str(), type);
        return -1;
    }
    return batch.copy(src, dst) < 0 ? -1 : 0;
}

// The entries of a folder, read to the end before the first is copied, so that a deep tree doesn't
// hold a stream open at each level. A folder that can't be opened has none.
std::vector<DIR_ENTRY> ListFolder(ustring const& path) {
    std::vector<DIR_ENTRY> entries;
    DIR_HANDLE handle;
    if (FSOpenDir(path, 0, handle) != 0) {
        LOG_MSG(WARNING, "FSCopyPath: failed to create handle  for src '%s' failed\n",
                path.c_str());
        return entries;
    }
    DIR_ENTRY entry;
    while (FSReadDir(handle, entry) > 0) {
        if (entry.name != "." && entry.name != "..") {
            entries.push_back(entry);
        }
    }
    FSCloseDir(handle);
    return entries;
}

void LogCopy(ustring const& src, ustring const& dst) {
    LOG_MSG(DEBUG, "copy from '%s' to '%s'\n", src.c_str(), dst.c_str());
}

// Copies a folder into another, which is made when it isn't there. Below the first level the folder
// above it is known to exist, and nothing is looked up that the listing has told already.
int CopyFolder(FSCopyBatch& batch, ustring const& src, ustring const& dst, bool make_parents) {
    if (FSMKDir(dst, make_parents) < 0) {
        LOG_MSG(ERROR, "FSCopyPath: failed to create dest folder '%s'\n", dst.c_str());
        return -1;
    }
    for (const DIR_ENTRY& entry : ListFolder(src)) {
        const ustring child_src = src + "/" + entry.name;
        const ustring child_dst = dst + "/" + entry.name;
        int result = 0;
        if (entry.type == FILE_TYPE_DIR) {
            LogCopy(child_src, child_dst);
            result = CopyFolder(batch, child_src, child_dst, false);
        } else {
            result = CopySingle(batch, child_src, child_dst, entry.type);
        }
        if (result < 0) {
            LOG_MSG(ERROR, "FSCopyPath: failed to copy from '%s' to '%s'\n", child_src.c_str(),
                    child_dst.c_str());
            return -1;
        }
    }
    return 0;
}

}  // namespace

int Service::FSCopyPath(ustring const& src, ustring const& dst) {
    LogCopy(src, dst);
    _FILE_INFO_tag info;
    if (FSStat(src, info, false) != 0) {
        LOG_MSG(ERROR, "FSCopyPath: failed to stat source '%s'\n", src.c_str());
        return -1;
    }
    if (!info.exists) {
        LOG_MSG(ERROR, "FSCopyPath: source path '%s' does not exist\n", src.c_str());
        return -1;
    }
    FSCopyBatch batch;
    if (info.type == FILE_TYPE_DIR && WouldCopyIntoItself(src, dst)) {
        LOG_MSG(ERROR, "FSCopyPath: destination '%s' lies inside source '%s'\n", dst.c_str(),
                src.c_str());
        return -1;
    }
    const int result = info.type == FILE_TYPE_DIR ? CopyFolder(batch, src, dst, true)
                                                  : CopySingle(batch, src, dst, info.type);
    return result == 0 && batch.sync() == 0 ? 0 : -1;
}
