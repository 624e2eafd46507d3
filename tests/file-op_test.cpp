#include "lib/libclient/file-op.h"

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

#include "lib/liblogger/log.h"
#include "tests/support/scenario.h"

namespace {

ustring U(const std::string& text) {
    return ustring(text);
}

mode_t ModeOf(const std::string& path) {
    struct stat status;
    return stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

// A folder with one of each kind of object.
class FileOpTest : public testing::Test {
  protected:
    FileOpTest() {
        umask(022);
        MakeFile(kinds_ / "file", "12345");
        MakeFolder(kinds_ / "folder");
        MakeLink("file", kinds_ / "link to file");
        MakeLink("folder", kinds_ / "link to folder");
        MakeLink("nowhere", kinds_ / "dangling");
        MakeLink("loop", kinds_ / "loop");
        mkfifo((kinds_ / "pipe").c_str(), 0600);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::strncpy(address.sun_path, (kinds_ / "socket").c_str(), sizeof address.sun_path - 1);
        const int fd = socket(AF_UNIX, SOCK_STREAM, 0);
        bind(fd, reinterpret_cast<sockaddr*>(&address), sizeof address);
        close(fd);
    }

    Folder kinds_;
    Folder folder_;
    Folder other_volume_{"/dev/shm"};
};

TEST_F(FileOpTest, DescribesEveryKind) {
    const std::vector<std::pair<const char*, int>> cases = {
        {"file", FILE_TYPE_REG},           {"folder", FILE_TYPE_DIR},
        {"link to file", FILE_TYPE_LNK},   {"link to folder", FILE_TYPE_LNK},
        {"dangling", FILE_TYPE_LNK},       {"loop", FILE_TYPE_LNK},
        {"pipe", FILE_TYPE_FIFO},          {"socket", FILE_TYPE_SOCK},
        {"../../dev/null", FILE_TYPE_DEV}, {"missing", FILE_TYPE_REG}};
    _FILE_INFO_tag info;
    for (const auto& [name, type] : cases) {
        ASSERT_EQ(GetFileInfo(U(kinds_ / name), info), 0) << name;
        EXPECT_EQ(info.type, type) << name;
        EXPECT_EQ(info.exists, std::string(name) != "missing") << name;
    }
    EXPECT_EQ(info.path, kinds_ / "missing");
    EXPECT_NEAR(double(info.mtime), double(time(nullptr)), 2);
    EXPECT_EQ(info.size + info.uid + info.gid + info.mode, 0);
    ASSERT_EQ(GetFileInfo(U(kinds_ / "link to folder/../file"), info), 0);
    EXPECT_EQ(info.path, kinds_ / "file");
    EXPECT_EQ(info.size, 5);
    EXPECT_EQ(info.mode, S_IFREG | 0644u);
    EXPECT_EQ(info.uid, geteuid());
    EXPECT_NEAR(double(info.mtime), double(time(nullptr)), 5);
    EXPECT_EQ(GetFileInfo(U(kinds_ / "file/below"), info), -1);
    EXPECT_EQ(GetFileInfo(U(kinds_ / "loop/below"), info), -1);
}

TEST_F(FileOpTest, ComparesInfoRecords) {
    _FILE_INFO_tag a;
    _FILE_INFO_tag b;
    a.uid = 1;
    b.mode = 2;
    EXPECT_TRUE(a == b);
    b.alt_path = "x";
    EXPECT_TRUE(a != b);
}

TEST_F(FileOpTest, KnowsWhatExists) {
    const struct {
        std::string path;
        bool exists;
        bool exists_exactly;
    } cases[] = {{kinds_ / "file", true, true},
                 {kinds_ / "link to file", true, false},
                 {kinds_ / "dangling", false, false},
                 {kinds_ / "./file", true, false},
                 {kinds_ / "missing", false, false}};
    for (const auto& row : cases) {
        _FILE_INFO_tag info;
        info.size = 77;
        EXPECT_EQ(IsFileExist(U(row.path), false), row.exists) << row.path;
        EXPECT_EQ(IsFileExist(U(row.path), true), row.exists_exactly) << row.path;
        EXPECT_EQ(FSStat(U(row.path), info, true), 0) << row.path;
        EXPECT_EQ(info.exists, row.exists_exactly) << row.path;
        EXPECT_EQ(info.size == 77, !row.exists_exactly) << row.path;
    }
    _FILE_INFO_tag info;
    EXPECT_FALSE(IsFileExist("", false));
    MakeFile(kinds_ / "\xC3\xA9");
    EXPECT_TRUE(IsFileExist(U(kinds_ / "e\xCC\x81"), true)) << "looked up in its NFC form";
    EXPECT_EQ(FSStat("", info, false), -1);
    EXPECT_EQ(FSStat(U(kinds_ / "link to folder"), info, false), 0);
    EXPECT_EQ(info.type, FILE_TYPE_LNK);
    ustring path = U(kinds_ / "link to file");
    EXPECT_EQ(FSGetRealPath(path), 0);
    EXPECT_EQ(path, kinds_ / "file");
    path = U(kinds_ / "missing");
    EXPECT_EQ(FSGetRealPath(path), -1);
    EXPECT_EQ(path, kinds_ / "missing");
}

TEST_F(FileOpTest, CopiesBytes) {
    const std::string big(40 * 1024 * 1024, 'b');
    for (const std::string& content : {std::string(), std::string("text"), big}) {
        MakeFile(folder_ / "src", content, 0600);
        ASSERT_EQ(FSCopy(U(folder_ / "src"), U(folder_ / "dst"), false), 0);
        EXPECT_TRUE(ReadFile(folder_ / "dst") == content);
    }
    EXPECT_EQ(ModeOf(folder_ / "dst"), 0644u) << "a new file's, not the source's";
    MakeFile(folder_ / "dst", std::string(1000, 'o'), 0640);
    MakeFile(folder_ / "src", "short");
    EXPECT_EQ(FSCopy(U(folder_ / "src"), U(folder_ / "dst"), true), 0);
    EXPECT_EQ(Tree(folder_.path()), (FileTree{{"dst", "file 0640: short"}}));
}

TEST_F(FileOpTest, SaysWhyItCannotCopy) {
    const struct {
        std::string from;
        std::string to;
        int result;
        std::string message;
    } cases[] = {{folder_ / "missing", folder_ / "dst", -1,
                  "open(" + folder_ / "missing" + "): No such file or directory (2)"},
                 {kinds_ / "file", folder_ / "no/dst", -1, "open(" + folder_ / "no/dst"},
                 {kinds_.path(), folder_ / "dst", -1, "read: Is a directory (21)"},
                 {kinds_ / "file", kinds_ / "link to file", -1, "Invalid argument (22)"},
                 {kinds_ / "file", "/dev/full", -2, "write: No space left on device (28)"}};
    for (const auto& row : cases) {
        const std::string log = CaptureStderr(
            [&] { EXPECT_EQ(FSCopy(U(row.from), U(row.to), true), row.result) << row.to; });
        EXPECT_TRUE(HasOneLine(log, "CopyFile: ") && HasOneLine(log, row.message)) << log;
    }
    EXPECT_EQ(ReadFile(kinds_ / "file"), "12345");
}

TEST_F(FileOpTest, AFullDiskIsTold) {
    const SmallDisk disk(folder_ / "disk", "64k");
    if (!disk.mounted()) {
        GTEST_SKIP() << "this user may not mount a small disk";
    }
    MakeFile(folder_ / "tree/big", std::string(100000, 'x'));
    EXPECT_EQ(FSCopy(U(folder_ / "tree/big"), U(folder_ / "disk/big"), true), -2);
    EXPECT_TRUE(Exists(folder_ / "disk/big")) << "what was written is left";
    EXPECT_EQ(FSRename(U(folder_ / "tree/big"), U(folder_ / "disk/file"), false), -3);
    EXPECT_EQ(FSRename(U(folder_ / "tree"), U(folder_ / "disk/tree"), false), -3);
    EXPECT_EQ(ReadFile(folder_ / "tree/big").size(), 100000u);
}

TEST_F(FileOpTest, MovesWithinAVolume) {
    MakeFile(folder_ / "b", "old");
    MakeFile(folder_ / "full/file");
    const std::string longest(255, 'n');
    const struct {
        std::string from;
        std::string to;
        bool exact;
        int result;
    } cases[] = {{"", folder_ / "x", false, -1},
                 {kinds_ / "file", "", false, -1},
                 {folder_ / "missing", folder_ / "x", false, -2},
                 {kinds_ / "dangling", folder_ / "x", false, -2},
                 {kinds_ / "link to file", folder_ / "x", true, -2},
                 {kinds_ / "folder", folder_ / "full", false, -3},
                 {kinds_ / "folder", kinds_ / "folder/inside", false, -3},
                 {kinds_ / "file", folder_ / (longest + "n"), false, -100},
                 {kinds_ / "file", folder_ / "b", true, 0},
                 {folder_ / "b", folder_ / "B", false, 0},
                 {folder_ / "B", folder_ / longest, false, 0}};
    for (const auto& row : cases) {
        EXPECT_EQ(FSRename(U(row.from), U(row.to), row.exact), row.result)
            << row.from << " to " << row.to;
    }
    EXPECT_EQ(Tree(folder_.path()), (FileTree{{"full", "folder"},
                                              {"full/file", "file 0644: "},
                                              {longest, "file 0644: 12345"}}));
}

TEST_F(FileOpTest, MovesTreesAcrossVolumes) {
    MakeFile(folder_ / "tree/a/b/file", "new", 0600);
    MakeFile(folder_ / "tree/top", "top");
    MakeFolder(folder_ / "tree/empty");
    MakeFile(other_volume_ / "tree/a/kept", "kept");
    MakeFile(other_volume_ / "tree/a/b/file", "old");
    EXPECT_EQ(FSRename(U(folder_ / "tree"), U(other_volume_ / "tree"), true), 0);
    EXPECT_FALSE(Exists(folder_ / "tree"));
    EXPECT_EQ(Tree(other_volume_.path()), (FileTree{{"tree", "folder"},
                                                    {"tree/a", "folder"},
                                                    {"tree/a/b", "folder"},
                                                    {"tree/a/b/file", "file 0644: new"},
                                                    {"tree/a/kept", "file 0644: kept"},
                                                    {"tree/empty", "folder"},
                                                    {"tree/top", "file 0644: top"}}));
    EXPECT_EQ(FSRename(U(other_volume_ / "tree/top"), U(folder_ / "file"), false), 0);
    EXPECT_EQ(Tree(folder_.path()), (FileTree{{"file", "file 0644: top"}}));
}

TEST_F(FileOpTest, WhatCannotMoveAcrossVolumesStaysBehind) {
    EXPECT_EQ(FSRename(U(kinds_ / "link to file"), U(other_volume_ / "x"), false), 0);
    EXPECT_EQ(FSRename(U(kinds_ / "pipe"), U(other_volume_ / "x"), false), 0);
    EXPECT_FALSE(Exists(other_volume_ / "x"));
    EXPECT_EQ(FSRename(U(kinds_.path()), U(other_volume_ / "kinds"), false), -3);
    EXPECT_TRUE(Exists(kinds_ / "link to file") && Exists(kinds_ / "pipe"));

    MakeFile(folder_ / "tree/name/file");
    MakeFile(other_volume_ / "tree/name", "a file where a folder goes");
    const std::string log = CaptureStderr(
        [&] { EXPECT_EQ(FSRename(U(folder_ / "tree"), U(other_volume_ / "tree"), false), -3); });
    EXPECT_TRUE(HasOneLine(log, "is not directory '" + other_volume_ / "tree/name" + "' (1)"))
        << log;
    EXPECT_TRUE(Exists(folder_ / "tree/name/file"));
}

TEST_F(FileOpTest, MakesFolders) {
    const struct {
        std::string path;
        bool parents;
        int result;
        std::string message;
    } cases[] = {{"", true, -1, ""},
                 {folder_ / "a/b/c", true, 0, ""},
                 {folder_ / "a/b/c", false, 0, ""},
                 {folder_ / "x/y", false, -2, ""},
                 {folder_ / std::string(256, 'n'), true, -1, "Failed to to file info"},
                 {kinds_ / "link to folder", true, -1, "is not directory"},
                 {kinds_ / "dangling", true, -1, "is not directory"},
                 {kinds_ / "file", true, -1,
                  "FSMKDir: Create a folder but local file system is not directory '" +
                      kinds_ / "file" + "' (1)"},
                 {kinds_ / "file/below", true, -1,
                  "FSMKDir: Failed to to file info '" + kinds_ / "file/below'"}};
    for (const auto& row : cases) {
        const std::string log = CaptureStderr(
            [&] { EXPECT_EQ(FSMKDir(U(row.path), row.parents), row.result) << row.path; });
        EXPECT_EQ(HasOneLine(log, row.message), !row.message.empty()) << row.path << log;
    }
}

TEST_F(FileOpTest, MakesFoldersStepByStep) {
    MakeFile(folder_ / "file");
    MakeLink("nowhere", folder_ / "dangling");
    MakeFolder(folder_ / "closed");
    chmod((folder_ / "closed").c_str(), 0);
    const struct {
        std::string path;
        bool force;
        std::uint16_t mode;
        int error;
        const char* rest;     // of the path, where it ended
        const char* checked;  // a folder that was made then, and the mode that it has
        mode_t checked_mode;
    } cases[] = {{"a/b/c/", false, 0xFFFF, 0, "/", "a/b", 0755},
                 {folder_ / "m//n", false, 01777, 0, "", "m/n", 01777},
                 {"file/x/y", false, 0xFFFF, ENOTDIR, "/x/y", "file", 0644},
                 {"file", false, 0700, EEXIST, "", "file", 0644},
                 {"file/", false, 0xFFFF, EEXIST, "/", "file", 0644},
                 {"file/x", true, 0700, 0, "", "file/x", 0700},
                 {kinds_ / "link to folder/x", false, 0xFFFF, 0, "", ".", 0777},
                 {"dangling/x", false, 0xFFFF, EEXIST, "/x", ".", 0777},
                 {"closed/x", false, 0700, EACCES, "", "closed", 0},
                 {"/", false, 0xFFFF, 0, "", ".", 0777},
                 {"single", false, 0xFFFF, 0, "", "single", 0755}};
    ASSERT_EQ(chdir(folder_.path().c_str()), 0);
    chmod(folder_.path().c_str(), 0777);
    chmod((kinds_ / "folder").c_str(), 0777);
    for (const auto& row : cases) {
        SCOPED_TRACE(row.path);
        const ustring path = U(row.path);
        char* end = nullptr;
        const AsNobody nobody;
        errno = 0;
        EXPECT_EQ(FSMKDirP(path, &end, row.force, row.mode), row.error == 0 ? 0 : -1);
        EXPECT_TRUE(row.error == 0 || errno == row.error) << errno;
        EXPECT_STREQ(end, row.rest);
        EXPECT_EQ(ModeOf(folder_ / row.checked), row.checked_mode);
    }
    EXPECT_EQ(FSMKDirP("", nullptr, false, 0xFFFF), -1);
    EXPECT_EQ(umask(022), 022u) << "as before";
}

TEST_F(FileOpTest, GivesFoldersToTheOwner) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root may give things away";
    }
    FSInitialize(12, 0xFFFFFFFF);
    EXPECT_EQ(FSMKDir(U(folder_ / "a/b"), true), 0);
    FSInitialize(0xFFFFFFFF, 34);
    EXPECT_EQ(FSChown(U(folder_ / "a/b")), 0);
    EXPECT_EQ(FSChown("/nowhere/at all"), -1);
    EXPECT_EQ(errno, ENOENT);
    FSInitialize(0xFFFFFFFF, 0xFFFFFFFF);
    _FILE_INFO_tag info;
    ASSERT_EQ(GetFileInfo(U(folder_ / "a/b"), info), 0);
    EXPECT_EQ(info.uid, 12u);
    EXPECT_EQ(info.gid, 34u);
    ASSERT_EQ(GetFileInfo(U(folder_ / "a"), info), 0);
    EXPECT_EQ(info.uid, 12u);
}

TEST_F(FileOpTest, RemovesFilesLinksAndTrees) {
    EXPECT_EQ(FSRemove("", false), -1);
    EXPECT_EQ(FSRemove(U(folder_ / "missing"), false), 0);
    EXPECT_EQ(FSRemove(U(kinds_ / "file/below"), false), -1);
    MakeFile(folder_ / "target/kept");
    MakeLink(folder_ / "target", kinds_ / "folder/deep/link");
    EXPECT_EQ(FSRemove(U(kinds_ / "link to file"), false), 0);
    EXPECT_TRUE(Exists(kinds_ / "file"));
    EXPECT_EQ(FSRemove(U(kinds_.path()), false), 0);
    EXPECT_FALSE(Exists(kinds_.path()));
    EXPECT_TRUE(Exists(folder_ / "target/kept"));
}

TEST_F(FileOpTest, LeavesWhatItMayNotOpen) {
    MakeFile(folder_ / "tree/closed/file");
    chmod((folder_ / "tree").c_str(), 0777);
    chmod((folder_ / "tree/closed").c_str(), 0);
    {
        const AsNobody nobody;
        EXPECT_EQ(FSRemove(U(folder_ / "tree/closed"), false), 0);
        EXPECT_EQ(FSRemove(U(folder_ / "tree"), false), -3);
        EXPECT_TRUE(isFileLocked(U(folder_ / "tree/closed/file"), F_OK));
        DIR_HANDLE handle;
        EXPECT_EQ(FSOpenDir(U(folder_ / "tree/closed"), 0, handle), -1);
    }
    chmod((folder_ / "tree/closed").c_str(), 0755);
    EXPECT_FALSE(isFileLocked(U(folder_ / "missing"), R_OK));
    EXPECT_FALSE(isFileLocked(U(folder_ / "tree"), R_OK));
    EXPECT_TRUE(Exists(folder_ / "tree/closed/file"));
}

TEST_F(FileOpTest, NeitherDepthNorWidthHasALimit) {
    const FewDescriptors few;
    MakeDeepTree(folder_ / "tree", 10000);
    EXPECT_EQ(FSRename(U(folder_ / "tree"), U(other_volume_ / "tree"), false), 0);
    EXPECT_FALSE(Exists(folder_ / "tree"));
    for (int i = 0; i < 5000; ++i) {
        MakeFile(other_volume_ / "tree/wide/" + std::to_string(i));
    }
    EXPECT_EQ(FSRemove(U(other_volume_ / "tree"), false), 0);
    EXPECT_FALSE(Exists(other_volume_ / "tree"));
}

TEST_F(FileOpTest, ListsFolders) {
    for (const int flags : {0, int(DIR_OPEN_STAT)}) {
        SCOPED_TRACE(flags);
        DIR_HANDLE handle;
        ASSERT_EQ(FSOpenDir(U(kinds_.path()), flags, handle), 0);
        EXPECT_EQ(handle.path, kinds_.path());
        std::map<std::string, DIR_ENTRY> entries;
        DIR_ENTRY entry;
        while (FSReadDir(handle, entry) > 0) {
            entries[entry.name.c_str()] = entry;
        }
        EXPECT_EQ(FSReadDir(handle, entry), 0);
        FSCloseDir(handle);
        FSCloseDir(handle);
        EXPECT_TRUE(handle.path.empty());
        EXPECT_EQ(FSReadDir(handle, entry), -1);

        EXPECT_EQ(entries.size(), 10u);
        const std::pair<const char*, int> types[] = {
            {".", FILE_TYPE_DIR},        {"..", FILE_TYPE_DIR},    {"file", FILE_TYPE_REG},
            {"dangling", FILE_TYPE_LNK}, {"pipe", FILE_TYPE_FIFO}, {"socket", FILE_TYPE_SOCK}};
        for (const auto& [name, type] : types) {
            EXPECT_EQ(entries[name].type, type) << name;
        }
        const bool looked_up = flags == DIR_OPEN_STAT;
        EXPECT_EQ(entries["file"].size, looked_up ? 5 : 0);
        EXPECT_NEAR(double(entries["file"].mtime), looked_up ? double(time(nullptr)) : 0, 5);
        EXPECT_EQ(entries["dangling"].size + entries["dangling"].mtime, 0);
    }
}

TEST_F(FileOpTest, MakesTemporaryFiles) {
    ustring path("unchanged");
    EXPECT_EQ(FSMktemp(U(folder_ / "missing"), path), -1);
    EXPECT_EQ(path, "unchanged");
    ASSERT_EQ(FSMktemp(U(folder_.path()), path), 0);
    EXPECT_EQ(path.size(), folder_.path().size() + 7);
    EXPECT_EQ(ModeOf(path.c_str()), 0644u);
    ustring fresh;
    EXPECT_EQ(FSCreateTempPath(U(folder_.path()), fresh), 0);
    EXPECT_EQ(fresh.size(), folder_.path().size() + 9);
    EXPECT_FALSE(Exists(fresh.c_str()));
    EXPECT_EQ(FSUTime(path, 1000, 2000), 0);
    _FILE_INFO_tag info;
    ASSERT_EQ(GetFileInfo(path, info), 0);
    EXPECT_TRUE(FSTimeEqual(info.mtime, 2000));
    EXPECT_FALSE(FSTimeEqual(info.mtime, 2001));
    EXPECT_EQ(FSUTime(fresh, 1, 2), -1);
    EXPECT_EQ(FSInit(""), 0);
}

TEST_F(FileOpTest, KnowsVolumes) {
    EXPECT_FALSE(isMountPoint(U(folder_.path())));
    EXPECT_FALSE(IsMSDOS(U(folder_.path())));
    const std::string log = CaptureStderr([] {
        EXPECT_FALSE(isMountPoint("/nowhere"));
        EXPECT_FALSE(IsMSDOS("/nowhere"));
    });
    EXPECT_TRUE(
        HasOneLine(log, "isMountPoint: Failed to get file system info '/nowhere'. No such"));
    EXPECT_TRUE(
        HasOneLine(log, "IsSupportLargeFile: Failed to get file system info '/nowhere'. No such"));
}

}  // namespace
