// SPDX-License-Identifier: MIT
#include "desktop/library/folder_watch.h"

#include <sys/inotify.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>

namespace desktop::library {

namespace {

constexpr std::uint32_t watchedEvents = IN_CREATE | IN_DELETE | IN_MOVED_FROM | IN_MOVED_TO |
                                        IN_MODIFY | IN_CLOSE_WRITE | IN_ATTRIB | IN_DELETE_SELF |
                                        IN_MOVE_SELF | IN_ONLYDIR;

}  // namespace

FolderWatch::FolderWatch(std::size_t mostFolders)
    : _mostFolders(mostFolders), _descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {}

FolderWatch::~FolderWatch() {
  if (_descriptor >= 0) ::close(_descriptor);
}

WatchOutcome FolderWatch::add(const std::string& path) {
  const bool isKnown = _watchByPath.contains(path);
  if (_descriptor < 0) return WatchOutcome::outOfWatches;
  if (!isKnown && _watchByPath.size() >= _mostFolders) return WatchOutcome::outOfWatches;
  const int watch = ::inotify_add_watch(_descriptor, path.c_str(), watchedEvents);
  if (watch < 0) {
    const bool isFull = errno == ENOSPC || errno == ENOMEM;
    return isFull ? WatchOutcome::outOfWatches : WatchOutcome::unreachable;
  }
  if (isKnown && _watchByPath[path] != watch) remove(path);
  // A folder that was moved keeps its watch; its old path loses it.
  dropWatch(watch);
  _pathByWatch[watch] = path;
  _watchByPath[path] = watch;
  return WatchOutcome::watching;
}

void FolderWatch::remove(const std::string& path) {
  const auto entry = _watchByPath.find(path);
  if (entry == _watchByPath.end()) return;
  const int watch = entry->second;
  dropWatch(watch);
  // Fails where the folder itself is gone; its watch went with it.
  ::inotify_rm_watch(_descriptor, watch);
}

void FolderWatch::dropWatch(int watch) {
  const auto entry = _pathByWatch.find(watch);
  if (entry == _pathByWatch.end()) return;
  _watchByPath.erase(entry->second);
  _pathByWatch.erase(entry);
}

std::optional<std::set<std::string>> FolderWatch::takeChanged() {
  std::set<std::string> changed;
  bool isComplete = true;
  std::array<char, std::size_t{16} * 1024> buffer{};
  while (_descriptor >= 0) {
    const ssize_t count = ::read(_descriptor, buffer.data(), buffer.size());
    if (count <= 0) break;
    for (std::size_t offset = 0; offset < static_cast<std::size_t>(count);) {
      inotify_event event{};
      std::memcpy(&event, buffer.data() + offset, sizeof event);
      offset += sizeof event + event.len;
      if ((event.mask & IN_Q_OVERFLOW) != 0) isComplete = false;
      note(event.wd, event.mask, changed);
    }
  }
  if (!isComplete) return std::nullopt;
  return changed;
}

void FolderWatch::note(int watch, std::uint32_t events, std::set<std::string>& changed) {
  const auto entry = _pathByWatch.find(watch);
  if (entry == _pathByWatch.end()) return;
  changed.insert(entry->second);
  // The folder is gone, and the system has dropped its watch.
  if ((events & IN_IGNORED) != 0) dropWatch(watch);
}

}  // namespace desktop::library
