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

#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <list>
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

void Kill(UpgradeTrial& t) {
    t.check(t.follow(t.run()).end == 1000 + SIGKILL, "the launcher was not killed");
    t.recover();
}

void KillTwice(UpgradeTrial& t) {
    t.follow(t.run());
    t.follow(t.at(1 + (t.variant * t.calls + t.number % t.calls) / 10));
    t.recover();
}

// In even cases the build number of the package rises from run to run, in odd ones it is random.
void KillInARow(UpgradeTrial& t) {
    std::mt19937 random(static_cast<unsigned>(t.number));
    std::list<FileTree> whole(t.scene.has_old ? 1 : 0, t.old_app);
    for (int i = 0; i < kKills; ++i) {
        const bool had_any = !whole.empty();
        t.setPackage(100 + (t.number % 2 == 0 ? i : static_cast<int>(random() % kKills)));
        t.follow(t.at(1 + static_cast<int>(random() % static_cast<unsigned>(t.calls))));
        whole.push_back(t.new_app);
        whole.remove_if([&](const FileTree& app) { return !t.isWhole(app); });
        t.check(!had_any || !whole.empty(), "no complete application is left");
    }
    t.setPackage(1000);
    t.finish(true);
}

// Replaces ~/.Tarnwell by a copy of it, in which every inode number is different.
void KillAndCopy(UpgradeTrial& t) {
    t.follow(t.run());
    const std::string user = t.in.user();
    CopyTree(user, user + ".copy");
    RemoveTree(user);
    fs::rename(user + ".copy", user);
    t.may_doubt = true;
    t.recover();
}

// Variant 0 loses everything that wasn't synced. Variant 1 keeps it, but new files are empty. The
// other cases choose at random.
void CutPower(UpgradeTrial& t) {
    Disk disk(t.in.user());
    TracedRun run = t.run();
    run.on_sync = [&](const std::string& path) { disk.sync(path); };
    t.follow(run);
    disk.cut(static_cast<unsigned>(t.variant < 2 ? t.variant : t.number));
    if (t.as_user) {
        t.in.runAsNobody();
    }
    t.recover();
}

void Fail(UpgradeTrial& t, bool lasting) {
    const int error = kErrors[t.variant];
    TracedRun run = t.run([&](pid_t) { return error; });
    run.lasting = lasting;
    t.doing += std::string(" ") + strerror(error) + (lasting ? " from that call on," : "");
    // After a failed call that changes nothing, or on an overlay, the application may be complete
    // only after the next run.
    if (t.follow(run).at_change && !lasting && t.scene.around != Scene::OnOverlay) {
        t.checkInPlace();
    }
    t.recover();
}

void FailTenTimes(UpgradeTrial& t) {
    for (int i = 0; i < 10; ++i) {
        t.finish(false);
    }
    t.setPackage(100);
    t.finish(true);
}

// Starts another copy of the launcher while this one is stopped, then lets both continue. One of
// them has the newer package.
void StartAnother(UpgradeTrial& t) {
    Installation other;
    other.environment["HOME"] = t.in.home();
    other.setBuild(t.variant == 0 ? "101" : "100", "tar.zst", t.scene.package);
    if (t.as_user) {
        other.runAsNobody();
    }
    t.setPackage(t.variant == 0 ? 100 : 101);
    t.new_app = Installation::expectedApp("101", t.scene.package, true);
    pid_t pid = 0;
    TracedRun run = t.follow(t.run([&](pid_t) {
        pid = other.start();
        siginfo_t end{};
        for (int i = 0; i < 100 && end.si_pid == 0; ++i) {  // it may wait for this one
            usleep(2000);
            waitid(P_PID, static_cast<id_t>(pid), &end, WEXITED | WNOHANG | WNOWAIT);
        }
        return 0;
    }));
    t.check(run.ends[pid] == 0, "the other launcher's exit code isn't 0");
    t.checkEnd(true);
}

void SendSignal(UpgradeTrial& t) {
    const int begin = t.calls / 3;  // by then it has installed its signal handlers
    t.follow(t.at(begin + 1 + t.number % (t.calls - begin),
                  [&](pid_t pid) { return kill(pid, kSignals[t.variant]); }));
    t.checkEnd(true);
}

// During the run, ~/.Tarnwell is renamed, removed, or replaced by a file.
void TakeHome(UpgradeTrial& t) {
    const std::string user = t.in.user();
    t.follow(t.run([&](pid_t) {
        fs::rename(user, user + ".elsewhere");
        if (t.variant > 0) {
            RemoveTree(user + ".elsewhere");
        }
        if (t.variant > 1) {
            MakeFile(user);
        }
        return 0;
    }));
    RemoveTree(user + ".elsewhere");
    RemoveTree(user);
    t.finish(true);
}

void FillDisk(UpgradeTrial& t) {
    const std::string filler = t.in.home() + "/filler";
    t.follow(t.run([&](pid_t) {
        std::ofstream(filler) << std::string(2 << 20, 'f');
        return 0;
    }));
    t.checkInPlace();
    fs::remove(filler);
    t.recover();
}

struct Fault {
    const char* name;
    void (*run)(UpgradeTrial& t);  // runs a case
    int level;                     // it is tried in the scenes up to this level
    int variants = 1;              // each has N cases
    int more = 0;                  // additional cases
    Scope scope = Changes;
    int weight = 1;    // duration of a case, relative to one of weight 1
    bool good = true;  // tried with whole packages
    bool bad = true;   // tried with damaged packages
};

const Fault kFaults[] = {
    {"killed", Kill, 3},
    {"killed twice", KillTwice, 2, 10},
    {"killed in a row", KillInARow, 1, 0, 40, Changes, 12, true, false},
    {"killed and copied", KillAndCopy, 1},
    {"power cut", CutPower, 1, 2, 1000},
    {"a call fails", [](UpgradeTrial& t) { Fail(t, false); }, 2, 7, 0, OnOwn},
    {"any call fails", [](UpgradeTrial& t) { Fail(t, false); }, 0, 7, 0, OnAny},
    {"calls fail from one on", [](UpgradeTrial& t) { Fail(t, true); }, 2, 7, 0, OnTarnwell},
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
    UpgradeTrial t(row.scene, row.as_user, row.fault.run == FillDisk);
    const bool is_readable = row.scene.old != Shape::Modes || geteuid() == 0;
    if (!t.possible() || (row.fault.run == KillAndCopy && !is_readable)) {
        GTEST_SKIP() << "only root can set up or copy this scene";
    }
    t.scope = row.fault.scope;
    t.doing = "undisturbed";
    t.arrange();
    const TracedRun run = t.follow(t.at(0));
    t.check(run.calls > 20, "the undisturbed run is too short");
    t.recover();
    t.calls = run.calls;
    int runs = 0;
    int bad_ends = t.has_failed ? 1 : 0;
    for (const int number : t.has_failed ? std::vector<int>() : Draw(row, t.calls)) {
        t.doing = "PROVE_ONLY=" + std::to_string(number);
        t.number = number;
        t.variant = number / t.calls;
        t.arrange();
        row.fault.run(t);
        ++runs;
        bad_ends += t.has_failed ? 1 : 0;
    }
    std::printf("| %s | %d | %d | %d |\n", row.name().c_str(), t.calls, runs, bad_ends);
}

INSTANTIATE_TEST_SUITE_P(, ProveTest, testing::ValuesIn(Rows()), [](const auto& row) {
    std::string name = row.param.name();
    name.erase(std::remove(name.begin(), name.end(), ','), name.end());
    std::replace(name.begin(), name.end(), ' ', '_');
    return name;
});

}  // namespace
