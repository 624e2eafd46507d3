#include "tests/support/traced-run.h"

#include <fcntl.h>
#include <linux/filter.h>
#include <linux/seccomp.h>
#include <signal.h>
#include <sys/prctl.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <filesystem>
#include <set>
#include <stdexcept>

namespace {

using Entry = decltype(__ptrace_syscall_info::seccomp);

const unsigned kSeconds = 240;  // longer than any run, even one that waits for another

enum Kind { Looks, Opens, Changing, Syncs };

// A system call, with the positions of its descriptor and its path among the arguments.
struct Call {
    const char* name;
    long number;
    Kind kind;
    int descriptor;
    int path;
};
const int kNo = -1;

#define CALL(name, ...) \
    { #name, SYS_##name, __VA_ARGS__ }
const Call kCalls[] = {
    // with a path
    CALL(open, Opens, kNo, 0), CALL(creat, Changing, kNo, 0), CALL(stat, Looks, kNo, 0),
    CALL(lstat, Looks, kNo, 0), CALL(access, Looks, kNo, 0), CALL(readlink, Looks, kNo, 0),
    CALL(statfs, Looks, kNo, 0), CALL(chdir, Looks, kNo, 0), CALL(mkdir, Changing, kNo, 0),
    CALL(rmdir, Changing, kNo, 0), CALL(unlink, Changing, kNo, 0), CALL(rename, Changing, kNo, 0),
    CALL(link, Changing, kNo, 0), CALL(symlink, Changing, kNo, 1), CALL(mknod, Changing, kNo, 0),
    CALL(truncate, Changing, kNo, 0), CALL(chmod, Changing, kNo, 0), CALL(chown, Changing, kNo, 0),
    CALL(lchown, Changing, kNo, 0), CALL(utimensat, Changing, 0, 1),
    // with a folder's descriptor and a path
    CALL(openat, Opens, 0, 1), CALL(openat2, Looks, 0, 1), CALL(newfstatat, Looks, 0, 1),
    CALL(statx, Looks, 0, 1), CALL(faccessat, Looks, 0, 1), CALL(faccessat2, Looks, 0, 1),
    CALL(readlinkat, Looks, 0, 1), CALL(mkdirat, Changing, 0, 1), CALL(unlinkat, Changing, 0, 1),
    CALL(renameat, Changing, 0, 1), CALL(renameat2, Changing, 0, 1), CALL(linkat, Changing, 0, 1),
    CALL(symlinkat, Changing, 1, 2), CALL(mknodat, Changing, 0, 1), CALL(fchmodat, Changing, 0, 1),
    CALL(fchownat, Changing, 0, 1),
    // with a descriptor
    CALL(fstat, Looks, 0, kNo), CALL(fstatfs, Looks, 0, kNo), CALL(getdents64, Looks, 0, kNo),
    CALL(read, Looks, 0, kNo), CALL(pread64, Looks, 0, kNo), CALL(readv, Looks, 0, kNo),
    CALL(preadv, Looks, 0, kNo), CALL(flock, Looks, 0, kNo), CALL(fchdir, Looks, 0, kNo),
    CALL(fcntl, Looks, 0, kNo), CALL(write, Changing, 0, kNo), CALL(writev, Changing, 0, kNo),
    CALL(pwrite64, Changing, 0, kNo), CALL(pwritev, Changing, 0, kNo),
    CALL(copy_file_range, Changing, 2, kNo), CALL(sendfile, Changing, 0, kNo),
    CALL(ftruncate, Changing, 0, kNo), CALL(fallocate, Changing, 0, kNo),
    CALL(fchmod, Changing, 0, kNo), CALL(fchown, Changing, 0, kNo), CALL(fsync, Syncs, 0, kNo),
    CALL(fdatasync, Syncs, 0, kNo), CALL(syncfs, Syncs, 0, kNo)};
#undef CALL

// Only these calls stop the process; the others run at full speed.
std::vector<sock_filter> Filter() {
    std::vector<sock_filter> program = {
        BPF_STMT(BPF_LD | BPF_W | BPF_ABS, offsetof(seccomp_data, nr))};
    for (const Call& call : kCalls) {
        program.push_back(
            BPF_JUMP(BPF_JMP | BPF_JEQ | BPF_K, static_cast<unsigned>(call.number), 0, 1));
        program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_TRACE));
    }
    program.push_back(BPF_STMT(BPF_RET | BPF_K, SECCOMP_RET_ALLOW));
    return program;
}
const std::vector<sock_filter> kFilter = Filter();  // built before the fork

bool IsBelow(const std::string& path, const std::string& folder) {
    return path.compare(0, folder.size(), folder) == 0 &&
           (path.size() == folder.size() || path[folder.size()] == '/');
}

bool IsFile(const std::string& path) {
    return path[0] == '/' && !IsBelow(path, "/dev") && !IsBelow(path, "/proc") &&
           !IsBelow(path, "/sys");
}

std::string LinkTarget(const std::string& link) {
    std::error_code ignored;
    return std::filesystem::read_symlink(link, ignored).string();
}

std::string TextAt(pid_t task, unsigned long long address) {
    std::array<char, PATH_MAX + 1> text{};
    const std::string path = "/proc/" + std::to_string(task) + "/mem";
    const int memory = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    static_cast<void>(pread(memory, text.data(), PATH_MAX, static_cast<off_t>(address)) > 0);
    close(memory);
    return text.data();
}

std::string PathOf(pid_t task, const Call& call, const Entry& entry) {
    std::string path = call.path != kNo ? TextAt(task, entry.args[call.path]) : "";
    if (path[0] == '/') {
        return path;
    }
    const int fd = call.descriptor != kNo ? static_cast<int>(entry.args[call.descriptor]) : -1;
    const std::string folder = LinkTarget("/proc/" + std::to_string(task) +
                                          (fd >= 0 ? "/fd/" + std::to_string(fd) : "/cwd"));
    return path.empty() ? folder : folder + "/" + path;
}

bool Changes(const Call& call, const Entry& entry) {
    return call.kind == Changing || call.kind == Syncs ||
           (call.kind == Opens && (entry.args[call.path + 1] & (O_CREAT | O_TRUNC)) != 0);
}

class Tracer {
  public:
    Tracer(TracedRun& run, pid_t process)
        : run_(run), process_(process), threads_("/proc/" + std::to_string(process) + "/task/") {}

    void handleStop(pid_t task, int status) {
        const int event = status >> 16;
        if (event == PTRACE_EVENT_SECCOMP) {
            handleCall(task);
        }
        // Every new task starts with a SIGSTOP, which isn't passed on.
        const int signal = event != 0 || WSTOPSIG(status) == SIGSTOP ? 0 : WSTOPSIG(status);
        ptrace(PTRACE_CONT, task, nullptr, signal);
    }

  private:
    void handleCall(pid_t task) {
        __ptrace_syscall_info info{};
        ptrace(PTRACE_GET_SYSCALL_INFO, task, sizeof info, &info);
        const Entry& entry = info.seccomp;
        const Call& call = *std::find_if(std::begin(kCalls), std::end(kCalls), [&](const Call& c) {
            return c.number == static_cast<long>(entry.nr);
        });
        const bool changes = Changes(call, entry);
        const bool is_about_descriptor = entry.nr == SYS_fcntl && entry.args[1] <= F_SETFL;
        if ((run_.changes_only && !changes) || is_about_descriptor) {
            return;
        }
        const std::string path = PathOf(task, call, entry);
        if (!counts(path) || access((threads_ + std::to_string(task)).c_str(), F_OK) != 0) {
            return;
        }
        const bool is_struck = ++run_.calls == run_.fault_at;
        if (is_struck) {
            run_.struck = std::string(call.name) + " " + path;
            run_.struck_a_change = changes;
        }
        if (is_struck || (run_.lasting && run_.fault_at != 0 && run_.calls > run_.fault_at)) {
            strike(task);
        } else if (call.kind == Syncs && run_.on_sync) {
            run_.on_sync(call.number == SYS_syncfs ? std::string() : path);
        }
    }

    bool counts(const std::string& path) {
        const auto is_below = [&](const std::string& folder) { return IsBelow(path, folder); };
        has_begun_ |= run_.since.empty() || is_below(run_.since);
        return has_begun_ && IsFile(path) &&
               (run_.within.empty() ||
                std::any_of(run_.within.begin(), run_.within.end(), is_below));
    }

    void strike(pid_t task) {
        if (run_.interfere) {
            run_.interfere(process_);
        } else if (run_.error == 0) {
            kill(process_, SIGKILL);
        } else if (run_.error != EINTR || interrupted_.erase(task) == 0) {
            ptrace(PTRACE_POKEUSER, task, offsetof(user_regs_struct, orig_rax), -1L);
            ptrace(PTRACE_POKEUSER, task, offsetof(user_regs_struct, rax), 0L - run_.error);
            interrupted_.insert(task);
        }
    }

    TracedRun& run_;
    const pid_t process_;
    const std::string threads_;
    bool has_begun_ = false;
    std::set<pid_t> interrupted_;
};

volatile pid_t watched = 0;

}  // namespace

void BeTraced() {
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    raise(SIGSTOP);
    const sock_fprog filter = {static_cast<unsigned short>(kFilter.size()),
                               const_cast<sock_filter*>(kFilter.data())};
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0 ||
        prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) != 0) {
        _exit(125);
    }
}

void TracedRun::follow(pid_t pid) {
    int status = 0;
    if (waitpid(pid, &status, __WALL) != pid || !WIFSTOPPED(status)) {
        throw std::runtime_error("the process can't be traced");
    }
    const long options = PTRACE_O_TRACESECCOMP | PTRACE_O_TRACECLONE | PTRACE_O_TRACEFORK |
                         PTRACE_O_TRACEVFORK | PTRACE_O_TRACEEXEC | PTRACE_O_EXITKILL;
    ptrace(PTRACE_SETOPTIONS, pid, nullptr, options);
    ptrace(PTRACE_CONT, pid, nullptr, nullptr);
    watched = pid;
    signal(SIGALRM, [](int) { kill(watched, SIGKILL); });
    alarm(kSeconds);
    Tracer tracer(*this, pid);
    for (pid_t task = 1; task > 0 || errno == EINTR;) {
        task = waitpid(-1, &status, __WALL);
        if (task > 0 && WIFSTOPPED(status)) {
            tracer.handleStop(task, status);
        } else if (task > 0) {
            ends[task] = WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
        }
    }
    alarm(0);
    end = ends[pid];
}
