#include "kern/dateien/beschuss.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <iostream>
#include <stdexcept>
#include <sys/ptrace.h>
#include <sys/syscall.h>
#include <sys/user.h>
#include <sys/wait.h>
#include <unistd.h>
#include <utility>

// glibc's own definition of these clashes with <linux/ptrace.h>, so the kernel's structure comes from
// <sys/ptrace.h>.

// In the program only where its rooms are built under the sanitizer.
extern "C" [[gnu::weak]] void __asan_init();

namespace zinfolio {
namespace {

#ifdef __x86_64__

constexpr std::array nebensaechlich{
    SYS_mmap,
    SYS_munmap,
    SYS_mprotect,
    SYS_mremap,
    SYS_madvise,
    SYS_brk,
    SYS_futex,
    SYS_getpid,
    SYS_gettid,
    SYS_geteuid,
    SYS_getuid,
    SYS_clock_gettime,
    SYS_clock_nanosleep,
    SYS_nanosleep,
    SYS_rt_sigaction,
    SYS_rt_sigprocmask,
    SYS_getrandom,
    SYS_kill,
    SYS_exit_group,
    SYS_sched_yield,
    SYS_setresuid,
};

constexpr std::array<std::pair<long, const char*>, 18> namen{{
    {SYS_openat, "openat"},
    {SYS_open, "open"},
    {SYS_read, "read"},
    {SYS_write, "write"},
    {SYS_fsync, "fsync"},
    {SYS_close, "close"},
    {SYS_rename, "rename"},
    {SYS_link, "link"},
    {SYS_unlink, "unlink"},
    {SYS_flock, "flock"},
    {SYS_fchmod, "fchmod"},
    {SYS_newfstatat, "newfstatat"},
    {SYS_readlink, "readlink"},
    {SYS_access, "access"},
    {SYS_faccessat, "faccessat"},
    {SYS_faccessat2, "faccessat2"},
    {SYS_getdents64, "getdents64"},
    {SYS_fstat, "fstat"},
}};

/// The child: waits to be watched, works between two calls that nothing else makes, and ends.
[[noreturn]] void Arbeiten(const std::function<int()>& arbeit) {
    ::ptrace(PTRACE_TRACEME, 0, nullptr, nullptr);
    ::raise(SIGSTOP);
    ::syscall(SYS_getpriority, 0, 0);
    const int status = arbeit();
    ::syscall(SYS_getpriority, 0, 0);
    ::_exit(status);
}

/// Watches one child to its end.
class Waechter {
  public:
    Waechter(pid_t kind, const std::optional<Schuss>& schuss) : kind_(kind), schuss_(schuss) {}

    Beschussergebnis Begleiten() {
        int zustand = Warten();
        ::ptrace(PTRACE_SETOPTIONS, kind_, nullptr, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
        int signal = 0;
        for (;;) {
            ::ptrace(PTRACE_SYSCALL, kind_, nullptr, signal);
            zustand = Warten();
            if (WIFEXITED(zustand) || WIFSIGNALED(zustand)) break;
            constexpr int anhaltenAmRuf = SIGTRAP | 0x80;
            const bool amRuf = WSTOPSIG(zustand) == anhaltenAmRuf;
            signal = amRuf ? 0 : WSTOPSIG(zustand);
            if (amRuf) AmRuf();
        }
        ergebnis_.getoetet = WIFSIGNALED(zustand);
        ergebnis_.status = WIFEXITED(zustand) ? WEXITSTATUS(zustand) : 0;
        return std::move(ergebnis_);
    }

  private:
    int Warten() const {
        int zustand = 0;
        if (::waitpid(kind_, &zustand, 0) != kind_) throw std::runtime_error("waitpid");
        return zustand;
    }

    void AmRuf() {
        user_regs_struct register_{};
        ::ptrace(PTRACE_GETREGS, kind_, nullptr, &register_);
        drin_ = !drin_;
        if (drin_) {
            Anfang(register_);
        } else if (std::exchange(verfaelschen_, false)) {
            register_.rax = static_cast<unsigned long long>(-static_cast<long long>(schuss_->fehler));
            ::ptrace(PTRACE_SETREGS, kind_, nullptr, &register_);
        }
    }

    void Anfang(user_regs_struct& register_) {
        const auto nummer = static_cast<long>(register_.orig_rax);
        if (nummer == SYS_getpriority) {
            zaehlt_ = !zaehlt_;
            return;
        }
        if (!zaehlt_ || std::ranges::find(nebensaechlich, nummer) != nebensaechlich.end()) return;
        const bool ordner = nummer == SYS_openat && (register_.rdx & O_DIRECTORY) != 0;
        ergebnis_.rufe.push_back({nummer, ordner});
        if (!schuss_ || ergebnis_.rufe.size() - 1 != schuss_->ruf) return;
        ergebnis_.getroffen = true;
        if (schuss_->fehler == 0) {
            ::kill(kind_, SIGKILL);
            return;
        }
        verfaelschen_ = true;
        register_.orig_rax = static_cast<unsigned long long>(-1);
        ::ptrace(PTRACE_SETREGS, kind_, nullptr, &register_);
    }

    pid_t kind_;
    std::optional<Schuss> schuss_;
    Beschussergebnis ergebnis_;
    bool drin_ = false;
    bool zaehlt_ = false;
    bool verfaelschen_ = false;
};

#endif

}  // namespace

bool BeschussMoeglich() {
#ifdef __x86_64__
    return &__asan_init == nullptr;
#else
    return false;
#endif
}

#ifdef __x86_64__

Beschussergebnis Beschiessen(const std::function<int()>& arbeit, const std::optional<Schuss>& schuss) {
    std::cout.flush();
    const pid_t kind = ::fork();
    if (kind < 0) throw std::runtime_error("fork");
    if (kind == 0) Arbeiten(arbeit);
    return Waechter(kind, schuss).Begleiten();
}

std::string Rufname(const Systemruf& ruf) {
    const auto name = std::ranges::find(namen, ruf.nummer, &std::pair<long, const char*>::first);
    return name == namen.end() ? std::to_string(ruf.nummer) : name->second;
}

#else

Beschussergebnis Beschiessen(const std::function<int()>&, const std::optional<Schuss>&) {
    return {};
}

std::string Rufname(const Systemruf& ruf) {
    return std::to_string(ruf.nummer);
}

#endif

}  // namespace zinfolio
