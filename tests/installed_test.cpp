// Tests reading the version file of an installation and finding its client.

#include <filesystem>

#include "tests/support/folder-test.h"
#include "ui-client/launcher/client-file.h"
#include "ui-client/launcher/version-file.h"

namespace fs = std::filesystem;

namespace {

using platform::Presence;
using platform::Reading;

class InstalledTest : public FolderTest {
  protected:
    Reading load(VerInfo& version) const {
        return LoadVersion(info_.c_str(), version, app_.c_str());
    }

    const std::string app_ = folder_ / "My.app";
    const std::string info_ = app_ + "/Contents/Resources/INFO";
    const std::string client_ = app_ + "/Contents/MacOS/tarnwell-ui";
};

TEST_F(InstalledTest, TheVersionIsTheTextOfTheGroup) {
    MakeFile(info_,
             "build_version=1\n[Version]\nbuild_version=0042\nmajor_version=\"a b\"\n"
             "[Other]\nminor_version=3\n");
    VerInfo version;
    version.minor_version = "kept";
    EXPECT_EQ(load(version), Reading::Done);
    EXPECT_EQ(version.major_version, "a b");
    EXPECT_EQ(version.minor_version, "kept");
    EXPECT_EQ(version.build_version, "0042");
    EXPECT_EQ(version.icon_overlay_version, "");
}

TEST_F(InstalledTest, AReplacedVersionFileIsReadAnew) {
    for (const char* const number : {"100", "101"}) {
        MakeFile(info_, std::string("[Version]\nbuild_version=") + number);
        fs::last_write_time(info_, fs::file_time_type());
        VerInfo version;
        EXPECT_EQ(load(version), Reading::Done);
        EXPECT_EQ(version.build_version, number);
    }
}

// Creates each kind of object as the version file and as the client, and checks both results.
TEST_F(InstalledTest, NothingButARegularFileInsideIsRead) {
    MakeFile("outside", "[Version]\nbuild_version=1");
    MakeFile("My.app-evil/file", "[Version]\nbuild_version=1");
    using Make = std::function<void(const std::string& path)>;
    const auto file = [](const std::string& text, mode_t mode = 0644) -> Make {
        return [=](const std::string& path) { MakeFile(path, text, mode); };
    };
    const auto link_to = [](const std::string& target) -> Make {
        return [=](const std::string& path) { MakeLink(target, path); };
    };
    const Make pipe = [](const std::string& path) { mkfifo(path.c_str(), 0644); };
    const Make loop = [](const std::string& path) { MakeLink(path, path); };
    const struct {
        Reading reading;
        Presence presence;
        std::vector<Make> objects;
    } cases[] = {
        {Reading::Done, Presence::There, {file("x"), link_to("../real")}},
        {Reading::Done, Presence::NotThere, {file("")}},
        {Reading::Missing, Presence::NotThere, {[](const std::string&) {}, link_to("nowhere")}},
        {Reading::Refused, Presence::There, {file("x", 0), file(std::string((1 << 20) + 1, 'x'))}},
        {Reading::Refused,
         Presence::NotThere,
         {MakeFolder, pipe, loop, link_to("/dev/zero"), link_to("../../../outside"),
          link_to("../../../My.app-evil/file")}}};
    for (const auto& [reading, presence, objects] : cases) {
        for (const Make& make : objects) {
            SCOPED_TRACE(&make - objects.data());
            fs::remove_all(app_);
            MakeFile(app_ + "/Contents/real", "x");
            MakeFolder(fs::path(info_).parent_path());
            MakeFolder(fs::path(client_).parent_path());
            make(info_);
            make(client_);
            const AsNobody nobody;
            VerInfo version;
            EXPECT_EQ(load(version), reading);
            EXPECT_EQ(FindClient(app_), presence);
        }
    }
}

TEST_F(InstalledTest, WhatTheSystemCannotTellIsNoAnswer) {
    MakeFile(info_, "[Version]\nbuild_version=1");
    MakeFile(client_, "x");
    VerInfo version;
    // Copies, because the sanitizers need descriptors to check an access to a member.
    const auto load_without_descriptors = [&version, app = app_, info = info_] {
        const FewDescriptors none(0);
        const Reading reading = LoadVersion(info.c_str(), version, app.c_str());
        return std::pair(reading, errno);
    };
    EXPECT_EQ(load_without_descriptors(), std::pair(Reading::Failed, EMFILE));
    EXPECT_EQ(LoadVersion("/proc/self/mem", version),
              Exists("/proc/self/mem") ? Reading::Failed : Reading::Missing);
    EXPECT_EQ(version.build_version, "");
    ASSERT_EQ(chmod((app_ + "/Contents").c_str(), 0), 0);
    {
        const AsNobody nobody;
        EXPECT_EQ(FindClient(app_), Presence::CantTell);
        EXPECT_EQ(load(version), Reading::Refused) << "a later try would fail too";
    }
    chmod((app_ + "/Contents").c_str(), 0755);
    EXPECT_EQ(FindClient(app_), Presence::There);
}

}  // namespace
