// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/albums/album_controllers.h"

#include <algorithm>

#include "desktop/photos_ui/albums/pu_cloud_shared_album_view_controller.h"
#include "desktop/photos_ui/albums/pu_photos_album_view_controller.h"
#include "desktop/photos_ui/albums/pu_photos_panorama_view_controller.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"

namespace desktop::photos_ui {
namespace {

using library::AlbumKind;

ItemListPointer albumNow(AlbumKind kind, const std::string& folder) {
  if (!host().library) return nullptr;
  const auto& albums = host().library->albums();
  const auto found = std::ranges::find_if(albums, [&](const library::Album& album) {
    return album.kind == kind && album.folder == folder;
  });
  return found == albums.end() ? nullptr : listOfAlbum(*found);
}

Class classFor(AlbumKind kind) {
  switch (kind) {
    case AlbumKind::panoramas:
      return PUPhotosPanoramaViewController::classObject();
    case AlbumKind::sharedFolder:
      return PUCloudSharedAlbumViewControllerState::classObject();
    case AlbumKind::allPhotos:
    case AlbumKind::folder:
      break;
  }
  return PUPhotosAlbumViewControllerState::classObject();
}

}  // namespace

Owned<UIViewController> makeAlbumController(const library::Album& album) {
  const AlbumKind kind = album.kind;
  GridContents contents{
      .title = album.title,
      .list = [kind, folder = album.folder] { return albumNow(kind, folder); },
      .startsAtEnd = kind == AlbumKind::allPhotos,
  };
  if (kind == AlbumKind::panoramas) {
    contents.columns = 1;
    contents.heightByWidth = 0.4;
  }
  return PUPhotosGridViewControllerState::make(classFor(kind), std::move(contents));
}

}  // namespace desktop::photos_ui
