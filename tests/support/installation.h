#ifndef TESTS_SUPPORT_INSTALLATION_H
#define TESTS_SUPPORT_INSTALLATION_H

#include <future>
#include <map>
#include <string>
#include <vector>

#include "tests/support/archives.h"
#include "tests/support/scenario.h"

// A running client: a process that executes a command, of which the constructor awaits the first
// line. It is waited for in the background, so that it vanishes when it ends, as it would on a
// user's machine.
class Client {
  public:
    // What the stand-in for the client takes as its argument.
    static constexpr char kEndsAtOnce[] = "ends at once";
    static constexpr char kEndsAfterTwoSeconds[] = "ends after two seconds";
    static constexpr char kIgnoresSigterm[] = "ignores SIGTERM";

    // It may write its process id to a file.
    explicit Client(std::vector<std::string> command, const std::string& pid_file = "");
    ~Client();
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    static void copyTo(const std::string& path);  // the stand-in's executable

    pid_t pid() const { return pid_; }
    bool running() const;
    int wait();  // how it ended: its exit code, or 1000 plus the signal

  private:
    pid_t pid_;
    std::shared_future<int> end_;
};

// What a package holds besides a client, which is its last entry, and a few files: Modes has
// folders that can't be written, and after the client one that can't be entered either; Links has
// links to a folder, to nothing, and out of the application; Many has 3,000 files. Single has the
// client alone, NoClient all but that, and ClientFirst begins with it.
enum class Shape { Plain, Modes, Links, Single, Many, ClientFirst, NoClient };

// A launcher's bundle and a home folder, both on a disk of their own, and what a test does with
// them through the real executable.
class Installation {
  public:
    explicit Installation(const std::string& bundle_folder = ".", const std::string& home = "home");

    const std::string& home() const { return home_; }
    std::string user(const std::string& name = "") const;  // below ~/.Tarnwell
    std::string app(const std::string& name = "") const;   // below the per-user application
    std::string bundle(const std::string& name) const;     // below the launcher's bundle
    std::string package() const;
    std::string client() const;  // the installed one's executable

    // Gives the bundle this build number and a package of a client with it.
    void setBuild(const std::string& number, const std::string& format = "zip",
                  Shape shape = Shape::Plain);
    // Puts an application of this build in place, as an earlier run would have.
    void install(const std::string& number);
    void install(const std::string& number, Shape shape);  // of such a package
    // Starts the installed client, which the pid file names from now on.
    Client startClient(const char* behaviour = Client::kEndsAtOnce) const;
    void logEverything() const;  // otherwise errors and warnings only

    // Of the launcher: that of a user who has set nothing but what a test adds.
    std::map<std::string, std::string> environment;
    void runAsNobody();  // from now on, when we are root
    // Starts the launcher by this name of its executable instead of its path.
    void startAs(const std::string& name) { started_as_ = name; }

    struct Result {
        int exit_code;    // or 1000 plus the signal
        std::string log;  // what this run added to the log file
        std::string out;
        std::string err;
    };
    // Runs the launcher to its end and checks what holds for every run: the exit code is 0.
    Result run();
    // Starts it and returns at once; the new process calls before_exec first.
    pid_t start(void (*before_exec)() = nullptr);
    static int wait(pid_t pid);

    bool clientStarted();  // since the last call; waits for it
    static FileTree expectedApp(const std::string& number, Shape shape = Shape::Plain,
                                bool folder_modes = false);

  private:
    Folder folder_;
    const std::string home_;
    const std::string bundle_;
    std::string started_as_;
    bool nobody_ = false;
};

bool Logged(const Installation::Result& result, const std::string& fragment);

// A test of such runs.
class InstallationTest : public testing::Test, protected Installation {
  protected:
    // Begins anew, with an application of this build as an earlier run would have left it.
    void startFrom(const std::string& number);
    void expectBuild(const std::string& number) const;
    // Nothing but the log and the application is left of a run.
    void expectNoLeftovers() const;
};

#endif
