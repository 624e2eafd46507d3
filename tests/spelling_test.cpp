// The file operations and the extractor on a case-insensitive volume.

#include "lib/libclient/file-op.h"
#include "tests/support/archives.h"
#include "tests/support/folder-test.h"
#include "tests/support/system.h"
#include "ui-client/launcher/extractor.h"

namespace {

class SpellingTest : public testing::Test {
  protected:
    void SetUp() override {
        if (!volume_.mounted()) {
            GTEST_SKIP() << "this user may not mount such a volume, or the tools are missing";
        }
    }

    std::string operator/(const std::string& name) const { return root_ + "/" + name; }

    int extract(const std::vector<Entry>& entries) {
        MakeArchive(folder_ / "package", "tar", entries);
        RemoveTree(*this / "dest");
        MakeFolder(*this / "dest");
        Extractor extractor;
        extractor.archive_path = (folder_ / "package").c_str();
        extractor.dest_dir = (*this / "dest").c_str();
        return extractor.Extract();
    }

    Folder folder_;
    const std::string root_ = folder_ / "Volume";
    const CaseIgnoringVolume volume_{root_, CaseIgnoringVolume::ExFat};
};

TEST_F(SpellingTest, AnExactPathIsSpelledAsItIsStored) {
    const std::pair<const char*, const char*> cases[] = {
        {"Name", "nAME"},
        {"caf\xC3\xA9 au lait", "Caf\xC3\x89 au lait"},
        {"\xC3\x89", "\xC3\xA9"},
        {"\xD0\x96\xD1\x83\xD0\xBA", "\xD0\xB6\xD0\xA3\xD0\x9A"},
        {"\xE2\xB1\xA5/file", "\xC8\xBA/FILE"},  // three bytes, and two in the other case
        {"Folder/Sub/Name", "Folder/sUB/Name"}};
    for (const auto& [stored, other] : cases) {
        const ustring path = *this / stored;
        const ustring alias = *this / other;
        MakeFile(*this / stored);
        EXPECT_TRUE(IsFileExist(path, true)) << stored;
        EXPECT_TRUE(IsFileExist(alias, false)) << other;
        EXPECT_FALSE(IsFileExist(alias, true)) << other;
        _FILE_INFO_tag info;
        EXPECT_EQ(GetFileInfo(alias, info), 0);
        EXPECT_EQ(info.path, path);
        EXPECT_EQ(FSRename(alias, *this / "moved", true), -2) << other;
    }
}

// A volume that decomposes names finds the file by its composed name too. On other volumes the test
// creates a link with that name.
TEST_F(SpellingTest, AnExactPathMayBeComposedInAnotherWay) {
    const std::string composed = folder_ / "caf\xC3\xA9";
    const std::string decomposed = folder_ / "cafe\xCC\x81";
    MakeFile(decomposed);
    if (!Exists(composed)) {
        MakeLink(decomposed, composed);
    }
    EXPECT_TRUE(IsFileExist(composed.c_str(), true));
    EXPECT_TRUE(IsFileExist(decomposed.c_str(), true));
}

TEST_F(SpellingTest, ARenameCanChangeTheCaseOnly) {
    MakeFile(*this / "Folder/Name", "text");
    EXPECT_EQ(FSRename(*this / "Folder/Name", *this / "Folder/nAME", true), 0);
    EXPECT_EQ(FSRename(*this / "FOLDER", *this / "folder", false), 0);
    const FileTree tree = Tree(root_);  // only the names: the volume sets the modes
    EXPECT_TRUE(tree.size() == 2 && tree.count("folder/nAME") == 1);
}

TEST_F(SpellingTest, NoEntryTakesThePlaceOfAnother) {
    const std::vector<Entry> refused[] = {{{"data/name", "1"}, {"data/NAME", "2"}},
                                          {{"Data/name", "1"}, {"dATA/name", "2"}},
                                          {{"caf\xC3\xA9", "1"}, {"caf\xC3\x89", "2"}},
                                          {{"name", "1"}, {"NAME/"}},
                                          {{"name", "1"}, {"NAME/file", "2"}},
                                          {{"NAME/"}, {"name", "1"}},
                                          {{"name", "1"}, {"NAME", "", 0644, "", "name"}}};
    for (const std::vector<Entry>& entries : refused) {
        const std::string why = "': has the same name as another entry on this volume";
        ExpectLogged(-1, "refused entry '" + entries[1].name + why,
                     [&] { return extract(entries); });
    }
}

TEST_F(SpellingTest, EntriesThatShareAFolderOrANameAreAllUnpacked) {
    EXPECT_EQ(extract({{"Data/"}, {"Data/a", "1"}, {"data/"}, {"DATA/b", "2"}, {"Data/a", "3"}}),
              0);
    EXPECT_EQ(Tree(*this / "dest").size(), 3u);
    EXPECT_EQ(ReadFile(*this / "dest/Data/a") + ReadFile(*this / "dest/Data/b"), "32");
}

}  // namespace
