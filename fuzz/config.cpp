// Fuzzes the reader of key=value files with arbitrary files.

#include "lib/config/config.h"

#include "fuzz/support.h"

namespace {

// Formats the entries as a file with each value in quotes. Removes entries whose value has both
// kinds of quotes or over 4,000 bytes.
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
    static const Folder folder(Temporary());
    static const std::string path = folder / "file";
    const std::string file = TextOf(data, size);
    MakeFile(path, file);

    Config config;
    config.entries["earlier"] = "entry";
    const bool accepted = config.read(path) == 0;
    REQUIRE(config.entries.count("earlier") == (accepted ? 1 : 0));
    for (const auto& [key, value] : config.entries) {
        const std::string source = key == "earlier" ? file + "earlier=entry" : file;
        REQUIRE(source.find(key.c_str()) != std::string::npos);
        REQUIRE(source.find(value.c_str()) != std::string::npos);
    }

    // Reading the written entries must return the same entries.
    Config again;
    MakeFile(path, Quoted(config.entries));
    REQUIRE(again.read(path) == 0);
    REQUIRE(again.entries == config.entries);
    return 0;
}
