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
#include <cerrno>
#include <cstddef>
#include <filesystem>
#include <fstream>

#include "tests/support/scenario.h"

namespace {

using Entry = decltype(__ptrace_syscall_info::seccomp);

const unsigned kSeconds = 240;  // longer than any run, even one that waits for another

enum Kind { Reads, Opens, Changes, Syncs };

// A system call, with the positions of its descriptor and its path among the arguments; -1: none.
struct Call {
    const char* name;
    long number;
    Kind kind;
    int descriptor;
    int path;
};

#define CALL(name, ...) \
    { #name, SYS_##name, __VA_ARGS__ }
#define PATH(name, kind) CALL(name, kind, -1, 0)
#define AT(name, kind) CALL(name, kind, 0, 1)
#define FD(name, kind) CALL(name, kind, 0, -1)
const Call kCalls[] = {
    // with a path
    PATH(open, Opens), PATH(creat, Changes), PATH(stat, Reads), PATH(lstat, Reads),
    PATH(access, Reads), PATH(readlink, Reads), PATH(statfs, Reads), PATH(chdir, Reads),
    PATH(mkdir, Changes), PATH(rmdir, Changes), PATH(unlink, Changes), PATH(rename, Changes),
    PATH(link, Changes), PATH(mknod, Changes), PATH(truncate, Changes), PATH(chmod, Changes),
    PATH(chown, Changes), PATH(lchown, Changes),
    // with a folder's descriptor and a path
    AT(utimensat, Changes), AT(openat, Opens), AT(openat2, Reads), AT(newfstatat, Reads),
    AT(statx, Reads), AT(faccessat, Reads), AT(faccessat2, Reads), AT(readlinkat, Reads),
    AT(mkdirat, Changes), AT(unlinkat, Changes), AT(renameat, Changes), AT(renameat2, Changes),
    AT(linkat, Changes), AT(mknodat, Changes), AT(fchmodat, Changes), AT(fchownat, Changes),
    // with a descriptor
    FD(fstat, Reads), FD(fstatfs, Reads), FD(getdents64, Reads), FD(read, Reads),
    FD(pread64, Reads), FD(readv, Reads), FD(preadv, Reads), FD(flock, Reads), FD(fchdir, Reads),
    FD(fcntl, Reads), FD(write, Changes), FD(writev, Changes), FD(pwrite64, Changes),
    FD(pwritev, Changes), FD(sendfile, Changes), FD(ftruncate, Changes), FD(fallocate, Changes),
    FD(fchmod, Changes), FD(fchown, Changes), FD(fsync, Syncs), FD(fdatasync, Syncs),
    FD(syncfs, Syncs),
    // with other arguments first
    CALL(symlink, Changes, -1, 1), CALL(symlinkat, Changes, 1, 2),
    CALL(copy_file_range, Changes, 2, -1)};

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

std::string TextAt(pid_t task, unsigned long long address) {
    std::ifstream memory("/proc/" + std::to_string(task) + "/mem", std::ios::binary);
    memory.seekg(static_cast<std::streamoff>(address));
    std::string text;
    std::getline(memory, text, '\0');
    return text;
}

std::string PathOf(pid_t task, const Call& call, const Entry& entry) {
    std::string path = call.path >= 0 ? TextAt(task, entry.args[call.path]) : "";
    if (path[0] == '/') {
        return path;
    }
    const int fd = call.descriptor >= 0 ? static_cast<int>(entry.args[call.descriptor]) : -1;
    const std::string link =
        "/proc/" + std::to_string(task) + (fd >= 0 ? "/fd/" + std::to_string(fd) : "/cwd");
    std::error_code ignored;
    const std::string folder = std::filesystem::read_symlink(link, ignored);
    return path.empty() ? folder : folder + "/" + path;
}

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
    alarm(kSeconds);
    setenv("ASAN_OPTIONS", "detect_leaks=0", 1);  // a traced process can't trace itself for leaks
}

bool TracedRun::counts(const std::string& path) {
    const auto is_below = [&](const std::string& folder) { return IsBelow(path, folder); };
    has_begun_ |= since.empty() || is_below(since);
    return has_begun_ && IsFile(path) &&
           (within.empty() || std::any_of(within.begin(), within.end(), is_below));
}

void TracedRun::handleCall(pid_t task) {
    __ptrace_syscall_info info{};
    ptrace(PTRACE_GET_SYSCALL_INFO, task, sizeof info, &info);
    const Entry& entry = info.seccomp;
    const Call& call = *std::find_if(std::begin(kCalls), std::end(kCalls), [&](const Call& c) {
        return c.number == static_cast<long>(entry.nr);
    });
    const bool opens_anew =
        call.kind == Opens && (entry.args[call.path + 1] & (O_CREAT | O_TRUNC)) != 0;
    const bool changes = call.kind == Changes || call.kind == Syncs || opens_anew;
    const bool is_about_descriptor = entry.nr == SYS_fcntl && entry.args[1] <= F_SETFL;
    if ((changes_only && !changes) || is_about_descriptor) {
        return;
    }
    const std::string path = PathOf(task, call, entry);
    const bool is_childs = syscall(SYS_tgkill, process_, task, 0) != 0;
    if (is_childs || !counts(path)) {
        return;
    }
    if (++calls == fault_at) {
        faulty = std::string(call.name) + " " + path;
        at_change = changes;
    }
    if (fault_at != 0 && (calls == fault_at || (lasting && calls > fault_at))) {
        const int error = fault ? fault(process_) : kill(process_, SIGKILL);
        if (error != 0 && (error != EINTR || interrupted_.erase(task) == 0)) {
            ptrace(PTRACE_POKEUSER, task, offsetof(user_regs_struct, orig_rax), -1L);
            ptrace(PTRACE_POKEUSER, task, offsetof(user_regs_struct, rax), 0L - error);
            interrupted_.insert(task);
        }
    } else if (call.kind == Syncs && on_sync) {
        on_sync(call.number == SYS_syncfs ? std::string() : path);
    }
}

void TracedRun::follow(pid_t pid) {
    int status = 0;
    Check(waitpid(pid, &status, __WALL) == pid && WIFSTOPPED(status),
          "the process can't be traced");
    const long options = PTRACE_O_TRACESECCOMP | PTRACE_O_TRACECLONE | PTRACE_O_TRACEFORK |
                         PTRACE_O_TRACEVFORK | PTRACE_O_TRACEEXEC | PTRACE_O_EXITKILL;
    ptrace(PTRACE_SETOPTIONS, pid, nullptr, options);
    process_ = pid;
    for (pid_t task = pid; task > 0; task = waitpid(-1, &status, __WALL)) {
        if (!WIFSTOPPED(status)) {
            ends[task] = EndOf(status);
            continue;
        }
        const int event = status >> 16;
        if (event == PTRACE_EVENT_SECCOMP) {
            handleCall(task);
        }
        // Every new task starts with a SIGSTOP, which isn't passed on.
        const int signal = event != 0 || WSTOPSIG(status) == SIGSTOP ? 0 : WSTOPSIG(status);
        ptrace(PTRACE_CONT, task, nullptr, signal);
    }
    end = ends[pid];
}
