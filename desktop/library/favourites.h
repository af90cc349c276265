// SPDX-License-Identifier: MIT
//
// Which items are favourites: kept in a file of the user's, never beside the photos.
#pragma once

#include <set>
#include <string>
#include <string_view>

#include "model/result.h"

namespace desktop::library {

class Favourites {
 public:
  // Reads the file, which need not be there yet.
  explicit Favourites(std::string file);

  bool contains(const std::string& uuid) const { return _uuids.contains(uuid); }
  // Writes it down at once; what another process wrote meanwhile is kept.
  // Errors: what the system says of the file. Nothing changes then.
  model::Result<bool> set(const std::string& uuid, bool isFavourite);

 private:
  std::string _file;
  std::set<std::string, std::less<>> _uuids;
};

}  // namespace desktop::library
