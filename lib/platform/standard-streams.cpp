#include "lib/platform/standard-streams.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

namespace platform {

void SecureStandardStreams() {
    static_cast<void>(signal(SIGPIPE, SIG_IGN));  // fails only for an unknown signal
    for (int fd = STDIN_FILENO; fd <= STDERR_FILENO; ++fd) {
        if (fcntl(fd, F_GETFD) < 0) {
            static_cast<void>(open("/dev/null", O_RDWR));  // gets the lowest free number
        }
    }
}

}  // namespace platform
