// What the operating system gives on macOS and this layer gives elsewhere.

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QString>
#include <ctime>
#include <filesystem>

#include "lib/platform/core-services.h"
#include "lib/platform/durability.h"
#include "lib/platform/file-system-type.h"
#include "lib/platform/instance-lock.h"
#include "lib/platform/open-bundle.h"
#include "lib/platform/private-folder.h"
#include "lib/platform/process-info.h"
#include "lib/platform/single-instance.h"
#include "tests/support/installation.h"
#include "tests/support/scenario.h"

namespace fs = std::filesystem;

namespace {

OSStatus MakeRef(const std::string& path, FSRef& ref, Boolean* is_folder = nullptr) {
    return FSPathMakeRef(reinterpret_cast<const UInt8*>(path.c_str()), &ref, is_folder);
}

TEST(FSRef, NamesTheObjectThatAPathLeadsTo) {
    const Folder folder;
    MakeFile(folder / "folder/Name");
    MakeLink("folder/Name", folder / "link");
    MakeLink("folder", folder / "way");
    FSRef ref;
    Boolean is_folder = 2;
    UInt8 text[PATH_MAX] = {};
    for (const char* const path :
         {"/folder/Name", "/link", "/way/Name", "/folder/../link", "//folder/.//Name"}) {
        ASSERT_EQ(MakeRef(folder.path() + path, ref, &is_folder), 0) << path;
        EXPECT_FALSE(is_folder);
        EXPECT_EQ(FSRefMakePath(&ref, text, sizeof text), 0);
        EXPECT_EQ(reinterpret_cast<char*>(text), folder / "folder/Name") << path;
    }
    ASSERT_EQ(MakeRef("/tmp", ref, &is_folder), 0);
    EXPECT_TRUE(is_folder);
    EXPECT_EQ(FSRefMakePath(&ref, text, 4), -2110) << "no room for the terminator";
    EXPECT_EQ(FSRefMakePath(&ref, text, 5), 0);
}

// Two links that differ in their letter case look like a folder that ignores it.
TEST(FSRef, KeepsTheSpellingOfALinkThatIsThere) {
    const Folder folder;
    MakeFile(folder / "Name");
    ASSERT_EQ(link((folder / "Name").c_str(), (folder / "nAME").c_str()), 0);
    for (const char* const name : {"Name", "nAME"}) {
        FSRef ref;
        ASSERT_EQ(MakeRef(folder / name, ref), 0);
        EXPECT_EQ(ref.path, folder / name);
    }
}

TEST(FSRef, TellsWhyThereIsNone) {
    const Folder folder;
    MakeFile(folder / "file");
    MakeLink("nowhere", folder / "dangling");
    MakeLink("loop", folder / "loop");
    MakeFile(folder / "closed/file");
    chmod((folder / "closed").c_str(), 0);
    const std::pair<std::string, OSStatus> cases[] = {{folder / "missing", -43},
                                                      {folder / "dangling", -43},
                                                      {folder / "missing/", -43},
                                                      {folder / "missing/file", -120},
                                                      {folder / "file/below", -120},
                                                      {"", -37},
                                                      {folder / std::string(300, 'x'), -37},
                                                      {folder / "loop", -36},
                                                      {folder / "closed/file", -5000}};
    for (const auto& [path, status] : cases) {
        FSRef ref;
        const AsNobody nobody;
        EXPECT_EQ(MakeRef(path, ref), status) << path.substr(0, 80);
    }
    chmod((folder / "closed").c_str(), 0755);
}

TEST(FileSystemType, NamesTheSystem) {
    std::string name = "unchanged";
    EXPECT_EQ(platform::FileSystemType("/proc/self", name), 0);
    EXPECT_EQ(name, "proc");
    EXPECT_EQ(platform::FileSystemType("/nowhere", name), -1);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(name, "proc");
}

TEST(Durability, WhatKnowsNoSuchRequestIsNoFailure) {
    for (const char* const path : {"/tmp", "/dev/null", "/proc/self"}) {
        const int fd = open(path, O_RDONLY | O_CLOEXEC);
        EXPECT_EQ(platform::SyncFile(fd), 0) << path;
        close(fd);
    }
    EXPECT_EQ(platform::SyncFolder("/proc/self"), 0);
    EXPECT_EQ(platform::SyncFile(-1), -1);
    EXPECT_EQ(errno, EBADF);
    EXPECT_EQ(platform::SyncFolder("/nowhere"), -1);
}

TEST(BundleExecutable, IsReadFromTheInfoPlist) {
    const auto plist = [](const QByteArray& dict) {
        return platform::BundleExecutable(R"(<?xml version="1.0"?><plist version="1.0">)" + dict +
                                          "</plist>");
    };
    EXPECT_EQ(plist("<dict><key>A</key><true/><key>B</key><string>no</"
                    "string><key>CFBundleExecutable</key><string>ui &amp; "
                    "\xC3\xA9</string></dict>"),
              QString::fromUtf8("ui & \xC3\xA9"));
    for (const char* const refused :
         {"", "<dict/>", "<array><string>CFBundleExecutable</string></array>",
          "<dict><key>CFBundleExecutable</key><string></string></dict>",
          "<dict><key>CFBundleExecutable</key><string>../ui</string></dict>",
          "<dict><key>CFBundleExecutable</key><string>..</string></dict>",
          "<dict><key>CFBundleExecutable</key><true/></dict>",
          "<dict><key>D</key><dict><key>CFBundleExecutable</key><string>ui</string></dict></dict>",
          "<dict><key>CFBundleExecutable</key><string>ui</strin"}) {
        EXPECT_EQ(plist(refused), QString()) << refused;
    }
    EXPECT_EQ(platform::BundleExecutable("bplist00"), QString());
}

class OpenBundleTest : public testing::Test {
  protected:
    OpenBundleTest() { setenv("HOME", folder_.path().c_str(), 1); }

    bool open() const { return platform::OpenBundle(folder_ / "My.app"); }
    void makeProgram(const std::string& name, mode_t mode = 0755) const {
        MakeFile(folder_ / "My.app/Contents/MacOS/" + name,
                 "#!/bin/sh\necho \"$(pwd) $# $0\" >there && mv there started\n", mode);
    }
    std::string started() const {
        const std::string mark = folder_ / "started";
        WaitFor([&] { return Exists(mark); });
        return ReadFile(mark);
    }

    Folder folder_;
};

TEST_F(OpenBundleTest, StartsWhatTheInfoPlistNamesOrTheBundlesOwnName) {
    for (const char* const name : {"prog", "My"}) {
        const std::string info = "<plist><dict><key>CFBundleExecutable</key><string>prog</string>";
        MakeFile(folder_ / "My.app/Contents/Info.plist",
                 name == std::string("prog") ? info + "</dict></plist>" : "");
        makeProgram(name);
        EXPECT_TRUE(open());
        EXPECT_EQ(started(),
                  folder_.path() + " 0 " + folder_ / "My.app/Contents/MacOS/" + name + "\n");
        unlink((folder_ / "started").c_str());
    }
}

TEST_F(OpenBundleTest, SaysWhenThereIsNothingToStart) {
    EXPECT_FALSE(open());
    MakeFolder(folder_ / "My.app/Contents/MacOS/My");
    EXPECT_FALSE(open());
    rmdir((folder_ / "My.app/Contents/MacOS/My").c_str());
    makeProgram("My", 0644);
    EXPECT_FALSE(open());
    makeProgram("outside");
    fs::rename(folder_ / "My.app/Contents/MacOS/outside", folder_ / "outside");
    fs::remove(folder_ / "My.app/Contents/MacOS/My");
    MakeLink("../../../outside", folder_ / "My.app/Contents/MacOS/My");
    EXPECT_FALSE(open());
}

TEST_F(OpenBundleTest, ReadsNoInfoPlistThatMayBeATrap) {
    const std::string plist = folder_ / "My.app/Contents/Info.plist";
    makeProgram("My");
    MakeFile(folder_ / "outside",
             "<plist><dict><key>CFBundleExecutable</key><string>none</string></dict></plist>");
    const std::function<void()> cases[] = {[&] { mkfifo(plist.c_str(), 0644); },
                                           [&] { MakeLink("/dev/zero", plist); },
                                           [&] { MakeLink("../../outside", plist); }};
    for (const auto& make : cases) {
        make();
        EXPECT_TRUE(open());
        EXPECT_NE(started(), "");
        fs::remove(plist);
        fs::remove(folder_ / "started");
    }
}

// Nothing of ours but the environment.
TEST_F(OpenBundleTest, TheProgramStartsAfresh) {
    // Two signals of its own are ignored by the C library; they are beyond the last seven digits.
    MakeFile(folder_ / "My.app/Contents/MacOS/My",
             "#!/bin/sh\n(grep -cE 'Sig(Blk|Ign):.*0000000$' /proc/self/status; ls /proc/$$/fd) "
             ">there\nmv there started\n",
             0755);
    sigset_t all;
    sigset_t saved;
    sigfillset(&all);
    sigprocmask(SIG_BLOCK, &all, &saved);
    const auto action = signal(SIGPIPE, SIG_IGN);
    const int descriptor = dup(STDERR_FILENO);  // which a new program would inherit
    EXPECT_TRUE(open());
    close(descriptor);
    signal(SIGPIPE, action);
    sigprocmask(SIG_SETMASK, &saved, nullptr);
    EXPECT_EQ(started(), "2\n0\n1\n10\n2\n") << "10 is the shell's script";
}

class InstanceLockTest : public testing::Test {
  protected:
    // What another process finds that tries while we do what we do.
    bool heldForAnotherProcess() const {
        const pid_t pid = fork();
        if (pid == 0) {
            _exit(platform::InstanceLock(path_).heldElsewhere() ? 1 : 0);
        }
        int status = 0;
        waitpid(pid, &status, 0);
        EXPECT_TRUE(WIFEXITED(status));
        return WEXITSTATUS(status) != 0;
    }

    Folder folder_;
    const std::string path_ = folder_ / "lock";
};

TEST_F(InstanceLockTest, OneProcessHoldsIt) {
    MakeFile(path_, "", 0600);  // what a killed process left
    {
        const platform::InstanceLock lock(path_);
        EXPECT_FALSE(lock.heldElsewhere());
        EXPECT_TRUE(heldForAnotherProcess());
        EXPECT_TRUE(heldForAnotherProcess());
    }
    EXPECT_FALSE(Exists(path_));
    EXPECT_FALSE(heldForAnotherProcess());
}

TEST_F(InstanceLockTest, ForeignObjectsNeitherBlockNorFool) {
    MakeLink("/etc/passwd", path_);
    EXPECT_FALSE(platform::InstanceLock(path_).heldElsewhere());
    EXPECT_FALSE(Exists(path_));

    ASSERT_EQ(mkfifo(path_.c_str(), 0666), 0);
    {
        const platform::InstanceLock lock(path_);
        EXPECT_TRUE(heldForAnotherProcess());
    }
    MakeFolder(path_);
    EXPECT_FALSE(platform::InstanceLock(path_).heldElsewhere());
    EXPECT_TRUE(Exists(path_));
    EXPECT_FALSE(platform::InstanceLock("/proc/lock").heldElsewhere());
    EXPECT_FALSE(platform::InstanceLock(folder_ / "no folder/lock").heldElsewhere());
}

TEST_F(InstanceLockTest, AnotherUsersLockedFileDoesNotBlock) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can make another user's file";
    }
    MakeFile(path_, "", 0666);
    ASSERT_EQ(chown(path_.c_str(), 65534, 65534), 0);
    const int fd = open(path_.c_str(), O_RDWR | O_CLOEXEC);
    ASSERT_EQ(flock(fd, LOCK_EX | LOCK_NB), 0);
    {
        const platform::InstanceLock lock(path_);
        EXPECT_FALSE(lock.heldElsewhere());
        EXPECT_TRUE(heldForAnotherProcess());
    }
    close(fd);
}

class SingleInstanceTest : public testing::Test {
  protected:
    // Whether this executable runs already for another process of the user that this one is.
    bool runsForAnotherProcess(const std::string& executable) const {
        const pid_t pid = fork();
        if (pid == 0) {
            _exit(platform::SingleInstance(folder_, executable).runsElsewhere() ? 1 : 0);
        }
        int status = 0;
        waitpid(pid, &status, 0);
        EXPECT_TRUE(WIFEXITED(status));
        return WEXITSTATUS(status) != 0;
    }

    Folder parent_;
    const std::string folder_ = parent_ / "user/folder";
};

TEST_F(SingleInstanceTest, EachCopyRunsOnceWhereverTheLockIs) {
    const std::function<void()> cases[] = {
        [] {},
        [&] {  // in the lock's place there is a folder
            const platform::SingleInstance instance(folder_, "/copy");
            const std::string lock = fs::directory_iterator(folder_)->path();
            fs::remove(lock);
            MakeFile(lock + "/file");
        },
        [&] { fs::permissions(folder_, fs::perms{0555}); },
        [&] {
            fs::permissions(folder_, fs::perms::owner_all);
            fs::remove_all(folder_);
            MakeFile(folder_);
        }};
    ASSERT_EQ(chmod(parent_.path().c_str(), 0777), 0);
    const AsNobody nobody;
    for (const auto& arrange : cases) {
        arrange();
        {
            const platform::SingleInstance instance(folder_, "/copy");
            EXPECT_FALSE(instance.runsElsewhere());
            EXPECT_TRUE(runsForAnotherProcess("/copy"));
            EXPECT_FALSE(runsForAnotherProcess("/another copy"));
        }
        EXPECT_FALSE(runsForAnotherProcess("/copy"));
    }
}

TEST_F(SingleInstanceTest, LocksThatAreHeldByNobodyAreRemoved) {
    const std::string left = folder_ + "/.launcher-0123456789abcdef.lock";
    const std::string held = folder_ + "/.launcher-fedcba9876543210.lock";
    MakeFile(folder_ + "/other.lock");
    MakeLink("other.lock", folder_ + "/.launcher-link.lock");
    MakeFile(left, "", 0600);
    const platform::InstanceLock lock(held);
    {
        const platform::SingleInstance instance(folder_, "/copy");
        EXPECT_FALSE(Exists(left));
        EXPECT_TRUE(Exists(held));
    }
    EXPECT_EQ(Tree(folder_).size(), 3u);
}

// What somebody else may have put there before us.
TEST(PrivateFolder, BelongsToNobodyElse) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can make another user's folder";
    }
    const std::string name = "tarnwell-test-" + std::to_string(getpid());
    const std::string first = "/tmp/" + name + "-65534";
    const std::string second = first + ".1";
    const std::function<void()> squatters[] = {
        [&] { MakeFolder(first), fs::permissions(first, fs::perms::all); },
        [&] { MakeFolder(first), fs::permissions(first, fs::perms::owner_all); },
        [&] { MakeFile(first); }, [&] { MakeLink("/tmp", first); }, [&] { MakeLink("x", first); }};
    for (const auto& make : squatters) {
        make();
        for (int attempt = 0; attempt < 2; ++attempt) {
            const AsNobody nobody;
            EXPECT_EQ(platform::PrivateFolder(name.c_str(), 1), "");
            EXPECT_EQ(platform::PrivateFolder(name.c_str(), 2), second);
            EXPECT_EQ(fs::status(second).permissions(), fs::perms::owner_all);
            fs::permissions(second, fs::perms::all);
        }
        fs::remove(first);
        fs::remove(second);
    }
    const std::string session = "/run/user/65534";
    for (const int mode : {0700, 0770}) {
        ASSERT_FALSE(Exists(session));
        MakeFolder(session);
        chmod(session.c_str(), static_cast<mode_t>(mode));
        ASSERT_EQ(chown(session.c_str(), 65534, 65534), 0);
        {
            const AsNobody nobody;
            EXPECT_EQ(platform::PrivateFolder(name.c_str(), 0),
                      mode == 0700 ? session + "/" + name : "");
        }
        fs::remove_all(session);
    }
}

TEST(ProcessInfo, NamesTheExecutableAlsoWhenItIsGone) {
    const Folder folder;
    const std::string program = folder / "client";
    Client::copyTo(program);
    const Client client({program, Client::kEndsAtOnce});
    struct stat status;
    ASSERT_EQ(stat(program.c_str(), &status), 0);
    for (const bool gone : {false, true}) {
        const platform::ProcessInfo info = platform::DescribeProcess(client.pid());
        EXPECT_EQ(info.executable, program);
        EXPECT_EQ(info.executable_gone, gone);
        EXPECT_EQ(info.inode, status.st_ino);
        EXPECT_EQ(info.arguments, (std::vector<std::string>{program, Client::kEndsAtOnce}));
        EXPECT_EQ(info.folder, fs::current_path());
        EXPECT_NEAR(double(info.started), double(std::time(nullptr)), 3);
        unlink(program.c_str());
    }
    EXPECT_EQ(platform::DescribeProcess(1 << 30).started, 0) << "no process has such an id";
}

}  // namespace
