// Whole runs on volumes that a Mac has: one that ignores letter case for the home folder, a
// read-only one for the bundle.

#include <sched.h>
#include <strings.h>
#include <sys/mount.h>

#include <filesystem>
#include <fstream>

#include "tests/support/installation.h"
#include "tests/support/system.h"

namespace fs = std::filesystem;

namespace {

class CaseIgnoringHomeTest : public testing::TestWithParam<CaseIgnoringVolume::Kind> {
  protected:
    void SetUp() override {
        if (!volume_.mounted()) {
            GTEST_SKIP() << "this user may not mount such a volume, or the tools are missing";
        }
    }

    // A package without links, which not each of these volumes has.
    Installation::Result runWith(const std::string& number, std::vector<Entry> entries = {}) {
        installation_.setBuild(number);
        entries.push_back({"Contents/Info.plist", kInfoPlist});
        entries.push_back({"Contents/Resources/INFO", VersionFile(number)});
        entries.push_back({"Contents/MacOS/tarnwell-ui", kClient, 0755});
        MakeArchive(installation_.package(), "zip", entries);
        Installation::Result result = installation_.run();
        EXPECT_TRUE(installation_.clientStarted()) << result.err;
        return result;
    }

    void expectOnly(const std::string& number) {
        EXPECT_EQ(ReadFile(installation_.app("Contents/Resources/INFO")), VersionFile(number));
        int others = 0;
        for (const auto& entry : fs::directory_iterator(installation_.user())) {
            const std::string name = entry.path().filename();
            others += strcasecmp(name.c_str(), "Tarnwell.app") != 0 && name != "log" ? 1 : 0;
        }
        EXPECT_EQ(others, 0);
    }

    static constexpr char kClient[] = "#!/bin/sh\necho >>\"$HOME/started\"\n";

    Installation installation_;
    const CaseIgnoringVolume volume_{installation_.home(), GetParam()};
};

INSTANTIATE_TEST_SUITE_P(, CaseIgnoringHomeTest,
                         testing::Values(CaseIgnoringVolume::ExFat, CaseIgnoringVolume::Ntfs));

TEST_P(CaseIgnoringHomeTest, InstallsUpgradesAndRollsBack) {
    EXPECT_EQ(runWith("100", {{"Contents/old"}}).log, "");
    expectOnly("100");
    EXPECT_EQ(runWith("101", {{"Contents/new"}}).log, "");
    expectOnly("101");
    EXPECT_FALSE(Exists(installation_.app("Contents/old")));
    const Installation::Result refused = runWith("102", {{"Contents/name"}, {"Contents/NAME"}});
    EXPECT_TRUE(HasOneLine(refused.log, "refused entry 'Contents/NAME'")) << refused.log;
    EXPECT_TRUE(HasOneLine(refused.log, "rollback to old installation")) << refused.log;
    expectOnly("101");
}

// So does a Mac start a bundle that was downloaded and isn't moved to its place.
TEST(ReadOnlyBundleTest, InstallsAndStartsTheClient) {
    Installation installation;
    const std::string bundle = installation.bundle("");
    if (unshare(CLONE_NEWNS) != 0 ||
        mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount(bundle.c_str(), bundle.c_str(), nullptr, MS_BIND, nullptr) != 0 ||
        mount("none", bundle.c_str(), nullptr, MS_REMOUNT | MS_BIND | MS_RDONLY, nullptr) != 0) {
        GTEST_SKIP() << "only root can mount here, where it is allowed to";
    }
    ASSERT_FALSE(std::ofstream(installation.bundle("file")).good());
    for (int start = 0; start < 2; ++start) {
        EXPECT_EQ(installation.run().log, "");
        EXPECT_TRUE(installation.clientStarted());
        EXPECT_EQ(Tree(installation.app()), installation.expectedApp("100"));
    }
}

}  // namespace
