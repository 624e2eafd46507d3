#ifndef LIB_CONFIG_CONFIG_H
#define LIB_CONFIG_CONFIG_H

#include <map>
#include <string_view>

#include "ustring/ustring.h"

// Reader of small text files with one key=value entry per line: the logger's level file and the
// pid file of the client.
//
// Keys are made of ASCII letters, digits, "-", "." and "_". A value is one word, or stands in
// double or single quotes and then may hold blanks or be empty. Lines without a key are ignored,
// and so is what follows a "#" that stands after blanks. The reader is strict: one malformed line
// makes the whole read fail. A line ends at a NUL, and one of more than 8191 bytes counts as
// several.
//
// Threads: one object belongs to one thread at a time; distinct objects are independent.
class Config {
  public:
    // Adds the entries of the file at path; a key that is there already gets the new value. With
    // inside, the path of a folder, the file must be in it or below it once links are followed.
    // Returns 0 when the whole file was read, also when the disk failed before its end. Returns -1
    // with entries unchanged when path is empty and when there is no regular file of at most 1 MiB
    // that can be opened, and -1 with entries emptied when a line is malformed.
    int read(const ustring& path, const char* inside = nullptr);

    // The same for the text of a file: 0, or -1 with entries emptied when a line is malformed.
    int parse(std::string_view text);

    // The value of key as a decimal integer: leading white space, a sign and digits up to the
    // first other character. 0 when there are no digits, when the number doesn't fit, and when the
    // key is missing, which is then added with an empty value.
    int get_int(const ustring& key);

    std::map<ustring, ustring> entries;
};

#endif
