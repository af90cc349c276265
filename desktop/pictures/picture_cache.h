// SPDX-License-Identifier: MIT
//
// Finished pictures, until they are too many: the least recently used go first.
#pragma once

#include <compare>
#include <cstdint>
#include <list>
#include <map>
#include <string>

#include "desktop/pictures/pixels/picture.h"

namespace desktop::pictures {

// What a picture was made of: a file as it was at that time.
struct PictureKey {
  std::string path;                   // absolute
  std::int64_t modificationTime = 0;  // nanoseconds since 1970
  std::int64_t size = 0;              // bytes
  Request request;

  // NOLINTNEXTLINE(modernize-use-nullptr): a false alarm of clang-tidy 14.
  auto operator<=>(const PictureKey&) const = default;

  // The file as it is now; time and size are 0 where the system does not tell.
  static PictureKey ofFile(const std::string& path, const Request& request);
};

class PictureCache {
 public:
  // `capacity` is in bytes.
  explicit PictureCache(std::size_t capacity) : _capacity(capacity) {}

  // Null where there is none; else the key counts as used.
  SharedPicture find(const PictureKey& key);
  // A picture that would take more than a quarter of the capacity is not kept.
  void put(const PictureKey& key, SharedPicture picture);

  std::size_t byteCount() const { return _byteCount; }
  std::size_t entryCount() const { return _entries.size(); }

 private:
  struct Entry {
    PictureKey key;
    SharedPicture picture;
  };
  using Entries = std::list<Entry>;
  static std::size_t bytesOf(const Entry& entry);
  void drop(Entries::iterator entry);

  std::size_t _capacity;
  std::size_t _byteCount = 0;
  Entries _entries;  // the most recently used first
  std::map<PictureKey, Entries::iterator> _byKey;
};

}  // namespace desktop::pictures
