#ifndef TESTS_SUPPORT_PACKING_H
#define TESTS_SUPPORT_PACKING_H

#include <string>

#include "tests/support/archives.h"
#include "tests/support/scenario.h"

// An application folder that can be packed, and a shell in it in which the packaging tool is run as
// its users run it.
class Packing : public testing::Test {
  protected:
    Packing();

    // Makes the application; backwards, in another order.
    static void makeApp(const std::string& app, bool backwards = false);

    struct Result {
        int code;
        std::string out;
        std::string err;
    };
    // What a shell in the application folder makes of a command. $MAKE is the tool, $OUT the
    // package's path, and C, I, P and R are places in the application; begun waits until a package
    // is being written; nobody COMMAND... runs it as a user who isn't root.
    Result shell(const std::string& command) const;
    Result pack() const { return shell("$MAKE . $OUT"); }
    Result check() const { return shell("$MAKE --check $OUT"); }

    // With exit status 1, in one line that begins like this.
    static void expectRefusal(const Result& result, const std::string& beginning);

    const Folder folder_;
    const std::string app_ = folder_ / "app";
    const std::string out_ = folder_ / "out/x.opk";
};

extern const std::string kPackedClient;
extern const std::string kPackedInfo;
extern const std::string kPackedPlist;

#endif
