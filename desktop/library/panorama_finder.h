// SPDX-License-Identifier: MIT
//
// Finds the panoramas of a library, which only their metadata tells, off the main thread.
#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

#include "desktop/library/library_news.h"
#include "foundation/device_root.h"
#include "media/facts/asset_facts.h"

namespace desktop::library {

// A still at least twice as wide as high, as displayed. Upright ones are mostly screenshots.
bool isPanorama(const media::facts::AssetFacts& facts);

class PanoramaFinder {
 public:
  // Finds go to the box, which outlives the finder.
  PanoramaFinder(foundation::DeviceRoot root, NewsBox& box);
  // Stops after the file that is being read.
  ~PanoramaFinder();
  PanoramaFinder(const PanoramaFinder&) = delete;
  PanoramaFinder& operator=(const PanoramaFinder&) = delete;

  // Looks at these stills next.
  void examine(const std::vector<ItemPointer>& items);
  // Waits until all that was asked for has been looked at.
  void finish();

 private:
  void run(const std::stop_token& stop);

  const foundation::DeviceRoot _root;
  NewsBox& _box;
  std::mutex _mutex;
  std::condition_variable_any _changed;
  std::deque<ItemPointer> _waiting;
  bool _isBusy = false;
  std::jthread _thread;  // last, so that it ends first
};

}  // namespace desktop::library
