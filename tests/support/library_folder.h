// SPDX-License-Identifier: MIT
//
// A folder of photos for a test, with dates of its own.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "desktop/library/library_item.h"
#include "tests/support/temporary_folder.h"

namespace desktop::library {

class LibraryFolder : public support::TemporaryFolder {
 public:
  // Writes a small photo that is dated so many seconds after 1970; returns its path. The name may
  // lead through folders.
  std::string photo(std::string_view name, double date = 1'000'000) const;
  // Writes a file of one byte, as `photo` else.
  std::string broken(std::string_view name, double date = 1'000'000) const;
  // The part of a path below the folder.
  std::string below(std::string_view fullPath) const;
  // The paths of items below the folder.
  std::vector<std::string> names(const std::vector<ItemPointer>& items) const;
};

// Gives a file a modification date.
void setFileDate(const std::string& path, double date);

// While this lives, the thread and those it starts have a stranger's rights, even where the tests
// run as root.
class StrangersRights {
 public:
  StrangersRights();
  ~StrangersRights();
  StrangersRights(const StrangersRights&) = delete;
  StrangersRights& operator=(const StrangersRights&) = delete;
};

}  // namespace desktop::library
