// SPDX-License-Identifier: MIT
#include "desktop/library/albums.h"

#include <algorithm>
#include <iterator>
#include <map>

#include "foundation/collation.h"
#include "model/utf8.h"

namespace desktop::library {

namespace {

std::string titleOf(std::string_view folder) {
  return model::replacingInvalidUtf8(folder.substr(folder.rfind('/') + 1));
}

Album panoramas(const AlbumRequest& request) {
  Album album{.kind = AlbumKind::panoramas, .title = "Panoramas", .folder = {}, .items = {}};
  std::ranges::copy_if(request.items, std::back_inserter(album.items), request.isPanorama);
  return album;
}

std::vector<Album> folders(const AlbumRequest& request) {
  std::map<std::string_view, std::vector<ItemPointer>> itemsOf;
  for (const ItemPointer& item : request.items) {
    if (item->folder() != request.libraryFolder) itemsOf[item->folder()].push_back(item);
  }
  std::vector<Album> albums;
  albums.reserve(itemsOf.size());
  for (auto& [path, items] : itemsOf) {
    const std::string folder(path);
    albums.push_back(
        {.kind = request.isShared(folder) ? AlbumKind::sharedFolder : AlbumKind::folder,
         .title = titleOf(path),
         .folder = folder,
         .items = std::move(items)});
  }
  return albums;
}

}  // namespace

std::vector<Album> makeAlbums(const AlbumRequest& request) {
  std::vector<Album> albums;
  albums.push_back(
      {.kind = AlbumKind::allPhotos, .title = "All Photos", .folder = {}, .items = request.items});
  if (Album wide = panoramas(request); !wide.items.empty()) albums.push_back(std::move(wide));
  std::vector<Album> byFolder = folders(request);
  const auto compare = foundation::keyComparison(foundation::Locale::ofUser("LC_COLLATE"));
  // Stable: folders come by path.
  std::ranges::stable_sort(byFolder, [&](const Album& left, const Album& right) {
    return compare(left.title, right.title) < 0;
  });
  std::move(byFolder.begin(), byFolder.end(), std::back_inserter(albums));
  return albums;
}

}  // namespace desktop::library
