// SPDX-License-Identifier: MIT
//
// The thread behind a library: walks its folders, then follows what changes in them.
#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <set>
#include <string>
#include <thread>
#include <unordered_set>

#include "desktop/library/folder_tree.h"
#include "desktop/library/folder_watch.h"
#include "desktop/library/library_news.h"

namespace desktop::library {

struct WatchLimits {
  // Folders beyond so many are read again from time to time instead of being watched.
  std::size_t mostWatchedFolders = 8192;
  std::chrono::milliseconds rereadInterval{10'000};
  // Changes are gathered for so long, since files are written in many small steps.
  std::chrono::milliseconds settleTime{200};
};

// Reading never takes more than about a tenth of the time, however large the folders.
class LibraryWorker : private FolderObserver {
 public:
  // Starts at once; finds go to the box, which outlives the worker.
  LibraryWorker(const std::string& folder, const WatchLimits& limits, NewsBox& box);
  // Stops the thread, which takes as long as looking at one file.
  ~LibraryWorker() override;
  LibraryWorker(const LibraryWorker&) = delete;
  LibraryWorker& operator=(const LibraryWorker&) = delete;

  // Waits until all folders have been read once more (or for the first time), and the box has all
  // that is on disk by now.
  void readNow();

 private:
  using Clock = std::chrono::steady_clock;

  void itemChanged(const ItemPointer& before, const ItemPointer& after) override;
  void problemChanged(const std::string& path, const std::optional<std::string>& reason) override;
  void folderOpened(const std::string& path) override;
  void folderClosed(const std::string& path) override;
  void sharingChanged(const std::string& path, bool isShared) override;
  bool isStopped() const override { return _stop.stop_requested(); }

  void run(const std::stop_token& stop);
  void waitForWork() const;
  std::optional<Clock::time_point> timeOfNextReading() const;
  void takeEvents();
  void readEverything();
  void readChanged();
  void finishReading(Clock::time_point start);
  void watchFolder(const std::string& path);
  void flushNow();
  void flushSometimes();
  unsigned long requests() const;
  void answer(unsigned long request);

  const std::string _folder;
  const WatchLimits _limits;
  NewsBox& _box;
  FolderTree _tree;
  FolderWatch _watch;
  std::stop_token _stop;
  int _alarm;  // an event descriptor that ends the wait

  // Of the thread only.
  std::unordered_set<std::string> _unwatched;
  bool _isRootLost = false;
  std::set<std::string> _changed;
  bool _isAnyChanged = true;  // any folder may have changed, or none has been read yet
  Clock::time_point _firstChange;
  Clock::time_point _lastReading;
  Clock::time_point _lastFullReading;
  Clock::duration _readingTime{};  // what the last reading took
  LibraryNews _news;
  Clock::time_point _lastFlush;
  std::size_t _flushes = 0;

  mutable std::mutex _mutex;
  std::condition_variable _answer;
  unsigned long _asked = 0;  // requests to read now
  unsigned long _answeredUpTo = 0;

  std::jthread _thread;  // last, so that it ends first
};

}  // namespace desktop::library
