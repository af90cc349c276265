// SPDX-License-Identifier: MIT
//
// The facts of what is seen, read when they are first asked for.
#pragma once

#include <cstddef>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "desktop/library/library_item.h"
#include "foundation/device_root.h"
#include "media/facts/asset_facts.h"

namespace desktop::library {

// Keeps the facts asked for last; for one thread at a time.
class FactsCache {
 public:
  // Without what they were taken from (`properties` and `asset`), which would take a hundred times
  // the memory.
  using Facts = model::Result<std::shared_ptr<const media::facts::AssetFacts>>;

  FactsCache(foundation::DeviceRoot root, std::size_t mostItems);

  // Reads the file unless this item's facts, or why it has none, are kept: about 0.05 ms. Never
  // waits for a worker process: while one reads the file, the error is media::movie::isBeingRead.
  const Facts& read(const LibraryItem& item);
  // Null where they are not kept. Both are valid until the next call of read.
  const Facts* known(const LibraryItem& item);

 private:
  struct Entry {
    std::string path;
    std::uint64_t fileSize;
    double modificationDate;
    Facts facts;
  };

  foundation::DeviceRoot _root;
  std::size_t _mostItems;
  std::list<Entry> _entries;  // the last used first
  std::unordered_map<std::string_view, std::list<Entry>::iterator> _entryOfPath;
};

// Whether the facts come later.
bool isBeingRead(const FactsCache::Facts& facts);

}  // namespace desktop::library
