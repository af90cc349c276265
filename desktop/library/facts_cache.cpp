// SPDX-License-Identifier: MIT
#include "desktop/library/facts_cache.h"

#include <algorithm>
#include <utility>

namespace desktop::library {

namespace {

FactsCache::Facts readFacts(const std::string& path, const foundation::DeviceRoot& root) {
  auto facts = media::facts::readAssetFacts(path, root, media::movie::Waiting::refused);
  if (!facts) return facts.error();
  facts->properties.reset();
  facts->asset.reset();
  return std::make_shared<const media::facts::AssetFacts>(*std::move(facts));
}

}  // namespace

bool isBeingRead(const FactsCache::Facts& facts) {
  return !facts && media::movie::isBeingRead(facts.error());
}

FactsCache::FactsCache(foundation::DeviceRoot root, std::size_t mostItems)
    : _root(std::move(root)), _mostItems(std::max<std::size_t>(mostItems, 1)) {}

const FactsCache::Facts* FactsCache::known(const LibraryItem& item) {
  const auto found = _entryOfPath.find(item.path);
  if (found == _entryOfPath.end()) return nullptr;
  const auto entry = found->second;
  if (isBeingRead(entry->facts) || entry->fileSize != item.fileSize ||
      entry->modificationDate != item.modificationDate.secondsSince1970) {
    _entryOfPath.erase(found);
    _entries.erase(entry);
    return nullptr;
  }
  _entries.splice(_entries.begin(), _entries, entry);
  return &entry->facts;
}

const FactsCache::Facts& FactsCache::read(const LibraryItem& item) {
  if (const Facts* facts = known(item)) return *facts;
  while (_entries.size() >= _mostItems) {
    _entryOfPath.erase(_entries.back().path);
    _entries.pop_back();
  }
  _entries.push_front({.path = item.path,
                       .fileSize = item.fileSize,
                       .modificationDate = item.modificationDate.secondsSince1970,
                       .facts = readFacts(item.path, _root)});
  _entryOfPath.emplace(_entries.front().path, _entries.begin());
  return _entries.front().facts;
}

}  // namespace desktop::library
