#include "lib/config/config.h"

#include <cstdio>
#include <memory>
#include <sstream>
#include <string_view>

namespace {

const int kLineSize = 8192;  // a longer line counts as several

struct FileCloser {
    // Nothing was written, so the result says nothing.
    void operator()(std::FILE* file) const { static_cast<void>(std::fclose(file)); }
};

bool IsBlank(char byte) {
    return byte == ' ' || (byte >= '\t' && byte <= '\r');
}

bool IsKeyByte(char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') ||
           (byte >= '0' && byte <= '9') || byte == '-' || byte == '.' || byte == '_';
}

bool IsControl(char byte) {
    const auto code = static_cast<unsigned char>(byte);
    return code < 32 || code == 127;
}

const char* SkipBlanks(const char* at) {
    while (IsBlank(*at)) {
        ++at;
    }
    return at;
}

// Reads the value that begins at `at`, which is not the end of the line. Returns where it ends, its
// closing quote included, or null when that quote is missing.
const char* ReadValue(const char* at, std::string_view& value) {
    const char quote = *at;
    if (quote != '"' && quote != '\'') {
        const char* const begin = at;
        while (*at != ' ' && !IsControl(*at)) {
            ++at;
        }
        value = std::string_view(begin, static_cast<std::size_t>(at - begin));
        return at;
    }
    const char* const begin = ++at;
    while (*at != quote) {
        if (IsControl(*at)) {
            return nullptr;
        }
        ++at;
    }
    value = std::string_view(begin, static_cast<std::size_t>(at - begin));
    return at + 1;
}

// Parses one line; false for a syntax error.
bool ParseLine(const char* line, std::map<ustring, ustring>& entries) {
    const char* at = SkipBlanks(line);
    const char* const key_begin = at;
    while (IsKeyByte(*at)) {
        ++at;
    }
    const std::string_view key(key_begin, static_cast<std::size_t>(at - key_begin));
    if (*at == 0 || *at == '#') {
        return true;
    }
    at = SkipBlanks(at);
    if (*at != '=') {
        return false;
    }
    at = SkipBlanks(at + 1);
    if (*at == 0) {
        return false;
    }
    std::string_view value;
    at = ReadValue(at, value);
    if (at == nullptr) {
        return false;
    }
    at = SkipBlanks(at);
    if (*at != 0 && *at != '#') {
        return false;
    }
    entries[ustring(key)] = ustring(value);
    return true;
}

}  // namespace

int Config::read(const ustring& path) {
    if (path.empty()) {
        return -1;
    }
    const std::unique_ptr<std::FILE, FileCloser> file(std::fopen(path.c_str(), "re"));
    if (file == nullptr) {
        return -1;
    }
    char line[kLineSize];
    while (std::fgets(line, kLineSize, file.get()) != nullptr) {
        if (!ParseLine(line, entries)) {
            entries.clear();
            return -1;
        }
    }
    return 0;
}

int Config::get_int(const ustring& key) {
    std::istringstream text(entries[key].c_str());
    int number = 0;
    return text >> number ? number : 0;  // a number out of range is a failed extraction
}
