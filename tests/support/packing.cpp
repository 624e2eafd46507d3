#include "tests/support/packing.h"

#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <functional>
#include <vector>

const std::string kPackedClient = "Contents/MacOS/tarnwell-ui";
const std::string kPackedInfo = "Contents/Resources/INFO";
const std::string kPackedPlist = "Contents/Info.plist";

Packing::Packing() {
    makeApp(app_);
    MakeFolder(folder_ / "out");
}

void Packing::makeApp(const std::string& app, bool backwards) {
    std::vector<std::function<void()>> steps = {
        [&] {
            MakeFile(app + "/" + kPackedClient, "#!/bin/sh\necho $$ >>\"$HOME/started\"\n", 0755);
        },
        [&] { MakeFile(app + "/Contents/MacOS/helper", Noise(200000), 0555); },
        [&] { MakeFile(app + "/" + kPackedInfo, VersionFile("101")); },
        [&] { MakeFile(app + "/Contents/Resources/\xC3\xA9t\xC3\xA9", "summer", 0640); },
        [&] { MakeFile(app + "/Contents/Resources-a", ""); },
        [&] { MakeLink("../MacOS/../Resources", app + "/Contents/MacOS/link"); },
        [&] { MakeLink("link/./\xC3\xA9t\xC3\xA9", app + "/Contents/MacOS/far"); },
        [&] { MakeFile(app + "/" + kPackedPlist, kInfoPlist); }};
    if (backwards) {
        std::reverse(steps.begin(), steps.end());
    }
    for (const auto& step : steps) {
        step();
    }
}

Packing::Result Packing::shell(const std::string& command) const {
    const std::string line =
        "cd '" + app_ + "'; MAKE='" MAKE_PACKAGE "' OUT='" + out_ + "' C=" + kPackedClient +
        " I=" + kPackedInfo + " P=" + kPackedPlist +
        " R=Contents/Resources; begun() { for i in $(seq 500); do [ ! -e $OUT.?????? ] || break; "
        "sleep 0.01; done; }; nobody() { if [ $(id -u) != 0 ]; then \"$@\"; else setpriv "
        "--reuid 65534 --regid 65534 --clear-groups \"$@\"; fi; }; { " +
        command + "; } >'" + (folder_ / "stdout") + "' 2>'" + (folder_ / "stderr") + "'";
    // NOLINTNEXTLINE(cert-env33-c): the tool is called as its users call it
    const int status = std::system(line.c_str());
    return {WEXITSTATUS(status), ReadFile(folder_ / "stdout"), ReadFile(folder_ / "stderr")};
}

void Packing::expectRefusal(const Result& result, const std::string& beginning) {
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err.rfind("make-package: " + beginning, 0), 0u)
        << result.err << "instead of " << beginning;
    EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1) << result.err;
}
