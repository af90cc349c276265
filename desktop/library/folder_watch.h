// SPDX-License-Identifier: MIT
//
// Tells which of many folders changed, through inotify.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <unordered_map>

namespace desktop::library {

enum class WatchOutcome {
  watching,
  unreachable,   // there is no such folder, or it may not be read
  outOfWatches,  // the system or the limit gives no more, or there is no inotify
};

class FolderWatch {
 public:
  explicit FolderWatch(std::size_t mostFolders);
  ~FolderWatch();
  FolderWatch(const FolderWatch&) = delete;
  FolderWatch& operator=(const FolderWatch&) = delete;

  // Changes in the folder are told from now on; also where it was added before and may have been
  // replaced since.
  WatchOutcome add(const std::string& path);
  void remove(const std::string& path);

  // To wait for: readable when there is something to take. -1 where there is no inotify.
  int descriptor() const { return _descriptor; }

  // The folders that changed since the last call, without waiting; none at all where so much
  // happened that the system lost count: any of them may have changed then.
  std::optional<std::set<std::string>> takeChanged();

 private:
  void note(int watch, std::uint32_t events, std::set<std::string>& changed);
  void dropWatch(int watch);

  std::size_t _mostFolders;
  int _descriptor;
  std::unordered_map<int, std::string> _pathByWatch;
  std::unordered_map<std::string, int> _watchByPath;
};

}  // namespace desktop::library
