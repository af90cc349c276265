// SPDX-License-Identifier: MIT
//
// What a grid shows of its items, and what a tap on one does.
#include "desktop/faces/photos/ph_asset.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/cells/pu_photos_grid_cell.h"
#include "desktop/photos_ui/grid/grid_titles.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "desktop/uikit/controllers/ui_view_controller.h"

namespace desktop::photos_ui {

NSInteger PUPhotosGridViewController::numberOfSections(bridge::UICollectionView) const {
  return static_cast<NSInteger>(_list->sections().size());
}

NSInteger PUPhotosGridViewController::numberOfItems(bridge::UICollectionView,
                                                    NSInteger section) const {
  const auto& sections = _list->sections();
  const auto index = static_cast<std::size_t>(section);
  return section >= 0 && index < sections.size() ? static_cast<NSInteger>(sections[index].count)
                                                 : 0;
}

library::ItemPointer PUPhotosGridViewController::itemAt(bridge::NSIndexPath path) const {
  const auto at = uikit::itemPathOf(path);
  const auto index = at ? _list->indexOf(*at) : std::nullopt;
  return index ? _list->at(*index) : nullptr;
}

bridge::PHAsset PUPhotosGridViewController::assetAt(bridge::NSIndexPath path) const {
  const auto item = itemAt(path);
  return item && host().library ? faces::PHAsset::make(*host().library, item) : bridge::PHAsset();
}

bridge::UIView PUPhotosGridViewController::cellForItem(bridge::UICollectionView view,
                                                       bridge::NSIndexPath path) {
  const auto cell =
      bridge::send<bridge::UIView, "dequeueReusableCellWithReuseIdentifier:forIndexPath:">(
          view, bridge::NSString::make("PUPhotosGridCell"), path);
  if (bridge::isKindOf(cell, PUPhotosGridCell::classObject()))
    PUPhotosGridCell::of(cell).showItem(itemAt(path), layout().cellSize());
  return cell;
}

bridge::UIView PUPhotosGridViewController::supplementaryView(bridge::UICollectionView view,
                                                             bridge::NSString kind,
                                                             bridge::NSIndexPath path) {
  const auto made =
      bridge::send<bridge::UIView,
                   "dequeueReusableSupplementaryViewOfKind:withReuseIdentifier:forIndexPath:">(
          view, kind, kind, path);
  if (bridge::isKindOf(made, GridFooter::classObject())) GridFooter::of(made).show(_footerText);
  if (bridge::isKindOf(made, GridHeader::classObject()))
    showHeader(made, static_cast<std::size_t>(path.section()));
  return made;
}

// Where it was, above when; of a long section the first items speak for the rest.
void PUPhotosGridViewController::showHeader(bridge::UIView header, std::size_t section) const {
  if (section >= _list->sections().size()) return;
  constexpr std::size_t mostRead = 8;
  const library::Section& shown = _list->sections()[section];
  const auto items = _list->itemsOf(shown);
  std::string places;
  if (library::PhotoLibrary* const library = host().library) {
    for (const auto& item : items.first(std::min(items.size(), mostRead))) library->facts(*item);
    places = library::placesOf(items, library->factsCache());
  }
  GridHeader& view = GridHeader::of(header);
  if (places.empty()) return view.show(shown.title, {});
  view.show(places, shown.title);
}

void PUPhotosGridViewController::didEndDisplaying(bridge::UICollectionView, bridge::UIView cell,
                                                  bridge::NSIndexPath) {
  if (bridge::isKindOf(cell, PUPhotosGridCell::classObject()))
    PUPhotosGridCell::of(cell).content().stopLoading();
}

void PUPhotosGridViewController::didSelect(bridge::UICollectionView view,
                                           bridge::NSIndexPath path) {
  if (uikit::UIViewController::of(self()).isEditing()) return updateTitle();
  bridge::send<void, "deselectItemAtIndexPath:animated:">(view, path, false);
  const auto at = uikit::itemPathOf(path);
  const auto index = at ? _list->indexOf(*at) : std::nullopt;
  if (index) open(*index, true);
}

void PUPhotosGridViewController::didDeselect(bridge::UICollectionView, bridge::NSIndexPath) {
  updateTitle();
}

}  // namespace desktop::photos_ui
