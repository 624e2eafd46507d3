// The service's tree copy and the extractor: cases that the tests of whole runs don't cover.

#include <sys/stat.h>
#include <unistd.h>

#include <archive_entry.h>

#include "lib/libclient/file-op.h"
#include "lib/liblogger/log.h"
#include "tests/support/archives.h"
#include "tests/support/scenario.h"
#include "ui-client/launcher/extractor.h"
#include "ui-client/launcher/mac/mac-service.h"
#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/translations/str-table.h"

namespace {

class CopyTest : public testing::Test {
  protected:
    CopyTest() { umask(022); }

    int copy(const std::string& src, const std::string& dst) {
        int result = 0;
        log_ = CaptureStderr([&] { result = service_.FSCopyPath(src.c_str(), dst.c_str()); });
        return result;
    }

    Folder folder_;
    MacService service_;
    std::string log_;
};

TEST_F(CopyTest, MergesATreeIntoAnother) {
    MakeFile(folder_ / "src/a/file", "new", 0600);
    MakeFile(folder_ / "src/run", "x", 0755);
    MakeLink("run", folder_ / "src/link");
    MakeFolder(folder_ / "src/empty");
    MakeFile(folder_ / "dst/a/file", "older", 0640);
    MakeFile(folder_ / "dst/kept", "kept");
    EXPECT_EQ(copy(folder_ / "src", folder_ / "dst"), 0);
    EXPECT_EQ(Tree(folder_ / "dst"), (FileTree{{"a", "folder"},
                                               {"a/file", "file 0640: new"},
                                               {"empty", "folder"},
                                               {"kept", "file 0644: kept"},
                                               {"link", "file 0644: x"},
                                               {"run", "file 0644: x"}}));
    EXPECT_EQ(copy(folder_ / "src/run", folder_ / "file"), 0);
    EXPECT_EQ(ReadFile(folder_ / "file"), "x");
}

// Each level of a tree logs one line when a copy below it fails.
TEST_F(CopyTest, SaysWhyItFails) {
    MakeFile(folder_ / "file");
    MakeFolder(folder_ / "folder");
    ASSERT_EQ(mkfifo((folder_ / "pipe").c_str(), 0644), 0);
    MakeLink("../pipe", folder_ / "to pipe/link");
    MakeLink("nowhere", folder_ / "dangling/a/b/link");
    MakeFolder(folder_ / "closed/a/b");
    chmod((folder_ / "closed/a").c_str(), 0444);
    const struct {
        std::string source;
        const char* destination;
        std::string message;
        std::size_t levels;
    } cases[] = {
        {folder_ / "missing", "new", "source path '" + folder_ / "missing' does not exist", 0},
        {"", "new", "FSCopyPath: failed to stat source ''", 0},
        {folder_ / "pipe", "new", "is a pipe, socket or device (6)", 0},
        {folder_ / "to pipe", "new", "is a pipe, socket or device (6)", 1},
        {folder_ / "dangling", "new", "open(" + folder_ / "dangling/a/b/link): No such file", 3},
        {folder_ / "closed", "new", "source path '" + folder_ / "closed/a/b' does not exist", 2},
        {folder_ / "folder", "file", "FSCopyPath: failed to create dest folder", 0}};
    chmod(folder_.path().c_str(), 0777);
    const AsNobody nobody;
    for (const auto& row : cases) {
        EXPECT_EQ(copy(row.source, folder_ / row.destination), -1) << row.source;
        EXPECT_TRUE(HasOneLine(log_, row.message)) << log_;
        EXPECT_EQ(LinesWith(log_, "FSCopyPath: failed to copy from").size(), row.levels) << log_;
        RemoveTree(folder_ / "new");
    }
}

TEST_F(CopyTest, RefusesADestinationInsideTheSource) {
    MakeFile(folder_ / "src/file");
    MakeLink("src", folder_ / "way");
    for (const char* const inside :
         {"src", "src/", "src/new", "src/new/deeper", "way/new", "src/../src/new", "way/../src/x",
          "new/../src/x", "new/a/.././../way/./x/../y", "new/..//src"}) {
        EXPECT_EQ(copy(folder_ / "src", folder_ / inside), -1) << inside;
        EXPECT_TRUE(HasOneLine(log_, "lies inside source")) << inside;
    }
    MakeFolder(folder_ / "gone");
    ASSERT_EQ(chdir((folder_ / "gone").c_str()) + rmdir((folder_ / "gone").c_str()), 0);
    EXPECT_EQ(copy(folder_ / "src", "new"), -1) << "the current folder was removed and has no path";
    ASSERT_EQ(chdir((folder_ / "src").c_str()), 0);
    EXPECT_EQ(copy(folder_ / "src", "new"), -1);
    EXPECT_EQ(Tree(folder_ / "src").size(), 1u);
    for (const char* const outside : {"src-evil", "none/../new", "none/a/../../src2", "way/../x"}) {
        EXPECT_EQ(copy(folder_ / "src", folder_ / outside), 0) << outside;
        EXPECT_TRUE(Exists(folder_ / outside + "/file")) << outside;
    }
    EXPECT_EQ(Tree(folder_ / "none"), (FileTree{{"a", "folder"}}));
}

TEST_F(CopyTest, AFolderThatCannotBeListedCountsAsEmpty) {
    MakeFile(folder_ / "src/closed/file");
    MakeFile(folder_ / "src/file");
    MakeFolder(folder_ / "dst");
    chmod((folder_ / "src/closed").c_str(), 0);
    chmod((folder_ / "dst").c_str(), 0333);  // the destination isn't listed
    {
        const AsNobody nobody;
        EXPECT_EQ(copy(folder_ / "src", folder_ / "dst"), 0);
    }
    EXPECT_TRUE(HasOneLine(log_, "[WARNING] tarnwell-service(")) << log_;
    EXPECT_TRUE(HasOneLine(log_, "failed to create handle  for src"));
    chmod((folder_ / "dst").c_str(), 0755);
    EXPECT_TRUE(Exists(folder_ / "dst/closed") && Exists(folder_ / "dst/file"));
}

TEST_F(CopyTest, ADeepTreeNeedsFewDescriptors) {
    MakeDeepTree(folder_ / "src", 3000);  // a path to its last folder would be too long
    for (const char* const name : {"before", "what comes after"}) {
        MakeFile(folder_ / "src/d/d/" + name);
    }
    const FewDescriptors few;
    EXPECT_EQ(copy(folder_ / "src", folder_ / "dst"), 0);
    EXPECT_TRUE(Exists(folder_ / "dst/d/d/before") && Exists(folder_ / "dst/d/d/what comes after"));
    ASSERT_EQ(chdir((folder_ / "dst").c_str()), 0);
    for (int level = 0; level < 3000; ++level) {
        ASSERT_EQ(chdir("d"), 0);
    }
    EXPECT_TRUE(Exists("file"));
    EXPECT_EQ(FSRemove(folder_ / "src", false) + FSRemove(folder_ / "dst", false), 0);
}

class ExtractorTest : public testing::Test {
  protected:
    ExtractorTest() {
        StrTable::InitStrTable();
        extractor_.dest_dir = (folder_ / "dest").c_str();
        extractor_.archive_path = (folder_ / "package").c_str();
        MakeFolder(folder_ / "dest");
    }
    // Returns the operation's result and what it logged.
    std::pair<int, std::string> call(int (Extractor::*operation)()) {
        std::pair<int, std::string> result;
        result.second = CaptureStderr([&] { result.first = (extractor_.*operation)(); });
        return result;
    }

    Folder folder_;
    Extractor extractor_;
};

TEST_F(ExtractorTest, NeedsBothPaths) {
    extractor_.dest_dir = "";
    EXPECT_TRUE(HasOneLine(call(&Extractor::Extract).second, "): Invalid Argument"));
    EXPECT_TRUE(HasOneLine(call(&Extractor::Count).second, "): Invalid argument"));
    EXPECT_EQ(call(&Extractor::List).first, -1);
    extractor_.dest_dir = "/nowhere";
    EXPECT_TRUE(HasOneLine(call(&Extractor::List).second, "archive_read_open_filename failed: '"));
    EXPECT_EQ(extractor_.copy_data(nullptr, nullptr), -1);
}

TEST_F(ExtractorTest, CountsListsAndReportsEachEntryOnce) {
    MakeArchive(folder_ / "package", "tar.gz", {{"a/"}, {"a/b", "text"}, {"c"}});
    EXPECT_EQ(call(&Extractor::Count).first, 3);
    testing::internal::CaptureStdout();
    EXPECT_EQ(call(&Extractor::List).first, 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "a/\na/b\nc\n");
    EXPECT_TRUE(Tree(folder_ / "dest").empty());

    std::vector<std::pair<int, int>> reports;
    QStringList texts;
    Notify_Adapter* const adapter = Notify_Adapter::GetInstance();
    QObject context;
    QObject::connect(adapter, &Notify_Adapter::sigUpdateProgress, &context,
                     [&](int total, int current) { reports.emplace_back(total, current); });
    QObject::connect(adapter, &Notify_Adapter::sigUpdateDialogText, &context,
                     [&](const QString& text) { texts << text; });
    EXPECT_EQ(call(&Extractor::Extract).first, 0);
    EXPECT_EQ(reports, (std::vector<std::pair<int, int>>{{3, 1}, {3, 2}, {3, 3}}));
    EXPECT_EQ(texts, QStringList(QStringLiteral("Tarnwell is initializing...")));
}

TEST_F(ExtractorTest, CopiesTheDataOfAnEntry) {
    const std::string content(100000, 'd');
    MakeArchive(folder_ / "package", "tar", {{"file", content}});
    archive* const in = archive_read_new();
    archive_read_support_format_all(in);
    ASSERT_EQ(archive_read_open_filename(in, (folder_ / "package").c_str(), 10240), ARCHIVE_OK);
    archive_entry* entry = nullptr;
    ASSERT_EQ(archive_read_next_header(in, &entry), ARCHIVE_OK);
    archive* const out = archive_write_disk_new();
    const std::string path = folder_ / "dest/copy";
    archive_entry_set_pathname(entry, path.c_str());
    ASSERT_EQ(archive_write_header(out, entry), ARCHIVE_OK);
    EXPECT_EQ(extractor_.copy_data(in, out), 0);
    archive_write_free(out);
    archive_read_free(in);
    EXPECT_TRUE(ReadFile(path) == content);
}

}  // namespace
