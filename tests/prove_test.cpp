// Checks that an upgrade that is interrupted or fails never leaves the user without an application,
// or with a mixture of two. Each row is a combination of a fault, a scene and a user. A row counts
// the system calls N of an undisturbed run and then has one case, a run with the fault, for each of
// these calls and each variant of the fault. Environment variables:
//
//   PROVE_CASES=N   runs about N cases of each row, fewer if they are slow. The default is CASES. 0
//                   runs all, but about 60 of a row with a large package
//   PROVE_STRIDE=N  runs at most one case out of every N
//   PROVE_ONLY=N    runs only the case with the number N
//
// scripts/prove runs all rows with PROVE_CASES=0.

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <random>

#include "tests/support/disk-model.h"
#include "tests/support/upgrade-trial.h"

namespace fs = std::filesystem;

namespace {

const int kErrors[] = {EIO, EINTR, EMFILE, ENOMEM, ENOSPC, EACCES, EXDEV};
const int kSignals[] = {SIGTERM, SIGINT, SIGHUP};
const int kKills = 25;  // consecutive ones in a case of KillInARow

// Level, package and its damage; whether there is an old application, which one, and what else is
// in ~/.Tarnwell.
const Scene kScenes[] = {
    {0, Shape::Plain, Scene::Whole, true, Shape::Plain, Scene::Nothing},
    {1, Shape::Plain, Scene::Whole, false, Shape::Plain, Scene::Nothing},
    {1, Shape::ClientFirst, Scene::CutAfter, true, Shape::Plain, Scene::Nothing},
    {1, Shape::Modes, Scene::Whole, true, Shape::Modes, Scene::Nothing},
    {1, Shape::Modes, Scene::CutAfter, true, Shape::Modes, Scene::Nothing},
    {2, Shape::Single, Scene::Whole, true, Shape::NoClient, Scene::Nothing},
    {2, Shape::Links, Scene::Whole, true, Shape::Links, Scene::Nothing},
    {2, Shape::ClientFirst, Scene::Whole, true, Shape::Plain, Scene::Leftover},
    {2, Shape::Plain, Scene::Whole, true, Shape::Links, Scene::OnOverlay},
    {2, Shape::Plain, Scene::CutBefore, true, Shape::Links, Scene::OnOverlay},
    {3, Shape::Modes, Scene::Whole, false, Shape::Plain, Scene::Nothing},
    {3, Shape::ClientFirst, Scene::CutAfter, false, Shape::Plain, Scene::Nothing},
    {3, Shape::Links, Scene::Whole, true, Shape::Plain, Scene::Nothing},
    {3, Shape::Many, Scene::Whole, true, Shape::Plain, Scene::Nothing},
    {3, Shape::Plain, Scene::CutBefore, true, Shape::Plain, Scene::Nothing},
    {3, Shape::NoClient, Scene::Lacking, true, Shape::Plain, Scene::Nothing},
    {3, Shape::Plain, Scene::CutBefore, true, Shape::NoClient, Scene::Nothing},
    {3, Shape::ClientFirst, Scene::CutAfter, true, Shape::Plain, Scene::Leftover}};

// The system calls that are counted, from the first one on the home folder: those that change files
// in it; all on ~/.Tarnwell; all on the home folder and on the bundle's resources and log folder;
// or all on any file.
enum Scope { Changes, OnTarnwell, OnOwn, OnAny };

// One case of a row: a variant of the fault, and the system call at which it happens.
class Case : public UpgradeTrial {
  public:
    using UpgradeTrial::UpgradeTrial;

    TracedRun at(int call) const {
        TracedRun run;
        run.fault_at = call;
        run.changes_only = scope == Changes;
        run.since = in.home();
        if (scope != OnAny) {
            run.within = {scope == OnTarnwell ? in.user() : in.home()};
        }
        if (scope == OnOwn) {
            run.within.push_back(in.bundle("log"));
            run.within.push_back(in.bundle("Contents/Resources"));
        }
        return run;
    }
    TracedRun run() const { return at(1 + number % calls); }

    Scope scope = Changes;
    int calls = 1;    // N, counted in the undisturbed run
    int number = 0;   // of the case
    int variant = 0;  // of the fault
};

void Kill(Case& c) {
    c.check(c.follow(c.run()).end == 1000 + SIGKILL, "the launcher was not killed");
    c.recover();
}

void KillTwice(Case& c) {
    c.follow(c.run());
    c.follow(c.at(1 + (c.variant * c.calls + c.number % c.calls) / 10));
    c.recover();
}

// In even cases the build number of the package rises from run to run, in odd ones it is random.
void KillInARow(Case& c) {
    std::mt19937 random(static_cast<unsigned>(c.number));
    std::vector<FileTree> whole(c.scene.has_old ? 1 : 0, c.old_app);
    for (int i = 0; i < kKills; ++i) {
        const bool had_any = !whole.empty();
        c.setPackage(100 + (c.number % 2 == 0 ? i : static_cast<int>(random() % kKills)));
        c.follow(c.at(1 + static_cast<int>(random() % static_cast<unsigned>(c.calls))));
        whole.push_back(c.new_app);
        whole.erase(std::remove_if(whole.begin(), whole.end(),
                                   [&](const FileTree& app) { return !c.isWhole(app); }),
                    whole.end());
        c.check(!had_any || !whole.empty(), "no complete application is left");
    }
    c.setPackage(1000);
    c.runUndisturbed();
    c.checkEnd(true);
}

// Replaces ~/.Tarnwell by a copy of it, in which every inode number is different.
void KillAndCopy(Case& c) {
    c.follow(c.run());
    const std::string user = c.in.user();
    CopyTree(user, user + ".copy");
    RemoveTree(user);
    fs::rename(user + ".copy", user);
    c.may_doubt = true;
    c.recover();
}

// Variant 0 loses everything that wasn't synced. Variant 1 keeps it, but new files are empty. The
// other cases choose at random.
void CutPower(Case& c) {
    Disk disk(c.in.user());
    TracedRun run = c.run();
    run.on_sync = [&](const std::string& path) { disk.sync(path); };
    c.follow(run);
    disk.cut(static_cast<unsigned>(c.variant < 2 ? c.variant : c.number));
    if (c.as_user) {
        c.in.runAsNobody();
    }
    c.recover();
}

TracedRun WithError(Case& c, bool lasting) {
    TracedRun run = c.run();
    run.error = kErrors[c.variant];
    run.lasting = lasting;
    c.doing += std::string(" ") + strerror(run.error) + (lasting ? " from that call on," : "");
    run = c.follow(run);
    c.check(run.end == 0, "the exit code isn't 0");
    return run;
}

void Fail(Case& c) {
    // After a failed call that changes nothing, or on an overlay, the application may be complete
    // only after the next run.
    if (WithError(c, false).struck_a_change && c.scene.around != Scene::OnOverlay) {
        c.checkInPlace();
    }
    c.recover();
}

void KeepFailing(Case& c) {
    WithError(c, true);
    c.recover();
}

void FailTenTimes(Case& c) {
    for (int i = 0; i < 10; ++i) {
        c.check(c.runUndisturbed() == 0, "the exit code isn't 0");
        c.checkEnd(false);
    }
    c.setPackage(100);
    c.runUndisturbed();
    c.checkEnd(true);
}

// Starts another copy of the launcher while this one is stopped, then lets both continue. One of
// them has the newer package.
void StartAnother(Case& c) {
    Installation other;
    other.environment["HOME"] = c.in.home();
    other.setBuild(c.variant == 0 ? "101" : "100", "tar.zst", c.scene.package);
    if (c.as_user) {
        other.runAsNobody();
    }
    c.setPackage(c.variant == 0 ? 100 : 101);
    c.new_app = Installation::expectedApp("101", c.scene.package, true);
    pid_t pid = 0;
    TracedRun run = c.run();
    run.interfere = [&](pid_t) {
        pid = other.start();
        siginfo_t end{};
        for (int i = 0; i < 100 && end.si_pid == 0; ++i) {  // it may wait for this one
            usleep(2000);
            waitid(P_PID, static_cast<id_t>(pid), &end, WEXITED | WNOHANG | WNOWAIT);
        }
    };
    run = c.follow(run);
    c.check(run.end == 0, "the exit code isn't 0");
    c.check(run.ends[pid] == 0, "the other launcher's exit code isn't 0");
    c.checkEnd(true);
}

void SendSignal(Case& c) {
    const int deaf = c.calls / 3;  // by then it has installed its signal handlers
    TracedRun run = c.at(deaf + 1 + c.number % (c.calls - deaf));
    run.interfere = [&](pid_t pid) { kill(pid, kSignals[c.variant]); };
    c.check(c.follow(run).end == 0, "the exit code isn't 0");
    c.checkEnd(true);
}

// During the run, ~/.Tarnwell is renamed, removed, or replaced by a file.
void TakeHome(Case& c) {
    const std::string user = c.in.user();
    TracedRun run = c.run();
    run.interfere = [&](pid_t) {
        fs::rename(user, user + ".elsewhere");
        if (c.variant > 0) {
            RemoveTree(user + ".elsewhere");
        }
        if (c.variant > 1) {
            MakeFile(user);
        }
    };
    c.check(c.follow(run).end == 0, "the exit code isn't 0");
    RemoveTree(user + ".elsewhere");
    RemoveTree(user);
    c.runUndisturbed();
    c.checkEnd(true);
}

void FillDisk(Case& c) {
    const std::string filler = c.in.home() + "/filler";
    TracedRun run = c.run();
    run.interfere = [&](pid_t) {
        const int fd = open(filler.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
        const std::string block(4096, 'f');
        while (write(fd, block.data(), block.size()) > 0) {
        }
        close(fd);
    };
    c.check(c.follow(run).end == 0, "the exit code isn't 0");
    c.checkInPlace();
    fs::remove(filler);
    c.recover();
}

struct Fault {
    const char* name;
    void (*strike)(Case& c);
    int level;         // it is tried in the scenes up to this level
    int variants = 1;  // each has N cases
    int more = 0;      // additional cases
    Scope scope = Changes;
    int weight = 1;    // duration of a case, relative to one of weight 1
    bool good = true;  // tried with whole packages
    bool bad = true;   // tried with damaged packages
};

const Fault kFaults[] = {{"killed", Kill, 3},
                         {"killed twice", KillTwice, 2, 10},
                         {"killed in a row", KillInARow, 1, 0, 40, Changes, 12, true, false},
                         {"killed and copied", KillAndCopy, 1},
                         {"power cut", CutPower, 1, 2, 1000},
                         {"a call fails", Fail, 2, 7, 0, OnOwn},
                         {"any call fails", Fail, 0, 7, 0, OnAny},
                         {"calls fail from one on", KeepFailing, 2, 7, 0, OnTarnwell},
                         {"ten failures", FailTenTimes, 1, 0, 1, Changes, 12, false, true},
                         {"another launcher", StartAnother, 1, 2, 0, Changes, 4, true, false},
                         {"signal", SendSignal, 0, 3},
                         {"home taken away", TakeHome, 0, 3},
                         {"full disk", FillDisk, 0}};

struct Row {
    Fault fault;
    Scene scene;
    bool as_user;

    std::string name() const {
        return std::string(fault.name) + ", " + scene.name() + (as_user ? ", user" : ", root");
    }
};

void PrintTo(const Row& row, std::ostream* out) {
    *out << row.name();
}

std::vector<Row> Rows() {
    std::vector<Row> rows;
    for (const Fault& fault : kFaults) {
        for (const Scene& scene : kScenes) {
            const bool fits = scene.damage == Scene::Whole ? fault.good : fault.bad;
            for (const bool as_user : {true, false}) {
                if (fits && scene.level <= fault.level && (as_user || geteuid() == 0)) {
                    rows.push_back({fault, scene, as_user});
                }
            }
        }
    }
    return rows;
}

int Setting(const char* name, int otherwise) {
    const char* const value = getenv(name);
    return value != nullptr ? atoi(value) : otherwise;
}

// Returns the numbers of the cases to run: one, chosen at random, of each `stride` successive ones.
std::vector<int> Draw(const Row& row, int calls) {
    const bool is_large = row.scene.package == Shape::Many;
    const int cases = calls * row.fault.variants + row.fault.more;
    int wanted = Setting("PROVE_CASES", CASES);
    wanted = wanted > 0 ? std::max(1, wanted / (is_large ? 4 : row.fault.weight))
             : is_large ? 60
                        : cases;
    const int stride = std::max({1, Setting("PROVE_STRIDE", 1), (cases + wanted - 1) / wanted});
    std::mt19937 random(static_cast<unsigned>(std::hash<std::string>()(row.name())));
    std::vector<int> numbers;
    for (int begin = 0; begin < cases; begin += stride) {
        const int number = begin + static_cast<int>(random() % static_cast<unsigned>(stride));
        numbers.push_back(std::min(number, cases - 1));
    }
    return getenv("PROVE_ONLY") != nullptr ? std::vector<int>{Setting("PROVE_ONLY", 0)} : numbers;
}

class ProveTest : public testing::TestWithParam<Row> {};

TEST_P(ProveTest, EndsWell) {
    const Row& row = GetParam();
    Case c(row.scene, row.as_user, row.fault.strike == FillDisk);
    const bool is_readable = row.scene.old != Shape::Modes || geteuid() == 0;
    if (!c.possible() || (row.fault.strike == KillAndCopy && !is_readable)) {
        GTEST_SKIP() << "only root can set up or copy this scene";
    }
    c.scope = row.fault.scope;
    c.doing = "undisturbed";
    c.arrange();
    const TracedRun run = c.follow(c.at(0));
    c.check(run.end == 0 && run.calls > 20, "the undisturbed run is too short or failed");
    c.recover();
    c.calls = run.calls;
    int runs = 0;
    int bad_ends = c.has_failed ? 1 : 0;
    for (const int number : c.has_failed ? std::vector<int>() : Draw(row, c.calls)) {
        c.doing = "PROVE_ONLY=" + std::to_string(number);
        c.number = number;
        c.variant = number / c.calls;
        c.arrange();
        row.fault.strike(c);
        ++runs;
        bad_ends += c.has_failed ? 1 : 0;
    }
    std::printf("| %s | %d | %d | %d |\n", row.name().c_str(), c.calls, runs, bad_ends);
}

INSTANTIATE_TEST_SUITE_P(, ProveTest, testing::ValuesIn(Rows()), [](const auto& row) {
    std::string name = row.param.name();
    name.erase(std::remove(name.begin(), name.end(), ','), name.end());
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
});

}  // namespace
