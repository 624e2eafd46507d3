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
    Done,  // what was asked for is printed
    Wrong  // said why on standard error
};

Parsed ParseOptions(int argc, char** argv, Options& options);

#endif
