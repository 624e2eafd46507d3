// The packaging tool, and the bundle that an installation lays out, through the programs
// themselves.

#include <sys/prctl.h>
#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <future>
#include <random>

#include "tests/support/installation.h"

namespace fs = std::filesystem;

namespace {

const std::string kClient = "Contents/MacOS/tarnwell-ui";
const std::string kInfo = "Contents/Resources/INFO";
const std::string kPlist = "Contents/Info.plist";
const std::string kSummer = "Contents/Resources/\xC3\xA9t\xC3\xA9";

const std::string kScript = "#!/bin/sh\necho $$ >>\"$HOME/started\"\n";
const std::string kPlistText =
    "<plist><dict><key>CFBundleExecutable</key><string>tarnwell-ui</string></dict></plist>";
std::string InfoText(const std::string& number) {
    return "[Version]\nmajor_version=2\nbuild_version=" + number + "\n";
}

std::string Noise(std::size_t size) {
    std::string noise(size, 0);
    std::generate(noise.begin(), noise.end(), std::minstd_rand());
    return noise;
}

class PackageTest : public testing::Test {
  protected:
    PackageTest() {
        makeApp(app_, false);
        MakeFile(out_, "old");
    }

    static void makeApp(const std::string& app, bool backwards) {
        std::vector<std::function<void()>> steps = {
            [&] { MakeFile(app + "/" + kClient, kScript, 0755); },
            [&] { MakeFile(app + "/Contents/MacOS/helper", Noise(200000), 0555); },
            [&] { MakeFile(app + "/" + kInfo, InfoText("101")); },
            [&] { MakeFile(app + "/" + kSummer, "summer", 0640); },
            [&] { MakeFile(app + "/Contents/Resources-a", ""); },
            [&] { MakeLink("../MacOS/../Resources", app + "/Contents/MacOS/link"); },
            [&] { MakeLink("link/./\xC3\xA9t\xC3\xA9", app + "/Contents/MacOS/far"); },
            [&] { MakeFile(app + "/" + kPlist, kPlistText); }};
        if (backwards) {
            std::reverse(steps.begin(), steps.end());
        }
        for (const auto& step : steps) {
            step();
        }
    }

    struct Result {
        int code;
        std::string out;
        std::string err;
    };
    // What a shell in the application folder makes of a command. $MAKE is the tool, $OUT the
    // package's path, and C, I, P and R stand for places in the application; begun waits until a
    // package is being written.
    Result shell(const std::string& command) {
        const std::string line = "cd '" + app_ + "'; MAKE='" MAKE_PACKAGE "'; OUT='" + out_ +
                                 "'; C=" + kClient + " I=" + kInfo + " P=" + kPlist +
                                 " R=Contents/Resources; begun() { for i in $(seq 500); do "
                                 "[ ! -e $OUT.?????? ] || break; sleep 0.01; done; }; { " +
                                 command + "; } >'" + (folder_ / "stdout") + "' 2>'" +
                                 (folder_ / "stderr") + "'";
        // NOLINTNEXTLINE(cert-env33-c): the tool is called as its users call it
        const int status = std::system(line.c_str());
        return {WEXITSTATUS(status), ReadFile(folder_ / "stdout"), ReadFile(folder_ / "stderr")};
    }
    Result pack() { return shell("$MAKE . $OUT"); }
    Result check() { return shell("$MAKE --check $OUT"); }

    // Told in one line that begins like this.
    static void expectRefusal(const Result& result, const std::string& beginning) {
        EXPECT_EQ(result.code, 1);
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err.rfind("make-package: " + beginning, 0), 0u)
            << result.err << "instead of " << beginning;
        EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1) << result.err;
    }
    // The package is as it was, and nothing is beside it.
    void expectUntouched() {
        EXPECT_EQ(Tree(folder_ / "out"), (FileTree{{"x.opk", DescribeFile(0644, "old")}}));
    }

    const Folder folder_;
    const std::string app_ = folder_ / "app";
    const std::string out_ = folder_ / "out/x.opk";
};

TEST_F(PackageTest, TheSameTreeGivesTheSameBytes) {
    EXPECT_EQ(pack().out, out_ + ": build 101, 11 entries\n");
    const std::string bytes = ReadFile(out_);
    EXPECT_EQ(shell("rm $OUT; chown -hR nobody . || test $(id -u) != 0").code, 0);
    EXPECT_EQ(shell("find . -exec touch -h -d '1999-12-31 23:59:59' {} +").code, 0);
    makeApp(folder_ / "copy", true);
    const std::string elsewhere = "umask 077; export LC_ALL=C TZ=Asia/Tokyo; cd ../copy; ";
    EXPECT_EQ(shell(elsewhere + "$MAKE ../copy/ ../out/x.opk").code, 0);
    EXPECT_TRUE(ReadFile(out_) == bytes);
    EXPECT_EQ(shell(elsewhere + "sleep 1; $MAKE ../app $OUT").code, 0);
    EXPECT_TRUE(ReadFile(out_) == bytes);
    EXPECT_EQ(shell("stat -c %a $OUT").out, "644\n");
}

TEST_F(PackageTest, KeepsModesAndLinksAndPutsTheClientLast) {
    shell("chmod 2750 $R; ln $C Contents/MacOS/again; $MAKE . $OUT");
    const Result list = shell("LC_ALL=C.UTF-8 bsdtar -tvf $OUT | sed 's/ .* Contents/ /'");
    EXPECT_EQ(list.out,
              "drwxr-xr-x /\n-rw-r--r-- /Info.plist\ndrwxr-xr-x /MacOS/\n-rwxr-xr-x /MacOS/again\n"
              "lrwxrwxrwx /MacOS/far -> link/./\xC3\xA9t\xC3\xA9\n"
              "-r-xr-xr-x /MacOS/helper\nlrwxrwxrwx /MacOS/link -> ../MacOS/../Resources\n"
              "drwxr-x--- /Resources/\n-rw-r--r-- /Resources-a\n-rw-r--r-- /Resources/INFO\n"
              "-rw-r----- /Resources/\xC3\xA9t\xC3\xA9\n-rwxr-xr-x /MacOS/tarnwell-ui\n");
}

TEST_F(PackageTest, RefusesWhatWouldFailOnAUsersMachine) {
    const std::string res = "Contents/Resources/";
    const std::string deep = std::string(250, 'd') + "/" + std::string(250, 'e') + "/" +
                             std::string(250, 'f') + "/" + std::string(50, 'g');
    const std::string info = "printf '[Version]\\nbuild_version=%s\\n' ";
    const std::string number = "has no build_version from 1 to 2147483647 in its group [Version]";
    const std::string plist =
        "printf '<plist><dict><key>CFBundleExecutable</key><string>%s</string"
        "></dict></plist>' ";
    const struct {
        std::string arrange;
        std::string where;
        std::string what;
    } rows[] = {
        {"rm $C", kClient, "is missing; put the client's executable there"},
        {"mv $C $R; ln -s ../Resources/tarnwell-ui $C", kClient, "isn't a file with content"},
        {": >$C", kClient, "isn't a file with content"},
        {"chmod 655 $C", kClient, "isn't executable; chmod 755"},
        {"rm $I", kInfo, "is missing; write the version file"},
        {"echo major_version=1 >$I", kInfo, number + ", but ''"},
        {"echo build_version=1 >$I", kInfo, number + ", but ''"},
        {info + "12b >$I", kInfo, number + ", but '12b'"},
        {info + "-5 >$I", kInfo, number},
        {info + "0 >$I", kInfo, number},
        {info + "0042 >$I", kInfo, number},
        {info + "2147483648 >$I", kInfo, number},
        {"rm $P", kPlist, "is missing; without it the application can't be opened"},
        {"echo bplist00 >$P", kPlist, "isn't an XML property list with the key CFBundleExecutable"},
        {plist + "ui >$P", "Contents/MacOS/ui", "is missing; CFBundleExecutable in"},
        {plist + "far >$P", "Contents/MacOS/far", "isn't a file with content; CFBundleExecutable"},
        {"touch \"$(printf 'caf\\351\\n.')\"", "caf\\xE9\\x0A.", "isn't named in UTF-8; rename it"},
        {"touch cafe\xCC\x81", "cafe\xCC\x81", "has a name that isn't in Unicode's composed form"},
        {"touch $R/info", res + "info", "differs from 'Contents/Resources/INFO' in letter case"},
        {"touch $R/\xC3\x89T\xC3\x89", kSummer, "differs from 'Contents/Resources/\xC3\x89T\xC3"},
        {"mkdir contents", "contents", "differs from 'Contents' in letter case only"},
        {"mkdir -p $(dirname " + deep + "); touch " + deep, deep, "has a path of more than 800"},
        {"mkfifo pipe", "pipe", "is a pipe, socket or device, which the launcher refuses"},
        {"chmod u+s $C", kClient, "is set-user-id or set-group-id"},
        {"chmod g+s $C", kClient, "is set-user-id or set-group-id"},
        {"chmod u-r $I", kInfo, "can't be read by its owner; chmod u+r"},
        {"chmod u-w $R", "Contents/Resources", "is a folder that its owner can't read, write and"},
        {"ln -s $PWD/$I $R/a", res + "a", "is a link to an absolute path"},
        {"ln -s ../../../app/Contents $R/a", res + "a", "is a link that leads out of the app"},
        {"ln -s ../MacOS/link/../../.. $R/a", res + "a", "is a link that leads out of the app"},
        {"ln -s ../MacOS/INFO $R/a", res + "a", "is a link to nothing"},
        {"ln -s INFO/x $R/a", res + "a", "is a link to nothing"},
        {"ln -s ../Resources/a $R/a", res + "a", "is a link that leads in a circle"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.arrange);
        expectRefusal(shell(row.arrange + "; $MAKE . $OUT"), "./" + row.where + ": " + row.what);
        EXPECT_EQ(shell("chmod u+w $R; rm -rf ../app").code, 0);
        makeApp(app_, false);
    }
    expectRefusal(shell("ln -s $PWD ../way; $MAKE . ../way/x.opk"),
                  "../way/x.opk: lies in the application folder");
    expectRefusal(shell("$MAKE . none/x.opk"), "none/x.opk: has no folder to stand in");
    expectRefusal(shell("$MAKE . ../out"), "../out: is a folder; name the file to make");
    expectRefusal(shell("$MAKE $OUT $OUT"), out_ + ": isn't an application folder");
    EXPECT_EQ(shell("$MAKE .").code, 2);
    expectUntouched();
}

TEST_F(PackageTest, AFailureLeavesNoHalfPackage) {
    expectRefusal(shell("trap '' XFSZ; ulimit -f 100; $MAKE . $OUT"),
                  out_ + ": can't be written: File too large");
    MakeFile(app_ + "/noise", Noise(16 << 20));
    expectRefusal(shell("$MAKE . $OUT & begun; kill $!; wait $!"),
                  out_ + ": was interrupted; run again");
    expectRefusal(shell("$MAKE . $OUT & begun; touch new; wait $!"), ".: was changed while it was");
    expectRefusal(shell("$MAKE . $OUT & begun; : >noise; wait $!"), "./noise: was changed while");
    expectUntouched();
}

TEST_F(PackageTest, ChecksWhetherTheLauncherTakesAPackage) {
    EXPECT_EQ(pack().code, 0);
    EXPECT_EQ(check().out, out_ + ": the launcher takes it: build 101, 11 entries\n");
    shell("truncate -s -30 $OUT");
    expectRefusal(check(), out_ + ": the launcher can't unpack it: the archive was cut off after");
    MakeFile(out_, "text");
    expectRefusal(check(), out_ + ": the launcher can't unpack it: ");
    expectRefusal(shell("$MAKE --check none"), "none: isn't a file");

    const std::vector<Entry> rest = {{kPlist, kPlistText}, {kInfo, InfoText("7")}};
    const Entry client = {"./" + kClient, kScript, 0755};
    MakeArchive(out_, "tar.gz", {rest[0], rest[1], client});
    EXPECT_EQ(check().out, out_ + ": the launcher takes it: build 7, 6 entries\n");
    EXPECT_EQ(check().err, "");
    MakeArchive(out_, "tar", {rest[0], rest[1], client});
    EXPECT_TRUE(HasOneLine(check().err, out_ + ": has no checksum over its content"))
        << check().err;
    EXPECT_EQ(check().code, 0);
    MakeArchive(out_, "zip", {rest[0], {"../x", "evil"}, rest[1], client});
    expectRefusal(check(), out_ + ": the launcher can't unpack it: archive_read_extract2 failed");
    MakeArchive(out_, "zip", {client, rest[0], rest[1]});
    expectRefusal(check(), out_ + ": doesn't end with " + kClient);
    MakeArchive(out_, "zip", rest);
    expectRefusal(check(), out_ + "/" + kClient + ": is missing");
}

// What a user gets, from the build tree to an upgrade of the running client.
TEST_F(PackageTest, AnInstalledBundleInstallsAndUpgrades) {
    ASSERT_EQ(prctl(PR_SET_CHILD_SUBREAPER, 1), 0);  // the clients are ours to wait for
    Installation installation;
    const std::string bundle = fs::path(installation.bundle("")).parent_path();
    fs::remove_all(bundle);
    const std::string install = "umask 077; unset DESTDIR; '" CMAKE "' --install '" BUILD "' ";
    ASSERT_EQ(shell(install + "--prefix " + fs::path(bundle).parent_path().native()).code, 0);
    FileTree tree = Tree(bundle);
    EXPECT_EQ(tree, Tree(BUILD "/Tarnwell.app"));
    for (const auto& [name, description] : tree) {
        const bool executable = name == "Contents/MacOS/tarnwell-launcher";
        const std::string start = executable ? "file 0755" : "file 0644";
        EXPECT_TRUE(description == "folder" || description.rfind(start, 0) == 0) << name;
    }
    EXPECT_EQ(shell("find " + bundle + " -type d ! -perm 755").out, "");
    installation.run();
    EXPECT_EQ(Tree(installation.app()), Tree(BUILD "/packaging/client/Tarnwell.app"));
    const std::string pid_file = installation.user("ui.pid");
    ASSERT_TRUE(WaitFor([&] { return ReadFile(pid_file).find('\n') != std::string::npos; }));
    const pid_t client = std::stoi(ReadFile(pid_file).substr(4));
    auto end = std::async(std::launch::async, [&] { return Installation::wait(client); });

    EXPECT_EQ(shell("sed -i s/101/2000000000/ $I; $MAKE . " + installation.package()).code, 0);
    const std::string info = installation.bundle(kInfo);
    expectRefusal(shell("$MAKE --check " + installation.package()), info + ": says build ");
    EXPECT_EQ(shell("cp $I " + info + "; $MAKE --check " + installation.package()).code, 0);
    installation.run();
    EXPECT_EQ(end.get(), 0);
    EXPECT_EQ(Tree(installation.app()), Tree(app_));
    EXPECT_TRUE(installation.clientStarted());
}

}  // namespace
