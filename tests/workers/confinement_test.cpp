// SPDX-License-Identifier: MIT
//
// The layers of the confinement, each by itself: what one lets through the next one stops.
#include "workers/confinement/confinement.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <seccomp.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <set>

#include "workers/confinement/call_filter.h"
#include "workers/confinement/call_rules.h"
#include "workers/confinement/landlock.h"
#include "workers/confinement/resource_limits.h"

namespace workers {

namespace {

// How a process of its own ends that does this: its exit status, or less than 0 for a signal.
template <typename Act>
int endOf(Act act) {
  const pid_t child = fork();
  if (child == 0) {
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
    _exit(act());
  }
  int status = 0;
  waitpid(child, &status, 0);
  return WIFSIGNALED(status) ? -WTERMSIG(status) : WEXITSTATUS(status);
}

int errorOfOpening() {
  return open("/etc/passwd", O_RDONLY) < 0 ? errno : 0;
}

TEST(Landlock, ClosesTheFileSystem) {
  EXPECT_EQ(endOf([] { return leaveFileSystem() ? errorOfOpening() : -1; }), EACCES);
}

TEST(Landlock, LeavesOpenFilesOpen) {
  const int file = open("/proc/self/exe", O_RDONLY | O_CLOEXEC);
  char byte = 0;
  EXPECT_EQ(
      endOf([&] { return leaveFileSystem() ? static_cast<int>(pread(file, &byte, 1, 0)) : 0; }), 1);
  close(file);
}

TEST(CallFilter, RefusesToOpenFiles) {
  EXPECT_EQ(endOf([] { return filterCalls(false) ? errorOfOpening() : -1; }), EACCES);
}

TEST(CallFilter, EndsWhoMakesAnotherCall) {
  EXPECT_EQ(endOf([] { return filterCalls(true) ? socket(AF_UNIX, SOCK_STREAM, 0) : 0; }), -SIGSYS);
}

TEST(CallRules, HaveAReasonAndAreThereOnceEach) {
  std::set<std::tuple<int, unsigned, std::uint64_t>> seen;
  for (const CallRule& rule : callRules()) {
    EXPECT_NE(std::string(rule.reason), "") << rule.call;
    if (rule.call < 0) continue;  // not on this processor
    EXPECT_TRUE(seen.insert({rule.call, rule.argument.index, rule.argument.mask}).second)
        << seccomp_syscall_resolve_num_arch(SCMP_ARCH_NATIVE, rule.call);
  }
}

TEST(ResourceLimits, AreSetForThisProcess) {
  const auto limitOf = [](__rlimit_resource resource) {
    rlimit limit{};
    getrlimit(resource, &limit);
    return limit.rlim_max;
  };
  const int end = endOf([&] {
    if (!limitResources({.memory = 1 << 20, .frameBytes = 77, .hasThreads = false})) return 1;
    const bool isSet = limitOf(RLIMIT_FSIZE) == 77 && limitOf(RLIMIT_CORE) == 0 &&
                       limitOf(RLIMIT_NPROC) == 0 && limitOf(RLIMIT_NOFILE) == 16;
    return isSet ? 0 : 2;
  });
  EXPECT_EQ(end, 0);
}

TEST(Confinement, NamesNothingWhereTheSystemDoesItAll) {
  EXPECT_EQ(endOf([] { return confine({.memory = 64 << 20}).empty() ? 0 : 1; }), 0);
}

// Where the filter is refused, all else holds.
TEST(Confinement, NamesWhatTheSystemRefuses) {
  const int end = endOf([] {
    // Nothing may be loaded on top of this: asking for another filter is an error.
    scmp_filter_ctx filter = seccomp_init(SCMP_ACT_ALLOW);
    seccomp_rule_add(filter, SCMP_ACT_ERRNO(EINVAL), SCMP_SYS(seccomp), 0);
    seccomp_rule_add(filter, SCMP_ACT_ERRNO(EINVAL), SCMP_SYS(prctl), 1,
                     SCMP_A0(SCMP_CMP_EQ, PR_SET_SECCOMP));
    seccomp_rule_add(filter, SCMP_ACT_ERRNO(ENOSYS), 444, 0);
    if (seccomp_load(filter) != 0) return 1;
    const std::string refused = confine({.memory = 64 << 20, .frameBytes = 77});
    if (refused != "landlock, system call filter") return 2;
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    return limit.rlim_max == 77 ? 0 : 3;
  });
  EXPECT_EQ(end, 0);
}

}  // namespace

}  // namespace workers
