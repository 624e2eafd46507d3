#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "ui-client/launcher/tarnwell-service.h"

#define LOG_SOURCE "tarnwell-service"

namespace {

const ustring log_component("service_debug");

void LogCopy(const char* src, const char* dst) {
    LOG_MSG(DEBUG, "copy from '%s' to '%s'\n", src, dst);
}

void LogMissing(const char* src) {
    LOG_MSG(ERROR, "FSCopyPath: source path '%s' does not exist\n", src);
}

class CopyLog : public FSCopyListener {
  public:
    void onInside(const char* src, const char* dst) override {
        LOG_MSG(ERROR, "FSCopyPath: destination '%s' lies inside source '%s'\n", dst, src);
    }
    void onFolder(const char* src, const char* dst) override { LogCopy(src, dst); }
    void onMissing(const char* src) override { LogMissing(src); }
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
        LogMissing(src.c_str());
        return -1;
    }
    CopyLog log;
    return FSCopyTree(src, dst, log);
}
