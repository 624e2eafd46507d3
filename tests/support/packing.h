#ifndef TESTS_SUPPORT_PACKING_H
#define TESTS_SUPPORT_PACKING_H

#include <string>

#include "tests/support/archives.h"
#include "tests/support/scenario.h"

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
    // Runs a command in a shell in the application folder. $MAKE is the tool and $OUT the package's
    // path; in the application, $C is the client, $I the version file, $P the Info.plist and $R the
    // folder Resources. The function begun waits until a package is being written; nobody
    // COMMAND... runs the command as a user other than root.
    Result shell(const std::string& command) const;
    Result pack() const { return shell("$MAKE . $OUT"); }
    Result check() const { return shell("$MAKE --check $OUT"); }

    // Expects exit status 1 and one line on standard error, "make-package: " and then `beginning`.
    static void expectRefusal(const Result& result, const std::string& beginning);

    const Folder folder_;
    const std::string app_ = folder_ / "app";
    const std::string out_ = folder_ / "out/x.opk";
};

extern const std::string kPackedClient;
extern const std::string kPackedInfo;
extern const std::string kPackedPlist;

#endif
