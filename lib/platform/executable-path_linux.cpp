#include "lib/platform/executable-path.h"

#include <QFile>

namespace platform {

QString ExecutablePath() {
    return QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
}

}  // namespace platform
