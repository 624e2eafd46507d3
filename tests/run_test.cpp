// The real executable, with a home folder of its own, real processes and real archives.

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>

#include "tests/support/installation.h"

namespace fs = std::filesystem;

namespace {

// The messages of a log without their time stamps and without the lines of the source.
std::vector<std::string> Messages(const std::string& log) {
    std::vector<std::string> messages;
    for (const std::string& line : LinesWith(log, "")) {
        messages.push_back(line.substr(std::string("Nov 16 21:52:51 ").size()));
    }
    return messages;
}

bool Logged(const Installation::Result& result, const std::string& fragment) {
    return !LinesWith(result.log, fragment).empty();
}

// Nothing but the log and, where there is one, the application may be left of a run.
std::vector<std::string> UserFolder(const Installation& installation) {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(installation.user())) {
        names.push_back(entry.path().filename());
    }
    std::sort(names.begin(), names.end());
    return names;
}

const std::vector<std::string> kCleanFolder = {"Tarnwell.app", "log"};

std::string PidFile(pid_t pid) {
    return "pid=" + std::to_string(pid) + "\n";
}

class RunTest : public testing::Test {
  protected:
    // Cuts the package off, so that unpacking fails in the middle.
    void damagePackage() {
        fs::resize_file(installation_.package(), fs::file_size(installation_.package()) / 2);
    }

    void expectBuild(const std::string& number) {
        EXPECT_EQ(Tree(installation_.app()), installation_.expectedApp(number));
    }
    void expectOldApp() { EXPECT_TRUE(Exists(installation_.app("old"))); }

    Installation installation_;
};

TEST_F(RunTest, InstallsForANewUser) {
    installation_.logEverything();
    const Installation::Result result = installation_.run();
    expectBuild("100");
    EXPECT_EQ(UserFolder(installation_), kCleanFolder);
    EXPECT_TRUE(installation_.clientStarted());
    EXPECT_EQ(result.out,
              "lib path = '" + installation_.bundle("Contents/Frameworks/plugins") + "'\n");

    const std::string target = installation_.app();
    const std::vector<std::string> expected = {
        "[DEBUG] launcher(87): running",
        "[INFO] tarnwell-service(#): target_version = (2, 1, 100, 7)",
        "[INFO] tarnwell-service(#): source does not exist",
        "[DEBUG] mac/mac-service(74): Source version: ('', '')",
        "[DEBUG] mac/mac-service(75): Target version: ('100', '7')",
        "[DEBUG] mac/mac-service(141): source version = 0, target version = 100",
        "[INFO] tarnwell-service(#): extract package: '" + installation_.package() + "' -> '" +
            target + "'",
        "[DEBUG] extractor(#): decompress from '" + installation_.package() + "' to '" + target +
            "'",
        "[INFO] tarnwell-service(#): user installation is ready, removing backup app",
        "[INFO] tarnwell-service(#): removing aged app folder " + installation_.user("app"),
        "[DEBUG] launcher(115): done"};
    std::vector<std::string> messages = Messages(result.log);
    ASSERT_EQ(messages.size(), expected.size()) << result.log;
    for (std::size_t i = 0; i < expected.size(); ++i) {
        const std::size_t open = expected[i].find('(');
        const std::size_t close = messages[i].find(')');
        const bool any_line = expected[i].compare(open, 3, "(#)") == 0;
        EXPECT_EQ(any_line ? messages[i].replace(open, close - open + 1, "(#)") : messages[i],
                  expected[i]);
    }
}

TEST_F(RunTest, WritesOnlyErrorsUnlessToldOtherwise) {
    EXPECT_EQ(installation_.run().log, "");
    fs::remove(installation_.app("Contents/MacOS/tarnwell-ui"));
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
        fs::remove_all(installation_.user());
        installation_.install(row.source);
        installation_.setBuild(row.target);
        const Installation::Result result = installation_.run();
        EXPECT_EQ(Exists(installation_.app("old")), !row.upgrade);
        EXPECT_EQ(Logged(result, "launcher(92): no need to upgrade"), !row.upgrade);
        EXPECT_TRUE(installation_.clientStarted());
    }
}

TEST_F(RunTest, AnInstallationWithoutVersionOrClientIsReplaced) {
    installation_.install("500");
    fs::remove(installation_.app("Contents/Resources/INFO"));
    installation_.run();
    expectBuild("100");

    installation_.install("500");
    fs::remove(installation_.app("Contents/MacOS/tarnwell-ui"));
    installation_.run();
    expectBuild("100");
}

TEST_F(RunTest, StopsARunningClient) {
    const struct {
        Client::Behaviour behaviour;
        int end;
        int least_seconds;
    } cases[] = {{Client::EndsAtOnce, 1000 + SIGTERM, 0},
                 {Client::EndsAfterTwoSeconds, 0, 2},
                 {Client::IgnoresSigterm, 1000 + SIGKILL, 5}};
    for (const auto& row : cases) {
        SCOPED_TRACE(row.least_seconds);
        Client client(row.behaviour);
        fs::remove_all(installation_.user());
        installation_.install("99");
        installation_.setClientPid(PidFile(client.pid()));
        const auto begin = std::chrono::steady_clock::now();
        installation_.run();
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(
            std::chrono::steady_clock::now() - begin);
        EXPECT_EQ(client.wait(), row.end);
        EXPECT_GE(seconds.count(), row.least_seconds);
        expectBuild("100");
        EXPECT_TRUE(Exists(installation_.user("ui.pid"))) << "the pid file is the client's";
    }
}

TEST_F(RunTest, LeavesTheClientAloneWithoutAnUpgrade) {
    Client client(Client::EndsAtOnce);
    installation_.install("100");
    installation_.setClientPid(PidFile(client.pid()));
    installation_.run();
    EXPECT_TRUE(client.running());
}

TEST_F(RunTest, SignalsNobodyForAPidFileThatNamesNoClient) {
    pid_t gone;
    {
        Client client(Client::EndsAtOnce);
        gone = client.pid();
    }
    const struct {
        std::string pid_file;
        const char* message;
    } cases[] = {{PidFile(gone), ""},
                 {"pid=0\n", "names no client: pid '0'"},
                 {"pid=-1\n", "names no client: pid '-1'"},
                 {"pid=abc\n", "names no client: pid 'abc'"},
                 {"pid=''\n", "names no client: pid ''"},
                 {"other=1\n", "names no client: pid ''"},
                 {"pid=4294967297\n", "names no client: pid '4294967297'"},
                 {"pid=99999999999999999999\n", "names no client"},
                 {"garbage\n", "[NOTE] mac/mac-service(97): Failed to read pid file"}};
    installation_.logEverything();
    for (const auto& row : cases) {
        SCOPED_TRACE(row.pid_file);
        fs::remove_all(installation_.user());
        installation_.install("99");
        installation_.setClientPid(row.pid_file);
        const Installation::Result result = installation_.run();
        const bool silent = *row.message == 0;
        EXPECT_EQ(Logged(result, silent ? "pid" : row.message), !silent) << result.log;
        EXPECT_FALSE(Logged(result, "kill:")) << result.log;
        EXPECT_TRUE(Logged(result, "mac/mac-service(154): local appdata exist"));
        expectBuild("100");
    }
    fs::remove_all(installation_.user());
    installation_.install("99");
    EXPECT_TRUE(Logged(installation_.run(), "mac/mac-service(92): pid file '" +
                                                installation_.user("ui.pid") +
                                                "' does not exist, no need to terminate"));
}

TEST_F(RunTest, AClientThatMayNotBeSignalledIsWaitedFor) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can start another user's client";
    }
    const Client client(Client::EndsAtOnce);
    installation_.install("99");
    installation_.setClientPid(PidFile(client.pid()));
    installation_.runAsNobody();
    const Installation::Result result = installation_.run();
    EXPECT_TRUE(
        HasOneLine(result.log, "[ERROR] mac/mac-service(112): kill: Operation not permitted (1)"));
    EXPECT_TRUE(client.running());
    expectBuild("100");
}

TEST_F(RunTest, AProcessThatTookTheClientsIdIsLeftAlone) {
    const auto write_pid_file_long_before = [this](const Client& client) {
        installation_.setClientPid(PidFile(client.pid()));
        fs::last_write_time(installation_.user("ui.pid"),
                            fs::file_time_type::clock::now() - std::chrono::hours(1));
    };
    installation_.install("99");
    const Client another(Client::EndsAtOnce);
    write_pid_file_long_before(another);
    installation_.run();
    EXPECT_TRUE(another.running());
    expectBuild("100");

    installation_.install("99");
    fs::copy("/bin/sleep", installation_.app("Contents/MacOS/tarnwell-ui"),
             fs::copy_options::overwrite_existing);
    Client client(installation_.app("Contents/MacOS/tarnwell-ui"));
    WaitFor([&] {
        return fs::read_symlink("/proc/" + std::to_string(client.pid()) + "/exe").filename() ==
               "tarnwell-ui";
    });
    write_pid_file_long_before(client);
    installation_.run();
    EXPECT_EQ(client.wait(), 1000 + SIGTERM) << "the clock may have been set; it is the client";
}

TEST_F(RunTest, AnUpgradeThatWasCutOffIsUndoneFirst) {
    installation_.install("99");
    fs::rename(installation_.app(), installation_.user("Tarnwell.app_tmp"));
    struct stat status;
    ASSERT_EQ(stat(installation_.user("Tarnwell.app_tmp").c_str(), &status), 0);
    MakeFile(installation_.app("half"), "unpacked");
    MakeFile(installation_.user("upgrade.journal"),
             "state=replacing\nbackup=0\nobject=" + std::to_string(status.st_ino) + "\n");
    installation_.setBuild("99");  // so that nothing else happens
    const Installation::Result result = installation_.run();
    EXPECT_TRUE(Logged(result, "an upgrade was cut off, rollback to old installation"));
    expectOldApp();
    EXPECT_FALSE(Exists(installation_.app("half")));
    EXPECT_EQ(UserFolder(installation_), kCleanFolder);
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
        EXPECT_TRUE(Logged(result, "which is no record of an upgrade")) << "case " << i;
        EXPECT_TRUE(installation_.clientStarted());
        fs::remove_all(installation_.user("log"));
        EXPECT_EQ(Tree(installation_.home()), before) << "case " << i;
    }
}

TEST_F(RunTest, LeftOverBackupsAreSteppedOverAndRemoved) {
    installation_.install("99");
    MakeFile(installation_.user("Tarnwell.app_tmp/rest"));
    MakeFile(installation_.user("Tarnwell.app_tmp1/rest"));
    MakeFile(installation_.user("app/older layout"));
    const Installation::Result result = installation_.run();
    expectBuild("100");
    EXPECT_EQ(UserFolder(installation_), kCleanFolder);
    EXPECT_EQ(LinesWith(result.log, "failed to backup app").size(), 2u);
}

TEST_F(RunTest, TenBlockedBackupNamesEndTheUpgrade) {
    installation_.install("99");
    MakeFile(installation_.user("Tarnwell.app_tmp/rest"));
    for (int n = 1; n < 10; ++n) {
        MakeFile(installation_.user("Tarnwell.app_tmp" + std::to_string(n) + "/rest"));
    }
    const Installation::Result result = installation_.run();
    expectOldApp();
    EXPECT_TRUE(installation_.clientStarted());
    const std::vector<std::string> lines = LinesWith(result.log, "failed to backup app");
    ASSERT_EQ(lines.size(), 11u);
    EXPECT_NE(lines[10].find("Tarnwell.app_tmp9' at max retries, exiting"), std::string::npos);
    EXPECT_TRUE(Logged(result, "[ERROR] launcher(99): Failed to upgrade package"));
}

TEST_F(RunTest, RollsBackWhenThePackageIsNoGood) {
    const struct {
        const char* name;
        std::function<void()> spoil;
        const char* message;
    } cases[] = {
        {"cut off", [this] { damagePackage(); }, "rollback to old installation"},
        {"cut between two entries",
         [this] {
             installation_.setBuild("100", "tar");
             const std::string package = ReadFile(installation_.package());
             fs::resize_file(installation_.package(), package.find("Contents/MacOS/tarnwell-ui"));
         },
         "the archive was cut off after"},
        {"without the client", [this] { MakeArchive(installation_.package(), "zip", {{"file"}}); },
         "the package has no client"},
        {"empty", [this] { MakeFile(installation_.package()); }, "total file numbers, ret: 0"},
        {"short zip",
         [this] {
             installation_.setBuild("100");
             damagePackage();
         },
         "archive_read_next_header failed: 'Truncated ZIP"},
        {"garbage", [this] { MakeFile(installation_.package(), std::string(5000, 'g')); },
         "archive_read_open_filename failed: 'Unrecognized archive format'"},
        {"missing", [this] { fs::remove(installation_.package()); }, "total file numbers, ret: -1"},
        {"with ..",
         [this] {
             MakeArchive(installation_.package(), "tar",
                         {{"good", "1"}, {"Contents/../../../evil", "2"}});
         },
         "archive_read_extract2 failed: 'Path contains '..''"}};
    for (const auto& row : cases) {
        SCOPED_TRACE(row.name);
        fs::remove_all(installation_.user());
        installation_.install("99");
        const auto before = Tree(installation_.app());
        installation_.setBuild("100", "tar.gz");
        row.spoil();
        const Installation::Result result = installation_.run();
        EXPECT_TRUE(Logged(result, row.message)) << result.log;
        EXPECT_EQ(Tree(installation_.app()), before);
        EXPECT_EQ(UserFolder(installation_), kCleanFolder);
        EXPECT_TRUE(installation_.clientStarted());
        EXPECT_FALSE(Exists(installation_.home() + "/evil"));
    }
}

TEST_F(RunTest, AFailedFirstInstallationIsReportedAndRepaired) {
    installation_.setBuild("100", "tar.gz");
    damagePackage();
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

TEST_F(RunTest, HardLinksStayInsideTheApplication) {
    MakeArchive(installation_.package(), "tar",
                {{"Contents/MacOS/tarnwell-ui", "#!/bin/sh\n", 0755},
                 {"Contents/copy", "", 0644, "", "Contents/MacOS/tarnwell-ui"}});
    installation_.run();
    struct stat status;
    ASSERT_EQ(stat(installation_.app("Contents/copy").c_str(), &status), 0);
    EXPECT_EQ(status.st_nlink, 2u);
}

TEST_F(RunTest, AFileInThePlaceOfTheApplicationFolderIsMovedAside) {
    MakeFile(installation_.app(), "not a folder");
    installation_.run();
    expectBuild("100");
    EXPECT_EQ(UserFolder(installation_), kCleanFolder);
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
    fs::permissions(installation_.user(), fs::perms(0555));
    const Installation::Result result = installation_.run();
    EXPECT_EQ(result.log, "");
    EXPECT_EQ(LinesWith(result.err, "[ERROR] tarnwell-service(").size(), 11u) << result.err;
    EXPECT_FALSE(LinesWith(result.err, "at max retries, exiting").empty());
    EXPECT_TRUE(installation_.clientStarted());
    fs::permissions(installation_.user(), fs::perms(0755));
    expectOldApp();
}

TEST_F(RunTest, EndsWellWithoutAUsableHome) {
    installation_.runAsNobody();
    installation_.unsetEnvironment("HOME");
    installation_.run();
    for (const char* const home : {"/nowhere/at/all", "/dev/null", "relative", "/proc/\xFF\xFE"}) {
        installation_.setEnvironment("HOME", home);
        installation_.run();
    }
}

// A package that is a pipe holds the launcher in the middle of an upgrade for as long as we like.
class HeldRunTest : public RunTest {
  protected:
    ~HeldRunTest() override {
        if (held_ > 0) {
            kill(held_, SIGKILL);
            Installation::wait(held_);
        }
    }
    HeldRunTest() {
        installation_.logEverything();
        fs::remove(installation_.package());
        EXPECT_EQ(mkfifo(installation_.package().c_str(), 0644), 0);
    }
    void startAndHold() {
        held_ = installation_.start();
        EXPECT_TRUE(WaitFor([this] {
            return !LinesWith(ReadFile(installation_.user("log/launcher.log")), "decompress from")
                        .empty();
        }));
    }
    int endOfHeld() {
        const int end = Installation::wait(held_);
        held_ = 0;
        return end;
    }

    pid_t held_ = 0;
};

TEST_F(HeldRunTest, ASecondStartEndsAtOnce) {
    startAndHold();
    const Installation::Result second = installation_.run();
    ASSERT_EQ(Messages(second.log).size(), 1u);
    EXPECT_EQ(Messages(second.log)[0], "[DEBUG] main(80): app has already launched, return");
    MakeFile(installation_.package(), "no archive");  // lets the first one go on
    EXPECT_EQ(endOfHeld(), 0);
}

TEST_F(HeldRunTest, AKilledRunBlocksNobody) {
    startAndHold();
    kill(held_, SIGKILL);
    EXPECT_EQ(endOfHeld(), 1000 + SIGKILL);
    fs::remove(installation_.package());
    installation_.setBuild("100");
    installation_.run();
    expectBuild("100");
    EXPECT_EQ(UserFolder(installation_), kCleanFolder);
}

TEST_F(HeldRunTest, OfManyStartsAtOnceOneWorks) {
    std::vector<pid_t> starts;
    for (int i = 0; i < 100; ++i) {
        starts.push_back(installation_.start());
    }
    const auto logged = [this](const char* fragment) {
        return LinesWith(ReadFile(installation_.user("log/launcher.log")), fragment).size();
    };
    EXPECT_TRUE(WaitFor([&] {
        return logged("app has already launched") == 99u && logged("decompress from") == 1u;
    }));
    MakeFile(installation_.package(), "no archive");
    for (const pid_t pid : starts) {
        EXPECT_EQ(Installation::wait(pid), 0);
    }
    EXPECT_EQ(logged("): extract package"), 1u);
}

TEST_F(RunTest, SpeaksTheUsersLanguage) {
    const std::pair<const char*, const char*> cases[] = {
        {"en_US.UTF-8", "Tarnwell is initializing..."},
        {"zh_TW.UTF-8", "Tarnwell 正在初始化…"},
        {"zh_HK", "Tarnwell 正在初始化…"},
        {"zh_CN", "Tarnwell 正在初始化…"},
        {"ja_JP", "Tarnwellを初期化中…"},
        {"de_CH", "Tarnwell wird initialisiert\u00A0…"},
        {"ko_KR", "Tarnwell 초기화 중…"},
        {"fr_FR", "Initialisation de Tarnwell…"},
        {"it_IT", "Preparazione di Tarnwell…"},
        {"es_ES", "Preparando Tarnwell…"},
        {"pt_BR", "Inicializando o Tarnwell…"},
        {"pt_PT", "A inicializar o Tarnwell…"},
        {"ru_RU", "Инициализация Tarnwell…"},
        {"da_DK", "Tarnwell klargøres…"},
        {"nb_NO", "Tarnwell klargjøres\u00A0…"},
        {"nn_NO", "Tarnwell klargjøres\u00A0…"},
        {"sv_SE", "Tarnwell förbereds…"},
        {"nl_NL", "Tarnwell wordt voorbereid…"},
        {"pl_PL", "Inicjowanie programu Tarnwell…"},
        {"hu_HU", "A Tarnwell előkészítése…"},
        {"tr_TR", "Tarnwell hazırlanıyor…"},
        {"cs_CZ", "Tarnwell se inicializuje…"},
        {"el_GR", "Tarnwell is initializing..."},
        {"C", "Tarnwell is initializing..."}};
    const std::string plugin = installation_.bundle("Contents/Frameworks/plugins/generic");
    MakeFolder(plugin);
    fs::copy(WINDOW_READER, plugin);
    const std::string seen = installation_.home() + "/window";
    installation_.setEnvironment("QT_QPA_GENERIC_PLUGINS", "window-reader");
    installation_.setEnvironment("WINDOW_READER_FILE", seen);
    for (const auto& [locale, label] : cases) {
        fs::remove_all(installation_.user());
        installation_.setEnvironment("LANG", locale);
        installation_.run();
        EXPECT_EQ(ReadFile(seen), std::string("Orvane Tarnwell\n") + label) << locale;
    }
}

TEST_F(RunTest, TheClientGetsTheUsersEnvironment) {
    installation_.setEnvironment("QT_QPA_PLATFORM_PLUGIN_PATH", "/somewhere");
    installation_.install("100");
    MakeFile(installation_.app("Contents/MacOS/tarnwell-ui"),
             "#!/bin/sh\necho \"$QT_QPA_PLATFORM_PLUGIN_PATH\" >\"$HOME/seen\"\n", 0755);
    installation_.run();
    EXPECT_TRUE(
        WaitFor([this] { return ReadFile(installation_.home() + "/seen") == "/somewhere\n"; }));
}

TEST_F(RunTest, WorksWhateverItsExecutableIsCalled) {
    installation_.moveBundle("f\xC3\xBCr mich");
    for (const char* const name : {"", "tarnwell-launcher", "/nowhere"}) {
        SCOPED_TRACE(name);
        fs::remove_all(installation_.user());
        installation_.startAs(name);
        installation_.run();
        expectBuild("100");
    }
    EXPECT_EQ(installation_.run().out, "lib path = '/../Frameworks/plugins'\n");
}

TEST_F(RunTest, WorksWhereverTheHomeIs) {
    const std::string home = installation_.home() + "/\xE5\xAE\xB6 with\nblanks \xF0\x9F\x98\x80";
    MakeFolder(home);
    installation_.setEnvironment("HOME", home);
    for (const char* const locale : {"C", "C.UTF-8"}) {
        SCOPED_TRACE(locale);
        fs::remove_all(home + "/.Tarnwell");
        installation_.setEnvironment("LC_ALL", locale);
        installation_.run();
        EXPECT_EQ(Tree(home + "/.Tarnwell/Tarnwell.app"), installation_.expectedApp("100"));
    }
}

}  // namespace
