#include "lib/platform/executable-path.h"

#include <unistd.h>

#include "lib/platform/process-info.h"

namespace platform {

QString ExecutablePath() {
    ProcessInfo self;
    return DescribeProcess(getpid(), self) ? QString::fromStdString(self.executable) : QString();
}

}  // namespace platform
