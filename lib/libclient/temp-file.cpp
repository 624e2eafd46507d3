#include <sys/stat.h>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "lib/libclient/file-op-internal.h"
#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "lib/libtmpname/tmp_name_gen.h"
#include "lib/platform/durability.h"
#include "lib/platform/handles.h"

#define LOG_SOURCE "file-op"  // the tag of all file operations, not this source's name

using file_op::log_component;

int FSMktemp(const ustring& dir, ustring& out) {
    char path[4096];
    static_cast<void>(std::snprintf(path, sizeof path, "%s/XXXXXX", dir.c_str()));
    platform::Descriptor file(mkstemp(path));
    if (file.get() < 0) {
        LOG_MSG(ERROR, "mkstemp(%s): %s\n", path, strerror(errno));
        return -1;
    }
    if (platform::SyncFile(file.get()) != 0 || file.close() != 0 || chmod(path, 0644) != 0) {
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
