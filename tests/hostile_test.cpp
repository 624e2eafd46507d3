// Extracts damaged packages, and malicious ones that try to change files outside the destination.

#include <sys/stat.h>
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <memory>
#include <numeric>

#include "tests/support/archives.h"
#include "tests/support/scenario.h"
#include "tests/support/system.h"
#include "ui-client/launcher/extractor.h"
#include "ui-client/launcher/translations/str-table.h"

namespace fs = std::filesystem;

namespace {

enum Type : char { kFile = '0', kHardLink, kLink, kCharDevice, kBlockDevice, kFolder, kPipe };

// Builds a tar entry that libarchive would not write. size is what the header claims; data can have
// another size.
std::string Raw(const std::string& name, char type, const std::string& link = "",
                std::size_t size = 0, unsigned mode = 0777, const std::string& data = "") {
    if (name.size() > 100) {
        return Raw("long", 'L', "", name.size() + 1, 0, name + '\0') +
               Raw(name.substr(0, 100), type, link, size, mode, data);
    }
    char header[512] = {};
    name.copy(header, 100);
    std::snprintf(header + 100, 25, "%07o", mode);
    std::snprintf(header + 124, 25, "%011zo", size);
    std::snprintf(header + 136, 13, "%011o", 1000000000u);
    std::memset(header + 148, ' ', 8);
    header[156] = type;
    link.copy(header + 157, 100);
    std::string("ustar\00000", 8).copy(header + 257, 8);
    const auto* const bytes = reinterpret_cast<const unsigned char*>(header);
    std::snprintf(header + 148, 8, "%06o", std::accumulate(bytes, bytes + sizeof header, 0u));
    return std::string(header, sizeof header) + data +
           std::string((512 - data.size() % 512) % 512, '\0');
}

std::string File(const std::string& name, const std::string& data = "evil", unsigned mode = 0777) {
    return Raw(name, kFile, "", data.size(), mode, data);
}
std::string Dir(const std::string& name, unsigned mode = 0755) {
    return Raw(name, kFolder, "", 0, mode);
}
std::string Link(const std::string& name, const std::string& target) {
    return Raw(name, kLink, target);
}
// libarchive reads the data of a hard link only if the archive has a "pax" header.
std::string Hard(const std::string& name, const std::string& target, const std::string& data = "") {
    const std::string record = "13 comment=x\n";
    return Raw("pax", 'x', "", record.size(), 0644, record) +
           Raw(name, kHardLink, target, data.size(), 0777, data);
}
// A destination, and beside it files that no package may change.
class Target {
  public:
    Target() {
        umask(022);
        StrTable::InitStrTable();
        MakeFolder(dest_);
        MakeFile(folder_ / "outside/file", "secret", 0640);
        MakeFile(folder_ / "outside/folder/inner", "secret", 0600);
        MakeFile(folder_ / "beside", "beside", 0604);
        chmod((folder_ / "outside/folder").c_str(), 0711);
    }

    // Extracts an archive with these bytes. Checks that only the destination's content changes.
    int extract(const std::string& bytes) {
        MakeFile(folder_ / "package", bytes);
        Extractor extractor;
        extractor.dest_dir = dest_.c_str();
        extractor.archive_path = (folder_ / "package").c_str();
        const FileTree before = sentinel();
        int result = 0;
        log_ = CaptureStderr([&] {
            const auto nobody = nobody_ ? std::make_unique<AsNobody>() : nullptr;
            result = extractor.Extract();
        });
        EXPECT_EQ(sentinel(), before) << log_;
        EXPECT_EQ(result == -1, !LinesWith(log_, "[ERROR] extractor(").empty()) << log_;
        EXPECT_TRUE(LinesWith(log_, "(null)").empty() && LinesWith(log_, ": ''").empty()) << log_;
        return result;
    }

    // Describes everything in the test's folder except the content of the destination.
    FileTree sentinel() const {
        const fs::perms mode = fs::status(folder_.path()).permissions();
        FileTree tree = {{"", DescribeFolder(static_cast<mode_t>(mode))}};
        for (fs::recursive_directory_iterator at(folder_.path()), end; at != end; ++at) {
            const std::string path = at->path();
            struct stat status = {};
            lstat(path.c_str(), &status);
            tree[path] = std::to_string(status.st_mode);
            if (path == dest_) {
                at.disable_recursion_pending();
            } else {
                const timespec changed = ChangeTime(status);
                tree[path] += " " + std::to_string(status.st_nlink) + " " +
                              std::to_string(changed.tv_sec) + "." +
                              std::to_string(changed.tv_nsec) + " " + ReadFile(path);
            }
        }
        return tree;
    }

    Folder folder_;
    const std::string dest_ = folder_ / "dest";
    std::string log_;
    bool nobody_ = false;  // extract as a user who isn't root
};

class HostileTest : public testing::Test, protected Target {};

const std::string kEnd(1024, '\0');  // the end of a complete tar

const std::string kThrough = "': leads through a link";
const std::string kThroughTarget = "': links through a link";
const std::string kAside = "': links out of the target folder";
const std::string kNoFile = "': links to something other than a file";
const std::string kNode = "refused entry 'a': is a pipe, socket or device";
const std::string kRoot = "': would replace the target folder";
const std::string kWriter = "archive_read_extract2 failed: '";
const std::string kUp = "../outside";
const std::string kEvil = "file 0755: evil";
const std::string kFileUp = "../outside/file";
const std::string kOnlyLink = "a link: ../outside";
const std::string kOnlyFileLink = "a link: ../outside/file";
const std::string kOnlyEvil = "a file 0755: evil";

std::string Text(const FileTree& tree) {
    std::string text;
    for (const auto& [name, description] : tree) {
        text += (text.empty() ? "" : ", ") + name + " " + description;
    }
    return text;
}

const struct {
    const char* name;
    std::string bytes;
    std::string tree;      // the expected content of the destination
    std::string log = {};  // part of the expected error message; empty if extracting succeeds
} kPackages[] = {
    // traversal
    {"FrameworkIsUnpacked",
     File("f/Versions/A/f") + Link("f/Versions/Current", "A") + Link("f/f", "Versions/Current/f"),
     "f folder, f/Versions folder, f/Versions/A folder, f/Versions/A/f " + kEvil +
         ", f/Versions/Current link: A, f/f link: Versions/Current/f"},
    {"DotDot", File(kFileUp), "", kWriter},
    {"DotDotInside", Dir("a") + File("a/../../beside"), "a folder", kWriter},
    {"Absolute", File("/outside"), "outside " + kEvil},
    {"ThroughLink", Link("a", kUp) + File("a/file"), kOnlyLink, kThrough},
    {"NewThroughLink", Link("a", kUp) + File("a//./new"), kOnlyLink, kThrough},
    {"DeepThroughLink", Link("a", kUp) + File("a/folder/new"), kOnlyLink, kThrough},
    {"LinkThroughLink", Link("a", kUp) + Link("a/new", "x"), kOnlyLink, kThrough},
    {"ThroughLinkToLink", Link("b", kUp) + Link("a", "b") + File("a/file"),
     "a link: b, b link: ../outside", kThrough},
    {"ThroughLaterLink", Dir("a") + File("b/x") + Link("a", kUp) + File("a/file"),
     kOnlyLink + ", b folder, b/x " + kEvil, kThrough},
    {"ThroughLinkInPlaceOfTheLastFolder", Dir("a") + Dir("a") + Link("a", kUp) + File("a/file"),
     kOnlyLink, kThrough},
    {"ThroughLinkToFile", Link("a", kFileUp) + File("a/x"), kOnlyFileLink, kThrough},
    {"FolderOverLink", Link("a", kUp) + Dir("a", 0), kOnlyLink, kThrough},
    {"FolderBehindLink", Link("a", kUp) + Dir("a/new"), kOnlyLink, kThrough},
    {"FileOverLink", Link("a", kFileUp) + File("a"), kOnlyEvil},
    {"LateRights", Dir("a", 0) + Link("a", kUp), kOnlyLink},
    {"LateRightsBelow", Dir("a/folder", 0) + Link("a/folder", "x") + Link("a", kUp),
     "a folder, a/folder link: x", kWriter},
    // hard links
    {"HardInside", File("b") + Hard("a", "/b"), kOnlyEvil + ", b " + kEvil},
    {"HardDotDot", Hard("a", kFileUp), "", kAside},
    {"HardDotDotWithData", Hard("a", "x/../../outside/file", "evil"), "", kAside},
    {"HardThroughLink", Link("a", kUp) + Hard("b", "a/file"), kOnlyLink, kThroughTarget},
    {"HardToLink", Link("a", kFileUp) + Hard("b", "a"), kOnlyFileLink, kNoFile},
    {"HardToLinkWithData", Link("a", kFileUp) + Hard("b", "a", "evil"), kOnlyFileLink, kNoFile},
    {"HardWithData", File("b", "old") + Hard("a", "b", "evil"), kOnlyEvil + ", b " + kEvil},
    {"HardBehindLink", File("b") + Link("a", kUp) + Hard("a/new", "b"), kOnlyLink + ", b " + kEvil,
     kThrough},
    {"HardToFolder", Hard("a", "."), "", kNoFile},
    {"HardToItself", File("a") + Hard("a", "a"), kOnlyEvil, kWriter},
    {"HardToNothing", Hard("a", "b"), "", kWriter},
    // kinds of objects
    {"CharDevice", Raw("a", kCharDevice), "", kNode},
    {"BlockDevice", Raw("a", kBlockDevice), "", kNode},
    {"Pipe", Raw("a", kPipe), "", kNode},
    {"SpecialRights", Dir("a", 07777) + File("b", "", 07777), "a folder, b file 0755: "},
    {"SameNameTwice", File("a", "first") + File("a"), kOnlyEvil},
    {"FileOverFolder", Dir("a") + File("a"), kOnlyEvil},
    {"FileOverFullFolder", File("a/b") + File("a"), "a folder, a/b " + kEvil, kWriter},
    {"FolderOverFile", File("a") + Dir("a"), "a folder"},
    {"FileInPlaceOfFolder", File("a") + File("a/b"), kOnlyEvil, kWriter},
    {"LongerThanItsData", Raw("a", kFile, "", 1 << 20, 0644, "short"),
     "a " + DescribeFile(0644, "short" + std::string((1 << 20) - 5, '\0')), kWriter},
    // names
    {"NotUtf8", File("\xff\xfe"), "\xff\xfe " + kEvil},
    {"Of300Bytes", File(std::string(300, 'n')), "", kWriter},
    {"EmptyFile", File(""), "", kRoot},
    {"DotFile", File("."), "", kRoot},
    {"SlashFile", File("//."), "", kRoot},
    {"DotSlashLink", Link("./", kUp) + File("file"), "", kRoot},
    {"DotHardLink", File("b") + Hard(".", "b"), "b " + kEvil, kRoot},
    {"DotFolder", Dir("./", 0) + File("./a"), kOnlyEvil},
    {"SlashFolder", Dir("/", 0) + File("a"), kOnlyEvil}};

TEST(HostilePackagesTest, ChangeNothingOutside) {
    for (const auto& package : kPackages) {
        SCOPED_TRACE(package.name);
        Target target;
        EXPECT_EQ(target.extract(package.bytes + kEnd), package.log.empty() ? 0 : -1);
        EXPECT_EQ(LinesWith(target.log_, package.log).empty(), package.log.empty()) << target.log_;
        EXPECT_EQ(Text(Tree(target.dest_)), package.tree);
    }
}

std::string DeepPath(std::size_t size) {
    std::string path(size, 'd');
    for (std::size_t i = 199; i + 1 < size; i += 200) {
        path[i] = '/';
    }
    return path;
}

TEST_F(HostileTest, LongPathsAreUnpackedOrRefused) {
    EXPECT_EQ(extract(File(DeepPath(4000)) + kEnd), 0);
    EXPECT_EQ(ReadFile(dest_ + "/" + DeepPath(4000)), "evil");
    const std::size_t longest = PATH_MAX - 1 - (dest_ + "/").size();
    EXPECT_EQ(extract(File(DeepPath(longest)) + kEnd), 0);
    EXPECT_EQ(extract(File(DeepPath(longest + 1)) + kEnd), -1);
    EXPECT_TRUE(HasOneLine(log_, "': its path is too long"));
}

// An entry of an mtree, which is a text file, can name a file as its content and have two types.
TEST_F(HostileTest, AManifestDoesNotLeadOut) {
    EXPECT_EQ(extract("#mtree\n./a type=file mode=0644 size=6 contents=../outside/file\n"), 0);
    EXPECT_EQ(Tree(dest_), (FileTree{{"a", DescribeFile(0644, std::string(6, '\0'))}}));
    for (const char* const entry :
         {"./b type=dir mode=0700 link=../outside/folder", "./b type=file mode=044 link=../outside",
          "./b type=link link=../outside type=file mode=044", "./. type=dir link=outside"}) {
        EXPECT_EQ(extract(std::string("#mtree\n") + entry + "\n./b/new type=file mode=0644\n"), -1);
        EXPECT_TRUE(HasOneLine(log_, "': is a link and has another type")) << log_;
    }
}

TEST_F(HostileTest, ATruncatedPackageIsRefusedOrWhole) {
    const std::string noise = Noise(20000);
    for (const char* const format : {"tar", "tar.gz", "zip"}) {
        MakeArchive(
            folder_ / "whole", format,
            {{"a/"}, {"a/one", noise}, {"a/link", "", 0777, "one"}, {"a/two", noise + "2"}});
        const std::string bytes = ReadFile(folder_ / "whole");
        ASSERT_EQ(extract(bytes), 0);
        const FileTree whole = Tree(dest_);
        for (std::size_t size = 0; size < bytes.size(); size += 512) {
            fs::remove_all(dest_);
            MakeFolder(dest_);
            if (extract(bytes.substr(0, size)) == 0) {
                EXPECT_EQ(Tree(dest_), whole) << size << " of " << bytes.size() << " in " << format;
            }
        }
    }
}

// libarchive by itself would decompress these formats with external programs.
TEST_F(HostileTest, NoProgramIsEverRun) {
    for (const char* const name : {"lrzip", "lzop", "grzip"}) {
        MakeFile(folder_ / "bin/" + name, "#!/bin/sh\n: >'" + (folder_ / "mark") + "'\n", 0755);
    }
    setenv("PATH", (folder_ / "bin:" + getenv("PATH")).c_str(), 1);
    const std::string magics[] = {
        std::string("LRZI\0\6", 6), {"\x89LZO\0\r\n\x1A\n", 9}, {"GRZipII\0\2\4:)", 12}};
    for (const std::string& magic : magics) {
        EXPECT_EQ(extract(magic + std::string(1000, 'x')), -1);
        EXPECT_TRUE(HasOneLine(log_, "'Unrecognized archive format'")) << log_;
        EXPECT_FALSE(Exists(folder_ / "mark")) << magic;
    }
}

TEST_F(HostileTest, NamesDoNotForgeLines) {
    const std::string name = "a\n[ERROR] extractor(1): forged\r\x1B[2J\x7F\xC3\xA9";
    const std::string shown = "a\\x0A[ERROR] extractor(1): forged\\x0D\\x1B[2J\\x7F\xC3\xA9'";
    for (const std::string& entry : {Raw(name, kPipe), Hard("b", name)}) {
        EXPECT_EQ(extract(entry + kEnd), -1);
        EXPECT_EQ(LinesWith(log_, "").size(), 1u) << log_;
        EXPECT_TRUE(HasOneLine(log_, shown)) << log_;
    }
    EXPECT_EQ(extract(Raw("\xFF", kPipe) + kEnd), -1);
    EXPECT_TRUE(HasOneLine(log_, "'\\xFF'")) << log_;
}

// The extractor sets the permissions of folders last, so that it can still write into them.
TEST_F(HostileTest, AnOrdinaryUserGetsWhatIsInClosedFolders) {
    if (geteuid() != 0 || chown(dest_.c_str(), 65534, 65534) != 0) {
        GTEST_SKIP() << "only root can check the content of closed folders";
    }
    nobody_ = true;
    EXPECT_EQ(extract(Dir("a", 0555) + Dir("a/b", 0) + Dir("a/b/c", 0311) + File("a/b/c/d/file") +
                      File("a/x", "text", 0400) + Hard("a/b/hard", "a/x") + Link("a/b/l", "hard") +
                      File("a/x2") + File("a/x2", "again") + Dir("last", 0) + kEnd),
              0)
        << log_;
    EXPECT_EQ(
        Text(Tree(dest_, true)),
        " folder 0755, a folder 0555, a/b folder 0000, a/b/c folder 0311, a/b/c/d folder 0755, "
        "a/b/c/d/file file 0755: evil, a/b/hard file 0400: text, a/b/l link: hard, "
        "a/x file 0400: text, a/x2 file 0755: again, last folder 0000");
}

}  // namespace
