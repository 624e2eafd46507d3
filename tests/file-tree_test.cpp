// Tests the file operations on whole trees.

#include <cstdio>
#include <regex>

#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "tests/support/folder-test.h"
#include "tests/support/system.h"

namespace {

using FileTreeTest = FolderTest;

int (*const kRemovals[])(const ustring& path) = {
    [](const ustring& path) { return FSRemove(path, false); }, FSRemoveOwnTree};

TEST_F(FileTreeTest, ReportsAFullDisk) {
    const SmallDisk disk("disk", "64k");
    if (!disk.mounted()) {
        GTEST_SKIP() << "this user can't mount a small disk";
    }
    MakeFile("tree/big", std::string(100000, 'x'));
    ExpectLogged(-2, "CopyFile: write: No space left on device (28)",
                 [] { return FSCopy("tree/big", "disk/big", true); });
    EXPECT_TRUE(Exists("disk/big")) << "the incomplete copy must be kept";
    EXPECT_EQ(FSRename("tree/big", "disk/file", false), -3);
    EXPECT_EQ(FSRename("tree", "disk/tree", false), -3);
    EXPECT_EQ(ReadFile("tree/big").size(), 100000u);
}

class OtherVolumeTest : public FolderTest {
  protected:
    void SetUp() override {
        if (!Exists("/dev/shm")) {
            GTEST_SKIP() << "there is no other volume";
        }
    }
};

TEST_F(OtherVolumeTest, MovesATreeAlsoIntoFoldersThatCannotBeListed) {
    ASSERT_EQ(chmod(other_volume_.path().c_str(), 0777), 0);
    const std::string dst = other_volume_ / "tree";
    const AsNobody nobody;
    MakeFile("tree/a/b/file", "new", 0600);
    MakeFile("tree/top", "top");
    MakeFolder("tree/empty");
    MakeFile(dst + "/a/kept", "kept");
    MakeFile(dst + "/a/b/file", "old");
    chmod((dst + "/a").c_str(), 0333);
    chmod(dst.c_str(), 0333);
    EXPECT_EQ(FSRename(folder_ / "tree", ustring(dst), true), 0);
    EXPECT_FALSE(Exists("tree"));
    chmod(dst.c_str(), 0755);
    chmod((dst + "/a").c_str(), 0755);
    const FileTree merged = {{"a", "folder"},
                             {"a/b", "folder"},
                             {"a/b/file", "file 0644: new"},
                             {"a/kept", "file 0644: kept"},
                             {"empty", "folder"},
                             {"top", "file 0644: top"}};
    EXPECT_EQ(Tree(dst), merged);
    EXPECT_EQ(FSRename(ustring(dst + "/top"), "top", false), 0);
    EXPECT_EQ(ReadFile("top"), "top");
    EXPECT_FALSE(Exists(dst + "/top"));
}

// At level 7, an operation logs what looking up each object by its path would log, in that order.
TEST_F(OtherVolumeTest, LogsEachLookUpWhenToldTo) {
    const auto log_of = [&](const std::string& threshold, const std::function<int()>& operation) {
        MakeFile("levels", "file_op_debug=" + threshold + "\n");
        const std::string log = CaptureStderr([&] {
            Logger::Initialize(Logger::TYPE_STDERR, "", "levels", 0);
            EXPECT_EQ(operation(), 0);
        });
        return std::regex_replace(log, std::regex(R"(.*file-op\(\d+\): )"), "");
    };
    const auto info = [](const std::string& path) {
        return " org path [" + path + "]\n get full path [" + path + "]\n";
    };
    const auto stat = [&](const std::string& path) {
        return "Input file path = [" + path + "].\nFSRefMakePath outTargetPath path = [" + path +
               "].\nFile exist.\n" + info(path);
    };
    const std::string src = folder_ / "tree";
    const std::string dst = other_volume_ / "tree";
    MakeFile("tree/a/b/file");
    MakeFolder(dst + "/a");
    EXPECT_EQ(log_of("7", [&] { return FSRename(src.c_str(), dst.c_str(), true); }),
              stat(src) + info(dst) + stat(src + "/a") + info(dst + "/a") + stat(src + "/a/b") +
                  stat(src + "/a/b/file"));
    for (const auto remove : kRemovals) {
        MakeFile(dst + "/a/b/file");
        EXPECT_EQ(log_of("7", [&] { return remove(dst.c_str()); }),
                  info(dst) + info(dst + "/a") + info(dst + "/a/b") + info(dst + "/a/b/file"));
    }
    MakeFile("tree/a/file");
    EXPECT_EQ(log_of("4", [&] { return FSRemove(src.c_str(), false); }), "");
}

TEST_F(OtherVolumeTest, WhatCannotMoveStaysBehind) {
    EXPECT_EQ(FSRename("kinds/link to file", other_volume_ / "x", false), 0);
    EXPECT_EQ(FSRename("kinds/pipe", other_volume_ / "x", false), 0);
    EXPECT_FALSE(Exists(other_volume_ / "x"));
    EXPECT_EQ(FSRename("kinds", other_volume_ / "kinds", false), -3);
    EXPECT_TRUE(Exists("kinds/link to file") && Exists("kinds/pipe"));
    MakeFile("left/file");
    mkfifo("left/pipe", 0600);
    EXPECT_EQ(FSRename("left", other_volume_ / "left", false), -3);
    EXPECT_TRUE(Exists("left/pipe"));

    MakeFile("tree/name/file");
    MakeFile(other_volume_ / "tree/name", "a file where a folder goes");
    ExpectLogged(-3, "is not directory '" + other_volume_ / "tree/name" + "' (1)",
                 [&] { return FSRename("tree", other_volume_ / "tree", false); });
    EXPECT_TRUE(Exists("tree/name/file"));
}

TEST_F(FileTreeTest, RemovesFilesLinksAndTrees) {
    MakeFile("target/kept");
    for (const auto remove : kRemovals) {
        MakeLink("../../../target", "kinds/folder/deep/link");
        EXPECT_EQ(remove(""), -1);
        EXPECT_EQ(remove("missing"), 0);
        EXPECT_EQ(remove("kinds/file/below"), -1);
        EXPECT_EQ(remove("kinds/link to file"), 0);
        EXPECT_TRUE(Exists("kinds/file") && !Exists("kinds/link to file"));
        EXPECT_EQ(remove("kinds"), 0);
        EXPECT_FALSE(Exists("kinds"));
        EXPECT_TRUE(Exists("target/kept"));
        makeKinds();
    }
}

TEST_F(FileTreeTest, LeavesWhatItMayNotOpenOrRemove) {
    MakeFile("tree/closed/file");
    MakeFile("fixed/file");
    chmod("tree", 0777);
    chmod("tree/closed", 0);
    chmod("fixed", 0555);
    chmod(other_volume_.path().c_str(), 0777);
    {
        const AsNobody nobody;
        EXPECT_EQ(FSRemove("tree/closed", false), 0);
        EXPECT_EQ(FSRemove("tree", false), -3);
        EXPECT_EQ(FSRemove("fixed/file", false), -3);
        EXPECT_EQ(FSRemoveOwnTree("fixed/file"), -3);
        EXPECT_EQ(FSRemove("fixed", false), -3);
        EXPECT_EQ(FSRename("fixed/file", other_volume_ / "file", false), -3);
        EXPECT_TRUE(isFileLocked("tree/closed/file", F_OK));
        DIR_HANDLE handle;
        EXPECT_EQ(FSOpenDir("tree/closed", 0, handle), -1);
    }
    EXPECT_EQ(ModeOf("."), 0777u);
    EXPECT_EQ(ModeOf("fixed"), 0555u);
    chmod("tree/closed", 0755);
    EXPECT_FALSE(isFileLocked("missing", R_OK));
    EXPECT_FALSE(isFileLocked("tree", R_OK));
    EXPECT_TRUE(Exists("tree/closed/file") && Exists("fixed/file"));
}

TEST_F(FileTreeTest, NeitherDepthNorWidthHasALimit) {
    const FewDescriptors few;
    MakeDeepTree("tree", 3000);  // the path of the lowest folder exceeds PATH_MAX
    EXPECT_EQ(FSRename("tree", other_volume_ / "tree", false), 0);
    EXPECT_FALSE(Exists("tree"));
    for (int i = 0; i < 5000; ++i) {
        MakeFile(other_volume_ / "tree/wide/" + std::to_string(i));
    }
    EXPECT_EQ(FSRemove(other_volume_ / "tree", false), 0);
    EXPECT_FALSE(Exists(other_volume_ / "tree"));
}

// Renames a folder of the tree while a folder far below it is being copied.
class MovesAway : public FSCopyListener {
  public:
    void onFolder(const char*, const char*) override {
        EXPECT_TRUE(++folders != 25 || rename("tree/d/d/d", "moved") == 0);
    }
    void onInside(const char*, const char*) override {}
    void onMissing(const char*) override {}
    void onNoFolder(const char*) override {}
    void onUnlisted(const char*) override {}
    void onSpecial(const char*, std::int32_t) override {}
    void onFailure(const char*, const char* dst) override { failed.emplace_back(dst); }

    int folders = 0;
    std::vector<std::string> failed;
};

TEST_F(FileTreeTest, ACopyEndsWhereItsWayBackIsGone) {
    MakeDeepTree("tree", 30);
    MovesAway mover;
    ExpectLogged(-1, "CopyFile: open(tree/d/d/.): Stale file handle",
                 [&] { return FSCopyTree("tree", "copy", mover); });
    EXPECT_EQ(mover.failed, (std::vector<std::string>{"copy/d/d/d", "copy/d/d", "copy/d"}));
}

}  // namespace
