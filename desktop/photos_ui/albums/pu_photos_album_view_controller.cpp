// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/albums/pu_photos_album_view_controller.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/photos_ui/albums/pu_cloud_shared_album_view_controller.h"
#include "desktop/photos_ui/albums/pu_photos_panorama_view_controller.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "desktop/photos_ui/grid/selection_title.h"

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
      return PUCloudSharedAlbumViewController::classObject();
    case AlbumKind::allPhotos:
    case AlbumKind::folder:
      break;
  }
  return PUPhotosAlbumViewController::classObject();
}

}  // namespace

Class PUPhotosAlbumViewController::classObject() {
  using Self = PUPhotosAlbumViewController;
  static const Class made = bridge::ClassBuilder<Self>("PUPhotosAlbumViewController")
                                .method<"mainGridLayout", &Self::mainGridLayout>()
                                .method<"viewWillAppear:", &Self::viewWillAppear>()
                                .method<"setEditing:animated:", &Self::setEditing>()
                                .method<"libraryWasShown", &Self::libraryWasShown>()
                                .method<"updateGlobalFooter", &Self::updateGlobalFooter>()
                                .build();
  return made;
}

bridge::PUSectionedGridLayout PUPhotosAlbumViewController::mainGridLayout() const {
  return bridge::PUSectionedGridLayout(
      PUPhotosGridViewController::of(self()).layout().self().get());
}

// The bar has its items by now.
void PUPhotosAlbumViewController::viewWillAppear(bool animated) {
  super<void, "viewWillAppear:">(animated);
  bridge::send<void, "updateGlobalFooter">(self());
}

void PUPhotosAlbumViewController::setEditing(bool editing, bool animated) {
  super<void, "setEditing:animated:">(editing, animated);
  bridge::send<void, "updateGlobalFooter">(self());
}

void PUPhotosAlbumViewController::libraryWasShown() {
  super<void, "libraryWasShown">();
  bridge::send<void, "updateGlobalFooter">(self());
}

void PUPhotosAlbumViewController::updateGlobalFooter() {
  PUPhotosGridViewController& grid = PUPhotosGridViewController::of(self());
  grid.setFooterText(countText(grid.list()->items()));
}

bridge::Owned<bridge::UIViewController> makeAlbumController(const library::Album& album) {
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
  return PUPhotosGridViewController::make(classFor(kind), std::move(contents));
}

}  // namespace desktop::photos_ui
