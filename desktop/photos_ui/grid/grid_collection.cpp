// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/grid_collection.h"

#include <algorithm>

#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/cells/pu_photos_grid_cell.h"
#include "desktop/photos_ui/grid/grid_titles.h"

namespace desktop::photos_ui {

namespace {

constexpr const char* cellIdentifier = "PUPhotosGridCell";

}  // namespace

GridCollection::~GridCollection() {
  _view->setDelegate(NSObject());
  _view->setDataSource(NSObject());
  if (_layout) layout().setDelegate({});
}

void GridCollection::make(NSObject owner, CGRect frame, CGFloat headerHeight) {
  _layout = PUSectionedGridLayoutState::make();
  layout().setDelegate(owner);
  layout().setHeaderHeight(headerHeight);
  _view = makeWith<UICollectionView, "initWithFrame:collectionViewLayout:">(
      UICollectionView::classObject(), frame, UICollectionViewLayout(_layout.get().get()));
  _view->setBackgroundColor(UIColor::whiteColor());
  _view->setAutoresizingMask(flexibleWidth | flexibleHeight);
  _view->setAlwaysBounceVertical(true);
  registerClasses();
  _view->setDelegate(owner);
  _view->setDataSource(owner);
}

void GridCollection::registerClasses() const {
  _view->registerCell(PUPhotosGridCellState::classObject(), NSString::make(cellIdentifier));
  const auto registerTitle = [&](Class aClass, const char* kind) {
    _view->registerSupplementaryView(aClass, NSString::make(kind), NSString::make(kind));
  };
  registerTitle(GridHeader::classObject(), PUSectionedGridLayoutState::headerKind);
  registerTitle(GridFooter::classObject(), PUSectionedGridLayoutState::footerKind);
}

void GridCollection::measure() const {
  _view->layoutAttributesForItem(uikit::indexPathOf({0, 0}));
}

void GridCollection::show(ItemListPointer list) {
  _list = std::move(list);
  _view->reloadData();
}

void GridCollection::setFooterText(std::string text) {
  layout().setFooterHeight(text.empty() ? 0 : GridFooter::height);
  if (text == _footerText) return;
  _footerText = std::move(text);
  const UIView shown = _view->supplementaryView(
      NSString::make(PUSectionedGridLayoutState::footerKind), uikit::indexPathOf({0, 0}));
  if (shown) GridFooter::of(shown).show(_footerText);
}

std::optional<std::size_t> GridCollection::indexOf(NSIndexPath path) const {
  const auto at = uikit::itemPathOf(path);
  return at ? _list->indexOf(*at) : std::nullopt;
}

library::ItemPointer GridCollection::itemAt(NSIndexPath path) const {
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

UIView GridCollection::cell(UICollectionView view, NSIndexPath path) const {
  const auto made = view.dequeueCell(NSString::make(cellIdentifier), path);
  if (isKindOf(made, PUPhotosGridCellState::classObject()))
    PUPhotosGridCellState::of(made).showItem(itemAt(path), layout().cellSize());
  return made;
}

UIView GridCollection::title(UICollectionView view, NSString kind, NSIndexPath path) const {
  const auto made = view.dequeueSupplementaryView(kind, kind, path);
  if (isKindOf(made, GridFooter::classObject())) GridFooter::of(made).show(_footerText);
  if (isKindOf(made, GridHeader::classObject()))
    showHeader(made, static_cast<std::size_t>(path.section()));
  return made;
}

// Where it was, above when; of a long section the first items speak for the rest.
void GridCollection::showHeader(UIView header, std::size_t section) const {
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
