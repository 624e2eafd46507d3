#include "tests/support/installation.h"

#include <fcntl.h>
#include <grp.h>
#include <signal.h>
#include <strings.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>

namespace fs = std::filesystem;

namespace {

const uid_t kNobody = 65534;

const char kClientPath[] = "Contents/MacOS/tarnwell-ui";

// A client that appends "whole" or "half" to $HOME/started, depending on whether the last entry of
// its package exists. If its folder is no longer the installed application, another upgrade has
// begun, and it appends nothing.
std::string ClientLookingFor(const std::string& last) {
    return "#!/bin/sh\ncd \"${0%/Contents/*}\" || exit\n[ -e '" + last +
           "' ] && found=whole || found=half\n"
           "[ . -ef \"$HOME/.Tarnwell/Tarnwell.app\" ] && echo $found >>\"$HOME/started\"\n";
}

std::vector<Entry> CommonEntries(const std::string& number) {
    return {{"Contents/"},
            {"Contents/Info.plist", kInfoPlist},
            {"Contents/Resources/"},
            {"Contents/Resources/INFO", VersionFile(number)},
            {"Contents/Resources/data.bin", std::string(200000, 'x') + number},
            {"Contents/Resources/\xC3\xA9t\xC3\xA9", "summer"},
            {"Contents/Resources/latest", "", 0777, "data.bin"},
            {"Contents/private/", "", 0700},
            {"Contents/private/file", number, 0600},
            {"Contents/MacOS/"}};
}

std::vector<Entry> PackageEntries(const std::string& number, Shape shape) {
    std::vector<Entry> entries;
    if (shape != Shape::Single) {
        entries = CommonEntries(number);
    }
    if (shape == Shape::Modes) {
        entries.insert(entries.end(), {{"Contents/locked/", "", 0555},
                                       {"Contents/locked/file", "of build " + number},
                                       {"Contents/locked/inner/", "", 0555},
                                       {"Contents/locked/inner/file", "", 0444}});
    } else if (shape == Shape::Links) {
        entries.insert(entries.end(), {{"Contents/Current", "", 0777, "Resources"},
                                       {"Contents/nowhere", "", 0777, "gone/away"},
                                       {"Contents/out", "", 0777, "../../../sentinel"}});
    }
    for (int i = 0; shape == Shape::Many && i < 3000; ++i) {
        entries.push_back({"Contents/Resources/many/" + std::to_string(i), number});
    }
    const bool is_first = shape == Shape::ClientFirst;
    const std::string last = shape == Shape::Modes ? "Contents/closed/"
                             : is_first            ? entries.back().name
                                                   : kClientPath;
    if (shape != Shape::NoClient) {
        entries.insert(is_first ? entries.begin() + 1 : entries.end(),
                       {kClientPath, ClientLookingFor(last), 0755});
    }
    if (shape == Shape::Modes) {
        entries.push_back({last, "", 0});
    }
    return entries;
}

}  // namespace

int WaitForEnd(pid_t pid) {
    int status = 0;
    return waitpid(pid, &status, 0) == pid ? EndOf(status) : -1;
}

Client::Client(const std::string& command, const std::string& pid_file) {
    // NOLINTNEXTLINE(cert-env33-c): a command that tests choose
    std::FILE* const output = popen(("exec " + command).c_str(), "re");
    char line[16] = "";
    Check(output != nullptr && std::fgets(line, sizeof line, output) != nullptr,
          "can't start " + command);
    pid_ = std::stoi(line);
    end_ = std::async(std::launch::async, [output] { return EndOf(pclose(output)); }).share();
    if (!pid_file.empty()) {
        MakeFile(pid_file, "pid=" + std::to_string(pid_) + "\n");
    }
}

Client::~Client() {
    if (running()) {
        kill(pid_, SIGKILL);
    }
}

void Client::copyTo(const std::string& path) {
    MakeFolder(fs::path(path).parent_path());
    fs::copy_file(CLIENT, path, fs::copy_options::overwrite_existing);
}

bool Client::running() const {
    return end_.wait_for(std::chrono::seconds(0)) != std::future_status::ready;
}

Installation::Installation(const std::string& bundle_folder, const std::string& home)
    : home_(folder_ / home),
      bundle_(fs::path(folder_ / bundle_folder + "/Tarnwell.app").lexically_normal()) {
    MakeFolder(home_);
    MakeFolder(bundle("Contents/MacOS"));
    MakeFolder(bundle("Contents/Frameworks/plugins/platforms"));
    fs::copy(BUNDLE "/Contents/MacOS/tarnwell-launcher", bundle("Contents/MacOS"));
    fs::copy(BUNDLE "/Contents/Frameworks/plugins/platforms/libqoffscreen.so",
             bundle("Contents/Frameworks/plugins/platforms"));
    environment = {{"PATH", "/usr/bin:/bin"}, {"HOME", home_}, {"QT_QPA_PLATFORM", "offscreen"}};
    for (const char* const options : {"ASAN_OPTIONS", "LSAN_OPTIONS", "TSAN_OPTIONS"}) {
        if (const char* const value = getenv(options)) {
            environment[options] = value;
        }
    }
    setBuild("100");
}

void Installation::setBuild(const std::string& number, const std::string& format, Shape shape) {
    MakeFile(bundle("Contents/Resources/INFO"), VersionFile(number));
    MakeFolder(fs::path(package()).parent_path());
    MakeArchive(package(), format, PackageEntries(number, shape));
}

void Installation::install(const std::string& number) {
    Unpack({{"Contents/Resources/INFO", "[Version]\nbuild_version=" + number + "\n"},
            {"Contents/Info.plist", kInfoPlist},
            {"old", "of build " + number}},
           app());
    Client::copyTo(client());
}

void Installation::install(const std::string& number, Shape shape) {
    std::vector<Entry> entries = PackageEntries(number, shape);
    if (shape == Shape::Modes) {
        entries.push_back({"Contents/closed/file"});  // the client's; no package can create it
    }
    Unpack(entries, app());
}

void Installation::logEverything() const {
    MakeFile(bundle("log/launcher.debug"),
             "launcher_debug=7\nservice_debug=7\nextractor_debug=7\n");
}

void Installation::runAsNobody() {
    if (geteuid() != 0) {
        return;
    }
    nobody_ = true;
    for (const auto& entry : fs::recursive_directory_iterator(home_)) {
        lchown(entry.path().c_str(), kNobody, kNobody);
    }
    chown(home_.c_str(), kNobody, kNobody);
}

pid_t Installation::start(void (*before_exec)()) {
    const std::string program = bundle("Contents/MacOS/tarnwell-launcher");
    const pid_t pid = fork();
    if (pid != 0) {
        return pid;
    }
    umask(022);
    for (const auto& [fd, name] : {std::pair(STDOUT_FILENO, "out"), {STDERR_FILENO, "err"}}) {
        dup2(open((folder_ / name).c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644), fd);
    }
    clearenv();
    for (const auto& [variable, value] : environment) {
        setenv(variable.c_str(), value.c_str(), 1);
    }
    if (nobody_ && (setgroups(0, nullptr) != 0 || setgid(kNobody) != 0 || setuid(kNobody) != 0)) {
        _exit(126);
    }
    if (before_exec != nullptr) {
        before_exec();
    }
    execl(program.c_str(), started_as.empty() ? program.c_str() : started_as.c_str(), nullptr);
    _exit(127);
}

Installation::Result Installation::run() {
    const std::size_t logged = ReadFile(user("log/launcher.log")).size();
    EXPECT_EQ(WaitForEnd(start()), 0) << ReadFile(folder_ / "err");
    return {ReadFile(user("log/launcher.log")).substr(logged), ReadFile(folder_ / "out"),
            ReadFile(folder_ / "err")};
}

bool Installation::clientStarted() {
    const std::string mark = home_ + "/started";
    return WaitFor([&] { return Exists(mark); }) && fs::remove(mark);
}

FileTree Installation::expectedApp(const std::string& number, Shape shape, bool folder_modes) {
    const Folder folder;
    Unpack(PackageEntries(number, shape), folder.path());
    return Tree(folder.path(), folder_modes);
}

void Installation::startFrom(const std::string& number) {
    fs::remove_all(user());
    install(number);
}

void Installation::expectNoLeftovers() const {
    for (const auto& entry : fs::directory_iterator(user())) {
        const std::string name = entry.path().filename();
        EXPECT_TRUE(name == "log" || strcasecmp(name.c_str(), "Tarnwell.app") == 0) << name;
    }
}
