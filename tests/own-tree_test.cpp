// Removes and moves trees of this user in which folders deny their owner read, search or write
// permission.

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string>

#include "lib/libclient/file-op.h"
#include "tests/support/scenario.h"
#include "tests/support/system.h"
#include "tests/support/traced-run.h"
#include "ui-client/launcher/move-entries.h"

namespace fs = std::filesystem;

namespace {

int reads_until_failure = 0;  // readdir() calls; 0: none fails

mode_t ModeOf(const std::string& path) {
    struct stat status;
    return lstat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

class OwnTreeTest : public testing::Test {
  protected:
    OwnTreeTest() {
        umask(022);
        EXPECT_EQ(chmod(folder_.path().c_str(), 0777), 0);
        EXPECT_EQ(chdir(folder_.path().c_str()), 0);
    }

    // Creates a tree that belongs to the user that AsNobody switches to.
    static void makeClosedTree(const std::string& path, mode_t top = 0755) {
        const AsNobody nobody;
        const std::pair<const char*, mode_t> folders[] = {{"read-only/in read-only/in both", 0555},
                                                          {"read-only/in read-only/empty", 0777},
                                                          {"read-only/in read-only", 0555},
                                                          {"read-only/closed/open", 0755},
                                                          {"read-only/closed", 0},
                                                          {"read-only", 0555},
                                                          {"read-only/shared", 0575},
                                                          {"unsearchable/closed", 0},
                                                          {"unsearchable", 0444},
                                                          {"unreadable/unsearchable", 0660},
                                                          {"unreadable", 0333},
                                                          {"empty", 0},
                                                          {"open/group", 0775},
                                                          {"open", 01755},
                                                          {"", top}};
        for (const auto& [name, mode] : folders) {
            MakeFile(path + "/" + name + "/file", name);
        }
        unlink((path + "/empty/file").c_str());
        MakeLink("read-only/file", path + "/read-only/link");
        for (const auto& [name, mode] : folders) {
            ASSERT_EQ(chmod((path + "/" + name).c_str(), mode), 0);
        }
    }

    Folder folder_{"/dev/shm"};  // in memory, where creating folders is fast
};

// Tests that only root can set up or check.
class OthersTreeTest : public OwnTreeTest {
  protected:
    void SetUp() override {
        if (geteuid() != 0) {
            GTEST_SKIP() << "only root can create another user's folders and look into them";
        }
    }
};

TEST_F(OwnTreeTest, RemovesWhatItsOwnerMayNotChange) {
    MakeFile("outside/file");
    chmod("outside", 0);
    for (const mode_t top : {0755u, 0555u, 0444u, 0333u, 0u}) {
        makeClosedTree("tree", top);
        const AsNobody nobody;
        FSRemove("tree", false);
        EXPECT_TRUE(Exists("tree"));
        EXPECT_EQ(FSRemoveOwnTree("tree"), 0) << top;
        EXPECT_FALSE(Exists("tree")) << top;
    }
    makeClosedTree("tree");
    const AsNobody nobody;
    MakeLink("../outside", "tree/link to folder");
    MakeLink("../tree/open", "way");
    EXPECT_EQ(FSRemoveOwnTree("way/"), 0);
    EXPECT_TRUE(!Exists("way") && Exists("tree/open"));
    EXPECT_EQ(FSRemoveOwnTree("tree//"), 0);
    EXPECT_FALSE(Exists("tree"));
    EXPECT_EQ(ModeOf("outside"), 0u);
}

TEST_F(OwnTreeTest, RemovesOneObject) {
    MakeFile("kept");
    MakeFile("fixed/file");
    MakeLink("kept", "link");
    chmod("fixed", 0555);
    {
        const AsNobody nobody;
        EXPECT_EQ(FSRemoveOwnTree(""), -1);
        EXPECT_EQ(FSRemoveOwnTree("kept/below"), -1);
        EXPECT_EQ(FSRemoveOwnTree("missing"), 0);
        EXPECT_EQ(FSRemoveOwnTree("fixed/file"), -3) << "its folder must not be changed";
        EXPECT_EQ(FSRemoveOwnTree("link"), 0);
    }
    EXPECT_EQ(Tree(".", true), (FileTree{{"", "folder 0777"},
                                         {"fixed", "folder 0555"},
                                         {"fixed/file", "file 0644: "},
                                         {"kept", "file 0644: "}}));
}

TEST_F(OthersTreeTest, EntersNoOtherVolumeAndRemovesTheRest) {
    MakeFile("elsewhere/file");
    const SmallDisk disk("tree/closed/disk", "64k");
    MakeFolder("tree/closed/bound");
    if (!disk.mounted() ||
        mount("elsewhere", "tree/closed/bound", nullptr, MS_BIND, nullptr) != 0) {
        GTEST_SKIP() << "this user can't mount a small disk";
    }
    MakeFile("tree/closed/disk/file");
    MakeFile("tree/closed/removed/file");
    MakeFile("tree/removed");
    for (const char* const path :
         {"tree", "tree/closed", "tree/closed/removed", "elsewhere", "tree/closed/disk"}) {
        EXPECT_EQ(chown(path, 65534, 65534), 0);
        chmod(path, 0);
    }
    {
        const AsNobody nobody;
        EXPECT_EQ(FSRemoveOwnTree("tree"), -3);
        EXPECT_EQ(ModeOf("tree/closed/bound") + ModeOf("tree/closed/disk"), 0u);
    }
    EXPECT_EQ(FSRemoveOwnTree("tree"), -3) << "even as root, which bypasses permissions";
    EXPECT_EQ(Tree("tree"), (FileTree{{"closed", "folder"},
                                      {"closed/bound", "folder"},
                                      {"closed/bound/file", "file 0644: "},
                                      {"closed/disk", "folder"},
                                      {"closed/disk/file", "file 0644: "}}));
    umount("tree/closed/bound");
}

TEST_F(OthersTreeTest, GoesOnAfterWhatCannotBeRemoved) {
    makeClosedTree("tree");
    MakeFile("tree/open/another's/file");
    MakeFolder("tree/open/another's empty");
    chmod("tree/open/another's empty", 0700);
    const AsNobody nobody;
    EXPECT_EQ(FSRemoveOwnTree("tree"), -3);
    EXPECT_EQ(Tree("tree"), (FileTree{{"open", "folder"},
                                      {"open/another's", "folder"},
                                      {"open/another's/file", "file 0644: "}}));
}

TEST_F(OwnTreeTest, ABrokenListingIsNotItsEnd) {
    for (const int failing : {1, 2, 5}) {
        SCOPED_TRACE(failing);
        MakeFile("tree/a/file");
        MakeFile("tree/b/file");
        MakeFolder("moved");
        reads_until_failure = failing;
        const std::string log = CaptureStderr([] { EXPECT_FALSE(MoveEntries("tree", "moved")); });
        reads_until_failure = 0;
        EXPECT_TRUE(HasOneLine(log, "Failed to read directory 'tree'. Input/output error")) << log;
        EXPECT_TRUE(MoveEntries("tree", "moved"));
        EXPECT_EQ(Tree("moved").size(), 4u);
        reads_until_failure = failing;
        EXPECT_EQ(FSRemoveOwnTree("moved"), -3);
        reads_until_failure = 0;
        EXPECT_TRUE(Exists("moved"));
        EXPECT_EQ(FSRemoveOwnTree("moved"), 0);
    }
}

TEST_F(OwnTreeTest, NeitherDepthNorWidthHasALimit) {
    const AsNobody nobody;
    const FewDescriptors few;
    for (const mode_t mode : {0555u, 0u}) {
        MakeDeepTree("tree", 1000, mode);
        EXPECT_TRUE(MakeFolderLike("tree", "to") && MoveEntries("tree", "to"));
        EXPECT_EQ(ModeOf("to"), mode);
        EXPECT_TRUE(MoveEntries("to", "tree"));
        EXPECT_EQ(ModeOf("tree"), mode);
        EXPECT_EQ(FSRemoveOwnTree("tree") + FSRemoveOwnTree("to"), 0);
    }
}

TEST_F(OwnTreeTest, AMergeKeepsWhatOthersMayDo) {
    MakeFile("from/a/file");
    MakeFile("to/a/private");
    MakeFile("from/fixed/file");
    chmod("to/a", 0700);
    chmod("from/fixed", 0555);
    EXPECT_TRUE(MoveEntries("from", "to"));
    EXPECT_EQ(ModeOf("to/a"), 0700u);
    EXPECT_EQ(ModeOf("to/fixed"), 0555u);
    MakeFile("from/file");
    MakeFile("to/file/in its way");
    EXPECT_FALSE(MoveEntries("from", "to"));
    EXPECT_TRUE(Exists("from/file"));
}

// Kills a move at each system call that changes a file, then continues or reverses the move.
TEST_F(OthersTreeTest, AMoveCanBeKilledAnywhere) {
    const auto move_killed_at = [](int change) {
        const pid_t pid = fork();
        if (pid == 0) {
            BeTraced();
            const bool moved = setresuid(65534, 65534, 65534) == 0 &&
                               MakeFolderLike("from", "to") && MoveEntries("from", "to");
            _exit(moved ? 0 : 1);
        }
        TracedRun run;
        run.fault_at = change;
        run.follow(pid);
        return run.end;
    };
    const auto mode_of = [](const std::string& folder) {  // from its description by Tree()
        return static_cast<mode_t>(std::stoul(folder.substr(strlen("folder ")), nullptr, 8));
    };
    for (const auto& [top, back] :
         {std::pair(0555u, false), {0555u, true}, {0755u, true}, {0u, true}}) {
        int end = 1000 + SIGKILL;
        for (int change = 1; end == 1000 + SIGKILL; ++change) {
            SCOPED_TRACE("killed at " + std::to_string(change) + (back ? ", back" : ", on"));
            makeClosedTree("from", top);
            const FileTree tree = Tree("from", true);
            end = move_killed_at(change);
            {
                const AsNobody nobody;
                EXPECT_TRUE(Exists("to") || MakeFolderLike("from", "to"));
                EXPECT_TRUE(back ? MoveEntries("to", "from") : MoveEntries("from", "to"));
            }
            const FileTree moved = Tree(back ? "from" : "to", true);
            EXPECT_EQ(Tree(back ? "to" : "from", true), (FileTree{{"", moved.at("")}}));
            EXPECT_EQ(moved.size(), tree.size());
            int unlocked = 0;
            for (const auto& [name, description] : moved) {
                if (description != tree.at(name)) {
                    EXPECT_EQ(description, DescribeFolder(mode_of(tree.at(name)) | 0700u)) << name;
                    EXPECT_TRUE(++unlocked == 1 && end != 0) << name;
                }
            }
            fs::remove_all("from");
            fs::remove_all("to");
        }
        EXPECT_EQ(end, 0);
    }
}

}  // namespace

// Replaces the C library's readdir() and fails with EIO when reads_until_failure has counted down.
extern "C" dirent* readdir(DIR* stream) {
    static const auto next = reinterpret_cast<dirent* (*)(DIR*)>(dlsym(RTLD_NEXT, "readdir"));
    if (reads_until_failure > 0 && --reads_until_failure == 0) {
        errno = EIO;
        return nullptr;
    }
    return next(stream);
}
