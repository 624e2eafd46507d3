// The platform layer, including what it implements itself where only macOS has a system call.

#include <fcntl.h>
#include <signal.h>
#include <sys/file.h>

#include <QString>
#include <ctime>
#include <filesystem>

#include "lib/platform/core-services.h"
#include "lib/platform/durability.h"
#include "lib/platform/file-system-type.h"
#include "lib/platform/handles.h"
#include "lib/platform/instance-lock.h"
#include "lib/platform/open-bundle.h"
#include "lib/platform/private-folder.h"
#include "lib/platform/process-info.h"
#include "lib/platform/single-instance.h"
#include "tests/support/folder-test.h"
#include "tests/support/system.h"

namespace fs = std::filesystem;

namespace {

using PlatformTest = FolderTest;

TEST_F(PlatformTest, FSRefNamesTheObjectThatAPathLeadsTo) {
    // Two hard links whose names differ in letter case make the folder look case-insensitive.
    MakeFile("kinds/folder/Name");
    fs::create_hard_link("kinds/folder/Name", "kinds/folder/nAME");
    MakeFile("closed/file");
    fs::permissions("closed", fs::perms::none);
    const struct {
        OSStatus status;
        std::string target;
        std::vector<std::string> paths;
    } cases[] = {{0, "folder/Name", {"folder/Name", "link to folder/Name", "/folder/.//Name"}},
                 {0, "folder/nAME", {"folder/nAME"}},
                 {0, "folder", {"link to folder"}},
                 {0, "file", {"link to file", "folder/../link to file"}},
                 {-43, "", {"missing", "dangling", "missing/"}},
                 {-120, "", {"missing/file", "file/below"}},
                 {-37, "", {std::string(300, 'x')}},
                 {-36, "", {"loop"}},
                 {-5000, "", {"../closed/file"}}};
    const AsNobody nobody;
    FSRef ref;
    UInt8 text[PATH_MAX] = {};
    for (const auto& [status, target, paths] : cases) {
        for (const std::string& name : paths) {
            SCOPED_TRACE(name);
            const std::string path = folder_ / "kinds/" + name;
            Boolean is_folder = 2;
            ASSERT_EQ(FSPathMakeRef(reinterpret_cast<const UInt8*>(path.c_str()), &ref, &is_folder),
                      status);
            if (status == 0) {
                EXPECT_EQ(is_folder, fs::is_directory(path));
                EXPECT_EQ(FSRefMakePath(&ref, text, sizeof text), 0);
                EXPECT_EQ(reinterpret_cast<char*>(text), folder_ / "kinds/" + target);
            }
        }
    }
    const UInt8 root[] = "/";
    EXPECT_EQ(FSPathMakeRef(root + 1, &ref, nullptr), -37);
    ASSERT_EQ(FSPathMakeRef(root, &ref, nullptr), 0);
    EXPECT_EQ(FSRefMakePath(&ref, text, 1), -2110) << "the buffer has no room for the terminator";
    EXPECT_EQ(FSRefMakePath(&ref, text, 2), 0);
}

TEST(FileSystemType, NamesTheSystem) {
    std::string name = "unchanged";
    EXPECT_EQ(platform::FileSystemType("/nowhere", name), -1);
    EXPECT_EQ(errno, ENOENT);
    EXPECT_EQ(name, "unchanged");
    EXPECT_EQ(platform::FileSystemType("/proc/self", name), 0);
    EXPECT_EQ(name, "proc");
}

TEST(Durability, WhatKnowsNoSuchRequestIsNoFailure) {
    for (const char* const path : {"/tmp", "/dev/null", "/proc/self"}) {
        const platform::Descriptor file(open(path, O_RDONLY | O_CLOEXEC));
        EXPECT_EQ(platform::SyncFile(file.get()), 0) << path;
    }
    EXPECT_EQ(platform::SyncFolder("/proc/self"), 0);
    EXPECT_EQ(platform::SyncFile(-1), -1);
    EXPECT_EQ(errno, EBADF);
    EXPECT_EQ(platform::SyncFolder("/nowhere"), -1);
}

TEST(BundleExecutable, IsReadFromTheInfoPlist) {
    const auto name_in = [](const std::string& dict) {
        const std::string plist =
            R"(<?xml version="1.0"?><plist version="1.0">)" + dict + "</plist>";
        return platform::BundleExecutable(QByteArray::fromStdString(plist)).toStdString();
    };
    const std::string key = "<key>CFBundleExecutable</key>";
    EXPECT_EQ(name_in("<dict><key>A</key><true/><key>B</key><string>no</string>" + key +
                      "<string>ui &amp; \xC3\xA9</string></dict>"),
              "ui & \xC3\xA9");
    const std::string nameless[] = {
        "",
        "<dict/>",
        "<array><string>CFBundleExecutable</string></array>",
        "<dict>" + key + "<string></string></dict>",
        "<dict>" + key + "<string>../ui</string></dict>",
        "<dict>" + key + "<string>..</string></dict>",
        "<dict>" + key + "<true/></dict>",
        "<dict><key>D</key><dict>" + key + "<string>ui</string></dict></dict>",
        "<dict>" + key + "<string>ui</strin"};
    for (const std::string& dict : nameless) {
        EXPECT_EQ(name_in(dict), "") << dict;
    }
    EXPECT_EQ(platform::BundleExecutable("bplist00"), QString());
}

class OpenBundleTest : public FolderTest {
  protected:
    OpenBundleTest() { setenv("HOME", folder_.path().c_str(), 1); }

    bool open() const { return platform::OpenBundle(folder_ / "My.app"); }
    // Opens the bundle and returns what its program writes to the file "started". The program
    // writes to another file and renames it, so that this never reads an incomplete one.
    std::string openAndAwait() const {
        EXPECT_TRUE(open());
        WaitFor([] { return Exists("started"); });
        std::string text = ReadFile("started");
        fs::remove("started");
        return text;
    }

    const std::string programs_ = folder_ / "My.app/Contents/MacOS/";
};

TEST_F(OpenBundleTest, StartsWhatTheInfoPlistNamesOrTheBundlesOwnName) {
    const std::string plist = "My.app/Contents/Info.plist";
    const std::string naming =
        "<plist><dict><key>CFBundleExecutable</key><string>prog</string></dict></plist>";
    MakeFile("outside", naming);
    for (const char* const name : {"prog", "My"}) {
        MakeFile(programs_ + name, "#!/bin/sh\necho \"$(pwd) $# $0\" >there && mv there started\n",
                 0755);
    }
    const std::pair<const char*, std::function<void()>> cases[] = {
        {"prog", [&] { MakeFile(plist, naming); }},
        {"My", [&] { MakeFile(plist); }},
        {"My", [&] { mkfifo(plist.c_str(), 0644); }},
        {"My", [&] { MakeLink("/dev/zero", plist); }},
        {"My", [&] { MakeLink("../../outside", plist); }}};
    for (const auto& [name, make] : cases) {
        make();
        EXPECT_EQ(openAndAwait(), folder_.path() + " 0 " + programs_ + name + "\n");
        fs::remove(plist);
    }
}

TEST_F(OpenBundleTest, SaysWhenThereIsNothingToStart) {
    const std::string program = programs_ + "My";
    MakeFile("outside", "#!/bin/sh\n", 0755);
    const std::function<void()> cases[] = {[] {}, [&] { MakeFolder(program); },
                                           [&] { MakeFile(program, "#!/bin/sh\n", 0644); },
                                           [&] { MakeLink("../../../outside", program); }};
    for (const auto& make : cases) {
        fs::remove(program);
        make();
        EXPECT_FALSE(open()) << &make - cases;
    }
}

// The program inherits the environment, but no signal mask, ignored signals or open files except
// the standard streams.
TEST_F(OpenBundleTest, TheProgramStartsAfresh) {
    // The C library ignores its internal signals, 32 and 33. The last seven digits don't hold them.
    MakeFile(programs_ + "My",
             "#!/bin/sh\n(grep -cE 'Sig(Blk|Ign):.*0000000$' /proc/self/status; ls /proc/$$/fd) "
             ">there\nmv there started\n",
             0755);
    sigset_t all;
    sigset_t saved;
    sigfillset(&all);
    sigprocmask(SIG_BLOCK, &all, &saved);
    const auto action = signal(SIGPIPE, SIG_IGN);
    const platform::Descriptor inheritable(dup(STDERR_FILENO));
    EXPECT_EQ(openAndAwait(), "2\n0\n1\n10\n2\n") << "10 is the script that the shell reads";
    signal(SIGPIPE, action);
    sigprocmask(SIG_SETMASK, &saved, nullptr);
}

TEST_F(PlatformTest, OneInstanceLockIsHeldWhateverIsInItsPlace) {
    platform::Descriptor foreign(-1);
    const auto make_foreign = [&] {  // a locked file of another user
        MakeFile("lock", "", 0666);
        if (geteuid() == 0) {
            ASSERT_EQ(chown("lock", 65534, 65534), 0);
            foreign.reset(open("lock", O_RDWR | O_CLOEXEC));
            ASSERT_EQ(flock(foreign.get(), LOCK_EX | LOCK_NB), 0);
        }
    };
    const std::function<void()> cases[] = {
        [] {},
        [] { MakeFile("lock", "", 0600); },  // of a killed process
        [] { MakeLink("/etc/passwd", "lock"); },
        [] { mkfifo("lock", 0666); },
        make_foreign,
        [] { MakeFolder("lock"); }};
    // To the lock, another object is like another process.
    const auto held = [] { return platform::InstanceLock("lock").heldElsewhere(); };
    for (const auto& make : cases) {
        SCOPED_TRACE(&make - cases);
        make();
        const bool can_lock = !fs::is_directory("lock");
        {
            const platform::InstanceLock lock("lock");
            EXPECT_FALSE(lock.heldElsewhere());
            EXPECT_EQ(held(), can_lock);
            EXPECT_EQ(held(), can_lock) << "the first check removed the file";
        }
        EXPECT_EQ(Exists("lock"), !can_lock);
        EXPECT_FALSE(held());
    }
    EXPECT_FALSE(platform::InstanceLock("/proc/lock").heldElsewhere());
    EXPECT_FALSE(platform::InstanceLock("no folder/lock").heldElsewhere());
}

TEST_F(PlatformTest, EachCopyIsASingleInstanceAndRemovesLocksThatNobodyHolds) {
    MakeFile("user/other.lock");
    MakeLink("other.lock", "user/.launcher-link.lock");
    MakeFile("user/.launcher-0123456789abcdef.lock", "", 0600);
    const platform::InstanceLock lock("user/.launcher-fedcba9876543210.lock");
    const auto runs = [](const char* executable) {
        return platform::SingleInstance("user", executable).runsElsewhere();
    };
    {
        const platform::SingleInstance instance("user", "/copy");
        EXPECT_FALSE(instance.runsElsewhere());
        EXPECT_TRUE(runs("/copy"));
        EXPECT_FALSE(runs("/another copy"));
    }
    EXPECT_FALSE(runs("/copy"));
    EXPECT_EQ(Tree("user"), (FileTree{{"other.lock", "file 0644: "},
                                      {".launcher-link.lock", "link: other.lock"},
                                      {".launcher-fedcba9876543210.lock", "file 0600: "}}));
}

// Another user may already have created something at the folder's path.
TEST(PrivateFolder, BelongsToNobodyElse) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can create another user's folder";
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
    const SmallDisk sessions("/run/user", "64k");
    ASSERT_TRUE(sessions.mounted());
    const std::string session = "/run/user/65534";
    MakeFolder(session);
    ASSERT_EQ(chown(session.c_str(), 65534, 65534), 0);
    for (const auto& [mode, folder] : {std::pair(0700, session + "/" + name), {0770, ""}}) {
        ASSERT_EQ(chmod(session.c_str(), static_cast<mode_t>(mode)), 0);
        const AsNobody nobody;
        EXPECT_EQ(platform::PrivateFolder(name.c_str(), 0), folder);
    }
}

TEST(ProcessInfo, DescribesThisProcess) {
    const platform::ProcessInfo info = platform::DescribeProcess(getpid());
    EXPECT_EQ(info.executable, fs::read_symlink("/proc/self/exe"));
    EXPECT_EQ(info.folder, fs::current_path());
    EXPECT_NEAR(double(info.started), double(std::time(nullptr)), 3);
    EXPECT_EQ(platform::DescribeProcess(1 << 30).started, 0) << "no process has such an id";
}

}  // namespace
