// The real executable, with a home folder of its own, real processes and real archives.

#include <fcntl.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <regex>
#include <set>

#include "tests/support/installation.h"
#include "tests/support/system.h"

namespace fs = std::filesystem;

namespace {

// The messages of a log without their time stamps, and without the lines of the sources whose line
// numbers are no part of the text.
std::vector<std::string> Messages(const std::string& log) {
    const std::regex any_line("(tarnwell-service|extractor)\\([0-9]+\\)");
    std::vector<std::string> messages;
    for (const std::string& line : LinesWith(log, "")) {
        const std::size_t stamp = std::string("Nov 16 21:52:51 ").size();
        messages.push_back(std::regex_replace(line.substr(stamp), any_line, "$1(#)"));
    }
    return messages;
}

// Cuts a package off in the middle.
void CutOff(const std::string& package) {
    fs::resize_file(package, fs::file_size(package) / 2);
}

class RunTest : public InstallationTest {
  protected:
    // Nothing but the log and the application may be left of a run.
    void expectNoRests() {
        std::set<std::string> names;
        for (const auto& entry : fs::directory_iterator(installation_.user())) {
            names.insert(entry.path().filename());
        }
        EXPECT_EQ(names, (std::set<std::string>{"Tarnwell.app", "log"}));
    }
};

TEST_F(RunTest, InstallsForANewUser) {
    installation_.logEverything();
    const Installation::Result result = installation_.run();
    expectBuild("100");
    expectNoRests();
    EXPECT_TRUE(installation_.clientStarted());
    EXPECT_EQ(result.out,
              "lib path = '" + installation_.bundle("Contents/Frameworks/plugins") + "'\n");
    const std::string way = "'" + installation_.package() + "' -> '" + installation_.app() + "'";
    EXPECT_EQ(
        Messages(result.log),
        (std::vector<std::string>{
            "[DEBUG] launcher(87): running",
            "[INFO] tarnwell-service(#): target_version = (2, 1, 100, 7)",
            "[INFO] tarnwell-service(#): source does not exist",
            "[DEBUG] mac/mac-service(74): Source version: ('', '')",
            "[DEBUG] mac/mac-service(75): Target version: ('100', '7')",
            "[DEBUG] mac/mac-service(141): source version = 0, target version = 100",
            "[INFO] tarnwell-service(#): extract package: " + way,
            "[DEBUG] extractor(#): decompress from " +
                std::regex_replace(way, std::regex("->"), "to"),
            "[INFO] tarnwell-service(#): user installation is ready, removing backup app",
            "[INFO] tarnwell-service(#): removing aged app folder " + installation_.user("app"),
            "[DEBUG] launcher(115): done"}));
}

TEST_F(RunTest, WritesOnlyErrorsUnlessToldOtherwise) {
    EXPECT_EQ(installation_.run().log, "");
    fs::remove(installation_.client());
    fs::remove(installation_.package());
    const std::string log = installation_.run().log;
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
    installation_.logEverything();
    for (const auto& row : cases) {
        SCOPED_TRACE(std::string(row.source) + " to " + row.target);
        startFrom(row.source);
        const Client client({installation_.client(), Client::kEndsAtOnce});
        installation_.setClientPid(client.pid());
        installation_.setBuild(row.target);
        const Installation::Result result = installation_.run();
        EXPECT_EQ(Exists(installation_.app("old")), !row.upgrade);
        EXPECT_EQ(client.running(), !row.upgrade);
        EXPECT_EQ(Logged(result, "launcher(92): no need to upgrade"), !row.upgrade);
        EXPECT_TRUE(installation_.clientStarted());
    }
}

TEST_F(RunTest, AnInstallationWithoutVersionOrClientIsReplaced) {
    for (const char* const missing : {"Contents/Resources/INFO", "Contents/MacOS/tarnwell-ui"}) {
        startFrom("500");
        fs::remove(installation_.app(missing));
        installation_.run();
        expectBuild("100");
    }
}

TEST_F(RunTest, ARecordThatIsNoneIsNeverObeyed) {
    const std::string outside = installation_.home() + "/outside";
    const std::string record = installation_.user("upgrade.journal");
    const std::vector<std::function<void()>> cases = {
        [&] { MakeFile(record, ""); },
        [&] { MakeFile(record, "state=replacing\n"); },
        [&] { MakeFile(record, std::string(100000, '\0')); },
        [&] { MakeFile(record, "state=replacing\nbackup='../outside'\nobject=1\n"); },
        [&] { MakeFile(record, "state=installed\nbackup='" + outside + "'\nobject=1\n"); },
        [&] { MakeFile(record, "state=replacing\nbackup=10\nobject=1\n"); },
        [&] { MakeFile(record, "state=replacing\nbackup=0\nobject=''\n"); },
        [&] { MakeFile(record, "state=replacing\nbackup=0\nobject=1'\n"); },
        [&] { MakeFile(record, "state=replacing\nbackup=none\nobject=1\nmore=1\n"); },
        [&] { MakeFile(record, "state=unheard-of\nbackup=none\nobject=1\n"); },
        [&] { MakeFile(record + "/folder/file", "x"); },
        [&] { MakeLink(outside + "/record", record); },
        [&] { ASSERT_EQ(mkfifo(record.c_str(), 0644), 0); }};
    installation_.install("100");
    MakeFile(outside + "/record", "state=replacing\nbackup=none\nobject=1\n");
    MakeFile(installation_.user("Tarnwell.app_tmp/kept"));
    MakeFile(installation_.user("Tarnwell.app_tmp10/kept"));
    const FileTree before = Tree(installation_.home());
    for (std::size_t i = 0; i < cases.size(); ++i) {
        cases[i]();
        const Installation::Result result = installation_.run();
        EXPECT_TRUE(Logged(result, "which isn't the record of an upgrade")) << "case " << i;
        EXPECT_TRUE(installation_.clientStarted());
        fs::remove_all(installation_.user("log"));
        EXPECT_EQ(Tree(installation_.home()), before) << "case " << i;
    }
}

TEST_F(RunTest, BlockedBackupNamesAreSteppedOverUpToTheTenth) {
    for (const int blocked : {2, 10}) {
        SCOPED_TRACE(blocked);
        startFrom("99");
        MakeFile(installation_.user("app/older layout"));
        for (int n = 0; n < blocked; ++n) {
            const std::string name = "Tarnwell.app_tmp" + (n > 0 ? std::to_string(n) : "");
            MakeFile(installation_.user(name + "/rest"));
        }
        const Installation::Result result = installation_.run();
        EXPECT_TRUE(installation_.clientStarted());
        if (blocked < 10) {
            expectBuild("100");
            expectNoRests();
            EXPECT_EQ(LinesWith(result.log, "failed to backup app").size(), 2u);
        } else {
            EXPECT_TRUE(Exists(installation_.app("old")));
            EXPECT_EQ(LinesWith(result.log, "failed to backup app").size(), 11u);
            EXPECT_TRUE(HasOneLine(result.log, "Tarnwell.app_tmp9' at max retries, exiting"));
            EXPECT_TRUE(HasOneLine(result.log, "[ERROR] launcher(99): Failed to upgrade package"));
        }
    }
}

TEST_F(RunTest, RollsBackWhenThePackageIsNoGood) {
    using Package = const std::string&;
    const struct {
        std::function<void(Package package)> spoil;
        const char* message;
    } cases[] = {{CutOff, "rollback to old installation"},
                 {[this](Package package) {
                      installation_.setBuild("100", "zip");
                      CutOff(package);
                  },
                  "archive_read_next_header failed: 'Truncated ZIP"},
                 {[](Package package) { MakeArchive(package, "zip", {{"file"}}); },
                  "the package has no client"},
                 {[](Package package) { MakeFile(package); }, "total file numbers, ret: 0"},
                 {[](Package package) { MakeFile(package, std::string(5000, 'g')); },
                  "archive_read_open_filename failed: 'Unrecognized archive format'"},
                 {[](Package package) { fs::remove(package); }, "total file numbers, ret: -1"}};
    for (const auto& row : cases) {
        SCOPED_TRACE(row.message);
        startFrom("99");
        const auto before = Tree(installation_.app());
        installation_.setBuild("100", "tar.gz");
        row.spoil(installation_.package());
        const Installation::Result result = installation_.run();
        EXPECT_TRUE(Logged(result, row.message)) << result.log;
        EXPECT_EQ(Tree(installation_.app()), before);
        expectNoRests();
        EXPECT_TRUE(installation_.clientStarted());
    }
}

TEST_F(RunTest, AFailedFirstInstallationIsReportedAndRepaired) {
    installation_.setBuild("100", "tar.gz");
    CutOff(installation_.package());
    const Installation::Result result = installation_.run();
    EXPECT_TRUE(Logged(result, "Failed to extract package, and no old installation to rollback"));
    EXPECT_TRUE(Logged(result, "[ERROR] mac/mac-service(80): Failed to launch Tarnwell UI"));
    EXPECT_FALSE(Exists(installation_.app("Contents/MacOS/tarnwell-ui")));

    installation_.setBuild("100");
    installation_.run();
    expectBuild("100");
}

TEST_F(RunTest, TakesEveryFormat) {
    for (const char* const format : {"zip", "tar", "tar.gz", "tar.xz", "tar.zst", "7z", "cpio"}) {
        SCOPED_TRACE(format);
        fs::remove_all(installation_.user());
        installation_.setBuild("100", format);
        installation_.run();
        expectBuild("100");
    }
}

TEST_F(RunTest, AFileInThePlaceOfTheApplicationFolderIsMovedAside) {
    MakeFile(installation_.app(), "not a folder");
    installation_.run();
    expectBuild("100");
    expectNoRests();
}

TEST_F(RunTest, ADanglingLinkInThePlaceOfTheApplicationFolder) {
    MakeLink("nowhere", installation_.app());
    EXPECT_TRUE(
        HasOneLine(installation_.run().log, "failed to create folder: '" + installation_.app()));
    EXPECT_TRUE(Exists(installation_.app()));
}

TEST_F(RunTest, AReadOnlyHomeStillStartsTheClient) {
    installation_.install("99");
    installation_.runAsNobody();
    fs::permissions(installation_.user(), fs::perms{0555});
    const Installation::Result result = installation_.run();
    EXPECT_EQ(result.log, "");
    EXPECT_EQ(LinesWith(result.err, "[ERROR] tarnwell-service(").size(), 11u) << result.err;
    EXPECT_FALSE(LinesWith(result.err, "at max retries, exiting").empty());
    EXPECT_TRUE(installation_.clientStarted());
    fs::permissions(installation_.user(), fs::perms{0755});
    EXPECT_TRUE(Exists(installation_.app("old")));
}

TEST_F(RunTest, EndsWellWithoutAUsableHome) {
    installation_.runAsNobody();
    installation_.environment.erase("HOME");
    installation_.run();
    for (const char* const home : {"/nowhere/at/all", "/dev/null", "relative", "/proc/\xFF\xFE"}) {
        installation_.environment["HOME"] = home;
        installation_.run();
    }
}

TEST_F(RunTest, OfManyStartsAtOnceOneWorks) {
    installation_.logEverything();
    fs::remove(installation_.package());  // a pipe holds the one in the middle of its upgrade
    ASSERT_EQ(mkfifo(installation_.package().c_str(), 0644), 0);
    std::vector<pid_t> starts;
    for (int i = 0; i < 100; ++i) {
        starts.push_back(installation_.start());
    }
    const auto logged = [this](const char* fragment) {
        return LinesWith(ReadFile(installation_.user("log/launcher.log")), fragment).size();
    };
    EXPECT_TRUE(WaitFor([&] {
        return logged("[DEBUG] main(80): app has already launched, return") == 99u &&
               logged("decompress from") == 1u;
    }));
    MakeFile(installation_.package(), "no archive");
    for (const pid_t pid : starts) {
        EXPECT_EQ(Installation::wait(pid), 0);
    }
    EXPECT_EQ(logged("): extract package"), 1u);
}

// The label of the window, by a part that no other language has in it.
TEST_F(RunTest, SpeaksTheUsersLanguage) {
    const std::pair<const char*, const char*> cases[] = {{"en_US.UTF-8", "Tarnwell is"},
                                                         {"zh_TW.UTF-8", "正在"},
                                                         {"zh_CN", "正在"},
                                                         {"ja_JP", "を準備中"},
                                                         {"de_CH", "wird"},
                                                         {"ko_KR", "준비 중"},
                                                         {"fr_FR", "Initialisation"},
                                                         {"it_IT", "Prepara"},
                                                         {"es_ES", "Preparando"},
                                                         {"pt_BR", "Inicializando"},
                                                         {"pt_PT", "A inic"},
                                                         {"ru_RU", "Инициализация"},
                                                         {"da_DK", "klargøres"},
                                                         {"nb_NO", "klargjøres"},
                                                         {"sv_SE", "förbereds"},
                                                         {"nl_NL", "wordt"},
                                                         {"pl_PL", "Inicjowanie"},
                                                         {"hu_HU", "előkészítése"},
                                                         {"tr_TR", "hazırlanıyor"},
                                                         {"cs_CZ", "inicializuje"},
                                                         {"el_GR", "Tarnwell is"},
                                                         {"C", "Tarnwell is"}};
    const std::string plugin = installation_.bundle("Contents/Frameworks/plugins/generic");
    MakeFolder(plugin);
    fs::copy(WINDOW_READER, plugin);
    const std::string seen = installation_.home() + "/window";
    installation_.environment["QT_QPA_GENERIC_PLUGINS"] = "window-reader";
    installation_.environment["WINDOW_READER_FILE"] = seen;
    for (const auto& [locale, label] : cases) {
        fs::remove_all(installation_.user());
        installation_.environment["LANG"] = locale;
        installation_.run();
        const std::string window = ReadFile(seen);
        EXPECT_TRUE(HasOneLine(window, "Orvane Tarnwell")) << locale << ": " << window;
        EXPECT_TRUE(HasOneLine(window, label)) << locale << ": " << window;
    }
}

TEST_F(RunTest, TheClientGetsTheUsersEnvironment) {
    installation_.environment["QT_QPA_PLATFORM_PLUGIN_PATH"] = "/somewhere";
    installation_.install("100");
    MakeFile(installation_.app("Contents/MacOS/tarnwell-ui"),
             "#!/bin/sh\necho \"$QT_QPA_PLATFORM_PLUGIN_PATH\" >\"$HOME/seen\"\n", 0755);
    installation_.run();
    EXPECT_TRUE(
        WaitFor([this] { return ReadFile(installation_.home() + "/seen") == "/somewhere\n"; }));
}

// The second launcher waits for the first, then reads the versions: the client that it starts is
// the complete one.
TEST_F(RunTest, AnotherInstallationWaitsForARunningUpgrade) {
    installation_.install("99");
    const std::string package = ReadFile(installation_.package());
    fs::remove(installation_.package());
    ASSERT_EQ(mkfifo(installation_.package().c_str(), 0644), 0);
    const pid_t first = installation_.start();
    int pipe = -1;  // opens when the first launcher waits for its package
    EXPECT_TRUE(WaitFor([&] {
        return (pipe = open(installation_.package().c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC)) >=
               0;
    }));
    Installation other;
    other.environment["HOME"] = installation_.home();
    other.logEverything();
    const pid_t second = other.start();
    const auto second_logged = [this](const std::string& text) {
        return HasOneLine(ReadFile(installation_.user("log/launcher.log")), text);
    };
    EXPECT_TRUE(WaitFor([&] { return second_logged("waiting for another launcher"); }));
    EXPECT_FALSE(Exists(installation_.home() + "/started"));
    close(pipe);  // a package of no bytes
    EXPECT_EQ(Installation::wait(first), 0);
    EXPECT_EQ(Installation::wait(second), 0);
    EXPECT_TRUE(second_logged("source_version = (, , 99, )"));
    expectBuild("100");
    expectNoRests();
}

// The record says that something was being replaced, and nothing shows what is in its place: it
// isn't taken for installed, and not given up before there is a complete application.
TEST_F(RunTest, AnApplicationThatMayBeIncompleteIsReplacedOrKept) {
    installation_.logEverything();
    for (const char* const record :
         {"state=replacing\nbackup=0\nobject=1\n", "state=replacing\nbackup=none\nobject=none\n",
          "state=replacing\nbackup=none\nobject=7\n"}) {
        SCOPED_TRACE(record);
        startFrom("100");
        const FileTree doubtful = Tree(installation_.app());
        installation_.setBuild("100", "tar");
        const std::string package = ReadFile(installation_.package());
        MakeFile(installation_.user("upgrade.journal"), record);
        for (int start = 0; start < 12; ++start) {
            MakeFile(installation_.package(), package.substr(0, 1000));
            EXPECT_TRUE(Logged(installation_.run(), "may be incomplete and will be replaced"));
            EXPECT_EQ(Tree(installation_.app()), doubtful);
        }
        MakeFile(installation_.package(), package);
        installation_.run();
        expectBuild("100");
        expectNoRests();
    }
}

// What can't be removed, here because a volume is mounted in it, is set aside for the old
// application, and removed as soon as it can be.
TEST_F(RunTest, WhatCannotBeRemovedIsSetAsideForTheOldApplication) {
    installation_.install("100");
    const FileTree old_application = Tree(installation_.app());
    fs::rename(installation_.app(), installation_.user("Tarnwell.app_tmp"));
    MakeFile(installation_.user("Tarnwell.app_tmp2/of"), "somebody else");
    MakeFile(installation_.user("upgrade.journal"), "state=replacing\nbackup=0\nobject=1\n");
    {
        const SmallDisk disk(installation_.app("volume"), "1m");
        if (!disk.mounted()) {
            GTEST_SKIP() << "this user may not mount a small disk";
        }
        MakeFile(installation_.app("volume/file"), "kept");
        for (int start = 0; start < 3; ++start) {
            installation_.run();
            EXPECT_EQ(Tree(installation_.app()), old_application);
            EXPECT_EQ(ReadFile(installation_.user("Tarnwell.app_tmp1/volume/file")), "kept");
        }
        umount(installation_.user("Tarnwell.app_tmp1/volume").c_str());
    }
    installation_.run();
    EXPECT_FALSE(Exists(installation_.user("Tarnwell.app_tmp1")));
    EXPECT_FALSE(Exists(installation_.user("upgrade.journal")));
    EXPECT_TRUE(Exists(installation_.user("Tarnwell.app_tmp2/of")));
}

// The home was copied to another disk while an upgrade was cut off: all inodes are other ones.
TEST_F(RunTest, ACopiedHomeKeepsTheOldApplication) {
    const struct {
        const char* name;
        bool half;
    } cases[] = {{"Tarnwell.app", false}, {"Tarnwell.app_tmp", false}, {"Tarnwell.app_tmp", true}};
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        startFrom("99");
        const FileTree old_application = Tree(installation_.app());
        if (installation_.user(row.name) != installation_.app()) {
            fs::rename(installation_.app(), installation_.user(row.name));
        }
        if (row.half) {
            MakeFile(installation_.app("Contents/MacOS/tarnwell-ui"), "half", 0755);
        }
        MakeFile(installation_.user("upgrade.journal"), "state=replacing\nbackup=0\nobject=1\n");
        installation_.setBuild("100", "tar");
        CutOff(installation_.package());
        installation_.run();
        EXPECT_EQ(Tree(installation_.app()), old_application);
        installation_.setBuild("100");
        installation_.run();
        expectBuild("100");
        expectNoRests();
    }
}

// Folders that their owner can't write, list or enter: nothing may pile up for an ordinary user.
TEST_F(RunTest, ReadOnlyFoldersOfAPackageDoNotPileUp) {
    installation_.install("99");
    installation_.runAsNobody();
    const FileTree old_application = Tree(installation_.app());
    const std::vector<Entry> entries = {{"Contents/MacOS/tarnwell-ui", "#!/bin/sh\n", 0755},
                                        {"Contents/Resources/INFO", "[Version]\nbuild_version=1\n"},
                                        {"closed/file"},
                                        {"closed/", "", 0555},
                                        {"none/", "", 0}};
    for (int start = 0; start < 12; ++start) {
        MakeArchive(installation_.package(), "tar", entries);
        CutOff(installation_.package());
        installation_.run();
        ASSERT_EQ(Tree(installation_.app()), old_application) << start;
    }
    expectNoRests();
    MakeArchive(installation_.package(), "tar", entries);
    for (int start = 0; start < 12; ++start) {
        installation_.run();  // the build that it installs is always the older one
        expectNoRests();
    }
    EXPECT_TRUE(Exists(installation_.app("closed/file")));
}

}  // namespace
