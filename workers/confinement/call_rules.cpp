// SPDX-License-Identifier: MIT
#include "workers/confinement/call_rules.h"

#include <linux/futex.h>
#include <sched.h>
#include <seccomp.h>
#include <sys/mman.h>
#include <sys/prctl.h>

#include <cerrno>

#include "workers/sanitizer.h"

namespace workers {

namespace {

constexpr Argument notExecutable{2, PROT_EXEC, 0};
constexpr Argument newThread{0, CLONE_THREAD, CLONE_THREAD};
constexpr Argument wakesOthers{1, static_cast<unsigned>(FUTEX_CMD_MASK), FUTEX_WAKE};
constexpr Argument ownSignals{0, ~std::uint64_t{1}, 32};  // 32 and 33, which no program has
constexpr Argument nameOfThread{0, ~std::uint64_t{0}, PR_SET_NAME};
constexpr Worker threads = Worker::withThreads;
// Sanitizers write what they want to look at into a pipe, which says whether it is memory at all.
constexpr int unlessSanitized(int error) {
  return isSanitized ? 0 : error;
}

constexpr CallRule rules[] = {
    // What reading a file and answering takes.
    {SCMP_SYS(recvmsg), "orders, and the files that come with them"},
    {SCMP_SYS(sendmsg), "answers"},
    {SCMP_SYS(pread64), "reads the file"},
    {SCMP_SYS(lseek), "asks how long the file is"},
    {SCMP_SYS(pwrite64), "writes the frame, the one descriptor that can be written"},
    {SCMP_SYS(close), "closes the file"},
    {SCMP_SYS(exit_group), "ends when nobody gives orders any more"},
    // What every library takes.
    {SCMP_SYS(brk), "memory"},
    {SCMP_SYS(mmap), "memory that is never run", notExecutable},
    {SCMP_SYS(mprotect), "memory that is never run", notExecutable},
    {SCMP_SYS(mremap), "memory that grows"},
    {SCMP_SYS(munmap), "gives memory back"},
    {SCMP_SYS(madvise), "gives memory back"},
    {SCMP_SYS(futex), "says that a table is made, to nobody", wakesOthers},
    {SCMP_SYS(getrandom), "seeds of hash tables"},
    {SCMP_SYS(getpid), "which process this is"},
    {SCMP_SYS(gettid), "which thread this is"},
    {SCMP_SYS(sysinfo), "how much memory the machine has: sorting wants to know"},
    {SCMP_SYS(clock_gettime), "the time, where the kernel's page does not tell"},
    {SCMP_SYS(gettimeofday), "the time, where the kernel's page does not tell"},
    {SCMP_SYS(time), "the time, where the kernel's page does not tell"},
    {SCMP_SYS(rt_sigreturn), "goes on after a signal"},
    {SCMP_SYS(restart_syscall), "goes on after a stop"},
    // What threads take.
    {SCMP_SYS(clone), "a thread, and no process", newThread, threads},
    {SCMP_SYS(futex), "threads wait for each other", {}, threads},
    {SCMP_SYS(set_robust_list), "a new thread's locks", {}, threads},
    {SCMP_SYS(rseq), "a new thread's processor", {}, threads},
    {SCMP_SYS(rt_sigaction), "the C library's signals between threads", ownSignals, threads},
    {SCMP_SYS(rt_sigprocmask), "a thread begins and ends undisturbed", {}, threads},
    {SCMP_SYS(sigaltstack),
     "a thread's stack for signals",
     {},
     isSanitized ? Worker::any : threads},
    {SCMP_SYS(sched_getaffinity), "how many threads are of use", {}, threads},
    {SCMP_SYS(sched_yield), "lets another thread go first", {}, threads},
    {SCMP_SYS(exit), "a thread ends", {}, threads},
    {SCMP_SYS(prctl), "a thread's name", nameOfThread, threads},
    // What libraries try, and do without.
    {SCMP_SYS(clone3),
     "cannot be looked into; the C library makes threads by clone then",
     {},
     Worker::any,
     ENOSYS},
    {SCMP_SYS(open), "locales, processors, devices", {}, Worker::any, EACCES},
    {SCMP_SYS(openat), "locales, processors, devices", {}, Worker::any, EACCES},
    {SCMP_SYS(access), "looks for a file", {}, Worker::any, EACCES},
    {SCMP_SYS(faccessat), "looks for a file", {}, Worker::any, EACCES},
    {SCMP_SYS(faccessat2), "looks for a file", {}, Worker::any, EACCES},
    {SCMP_SYS(stat), "looks for a file", {}, Worker::any, EACCES},
    {SCMP_SYS(fstat), "looks at a file", {}, Worker::any, EACCES},
    {SCMP_SYS(newfstatat), "looks for a file", {}, Worker::any, EACCES},
    {SCMP_SYS(statx), "looks for a file", {}, Worker::any, EACCES},
    {SCMP_SYS(readlink), "looks for a file", {}, Worker::any, EACCES},
    {SCMP_SYS(readlinkat), "looks for a file", {}, Worker::any, EACCES},
    {SCMP_SYS(ioctl), "asks whether a stream is a terminal", {}, Worker::any, ENOTTY},
    {SCMP_SYS(write), "messages, which nobody reads", {}, Worker::any, unlessSanitized(EBADF)},
    {SCMP_SYS(pipe2), "a pipe to oneself", {}, Worker::any, unlessSanitized(EPERM)},
    {SCMP_SYS(writev), "messages, which nobody reads", {}, Worker::any, EBADF},
    {SCMP_SYS(fcntl), "a descriptor's flags", {}, Worker::any, EACCES},
    {SCMP_SYS(prlimit64), "how large a stack may be", {}, Worker::any, EPERM},
    {SCMP_SYS(uname), "the kernel's version", {}, Worker::any, EPERM},
    {SCMP_SYS(sched_setaffinity),
     "threads that want a processor of their own",
     {},
     Worker::any,
     EPERM},
};

}  // namespace

std::span<const CallRule> callRules() {
  return rules;
}

}  // namespace workers
