// A substitute for the client, which tests copy into an application. Without an argument, as the
// launcher starts it, it appends a line to $HOME/started and exits. With an argument, it
// prints its process id when it is ready for SIGTERM, which it handles as the argument says.

#include <signal.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <string>

namespace {

void EndAfterTwoSeconds(int) {
    sleep(2);
    _exit(0);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::ofstream(std::string(std::getenv("HOME")) + "/started", std::ios::app) << "started\n";
        return 0;
    }
    signal(SIGTERM, std::strcmp(argv[1], "ends-at-once") == 0      ? SIG_DFL
                    : std::strcmp(argv[1], "ignores-SIGTERM") == 0 ? SIG_IGN
                                                                   : EndAfterTwoSeconds);
    std::printf("%d\n", +getpid());
    static_cast<void>(std::fflush(stdout));
    for (;;) {
        pause();
    }
}
