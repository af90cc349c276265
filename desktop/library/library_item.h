// SPDX-License-Identifier: MIT
//
// One photo or video of a library: what a walk of the folders tells of it, without its metadata.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

#include "media/facts/media_kind.h"
#include "model/value.h"

namespace desktop::library {

// Never changes: a file that does becomes another item with the same path and uuid.
struct LibraryItem {
  std::string path = {};  // absolute, on disk, where the library has it; bytes as on disk
  std::string uuid = {};  // itemUuid(path)
  media::facts::MediaKind kind = media::facts::MediaKind::image;
  std::uint64_t fileSize = 0;  // bytes
  model::Date modificationDate = {};
  std::string target = {};  // of a link: the file that it leads to, links resolved; else empty
  // Of a Live Photo: its film, which is an item as any other but in no list. Null for all others.
  std::shared_ptr<const LibraryItem> film = {};

  bool isLivePhoto() const { return film != nullptr; }
  bool isVideo() const { return kind == media::facts::MediaKind::video; }
  // The file itself, links resolved.
  const std::string& file() const { return target.empty() ? path : target; }
  // The last component of the path, as bytes and as valid UTF-8 to show.
  std::string_view name() const;
  std::string shownName() const;
  // The path of the folder that holds it, without a slash at its end; "/" for the top.
  std::string_view folder() const;
};

using ItemPointer = std::shared_ptr<const LibraryItem>;

// The order of a library: oldest first, by path where dates are the same.
bool comesBefore(const ItemPointer& left, const ItemPointer& right);

// A name for a path that stays the same from run to run: "xxxxxxxx-xxxx-8xxx-xxxx-xxxxxxxxxxxx" in
// upper-case hexadecimal digits (RFC 9562, version 8), a hash of the path's bytes.
std::string itemUuid(std::string_view path);

}  // namespace desktop::library
