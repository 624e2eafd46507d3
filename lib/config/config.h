#ifndef LIB_CONFIG_CONFIG_H
#define LIB_CONFIG_CONFIG_H

#include <map>
#include <string_view>

#include "ustring/ustring.h"

// Reader of small text files with one key=value entry per line: the logger's level file and the
// pid file of the client.
//
// Keys are made of ASCII letters, digits, "-", "." and "_", and may be empty. A value is one word,
// or is in double or single quotes; then it may contain blanks or be empty. Blank lines and
// comments are ignored: a comment runs from a "#" at the start of a line, after a key, or after a
// value and a blank, to the end of the line. The reader is strict: one malformed line makes the
// whole read fail. Text after a NUL is ignored up to the end of the line. A line of more than 8191
// bytes is read as several lines.
//
// Threads: one object belongs to one thread at a time; distinct objects are independent.
class Config {
  public:
    // Adds the entries of the file at path; a key that is there already gets the new value. inside,
    // unless null, is a folder that must contain the file, at any depth, once links are followed.
    // Returns 0 when the file was read, or the part of it before a read error. Returns -1 with
    // entries unchanged when path is empty or isn't a regular file of at most 1 MiB that can be
    // opened, and -1 with entries emptied when a line is malformed.
    int read(const ustring& path, const char* inside = nullptr);

    // Does the same with the text of a file. Returns 0, or -1 with entries emptied when a line is
    // malformed.
    int parse(std::string_view text);

    // Returns the value of key as a decimal integer: leading white space, a sign and digits up to
    // the first other character. Returns 0 when there are no digits, when the number doesn't fit
    // into an int, and when the key is missing, which is then added with an empty value.
    int get_int(const ustring& key);

    std::map<ustring, ustring> entries;
};

#endif
