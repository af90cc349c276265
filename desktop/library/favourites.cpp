// SPDX-License-Identifier: MIT
#include "desktop/library/favourites.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>

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

std::error_code writeUuids(const std::string& path, const Uuids& uuids) {
  errno = 0;
  std::ofstream file(path, std::ios::trunc);
  for (const std::string& uuid : uuids) file << uuid << '\n';
  file.close();
  if (file) return {};
  return {errno == 0 ? EIO : errno, std::generic_category()};
}

// The new file takes the old one's place as a whole.
std::error_code replaceFile(const std::string& path, const Uuids& uuids) {
  std::error_code failed;
  std::filesystem::create_directories(std::filesystem::path(path).parent_path(), failed);
  if (failed) return failed;
  const std::string fresh = path + ".new";
  if (const auto unwritten = writeUuids(fresh, uuids)) return unwritten;
  std::filesystem::rename(fresh, path, failed);
  return failed;
}

}  // namespace

Favourites::Favourites(std::string file) : _file(std::move(file)), _uuids(readUuids(_file)) {}

model::Result<bool> Favourites::set(const std::string& uuid, bool isFavourite) {
  Uuids next = readUuids(_file);
  if (isFavourite)
    next.insert(uuid);
  else
    next.erase(uuid);
  if (const auto failed = replaceFile(_file, next)) return model::Error{failed.message()};
  _uuids = std::move(next);
  return true;
}

}  // namespace desktop::library
