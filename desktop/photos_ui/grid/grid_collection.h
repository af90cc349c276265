// SPDX-License-Identifier: MIT
//
// The collection of a grid: its view, how that is laid out, the list on show, and the cells and
// titles that are made for it.
#pragma once

#include <string>

#include "bridge/photos.h"
#include "desktop/photos_ui/base/item_list.h"
#include "desktop/photos_ui/grid/pu_sectioned_grid_layout.h"
#include "desktop/platform.h"
#include "desktop/uikit/lists/ui_collection_view.h"

namespace desktop::photos_ui {

class GridCollection {
 public:
  GridCollection() = default;
  GridCollection(const GridCollection&) = delete;
  GridCollection& operator=(const GridCollection&) = delete;
  // The view may outlive the grid, and asks no one then.
  ~GridCollection();

  // Makes the view. The owner is the delegate of view and layout and the view's data source; it
  // passes on what it is asked.
  void make(NSObject owner, CGRect frame, CGFloat headerHeight);
  // Nil until it is made.
  UICollectionView view() const { return _view; }
  // REQUIRES: the view is made.
  uikit::UICollectionViewState& viewState() const {
    return uikit::UICollectionViewState::of(_view.get());
  }
  uikit::UIScrollViewState& scroll() const { return uikit::UIScrollViewState::of(_view.get()); }
  PUSectionedGridLayoutState& layout() const {
    return PUSectionedGridLayoutState::of(_layout.get());
  }
  // Has the layout place the items as they are now, without making their cells.
  void measure() const;

  const ItemListPointer& list() const { return _list; }
  // Shows a list in place of the one before; nothing is selected then.
  void show(ItemListPointer list);
  // The text below all items; empty for none.
  void setFooterText(std::string text);

  // None, or null, for a path of no item of the list.
  std::optional<std::size_t> indexOf(NSIndexPath path) const;
  library::ItemPointer itemAt(NSIndexPath path) const;

  // What the data source answers.
  NSInteger sectionCount() const;
  NSInteger itemCount(NSInteger section) const;
  UIView cell(UICollectionView view, NSIndexPath path) const;
  UIView title(UICollectionView view, NSString kind, NSIndexPath path) const;

 private:
  void registerClasses() const;
  void showHeader(UIView header, std::size_t section) const;

  ItemListPointer _list = std::make_shared<ItemList>();
  std::string _footerText;
  Owned<PUSectionedGridLayout> _layout;
  Owned<UICollectionView> _view;
};

}  // namespace desktop::photos_ui
