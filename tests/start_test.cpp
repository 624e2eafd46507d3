// Runs the real launcher next to other processes, in various environments, and on various volumes.

#include <sched.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <iterator>
#include <optional>
#include <tuple>

#include "lib/platform/single-instance.h"
#include "tests/support/installation.h"
#include "tests/support/system.h"

namespace fs = std::filesystem;

namespace {

class StartTest : public InstallationTest {};

TEST_F(StartTest, StopsARunningClient) {
    for (const auto& [seconds, end, least_seconds] :
         {std::tuple(0, 0, 0), {2, 0, 2}, {60, 1000 + SIGKILL, 5}}) {
        SCOPED_TRACE(seconds);
        startFrom("99");
        const Client running = startClient(seconds);
        const auto begin = std::chrono::steady_clock::now();
        run();
        EXPECT_GE(std::chrono::steady_clock::now() - begin, std::chrono::seconds(least_seconds));
        EXPECT_EQ(running.end(), end);
        expectBuild("100");
        EXPECT_TRUE(Exists(user("ui.pid"))) << "only the client may remove its pid file";
    }
}

TEST_F(StartTest, SignalsNobodyForAPidFileThatNamesNoClient) {
    install("99");
    const pid_t gone = Client(client() + " 0").pid();
    const std::pair<std::string, std::string> cases[] = {
        {"pid=" + std::to_string(gone), "[DEBUG] mac/mac-service(154): local appdata exist"},
        {"pid=0\n", "names no client: pid '0'"},
        {"pid=-1\n", "names no client: pid '-1'"},
        {"pid=abc\n", "names no client: pid 'abc'"},
        {"other=1\n", "names no client: pid ''"},
        {"pid=4294967297\n", "names no client: pid '4294967297'"},
        {"pid=99999999999999999999\n", "names no client"},
        {"garbage\n", "[NOTE] mac/mac-service(97): Failed to read pid file"},
        {"", "mac/mac-service(92): pid file '" + user("ui.pid") + "' does not exist"}};
    logEverything();
    for (const auto& [pid_file, message] : cases) {
        SCOPED_TRACE(pid_file);
        startFrom("99");
        if (!pid_file.empty()) {
            MakeFile(user("ui.pid"), pid_file);
        }
        const Result result = run();
        EXPECT_TRUE(result.logged(message)) << result.log;
        EXPECT_FALSE(result.logged("kill:")) << result.log;
        expectBuild("100");
    }
}

// The launcher can't see what another user's process runs. It takes the process for the client if
// it is older than the pid file.
TEST_F(StartTest, AnotherUsersProcessIsLeftAlone) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can start another user's process";
    }
    logEverything();
    for (const bool is_older : {true, false}) {
        startFrom("99");
        const Client anothers = startClient();
        fs::last_write_time(user("ui.pid"), fs::file_time_type::clock::now() -
                                                std::chrono::seconds(is_older ? 0 : 4));
        runAsNobody();
        const Result result = run();
        EXPECT_EQ(result.logged("mac/mac-service(112): kill: Operation not permitted"), is_older);
        EXPECT_EQ(result.logged("it was started after the pid file was written"), !is_older);
        EXPECT_TRUE(anothers.running());
        expectBuild("100");
    }
}

TEST_F(StartTest, WhatAProcessRunsDecidesWhetherItIsTheClient) {
    const std::string other = home() + "/other";
    const std::string other_script = home() + "/script";
    const std::string namesake = home() + "/folder/tarnwell-ui";
    const auto script = [](const std::string& path, const std::string& first_line) {
        MakeFile(path, first_line + "\necho $$\nwhile :; do sleep 1; done\n", 0755);
    };
    const auto replace = [this] {
        fs::remove(client());
        Client::copyTo(client());
    };
    const auto move_to = [this](const char* name) {
        return [this, name] {
            fs::rename(app(), user(name));
            install("99");
        };
    };
    const struct {
        const char* what;
        std::string command;
        bool is_client;
        const char* first_line = "";  // of the client, if it is a script
        std::function<void()> then = [] {};
        int written_hours_ago = 0;
    } cases[] = {{"another program", other + " 0", false},
                 {"another program, future file", other + " 0", false, "", [] {}, -9},
                 {"another of that name", namesake + " 0", false},
                 {"another that was given the client", other + " " + client(), false},
                 {"the clock was set", client() + " 0", true, "", [] {}, 9},
                 {"replaced", client() + " 0", true, "", replace},
                 {"moved", client() + " 0", true, "", move_to("Tarnwell.app_tmp3")},
                 {"not a backup", client() + " 0", false, "", move_to("Tarnwell.apps")},
                 {"another script", other_script, false, "#!/bin/sh"},
                 {"a script", client(), true, "#!/bin/sh"},
                 {"a script and an option", client(), true, "#!/bin/sh -e"},
                 {"a relative path", "env -C " + app("Contents") + " /bin/sh MacOS/tarnwell-ui",
                  true, "#!/bin/sh"}};
    Client::copyTo(other);
    Client::copyTo(namesake);
    script(other_script, "#!/bin/sh");
    logEverything();
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        startFrom("99");
        if (*row.first_line != 0) {
            script(client(), row.first_line);
        }
        const Client process(row.command, user("ui.pid"));
        row.then();
        fs::last_write_time(user("ui.pid"), fs::file_time_type::clock::now() -
                                                std::chrono::hours(row.written_hours_ago));
        const Result result = run();
        EXPECT_EQ(process.running(), !row.is_client);
        EXPECT_EQ(result.logged("is not terminated: it runs '"), !row.is_client) << result.log;
        expectBuild("100");
    }
}

TEST_F(StartTest, AReadOnlyHomeHasAGuardAndStillStartsTheClient) {
    install("99");
    runAsNobody();
    fs::permissions(user(), fs::perms{0555});
    std::optional<platform::SingleInstance> another;
    {
        const AsNobody nobody;
        another.emplace(user(), bundle("Contents/MacOS/tarnwell-launcher"));
    }
    run();
    EXPECT_FALSE(Exists(home() + "/started"));
    another.reset();
    const Result result = run();
    EXPECT_EQ(result.log, "");
    EXPECT_EQ(LinesWith(result.err, "[ERROR] tarnwell-service(").size(), 11u) << result.err;
    EXPECT_TRUE(HasOneLine(result.err, "at max retries, exiting")) << result.err;
    EXPECT_TRUE(clientStarted());
    fs::permissions(user(), fs::perms{0755});
    EXPECT_TRUE(Exists(app("old")));
}

TEST_F(StartTest, WhatItWasStartedWithEndsNoRun) {
    logEverything();
    void (*const cases[])() = {
        [] {  // standard output and standard error are a pipe without a reader
            int ends[2];
            if (pipe(ends) == 0 && close(ends[0]) == 0) {
                dup2(ends[1], STDOUT_FILENO);
                dup2(ends[1], STDERR_FILENO);
            }
            signal(SIGPIPE, SIG_DFL);
        },
        [] {
            for (const int fd : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
                close(fd);
            }
        }};
    environment["QT_LOGGING_RULES"] = "*=true";  // makes Qt write many lines to standard error
    for (const auto& before_exec : cases) {
        startFrom("99");
        EXPECT_EQ(WaitForEnd(start(before_exec)), 0);
        EXPECT_TRUE(clientStarted());
        expectBuild("100");
        const std::string log = ReadFile(user("log/launcher.log"));
        EXPECT_EQ(LinesWith(log, "").size(), LinesWith(log, "): ").size()) << log;
        EXPECT_EQ(LinesWith(log, "").size(), LinesWith(log, " [").size()) << log;
    }
}

TEST_F(StartTest, WhatItReadsAndWritesMayBeATrap) {
    const std::string outside = home() + "/outside";
    const std::function<void(const std::string& path)> traps[] = {
        [](const std::string& path) { mkfifo(path.c_str(), 0644); },
        [](const std::string& path) { MakeLink("/dev/zero", path); },
        [&](const std::string& path) { MakeLink(outside, path); }, MakeFolder};
    const std::pair<std::string, std::string> cases[] = {
        {user("ui.pid"), "[NOTE] mac/mac-service(97): Failed to read pid file"},
        {user("log/launcher.log"), "is not a regular file, the log is not written"},
        {app("Contents/Resources/INFO"), "the version file '"},
        {bundle("log/launcher.debug"), ""}};
    for (const auto& [path, message] : cases) {
        for (const auto& make : traps) {
            SCOPED_TRACE(path);
            startFrom("99");
            const Client running = startClient();
            const std::string text = ReadFile(user("ui.pid"));
            MakeFile(outside, text);
            logEverything();
            fs::remove(path);
            MakeFolder(fs::path(path).parent_path());
            make(path);
            const Result result = run();
            EXPECT_NE((result.log + result.err).find(message), std::string::npos) << result.err;
            EXPECT_TRUE(clientStarted());
            EXPECT_EQ(running.running(), path == user("ui.pid"));
            EXPECT_EQ(ReadFile(outside), text);
            expectBuild("100");
            fs::remove(path);
        }
    }
}

// Qt would decode such a name to the name of another folder.
TEST(OddNamesTest, AHomeThatIsNotNamedInUtf8IsLeftAlone) {
    Installation in(".", "\xFF");
    in.install("99");
    const FileTree before = Tree(in.home());
    EXPECT_TRUE(HasOneLine(in.run().err, "is not named in UTF-8"));
    EXPECT_TRUE(in.clientStarted());
    EXPECT_EQ(Tree(in.home()), before);
    fs::remove_all(in.user());
    EXPECT_TRUE(HasOneLine(in.run().err, "there is no client in '" + in.home()));
}

TEST(OddNamesTest, WorksWhereverItIsAndWhateverItIsCalled) {
    const char kBlanks[] = "\xE5\xAE\xB6 with\nblanks \xF0\x9F\x98\x80";
    const char kDecomposed[] = "e\xCC\x81";  // not the same name as its composed form
    // The bundle's folder, the home folder, argv[0] (empty: the executable's path), the locale.
    for (const auto& [bundle_folder, home, executable, locale] :
         {std::tuple("f\xC3\xBCr mich", "home", "", ""),
          {"f\xC3\xBCr mich", "home", "tarnwell-launcher", ""},
          {"f\xC3\xBCr mich", "home", "/nowhere", ""},
          {".", kBlanks, "", "C"},
          {".", kBlanks, "", "C.UTF-8"},
          {".", kDecomposed, "", ""}}) {
        SCOPED_TRACE(home + std::string(executable) + locale);
        Installation in(bundle_folder, home);
        in.started_as = executable;
        in.environment["LC_ALL"] = locale;
        in.install("99");
        const Client running = in.startClient();
        const std::string out = in.run().out;
        EXPECT_TRUE(*executable != '/' || out == "lib path = '/../Frameworks/plugins'\n");
        EXPECT_FALSE(running.running());
        EXPECT_TRUE(in.clientStarted());
        in.expectBuild("100");
        const auto beside = fs::directory_iterator(fs::path(in.home()).parent_path());
        EXPECT_EQ(std::distance(begin(beside), end(beside)), 4)
            << "expected: the bundle, the home folder, and one file for each output stream";
    }
}

// Volumes that are usual on a Mac: a case-insensitive one for the home folder, a read-only one for
// the bundle.

TEST(CaseIgnoringHomeTest, InstallsUpgradesAndRollsBack) {
    for (const auto kind : {CaseIgnoringVolume::ExFat, CaseIgnoringVolume::Ntfs}) {
        Installation in;
        const CaseIgnoringVolume volume(in.home(), kind);
        if (!volume.mounted()) {
            GTEST_SKIP() << "this user may not mount such a volume, or the tools are missing";
        }
        for (const auto& [number, name, other_name, clash] :
             {std::tuple("100", "old", "older", false),
              {"101", "new", "newer", false},
              {"102", "name", "NAME", true}}) {
            in.setBuild(number);
            MakeArchive(
                in.package(), "zip",  // without links, which exFAT doesn't support
                {{"Contents/Info.plist", kInfoPlist},
                 {"Contents/Resources/INFO", VersionFile(number)},
                 {name},
                 {other_name},
                 {"Contents/MacOS/tarnwell-ui", "#!/bin/sh\necho >>\"$HOME/started\"\n", 0755}});
            const std::string log = in.run().log;
            EXPECT_TRUE(in.clientStarted()) << log;
            EXPECT_EQ(ReadFile(in.app("Contents/Resources/INFO")),
                      VersionFile(clash ? "101" : number));
            in.expectNoLeftovers();
            EXPECT_EQ(log.empty(), !clash) << log;
            EXPECT_EQ(HasOneLine(log, "refused entry 'NAME'"), clash) << log;
            EXPECT_EQ(HasOneLine(log, "rollback to old installation"), clash) << log;
            EXPECT_EQ(Exists(in.app("old")), std::string(number) == "100");
        }
    }
}

// macOS runs a downloaded bundle from a read-only volume until the user moves the bundle.
TEST(ReadOnlyBundleTest, InstallsAndStartsTheClient) {
    Installation installation;
    const std::string bundle = installation.bundle("");
    if (unshare(CLONE_NEWNS) != 0 ||
        mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount(bundle.c_str(), bundle.c_str(), nullptr, MS_BIND, nullptr) != 0 ||
        mount("none", bundle.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) != 0) {
        GTEST_SKIP() << "this user may not mount a read-only bundle";
    }
    ASSERT_NE(access(bundle.c_str(), W_OK), 0);
    for (int start = 0; start < 2; ++start) {
        EXPECT_EQ(installation.run().log, "");
        EXPECT_TRUE(installation.clientStarted());
        installation.expectBuild("100");
    }
}

}  // namespace
