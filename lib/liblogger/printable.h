#ifndef LIB_LIBLOGGER_PRINTABLE_H
#define LIB_LIBLOGGER_PRINTABLE_H

#include <string>
#include <string_view>

// Makes text from outside safe for one line of a log or a message: control characters become \xNN,
// and so does every byte outside ASCII if the text isn't well-formed UTF-8.
// Threads: any.
std::string Printable(std::string_view text);

#endif
