// That no upgrade can be cut off or fail so that the user is left without an application, or with a
// mixture of two. Each row has a fault, a scene and a user; it counts the system calls N of an
// undisturbed run, and strikes at each of them in turn. The environment says how often: PROVE_CASES
// in a row (12; 0: no limit), PROVE_STRIDE every n-th case only, PROVE_ONLY the case of this number
// only. scripts/prove strikes everywhere.

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
const int kKills = 25;  // in a row

// The package and how it is damaged, whether there is an old application, which, and what else.
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
    {3, Shape::NoClient, Scene::CutAfter, true, Shape::Plain, Scene::Nothing},
    {3, Shape::Plain, Scene::CutBefore, true, Shape::NoClient, Scene::Nothing},
    {3, Shape::ClientFirst, Scene::CutAfter, true, Shape::Plain, Scene::Leftover}};

// A case of a row: what happens at which of its calls. Those that count are those that change
// files; or all, on the user's files, on the bundle's as well, or on any after the first of the
// user's.
struct Case {
    enum Scope { Changes, OnUsers, OnOwn, OnAny };

    UpgradeTrial& trial;
    const Scope scope;
    int calls = 1;    // N
    int number = 0;   // of the case
    int variant = 0;  // of what happens

    TracedRun at(int call) const {
        TracedRun run;
        run.fault_at = call;
        run.changes_only = scope == Changes;
        if (scope == OnUsers) {
            run.within = {trial.in.user()};
        } else if (scope == OnOwn) {
            run.within = {trial.in.home(), trial.in.bundle("log"),
                          trial.in.bundle("Contents/Resources")};
        } else if (scope == OnAny) {
            run.since = trial.in.home();
        }
        return run;
    }
    TracedRun run() const { return at(1 + number % calls); }
};

void Kill(Case& c) {
    TracedRun run = c.run();
    c.trial.check(c.trial.follow(run) == 1000 + SIGKILL, "not killed");
    c.trial.recover();
}

void KillTwice(Case& c) {
    TracedRun run = c.run();
    c.trial.follow(run);
    TracedRun next = c.at(1 + 7 * c.variant + c.number % 7);
    c.trial.follow(next);
    c.trial.recover();
}

// With versions that rise, or rise and fall.
void KillInARow(Case& c) {
    std::mt19937 random(static_cast<unsigned>(c.number));
    std::vector<FileTree> whole = {c.trial.old_app};
    for (int i = 0; i < kKills; ++i) {
        c.trial.setPackage(100 + (c.number % 2 == 0 ? i : static_cast<int>(random() % kKills)));
        TracedRun run = c.at(1 + static_cast<int>(random() % static_cast<unsigned>(c.calls)));
        c.trial.follow(run);
        whole.push_back(c.trial.new_app);
        whole.erase(std::remove_if(whole.begin(), whole.end(),
                                   [&](const FileTree& app) { return !c.trial.isWhole(app); }),
                    whole.end());
        c.trial.check(!whole.empty() || !c.trial.scene.has_old, "nothing whole is left");
        c.trial.doing.clear();
    }
    c.trial.setPackage(1000);
    c.trial.runUndisturbed();
    c.trial.checkEnd(true);
}

// What is copied has other inodes.
void KillAndCopy(Case& c) {
    TracedRun run = c.run();
    c.trial.follow(run);
    const std::string user = c.trial.in.user();
    CopyTree(user, user + ".copy");
    RemoveTree(user);
    fs::rename(user + ".copy", user);
    c.trial.may_doubt = true;
    c.trial.recover();
}

// At each call everything is lost that wasn't on the disk, or there, but empty; then by chance.
void CutPower(Case& c) {
    Disk disk(c.trial.in.user());
    TracedRun run = c.run();
    run.on_sync = [&](const std::string& path) { disk.sync(path); };
    c.trial.follow(run);
    disk.cut(static_cast<unsigned>(c.variant < 2 ? c.variant : c.number));
    if (c.trial.as_user) {
        c.trial.in.runAsNobody();
    }
    c.trial.recover();
}

void Fail(Case& c) {
    TracedRun run = c.run();
    run.error = kErrors[c.variant];
    c.trial.doing += std::string(" ") + strerror(run.error);
    c.trial.check(c.trial.follow(run) == 0, "exit code");
    // What was looked at in vain may be put right by the next run only.
    if (run.struck_a_change && c.trial.scene.around != Scene::OnOverlay) {
        c.trial.checkInPlace();
    }
    c.trial.recover();
}

void KeepFailing(Case& c) {
    TracedRun run = c.run();
    run.error = kErrors[c.variant];
    run.lasting = true;
    c.trial.doing += std::string(" ") + strerror(run.error) + " from there on,";
    c.trial.check(c.trial.follow(run) == 0, "exit code");
    c.trial.recover();
}

void FailTenTimes(Case& c) {
    for (int i = 0; i < 10; ++i) {
        c.trial.check(c.trial.runUndisturbed() == 0, "exit code");
        c.trial.checkEnd(false);
    }
    c.trial.setPackage(100);
    c.trial.runUndisturbed();
    c.trial.checkEnd(true);
}

// Another copy of the launcher begins while this one is stopped, and both go on, one with a newer
// package and one with an older one.
void StartAnother(Case& c) {
    Installation other;
    other.environment["HOME"] = c.trial.in.home();
    other.setBuild(c.variant == 0 ? "101" : "100", "tar.zst", c.trial.scene.package);
    if (c.trial.as_user) {
        other.runAsNobody();
    }
    c.trial.setPackage(c.variant == 0 ? 100 : 101);
    c.trial.new_app = other.expectedApp("101", c.trial.scene.package, true);
    pid_t pid = 0;
    TracedRun run = c.run();
    run.interfere = [&](pid_t) {
        pid = other.start();
        siginfo_t end{};
        for (int i = 0; i < 100 && end.si_pid == 0; ++i) {  // unless it waits for this one
            usleep(2000);
            waitid(P_PID, static_cast<id_t>(pid), &end, WEXITED | WNOHANG | WNOWAIT);
        }
    };
    c.trial.check(c.trial.follow(run) == 0, "exit code");
    c.trial.check(run.ends[pid] == 0, "exit code of the other");
    c.trial.checkEnd(true);
}

void SendSignal(Case& c) {
    TracedRun run = c.at(std::max(c.calls / 3, 1 + c.number % c.calls));  // since it listens
    run.interfere = [&](pid_t pid) { kill(pid, kSignals[c.variant]); };
    c.trial.check(c.trial.follow(run) == 0, "exit code");
    c.trial.checkEnd(true);
}

// It is renamed, removed, or replaced by a file.
void TakeHome(Case& c) {
    const std::string user = c.trial.in.user();
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
    c.trial.check(c.trial.follow(run) == 0, "exit code");
    RemoveTree(user + ".elsewhere");
    RemoveTree(user);
    c.trial.runUndisturbed();
    c.trial.checkEnd(true);
}

void FillDisk(Case& c) {
    const std::string filler = c.trial.in.home() + "/filler";
    TracedRun run = c.run();
    run.interfere = [&](pid_t) {
        const int fd = open(filler.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0644);
        const std::string block(4096, 'f');
        while (write(fd, block.data(), block.size()) > 0) {
        }
        close(fd);
    };
    c.trial.check(c.trial.follow(run) == 0, "exit code");
    c.trial.checkInPlace();
    fs::remove(filler);
    c.trial.recover();
}

struct Fault {
    const char* name;
    void (*strike)(Case& c);
    int level;         // of scenes
    int variants = 1;  // each has N cases
    int more = 0;      // cases besides
    Case::Scope scope = Case::Changes;
    int weight = 1;    // how many others one case lasts as long as
    bool good = true;  // with whole packages
    bool bad = true;   // with damaged ones
};

const Fault kFaults[] = {{"killed", Kill, 3},
                         {"killed twice", KillTwice, 2, 10},
                         {"killed in a row", KillInARow, 1, 0, 40, Case::Changes, 12, true, false},
                         {"killed and copied", KillAndCopy, 1},
                         {"power cut", CutPower, 1, 2, 1000},
                         {"a call fails", Fail, 2, 7, 0, Case::OnOwn},
                         {"any call fails", Fail, 0, 7, 0, Case::OnAny},
                         {"calls fail from one on", KeepFailing, 2, 7, 0, Case::OnUsers},
                         {"ten failures", FailTenTimes, 1, 0, 1, Case::Changes, 12, false, true},
                         {"another launcher", StartAnother, 1, 2, 0, Case::Changes, 4, true, false},
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

std::vector<Row> Rows() {
    std::vector<Row> rows;
    for (const Fault& fault : kFaults) {
        for (const Scene& scene : kScenes) {
            const bool fits = scene.cut == Scene::Whole ? fault.good : fault.bad;
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

// The cases of a row that are tried, one of each stretch.
std::vector<int> Draw(const Row& row, int calls) {
    const int weight = row.fault.weight * (row.scene.package == Shape::Many ? 4 : 1);
    const int cases = calls * row.fault.variants + row.fault.more;
    int wanted = Setting("PROVE_CASES", 12);
    wanted = wanted > 0 ? std::max(1, wanted / weight) : weight == 4 ? 60 : cases;
    const int stride = std::max({1, Setting("PROVE_STRIDE", 1), cases / wanted});
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
    UpgradeTrial trial(row.scene, row.as_user, row.fault.strike == FillDisk);
    if (!trial.possible()) {
        GTEST_SKIP() << "this user may not mount a disk";
    }
    Case c = {trial, row.fault.scope};
    TracedRun run = c.at(0);
    trial.arrange();
    trial.check(trial.follow(run) == 0 && run.calls > 20, "the undisturbed run");
    trial.recover();
    c.calls = run.calls;
    int runs = 0;
    int bad_ends = trial.has_failed ? 1 : 0;
    for (const int number : trial.has_failed ? std::vector<int>() : Draw(row, c.calls)) {
        trial.doing = "PROVE_ONLY=" + std::to_string(number);
        trial.arrange();
        c.number = number;
        c.variant = number / c.calls;
        row.fault.strike(c);
        ++runs;
        bad_ends += trial.has_failed ? 1 : 0;
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
