// SPDX-License-Identifier: MIT
//
// Which files of a folder are opened, by whomever.
#pragma once

#include <map>
#include <string>

#include "io/descriptor.h"

namespace support {

class OpenedNames {
 public:
  // Watches the folder from now on.
  explicit OpenedNames(const std::string& folder);

  // How often a file of the folder has been opened so far.
  int count(const std::string& name);

 private:
  void drain();

  io::Descriptor _watch;
  std::map<std::string, int> _counts;
};

}  // namespace support
