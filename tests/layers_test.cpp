// Checks the layers: no file includes a file of a higher layer, and programs that only pack or
// unpack an application need no GUI library of Qt. The libraries of the CMake targets ensure the
// latter; the test checks the programs that result.

#include <filesystem>
#include <iterator>
#include <regex>

#include "tests/support/scenario.h"

namespace fs = std::filesystem;

namespace {

// The layers from the lowest to the highest. A file belongs to the first layer whose pattern it
// matches, and may include files of its own layer and of those before it in this list.
const std::regex kLayers[] = {
    std::regex("ustring/.*"),
    std::regex("lib/(config|libtmpname|platform)/.*|lib/install-layout.h|libcommon/.*"),
    std::regex("lib/liblogger/.*"),
    std::regex("lib/libclient/.*"),
    std::regex("ui-client/launcher/(translations/.*|(archive-handles|client-file|entry-guard|"
               "move-entries|notify-adapter|running-client|upgrade-journal|version-file)\\..*)"),
    std::regex(
        "ui-client/launcher/(app-replacement|content-checksum|extractor|package-reader)\\..*"),
    std::regex("ui-client/launcher/tarnwell-service.*"),
    std::regex("ui-client/launcher/mac/.*"),
    std::regex("ui-client/launcher/(launcher|progress-dialog)\\..*"),
    std::regex("ui-client/launcher/main.cpp")};

std::size_t LayerOf(const std::string& file) {
    std::size_t layer = 0;
    while (layer < std::size(kLayers) && !std::regex_match(file, kLayers[layer])) {
        ++layer;
    }
    return layer;
}

TEST(LayersTest, NoIncludePointsUpwards) {
    const std::regex include("#include \"(.*)\"");
    int includes = 0;
    for (const char* const folder : {"ustring", "lib", "libcommon", "ui-client"}) {
        for (const auto& entry :
             fs::recursive_directory_iterator(std::string(SOURCE_DIR "/") + folder)) {
            const std::string file = entry.path().lexically_relative(SOURCE_DIR);
            if (!std::regex_match(file, std::regex(".*\\.(cpp|h)"))) {
                continue;
            }
            EXPECT_LT(LayerOf(file), std::size(kLayers)) << file << " belongs to no layer";
            for (const std::string& line : LinesWith(ReadFile(entry.path()), "#include \"")) {
                std::smatch included;
                ASSERT_TRUE(std::regex_match(line, included, include)) << line;
                EXPECT_LE(LayerOf(included[1]), LayerOf(file)) << file << ": " << line;
                ++includes;
            }
        }
    }
    EXPECT_GT(includes, 100);
}

TEST(LayersTest, OnlyTheWindowLinksWidgets) {
    for (const std::string program : {MAKE_PACKAGE, EXTRACTOR_TEST}) {
        const std::string binary = ReadFile(program);  // contains the names of its libraries
        EXPECT_NE(binary.find("libQt5Core.so"), std::string::npos) << program;
        EXPECT_EQ(binary.find("libQt5Widgets.so"), std::string::npos) << program;
        EXPECT_EQ(binary.find("libQt5Gui.so"), std::string::npos) << program;
    }
}

}  // namespace
