#include "tests/support/traced-run.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>

#include <climits>
#include <cstddef>
#include <fstream>
#include <map>
#include <set>
#include <stdexcept>

namespace {

using SyscallEntry = decltype(__ptrace_syscall_info::entry);

const std::set<long> kSyncs = {SYS_fsync, SYS_fdatasync, SYS_syncfs};

const std::set<long> kChanges = {
    SYS_creat,     SYS_mkdir,    SYS_mkdirat,   SYS_rename, SYS_renameat,  SYS_renameat2,
    SYS_unlink,    SYS_unlinkat, SYS_rmdir,     SYS_link,   SYS_linkat,    SYS_symlink,
    SYS_symlinkat, SYS_truncate, SYS_ftruncate, SYS_chmod,  SYS_fchmod,    SYS_fchmodat,
    SYS_chown,     SYS_fchown,   SYS_fchownat,  SYS_lchown, SYS_utimensat, SYS_mknod,
    SYS_mknodat,   SYS_fsync,    SYS_fdatasync, SYS_syncfs, SYS_fallocate};

const std::set<long> kWrites = {SYS_write, SYS_pwrite64, SYS_writev, SYS_pwritev};

std::string PathOf(pid_t tid, unsigned long long fd) {
    const std::string link = "/proc/" + std::to_string(tid) + "/fd/" + std::to_string(fd);
    char path[PATH_MAX];
    const ssize_t size = readlink(link.c_str(), path, sizeof path);
    return std::string(path, size > 0 ? static_cast<std::size_t>(size) : 0);
}

std::string TextAt(pid_t tid, unsigned long long address) {
    std::ifstream memory("/proc/" + std::to_string(tid) + "/mem", std::ios::binary);
    memory.seekg(static_cast<std::streamoff>(address));
    std::string text;
    std::getline(memory, text, '\0');
    return text;
}

// Where a build that counts what is executed keeps its counters. They are no part of a run: it
// writes them when it has ended.
bool IsCounterFile(const std::string& path) {
    const std::string suffix = ".gcda";
    return path.size() > suffix.size() &&
           path.compare(path.size() - suffix.size(), suffix.size(), suffix) == 0;
}

bool ChangesFiles(pid_t tid, const SyscallEntry& call) {
    const auto number = static_cast<long>(call.nr);
    if (number == SYS_open || number == SYS_openat) {
        const std::size_t flags = number == SYS_open ? 1 : 2;
        return (call.args[flags] & (O_CREAT | O_TRUNC)) != 0 &&
               !IsCounterFile(TextAt(tid, call.args[flags - 1]));
    }
    if (kWrites.count(number) != 0) {
        const std::string path = PathOf(tid, call.args[0]);
        return path.compare(0, 1, "/") == 0 && path.compare(0, 5, "/dev/") != 0 &&
               !IsCounterFile(path);
    }
    return kChanges.count(number) != 0;
}

void Poke(pid_t tid, std::size_t offset, long value) {
    ptrace(PTRACE_POKEUSER, tid, offset, value);
}

class Tracer {
  public:
    Tracer(TracedRun& run, pid_t process) : run_(run), process_(process) {}

    // Deals with one stop; returns the signal to go on with.
    int handle(pid_t tid, int status) {
        const int signal = WSTOPSIG(status);
        if (signal == (SIGTRAP | 0x80)) {
            handleSystemCall(tid);
            return 0;
        }
        const bool is_event = status >> 16 != 0;
        const bool is_new_thread = signal == SIGSTOP && known_.insert(tid).second;
        return is_event || is_new_thread ? 0 : signal;
    }

  private:
    void handleSystemCall(pid_t tid) {
        __ptrace_syscall_info info{};
        ptrace(PTRACE_GET_SYSCALL_INFO, tid, sizeof info, &info);
        if (info.op == PTRACE_SYSCALL_INFO_ENTRY) {
            current_[tid] = info.entry;
            if (ChangesFiles(tid, info.entry) && ++run_.calls == run_.fault_at) {
                strike(tid);
            }
        } else if (info.op == PTRACE_SYSCALL_INFO_EXIT) {
            if (failing_ == tid) {
                Poke(tid, offsetof(user_regs_struct, rax), -run_.error);
                failing_ = 0;
            } else if (info.exit.rval == 0 && run_.on_sync) {
                reportSync(tid, current_[tid]);
            }
        }
    }

    void strike(pid_t tid) {
        if (run_.interfere) {
            run_.interfere(process_);
        } else if (run_.error == 0) {
            kill(process_, SIGKILL);
        } else {
            Poke(tid, offsetof(user_regs_struct, orig_rax), -1);
            failing_ = tid;
        }
    }

    void reportSync(pid_t tid, const SyscallEntry& call) {
        const long number = static_cast<long>(call.nr);
        if (kSyncs.count(number) != 0) {
            run_.on_sync(number == SYS_syncfs ? std::string() : PathOf(tid, call.args[0]));
        }
    }

    TracedRun& run_;
    const pid_t process_;
    pid_t failing_ = 0;
    std::set<pid_t> known_;
    std::map<pid_t, SyscallEntry> current_;
};

}  // namespace

void BeTraced() {
    ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    raise(SIGSTOP);
}

void TracedRun::follow(pid_t pid) {
    int status = 0;
    if (waitpid(pid, &status, __WALL) != pid || !WIFSTOPPED(status)) {
        throw std::runtime_error("the process can't be traced");
    }
    const long options =
        PTRACE_O_TRACESYSGOOD | PTRACE_O_TRACECLONE | PTRACE_O_TRACEEXEC | PTRACE_O_EXITKILL;
    ptrace(PTRACE_SETOPTIONS, pid, nullptr, options);
    Tracer tracer(*this, pid);
    ptrace(PTRACE_SYSCALL, pid, nullptr, nullptr);
    for (;;) {
        const pid_t tid = waitpid(-1, &status, __WALL);
        if (tid < 0) {
            throw std::runtime_error("the traced process is lost");
        }
        if (WIFSTOPPED(status)) {
            const long signal = tracer.handle(tid, status);
            ptrace(PTRACE_SYSCALL, tid, nullptr, signal);
        } else if (tid == pid) {
            end = WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
            return;
        }
    }
}
