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

void LogCopy(const char* src, const char* dst) {
    LOG_MSG(DEBUG, "copy from '%s' to '%s'\n", src, dst);
}

class CopyLog : public FSCopyListener {
  public:
    void onFolder(const char* src, const char* dst) override { LogCopy(src, dst); }
    void onNoFolder(const char* dst) override {
        LOG_MSG(ERROR, "FSCopyPath: failed to create dest folder '%s'\n", dst);
    }
    void onUnlisted(const char* src) override {
        LOG_MSG(WARNING, "FSCopyPath: failed to create handle  for src '%s' failed\n", src);
    }
    void onSpecial(const char* src, std::int32_t type) override {
        LOG_MSG(ERROR, "FSCopyPath: source path '%s' is a pipe, socket or device (%d)\n", src,
                type);
    }
    void onFailure(const char* src, const char* dst) override {
        LOG_MSG(ERROR, "FSCopyPath: failed to copy from '%s' to '%s'\n", src, dst);
    }
};

}  // namespace

int Service::FSCopyPath(ustring const& src, ustring const& dst) {
    LogCopy(src.c_str(), dst.c_str());
    _FILE_INFO_tag info;
    if (FSStat(src, info, false) != 0) {
        LOG_MSG(ERROR, "FSCopyPath: failed to stat source '%s'\n", src.c_str());
        return -1;
    }
    if (!info.exists) {
        LOG_MSG(ERROR, "FSCopyPath: source path '%s' does not exist\n", src.c_str());
        return -1;
    }
    if (info.type == FILE_TYPE_DIR && WouldCopyIntoItself(src, dst)) {
        LOG_MSG(ERROR, "FSCopyPath: destination '%s' lies inside source '%s'\n", dst.c_str(),
                src.c_str());
        return -1;
    }
    CopyLog log;
    return FSCopyTree(src, dst, log);
}
