// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/grid_collection.h"

#include <algorithm>

#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/cells/pu_photos_grid_cell.h"
#include "desktop/photos_ui/grid/grid_titles.h"

namespace desktop::photos_ui {

using bridge::NSString;

namespace {

constexpr const char* cellIdentifier = "PUPhotosGridCell";

}  // namespace

GridCollection::~GridCollection() {
  bridge::send<void, "setDelegate:">(_view.get(), bridge::NSObject());
  bridge::send<void, "setDataSource:">(_view.get(), bridge::NSObject());
  if (_layout) layout().setDelegate({});
}

void GridCollection::make(bridge::NSObject owner, CGRect frame, CGFloat headerHeight) {
  _layout = PUSectionedGridLayout::make();
  layout().setDelegate(owner);
  layout().setHeaderHeight(headerHeight);
  _view = bridge::makeWith<bridge::UICollectionView, "initWithFrame:collectionViewLayout:">(
      bridge::UICollectionView::classObject(), frame,
      bridge::UICollectionViewLayout(_layout.get().get()));
  _view->setBackgroundColor(bridge::UIColor::whiteColor());
  _view->setAutoresizingMask(bridge::flexibleWidth | bridge::flexibleHeight);
  bridge::send<void, "setAlwaysBounceVertical:">(_view.get(), true);
  registerClasses();
  bridge::send<void, "setDelegate:">(_view.get(), owner);
  bridge::send<void, "setDataSource:">(_view.get(), owner);
}

void GridCollection::registerClasses() const {
  bridge::send<void, "registerClass:forCellWithReuseIdentifier:">(
      _view.get(), PUPhotosGridCell::classObject(), NSString::make(cellIdentifier));
  const auto registerTitle = [&](Class aClass, const char* kind) {
    bridge::send<void, "registerClass:forSupplementaryViewOfKind:withReuseIdentifier:">(
        _view.get(), aClass, NSString::make(kind), NSString::make(kind));
  };
  registerTitle(GridHeader::classObject(), PUSectionedGridLayout::headerKind);
  registerTitle(GridFooter::classObject(), PUSectionedGridLayout::footerKind);
}

void GridCollection::measure() const {
  bridge::send<bridge::Object, "layoutAttributesForItemAtIndexPath:">(_view.get(),
                                                                      uikit::indexPathOf({0, 0}));
}

void GridCollection::show(ItemListPointer list) {
  _list = std::move(list);
  bridge::send<void, "reloadData">(_view.get());
}

void GridCollection::setFooterText(std::string text) {
  layout().setFooterHeight(text.empty() ? 0 : GridFooter::height);
  if (text == _footerText) return;
  _footerText = std::move(text);
  const bridge::UIView shown =
      bridge::send<bridge::UIView, "supplementaryViewForElementKind:atIndexPath:">(
          _view.get(), NSString::make(PUSectionedGridLayout::footerKind),
          uikit::indexPathOf({0, 0}));
  if (shown) GridFooter::of(shown).show(_footerText);
}

std::optional<std::size_t> GridCollection::indexOf(bridge::NSIndexPath path) const {
  const auto at = uikit::itemPathOf(path);
  return at ? _list->indexOf(*at) : std::nullopt;
}

library::ItemPointer GridCollection::itemAt(bridge::NSIndexPath path) const {
  const auto index = indexOf(path);
  return index ? _list->at(*index) : nullptr;
}

NSInteger GridCollection::sectionCount() const {
  return static_cast<NSInteger>(_list->sections().size());
}

NSInteger GridCollection::itemCount(NSInteger section) const {
  const auto& sections = _list->sections();
  const auto index = static_cast<std::size_t>(section);
  return section >= 0 && index < sections.size() ? static_cast<NSInteger>(sections[index].count)
                                                 : 0;
}

bridge::UIView GridCollection::cell(bridge::UICollectionView view, bridge::NSIndexPath path) const {
  const auto made =
      bridge::send<bridge::UIView, "dequeueReusableCellWithReuseIdentifier:forIndexPath:">(
          view, NSString::make(cellIdentifier), path);
  if (bridge::isKindOf(made, PUPhotosGridCell::classObject()))
    PUPhotosGridCell::of(made).showItem(itemAt(path), layout().cellSize());
  return made;
}

bridge::UIView GridCollection::title(bridge::UICollectionView view, NSString kind,
                                     bridge::NSIndexPath path) const {
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
void GridCollection::showHeader(bridge::UIView header, std::size_t section) const {
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

}  // namespace desktop::photos_ui
