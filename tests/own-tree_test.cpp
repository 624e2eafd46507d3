// Removes and moves trees of this user in which folders deny their owner read, search or write
// permission.

#include <dirent.h>
#include <dlfcn.h>
#include <signal.h>
#include <sys/mount.h>

#include <filesystem>

#include "lib/libclient/file-op.h"
#include "tests/support/folder-test.h"
#include "tests/support/system.h"
#include "tests/support/traced-run.h"
#include "ui-client/launcher/move-entries.h"

namespace fs = std::filesystem;

namespace {

int reads_until_failure = 0;  // readdir() calls; 0: none fails

class OwnTreeTest : public FolderTest {
  protected:
    OwnTreeTest() : FolderTest("/dev/shm") {}  // in memory, where creating folders is fast

    // Creates a tree that belongs to the user that AsNobody switches to. The name of each folder in
    // it is the folder's mode. One folder is empty.
    static void makeClosedTree(const fs::path& path, mode_t top = 0755) {
        const AsNobody nobody;
        // From the bottom up: the modes of the upper ones deny access to the lower ones.
        const auto folders = {"555/555/1777", "555/555/555", "555/555",  "555/0/755", "555/0",
                              "555/575",      "555",         "444/0",    "444",       "333/660",
                              "333",          "0",           "1755/775", "1755"};
        for (const char* const folder : folders) {
            MakeFile(path / folder / "file", folder);
        }
        MakeFile(path / "file");
        MakeLink("555/file", path / "555/link");
        fs::remove(path / "0/file");
        for (const char* const folder : folders) {
            const auto mode = std::stoul(fs::path(folder).filename(), nullptr, 8);
            fs::permissions(path / folder, static_cast<fs::perms>(mode));
        }
        fs::permissions(path, static_cast<fs::perms>(top));
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
    MakeLink("../tree/1755", "way");
    EXPECT_EQ(FSRemoveOwnTree("way/"), 0);
    EXPECT_TRUE(!Exists("way") && Exists("tree/1755"));
    EXPECT_EQ(FSRemoveOwnTree("tree//"), 0);
    EXPECT_FALSE(Exists("tree"));
    EXPECT_EQ(ModeOf("outside"), 0u);
}

TEST_F(OwnTreeTest, LeavesOtherVolumesAndWhatItMayNotRemove) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can create objects of another user";
    }
    makeClosedTree("tree");
    MakeFile("tree/1755/another's/file");
    MakeFolder("tree/1755/another's empty");
    chmod("tree/1755/another's empty", 0700);
    MakeFile("elsewhere/file");
    MakeFolder("tree/555/bound");
    const SmallDisk disk("tree/555/disk", "64k");
    if (!disk.mounted()) {
        GTEST_SKIP() << "this user can't mount a small disk";
    }
    ASSERT_EQ(mount("elsewhere", "tree/555/bound", nullptr, MS_BIND, nullptr), 0);
    MakeFile("tree/555/disk/file");
    for (const char* const path : {"elsewhere", "tree/555/disk"}) {
        EXPECT_EQ(chown(path, 65534, 65534) + chmod(path, 0), 0);
    }
    {
        const AsNobody nobody;
        EXPECT_EQ(FSRemoveOwnTree("tree"), -3);
        EXPECT_EQ(ModeOf("tree/555/bound") + ModeOf("tree/555/disk"), 0u);
    }
    EXPECT_TRUE(Exists("tree/1755/another's/file"));
    EXPECT_EQ(Tree("tree").size(), 8u) << "three files and the folders above them";
    EXPECT_EQ(FSRemoveOwnTree("tree"), -3) << "even as root, which bypasses permissions";
    EXPECT_TRUE(Exists("tree/555/bound/file") && Exists("tree/555/disk/file"));
    EXPECT_EQ(Tree("tree").size(), 5u) << "two files and the folders above them";
    umount("tree/555/bound");
}

TEST_F(OwnTreeTest, ABrokenListingIsNotItsEnd) {
    for (const int failing : {1, 2, 5}) {
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
TEST_F(OwnTreeTest, AMoveCanBeKilledAnywhere) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can look into another user's folders";
    }
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
    for (const auto& [top, back] :
         {std::pair(0555u, false), {0555u, true}, {0755u, true}, {0u, true}}) {
        int end = 1000 + SIGKILL;
        for (int change = 1; end == 1000 + SIGKILL; ++change) {
            SCOPED_TRACE("killed at " + std::to_string(change) + (back ? ", back" : ", on"));
            makeClosedTree("from", top);
            const FileTree tree = Tree("from", true);
            end = move_killed_at(change);
            const auto [start, goal] = back ? std::pair("to", "from") : std::pair("from", "to");
            {
                const AsNobody nobody;
                EXPECT_TRUE(Exists("to") || MakeFolderLike("from", "to"));
                EXPECT_TRUE(MoveEntries(start, goal));
            }
            const FileTree moved = Tree(goal, true);
            EXPECT_EQ(Tree(start, true), (FileTree{{"", moved.at("")}}));
            EXPECT_EQ(moved.size(), tree.size());
            int unlocked = 0;
            for (const auto& [name, folder] : moved) {
                if (folder != tree.at(name)) {
                    const auto mode = std::stoul(tree.at(name).substr(7), nullptr, 8);  // "folder "
                    EXPECT_EQ(folder, DescribeFolder(static_cast<mode_t>(mode) | 0700)) << name;
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
