// Checks the sources as texts: their layers, and whether docs/troubleshooting.md has their
// messages.

#include <algorithm>
#include <filesystem>
#include <regex>
#include <set>
#include <tuple>

#include "tests/support/scenario.h"

namespace fs = std::filesystem;

namespace {

// Calls the function with the path, relative to the root of the tree, and the text of each source.
void ForEachSource(const std::function<void(const fs::path&, const std::string&)>& function) {
    for (const std::string folder : {"/lib", "/libcommon", "/ustring", "/ui-client"}) {
        for (const auto& entry : fs::recursive_directory_iterator(SOURCE_DIR + folder)) {
            const fs::path& path = entry.path();
            if (path.extension() == ".cpp" || path.extension() == ".h") {
                function(path.lexically_relative(SOURCE_DIR), ReadFile(path));
            }
        }
    }
}

// layers.txt has a pattern for each layer, from the lowest to the highest. A file belongs to the
// first layer whose pattern it matches, and may include files of this and of lower layers.
TEST(LayersTest, NoIncludePointsUpwards) {
    std::vector<std::regex> layers;
    for (const std::string& pattern : LinesWith(ReadFile(SOURCE_DIR "/tests/layers.txt"), "")) {
        layers.emplace_back(pattern);
    }
    const auto layer_of = [&](const std::string& file) {
        const auto matches = [&](const std::regex& layer) { return std::regex_match(file, layer); };
        const auto layer = std::find_if(layers.begin(), layers.end(), matches);
        EXPECT_NE(layer, layers.end()) << file << " belongs to no layer";
        return layer;
    };
    int includes = 0;
    ForEachSource([&](const std::string& file, const std::string& text) {
        for (const std::string& line : LinesWith(text, "#include \"")) {
            const std::string included = line.substr(10, line.size() - 11);
            EXPECT_LE(layer_of(included), layer_of(file)) << file << ": " << line;
            ++includes;
        }
    });
    EXPECT_GT(includes, 100);
}

using Message = std::tuple<std::string, std::string, std::string>;  // level, source, format
using Messages = std::set<Message>;

std::ptrdiff_t Count(const std::string& text, const std::regex& pattern) {
    return std::distance(std::sregex_iterator(text.begin(), text.end(), pattern), {});
}

// Returns the messages of one source file: those of the log, and the warnings of the string type.
// Each format must be a string literal, possibly split over several lines. It is returned as the
// source spells it: "\n" is two characters.
Messages InSource(const std::string& text, const std::string& name) {
    static const std::regex between_pieces(R"re("\s+")re");
    static const std::regex named(R"re(#define LOG_SOURCE "(.*)")re");
    static const std::regex call(R"re(\b(LOG_MSG(_AT)?|LogMsg2?|LogMSG_c|Warn)\((?!const))re");
    static const std::regex understood(
        R"re((?:LOG_MSG\(|LOG_MSG_AT\(\d+,|Warn\()\s*(?:(\w+),)?\s*"((?:\\.|[^"\\])*)"[,)])re");
    const std::string code = std::regex_replace(text, between_pieces, "");
    std::smatch source;
    std::regex_search(code, source, named);
    Messages messages;
    for (std::sregex_iterator match(code.begin(), code.end(), understood), end; match != end;
         ++match) {
        messages.emplace((*match)[1].matched ? (*match)[1].str() : "WARNING",
                         source.empty() ? name : source[1].str(), (*match)[2]);
    }
    EXPECT_EQ(Count(code, call), Count(code, understood))
        << name << " has a log call whose format this test can't read";
    return messages;
}

class TroubleshootingTest : public testing::Test {
  protected:
    TroubleshootingTest() {
        ForEachSource([this](const fs::path& path, const std::string& text) {
            if (path.parent_path() != "lib/liblogger") {  // it defines the macros
                written_.merge(InSource(text, path.stem()));
            }
        });
    }

    Messages written_;
    const std::vector<std::string> document_ =
        LinesWith(ReadFile(SOURCE_DIR "/docs/troubleshooting.md"), "");
};

// The list at the end of the document has lines "### SOURCE", each followed by "- LEVEL `FORMAT`".
TEST_F(TroubleshootingTest, TheDocumentListsEveryErrorAndWarning) {
    static const std::regex item("### (.*)|- (ERROR|WARNING) `(.*)`");
    Messages unlisted = written_;
    std::string source;
    for (const std::string& line : document_) {
        std::smatch match;
        if (std::regex_match(line, match, item)) {
            source = match[1].matched ? match[1].str() : source;
            EXPECT_TRUE(match[1].matched || unlisted.erase({match[2], source, match[3]}) == 1)
                << "twice in the document, or not in the source " << source << ": " << line;
        }
    }
    for (const auto& [level, name, format] : unlisted) {
        EXPECT_TRUE(level != "ERROR" && level != "WARNING")
            << "not in the document: " << level << " of " << name << ": " << format;
    }
}

// Where the document shows lines of a log, they contain "[LEVEL] SOURCE(#): TEXT".
TEST_F(TroubleshootingTest, TheDocumentShowsLinesThatCanBeWritten) {
    static const std::regex shown(R"(.*\[(\w+)\] (\S+)\(#\): (.*))");
    for (const std::string& text : document_) {
        std::smatch line;
        const auto is_line = [&](const Message& message) {
            const auto& [level, source, format] = message;
            const std::string exact =
                std::regex_replace(format, std::regex(R"([.*+?^$()[\]{}|])"), R"(\$&)");
            const std::regex pattern(std::regex_replace(exact, std::regex("%[sd]"), ".*"));
            return level == line[1] && source == line[2] &&
                   std::regex_match(line[3].str() + "\n", pattern);  // a format ends with "\n"
        };
        EXPECT_TRUE(!std::regex_match(text, line, shown) ||
                    std::any_of(written_.begin(), written_.end(), is_line))
            << text;
    }
}

}  // namespace
