// SPDX-License-Identifier: MIT
//
// The file manager of this process, watched: how often it is asked, and answers of a test's own.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace lumifact::host {

struct FileCalls {
  std::vector<std::string> existence;   // the paths that were looked for
  std::vector<std::string> attributes;  // the paths whose attributes were read
  int reasons = 0;                      // how often somebody asked why attributes cannot be read
  // Where there is one, every file is there and has this size.
  std::optional<std::uint64_t> sizeOfAll;
  bool areUnreadable = false;  // every file is there, and nothing is told of any
};

// One for the process, to look at and to clear; the first call begins the watch.
FileCalls& fileCalls();

}  // namespace lumifact::host
