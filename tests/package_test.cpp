// Runs the packaging tool: creating packages, and checking application folders and packages.

#include <unistd.h>

#include "tests/support/packing.h"
#include "tests/support/system.h"

namespace {

class PackageTest : public Packing {};

// A command that creates the fault, or that is refused itself, and the beginning of the message.
using Refusals = std::vector<std::pair<std::string, std::string>>;

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
        const Result checked = check();
        EXPECT_EQ(checked.err, "");
        EXPECT_EQ(checked.out, out_ + ": good: build 101, 11 entries, " + size +
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
    std::string warnings;
    for (const std::string left_out : {".DS_Store", "._INFO", "desktop.ini"}) {
        warnings += "make-package: warning: Contents/Resources/" + left_out +
                    ": left out, as it isn't part of an application\n";
    }
    EXPECT_EQ(result.err, warnings);
    const Result list =
        shell("LC_ALL=C.UTF-8 TZ=UTC bsdtar -tvf $OUT | sed 's/ .* Jan  1  1980 Contents/ /'");
    EXPECT_EQ(list.out,
              "drwxr-xr-x /\n-rw-r--r-- /Info.plist\ndrwxr-xr-x /MacOS/\n-rwxr-xr-x /MacOS/again\n"
              "lrwxrwxrwx /MacOS/far -> link/./\xC3\xA9t\xC3\xA9\n"
              "-r-xr-xr-x /MacOS/helper\nlrwxrwxrwx /MacOS/link -> ../MacOS/../Resources\n"
              "drwxr-x--- /Resources/\n-rw-r--r-- /Resources-a\n-rw-r--r-- /Resources/INFO\n"
              "-rw-r----- /Resources/\xC3\xA9t\xC3\xA9\n-rwxr-xr-x /MacOS/tarnwell-ui\n");
}

TEST_F(PackageTest, RefusesWhatWouldFailOnAUsersMachine) {
    const std::string deep = std::string(250, 'd') + "/" + std::string(250, 'e') + "/" +
                             std::string(250, 'f') + "/" + std::string(50, 'g');
    const std::string info = "printf '[Version]\\nbuild_version=%s\\n' ";
    const std::string number =
        "$I: has no build_version from 1 to 2147483647 in its group [Version]";
    const std::string plist =
        "printf '<plist><dict><key>CFBundleExecutable</key><string>%s</string></dict></plist>' ";
    const std::string no_program = "$C: is neither a program (ELF, Mach-O) nor a script";
    const Refusals rows = {
        {"rm $C", "$C: is missing; put the client's executable there"},
        {"mv $C $R; ln -s ../Resources/tarnwell-ui $C", "$C: isn't a file with content"},
        {": >$C", "$C: isn't a file with content"},
        {"chmod 655 $C", "$C: isn't executable; chmod 755"},
        {"echo echo hello >$C", no_program},
        {"echo '#!sh' >$C", no_program},
        {"printf '#!/bin/sh\\r\\n' >$C", no_program},
        {R"(printf '\177ELF\2\1\1\0%08d\1\0\0\0' 0 >$C)", no_program},     // an object file
        {R"(printf '\312\376\272\276\0\0\0\064%08d' 0 >$C)", no_program},  // a Java class
        {"rm $I", "$I: is missing; write the version file"},
        {"echo major_version=1 >$I", number + ", but ''"},
        {"echo build_version=1 >$I", number + ", but ''"},
        {info + "12b >$I", number + ", but '12b'"},
        {info + "-5 >$I", number},
        {info + "0 >$I", number},
        {info + "0042 >$I", number},
        {info + "2147483648 >$I", number},
        {"truncate -s 2M $I", "$I: isn't a file of at most 1 MiB"},
        {"rm $P", "$P: is missing; without it the application can't be opened"},
        {"echo bplist00 >$P", "$P: isn't an XML property list with the key CFBundleEx"},
        {plist + "ui >$P", "Contents/MacOS/ui: is missing; CFBundleExecutable in"},
        {plist + "far >$P", "Contents/MacOS/far: isn't a file with content; CFBundleExecutable"},
        {plist + "helper >$P", "Contents/MacOS/helper: is neither a program"},
        {"touch \"$(printf 'caf\\351\\n.')\"", "caf\\xE9\\x0A.: isn't named in UTF-8; rename it"},
        {"touch cafe\xCC\x81", "cafe\xCC\x81: has a name that isn't in Unicode's composed form"},
        {"touch $R/info", "$R/info: differs from '$I' in letter case"},
        {"touch $R/\xC3\x89T\xC3\x89", "$R/\xC3\xA9t\xC3\xA9: differs from '$R/\xC3\x89T\xC3\x89'"},
        {"mkdir contents; touch contents/x", "contents: differs from 'Contents' in letter case"},
        {"mkdir -p $(dirname " + deep + "); touch " + deep, deep + ": has a path of more than 800"},
        {"mkfifo pipe", "pipe: is a pipe, socket or device, which the launcher refuses"},
        {"chmod u+s $C", "$C: is set-user-id or set-group-id"},
        {"chmod g+s $C", "$C: is set-user-id or set-group-id"},
        {"chmod u-r $I", "$I: can't be read by its owner; chmod u+r"},
        {"chmod u-w $R", "$R: is a folder that its owner can't read, write and"},
        {"ln -s $PWD/$I $R/a", "$R/a: is a link to an absolute path"},
        {"ln -s ../../../app/Contents $R/a", "$R/a: is a link that leads out of the app"},
        {"ln -s ../MacOS/link/../../.. $R/a", "$R/a: is a link that leads out of the app"},
        {"ln -s ../MacOS/INFO $R/a", "$R/a: is a link to nothing"},
        {"ln -s INFO/x $R/a", "$R/a: is a link to nothing"},
        {"ln -s ../Resources/a $R/a", "$R/a: is a link that leads in a circle"}};
    for (const auto& [arrange, message] : rows) {
        expectRefusal(arrange + "; $MAKE . $OUT", "./" + message);
        expectRefusal("$MAKE --check .", "./" + message);
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
    EXPECT_TRUE(HasOneLine(json.out, "\"good\": false"));
    EXPECT_TRUE(HasOneLine(json.out, "\"what\": \"isn't executable\"")) << json.out;
    // Files in a folder that can't be read are not reported as missing too.
    shell("rm -rf ../app");
    makeApp(app_);
    expectRefusal("chmod 0 Contents/MacOS; $MAKE . $OUT; s=$?; chmod 755 Contents/MacOS; exit $s",
                  "./Contents/MacOS: is a folder that its owner can't read");
}

TEST_F(PackageTest, NamesTheFolderThatWasMeant) {
    const Refusals rows = {
        {"cd Contents; $MAKE . $OUT", ".: is the folder Contents of an application; name "},
        {"cd ..; mv app A.app; $MAKE . x.opk; s=$?; mv A.app app; exit $s",
         ".: has no folder Contents; name the application in it: ./A.app"},
        {"$MAKE $OUT.none $OUT", "$OUT.none: can't be opened: No such file or directory"},
        {"$MAKE $C $OUT", "$C: isn't an application folder"},
        {"$MAKE '" BUILD "/Tarnwell.app' $OUT", BUILD "/Tarnwell.app: is a launcher's bundle, "},
        {"ln -s $PWD ../way; $MAKE . ../way/x.opk", "../way/x.opk: is in the application folder"},
        {"$MAKE . none/x.opk", "none/x.opk: its folder can't be opened: No such file"},
        {"$MAKE . ../out", "../out: is a folder; name the file to make"},
        {"$MAKE --check none", "none: can't be opened"}};
    for (const auto& [command, message] : rows) {
        expectRefusal(command, message);
    }
    // A file that the tool may not read is not reported as empty.
    for (const std::string path : {"$I", "$P"}) {
        expectRefusal("chmod 700 " + path + "; chown 1 " + path + " 2>&- || chmod 0 " + path +
                          "; nobody $MAKE --check .",
                      "./" + path + ": can't be read");
        shell("chmod 644 " + path);
    }
}

TEST_F(PackageTest, WritesOverNothingButAPackage) {
    const std::string no_package = "exists and isn't a complete package: it ";
    const Refusals rows = {
        {"mknod $OUT c 1 3 2>&- || mkfifo $OUT", "isn't a regular file; name the file to make"},
        {"ln -s /dev/null $OUT", "isn't a regular file"},
        {"ln -s none $OUT", "isn't a regular file"},
        {"echo thesis >$OUT", no_package + "isn't an archive that"},
        {": >$OUT", no_package + "is empty; remove it first"},
        {"bsdtar --format zip -cf $OUT $R", no_package + "has no cli"},
        {"$MAKE . $OUT; truncate -s -9 $OUT", no_package + "is damaged"}};
    for (const auto& [arrange, message] : rows) {
        shell(arrange);
        const std::string before = shell("stat -c '%i %F %s %Y' $OUT; ls ../out").out;
        expectRefusal("$MAKE . $OUT", "$OUT: " + message);
        EXPECT_EQ(shell("stat -c '%i %F %s %Y' $OUT; ls ../out").out, before) << arrange;
        shell("rm $OUT");
    }
}

TEST_F(PackageTest, WarnsWhenNoUserWouldGetTheBuild) {
    const std::string number = "sed -i s/build_version=.*/build_version=";
    const std::string raise = "; raise build_version in Contents/Resources/INFO\n";
    const std::string warning = "make-package: warning: " + out_ + ": was build ";
    EXPECT_EQ(shell(number + "8/ $I; $MAKE . $OUT").err, "");
    EXPECT_EQ(shell("$MAKE --format zip . $OUT").err, "");  // no warning: the same content
    EXPECT_EQ(shell(number + "5/ $I; $MAKE . $OUT").err,
              warning + "8, whose users would not get build 5" + raise);
    EXPECT_EQ(shell("echo more >more; $MAKE . $OUT").err,
              warning + "5 too, with other content, whose users would not get this one" + raise);
    const std::string bytes = ReadFile(out_);
    for (const std::string old : {"4", "5"}) {
        expectRefusal(number + old + "/ $I; $MAKE --newer-than $OUT . $OUT",
                      ".: is build " + old + ", not newer than build 5 of $OUT; raise");
        expectRefusal("$MAKE --newer-than $OUT --check .", ".: is build " + old);
    }
    EXPECT_TRUE(ReadFile(out_) == bytes);
    EXPECT_EQ(shell(number + "6/ $I; $MAKE --newer-than $OUT . $OUT").err, "");
}

TEST_F(PackageTest, AFailureLeavesNoHalfPackage) {
    expectRefusal("trap '' XFSZ; ulimit -f 100; $MAKE . $OUT",
                  "$OUT: can't be written: File too large");
    MakeFile(app_ + "/noise", Noise(16 << 20));
    const Refusals rows = {
        {"$MAKE . $OUT & begun; kill $!", "$OUT: was interrupted; run again"},
        {"$MAKE --format zip . $OUT & begun; touch new", ".: was changed while it was"},
        {"$MAKE . $OUT & begun; : >noise", "./noise: was changed while"}};
    for (const auto& [command, message] : rows) {
        expectRefusal(command + "; wait $!", message);
    }
    EXPECT_TRUE(Tree(folder_ / "out").empty());
}

TEST_F(PackageTest, ChecksWhetherTheLauncherAcceptsAPackage) {
    const std::vector<Entry> rest = {{kPackedPlist, kInfoPlist}, {kPackedInfo, VersionFile("7")}};
    const Entry client = {"./" + kPackedClient, "#!/bin/sh\n", 0755};
    MakeArchive(out_, "tar.gz", {rest[0], rest[1], client});
    const Result good = check();
    EXPECT_EQ(good.out.rfind(out_ + ": good: build 7, 3 entries", 0), 0u);
    EXPECT_EQ(good.err, "");
    MakeArchive(out_, "tar", {rest[0], rest[1], client});
    EXPECT_TRUE(HasOneLine(check().err, out_ + ": has no checksum over its content"));
    EXPECT_EQ(check().code, 0);

    MakeArchive(folder_ / "evil", "zip", {rest[0], {"../x", "evil"}, rest[1], client});
    MakeArchive(folder_ / "first", "zip", {client, rest[0], rest[1]});
    MakeArchive(folder_ / "none", "zip", rest);
    const Refusals rows = {
        {": >$OUT", ": is empty; make the package again"},
        {"echo text >$OUT", ": isn't an archive that the launcher can read: Unrecognized"},
        {"head -c 9999 /dev/urandom >$OUT", ": is"},
        {"rm $OUT; $MAKE --format zip . $OUT; truncate -s -30 $OUT", ": is truncated after"},
        {"rm $OUT; $MAKE . $OUT; truncate -s -9 $OUT", ": is damaged"},
        {"cd ..; mv app A.app; bsdtar --format zip -cf $OUT A.app; mv A.app app",
         ": has A.app/ around the application; pack what is in that folder: make-package A.app"},
        {"mv ../evil $OUT", ": the launcher can't unpack it: archive_read_extract2 failed"},
        {"mv ../first $OUT", ": doesn't end with $C"},
        {"mv ../none $OUT", "/$C: is missing"}};
    for (const auto& [arrange, message] : rows) {
        SCOPED_TRACE(arrange);
        shell(arrange);
        expectRefusal("$MAKE --check $OUT", "$OUT" + message);
    }
    // The temporary copy is removed, even with a folder that its owner can't write to.
    MakeArchive(out_, "zip", {{"ro/", "", 0555}, {"ro/x"}, rest[0], rest[1], client});
    expectRefusal("mkdir -m 777 ../tmp; export TMPDIR=$PWD/../tmp; nobody $MAKE --check $OUT",
                  "$OUT/ro: is a folder that its owner");
    EXPECT_EQ(shell("ls ../tmp").out, "");
}

TEST_F(PackageTest, BlamesTheTemporaryFolderAndNotThePackage) {
    ASSERT_EQ(pack().code, 0);
    const std::string none = ": no temporary folder can be made in it: ";
    expectRefusal("TMPDIR=/none $MAKE --check $OUT", "/none" + none + "No such file");
    expectRefusal("TMPDIR=$PWD/$I $MAKE --check $OUT", "$PWD/$I" + none);
    if (getuid() != 0) {
        GTEST_SKIP() << "only root can mount a small disk";
    }
    const SmallDisk disk(folder_ / "disk", "128k");
    ASSERT_TRUE(disk.mounted());
    EXPECT_TRUE(HasOneLine(shell("TMPDIR=../disk $MAKE --check $OUT").err,
                           "nothing can be written to this temporary folder: No space left"));
    EXPECT_TRUE(Tree(folder_ / "disk").empty());
}

TEST_F(PackageTest, AnswersPeopleAndMachines) {
    EXPECT_EQ(shell("$MAKE --help").out.rfind("usage: make-package ", 0), 0u);
    const Result json = shell("$MAKE --json . $OUT; sha256sum <$OUT | sed 's/ .*//'");
    const std::string sum = json.out.substr(json.out.size() - 65, 64);
    EXPECT_NE(json.out.find("\"sha256\": \"" + sum + '"'), std::string::npos) << json.out;
    for (const std::string wrong :
         {"", ".", ". $OUT more", "--check", "--check . $OUT", "--none . $OUT", "--format",
          "--format rar . $OUT", "--newer-than"}) {
        const Result result = shell("$MAKE " + wrong);
        EXPECT_EQ(result.code, 2) << wrong;
        EXPECT_NE(result.err.find("\nusage: make-package "), std::string::npos) << wrong;
    }
}

}  // namespace
