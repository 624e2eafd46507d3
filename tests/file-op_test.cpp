#include "lib/libclient/file-op.h"

#include <cerrno>

#include "tests/support/folder-test.h"

namespace {

using FileOpTest = FolderTest;

// The objects that the fixture creates.
const std::map<std::string, int> kKinds = {
    {"file", FILE_TYPE_REG},           {"folder", FILE_TYPE_DIR},   {"link to file", FILE_TYPE_LNK},
    {"link to folder", FILE_TYPE_LNK}, {"dangling", FILE_TYPE_LNK}, {"loop", FILE_TYPE_LNK},
    {"pipe", FILE_TYPE_FIFO},          {"socket", FILE_TYPE_SOCK}};

TEST_F(FileOpTest, DescribesEveryKind) {
    _FILE_INFO_tag info;
    for (const auto& [name, type] : kKinds) {
        ASSERT_EQ(GetFileInfo("kinds/" + name, info), 0) << name;
        EXPECT_TRUE(info.exists) << name;
        EXPECT_EQ(info.type, type) << name;
    }
    ASSERT_EQ(GetFileInfo("/dev/null", info), 0);
    EXPECT_EQ(info.type, FILE_TYPE_DEV);
    ASSERT_EQ(GetFileInfo("missing", info), 0);
    EXPECT_NEAR(double(info.mtime), double(time(nullptr)), 2);
    EXPECT_EQ(info.uid + info.gid + info.mode, 0u);
    _FILE_INFO_tag missing{"missing", "", FILE_TYPE_REG, info.mtime};
    missing.mode = missing.uid = 7;  // these aren't compared
    EXPECT_TRUE(info == missing);
    missing.alt_path = "x";
    EXPECT_TRUE(info != missing);
    ASSERT_EQ(GetFileInfo("kinds/link to folder/../file", info), 0);
    EXPECT_EQ(info.path, folder_ / "kinds/file");
    EXPECT_EQ(info.size, 5);
    EXPECT_EQ(info.mode, S_IFREG | 0644u);
    EXPECT_EQ(info.uid, geteuid());
    EXPECT_NEAR(double(info.mtime), double(time(nullptr)), 5);
    EXPECT_EQ(GetFileInfo("kinds/file/below", info), -1);
    EXPECT_EQ(GetFileInfo("kinds/loop/below", info), -1);
}

TEST_F(FileOpTest, KnowsWhatExists) {
    enum { No, Inexactly, Exactly };
    const std::pair<const char*, int> cases[] = {{"file", Exactly},
                                                 {"./file", Inexactly},
                                                 {"link to file", Inexactly},
                                                 {"missing", No},
                                                 {"dangling", No}};
    _FILE_INFO_tag info;
    for (const auto& [name, exists] : cases) {
        const std::string path = folder_ / "kinds/" + name;
        info.size = 77;
        EXPECT_EQ(IsFileExist(path, false), exists != No) << path;
        EXPECT_EQ(IsFileExist(path, true), exists == Exactly) << path;
        EXPECT_EQ(FSStat(path, info, true), 0) << path;
        EXPECT_EQ(info.exists, exists == Exactly) << path;
        EXPECT_EQ(info.size == 77, exists != Exactly) << path;
    }
    MakeFile("\xC3\xA9");
    EXPECT_TRUE(IsFileExist(folder_ / "e\xCC\x81", true)) << "the path is converted to NFC";
    EXPECT_FALSE(IsFileExist("", false));
    EXPECT_EQ(FSStat("", info, false), -1);
    EXPECT_EQ(FSStat("kinds/link to folder", info, false), 0);
    EXPECT_EQ(info.type, FILE_TYPE_LNK);
    ustring path = "kinds/link to file";
    EXPECT_EQ(FSGetRealPath(path), 0);
    EXPECT_EQ(path, folder_ / "kinds/file");
    path = "kinds/missing";
    EXPECT_EQ(FSGetRealPath(path), -1);
    EXPECT_EQ(path, "kinds/missing");
}

TEST_F(FileOpTest, CopiesBytes) {
    for (const std::string& content : {std::string(), std::string(40 * 1024 * 1024, 'b')}) {
        MakeFile("in/src", content, 0600);
        ASSERT_EQ(FSCopy("in/src", "in/dst", false), 0);
        EXPECT_TRUE(ReadFile("in/dst") == content);
    }
    EXPECT_EQ(ModeOf("in/dst"), 0644u) << "the mode of a new file, not the source's";
    EXPECT_EQ(FSCopy("kinds/link to file", "in/dst", false), 0);
    EXPECT_EQ(ReadFile("in/dst"), "12345");
    MakeFile("in/dst", std::string(1000, 'o'), 0640);
    MakeFile("in/src", "short");
    EXPECT_EQ(FSCopy("in/src", "in/dst", true), 0);
    EXPECT_EQ(Tree("in"), (FileTree{{"dst", "file 0640: short"}}));
}

TEST_F(FileOpTest, SaysWhyItCannotCopy) {
    const auto copy = [](const char* from, const char* to) {
        return [=] { return FSCopy(from, to, true); };
    };
    const std::string missing = ": No such file or directory (2)";
    ExpectLogged(-1, "CopyFile: open(missing)" + missing, copy("missing", "dst"));
    ExpectLogged(-1, "CopyFile: open(no/dst)" + missing, copy("kinds/file", "no/dst"));
    ExpectLogged(-1, "CopyFile: read: Is a directory (21)", copy("kinds", "dst"));
    ExpectLogged(-1, "Invalid argument (22)", copy("kinds/file", "kinds/link to file"));
    EXPECT_EQ(ReadFile("kinds/file"), "12345");
}

TEST_F(FileOpTest, MovesWithinAVolume) {
    MakeFile("in/b", "old");
    MakeFile("in/full/file");
    const std::string name(255, 'n');
    EXPECT_EQ(FSRename("", "x", false), -1);
    EXPECT_EQ(FSRename("kinds/file", "", false), -1);
    EXPECT_EQ(FSRename("missing", "x", false), -2);
    EXPECT_EQ(FSRename("kinds/dangling", "x", false), -2);
    EXPECT_EQ(FSRename(folder_ / "kinds/link to file", "x", true), -2);
    EXPECT_EQ(FSRename("kinds/folder", "in/full", false), -3);
    EXPECT_EQ(FSRename("kinds/folder", "kinds/folder/inside", false), -3);
    EXPECT_EQ(FSRename("kinds/file", "in/n" + name, false), -100);
    EXPECT_EQ(FSRename(folder_ / "kinds/file", "in/b", true), 0);
    EXPECT_EQ(FSRename("in/b", "in/B", false), 0);
    EXPECT_EQ(FSRename("in/B", "in/" + name, false), 0);
    EXPECT_EQ(
        Tree("in"),
        (FileTree{{"full", "folder"}, {"full/file", "file 0644: "}, {name, "file 0644: 12345"}}));
}

TEST_F(FileOpTest, MakesFolders) {
    EXPECT_EQ(FSMKDir("", true), -1);
    EXPECT_EQ(FSMKDir("a/b/c", true), 0);
    EXPECT_EQ(FSMKDir("a/b/c", false), 0);
    EXPECT_EQ(FSMKDir("x/y", false), -2);
    const std::string no_folder = "Create a folder but local file system is not directory '";
    const std::pair<std::string, std::string> refused[] = {
        {std::string(256, 'n'), "FSMKDir: Failed to to file info 'nn"},
        {"kinds/link to folder", no_folder + "kinds/link to folder' (3)"},
        {"kinds/dangling", no_folder + "kinds/dangling' (3)"},
        {"kinds/file", no_folder + "kinds/file' (1)"},
        {"kinds/file/x", "FSMKDir: Failed to to file info 'kinds/file/x'"}};
    for (const auto& row : refused) {
        ExpectLogged(-1, row.second, [&] { return FSMKDir(row.first, true); });
    }
}

TEST_F(FileOpTest, MakesFoldersStepByStep) {
    MakeFile("file");
    MakeLink("nowhere", "dangling");
    MakeFolder("closed");
    chmod("closed", 0);
    chmod("kinds/folder", 0777);
    using Result = std::pair<int, std::string>;  // errno or 0, and the part of the path at the end
    const auto make = [](const char* name, std::uint16_t mode = 0xFFFF, bool force = false) {
        const ustring path(name);
        char* end = nullptr;
        const AsNobody nobody;
        errno = EDOM;
        const bool made = FSMKDirP(path, &end, force, mode) == 0;
        return Result(made ? 0 : errno, end);
    };
    EXPECT_EQ(make("a/b/c/"), Result(0, "/"));
    EXPECT_EQ(make("m//n", 01777), Result(0, ""));
    EXPECT_EQ(make("file/x/y"), Result(ENOTDIR, "/x/y"));
    EXPECT_EQ(make("file", 0700), Result(EEXIST, ""));
    EXPECT_EQ(make("file/"), Result(EEXIST, "/"));
    EXPECT_EQ(ModeOf("file"), 0644u);
    EXPECT_EQ(make("file/x", 0700, true), Result(0, ""));
    EXPECT_EQ(make("kinds/link to folder/x"), Result(0, ""));
    EXPECT_EQ(make("dangling/x"), Result(EEXIST, "/x"));
    EXPECT_EQ(make("closed/x", 0700), Result(EACCES, ""));
    EXPECT_EQ(make("/"), Result(0, ""));
    EXPECT_EQ(make("single"), Result(0, ""));
    for (const auto& [path, mode] : {std::pair("a/b", 0755u),
                                     {"single", 0755u},
                                     {"m/n", 01777u},
                                     {"file/x", 0700u},
                                     {"closed", 0u}}) {
        EXPECT_EQ(ModeOf(path), mode) << path;
    }
    EXPECT_EQ(FSMKDirP("", nullptr, false, 0xFFFF), -1);
    EXPECT_EQ(umask(022), 022u) << "the umask has changed";
}

TEST_F(FileOpTest, GivesFoldersToTheOwner) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root can change the owner of a file";
    }
    FSInitialize(12, 0xFFFFFFFF);
    EXPECT_EQ(FSMKDir("a/b", true) + FSMKDir("single", false), 0);
    FSInitialize(0xFFFFFFFF, 34);
    EXPECT_EQ(FSChown("a/b"), 0);
    EXPECT_EQ(FSChown("/nowhere/at all"), -1);
    EXPECT_EQ(errno, ENOENT);
    FSInitialize(0xFFFFFFFF, 0xFFFFFFFF);
    for (const char* const folder : {"a", "a/b", "single"}) {
        _FILE_INFO_tag info;
        ASSERT_EQ(GetFileInfo(folder, info), 0);
        EXPECT_EQ(info.uid, 12u) << folder;
        EXPECT_EQ(info.gid == 34, folder == std::string("a/b")) << folder;
    }
}

TEST_F(FileOpTest, ListsFolders) {
    std::map<std::string, int> expected = kKinds;
    expected["."] = expected[".."] = FILE_TYPE_DIR;
    for (const int flags : {0, static_cast<int>(DIR_OPEN_STAT)}) {
        DIR_HANDLE handle;
        ASSERT_EQ(FSOpenDir(folder_ / "kinds", flags, handle), 0);
        EXPECT_EQ(handle.path, folder_ / "kinds");
        std::map<std::string, int> types;
        DIR_ENTRY entry;
        while (FSReadDir(handle, entry) > 0) {
            types[entry.name.c_str()] = entry.type;
            const bool described = entry.name == "file" && flags == DIR_OPEN_STAT;
            if (entry.name == "file" || entry.name == "dangling") {
                EXPECT_EQ(entry.size, described ? 5 : 0) << entry.name;
                EXPECT_NEAR(double(entry.mtime), described ? double(time(nullptr)) : 0, 5);
            }
        }
        EXPECT_EQ(types, expected);
        EXPECT_EQ(FSReadDir(handle, entry), 0);
        FSCloseDir(handle);
        FSCloseDir(handle);
        EXPECT_TRUE(handle.path.empty());
        EXPECT_EQ(FSReadDir(handle, entry), -1);
    }
}

TEST_F(FileOpTest, MakesTemporaryFiles) {
    ustring path("unchanged");
    EXPECT_EQ(FSMktemp("missing", path), -1);
    EXPECT_EQ(path, "unchanged");
    ASSERT_EQ(FSMktemp(".", path), 0);
    EXPECT_EQ(path.size(), std::strlen("./XXXXXX"));
    EXPECT_EQ(ModeOf(path.c_str()), 0644u);
    ustring fresh;
    EXPECT_EQ(FSCreateTempPath(".", fresh), 0);
    EXPECT_EQ(fresh.size(), std::strlen("./12345678"));
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
    EXPECT_FALSE(isMountPoint(".") || IsMSDOS("."));
    const std::string log =
        CaptureStderr([] { EXPECT_FALSE(isMountPoint("/nowhere") || IsMSDOS("/nowhere")); });
    const std::string message = ": Failed to get file system info '/nowhere'. No such";
    EXPECT_TRUE(HasOneLine(log, "isMountPoint" + message));
    EXPECT_TRUE(HasOneLine(log, "IsSupportLargeFile" + message));
}

}  // namespace
