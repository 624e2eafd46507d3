// Packs an application folder into the package that the launcher's bundle carries, and checks
// application folders, packages and bundles.

#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QTextCodec>
#include <clocale>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <exception>
#include <filesystem>

#include "lib/liblogger/printable.h"
#include "packaging/app-check.h"
#include "packaging/bundle-check.h"
#include "packaging/options.h"
#include "packaging/package-check.h"
#include "packaging/package.h"
#include "packaging/report.h"
#include "ui-client/launcher/translations/str-table.h"

namespace {

volatile std::sig_atomic_t interrupted = 0;

void Interrupt(int) {
    interrupted = 1;
}

// Makes the output independent of the user's locale, time zone and umask.
void FixEnvironment() {
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    if (setlocale(LC_ALL, "C.UTF-8") == nullptr) {
        static_cast<void>(setlocale(LC_CTYPE, "UTF-8"));  // its name on macOS
    }
    setenv("TZ", "UTC0", 1);
    tzset();
    umask(022);
}

// Shows the progress on one line of a terminal, and removes the line in the end.
class ProgressLine {
  public:
    explicit ProgressLine(std::string what) : what_(std::move(what)) {}
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
            static_cast<void>(std::fprintf(stderr, "\r%s: %d %%", what_.c_str(), percent));
            percent_ = percent;
        }
    }

  private:
    const std::string what_;
    const bool terminal_ = isatty(STDERR_FILENO) != 0;
    int percent_ = -1;
};

Summary Check(const Options& options, const Progress& progress) {
    const std::string& path = options.paths[0];
    std::error_code error;
    const std::filesystem::file_type type = std::filesystem::status(path, error).type();
    if (error) {
        throw PackageError(path, "can't be opened: " + error.message(),
                           "name an application folder, a package or a bundle");
    }
    if (type == std::filesystem::file_type::directory) {
        return IsBundle(path) ? CheckBundle(path, progress) : CheckFolder(path, options.package);
    }
    const std::string bundle = BundleOf(path);
    return bundle.empty() ? CheckPackage(path, progress).summary : CheckBundle(bundle, progress);
}

int Run(const Options& options) {
    Report report(options);
    try {
        ProgressLine line(Printable(options.paths.back()));
        const Progress progress = [&line](std::int64_t done, std::int64_t total) {
            line.update(done, total);
            return interrupted == 0;
        };
        if (options.check) {
            report.summary = Check(options, progress);
            RequireNewer(report.summary.build_number, options.paths[0], options.package, progress);
        } else {
            report.summary =
                MakePackage(options.paths[0], options.paths[1], options.package, progress);
        }
    } catch (const PackageError& error) {
        report.faults = error.faults();
    } catch (const std::exception& error) {
        report.faults = {{options.paths.back(), error.what(), ""}};
    }
    return report.print();
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication app(argc, argv);
    FixEnvironment();
    StrTable::InitStrTable();
    Options options;
    switch (ParseOptions(argc, argv, options)) {
        case Parsed::Done:
            return std::fflush(stdout) == 0 ? 0 : 1;
        case Parsed::Wrong:
            return 2;
        case Parsed::Run:
            break;
    }
    for (const int number : {SIGINT, SIGTERM, SIGHUP}) {
        static_cast<void>(std::signal(number, Interrupt));
    }
    return Run(options);
}
