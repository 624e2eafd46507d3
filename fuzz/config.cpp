// The reader of key=value files, on arbitrary files.

#include "lib/config/config.h"

#include <algorithm>
#include <cerrno>
#include <climits>

#include "fuzz/support.h"

namespace {

bool IsKeyByte(char byte) {
    return byte != 0 && std::string(
                            "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ"
                            "0123456789-._")
                                .find(byte) != std::string::npos;
}

bool IsPlain(char byte) {
    const unsigned char code = static_cast<unsigned char>(byte);
    return code >= 32 && code != 127;
}

int NumberOf(const std::string& text) {
    errno = 0;
    const long number = std::strtol(text.c_str(), nullptr, 10);
    return errno != 0 || number > INT_MAX || number < INT_MIN ? 0 : static_cast<int>(number);
}

void CheckEntry(const std::string& file, const std::string& key, const std::string& value) {
    REQUIRE(std::all_of(key.begin(), key.end(), IsKeyByte));
    REQUIRE(std::all_of(value.begin(), value.end(), IsPlain));
    REQUIRE(file.find(key) != std::string::npos);
    REQUIRE(file.find(value) != std::string::npos);
}

// The entries as a file with each value in quotes; an entry that no quotes can hold is dropped.
std::string Quoted(std::map<ustring, ustring>& entries) {
    std::string text;
    for (auto entry = entries.begin(); entry != entries.end();) {
        const std::string value = entry->second.c_str();
        const char quote = value.find('"') == std::string::npos ? '"' : '\'';
        if (value.find(quote) != std::string::npos || value.size() > 4000) {
            entry = entries.erase(entry);
            continue;
        }
        text += std::string(" ") + entry->first.c_str() + "\t= " + quote + value + quote + " # x\n";
        ++entry;
    }
    return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Folder folder(InMemory());
    static const std::string path = folder / "file";
    const std::string file = TextOf(data, size);
    MakeFile(path, file);

    Config config;
    config.entries["earlier"] = "entry";
    const int result = config.read(path);
    REQUIRE(result == 0 || result == -1);
    if (result != 0) {
        REQUIRE(config.entries.empty());
        REQUIRE(config.get_int("missing") == 0);
        REQUIRE(config.entries.size() == 1);
        return 0;
    }
    REQUIRE(config.entries.count("earlier") == 1);
    if (config.entries["earlier"] == "entry") {
        config.entries.erase("earlier");
    }
    for (const auto& [key, value] : std::map<ustring, ustring>(config.entries)) {
        CheckEntry(file, key.c_str(), value.c_str());
        REQUIRE(config.get_int(key) == NumberOf(value.c_str()));
    }
    REQUIRE(config.read("") == -1);
    REQUIRE(config.read(folder / "missing") == -1);

    // What was read can be written and read again.
    Config again;
    MakeFile(path, Quoted(config.entries));
    REQUIRE(again.read(path) == 0);
    REQUIRE(again.entries == config.entries);
    return 0;
}
