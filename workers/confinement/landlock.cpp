// SPDX-License-Identifier: MIT
//
// The kernel is asked by number, as C libraries have no functions for it, and the headers of today
// know only a part of it. Numbers and bits: docs.kernel.org/userspace-api/landlock.html.
#include "workers/confinement/landlock.h"

#include <sys/syscall.h>
#include <unistd.h>

#include <cstdint>

#include "io/descriptor.h"

namespace workers {

namespace {

// The same on all processors.
constexpr long createRuleset = 444;
constexpr long restrictSelf = 446;
constexpr unsigned askForVersion = 1;

// What is given up, where no rule gives it back: as the kernel takes it.
struct Ruleset {
  std::uint64_t files;
  std::uint64_t network;
  std::uint64_t processes;
};

constexpr std::uint64_t lowest(int bits) {
  return (std::uint64_t{1} << bits) - 1;
}

struct Version {
  long version;
  Ruleset knows;
};
constexpr Version versions[] = {
    {6, {lowest(16), lowest(2), lowest(2)}},  // connections by name, and signals, to others
    {5, {lowest(16), lowest(2), 0}},          // calls to devices
    {4, {lowest(15), lowest(2), 0}},          // TCP
    {3, {lowest(15), 0, 0}},                  // cutting files
    {2, {lowest(14), 0, 0}},                  // links between folders
    {1, {lowest(13), 0, 0}},                  // opening, running, listing, making, removing
};

Ruleset everythingKnown() {
  const long known = syscall(createRuleset, nullptr, 0, askForVersion);
  for (const Version& row : versions)
    if (known >= row.version) return row.knows;
  return {};
}

}  // namespace

bool leaveFileSystem() {
  const Ruleset all = everythingKnown();
  if (all.files == 0) return false;
  // Bytes that an older kernel does not know may be there, and are zero.
  const io::Descriptor ruleset(static_cast<int>(syscall(createRuleset, &all, sizeof all, 0)));
  return ruleset && syscall(restrictSelf, ruleset.number(), 0) == 0;
}

}  // namespace workers
