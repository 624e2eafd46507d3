#ifndef TESTS_SUPPORT_FOLDER_TEST_H
#define TESTS_SUPPORT_FOLDER_TEST_H

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cstring>
#include <string>

#include "tests/support/scenario.h"

inline mode_t ModeOf(const std::string& path) {
    struct stat status;
    return lstat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

// Expects this result, and that one line with this text is logged.
inline void ExpectLogged(int result, const std::string& message,
                         const std::function<int()>& operate) {
    const std::string log = CaptureStderr([&] { EXPECT_EQ(operate(), result) << message; });
    EXPECT_TRUE(HasOneLine(log, message)) << log;
}

// Runs a test in a temporary folder, which every user can write to. Its subfolder "kinds" has one
// object of each kind, but no devices.
class FolderTest : public testing::Test {
  protected:
    explicit FolderTest(const std::string& parent = "/tmp") : folder_(parent) {
        umask(022);
        EXPECT_EQ(chmod(folder_.path().c_str(), 0777), 0);
        EXPECT_EQ(chdir(folder_.path().c_str()), 0);
        makeKinds();
    }

    void TearDown() override { EXPECT_EQ(chdir("/"), 0); }

    static void makeKinds() {
        MakeFile("kinds/file", "12345");
        MakeFolder("kinds/folder");
        MakeLink("file", "kinds/link to file");
        MakeLink("folder", "kinds/link to folder");
        MakeLink("nowhere", "kinds/dangling");
        MakeLink("loop", "kinds/loop");
        mkfifo("kinds/pipe", 0600);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strcpy(address.sun_path, "kinds/socket");
        const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
        bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address);
        close(fd);
    }

    Folder folder_;
    Folder other_volume_{Exists("/dev/shm") ? "/dev/shm" : "/tmp"};
};

#endif
