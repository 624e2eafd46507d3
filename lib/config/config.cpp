#include "lib/config/config.h"

#include <sstream>
#include <string>

#include "lib/platform/regular-file.h"

namespace {

const std::size_t kMaxSize = std::size_t{1024} * 1024;  // bytes of a file
const std::size_t kMaxLine = 8191;                      // bytes; a longer line counts as several

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

int Config::read(const ustring& path, const char* inside) {
    platform::Descriptor file(-1);
    if (path.empty() ||
        platform::OpenRegularFile(path.c_str(), file, inside) != platform::Reading::Done) {
        return -1;
    }
    std::string text;
    if (!platform::ReadUpTo(file.get(), kMaxSize, text)) {
        // Keep what was read, except for the line that the failure cut off.
        const std::size_t last_line = text.rfind('\n') + 1;
        text.resize(text.size() - (text.size() - last_line) % kMaxLine);
    }
    return text.size() <= kMaxSize ? parse(text) : -1;
}

int Config::parse(std::string_view text) {
    while (!text.empty()) {
        const std::size_t end = text.substr(0, kMaxLine).find('\n');
        const std::string line(text.substr(0, end == std::string_view::npos ? kMaxLine : end + 1));
        if (!ParseLine(line.c_str(), entries)) {
            entries.clear();
            return -1;
        }
        text.remove_prefix(line.size());
    }
    return 0;
}

int Config::get_int(const ustring& key) {
    std::istringstream text(entries[key].c_str());
    int number = 0;
    return text >> number ? number : 0;  // a number out of range is a failed extraction
}
