// That no upgrade can be cut off or fail so that the user is left without an application. Each
// sweep counts the file-changing system calls N of a run and breaks every one of them in turn, or
// every PROVE_STRIDE-th (10 unless the environment says otherwise). scripts/prove breaks all.

#include <fcntl.h>
#include <signal.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <utility>

#include "tests/support/installation.h"
#include "tests/support/traced-run.h"

namespace fs = std::filesystem;

namespace {

int Stride() {
    const char* const stride = getenv("PROVE_STRIDE");
    return stride != nullptr ? std::max(1, atoi(stride)) : 10;
}

// What would be found below a folder after a power cut. Only what was put on the disk is certain;
// the rest is lost, or is there without its content.
class Disk {
  public:
    explicit Disk(std::string root) : root_(std::move(root)) { syncAll(); }

    void sync(const std::string& path) {
        struct stat status;
        if (path.empty()) {
            syncAll();
        } else if (lstat(path.c_str(), &status) == 0) {
            syncObject(path, status);
        }
    }

    // Replaces the folder by what is on the disk alone.
    void loseTheRest() {
        const std::string found = root_ + ".found";
        fs::create_directory(found);
        struct stat status;
        lstat(root_.c_str(), &status);
        restore(status.st_ino, found);
        adopt(found);
    }

    // Replaces the folder by one in which whatever isn't on the disk is there, but empty.
    void emptyTheRest() {
        for (const auto& entry : fs::recursive_directory_iterator(root_)) {
            struct stat status;
            lstat(entry.path().c_str(), &status);
            if (!S_ISREG(status.st_mode)) {
                continue;
            }
            const auto known = files_.find(status.st_ino);
            MakeFile(entry.path(), known != files_.end() ? known->second.content : "",
                     status.st_mode & 07777);
        }
    }

  private:
    struct File {
        std::string content;
        mode_t mode;
    };
    struct Entry {
        ino_t object;
        mode_t type;
        std::string target;  // of a link
    };

    void syncObject(const std::string& path, const struct stat& status) {
        if (S_ISREG(status.st_mode)) {
            files_[status.st_ino] = {ReadFile(path), status.st_mode & 07777};
        } else if (S_ISDIR(status.st_mode)) {
            std::map<std::string, Entry>& entries = folders_[status.st_ino];
            entries.clear();
            for (const auto& entry : fs::directory_iterator(path)) {
                struct stat child;
                lstat(entry.path().c_str(), &child);
                entries[entry.path().filename()] = {
                    child.st_ino, child.st_mode,
                    entry.is_symlink() ? fs::read_symlink(entry.path()).string() : ""};
            }
        }
    }

    void syncAll() {
        sync(root_);
        for (const auto& entry : fs::recursive_directory_iterator(root_)) {
            sync(entry.path());
        }
    }

    void restore(ino_t folder, const std::string& to) {
        for (const auto& [name, entry] : folders_[folder]) {
            const std::string path = to + "/" + name;
            if (S_ISLNK(entry.type)) {
                fs::create_symlink(entry.target, path);
            } else if (S_ISDIR(entry.type)) {
                fs::create_directory(path);
                restored_[entry.object] = name;
                restore(entry.object, path);
            } else if (files_.count(entry.object) != 0) {
                MakeFile(path, files_[entry.object].content, files_[entry.object].mode);
            }
        }
    }

    // Restoring has given the folders new inodes; the journal must go on naming the same ones.
    void adopt(const std::string& found) {
        fs::remove_all(root_);
        fs::rename(found, root_);
        std::string journal = ReadFile(root_ + "/upgrade.journal");
        const std::string key = "object=";
        const std::size_t begin = journal.find(key);
        if (begin == std::string::npos) {
            return;
        }
        const auto name =
            restored_.find(strtoul(journal.c_str() + begin + key.size(), nullptr, 10));
        struct stat status;
        if (name != restored_.end() && lstat((root_ + "/" + name->second).c_str(), &status) == 0) {
            journal.erase(begin + key.size());
            MakeFile(root_ + "/upgrade.journal", journal + std::to_string(status.st_ino) + "\n");
        }
    }

    const std::string root_;
    std::map<ino_t, File> files_;
    std::map<ino_t, std::map<std::string, Entry>> folders_;
    std::map<ino_t, std::string> restored_;
};

class ProveTest : public testing::Test {
  protected:
    enum Start { Upgrade, Install, Rollback };

    ~ProveTest() override {
        std::printf("N = %d file-changing system calls, %d runs broken, %d bad ends\n", calls_,
                    broken_, bad_ends_);
    }

    // The state before each run: an old application or none, and a good package or a damaged one.
    virtual void arrange(Start start) {
        fs::remove_all(installation_.user());
        MakeFolder(installation_.user("log"));
        if (start != Install) {
            installation_.install("99");
            MakeFile(installation_.app("tool"), "#!/bin/sh\n", 0755);
            MakeLink("tool", installation_.app("link"));
            old_ = Tree(installation_.app());
        }
    }
    void damagePackage() {
        installation_.setBuild("100", "tar");
        const std::string package = ReadFile(installation_.package());
        fs::resize_file(installation_.package(), package.find("Contents/MacOS/tarnwell-ui") + 100);
    }

    TracedRun traced(int fault_at = 0, int error = 0, Disk* disk = nullptr,
                     const std::function<void(pid_t)>& interfere = nullptr) {
        TracedRun run;
        run.fault_at = fault_at;
        run.error = error;
        run.interfere = interfere;
        if (disk != nullptr) {
            run.on_sync = [this, disk](const std::string& path) {
                if (path.empty() ||
                    path.compare(0, installation_.user().size(), installation_.user()) == 0) {
                    disk->sync(path);
                }
            };
        }
        run.follow(installation_.start(BeTraced));
        return run;
    }
    // Counts the calls of an undisturbed run, and does something at each of them in turn.
    void sweep(Start start, const std::function<void(int k, const std::string& where)>& strike) {
        arrange(start);
        const TracedRun run = traced();
        EXPECT_EQ(run.end, 0);
        EXPECT_GT(run.calls, 20);
        calls_ = run.calls;
        for (int k = 1; k <= calls_; k += Stride()) {
            arrange(start);
            strike(k, " at call " + std::to_string(k));
        }
    }

    bool isNew() const { return isApp(installation_.app(), installation_.expectedApp("100")); }
    bool isOld() const { return isApp(installation_.app(), old_); }
    static bool isApp(const std::string& path, const FileTree& tree) {
        return Exists(path) && Tree(path) == tree;
    }
    // Whether the next run finds the old application, where it was or aside, or the new one.
    bool isSafe() const {
        bool safe = isNew() || isOld();
        for (const char* const aside : {"Tarnwell.app_tmp", "Tarnwell.app_tmp1"}) {
            safe |= isApp(installation_.user(aside), old_);
        }
        return safe;
    }

    void check(bool good, const std::string& what) {
        bad_ends_ += good ? 0 : 1;
        EXPECT_TRUE(good) << what << "\n" << ReadFile(installation_.user("log/launcher.log"));
    }
    // After a cut: nothing is lost, and the next run comes to the right end.
    void checkRecovery(Start start, const std::string& what) {
        ++broken_;
        check(start == Install || isSafe(), what + ": nothing whole is left");
        installation_.run();
        check(start == Rollback ? isOld() : isNew(), what + ": wrong end");
        check(!Exists(installation_.user("upgrade.journal")), what + ": the record is left");
    }

    void sweepKills(Start start) {
        sweep(start, [&](int k, const std::string& where) {
            check(traced(k).end == 1000 + SIGKILL, "not killed");
            checkRecovery(start, "killed" + where);
        });
    }

    void sweepPowerCuts(Start start) {
        for (const bool lost : {true, false}) {
            sweep(start, [&](int k, const std::string& where) {
                Disk disk(installation_.user());
                traced(k, 0, &disk);
                lost ? disk.loseTheRest() : disk.emptyTheRest();
                checkRecovery(start, (lost ? "lost" : "emptied") + where);
            });
        }
    }

    Installation installation_;
    FileTree old_;
    int calls_ = 0;
    int broken_ = 0;
    int bad_ends_ = 0;
};

TEST_F(ProveTest, AKilledUpgrade) {
    sweepKills(Upgrade);
}

TEST_F(ProveTest, AKilledInstallation) {
    sweepKills(Install);
}

TEST_F(ProveTest, AKilledRollback) {
    damagePackage();
    sweepKills(Rollback);
}

TEST_F(ProveTest, AnUpgradeKilledTwice) {
    sweep(Upgrade, [this](int k, const std::string& where) {
        traced(k);
        for (int again = 1; traced(again).end != 0; again += Stride()) {
            checkRecovery(Upgrade, "killed" + where + " and then at " + std::to_string(again));
            arrange(Upgrade);
            traced(k);
        }
        check(isNew(), "undisturbed second run");
    });
}

TEST_F(ProveTest, CallsThatFail) {
    for (const Start start : {Upgrade, Rollback}) {
        if (start == Rollback) {
            damagePackage();
        }
        for (const int error : {EIO, ENOSPC, EACCES, EXDEV}) {
            sweep(start, [&](int k, const std::string& where) {
                const std::string what = strerror(error) + where;
                check(traced(k, error).end == 0, what + ": exit code");
                check(isOld() || isNew(), what + ": neither the old nor the new application");
                checkRecovery(start, what + ", and the next run");
            });
        }
    }
}

TEST_F(ProveTest, APowerCut) {
    sweepPowerCuts(Upgrade);
    sweepPowerCuts(Install);
    damagePackage();
    sweepPowerCuts(Rollback);
}

TEST_F(ProveTest, SignalsDuringAnUpgrade) {
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        sweep(Upgrade, [&](int k, const std::string& where) {
            if (k >= calls_ / 3) {  // the launcher has begun to listen
                const auto send = [signal](pid_t pid) { kill(pid, signal); };
                const int end = traced(k, 0, nullptr, send).end;
                ++broken_;
                check(end == 0 && isNew(), strsignal(signal) + where);
            }
        });
    }
}

TEST_F(ProveTest, TheHomeGoesAway) {
    const std::string elsewhere = installation_.home() + "/elsewhere";
    const std::function<void(pid_t)> harms[] = {
        [&](pid_t) { fs::remove_all(installation_.user()); },
        [&](pid_t) { fs::rename(installation_.user(), elsewhere); },
        [&](pid_t) {
            fs::remove_all(installation_.user());
            MakeFile(installation_.user(), "a file in its place");
        }};
    for (const auto& harm : harms) {
        sweep(Upgrade, [&](int k, const std::string& where) {
            ++broken_;
            check(traced(k, 0, nullptr, harm).end == 0, "gone" + where);
            fs::remove_all(elsewhere);
            fs::remove_all(installation_.user());
            installation_.run();
            check(isNew(), "the next run");
        });
    }
}

TEST_F(ProveTest, ADiskThatFillsUp) {
    const SmallDisk disk(installation_.home(), "1m");
    if (!disk.mounted()) {
        GTEST_SKIP() << "this user may not mount a small disk";
    }
    const std::string filler = installation_.home() + "/filler";
    const auto fill = [&](pid_t) {
        const int fd = open(filler.c_str(), O_WRONLY | O_CREAT, 0644);
        const std::string block(4096, 'f');
        while (write(fd, block.data(), block.size()) > 0) {
        }
        close(fd);
    };
    sweep(Upgrade, [&](int k, const std::string& where) {
        const int end = traced(k, 0, nullptr, fill).end;
        check(end == 0 && (isOld() || isNew()), "full" + where);
        fs::remove(filler);
        checkRecovery(Upgrade, "full" + where);
    });
}

TEST_F(ProveTest, AThousandRandomKillsLeaveNothing) {
    std::mt19937 random(1);
    arrange(Upgrade);
    const unsigned calls = static_cast<unsigned>(calls_ = traced().calls);
    arrange(Upgrade);
    for (int i = 0; i < 1000; i += Stride()) {
        const std::string version = installation_.app("Contents/Resources/INFO");
        if (Exists(version)) {
            MakeFile(version, "[Version]\nbuild_version=1\n");  // there is always something to do
        }
        traced(1 + static_cast<int>(random() % calls));
        ++broken_;
    }
    installation_.run();
    check(isNew(), "the end");
    for (const auto& entry : fs::directory_iterator(installation_.user())) {
        const std::string name = entry.path().filename();
        check(name == "log" || name == "Tarnwell.app" || name == "Tarnwell.app_tmp",
              name + " is left");
    }
}

// The old application came with the lower layer of an overlay: its folders can't be renamed, its
// files can. It has rights of its own, and a link that soon leads nowhere; the first backup's name
// is another's.
class OverlayTest : public ProveTest {
  protected:
    ~OverlayTest() override { umount2(installation_.user().c_str(), MNT_DETACH); }

    void arrange(Start start) override {
        umount2(installation_.user().c_str(), MNT_DETACH);
        ProveTest::arrange(start);
        MakeFile(installation_.app("private/file"), "secret", 0600);
        MakeFolder(installation_.app("private/empty"));
        MakeFile(installation_.user("Tarnwell.app_tmp/rest"));
        old_ = Tree(installation_.app());
        fs::remove_all(layers_);
        MakeFolder(layers_ + "/upper");
        MakeFolder(layers_ + "/work");
        fs::copy(installation_.user(), layers_ + "/lower",
                 fs::copy_options::recursive | fs::copy_options::copy_symlinks);
        fs::permissions(layers_ + "/lower/Tarnwell.app/private", kRights);
        fs::permissions(layers_ + "/lower/Tarnwell.app/private/empty", kRights);
        const std::string layers = "lowerdir=" + layers_ + "/lower,upperdir=" + layers_ +
                                   "/upper,workdir=" + layers_ + "/work,redirect_dir=off";
        mounted_ = disk_.mounted() &&
                   mount("none", installation_.user().c_str(), "overlay", 0, layers.c_str()) == 0;
    }
    bool isHalfDone() const {
        return Exists(installation_.user("upgrade.journal")) ||
               Exists(installation_.user("Tarnwell.app_part"));
    }
    // Whether nothing has happened to the old application and to what isn't ours.
    bool isUntouched() const {
        return isOld() && fs::status(installation_.app("private")).permissions() == kRights &&
               fs::status(installation_.app("private/empty")).permissions() == kRights &&
               Tree(installation_.user("Tarnwell.app_tmp")).size() == 1 && !isHalfDone();
    }
    // A run that only looks at what an earlier one has left: the package is damaged.
    void checkNextRun(const std::string& what) {
        ++broken_;
        installation_.run();
        check(isUntouched(), what + ": not as it was");
    }

    const fs::perms kRights = fs::perms::owner_all | fs::perms::group_all;
    const std::string layers_ = installation_.home() + "/layers/overlay";
    const SmallDisk disk_{installation_.home() + "/layers", "8m"};
    bool mounted_ = false;
};

TEST_F(OverlayTest, AFolderThatCannotBeRenamed) {
    if (geteuid() == 0) {
        arrange(Upgrade);
    }
    if (!mounted_) {
        GTEST_SKIP() << "only root can mount an overlay, where it is allowed to";
    }
    ASSERT_NE(rename(installation_.app().c_str(), installation_.user("other").c_str()), 0);
    ASSERT_EQ(errno, EXDEV);
    installation_.run();
    check(isNew() && !isHalfDone() && !Exists(installation_.user("Tarnwell.app_tmp")), "upgraded");

    damagePackage();
    sweep(Rollback, [this](int k, const std::string& where) {
        traced(k);
        checkNextRun("killed" + where);

        arrange(Rollback);
        traced(k);
        traced(k);
        checkNextRun("killed twice" + where);

        for (const int error : {ENOSPC, EXDEV}) {
            arrange(Rollback);
            traced(k, error);
            const std::string log = ReadFile(installation_.user("log/launcher.log"));
            check(isUntouched() || isHalfDone(), strerror(error) + where);
            check(LinesWith(log, "at max retries").empty() ||
                      LinesWith(log, "failed to backup app").size() == 11,
                  "the attempts, " + std::string(strerror(error)) + where);
            checkNextRun(strerror(error) + where);
        }
    });
}

}  // namespace
