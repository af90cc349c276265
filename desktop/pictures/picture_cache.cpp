// SPDX-License-Identifier: MIT
#include "desktop/pictures/picture_cache.h"

#include <sys/stat.h>

#include <filesystem>
#include <system_error>
#include <utility>

namespace desktop::pictures {

PictureKey PictureKey::ofFile(const std::string& path, const Request& request) {
  PictureKey key{.path = path, .request = request};
  std::error_code error;
  if (const auto absolute = std::filesystem::absolute(path, error); !error) key.path = absolute;
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) return key;
  key.modificationTime =
      std::int64_t{status.st_mtim.tv_sec} * 1'000'000'000 + status.st_mtim.tv_nsec;
  key.size = status.st_size;
  return key;
}

std::size_t PictureCache::bytesOf(const Entry& entry) {
  constexpr std::size_t bookkeeping = 256;  // both containers, both copies of the key
  return bookkeeping + 2 * entry.key.path.size() + entry.picture->byteCount();
}

void PictureCache::drop(Entries::iterator entry) {
  _byteCount -= bytesOf(*entry);
  _byKey.erase(entry->key);
  _entries.erase(entry);
}

SharedPicture PictureCache::find(const PictureKey& key) {
  const auto found = _byKey.find(key);
  if (found == _byKey.end()) return nullptr;
  _entries.splice(_entries.begin(), _entries, found->second);
  return found->second->picture;
}

void PictureCache::put(const PictureKey& key, SharedPicture picture) {
  if (const auto found = _byKey.find(key); found != _byKey.end()) drop(found->second);
  Entry entry{key, std::move(picture)};
  const std::size_t bytes = bytesOf(entry);
  if (bytes > _capacity / 4) return;
  while (_byteCount + bytes > _capacity) drop(std::prev(_entries.end()));
  _entries.push_front(std::move(entry));
  _byKey.emplace(key, _entries.begin());
  _byteCount += bytes;
}

}  // namespace desktop::pictures
