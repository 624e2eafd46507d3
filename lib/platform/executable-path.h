#ifndef LIB_PLATFORM_EXECUTABLE_PATH_H
#define LIB_PLATFORM_EXECUTABLE_PATH_H

#include <QString>

namespace platform {

// The canonical path of this process's executable, whatever name it was started by. Needs no
// application object. Empty when the system doesn't say. Threads: any.
QString ExecutablePath();

}  // namespace platform

#endif
