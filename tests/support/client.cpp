// A substitute for the client, which tests copy into an application. Without an argument, as the
// launcher starts it, it appends a line to $HOME/started and exits. With an argument, it prints its
// process id, waits for SIGTERM, and then ends after this number of seconds.

#include <signal.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string>

namespace {

unsigned seconds = 0;

void End(int) {
    sleep(seconds);
    _exit(0);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        std::ofstream(std::string(std::getenv("HOME")) + "/started", std::ios::app) << "started\n";
        return 0;
    }
    seconds = static_cast<unsigned>(std::strtoul(argv[1], nullptr, 10));
    signal(SIGTERM, End);
    std::printf("%d\n", +getpid());
    static_cast<void>(std::fflush(stdout));
    for (;;) {
        pause();
    }
}
