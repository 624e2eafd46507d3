#include "tests/support/packing.h"

#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <vector>

Packing::Packing() {
    makeApp(app_);
    MakeFolder(folder_ / "out");
}

void Packing::makeApp(const std::string& app, bool backwards) {
    std::vector<Entry> entries = {{kPackedClient, "#!/bin/sh\necho $$ >>\"$HOME/started\"\n", 0755},
                                  {"Contents/MacOS/helper", Noise(200000), 0555},
                                  {kPackedInfo, VersionFile("101")},
                                  {"Contents/Resources/\xC3\xA9t\xC3\xA9", "summer", 0640},
                                  {"Contents/Resources-a"},
                                  {"Contents/MacOS/link", "", 0777, "../MacOS/../Resources"},
                                  {"Contents/MacOS/far", "", 0777, "link/./\xC3\xA9t\xC3\xA9"},
                                  {kPackedPlist, kInfoPlist}};
    if (backwards) {
        std::reverse(entries.begin(), entries.end());
    }
    Unpack(entries, app);
}

Packing::Result Packing::shell(const std::string& command) const {
    const std::string line =
        "cd '" + app_ + "'; MAKE='" MAKE_PACKAGE "' OUT='" + out_ + "' C=" + kPackedClient +
        " I=" + kPackedInfo + " P=" + kPackedPlist +
        " R=Contents/Resources; begun() { for i in $(seq 500); do [ ! -e $OUT.?????? ] || break; "
        "sleep 0.01; done; }; nobody() { if [ $(id -u) != 0 ]; then \"$@\"; else setpriv "
        "--reuid 65534 --regid 65534 --clear-groups \"$@\"; fi; }\n" +
        prelude_ + "\n{ " + command + "; } >'" + (folder_ / "stdout") + "' 2>'" +
        (folder_ / "stderr") + "'";
    // NOLINTNEXTLINE(cert-env33-c): runs the tool as its users run it
    const int status = std::system(line.c_str());
    return {WEXITSTATUS(status), ReadFile(folder_ / "stdout"), ReadFile(folder_ / "stderr")};
}

void Packing::expectRefusal(const std::string& command, const std::string& beginning) const {
    SCOPED_TRACE(command);
    const std::string expected = shell("printf %s \"make-package: " + beginning + '"').out;
    const Result result = shell(command);
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err.substr(0, expected.size()), expected);
    EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1) << result.err;
}
