// The real executable among other processes, and started by users and programs of all kinds.

#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>
#include <memory>

#include "lib/platform/single-instance.h"
#include "tests/support/installation.h"

namespace fs = std::filesystem;

namespace {

class StartTest : public InstallationTest {};

TEST_F(StartTest, StopsARunningClient) {
    const struct {
        const char* behaviour;
        int end;
        int least_seconds;
    } cases[] = {{Client::kEndsAtOnce, 1000 + SIGTERM, 0},
                 {Client::kEndsAfterTwoSeconds, 0, 2},
                 {Client::kIgnoresSigterm, 1000 + SIGKILL, 5}};
    for (const auto& row : cases) {
        SCOPED_TRACE(row.least_seconds);
        startFrom("99");
        Client client({installation_.client(), row.behaviour});
        installation_.setClientPid(client.pid());
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

TEST_F(StartTest, SignalsNobodyForAPidFileThatNamesNoClient) {
    installation_.install("99");
    const pid_t gone = Client({installation_.client(), Client::kEndsAtOnce}).pid();
    const std::pair<std::string, std::string> cases[] = {
        {"pid=" + std::to_string(gone), "[DEBUG] mac/mac-service(154): local appdata exist"},
        {"pid=0\n", "names no client: pid '0'"},
        {"pid=-1\n", "names no client: pid '-1'"},
        {"pid=abc\n", "names no client: pid 'abc'"},
        {"pid=''\n", "names no client: pid ''"},
        {"other=1\n", "names no client: pid ''"},
        {"pid=4294967297\n", "names no client: pid '4294967297'"},
        {"pid=99999999999999999999\n", "names no client"},
        {"garbage\n", "[NOTE] mac/mac-service(97): Failed to read pid file"},
        {"",
         "mac/mac-service(92): pid file '" + installation_.user("ui.pid") + "' does not exist"}};
    installation_.logEverything();
    for (const auto& [pid_file, message] : cases) {
        SCOPED_TRACE(pid_file);
        startFrom("99");
        if (!pid_file.empty()) {
            MakeFile(installation_.user("ui.pid"), pid_file);
        }
        const Installation::Result result = installation_.run();
        EXPECT_TRUE(Logged(result, message)) << result.log;
        EXPECT_FALSE(Logged(result, "kill:")) << result.log;
        expectBuild("100");
    }
}

TEST_F(StartTest, AClientThatMayNotBeSignalledIsWaitedFor) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can start another user's client";
    }
    installation_.install("99");
    const Client client({installation_.client(), Client::kEndsAtOnce});
    installation_.setClientPid(client.pid());
    installation_.runAsNobody();
    const Installation::Result result = installation_.run();
    EXPECT_TRUE(
        HasOneLine(result.log, "[ERROR] mac/mac-service(112): kill: Operation not permitted (1)"));
    EXPECT_TRUE(client.running());
    expectBuild("100");
}

TEST_F(StartTest, WhatAProcessRunsDecidesWhetherItIsTheClient) {
    using Command = std::vector<std::string>;
    const std::string client = installation_.client();
    const std::string other = installation_.home() + "/other";
    const std::string loop = "\necho ready\nwhile :; do sleep 1; done\n";
    const auto script = [&](const std::string& path, const char* first_line) {
        MakeFile(path, first_line + loop, 0755);
        return Command{path};
    };
    const auto start = [](const std::string& path) { return Command{path, Client::kEndsAtOnce}; };
    const auto nothing = [] {};
    const struct {
        const char* what;
        std::function<Command()> make;
        std::function<void()> then;
        int written_hours_ago;
        bool is_client;
    } cases[] = {{"another program", [&] { return start(other); }, nothing, 0, false},
                 {"another program, the file is from the future", [&] { return start(other); },
                  nothing, -9, false},
                 {"another program of that name", [&] { return start(other + "/tarnwell-ui"); },
                  nothing, 0, false},
                 {"the clock was set", [&] { return start(client); }, nothing, 9, true},
                 {"replaced", [&] { return start(client); },
                  [&] {
                      fs::remove(client);
                      Client::copyTo(client);
                  },
                  0, true},
                 {"moved", [&] { return start(client); },
                  [&] {
                      fs::rename(installation_.app(), installation_.user("Tarnwell.app_tmp3"));
                      installation_.install("99");
                  },
                  0, true},
                 {"not a backup", [&] { return start(client); },
                  [&] {
                      fs::rename(installation_.app(), installation_.user("Tarnwell.apps"));
                      installation_.install("99");
                  },
                  0, false},
                 {"a script", [&] { return script(client, "#!/bin/sh"); }, nothing, 0, true},
                 {"a script and an option", [&] { return script(client, "#!/bin/sh -e"); }, nothing,
                  0, true},
                 {"a script by a relative path",
                  [&] {
                      script(client, "#!/bin/sh");
                      return Command{"/bin/sh", "-c",
                                     "cd " + installation_.app() +
                                         "/Contents; exec /bin/sh MacOS/tarnwell-ui"};
                  },
                  nothing, 0, true},
                 {"another script",
                  [&] {
                      script(client, "#!/bin/sh");
                      return script(other, "#!/bin/sh");
                  },
                  nothing, 0, false},
                 {"another program that was given the client",
                  [&] {
                      return Command{other, client};
                  },
                  nothing, 0, false}};
    installation_.logEverything();
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        startFrom("99");
        fs::remove_all(other);
        const Command command = row.make();
        if (command[0].compare(0, other.size(), other) == 0 && !Exists(command[0])) {
            Client::copyTo(command[0]);
        }
        const Client process(command);
        row.then();
        installation_.setClientPid(process.pid());
        fs::last_write_time(
            installation_.user("ui.pid"),
            fs::file_time_type::clock::now() - std::chrono::hours(row.written_hours_ago));
        const Installation::Result result = installation_.run();
        EXPECT_EQ(process.running(), !row.is_client);
        EXPECT_EQ(Logged(result, "is not terminated: it runs '"), !row.is_client) << result.log;
        expectBuild("100");
    }
}

TEST_F(StartTest, AnotherUsersYoungerProcessIsNotTheClient) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can start another user's process";
    }
    installation_.logEverything();
    installation_.install("99");
    const Client another({installation_.client(), Client::kEndsAtOnce});
    installation_.setClientPid(another.pid());
    fs::last_write_time(installation_.user("ui.pid"),
                        fs::file_time_type::clock::now() - std::chrono::seconds(4));
    installation_.runAsNobody();
    const Installation::Result result = installation_.run();
    EXPECT_TRUE(Logged(result, "it was started after the pid file was written")) << result.log;
    EXPECT_FALSE(Logged(result, "kill:"));
    expectBuild("100");
}

TEST_F(StartTest, WhereTheHomeIsReadOnlyThereIsAGuardAllTheSame) {
    installation_.install("99");
    installation_.runAsNobody();
    fs::permissions(installation_.user(), fs::perms{0555});
    {
        std::unique_ptr<platform::SingleInstance> another;
        {
            const AsNobody nobody;
            another = std::make_unique<platform::SingleInstance>(
                installation_.user(), installation_.bundle("Contents/MacOS/tarnwell-launcher"));
        }
        installation_.run();
        EXPECT_FALSE(Exists(installation_.home() + "/started"));
    }
    installation_.run();
    EXPECT_TRUE(installation_.clientStarted());
    fs::permissions(installation_.user(), fs::perms{0755});
}

TEST_F(StartTest, WhatItWasStartedWithEndsNoRun) {
    installation_.logEverything();
    void (*const cases[])() = {
        [] {  // nobody reads what it writes
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
    installation_.environment["QT_LOGGING_RULES"] = "*=true";  // Qt says much on standard error
    for (const auto& before_exec : cases) {
        startFrom("99");
        EXPECT_EQ(Installation::wait(installation_.start(before_exec)), 0);
        EXPECT_TRUE(installation_.clientStarted());
        expectBuild("100");
        const std::string log = ReadFile(installation_.user("log/launcher.log"));
        EXPECT_EQ(LinesWith(log, "").size(), LinesWith(log, "): ").size()) << log;
        EXPECT_EQ(LinesWith(log, "").size(), LinesWith(log, " [").size()) << log;
    }
}

TEST_F(StartTest, WhatItReadsAndWritesMayBeATrap) {
    const std::string outside = installation_.home() + "/outside";
    const std::function<void(const std::string& path)> traps[] = {
        [](const std::string& path) { mkfifo(path.c_str(), 0644); },
        [](const std::string& path) { MakeLink("/dev/zero", path); },
        [&](const std::string& path) { MakeLink(outside, path); }, MakeFolder};
    const std::pair<std::string, std::string> cases[] = {
        {installation_.user("ui.pid"), "[NOTE] mac/mac-service(97): Failed to read pid file"},
        {installation_.user("log/launcher.log"), "is not a regular file, the log is not written"},
        {installation_.app("Contents/Resources/INFO"), "the version file '"},
        {installation_.bundle("log/launcher.debug"), ""}};
    for (const auto& [path, message] : cases) {
        for (const auto& make : traps) {
            SCOPED_TRACE(path);
            startFrom("99");
            const Client client({installation_.client(), Client::kEndsAtOnce});
            const std::string text = "pid=" + std::to_string(client.pid()) + "\n";
            MakeFile(outside, text);
            installation_.logEverything();
            fs::remove(path);
            MakeFolder(fs::path(path).parent_path());
            make(path);
            const Installation::Result result = installation_.run();
            EXPECT_NE((result.log + result.err).find(message), std::string::npos) << result.err;
            EXPECT_TRUE(installation_.clientStarted());
            EXPECT_TRUE(client.running());
            EXPECT_EQ(ReadFile(outside), text);
            expectBuild("100");
            fs::remove(path);
        }
    }
}

// Qt would decode the name to that of another folder.
TEST_F(StartTest, AHomeThatIsNotNamedInUtf8IsLeftAlone) {
    const std::string home = installation_.home() + "/\xFF";
    installation_.install("99");
    MakeFolder(home);
    fs::rename(installation_.user(), home + "/.Tarnwell");
    const FileTree before = Tree(installation_.home());
    installation_.environment["HOME"] = home;
    EXPECT_TRUE(HasOneLine(installation_.run().err, "is not named in UTF-8"));
    EXPECT_TRUE(WaitFor([&] { return fs::remove(home + "/started"); }));
    EXPECT_EQ(Tree(installation_.home()), before);
    fs::remove_all(home + "/.Tarnwell");
    EXPECT_TRUE(HasOneLine(installation_.run().err, "there is no client in '" + home));
}

// "e" and an accent in two characters: another name than its composed form.
TEST_F(StartTest, ADecomposedHomeIsUsedAsItIs) {
    const std::string home = installation_.home() + "/e\xCC\x81";
    installation_.install("99");
    MakeFolder(home);
    fs::rename(installation_.user(), home + "/.Tarnwell");
    installation_.environment["HOME"] = home;
    const Client client(
        {home + "/.Tarnwell/Tarnwell.app/Contents/MacOS/tarnwell-ui", Client::kEndsAtOnce});
    MakeFile(home + "/.Tarnwell/ui.pid", "pid=" + std::to_string(client.pid()));
    installation_.run();
    EXPECT_FALSE(client.running());
    EXPECT_TRUE(WaitFor([&] { return fs::remove(home + "/started"); }));
    EXPECT_EQ(Tree(installation_.home()).count("\xC3\xA9"), 0u);
}

TEST_F(StartTest, WorksWhateverItsExecutableIsCalled) {
    for (const char* const name : {"", "tarnwell-launcher", "/nowhere"}) {
        SCOPED_TRACE(name);
        Installation elsewhere("f\xC3\xBCr mich");
        elsewhere.startAs(name);
        const Installation::Result result = elsewhere.run();
        EXPECT_EQ(Tree(elsewhere.app()), elsewhere.expectedApp("100"));
        EXPECT_TRUE(*name != '/' || result.out == "lib path = '/../Frameworks/plugins'\n");
    }
}

TEST_F(StartTest, WorksWhereverTheHomeIs) {
    const std::string home = installation_.home() + "/\xE5\xAE\xB6 with\nblanks \xF0\x9F\x98\x80";
    MakeFolder(home);
    installation_.environment["HOME"] = home;
    for (const char* const locale : {"C", "C.UTF-8"}) {
        SCOPED_TRACE(locale);
        fs::remove_all(home + "/.Tarnwell");
        installation_.environment["LC_ALL"] = locale;
        installation_.run();
        EXPECT_EQ(Tree(home + "/.Tarnwell/Tarnwell.app"), installation_.expectedApp("100"));
    }
}

}  // namespace
