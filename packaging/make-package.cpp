// Makes the package that the launcher's bundle carries out of an application folder, and checks
// packages.

#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QTextCodec>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <exception>

#include "lib/liblogger/printable.h"
#include "packaging/package.h"
#include "ui-client/launcher/translations/str-table.h"

namespace {

volatile std::sig_atomic_t interrupted = 0;

void Interrupt(int) {
    interrupted = 1;
}

// What is written must not depend on who writes it, where and when.
void LeaveTheEnvironment() {
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    if (setlocale(LC_ALL, "C.UTF-8") == nullptr) {
        static_cast<void>(setlocale(LC_CTYPE, "UTF-8"));  // its name on macOS
    }
    setenv("TZ", "UTC0", 1);
    tzset();
    umask(022);
}

// A line that is written over as the work goes on, on a terminal only.
class ProgressLine {
  public:
    explicit ProgressLine(const char* what) : what_(what) {}
    ~ProgressLine() {
        if (percent_ >= 0) {
            static_cast<void>(std::fputs("\r\x1b[K", stderr));
        }
    }
    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

    void update(std::int64_t done, std::int64_t total) {
        const int percent = static_cast<int>(total > 0 ? done * 100 / total : 100);
        if (terminal_ && percent != percent_) {
            static_cast<void>(std::fprintf(stderr, "\r%s: %d %%", what_, percent));
            percent_ = percent;
        }
    }

  private:
    const char* const what_;
    const bool terminal_ = isatty(STDERR_FILENO) != 0;
    int percent_ = -1;
};

int Run(const char* first, const char* second) {
    const bool check = std::strcmp(first, "--check") == 0;
    PackageSummary summary;
    {
        ProgressLine line(second);
        const Progress progress = [&line](std::int64_t done, std::int64_t total) {
            line.update(done, total);
            return interrupted == 0;
        };
        summary = check ? CheckPackage(second, progress) : MakePackage(first, second, progress);
    }
    if (!summary.has_checksum) {
        static_cast<void>(std::fprintf(stderr,
                                       "make-package: %s: has no checksum over its content, so "
                                       "damage can go unnoticed; make it with make-package\n",
                                       Printable(second).c_str()));
    }
    std::printf("%s: %sbuild %d, %zu entries\n", second, check ? "the launcher takes it: " : "",
                summary.build_number, summary.entries);
    return std::fflush(stdout) == 0 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    LeaveTheEnvironment();
    StrTable::InitStrTable();
    if (argc != 3) {
        static_cast<void>(
            std::fputs("usage: make-package APP_FOLDER OUT.opk\n"
                       "       make-package --check FILE.opk\n",
                       stderr));
        return 2;
    }
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        static_cast<void>(std::signal(number, Interrupt));
    }
    try {
        return Run(argv[1], argv[2]);
    } catch (const std::exception& error) {
        static_cast<void>(std::fprintf(stderr, "make-package: %s\n", error.what()));
        return 1;
    }
}
