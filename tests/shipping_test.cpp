// Runs every command in docs/shipping.md and compares its output with the page.

#include <sys/prctl.h>

#include <cstdlib>
#include <fstream>
#include <regex>

#include "tests/support/scenario.h"

namespace {

struct Step {
    std::string command;
    std::string printed;  // the output that the page shows
};

// A command is a line that begins with "$" in a code block; the lines after it are its output.
std::vector<Step> ReadSteps(const std::string& page) {
    std::vector<Step> steps;
    std::ifstream file(page);
    bool in_step = false;
    for (std::string line; std::getline(file, line);) {
        if (line.rfind("    $ ", 0) == 0) {
            steps.push_back({line.substr(6), ""});
            in_step = true;
        } else if (in_step && line.rfind("    ", 0) == 0) {
            steps.back().printed += line.substr(4) + "\n";
        } else {
            in_step = false;
        }
    }
    return steps;
}

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

    const std::vector<Step> steps = ReadSteps(SOURCE "/docs/shipping.md");
    ASSERT_GT(steps.size(), 40u);
    std::string script = "cd '" + folder.path() + "'\n";
    for (std::size_t i = 0; i < steps.size(); ++i) {
        script += "exec >step" + std::to_string(i) + " 2>&1\n" + steps[i].command + "\n";
    }
    MakeFile(folder / "script", script);
    // NOLINTNEXTLINE(cert-env33-c): the commands of the page are for a shell
    EXPECT_EQ(std::system(("bash " + (folder / "script")).c_str()), 0);
    for (std::size_t i = 0; i < steps.size(); ++i) {
        const std::string printed = ReadFile(folder / ("step" + std::to_string(i)));
        EXPECT_EQ(WithoutSizes(printed), WithoutSizes(steps[i].printed)) << steps[i].command;
    }
}

}  // namespace
