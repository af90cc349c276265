// SPDX-License-Identifier: MIT
//
// The albums of a library: every folder that holds photos is one.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "desktop/library/library_item.h"

namespace desktop::library {

enum class AlbumKind { allPhotos, panoramas, folder, sharedFolder };

struct Album {
  AlbumKind kind = AlbumKind::folder;
  std::string title;               // valid UTF-8
  std::string folder;              // its path; empty where the album is no folder
  std::vector<ItemPointer> items;  // in the library's order, never empty but for allPhotos
};

// What albums are made from.
struct AlbumRequest {
  std::string_view libraryFolder;  // its own files are in no album but "All Photos"
  const std::vector<ItemPointer>& items;
  std::function<bool(const ItemPointer&)> isPanorama;
  std::function<bool(const std::string& folder)> isShared;
};

// "All Photos", "Panoramas" where there are any, then the folders by title, and by path where the
// titles are the same.
std::vector<Album> makeAlbums(const AlbumRequest& request);

}  // namespace desktop::library
