// Fuzzes the reader of key=value files with arbitrary files.

#include "lib/config/config.h"

#include "fuzz/support.h"

namespace {

// Adds a line with the value in quotes, unless the value has both kinds of quotes or is long.
bool AddQuoted(const std::string& key, const std::string& value, std::string& text) {
    const char quote = value.find('"') == std::string::npos ? '"' : '\'';
    if (value.find(quote) != std::string::npos || value.size() > 4000) {
        return false;
    }
    text += " " + key + "\t= " + quote + value + quote + " # x\n";
    return true;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Folder folder(std::filesystem::temp_directory_path());
    static const std::string path = folder / "file";
    const std::string file = TextOf(data, size);
    MakeFile(path, file);

    Config config;
    config.entries["earlier"] = "entry";
    const bool accepted = config.read(path) == 0;
    REQUIRE(config.entries.count("earlier") == (accepted ? 1 : 0));
    std::string quoted;
    std::map<ustring, ustring> expected;
    for (const auto& [key, value] : config.entries) {
        const std::string source = key == "earlier" ? file + "earlier=entry" : file;
        REQUIRE(source.find(key.c_str()) != std::string::npos);
        REQUIRE(source.find(value.c_str()) != std::string::npos);
        if (AddQuoted(key.c_str(), value.c_str(), quoted)) {
            expected[key] = value;
        }
    }

    Config again;
    MakeFile(path, quoted);
    REQUIRE(again.read(path) == 0);
    REQUIRE(again.entries == expected);
    return 0;
}
