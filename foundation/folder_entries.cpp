// SPDX-License-Identifier: MIT
#include "foundation/folder_entries.h"

#include <dirent.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>
#include <memory>
#include <optional>
#include <system_error>

namespace foundation {

namespace {

model::Error lastError() {
  return {std::generic_category().message(errno)};
}

bool isFolder(const std::string& path) {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool isLink(const std::string& path) {
  struct stat status {};
  return ::lstat(path.c_str(), &status) == 0 && S_ISLNK(status.st_mode);
}

// None for what is left out.
std::optional<FolderEntry> entryOf(const dirent& entry, std::string_view folder) {
  FolderEntry known{entry.d_name, FolderEntryKind::file, entry.d_ino};
  if (entry.d_name[0] == '.') return std::nullopt;  // ".", ".." and hidden ones
  if (entry.d_type == DT_DIR) known.kind = FolderEntryKind::folder;
  if (entry.d_type != DT_LNK && entry.d_type != DT_UNKNOWN) return known;
  const std::string path = pathInFolder(folder, entry.d_name);
  known.isLink = entry.d_type == DT_LNK || isLink(path);
  if (!isFolder(path)) return known;
  if (known.isLink) return std::nullopt;
  known.kind = FolderEntryKind::folder;
  return known;
}

}  // namespace

std::string pathInFolder(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (!path.ends_with('/')) path += '/';
  return path.append(name);
}

model::Result<std::vector<FolderEntry>> readFolder(const std::string& path) {
  const std::unique_ptr<DIR, int (*)(DIR*)> directory(::opendir(path.c_str()), &::closedir);
  if (!directory) return lastError();
  std::vector<FolderEntry> entries;
  errno = 0;
  while (const dirent* entry = ::readdir(directory.get())) {
    if (auto known = entryOf(*entry, path)) entries.push_back(*std::move(known));
    errno = 0;
  }
  if (errno != 0) return lastError();
  std::ranges::sort(entries, {}, &FolderEntry::name);
  return entries;
}

}  // namespace foundation
