// Checks bundles with the packaging tool, and what an installation and the scripts create.

#include "tests/support/packing.h"

namespace {

// In the shell, $B is the bundle's path, $DEMO the client application of the build tree, and the
// function install runs `cmake --install`.
class BundleTest : public Packing {
  protected:
    BundleTest() {
        prelude_ =
            "unset DESTDIR TARNWELL_APP; DEMO='" BUILD
            "/packaging/client/Tarnwell.app'; B=$PWD/../bundle/Tarnwell.app; install() { '" CMAKE
            "' --install '" BUILD "' \"$@\"; }";
    }
    Result copyBundle() const {
        return shell("rm -rf ../bundle; mkdir ../bundle; cp -R '" BUILD "/Tarnwell.app' ../bundle");
    }
    const std::string bundle_ = app_ + "/../bundle/Tarnwell.app";
};

TEST_F(BundleTest, RefusesWhatWouldNotUpgradeOrStart) {
    const std::string number = "sed -i 's,<string>[0-9][0-9][0-9]<,<string>";
    const std::string closed = ": isn't accessible to every user";
    const std::pair<std::string, std::string> rows[] = {
        {"rm $B/$I", "$I: is missing; copy the INFO of the packed application there"},
        {"chmod 600 $B/$I", "$I" + closed + "; chmod -R go+rX the"},
        {"chmod 640 $B/$R/package/*", "$R/package/tarnwell.opk" + closed},
        {"chmod 700 $B", "." + closed},
        {"chmod 700 $B/Contents/MacOS", "Contents/MacOS" + closed},
        {"chmod 744 $B/Contents/MacOS/*", "Contents/MacOS/tarnwell-launcher" + closed},
        {"mkdir $B/log; : >$B/log/launcher.debug", "log/launcher.debug: is a level file, which"},
        {"sed -i s/build_version=.*/build_version=7/ $B/$I; " + number + "7<,' $B/$P",
         "$I: says build 7, but the package is build "},
        {number + "999<,' $B/$P", "$P: has the CFBundleVersion '999', but INFO says build "},
        {"rm $B/$R/package/*", "$R/package/tarnwell.opk: is missing; put the package there"},
        {": >$B/$R/package/tarnwell.opk", "$R/package/tarnwell.opk: isn't a file with content"},
        {"truncate -s -9 $B/$R/package/*", "$R/package/tarnwell.opk: is damaged"},
        {"rm $B/$R/images/*", "$R/images/ico_72_tarnwell.png: is missing; put"},
        {"rm $B/Contents/Frameworks/plugins/platforms/*",
         "Contents/Frameworks/plugins/platforms: has no plug-in, without which Qt aborts the l"},
        {"rm $B/Contents/MacOS/*", "Contents/MacOS/tarnwell-launcher: is missing; put the"},
        // A bundle with a Mac client and a Linux launcher.
        {"cp -R $DEMO ../mac; printf '\\317\\372\\355\\376\\7\\0\\0\\1\\3\\0\\0\\0\\2\\0\\0\\0' "
         ">../mac/$C; $MAKE ../mac $B/$R/package/tarnwell.opk 2>&-; rm -r ../mac",
         "$R/package/tarnwell.opk: its client is a Mac program (Mach-O), but the launcher is a L"}};
    for (const auto& [arrange, message] : rows) {
        SCOPED_TRACE(arrange);
        copyBundle();
        shell(arrange);
        expectRefusal("$MAKE --check $B", "$B/" + message);
    }
    copyBundle();
    EXPECT_EQ(shell("$MAKE --check $B").out.rfind(bundle_ + ": good: build ", 0), 0u);
    // Checking the package inside a bundle also checks the bundle.
    EXPECT_EQ(shell("rm $B/$I; $MAKE --check $B/$R/package/tarnwell.opk").code, 1);
}

TEST_F(BundleTest, AnInstallationIsWhatWasBuiltAndNeedsAClient) {
    EXPECT_EQ(shell("install --prefix ../bundle").code, 1);
    EXPECT_EQ(shell("chmod -x $C; TARNWELL_APP=. install --prefix ../bundle").code, 1);
    EXPECT_FALSE(Exists(bundle_));
    EXPECT_EQ(shell("umask 077; TARNWELL_APP=$DEMO install --prefix ../bundle").code, 0);
    EXPECT_EQ(Tree(bundle_), Tree(BUILD "/Tarnwell.app"));
    EXPECT_EQ(shell("find $B -type d ! -perm 755; find $B -type f ! -perm 644").out,
              bundle_ + "/Contents/MacOS/tarnwell-launcher\n");
}

TEST_F(BundleTest, TakesNamesNumberAndIconsFromTheClient) {
    const auto makeBundle = [&](const std::string& options) {
        return shell("TARNWELL_BUILD='" BUILD "' '" SOURCE "/scripts/make-bundle' " + options +
                     " . ../bundle");
    };
    Result result = makeBundle("");
    EXPECT_EQ(result.code, 1);
    EXPECT_TRUE(HasOneLine(result.err, "the launcher's dialog there")) << result.err;
    EXPECT_TRUE(Tree(folder_ / "bundle").empty());

    MakeFile(app_ + "/Contents/Resources/images/ico_72_tarnwell.png", "icon");
    shell("cp $DEMO/$R/tarnwell.icns $R/sync.icns; chmod 600 $R/sync.icns");
    MakeFile(app_ + "/" + kPackedPlist, R"(<plist><dict>
        <key>CFBundleExecutable</key><string>tarnwell-ui</string>
        <key>CFBundleIconFile</key><string>sync.icns</string>
        <key>CFBundleIdentifier</key><string>org.example.sync</string>
        <key>CFBundleName</key><string>Up &amp; Down</string>
        <key>CFBundleShortVersionString</key><string>4.2</string></dict></plist>)");
    result = makeBundle("");
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(result.out.rfind("../bundle/Tarnwell.app: good: build 101, 14 entries", 0), 0u);
    const std::string made = ReadFile(bundle_ + "/" + kPackedPlist);
    for (const std::string value : {"tarnwell-launcher", "sync", "org.example.sync.launcher",
                                    "Up &amp; Down", "4.2", "101"}) {
        EXPECT_NE(made.find("<string>" + value + "</string>"), std::string::npos) << made;
    }
    EXPECT_EQ(ReadFile(bundle_ + "/" + kPackedInfo), VersionFile("101"));
    EXPECT_EQ(shell("cmp $R/sync.icns $B/$R/sync.icns").code, 0);

    EXPECT_EQ(shell("TARNWELL_APP=. install --component desktop --prefix ../usr >&2; grep Name= "
                    "../usr/share/applications/org.example.sync.desktop")
                  .out,
              "Name=Up & Down\n");

    // An existing bundle is replaced as a whole. A folder that isn't a bundle isn't replaced.
    EXPECT_EQ(shell("mkdir $B/log; : >$B/log/launcher.debug").code, 0);
    result = makeBundle("");
    EXPECT_TRUE(HasOneLine(result.err, "warning: no user of the bundle that is replaced"));
    EXPECT_FALSE(Exists(bundle_ + "/log"));
    EXPECT_EQ(makeBundle("--newer-than $B/$R/package/tarnwell.opk").code, 1);
    EXPECT_EQ(shell("rm -r $B/*; echo mine >$B/mine").code, 0);
    EXPECT_EQ(makeBundle("").code, 1);
    EXPECT_EQ(Tree(folder_ / "bundle").size(), 2u);
}

TEST_F(BundleTest, ADesktopCanShowAndStartIt) {
    ASSERT_EQ(
        shell("umask 077; TARNWELL_APP=$DEMO install --component desktop --prefix ../usr").code, 0);
    EXPECT_EQ(shell("desktop-file-validate ../usr/share/applications/*.desktop").out, "");
    const Result result =
        shell("appstreamcli validate --no-net ../usr/share/metainfo/*.metainfo.xml");
    EXPECT_EQ(result.code, 0) << result.out;
    // The size of each icon, which a PNG has after its first 16 bytes.
    EXPECT_EQ(shell("cd ../usr/share/icons/hicolor; for s in 16 32 48 72 128 256 512; do "
                    "od -An --endian=big -td4 -j16 -N8 ${s}x$s/apps/com.orvane.tarnwell.png; done |"
                    "tr -s '[:space:]' ' '")
                  .out,
              " 16 16 32 32 48 48 72 72 128 128 256 256 512 512 ");
    EXPECT_EQ(shell("readlink ../usr/bin/tarnwell").out,
              "../lib/tarnwell/Tarnwell.app/Contents/MacOS/tarnwell-launcher\n");
    EXPECT_EQ(shell("find ../usr ! -perm -a=r").out, "");
}

}  // namespace
