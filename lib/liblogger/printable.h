#ifndef LIB_LIBLOGGER_PRINTABLE_H
#define LIB_LIBLOGGER_PRINTABLE_H

#include <string>
#include <string_view>

// Text from outside as it may be put into one line of a log or of a message: control characters are
// written as \xNN, and in text that isn't well-formed UTF-8 so is every byte outside ASCII.
// Threads: any.
std::string Printable(std::string_view text);

#endif
