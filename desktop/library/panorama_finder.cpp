// SPDX-License-Identifier: MIT
#include "desktop/library/panorama_finder.h"

#include <algorithm>
#include <utility>

namespace desktop::library {

namespace {

// Files a turn: what is found comes in steps, and the lock is taken rarely.
constexpr std::size_t filesATurn = 256;

std::vector<ItemPointer> takeSome(std::deque<ItemPointer>& waiting) {
  const auto end =
      waiting.begin() + static_cast<std::ptrdiff_t>(std::min(filesATurn, waiting.size()));
  std::vector<ItemPointer> some(waiting.begin(), end);
  waiting.erase(waiting.begin(), end);
  return some;
}

}  // namespace

bool isPanorama(const media::facts::AssetFacts& facts) {
  return !facts.isVideo && facts.pixelHeight > 0 && facts.pixelWidth / 2 >= facts.pixelHeight;
}

PanoramaFinder::PanoramaFinder(foundation::DeviceRoot root, NewsBox& box)
    : _root(std::move(root)),
      _box(box),
      _thread([this](const std::stop_token& stop) { run(stop); }) {}

PanoramaFinder::~PanoramaFinder() {
  _thread.request_stop();
}

void PanoramaFinder::examine(const std::vector<ItemPointer>& items) {
  {
    const std::lock_guard lock(_mutex);
    std::ranges::copy_if(items, std::back_inserter(_waiting),
                         [](const ItemPointer& item) { return !item->isVideo(); });
  }
  _changed.notify_all();
}

void PanoramaFinder::finish() {
  std::unique_lock lock(_mutex);
  _changed.wait(lock, [this] { return _waiting.empty() && !_isBusy; });
}

void PanoramaFinder::run(const std::stop_token& stop) {
  std::unique_lock lock(_mutex);
  while (_changed.wait(lock, stop, [this] { return !_waiting.empty(); })) {
    const std::vector<ItemPointer> items = takeSome(_waiting);
    _isBusy = true;
    lock.unlock();
    LibraryNews news;
    for (const ItemPointer& item : items) {
      if (stop.stop_requested()) return;
      const auto facts = media::facts::readAssetFacts(item->path, _root);
      if (facts && isPanorama(*facts)) news.panoramas.push_back(item);
    }
    _box.post(std::move(news));
    lock.lock();
    _isBusy = false;
    _changed.notify_all();
  }
}

}  // namespace desktop::library
