#include "lib/platform/executable-path.h"

#include <unistd.h>

#include "lib/platform/process-info.h"

namespace platform {

QString ExecutablePath() {
    return QString::fromStdString(DescribeProcess(getpid()).executable);
}

}  // namespace platform
