// The service's tree copy and the extractor: cases that the tests of whole runs don't cover.

#include <sys/stat.h>
#include <unistd.h>

#include <archive_entry.h>

#include <tuple>

#include "lib/libclient/file-op.h"
#include "tests/support/archives.h"
#include "tests/support/folder-test.h"
#include "ui-client/launcher/extractor.h"
#include "ui-client/launcher/mac/mac-service.h"
#include "ui-client/launcher/notify-adapter.h"
#include "ui-client/launcher/translations/str-table.h"

namespace {

class CopyTest : public FolderTest {
  protected:
    int copy(const std::string& src, const std::string& dst) {
        int result = 0;
        log_ = CaptureStderr([&] { result = service_.FSCopyPath(src.c_str(), dst.c_str()); });
        return result;
    }

    MacService service_;
    std::string log_;
};

TEST_F(CopyTest, MergesATreeIntoAnother) {
    MakeFile("src/a/file", "new", 0600);
    MakeFile("src/run", "x", 0755);
    MakeLink("run", "src/link");
    MakeFolder("src/empty");
    MakeFile("dst/a/file", "older", 0640);
    MakeFile("dst/kept", "kept");
    EXPECT_EQ(copy("src", "dst"), 0);
    EXPECT_EQ(Tree("dst"), (FileTree{{"a", "folder"},
                                     {"a/file", "file 0640: new"},
                                     {"empty", "folder"},
                                     {"kept", "file 0644: kept"},
                                     {"link", "file 0644: x"},
                                     {"run", "file 0644: x"}}));
    EXPECT_EQ(copy("src/run", "file"), 0);
    EXPECT_EQ(ReadFile("file"), "x");
}

// Each level of a tree logs one line when a copy below it fails.
TEST_F(CopyTest, SaysWhyItFails) {
    MakeLink("../kinds/pipe", "to pipe/link");
    MakeLink("nowhere", "dangling/a/b/link");
    MakeFolder("closed/a/b");
    chmod("closed/a", 0444);
    chmod(".", 0777);
    const AsNobody nobody;
    for (const auto& [source, destination, message, levels] :
         {std::tuple("missing", "new", "source path 'missing' does not exist", 0u),
          {"", "new", "FSCopyPath: failed to stat source ''", 0u},
          {"kinds/pipe", "new", "is a pipe, socket or device (6)", 0u},
          {"to pipe", "new", "is a pipe, socket or device (6)", 1u},
          {"dangling", "new", "open(dangling/a/b/link): No such file", 3u},
          {"closed", "new", "source path 'closed/a/b' does not exist", 2u},
          {"to pipe", "kinds/file", "FSCopyPath: failed to create dest folder", 0u}}) {
        EXPECT_EQ(copy(source, destination), -1) << source;
        EXPECT_TRUE(HasOneLine(log_, message)) << log_;
        EXPECT_EQ(LinesWith(log_, "FSCopyPath: failed to copy from").size(), levels) << log_;
        RemoveTree("new");
    }
}

TEST_F(CopyTest, RefusesADestinationInsideTheSource) {
    MakeFile("src/file");
    MakeLink("src", "way");
    for (const char* const inside :
         {"src", "src/", "src/new", "src/new/deeper", "way/new", "src/../src/new", "way/../src/x",
          "new/../src/x", "new/a/.././../way/./x/../y", "new/..//src"}) {
        EXPECT_EQ(copy("src", inside), -1) << inside;
        EXPECT_TRUE(HasOneLine(log_, "lies inside source")) << inside;
    }
    MakeFolder("gone");
    ASSERT_EQ(chdir("gone") + rmdir("../gone"), 0);
    EXPECT_EQ(copy(folder_ / "src", "new"), -1) << "the current folder was removed and has no path";
    ASSERT_EQ(chdir((folder_ / "src").c_str()), 0);
    EXPECT_EQ(copy(folder_ / "src", "new"), -1);
    ASSERT_EQ(chdir(".."), 0);
    EXPECT_EQ(Tree("src").size(), 1u);
    for (const std::string outside : {"src-evil", "none/../new", "none/a/../../src2", "way/../x"}) {
        EXPECT_EQ(copy("src", outside), 0) << outside;
        EXPECT_TRUE(Exists(outside + "/file")) << outside;
    }
    EXPECT_EQ(Tree("none"), (FileTree{{"a", "folder"}}));
}

TEST_F(CopyTest, AFolderThatCannotBeListedCountsAsEmpty) {
    MakeFile("src/closed/file");
    MakeFile("src/file");
    MakeFolder("dst");
    chmod("src/closed", 0);
    chmod("dst", 0333);  // the destination isn't listed
    {
        const AsNobody nobody;
        EXPECT_EQ(copy("src", "dst"), 0);
    }
    EXPECT_TRUE(HasOneLine(log_, "[WARNING] tarnwell-service(")) << log_;
    EXPECT_TRUE(HasOneLine(log_, "failed to create handle  for src"));
    chmod("dst", 0755);
    EXPECT_TRUE(Exists("dst/closed") && Exists("dst/file"));
}

TEST_F(CopyTest, ADeepTreeNeedsFewDescriptors) {
    MakeDeepTree("src", 3000);  // a path to its last folder would be too long
    MakeFile("src/d/d/before");
    MakeFile("src/d/d/what comes after");
    const FewDescriptors few;
    EXPECT_EQ(copy("src", "dst"), 0);
    EXPECT_TRUE(Exists("dst/d/d/before") && Exists("dst/d/d/what comes after"));
    ASSERT_EQ(chdir("dst"), 0);
    for (int level = 0; level < 3000; ++level) {
        ASSERT_EQ(chdir("d"), 0);
    }
    EXPECT_TRUE(Exists("file"));
    EXPECT_EQ(FSRemove(folder_ / "src", false) + FSRemove(folder_ / "dst", false), 0);
}

class ExtractorTest : public FolderTest {
  protected:
    ExtractorTest() {
        StrTable::InitStrTable();
        extractor_.dest_dir = "dest";
        extractor_.archive_path = "package";
        MakeFolder("dest");
    }
    // Returns the operation's result and what it logged.
    std::pair<int, std::string> call(int (Extractor::*operation)()) {
        std::pair<int, std::string> result;
        result.second = CaptureStderr([&] { result.first = (extractor_.*operation)(); });
        return result;
    }

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
    MakeArchive("package", "tar.gz",
                {{"a/"}, {"a/b", "text"}, {"large", std::string(200000, 'l')}});
    EXPECT_EQ(call(&Extractor::Count).first, 3);
    testing::internal::CaptureStdout();
    EXPECT_EQ(call(&Extractor::List).first, 0);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "a/\na/b\nlarge\n");
    EXPECT_TRUE(Tree("dest").empty());

    std::vector<std::pair<int, int>> reports;
    QStringList texts;
    Notify_Adapter* const adapter = Notify_Adapter::GetInstance();
    QObject context;
    QObject::connect(adapter, &Notify_Adapter::sigUpdateProgress, &context,
                     [&](int total, int current) {
                         reports.emplace_back(total, current);
                         EXPECT_EQ(Exists("dest/large"), current == 3) << "reported too late";
                     });
    QObject::connect(adapter, &Notify_Adapter::sigUpdateDialogText, &context,
                     [&](const QString& text) { texts << text; });
    EXPECT_EQ(call(&Extractor::Extract).first, 0);
    EXPECT_EQ(reports, (std::vector<std::pair<int, int>>{{3, 1}, {3, 2}, {3, 3}}));
    EXPECT_EQ(texts, QStringList(QStringLiteral("Tarnwell is initializing...")));
}

TEST_F(ExtractorTest, CopiesTheDataOfAnEntry) {
    const std::string content(100000, 'd');
    MakeArchive("package", "tar", {{"file", content}});
    archive* const in = archive_read_new();
    archive_read_support_format_all(in);
    ASSERT_EQ(archive_read_open_filename(in, "package", 10240), ARCHIVE_OK);
    archive_entry* entry = nullptr;
    ASSERT_EQ(archive_read_next_header(in, &entry), ARCHIVE_OK);
    archive* const out = archive_write_disk_new();
    ASSERT_EQ(archive_write_header(out, entry), ARCHIVE_OK);
    EXPECT_EQ(extractor_.copy_data(in, out), 0);
    archive_write_free(out);
    archive_read_free(in);
    EXPECT_TRUE(ReadFile("file") == content);
}

}  // namespace
