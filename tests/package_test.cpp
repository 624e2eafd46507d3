// The packaging tool, through the program itself: making packages, and checking folders and
// packages.

#include <unistd.h>

#include <algorithm>

#include "tests/support/packing.h"
#include "tests/support/system.h"

namespace {

using PackageTest = Packing;

struct Refusal {
    std::string arrange;
    std::string where;
    std::string what;
};

TEST_F(PackageTest, TheSameTreeGivesTheSameBytes) {
    makeApp(folder_ / "copy", true);
    for (const std::string format : {"tar.zst", "tar.gz", "tar.xz", "zip"}) {
        SCOPED_TRACE(format);
        const std::string make = "rm -f $OUT; $MAKE --format " + format + " ";
        const Result result = shell(make + ". $OUT; sha256sum <$OUT | sed 's/ .*//'; wc -c <$OUT");
        const std::string bytes = ReadFile(out_);
        const std::string size = std::to_string(bytes.size());
        const std::string sum = result.out.substr(result.out.find("SHA-256: ") + 9, 64);
        EXPECT_EQ(result.out, out_ + ": build 101, 11 entries, " + size +
                                  " bytes\nSHA-256: " + sum + "\n" + sum + "\n" + size + "\n");
        EXPECT_EQ(check().out, out_ + ": good: build 101, 11 entries, " + size +
                                   " bytes\nSHA-256: " + sum + "\n");
        shell("chown -hR nobody . || test $(id -u) != 0");
        shell("find . -exec touch -h -d '1999-12-31 23:59:59' {} +");
        const std::string elsewhere = "umask 077; export LC_ALL=C TZ=Asia/Tokyo; cd ../copy; ";
        EXPECT_EQ(shell(elsewhere + make + "../copy/ ../out/x.opk").code, 0);
        EXPECT_TRUE(ReadFile(out_) == bytes);
        EXPECT_EQ(shell("stat -c %a $OUT").out, "644\n");
    }
}

TEST_F(PackageTest, KeepsModesAndLinksAndPutsTheClientLast) {
    const Result result = shell(
        "chmod 2750 $R; ln $C Contents/MacOS/again; for i in .DS_Store ._INFO desktop.ini; do "
        "echo x >$R/$i; done; $MAKE . $OUT");
    EXPECT_EQ(result.err,
              "make-package: warning: Contents/Resources/.DS_Store: left out, as it isn't part of "
              "an application\nmake-package: warning: Contents/Resources/._INFO: left out, as it "
              "isn't part of an application\nmake-package: warning: Contents/Resources/"
              "desktop.ini: left out, as it isn't part of an application\n");
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
    const Refusal rows[] = {
        {"rm $C", kPackedClient, "is missing; put the client's executable there"},
        {"mv $C $R; ln -s ../Resources/tarnwell-ui $C", kPackedClient, "isn't a file with content"},
        {": >$C", kPackedClient, "isn't a file with content"},
        {"chmod 655 $C", kPackedClient, "isn't executable; chmod 755"},
        {"echo echo hello >$C", kPackedClient, "is neither a program (ELF, Mach-O) nor a script"},
        {"echo '#!sh' >$C", kPackedClient, "is neither a program"},
        {"printf '#!/bin/sh\\r\\n' >$C", kPackedClient, "is neither a program"},
        {R"(printf '\177ELF\2\1\1\0%08d\1\0\0\0' 0 >$C)", kPackedClient,
         "is neither a program"},  // an object file
        {R"(printf '\312\376\272\276\0\0\0\064%08d' 0 >$C)", kPackedClient,
         "is neither a program"},  // a class of Java
        {"rm $I", kPackedInfo, "is missing; write the version file"},
        {"echo major_version=1 >$I", kPackedInfo, number + ", but ''"},
        {"echo build_version=1 >$I", kPackedInfo, number + ", but ''"},
        {info + "12b >$I", kPackedInfo, number + ", but '12b'"},
        {info + "-5 >$I", kPackedInfo, number},
        {info + "0 >$I", kPackedInfo, number},
        {info + "0042 >$I", kPackedInfo, number},
        {info + "2147483648 >$I", kPackedInfo, number},
        {"truncate -s 2M $I", kPackedInfo, "isn't a file of at most 1 MiB"},
        {"rm $P", kPackedPlist, "is missing; without it the application can't be opened"},
        {"echo bplist00 >$P", kPackedPlist, "isn't an XML property list with the key CFBundleEx"},
        {plist + "ui >$P", "Contents/MacOS/ui", "is missing; CFBundleExecutable in"},
        {plist + "far >$P", "Contents/MacOS/far", "isn't a file with content; CFBundleExecutable"},
        {plist + "helper >$P", "Contents/MacOS/helper", "is neither a program"},
        {"touch \"$(printf 'caf\\351\\n.')\"", "caf\\xE9\\x0A.", "isn't named in UTF-8; rename it"},
        {"touch cafe\xCC\x81", "cafe\xCC\x81", "has a name that isn't in Unicode's composed form"},
        {"touch $R/info", res + "info", "differs from 'Contents/Resources/INFO' in letter case"},
        {"touch $R/\xC3\x89T\xC3\x89", res + "\xC3\xA9t\xC3\xA9",
         "differs from 'Contents/Resources/\xC3\x89T\xC3"},
        {"mkdir contents; touch contents/x", "contents", "differs from 'Contents' in letter case"},
        {"mkdir -p $(dirname " + deep + "); touch " + deep, deep, "has a path of more than 800"},
        {"mkfifo pipe", "pipe", "is a pipe, socket or device, which the launcher refuses"},
        {"chmod u+s $C", kPackedClient, "is set-user-id or set-group-id"},
        {"chmod g+s $C", kPackedClient, "is set-user-id or set-group-id"},
        {"chmod u-r $I", kPackedInfo, "can't be read by its owner; chmod u+r"},
        {"chmod u-w $R", "Contents/Resources", "is a folder that its owner can't read, write and"},
        {"ln -s $PWD/$I $R/a", res + "a", "is a link to an absolute path"},
        {"ln -s ../../../app/Contents $R/a", res + "a", "is a link that leads out of the app"},
        {"ln -s ../MacOS/link/../../.. $R/a", res + "a", "is a link that leads out of the app"},
        {"ln -s ../MacOS/INFO $R/a", res + "a", "is a link to nothing"},
        {"ln -s INFO/x $R/a", res + "a", "is a link to nothing"},
        {"ln -s ../Resources/a $R/a", res + "a", "is a link that leads in a circle"},
    };
    for (const Refusal& row : rows) {
        SCOPED_TRACE(row.arrange);
        expectRefusal(shell(row.arrange + "; $MAKE . $OUT"), "./" + row.where + ": " + row.what);
        expectRefusal(shell("$MAKE --check ."), "./" + row.where + ": " + row.what);
        EXPECT_EQ(shell("chmod u+w $R; rm -rf ../app").code, 0);
        makeApp(app_);
    }
    EXPECT_TRUE(Tree(folder_ / "out").empty());
}

TEST_F(PackageTest, ReportsAllFaultsInOneGo) {
    const std::string faults =
        "1. ./Contents/MacOS/far: is a link to nothing; remove it, or add its target\n"
        "2. ./Contents/MacOS/tarnwell-ui: isn't executable; chmod 755\n"
        "3. ./Contents/Resources/INFO: is missing; write the version file, see docs/shipping.md\n";
    EXPECT_EQ(shell("chmod -x $C; rm $I $R/\xC3\xA9*; $MAKE . $OUT").err,
              "make-package: .: 3 faults\n" + faults);
    const Result json = shell("$MAKE --json --check .");
    EXPECT_EQ(json.code, 1);
    EXPECT_EQ(json.err, "");
    EXPECT_NE(json.out.find("\"good\": false"), std::string::npos);
    EXPECT_NE(json.out.find("\"what\": \"isn't executable\""), std::string::npos) << json.out;
    // One cause gives one fault: what is in a folder that can't be read isn't missing.
    shell("rm -rf ../app");
    makeApp(app_);
    expectRefusal(shell("chmod 0 Contents/MacOS; $MAKE . $OUT; s=$?; chmod 755 Contents/MacOS; "
                        "exit $s"),
                  "./Contents/MacOS: is a folder that its owner can't read");
}

TEST_F(PackageTest, NamesTheFolderThatWasMeant) {
    const Refusal rows[] = {
        {"cd Contents; $MAKE . $OUT", ".", "is the folder Contents of an application; name "},
        {"cd ..; mv app A.app; $MAKE . x.opk; s=$?; mv A.app app; exit $s", ".",
         "has no folder Contents; name the application in it: ./A.app"},
        {"$MAKE $OUT.none $OUT", out_ + ".none", "can't be opened: No such file or directory"},
        {"$MAKE $C $OUT", kPackedClient, "isn't an application folder"},
        {"$MAKE '" BUILD "/Tarnwell.app' $OUT", BUILD "/Tarnwell.app", "is a launcher's bundle, "},
        {"ln -s $PWD ../way; $MAKE . ../way/x.opk", "../way/x.opk", "is in the application folder"},
        {"$MAKE . none/x.opk", "none/x.opk", "its folder can't be opened: No such file"},
        {"$MAKE . ../out", "../out", "is a folder; name the file to make"},
    };
    for (const Refusal& row : rows) {
        SCOPED_TRACE(row.arrange);
        expectRefusal(shell(row.arrange), row.where + ": " + row.what);
    }
    // Another user's file, as opposed to an empty one.
    for (const std::string& path : {kPackedInfo, kPackedPlist}) {
        expectRefusal(shell("chmod 700 " + path + "; chown 1 " + path + " 2>&- || chmod 0 " + path +
                            "; nobody $MAKE --check ."),
                      "./" + path + ": can't be read");
        shell("chmod 644 " + path);
    }
}

TEST_F(PackageTest, WritesOverNothingButAPackage) {
    const Refusal rows[] = {
        {"mknod $OUT c 1 3 2>&- || mkfifo $OUT", "", "isn't a regular file; name the file to make"},
        {"ln -s /dev/null $OUT", "", "isn't a regular file"},
        {"ln -s none $OUT", "", "isn't a regular file"},
        {"echo thesis >$OUT", "", "exists and isn't a complete package: it isn't an archive that"},
        {": >$OUT", "", "exists and isn't a complete package: it is empty; remove it first"},
        {"bsdtar --format zip -cf $OUT $R", "",
         "exists and isn't a complete package: it has no cli"},
        {"$MAKE . $OUT; truncate -s -9 $OUT", "",
         "exists and isn't a complete package: it is damaged"},
    };
    for (const Refusal& row : rows) {
        SCOPED_TRACE(row.arrange);
        shell(row.arrange);
        const std::string before = shell("stat -c '%i %F %s %Y' $OUT; ls ../out").out;
        expectRefusal(pack(), out_ + ": " + row.what);
        EXPECT_EQ(shell("stat -c '%i %F %s %Y' $OUT; ls ../out").out, before);
        shell("rm $OUT");
    }
}

TEST_F(PackageTest, WarnsWhenNoUserWouldGetTheBuild) {
    const auto packAs = [&](const std::string& number, const std::string& options) {
        return shell("sed -i s/build_version=.*/build_version=" + number + "/ $I; $MAKE " +
                     options + " . $OUT");
    };
    const std::string raise = "; raise build_version in Contents/Resources/INFO\n";
    EXPECT_EQ(packAs("8", "").err, "");
    EXPECT_EQ(packAs("8", "--format zip").err, "");  // the same content
    EXPECT_EQ(packAs("5", "").err, "make-package: warning: " + out_ +
                                       ": was build 8, whose users would not get build 5" + raise);
    EXPECT_EQ(shell("echo more >more; $MAKE . $OUT").err,
              "make-package: warning: " + out_ +
                  ": was build 5 too, with other content, whose users would not get this one" +
                  raise);
    const std::string bytes = ReadFile(out_);
    for (const std::string number : {"4", "5"}) {
        expectRefusal(packAs(number, "--newer-than $OUT"),
                      ".: is build " + number + ", not newer than build 5 of " + out_ + raise);
        expectRefusal(shell("$MAKE --newer-than $OUT --check ."), ".: is build " + number);
    }
    EXPECT_TRUE(ReadFile(out_) == bytes);
    EXPECT_EQ(packAs("6", "--newer-than $OUT").err, "");
}

TEST_F(PackageTest, AFailureLeavesNoHalfPackage) {
    expectRefusal(shell("trap '' XFSZ; ulimit -f 100; $MAKE . $OUT"),
                  out_ + ": can't be written: File too large");
    MakeFile(app_ + "/noise", Noise(16 << 20));
    expectRefusal(shell("$MAKE . $OUT & begun; kill $!; wait $!"),
                  out_ + ": was interrupted; run again");
    expectRefusal(shell("$MAKE --format zip . $OUT & begun; touch new; wait $!"),
                  ".: was changed while it was");
    expectRefusal(shell("$MAKE . $OUT & begun; : >noise; wait $!"), "./noise: was changed while");
    EXPECT_TRUE(Tree(folder_ / "out").empty());
}

TEST_F(PackageTest, ChecksWhetherTheLauncherAcceptsAPackage) {
    EXPECT_EQ(pack().code, 0);
    const Refusal rows[] = {
        {": >$OUT", "", "is empty; make the package again"},
        {"echo text >$OUT", "", "isn't an archive that the launcher can read: Unrecognized"},
        {"head -c 9999 /dev/urandom >$OUT", "", "is"},
        {"rm $OUT; $MAKE --format zip . $OUT; truncate -s -30 $OUT", "", "is truncated after"},
        {"rm $OUT; $MAKE . $OUT; truncate -s -9 $OUT", "", "is damaged"},
        {"cd ..; mv app A.app; bsdtar --format zip -cf $OUT A.app; mv A.app app", "",
         "has A.app/ around the application; pack what is in that folder: make-package A.app"},
    };
    for (const Refusal& row : rows) {
        SCOPED_TRACE(row.arrange);
        shell(row.arrange);
        expectRefusal(check(), out_ + ": " + row.what);
    }
    expectRefusal(shell("$MAKE --check none"), "none: can't be opened");

    const std::vector<Entry> rest = {{kPackedPlist, kInfoPlist}, {kPackedInfo, VersionFile("7")}};
    const Entry client = {"./" + kPackedClient, "#!/bin/sh\n", 0755};
    MakeArchive(out_, "tar.gz", {rest[0], rest[1], client});
    EXPECT_EQ(check().out.rfind(out_ + ": good: build 7, 3 entries", 0), 0u);
    EXPECT_EQ(check().err, "");
    MakeArchive(out_, "tar", {rest[0], rest[1], client});
    const Result result = check();
    EXPECT_EQ(result.code, 0);
    EXPECT_TRUE(HasOneLine(result.err, out_ + ": has no checksum over its content")) << result.err;
    MakeArchive(out_, "zip", {rest[0], {"../x", "evil"}, rest[1], client});
    expectRefusal(check(), out_ + ": the launcher can't unpack it: archive_read_extract2 failed");
    MakeArchive(out_, "zip", {client, rest[0], rest[1]});
    expectRefusal(check(), out_ + ": doesn't end with " + kPackedClient);
    MakeArchive(out_, "zip", rest);
    expectRefusal(check(), out_ + "/" + kPackedClient + ": is missing");
    // Nothing is left of a folder that its owner can't write to.
    MakeArchive(out_, "zip", {{"ro/", "", 0555}, {"ro/x"}, rest[0], rest[1], client});
    const std::string as_nobody = "mkdir -m 777 ../tmp; export TMPDIR=$PWD/../tmp; nobody ";
    expectRefusal(shell(as_nobody + "$MAKE --check $OUT"),
                  out_ + "/ro: is a folder that its owner");
    EXPECT_EQ(shell("ls ../tmp").out, "");
}

TEST_F(PackageTest, BlamesTheTemporaryFolderAndNotThePackage) {
    ASSERT_EQ(pack().code, 0);
    const std::string advice = "set TMPDIR to a folder with more space";
    const std::string none = "no temporary folder can be made in it: ";
    expectRefusal(shell("TMPDIR=/none $MAKE --check $OUT"), "/none: " + none + "No such file");
    expectRefusal(shell("TMPDIR=$PWD/$I $MAKE --check $OUT"),
                  app_ + "/" + kPackedInfo + ": " + none);
    if (getuid() != 0) {
        GTEST_SKIP() << "only root can write to a small disk of its own";
    }
    const SmallDisk disk(folder_ / "disk", "128k");
    ASSERT_TRUE(disk.mounted());
    const Result result = shell("TMPDIR=../disk $MAKE --check $OUT; ls ../disk");
    EXPECT_NE(result.err.find("nothing can be written to this temporary folder: No space left"),
              std::string::npos)
        << result.err;
    EXPECT_EQ(result.out, "");
}

TEST_F(PackageTest, AnswersPeopleAndMachines) {
    EXPECT_EQ(shell("$MAKE --help").out.rfind("usage: make-package ", 0), 0u);
    EXPECT_EQ(shell("$MAKE --version").out, "make-package " VERSION "\n");
    const Result json = shell("$MAKE --json . $OUT; sha256sum <$OUT | sed 's/ .*//'");
    const std::string sum = json.out.substr(json.out.size() - 65, 64);
    for (const std::string& part : {std::string("\"build\": 101"), std::string("\"good\": true"),
                                    R"("sha256": ")" + sum + "\""}) {
        EXPECT_NE(json.out.find(part), std::string::npos) << json.out;
    }
    for (const std::string wrong :
         {"", ".", ". $OUT more", "--check", "--check . $OUT", "--none . $OUT", "--format",
          "--format rar . $OUT", "--newer-than"}) {
        const Result result = shell("$MAKE " + wrong);
        EXPECT_EQ(result.code, 2) << wrong;
        EXPECT_NE(result.err.find("\nusage: make-package "), std::string::npos) << wrong;
    }
}

}  // namespace
