// Runs every command in docs/shipping.md and compares its output with the page.

#include <sys/prctl.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <regex>

#include "tests/support/scenario.h"

namespace {

// Masks checksums and sizes, which depend on the compiler and the libraries.
std::string WithoutSizes(const std::string& text) {
    const std::string sums = std::regex_replace(text, std::regex("SHA-256: .*"), "SHA-256: ...");
    return std::regex_replace(sums, std::regex(", \\d+ bytes"), ", ... bytes");
}

TEST(ShippingTest, EveryCommandPrintsWhatThePageSays) {
    ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);
    const Folder folder;
    MakeFolder(folder / "build");
    MakeLink(SOURCE "/scripts", folder / "scripts");
    MakeLink(BUILD, folder / "build/release");
    setenv("TARNWELL_BUILD", BUILD, 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    unsetenv("DESTDIR");

    // A command is a line that begins with "$" in a code block; the lines after it are its output.
    std::string script = "cd '" + folder.path() + "'\nexec >printed 2>&1\nset -v\n";
    std::string expected;
    std::ifstream page(SOURCE "/docs/shipping.md");
    bool in_step = false;
    for (std::string line; std::getline(page, line);) {
        const bool is_command = line.rfind("    $ ", 0) == 0;
        in_step = is_command || (in_step && line.rfind("    ", 0) == 0);
        if (in_step) {
            expected += line.substr(is_command ? 6 : 4) + "\n";
        }
        if (is_command) {
            script += line.substr(6) + "\n";
        }
    }
    ASSERT_GT(std::count(script.begin(), script.end(), '\n'), 40);
    MakeFile(folder / "script", script);
    // NOLINTNEXTLINE(cert-env33-c): the commands of the page are for a shell
    EXPECT_EQ(std::system(("bash " + (folder / "script")).c_str()), 0);
    EXPECT_EQ(WithoutSizes(ReadFile(folder / "printed")), WithoutSizes(expected));
}

}  // namespace
