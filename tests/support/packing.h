#ifndef TESTS_SUPPORT_PACKING_H
#define TESTS_SUPPORT_PACKING_H

#include <string>

#include "tests/support/archives.h"
#include "tests/support/scenario.h"

inline const std::string kPackedClient = "Contents/MacOS/tarnwell-ui";
inline const std::string kPackedInfo = "Contents/Resources/INFO";
inline const std::string kPackedPlist = "Contents/Info.plist";

// An application folder without faults, and a shell in it that runs the packaging tool.
class Packing : public testing::Test {
  protected:
    Packing();

    // Creates the application; backwards, with its files in reverse order.
    static void makeApp(const std::string& app, bool backwards = false);

    struct Result {
        int code;
        std::string out;
        std::string err;
    };
    // Runs a command in a shell in the application folder, after the prelude. $MAKE is the tool and
    // $OUT the package's path; in the application, $C is the client, $I the version file, $P the
    // Info.plist and $R the folder Resources. The function begun waits until a package is being
    // written; nobody COMMAND... runs the command as a user other than root.
    Result shell(const std::string& command) const;
    Result pack() const { return shell("$MAKE . $OUT"); }
    Result check() const { return shell("$MAKE --check $OUT"); }

    // Expects the command to exit with status 1 and to print one line, to standard error:
    // "make-package: " and then `beginning`. The shell expands the variables in both.
    void expectRefusal(const std::string& command, const std::string& beginning) const;

    const Folder folder_;
    const std::string app_ = folder_ / "app";
    std::string prelude_;
    const std::string out_ = folder_ / "out/x.opk";
};

#endif
