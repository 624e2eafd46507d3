#include "lib/libclient/file-op.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
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

// Runs as a user who isn't root, for what root may always do.
class AsNobody {
  public:
    AsNobody() {
        if (getuid() == 0) {
            active_ = setresuid(65534, 65534, 0) == 0;
        }
    }
    ~AsNobody() {
        if (active_ && setresuid(0, 0, 0) != 0) {
            std::abort();
        }
    }

  private:
    bool active_ = false;
};

TEST_F(FileOpTest, DescribesEveryKind) {
    const std::vector<std::pair<const char*, int>> cases = {
        {"file", FILE_TYPE_REG},           {"folder", FILE_TYPE_DIR},
        {"link to file", FILE_TYPE_LNK},   {"link to folder", FILE_TYPE_LNK},
        {"dangling", FILE_TYPE_LNK},       {"loop", FILE_TYPE_LNK},
        {"pipe", FILE_TYPE_FIFO},          {"socket", FILE_TYPE_SOCK},
        {"../../dev/null", FILE_TYPE_DEV}, {"missing", FILE_TYPE_REG}};
    for (const auto& [name, type] : cases) {
        SCOPED_TRACE(name);
        _FILE_INFO_tag info;
        ASSERT_EQ(GetFileInfo(U(kinds_ / name), info), 0);
        EXPECT_EQ(info.type, type);
        EXPECT_EQ(info.exists, std::string(name) != "missing");
    }
    _FILE_INFO_tag info;
    ASSERT_EQ(GetFileInfo(U(kinds_ / "link to folder/../file"), info), 0);
    EXPECT_EQ(info.path, kinds_ / "file");
    EXPECT_EQ(info.size, 5);
    EXPECT_EQ(info.mode, S_IFREG | 0644u);
    EXPECT_EQ(info.uid, geteuid());
    EXPECT_TRUE(FSTimeEqual(info.mtime, time(nullptr)) || info.mtime <= time(nullptr));
    ASSERT_EQ(GetFileInfo(U(kinds_ / "missing"), info), 0);
    EXPECT_EQ(info.path, kinds_ / "missing");
    EXPECT_NEAR(double(info.mtime), double(time(nullptr)), 2);
    EXPECT_EQ(info.size + info.uid + info.gid + info.mode, 0);
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
    b = _FILE_INFO_tag();
    b.size = 1;
    EXPECT_TRUE(a != b);
}

TEST_F(FileOpTest, KnowsWhatExists) {
    EXPECT_TRUE(IsFileExist(U(kinds_ / "link to file"), false));
    EXPECT_FALSE(IsFileExist(U(kinds_ / "dangling"), false));
    EXPECT_FALSE(IsFileExist("", false));
    EXPECT_TRUE(IsFileExist(U(kinds_ / "file"), true));
    EXPECT_FALSE(IsFileExist(U(kinds_ / "link to file"), true));
    EXPECT_FALSE(IsFileExist(U(kinds_ / "./file"), true));
    MakeFile(folder_ / "\xC3\xA9");
    EXPECT_TRUE(IsFileExist(U(folder_ / "e\xCC\x81"), false)) << "looked up in its NFC form";
    EXPECT_TRUE(IsFileExist(U(folder_ / "e\xCC\x81"), true));
    ustring path = U(kinds_ / "link to file");
    EXPECT_EQ(FSGetRealPath(path), 0);
    EXPECT_EQ(path, kinds_ / "file");
    path = U(kinds_ / "missing");
    EXPECT_EQ(FSGetRealPath(path), -1);
    EXPECT_EQ(path, kinds_ / "missing");
}

TEST_F(FileOpTest, StatIsBothInOne) {
    _FILE_INFO_tag info;
    info.size = 77;
    EXPECT_EQ(FSStat("", info, false), -1);
    EXPECT_EQ(FSStat(U(kinds_ / "dangling"), info, false), 0);
    EXPECT_FALSE(info.exists);
    EXPECT_EQ(info.size, 77) << "only exists is set";
    EXPECT_EQ(FSStat(U(kinds_ / "link to folder"), info, false), 0);
    EXPECT_EQ(info.type, FILE_TYPE_LNK);
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
    EXPECT_EQ(FSCopy(U(kinds_ / "link to file"), U(folder_ / "dst"), false), 0);
    EXPECT_EQ(ReadFile(folder_ / "dst"), "12345");
}

TEST_F(FileOpTest, SaysWhyItCannotCopy) {
    const std::string missing = folder_ / "missing";
    EXPECT_TRUE(HasOneLine(
        CaptureStderr([&] { EXPECT_EQ(FSCopy(U(missing), U(folder_ / "dst"), false), -1); }),
        "CopyFile: open(" + missing + "): No such file or directory (2)"));
    EXPECT_FALSE(Exists(folder_ / "dst"));
    EXPECT_EQ(FSCopy(U(kinds_ / "file"), U(folder_ / "no/dst"), false), -1);
    EXPECT_EQ(FSCopy(U(kinds_.path()), U(folder_ / "dst"), false), -1);
    EXPECT_EQ(FSCopy(U(kinds_ / "file"), U(kinds_ / "link to file"), true), -1);
    EXPECT_EQ(ReadFile(kinds_ / "file"), "12345") << "a file is not copied onto itself";
    EXPECT_EQ(FSCopy(U(kinds_ / "file"), "/dev/full", true), -2);
    EXPECT_TRUE(Exists(kinds_ / "file"));
}

TEST_F(FileOpTest, AFullDiskIsTold) {
    if (unshare(CLONE_NEWNS) != 0 && unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
        GTEST_SKIP() << "this user may not mount a small disk: " << strerror(errno);
    }
    ASSERT_EQ(mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr), 0);
    MakeFolder(folder_ / "disk");
    ASSERT_EQ(mount("none", (folder_ / "disk").c_str(), "tmpfs", 0, "size=64k"), 0);
    MakeFile(folder_ / "tree/big", std::string(100000, 'x'));
    EXPECT_EQ(FSCopy(U(folder_ / "tree/big"), U(folder_ / "disk/big"), true), -2);
    EXPECT_TRUE(Exists(folder_ / "disk/big")) << "what was written is left";
    EXPECT_EQ(FSRemove(U(folder_ / "disk/big"), false), 0);
    EXPECT_EQ(FSRename(U(folder_ / "tree"), U(folder_ / "disk/tree"), false), -3);
    EXPECT_EQ(ReadFile(folder_ / "tree/big").size(), 100000u);
    umount((folder_ / "disk").c_str());
}

TEST_F(FileOpTest, MovesWithinAVolume) {
    MakeFile(folder_ / "a", "new");
    MakeFile(folder_ / "b", "old");
    EXPECT_EQ(FSRename(U(folder_ / "a"), U(folder_ / "b"), true), 0);
    EXPECT_EQ(Tree(folder_.path()), (FileTree{{"b", "file 0644: new"}}));
    EXPECT_EQ(FSRename("", U(folder_ / "x"), false), -1);
    EXPECT_EQ(FSRename(U(folder_ / "b"), "", false), -1);
    EXPECT_EQ(FSRename(U(folder_ / "missing"), U(folder_ / "x"), false), -2);
    EXPECT_EQ(FSRename(U(kinds_ / "dangling"), U(folder_ / "x"), false), -2);
    EXPECT_EQ(FSRename(U(kinds_ / "link to file"), U(folder_ / "x"), true), -2);
    EXPECT_EQ(FSRename(U(folder_ / "b"), U(folder_ / std::string(256, 'n')), false), -100);
    EXPECT_EQ(FSRename(U(folder_ / "b"), U(folder_ / std::string(255, 'n')), false), 0);
    MakeFile(folder_ / "full/file");
    EXPECT_EQ(FSRename(U(kinds_ / "folder"), U(folder_ / "full"), false), -3);
    EXPECT_EQ(FSRename(U(kinds_ / "folder"), U(kinds_ / "folder/inside"), false), -3);
    MakeFile(folder_ / "Case");
    EXPECT_EQ(FSRename(U(folder_ / "Case"), U(folder_ / "cASE"), false), 0);
    EXPECT_TRUE(Exists(folder_ / "cASE") && !Exists(folder_ / "Case"));
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

TEST_F(FileOpTest, LinksAndPipesStayBehindAcrossVolumes) {
    EXPECT_EQ(FSRename(U(kinds_ / "link to file"), U(other_volume_ / "x"), false), 0);
    EXPECT_EQ(FSRename(U(kinds_ / "pipe"), U(other_volume_ / "x"), false), 0);
    EXPECT_FALSE(Exists(other_volume_ / "x"));
    for (const bool with_link : {true, false}) {
        MakeFile(folder_ / "tree/file");
        const std::string left = folder_ / "tree/left";
        with_link ? MakeLink("file", left) : static_cast<void>(mkfifo(left.c_str(), 0600));
        EXPECT_EQ(FSRename(U(folder_ / "tree"), U(other_volume_ / "tree"), false), -3);
        EXPECT_TRUE(Exists(left));
        unlink(left.c_str());
    }
}

TEST_F(FileOpTest, AMoveAcrossVolumesStopsAtTheFirstFailure) {
    MakeFile(folder_ / "tree/name/file");
    MakeFile(other_volume_ / "tree/name", "a file where a folder goes");
    const std::string log = CaptureStderr(
        [&] { EXPECT_EQ(FSRename(U(folder_ / "tree"), U(other_volume_ / "tree"), false), -3); });
    EXPECT_TRUE(HasOneLine(log, "is not directory '" + other_volume_ / "tree/name" + "' (1)"))
        << log;
    EXPECT_TRUE(Exists(folder_ / "tree/name/file"));
}

TEST_F(FileOpTest, MakesFolders) {
    EXPECT_EQ(FSMKDir("", true), -1);
    EXPECT_EQ(FSMKDir(U(folder_ / "a/b/c"), true), 0);
    EXPECT_EQ(FSMKDir(U(folder_ / "a/b/c"), false), 0);
    EXPECT_EQ(FSMKDir(U(folder_ / "x/y"), false), -2);
    EXPECT_EQ(FSMKDir(U(kinds_ / "link to folder"), true), -1);
    EXPECT_EQ(FSMKDir(U(kinds_ / "dangling"), true), -1);
    EXPECT_EQ(FSMKDir(U(folder_ / std::string(256, 'n')), true), -1);
    const std::string log = CaptureStderr([&] {
        EXPECT_EQ(FSMKDir(U(kinds_ / "file"), true), -1);
        EXPECT_EQ(FSMKDir(U(kinds_ / "file/below"), true), -1);
    });
    EXPECT_TRUE(
        HasOneLine(log, "FSMKDir: Create a folder but local file system is not directory '" +
                            kinds_ / "file" + "' (1)"));
    EXPECT_TRUE(HasOneLine(log, "FSMKDir: Failed to to file info '" + kinds_ / "file/below'"));
}

TEST_F(FileOpTest, MakesFoldersStepByStep) {
    const auto make = [&](const std::string& path, bool force, std::uint16_t mode,
                          std::string* rest = nullptr) {
        const ustring text = U(path);
        char* end = nullptr;
        errno = 0;
        const int result = FSMKDirP(text, &end, force, mode);
        if (rest != nullptr) {
            *rest = end;
        }
        return result;
    };
    std::string rest;
    ASSERT_EQ(chdir(folder_.path().c_str()), 0);
    EXPECT_EQ(make("a/b/c/", false, 0xFFFF, &rest), 0);
    EXPECT_EQ(rest, "/");
    EXPECT_EQ(ModeOf(folder_ / "a/b"), 0755u);
    EXPECT_EQ(make(folder_ / "m//n", false, 01777, &rest), 0);
    EXPECT_EQ(rest, "");
    EXPECT_EQ(ModeOf(folder_ / "m/n"), 01777u);
    EXPECT_EQ(umask(022), 022u) << "the umask is as before";

    MakeFile(folder_ / "file");
    EXPECT_EQ(make(folder_ / "file/x/y", false, 0xFFFF, &rest), -1);
    EXPECT_EQ(errno, ENOTDIR);
    EXPECT_EQ(rest, "/x/y");
    EXPECT_EQ(make(folder_ / "file", false, 0700), -1);
    EXPECT_EQ(errno, EEXIST);
    EXPECT_EQ(make(folder_ / "file/", false, 0xFFFF, &rest), -1);
    EXPECT_EQ(errno, EEXIST);
    EXPECT_EQ(make(folder_ / "file/x", true, 0700), 0);
    EXPECT_EQ(ModeOf(folder_ / "file/x"), 0700u);
    EXPECT_EQ(make(kinds_ / "link to folder/x", false, 0xFFFF), 0);
    EXPECT_EQ(make(kinds_ / "dangling/x", false, 0xFFFF), -1);
    EXPECT_EQ(errno, EEXIST);
    EXPECT_EQ(make("", false, 0xFFFF), -1);
    EXPECT_EQ(make("/", false, 0xFFFF), 0);
    EXPECT_EQ(make("single", false, 0xFFFF), 0);
    {
        const AsNobody nobody;
        EXPECT_EQ(make(folder_ / "forbidden", false, 0700), -1);
        EXPECT_EQ(errno, EACCES);
    }
}

TEST_F(FileOpTest, GivesFoldersToTheOwner) {
    if (geteuid() != 0) {
        GTEST_SKIP() << "only root may give things away";
    }
    FSInitialize(12, 0xFFFFFFFF);
    EXPECT_EQ(FSMKDir(U(folder_ / "a/b"), true), 0);
    FSInitialize(0xFFFFFFFF, 34);
    EXPECT_EQ(FSChown(U(folder_ / "a/b")), 0);
    FSInitialize(0xFFFFFFFF, 0xFFFFFFFF);
    struct stat status;
    ASSERT_EQ(stat((folder_ / "a/b").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 12u);
    EXPECT_EQ(status.st_gid, 34u);
    ASSERT_EQ(stat((folder_ / "a").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 12u);
    EXPECT_EQ(FSChown("/nowhere/at all"), -1);
    EXPECT_EQ(errno, ENOENT);
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
    chmod(folder_.path().c_str(), 0777);
    chmod((folder_ / "tree").c_str(), 0777);
    chmod((folder_ / "tree/closed").c_str(), 0);
    if (geteuid() == 0) {
        lchown((folder_ / "tree").c_str(), 65534, 65534);
    }
    {
        const AsNobody nobody;
        EXPECT_EQ(FSRemove(U(folder_ / "tree/closed"), false), 0);
        EXPECT_EQ(FSRemove(U(folder_ / "tree"), false), -3);
        EXPECT_TRUE(isFileLocked(U(folder_ / "tree/closed/file"), F_OK));
        DIR_HANDLE handle;
        EXPECT_EQ(FSOpenDir(U(folder_ / "tree/closed"), 0, handle), -1);
    }
    EXPECT_FALSE(isFileLocked(U(folder_ / "missing"), R_OK));
    EXPECT_FALSE(isFileLocked(U(folder_ / "tree"), R_OK));
    chmod((folder_ / "tree/closed").c_str(), 0755);
    EXPECT_TRUE(Exists(folder_ / "tree/closed/file"));
}

// Makes a chain of folders far longer than a path may be, with a file at its end.
void MakeDeepTree(const std::string& path, int depth) {
    MakeFolder(path);
    int fd = open(path.c_str(), O_RDONLY | O_DIRECTORY);
    for (int level = 0; level < depth; ++level) {
        ASSERT_EQ(mkdirat(fd, "d", 0755), 0);
        const int next = openat(fd, "d", O_RDONLY | O_DIRECTORY);
        close(fd);
        fd = next;
    }
    close(openat(fd, "file", O_WRONLY | O_CREAT, 0644));
    close(fd);
}

TEST_F(FileOpTest, DepthHasNoLimit) {
    const FewDescriptors few;
    MakeDeepTree(folder_ / "tree", 10000);
    EXPECT_EQ(FSRename(U(folder_ / "tree"), U(other_volume_ / "tree"), false), 0);
    EXPECT_FALSE(Exists(folder_ / "tree"));
    EXPECT_EQ(FSRemove(U(other_volume_ / "tree"), false), 0);
    EXPECT_FALSE(Exists(other_volume_ / "tree"));
}

TEST_F(FileOpTest, TheNumberOfEntriesHasNoLimit) {
    const std::string wide = other_volume_ / "wide";
    MakeFolder(wide);
    const int folder = open(wide.c_str(), O_RDONLY | O_DIRECTORY);
    for (int i = 0; i < 200000; ++i) {
        const int fd = openat(folder, ("f" + std::to_string(i)).c_str(), O_WRONLY | O_CREAT, 0644);
        ASSERT_GE(fd, 0);
        close(fd);
    }
    close(folder);
    EXPECT_EQ(FSRemove(U(wide), false), 0);
    EXPECT_FALSE(Exists(wide));
}

TEST_F(FileOpTest, ListsFolders) {
    const auto list = [&](int flags) {
        DIR_HANDLE handle;
        EXPECT_EQ(FSOpenDir(U(kinds_.path()), flags, handle), 0);
        EXPECT_EQ(handle.path, kinds_.path());
        std::map<std::string, DIR_ENTRY> entries;
        DIR_ENTRY entry;
        int result;
        while ((result = FSReadDir(handle, entry)) > 0) {
            entries[entry.name.c_str()] = entry;
        }
        EXPECT_EQ(result, 0);
        FSCloseDir(handle);
        FSCloseDir(handle);
        EXPECT_TRUE(handle.path.empty());
        EXPECT_EQ(FSReadDir(handle, entry), -1);
        return entries;
    };
    std::map<std::string, DIR_ENTRY> entries = list(0);
    ASSERT_EQ(entries.size(), 10u);
    EXPECT_EQ(entries["."].type, FILE_TYPE_DIR);
    EXPECT_EQ(entries[".."].type, FILE_TYPE_DIR);
    EXPECT_EQ(entries["file"].type, FILE_TYPE_REG);
    EXPECT_EQ(entries["dangling"].type, FILE_TYPE_LNK);
    EXPECT_EQ(entries["pipe"].type, FILE_TYPE_FIFO);
    EXPECT_EQ(entries["socket"].type, FILE_TYPE_SOCK);
    EXPECT_EQ(entries["file"].size + entries["file"].mtime, 0);
    entries = list(DIR_OPEN_STAT);
    EXPECT_EQ(entries["file"].size, 5);
    EXPECT_NEAR(double(entries["file"].mtime), double(time(nullptr)), 5);
    EXPECT_EQ(entries["dangling"].size + entries["dangling"].mtime, 0);
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
