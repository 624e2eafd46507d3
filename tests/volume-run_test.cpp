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

class CaseIgnoringHomeTest : public testing::TestWithParam<CaseIgnoringVolume::Kind>,
                             protected Installation {
  protected:
    void SetUp() override {
        if (!volume_.mounted()) {
            GTEST_SKIP() << "this user may not mount such a volume, or the tools are missing";
        }
    }

    // Of a package without links, which not each of these volumes has.
    std::string logOfRunWith(const std::string& number, std::vector<Entry> entries) {
        setBuild(number);
        entries.push_back({"Contents/Info.plist", kInfoPlist});
        entries.push_back({"Contents/Resources/INFO", VersionFile(number)});
        entries.push_back(
            {"Contents/MacOS/tarnwell-ui", "#!/bin/sh\necho >>\"$HOME/started\"\n", 0755});
        MakeArchive(package(), "zip", entries);
        const std::string log = run().log;
        EXPECT_TRUE(clientStarted()) << log;
        return log;
    }

    void expectOnly(const std::string& number) const {
        EXPECT_EQ(ReadFile(app("Contents/Resources/INFO")), VersionFile(number));
        for (const auto& entry : fs::directory_iterator(user())) {
            const std::string name = entry.path().filename();
            EXPECT_TRUE(name == "log" || strcasecmp(name.c_str(), "Tarnwell.app") == 0) << name;
        }
    }

    const CaseIgnoringVolume volume_{home(), GetParam()};
};

INSTANTIATE_TEST_SUITE_P(, CaseIgnoringHomeTest,
                         testing::Values(CaseIgnoringVolume::ExFat, CaseIgnoringVolume::Ntfs));

TEST_P(CaseIgnoringHomeTest, InstallsUpgradesAndRollsBack) {
    EXPECT_EQ(logOfRunWith("100", {{"Contents/old"}}), "");
    expectOnly("100");
    EXPECT_EQ(logOfRunWith("101", {{"Contents/new"}}), "");
    expectOnly("101");
    EXPECT_FALSE(Exists(app("Contents/old")));
    const std::string log = logOfRunWith("102", {{"Contents/name"}, {"Contents/NAME"}});
    EXPECT_TRUE(HasOneLine(log, "refused entry 'Contents/NAME'")) << log;
    EXPECT_TRUE(HasOneLine(log, "rollback to old installation")) << log;
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
