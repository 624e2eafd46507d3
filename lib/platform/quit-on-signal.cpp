#include "lib/platform/quit-on-signal.h"

#include <fcntl.h>
#include <signal.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QSocketNotifier>
#include <cerrno>

namespace platform {

namespace {

int g_signal_pipe[2];

// A signal handler may not call Qt; the event loop reads the other end of the pipe.
void OnSignal(int) {
    const int saved_errno = errno;
    const char byte = 0;
    static_cast<void>(write(g_signal_pipe[1], &byte, 1) == 1);  // a full pipe wakes the loop too
    errno = saved_errno;
}

}  // namespace

void QuitOnSignal() {
    if (pipe(g_signal_pipe) != 0) {
        return;  // out of descriptors: the signals keep their default action
    }
    for (const int fd : g_signal_pipe) {
        fcntl(fd, F_SETFD, FD_CLOEXEC);
        fcntl(fd, F_SETFL, O_NONBLOCK);
    }
    auto* const notifier =
        new QSocketNotifier(g_signal_pipe[0], QSocketNotifier::Read, QCoreApplication::instance());
    QObject::connect(notifier, &QSocketNotifier::activated, [] { QCoreApplication::quit(); });
    struct sigaction action = {};
    action.sa_handler = OnSignal;
    action.sa_flags = SA_RESTART;
    for (const int number : {SIGTERM, SIGINT, SIGHUP}) {
        sigaction(number, &action, nullptr);
    }
}

}  // namespace platform
