// SPDX-License-Identifier: MIT
#include "desktop/library/favourites.h"

#include <filesystem>
#include <fstream>
#include <optional>
#include <system_error>

#include "io/file_replacement.h"

namespace desktop::library {
namespace {

using Uuids = std::set<std::string, std::less<>>;

// A line each.
Uuids readUuids(const std::string& path) {
  Uuids uuids;
  std::ifstream file(path);
  for (std::string line; std::getline(file, line);)
    if (!line.empty()) uuids.insert(line);
  return uuids;
}

std::optional<model::Error> writeUuids(const std::filesystem::path& path, const Uuids& uuids) {
  std::error_code failed;
  std::filesystem::create_directories(path.parent_path(), failed);
  if (failed) return model::Error{failed.message()};
  std::string lines;
  for (const std::string& uuid : uuids) (lines += uuid) += '\n';
  return io::replaceFile(path, lines);
}

}  // namespace

Favourites::Favourites(std::string file) : _file(std::move(file)), _uuids(readUuids(_file)) {}

model::Result<bool> Favourites::set(const std::string& uuid, bool isFavourite) {
  Uuids next = readUuids(_file);
  if (isFavourite)
    next.insert(uuid);
  else
    next.erase(uuid);
  if (auto failure = writeUuids(_file, next)) return *std::move(failure);
  _uuids = std::move(next);
  return true;
}

}  // namespace desktop::library
