#ifndef PACKAGING_SUMMARY_H
#define PACKAGING_SUMMARY_H

#include <QByteArray>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

// What was packed or checked.
struct Summary {
    int build_number = 0;
    std::size_t entries = 0;
    std::int64_t size = 0;  // of the package in bytes
    std::string sha256;     // of the package, in hexadecimal digits; empty when there is none
    QByteArray info_plist;  // the text of the application's property list
    std::vector<std::string> warnings;  // one line each
};

// Called with the amount of work done; returns whether to continue.
using Progress = std::function<bool(std::int64_t done, std::int64_t total)>;

#endif
