#include "lib/platform/executable-path.h"

#include <mach-o/dyld.h>

#include <QFileInfo>
#include <climits>

namespace platform {

QString ExecutablePath() {
    char path[PATH_MAX];
    uint32_t size = sizeof path;
    return _NSGetExecutablePath(path, &size) == 0
               ? QFileInfo(QFile::decodeName(path)).canonicalFilePath()
               : QString();
}

}  // namespace platform
