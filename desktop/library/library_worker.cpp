// SPDX-License-Identifier: MIT
//
// One thread with one loop: wait until a folder changed, somebody asks or a reading is due; read;
// post what is different. Changes are collected for a while before they are read, and readings are
// kept apart by ten times what the last one took, so a busy folder never takes more than a tenth of
// a processor. Folders beyond what inotify watches are covered by reading everything now and then.
#include "desktop/library/library_worker.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <utility>

namespace desktop::library {

namespace {

using namespace std::chrono_literals;

// The first finds are shown almost at once, later ones in larger steps, since each one costs a new
// layout.
constexpr std::size_t quickFlushes = 4;
constexpr auto quickFlushInterval = 10ms;
constexpr auto flushInterval = 100ms;
// Readings are kept apart by so many times as long as the last one took.
constexpr int restFactor = 10;

}  // namespace

LibraryWorker::LibraryWorker(const std::string& folder, const WatchLimits& limits, NewsBox& box)
    : _folder(folder),
      _limits(limits),
      _box(box),
      _tree(folder, *this),
      _watch(limits.mostWatchedFolders),
      _alarm(::eventfd(0, EFD_NONBLOCK | EFD_CLOEXEC)),
      _lastFlush(Clock::now()),
      _thread([this](const std::stop_token& stop) { run(stop); }) {}

LibraryWorker::~LibraryWorker() {
  _thread.request_stop();
  ::eventfd_write(_alarm, 1);
  _thread.join();
  if (_alarm >= 0) ::close(_alarm);
}

void LibraryWorker::readNow() {
  std::unique_lock lock(_mutex);
  const unsigned long request = ++_asked;
  ::eventfd_write(_alarm, 1);
  _answer.wait(lock, [&] { return _answeredUpTo >= request; });
}

void LibraryWorker::run(const std::stop_token& stop) {
  _stop = stop;
  while (!isStopped()) {
    const unsigned long request = requests();
    const bool isAsked = request != _answeredUpTo;
    const auto due = timeOfNextReading();
    if (isAsked || (due && *due <= Clock::now())) {
      const bool isEverything = isAsked || _isAnyChanged || _changed.empty();
      isEverything ? readEverything() : readChanged();
      if (isAsked) answer(request);
    } else {
      waitForWork();
    }
    takeEvents();
  }
}

// Until a folder changes, the next reading is due, or somebody asks.
void LibraryWorker::waitForWork() const {
  constexpr int forever = -1;
  int timeout = forever;
  if (const auto due = timeOfNextReading()) {
    const auto left = std::chrono::ceil<std::chrono::milliseconds>(*due - Clock::now());
    timeout = static_cast<int>(std::clamp<std::int64_t>(left.count(), 0, 60'000));
  }
  std::array<pollfd, 2> descriptors{{{_watch.descriptor(), POLLIN, 0}, {_alarm, POLLIN, 0}}};
  ::poll(descriptors.data(), descriptors.size(), timeout);
  eventfd_t count = 0;
  ::eventfd_read(_alarm, &count);
}

std::optional<LibraryWorker::Clock::time_point> LibraryWorker::timeOfNextReading() const {
  const auto rested = _lastReading + restFactor * _readingTime;
  if (_isAnyChanged || !_changed.empty()) {
    return std::max(_firstChange + _limits.settleTime, rested);
  }
  if (_unwatched.empty() && !_isRootLost) return std::nullopt;
  return std::max(_lastFullReading + _limits.rereadInterval, rested);
}

void LibraryWorker::takeEvents() {
  auto changed = _watch.takeChanged();
  if (changed && changed->empty()) return;
  if (!_isAnyChanged && _changed.empty()) _firstChange = Clock::now();
  if (changed) {
    _changed.merge(*changed);
  } else {
    _isAnyChanged = true;
  }
}

void LibraryWorker::readEverything() {
  const auto start = Clock::now();
  _changed.clear();
  _isAnyChanged = false;
  _tree.readAll();
  if (isStopped()) return;
  _lastFullReading = Clock::now();
  _news.isWalkComplete = true;
  finishReading(start);
}

void LibraryWorker::readChanged() {
  const auto start = Clock::now();
  for (const std::string& folder : std::exchange(_changed, {})) {
    // It may be another folder than the one that was watched.
    watchFolder(folder);
    _tree.read(folder);
  }
  finishReading(start);
}

void LibraryWorker::finishReading(Clock::time_point start) {
  _lastReading = Clock::now();
  _readingTime = _lastReading - start;
  flushNow();
}

void LibraryWorker::watchFolder(const std::string& path) {
  if (_watch.add(path) == WatchOutcome::outOfWatches) {
    _unwatched.insert(path);
  } else {
    _unwatched.erase(path);
  }
}

void LibraryWorker::itemChanged(const ItemPointer& before, const ItemPointer& after) {
  _news.items.push_back({before, after});
  flushSometimes();
}

void LibraryWorker::problemChanged(const std::string& path,
                                   const std::optional<std::string>& reason) {
  if (path == _folder) _isRootLost = reason.has_value();
  _news.problems.push_back({path, reason});
  flushSometimes();
}

void LibraryWorker::folderOpened(const std::string& path) {
  watchFolder(path);
}

void LibraryWorker::folderClosed(const std::string& path) {
  _watch.remove(path);
  _unwatched.erase(path);
}

void LibraryWorker::sharingChanged(const std::string& path, bool isShared) {
  _news.sharing.push_back({path, isShared});
}

void LibraryWorker::flushNow() {
  _box.post(std::exchange(_news, {}));
  _lastFlush = Clock::now();
  ++_flushes;
}

void LibraryWorker::flushSometimes() {
  const auto interval = _flushes < quickFlushes ? quickFlushInterval : flushInterval;
  if (Clock::now() - _lastFlush >= interval) flushNow();
}

unsigned long LibraryWorker::requests() const {
  const std::lock_guard lock(_mutex);
  return _asked;
}

void LibraryWorker::answer(unsigned long request) {
  {
    const std::lock_guard lock(_mutex);
    _answeredUpTo = request;
  }
  _answer.notify_all();
}

}  // namespace desktop::library
