#include "packaging/options.h"

#include <getopt.h>

#include <cstdio>

namespace {

const char kUsage[] =
    "usage: make-package [--format FORMAT] [--newer-than OLD.opk] [--json] APP_FOLDER OUT.opk\n"
    "       make-package [--newer-than OLD.opk] [--json] --check APP_FOLDER|FILE.opk|BUNDLE\n"
    "       make-package --help | --version\n";

const char kHelp[] =
    "\n"
    "Packs an application folder into the package that the launcher's bundle carries. Refuses "
    "what\n"
    "would fail on a user's machine.\n"
    "\n"
    "  APP_FOLDER     the client's application, the folder that contains Contents\n"
    "  OUT.opk        the package to make; an existing package is replaced\n"
    "  --check        check an application folder without packing it, a package, or a bundle with\n"
    "                 its package\n"
    "  --newer-than   refuse a build number that isn't greater than that of the package OLD.opk\n"
    "  --format       %s (default: %s)\n"
    "  --json         print the result to standard output as a JSON object\n"
    "\n"
    "Exit status: 0 success, 1 refused or failed, 2 wrong usage.\n";

enum Choice : int { kCheck = 1, kFormat, kHelpWanted, kJson, kNewerThan, kVersion };

const option kOptions[] = {{"check", no_argument, nullptr, kCheck},
                           {"format", required_argument, nullptr, kFormat},
                           {"help", no_argument, nullptr, kHelpWanted},
                           {"json", no_argument, nullptr, kJson},
                           {"newer-than", required_argument, nullptr, kNewerThan},
                           {"version", no_argument, nullptr, kVersion},
                           {nullptr, 0, nullptr, 0}};

Parsed PrintHelp() {
    std::printf("%s", kUsage);
    std::printf(kHelp, PackageWriter::formats().c_str(), PackageWriter::kDefaultFormat);
    return Parsed::Done;
}

Parsed Refuse(const std::string& reason) {
    static_cast<void>(std::fprintf(stderr, "make-package: %s\n%s", reason.c_str(), kUsage));
    return Parsed::Wrong;
}

// The path without a "/" at its end, so that messages can append names to it.
std::string Trimmed(std::string path) {
    while (path.size() > 1 && path.back() == '/') {
        path.pop_back();
    }
    return path;
}

Parsed Judge(const Options& options) {
    if (!PackageWriter::knows(options.package.format)) {
        return Refuse("unknown format '" + options.package.format +
                      "', choose one of: " + PackageWriter::formats());
    }
    const std::size_t wanted = options.check ? 1 : 2;
    if (options.paths.size() != wanted) {
        return Refuse(options.check ? "--check needs exactly one path"
                                    : "name one application folder and one package");
    }
    return Parsed::Run;
}

}  // namespace

Parsed ParseOptions(int argc, char** argv, Options& options) {
    opterr = 0;
    for (;;) {
        const int at = optind;
        switch (getopt_long(argc, argv, ":", kOptions, nullptr)) {
            case kCheck:
                options.check = true;
                break;
            case kFormat:
                options.package.format = optarg;
                break;
            case kHelpWanted:
                return PrintHelp();
            case kJson:
                options.json = true;
                break;
            case kNewerThan:
                options.package.newer_than = optarg;
                break;
            case kVersion:
                std::printf("make-package %s\n", TARNWELL_VERSION);
                return Parsed::Done;
            case -1:
                for (int i = optind; i < argc; ++i) {
                    options.paths.push_back(Trimmed(argv[i]));
                }
                return Judge(options);
            case ':':
                return Refuse(std::string(argv[at]) + " needs a value");
            default:
                return Refuse("unknown option: " + std::string(argv[at]));
        }
    }
}
