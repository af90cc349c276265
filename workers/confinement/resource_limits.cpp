// SPDX-License-Identifier: MIT
#include "workers/confinement/resource_limits.h"

#include <sys/resource.h>
#include <unistd.h>

#include <fstream>

#include "workers/sanitizer.h"

namespace workers {

namespace {

constexpr std::size_t mostDescriptors = 16;  // the given ones, and a few files

bool setLimit(__rlimit_resource resource, std::size_t amount) {
  const rlimit limit{amount, amount};
  return setrlimit(resource, &limit) == 0;
}

// Bytes of addresses in use; the first number of proc(5), /proc/pid/statm.
std::size_t addressesInUse() {
  std::size_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  return pages * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

}  // namespace

bool limitResources(const Confinement& confinement) {
  const bool isMemoryLimited =
      isSanitized || setLimit(RLIMIT_AS, addressesInUse() + confinement.memory);
  const bool isLimited = setLimit(RLIMIT_CORE, 0) && setLimit(RLIMIT_NOFILE, mostDescriptors) &&
                         setLimit(RLIMIT_FSIZE, confinement.frameBytes);
  // Threads count as processes here.
  return (confinement.hasThreads || setLimit(RLIMIT_NPROC, 0)) && isMemoryLimited && isLimited;
}

}  // namespace workers
