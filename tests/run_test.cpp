// Runs the real launcher with a temporary home folder, real processes and real archives.

#include <fcntl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <regex>

#include "tests/support/installation.h"
#include "tests/support/system.h"

namespace fs = std::filesystem;

namespace {

// The record of an upgrade whose old application, the folder with the inode 1, doesn't exist.
const char kRecordOfNothing[] = "state=replacing\nbackup=0\nobject=1\n";

class RunTest : public InstallationTest {};

TEST_F(RunTest, InstallsForANewUser) {
    setBuild("100", "cpio");
    logEverything();
    const Result result = run();
    expectBuild("100");
    expectNoLeftovers();
    EXPECT_TRUE(clientStarted());
    EXPECT_EQ(result.out, "lib path = '" + bundle("Contents/Frameworks/plugins") + "'\n");
    // Time stamps and some line numbers of the sources change.
    const std::regex changing(R"(\w{3} .\d [\d:]{8} |(tarnwell-service|extractor)\(\d+\))");
    EXPECT_EQ(
        LinesWith(std::regex_replace(result.log, changing, "$1"), ""),
        (std::vector<std::string>{
            "[DEBUG] launcher(87): running",
            "[INFO] tarnwell-service: target_version = (2, 1, 100, 7)",
            "[INFO] tarnwell-service: source does not exist",
            "[DEBUG] mac/mac-service(74): Source version: ('', '')",
            "[DEBUG] mac/mac-service(75): Target version: ('100', '7')",
            "[DEBUG] mac/mac-service(141): source version = 0, target version = 100",
            "[INFO] tarnwell-service: extract package: '" + package() + "' -> '" + app() + "'",
            "[DEBUG] extractor: decompress from '" + package() + "' to '" + app() + "'",
            "[INFO] tarnwell-service: user installation is ready, removing backup app",
            "[INFO] tarnwell-service: removing aged app folder " + user("app"),
            "[DEBUG] launcher(115): done"}));
}

TEST_F(RunTest, WritesOnlyErrorsUnlessToldOtherwise) {
    EXPECT_EQ(run().log, "");
    fs::remove(client());
    fs::remove(package());
    const std::string log = run().log;
    EXPECT_NE(log, "");
    EXPECT_EQ(LinesWith(log, "").size(), LinesWith(log, "[ERROR]").size()) << log;
}

TEST_F(RunTest, DecidesByTheBuildNumbers) {
    const struct {
        const char* source;
        const char* target;
        bool upgrade;
    } cases[] = {{"120", "121", true},   {"121", "121", false},  {"122", "121", false},
                 {"121b", "121", false}, {"120x", "121y", true}, {"abc", "1", true},
                 {"", "1", true},        {"abc", "", false},     {"-5", "0", true},
                 {"0042", "42", false},  {"9", "10", true}};
    logEverything();
    for (const auto& row : cases) {
        SCOPED_TRACE(std::string(row.source) + " to " + row.target);
        startFrom(row.source);
        const Client running = startClient();
        setBuild(row.target);
        const Result result = run();
        EXPECT_EQ(Exists(app("old")), !row.upgrade);
        EXPECT_EQ(running.running(), !row.upgrade);
        EXPECT_EQ(result.logged("launcher(92): no need to upgrade"), !row.upgrade);
        EXPECT_TRUE(clientStarted());
    }
}

TEST_F(RunTest, AnInstallationWithoutVersionOrClientIsReplaced) {
    for (const char* const missing : {"Contents/Resources/INFO", "Contents/MacOS/tarnwell-ui"}) {
        startFrom("500");
        fs::remove(app(missing));
        run();
        expectBuild("100");
    }
}

TEST_F(RunTest, ARecordThatIsNoneIsNeverObeyed) {
    const std::string outside = home() + "/outside";
    const std::string record = user("upgrade.journal");
    install("100");
    MakeFile(outside + "/record", "state=replacing\nbackup=none\nobject=1\n");
    MakeFile(user("Tarnwell.app_tmp/kept"));
    MakeFile(user("Tarnwell.app_tmp10/kept"));
    const FileTree before = Tree(home());
    const auto expect_ignored = [&](const std::string& what) {
        EXPECT_TRUE(run().logged("which isn't the record of an upgrade")) << what;
        EXPECT_TRUE(clientStarted());
        fs::remove_all(user("log"));
        EXPECT_EQ(Tree(home()), before) << what;
    };
    const std::string texts[] = {"",
                                 "state=replacing\n",
                                 std::string(100000, '\0'),
                                 "state=replacing\nbackup='../outside'\nobject=1\n",
                                 "state=installed\nbackup='" + outside + "'\nobject=1\n",
                                 "state=replacing\nbackup=10\nobject=1\n",
                                 "state=replacing\nbackup=0\nobject=''\n",
                                 "state=replacing\nbackup=0\nobject=1'\n",
                                 "state=replacing\nbackup=none\nobject=1\nmore=1\n",
                                 "state=unheard-of\nbackup=none\nobject=1\n"};
    for (const std::string& text : texts) {
        MakeFile(record, text);
        expect_ignored(text);
    }
    MakeFile(record + "/folder/file", "x");
    expect_ignored("a folder");
    MakeLink(outside + "/record", record);
    expect_ignored("a link");
    ASSERT_EQ(mkfifo(record.c_str(), 0644), 0);
    expect_ignored("a pipe");
}

TEST_F(RunTest, BlockedBackupNamesAreSteppedOverUpToTheTenth) {
    for (const int blocked : {2, 10}) {
        SCOPED_TRACE(blocked);
        startFrom("99");
        MakeFile(user("app/older layout"));
        for (int n = 0; n < blocked; ++n) {
            const std::string name = "Tarnwell.app_tmp" + (n > 0 ? std::to_string(n) : "");
            MakeFile(user(name + "/rest"));
        }
        const Result result = run();
        EXPECT_TRUE(clientStarted());
        const bool all = blocked == 10;
        EXPECT_EQ(LinesWith(result.log, "failed to backup app").size(), all ? 11u : 2u);
        EXPECT_EQ(HasOneLine(result.log, "Tarnwell.app_tmp9' at max retries, exiting"), all);
        EXPECT_EQ(HasOneLine(result.log, "[ERROR] launcher(99): Failed to upgrade package"), all);
        EXPECT_EQ(Exists(app("old")), all);
        if (!all) {
            expectBuild("100");
            expectNoLeftovers();
        }
    }
}

TEST_F(RunTest, RollsBackWhenThePackageIsNoGood) {
    const auto pack = [this](const std::string& format, Shape shape = Shape::Plain) {
        setBuild("100", format, shape);
        return ReadFile(package());
    };
    const std::pair<std::string, const char*> cases[] = {
        {pack("tar.gz").substr(0, 800), "rollback to old installation"},
        {pack("zip").substr(0, 800), "archive_read_next_header failed: 'Truncated ZIP"},
        {pack("zip", Shape::NoClient), "the package has no client"},
        {"", "total file numbers, ret: 0"},
        {std::string(5000, 'g'),
         "archive_read_open_filename failed: 'Unrecognized archive format'"},
        {"missing", "total file numbers, ret: -1"}};
    for (const auto& [bytes, message] : cases) {
        SCOPED_TRACE(message);
        startFrom("99");
        const auto before = Tree(app());
        MakeFile(package(), bytes);
        if (bytes == "missing") {
            fs::remove(package());
        }
        const Result result = run();
        EXPECT_TRUE(result.logged(message)) << result.log;
        EXPECT_EQ(Tree(app()), before);
        expectNoLeftovers();
        EXPECT_TRUE(clientStarted());
    }
}

TEST_F(RunTest, AFailedFirstInstallationIsReportedAndRepaired) {
    fs::resize_file(package(), 800);
    const Result result = run();
    EXPECT_TRUE(result.logged("Failed to extract package, and no old installation to rollback"));
    EXPECT_TRUE(result.logged("[ERROR] mac/mac-service(80): Failed to launch Tarnwell UI"));
    setBuild("100");
    run();
    expectBuild("100");
}

TEST_F(RunTest, WhatIsInThePlaceOfTheApplicationFolder) {
    MakeFile(app(), "not a folder");
    run();
    expectBuild("100");
    expectNoLeftovers();
    fs::remove_all(app());
    MakeLink("nowhere", app());
    EXPECT_TRUE(HasOneLine(run().log, "failed to create folder: '" + app()));
    EXPECT_TRUE(Exists(app()));
}

TEST_F(RunTest, EndsWellWithoutAUsableHome) {
    runAsNobody();
    environment.erase("HOME");
    run();
    for (const char* const home : {"/nowhere/at/all", "/dev/null", "relative", "/proc/\xFF\xFE"}) {
        environment["HOME"] = home;
        run();
    }
}

// Recognises each language by a part of the window's label that no other language contains.
TEST_F(RunTest, SpeaksTheUsersLanguage) {
    const std::string plugins = bundle("Contents/Frameworks/plugins/generic");
    MakeFolder(plugins);
    fs::copy(WINDOW_READER, plugins);
    const std::string seen = home() + "/window";
    environment["QT_QPA_GENERIC_PLUGINS"] = "window-reader";
    environment["WINDOW_READER_FILE"] = seen;
    for (const auto& [locale, label] : {std::pair("C", "Tarnwell is"),
                                        {"el_GR", "Tarnwell is"},
                                        {"en_US.UTF-8", "Tarnwell is"},
                                        {"zh_TW.UTF-8", "正在"},
                                        {"ja_JP", "を準備中"},
                                        {"pt_PT", "A inic"},
                                        {"ru_RU", "Инициализация"}}) {
        fs::remove_all(user());
        environment["LANG"] = locale;
        run();
        const std::string window = ReadFile(seen);
        EXPECT_TRUE(HasOneLine(window, "Orvane Tarnwell")) << locale << ": " << window;
        EXPECT_TRUE(HasOneLine(window, label)) << locale << ": " << window;
    }
}

TEST_F(RunTest, TheClientGetsTheUsersEnvironment) {
    environment["QT_QPA_PLATFORM_PLUGIN_PATH"] = "/somewhere";
    install("100");
    MakeFile(app("Contents/MacOS/tarnwell-ui"),
             "#!/bin/sh\necho \"$QT_QPA_PLATFORM_PLUGIN_PATH\" >\"$HOME/seen\"\n", 0755);
    run();
    EXPECT_TRUE(WaitFor([this] { return ReadFile(home() + "/seen") == "/somewhere\n"; }));
}

// The second launcher waits for the first before it reads the versions, so the client that it
// starts is complete.
TEST_F(RunTest, AnotherInstallationWaitsForARunningUpgrade) {
    install("99");
    fs::remove(package());
    ASSERT_EQ(mkfifo(package().c_str(), 0644), 0);
    const pid_t first = start();
    int pipe = -1;  // can be opened once the first launcher is reading its package
    EXPECT_TRUE(WaitFor(
        [&] { return (pipe = open(package().c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC)) >= 0; }));
    logEverything();
    EXPECT_TRUE(run().logged("[DEBUG] main(80): app has already launched, return"));
    Installation other;
    other.environment["HOME"] = home();
    other.logEverything();
    const pid_t second = other.start();
    const auto second_logged = [this](const std::string& text) {
        return HasOneLine(ReadFile(user("log/launcher.log")), text);
    };
    EXPECT_TRUE(WaitFor([&] { return second_logged("waiting for another launcher"); }));
    EXPECT_FALSE(Exists(home() + "/started"));
    close(pipe);  // the package is empty
    EXPECT_EQ(WaitForEnd(first) + WaitForEnd(second), 0);
    EXPECT_TRUE(second_logged("source_version = (, , 99, )"));
    expectBuild("100");
    expectNoLeftovers();
}

// The record says that the application was being replaced, and nothing shows how far that got. The
// launcher doesn't accept it as installed, and keeps it until a complete one can replace it.
TEST_F(RunTest, AnApplicationThatMayBeIncompleteIsReplacedOrKept) {
    logEverything();
    for (const char* const record :
         {kRecordOfNothing, "state=replacing\nbackup=none\nobject=none\n",
          "state=replacing\nbackup=none\nobject=7\n"}) {
        SCOPED_TRACE(record);
        startFrom("100");
        const FileTree doubtful = Tree(app());
        setBuild("100", "tar");
        const std::string whole = ReadFile(package());
        MakeFile(user("upgrade.journal"), record);
        for (int start = 0; start < 12; ++start) {
            MakeFile(package(), whole.substr(0, 1000));
            EXPECT_TRUE(run().logged("may be incomplete and will be replaced"));
            EXPECT_EQ(Tree(app()), doubtful);
        }
        MakeFile(package(), whole);
        run();
        expectBuild("100");
        expectNoLeftovers();
    }
}

// An incomplete application that can't be removed, here because a volume is mounted in it, is moved
// aside so that the old one can be restored. It is removed by the first run that can do so.
TEST_F(RunTest, WhatCannotBeRemovedIsSetAsideForTheOldApplication) {
    install("100");
    const FileTree old_application = Tree(app());
    fs::rename(app(), user("Tarnwell.app_tmp"));
    MakeFile(user("Tarnwell.app_tmp2/of"), "somebody else");
    MakeFile(user("upgrade.journal"), kRecordOfNothing);
    {
        const SmallDisk disk(app("volume"), "1m");
        if (!disk.mounted()) {
            GTEST_SKIP() << "this user can't mount a small disk";
        }
        MakeFile(app("volume/file"), "kept");
        for (int start = 0; start < 3; ++start) {
            run();
            EXPECT_EQ(Tree(app()), old_application);
            EXPECT_EQ(ReadFile(user("Tarnwell.app_tmp1/volume/file")), "kept");
        }
        umount(user("Tarnwell.app_tmp1/volume").c_str());
    }
    run();
    EXPECT_FALSE(Exists(user("Tarnwell.app_tmp1")));
    EXPECT_FALSE(Exists(user("upgrade.journal")));
    EXPECT_TRUE(Exists(user("Tarnwell.app_tmp2/of")));
}

}  // namespace
