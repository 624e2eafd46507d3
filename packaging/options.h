#ifndef PACKAGING_OPTIONS_H
#define PACKAGING_OPTIONS_H

#include <string>
#include <vector>

#include "packaging/package.h"

// The command line of make-package.
struct Options {
    bool check = false;
    bool json = false;
    PackageOptions package;
    std::vector<std::string> paths;  // one to check, or the application and the package
};

enum class Parsed {
    Run,
    Done,  // help or version was printed
    Wrong  // the reason was printed to standard error
};

Parsed ParseOptions(int argc, char** argv, Options& options);

#endif
