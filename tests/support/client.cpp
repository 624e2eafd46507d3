// A substitute for the client, which tests copy into an application. Without an argument, as the
// launcher starts it, it appends its process id to $HOME/started and exits. With an argument, it
// prints a line when it is ready for SIGTERM, which it then handles as the argument says.

#include <signal.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace {

void EndAfterTwoSeconds(int) {
    sleep(2);
    _exit(0);
}

int LeaveMark() {
    const char* const home = std::getenv("HOME");
    const std::string mark = std::string(home != nullptr ? home : "") + "/started";
    std::FILE* const file = std::fopen(mark.c_str(), "a");
    return file != nullptr && std::fprintf(file, "%d\n", +getpid()) > 0 && std::fclose(file) == 0
               ? 0
               : 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc < 2) {
        return LeaveMark();
    }
    signal(SIGTERM, std::strcmp(argv[1], "ends at once") == 0      ? SIG_DFL
                    : std::strcmp(argv[1], "ignores SIGTERM") == 0 ? SIG_IGN
                                                                   : EndAfterTwoSeconds);
    std::puts("ready");
    static_cast<void>(std::fflush(stdout));
    for (;;) {
        pause();
    }
}
