#include "lib/liblogger/printable.h"

#include <cstdio>

#include "ustring/ustring.h"

std::string Printable(std::string_view text) {
    const bool utf8 = ustring::is_valid(ustring(std::string(text)));
    std::string printable;
    for (const char byte : text) {
        const auto code = static_cast<unsigned char>(byte);
        if (code < 32 || code == 127 || (code > 127 && !utf8)) {
            char escaped[5];
            static_cast<void>(std::snprintf(escaped, sizeof escaped, "\\x%02X", +code));
            printable += escaped;
        } else {
            printable += byte;
        }
    }
    return printable;
}
