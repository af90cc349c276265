// SPDX-License-Identifier: MIT
#include "workers/confinement/confinement.h"

#include <sys/prctl.h>

#include <csignal>
#include <string_view>

#include "workers/confinement/call_filter.h"
#include "workers/confinement/landlock.h"
#include "workers/confinement/resource_limits.h"

namespace workers {

namespace {

bool set(int option, unsigned long value) {
  return prctl(option, value, 0, 0, 0) == 0;
}

}  // namespace

std::string confine(const Confinement& confinement) {
  struct Step {
    bool isDone;
    std::string_view name;
  };
  // In this order: the filter takes away what the others need.
  const Step steps[] = {
      {set(PR_SET_PDEATHSIG, SIGKILL), "end with its parent"},
      {limitResources(confinement), "resource limits"},
      {set(PR_SET_DUMPABLE, 0), "privacy of memory"},
      {set(PR_SET_NO_NEW_PRIVS, 1), "no new privileges"},
      {leaveFileSystem(), "landlock"},
      {filterCalls(confinement.hasThreads), "system call filter"},
  };
  std::string refused;
  for (const Step& step : steps) {
    if (step.isDone) continue;
    if (!refused.empty()) refused += ", ";
    refused += step.name;
  }
  return refused;
}

}  // namespace workers
