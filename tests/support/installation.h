#ifndef TESTS_SUPPORT_INSTALLATION_H
#define TESTS_SUPPORT_INSTALLATION_H

#include <future>
#include <map>
#include <string>
#include <vector>

#include "tests/support/archives.h"
#include "tests/support/scenario.h"

// Waits for a process and returns how it ended, as EndOf().
int WaitForEnd(pid_t pid);

// A running client: a process that executes a shell's command, which first prints its process id.
// The constructor waits for that. A thread waits for the process to end, so that it never becomes a
// zombie.
class Client {
  public:
    // Writes the process id to pid_file unless that is empty.
    explicit Client(const std::string& command, const std::string& pid_file = "");
    ~Client();
    Client(const Client&) = delete;
    Client& operator=(const Client&) = delete;

    static void copyTo(const std::string& path);  // copies the substitute's executable

    pid_t pid() const { return pid_; }
    bool running() const;
    int end() const { return end_.get(); }  // waits; as EndOf()

  private:
    pid_t pid_ = 0;
    std::shared_future<int> end_;
};

// The content of a package. Plain has a few files, and the client as its last entry. Modes also has
// read-only folders and, after the client, a folder with the mode 0; Links has links to a folder,
// to nothing, and out of the application; Many has 3,000 more files. Single has only the client,
// NoClient has no client, and in ClientFirst the client is the first file.
enum class Shape { Plain, Modes, Links, Single, Many, ClientFirst, NoClient };

// A launcher's bundle and a home folder, both in a temporary folder, in which tests run the real
// launcher.
class Installation {
  public:
    explicit Installation(const std::string& bundle_folder = ".", const std::string& home = "home");

    const std::string& home() const { return home_; }
    // Paths below ~/.Tarnwell, the per-user application and the launcher's bundle.
    std::string user(const std::string& name = "") const { return below("/.Tarnwell", name); }
    std::string app(const std::string& name = "") const {
        return below("/.Tarnwell/Tarnwell.app", name);
    }
    std::string bundle(const std::string& name) const { return bundle_ + "/" + name; }
    std::string package() const { return bundle("Contents/Resources/package/tarnwell.opk"); }
    std::string client() const { return app("Contents/MacOS/tarnwell-ui"); }

    // Sets the build number of the bundle and creates a package of that build in it.
    void setBuild(const std::string& number, const std::string& format = "zip",
                  Shape shape = Shape::Plain);
    // Installs an application of this build, as an earlier run would have done.
    void install(const std::string& number);
    void install(const std::string& number, Shape shape);  // with the content of such a package
    void startFrom(const std::string& number);  // removes ~/.Tarnwell and installs this build
    // Starts the installed client, which ends this number of seconds after SIGTERM, and writes its
    // pid file.
    Client startClient(int seconds = 0) const {
        return Client("'" + client() + "' " + std::to_string(seconds), user("ui.pid"));
    }
    void logEverything() const;  // the default is errors and warnings

    // The environment variables of the launcher; tests may change them.
    std::map<std::string, std::string> environment;
    void runAsNobody();      // all later runs; does nothing unless the test runs as root
    std::string started_as;  // argv[0] of the launcher; if it is empty, its path

    struct Result {
        std::string log;  // what this run added to the log file
        std::string out;
        std::string err;
        bool logged(const std::string& text) const { return log.find(text) != std::string::npos; }
    };
    // Runs the launcher, waits for its end, and expects the exit code 0.
    Result run();
    // Starts the launcher and returns at once. The new process calls before_exec before exec().
    pid_t start(void (*before_exec)() = nullptr);

    bool clientStarted();  // since the last call; waits up to a minute
    void expectBuild(const std::string& build) const { EXPECT_EQ(Tree(app()), expectedApp(build)); }
    // Expects that ~/.Tarnwell contains only the log folder and the application.
    void expectNoLeftovers() const;
    static FileTree expectedApp(const std::string& number, Shape shape = Shape::Plain,
                                bool folder_modes = false);

  private:
    std::string below(const std::string& folder, const std::string& name) const {
        return home_ + folder + (name.empty() ? "" : "/" + name);
    }

    Folder folder_;
    const std::string home_;
    const std::string bundle_;
    bool nobody_ = false;
};

// The base of tests that run the launcher.
class InstallationTest : public testing::Test, protected Installation {};

#endif
