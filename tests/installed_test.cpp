// Tests reading the version file of an installation and finding its client.

#include <sys/stat.h>
#include <utime.h>

#include <filesystem>
#include <tuple>

#include "tests/support/scenario.h"
#include "tests/support/system.h"
#include "ui-client/launcher/client-file.h"
#include "ui-client/launcher/version-file.h"

namespace fs = std::filesystem;

namespace {

using platform::Presence;
using platform::Reading;

class InstalledTest : public testing::Test {
  protected:
    Reading load(VerInfo& version) const {
        return LoadVersion(info_.c_str(), version, app_.c_str());
    }

    Folder folder_;
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
    EXPECT_EQ(std::make_tuple(version.major_version, version.minor_version, version.build_version,
                              version.icon_overlay_version),
              std::make_tuple(ustring("a b"), ustring("kept"), ustring("0042"), ustring("")));
}

TEST_F(InstalledTest, AReplacedVersionFileIsReadAnew) {
    for (const char* const number : {"100", "101"}) {
        MakeFile(info_, std::string("[Version]\nbuild_version=") + number);
        const utimbuf time = {1, 1};
        ASSERT_EQ(utime(info_.c_str(), &time), 0);
        VerInfo version;
        EXPECT_EQ(load(version), Reading::Done);
        EXPECT_EQ(version.build_version, number);
    }
}

// Creates each kind of object as the version file and as the client, and checks both results.
TEST_F(InstalledTest, NothingButARegularFileInsideIsRead) {
    MakeFile(folder_ / "outside", "[Version]\nbuild_version=1");
    MakeFile(folder_ / "My.app-evil/file", "[Version]\nbuild_version=1");
    using Make = std::function<void(const std::string& path)>;
    const auto file = [](const std::string& text, mode_t mode = 0644) -> Make {
        return [=](const std::string& path) { MakeFile(path, text, mode); };
    };
    const auto link_to = [](const char* target) -> Make {
        return [=](const std::string& path) { MakeLink(target, path); };
    };
    const Make pipe = [](const std::string& path) { mkfifo(path.c_str(), 0644); };
    const struct {
        const char* what;
        Make make;
        Reading reading;
        Presence presence;
    } cases[] = {
        {"nothing", [](const std::string&) {}, Reading::Missing, Presence::NotThere},
        {"file", file("x"), Reading::Done, Presence::There},
        {"empty", file(""), Reading::Done, Presence::NotThere},
        {"large", file(std::string((1 << 20) + 1, 'x')), Reading::Refused, Presence::There},
        {"unreadable", file("x", 0), Reading::Refused, Presence::There},
        {"folder", MakeFolder, Reading::Refused, Presence::NotThere},
        {"pipe", pipe, Reading::Refused, Presence::NotThere},
        {"link inside", link_to("../real"), Reading::Done, Presence::There},
        {"device", link_to("/dev/zero"), Reading::Refused, Presence::NotThere},
        {"link out", link_to("../../../outside"), Reading::Refused, Presence::NotThere},
        {"neighbour", link_to("../../../My.app-evil/file"), Reading::Refused, Presence::NotThere},
        {"dangling", link_to("nowhere"), Reading::Missing, Presence::NotThere},
        {"loop", [](const std::string& path) { MakeLink(path, path); }, Reading::Refused,
         Presence::NotThere}};
    for (const auto& row : cases) {
        SCOPED_TRACE(row.what);
        fs::remove_all(app_);
        MakeFile(app_ + "/Contents/real", "x");
        MakeFolder(fs::path(info_).parent_path());
        MakeFolder(fs::path(client_).parent_path());
        row.make(info_);
        row.make(client_);
        const AsNobody nobody;
        VerInfo version;
        EXPECT_EQ(load(version), row.reading);
        EXPECT_EQ(FindClient(app_), row.presence);
    }
}

TEST_F(InstalledTest, WhatTheSystemCannotTellIsNoAnswer) {
    MakeFile(info_, "[Version]\nbuild_version=1");
    MakeFile(client_, "x");
    VerInfo version;
    // Local copies, because the sanitizers need descriptors to check an access to a member.
    const std::string app = app_;
    const std::string info = info_;
    Reading reading = Reading::Done;
    int error = 0;
    {
        const FewDescriptors none(0);
        reading = LoadVersion(info.c_str(), version, app.c_str());
        error = errno;
    }
    EXPECT_EQ(reading, Reading::Failed);
    EXPECT_EQ(error, EMFILE);
    const std::string file = UnreadableFile();
    EXPECT_EQ(LoadVersion(file.c_str(), version),
              file.empty() ? Reading::Missing : Reading::Failed);
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
