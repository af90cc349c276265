// SPDX-License-Identifier: MIT
//
// PUPhotosGridViewController: items as a grid of thumbnails, from which one is opened or, in select
// mode, any number are selected. What it shows is its contents'; classes below it are other kinds
// of grids.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/photos_ui/base/library_observer.h"
#include "desktop/photos_ui/grid/grid_collection.h"
#include "desktop/photos_ui/grid/grid_contents.h"
#include "desktop/photos_ui/grid/grid_place.h"
#include "desktop/photos_ui/grid/grid_selection.h"
#include "desktop/platform.h"
#include "desktop/uikit/controllers/ui_view_controller.h"

namespace desktop::photos_ui {

class PUPhotosGridViewControllerState
    : public Bound<PUPhotosGridViewControllerState, uikit::UIViewControllerState,
                   PUPhotosGridViewController> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new controller of this class or of one below it; +1.
  static Owned<UIViewController> make(Class aClass, GridContents contents);

  const ItemListPointer& list() const { return _grid.list(); }
  UICollectionView collectionView() const { return _grid.view(); }
  PUSectionedGridLayoutState& layout() const { return _grid.layout(); }
  // Loads the view and what it shows, where that has not happened yet.
  void load();
  // Scrolls until an item is in sight, in the middle where it was not. REQUIRES: it is in the list.
  void reveal(std::size_t index) { _place.reveal(index); }
  // Asks for the contents anew, and keeps place and selection.
  void refresh();
  // Opens an item by itself.
  void open(std::size_t index, bool animated);
  void setFooterText(std::string text) { _grid.setFooterText(std::move(text)); }

 private:
  // As a controller.
  void viewDidLoad();
  void viewWillAppear(bool animated);
  void viewWillLayoutSubviews();
  void viewDidLayoutSubviews();
  void setEditing(bool editing, bool animated);

  // As the collection's data source and delegate, and that of the swipe over it.
  NSInteger numberOfSections(UICollectionView view) const;
  NSInteger numberOfItems(UICollectionView view, NSInteger section) const;
  UIView cellForItem(UICollectionView view, NSIndexPath path);
  UIView supplementaryView(UICollectionView view, NSString kind, NSIndexPath path);
  void didEndDisplaying(UICollectionView view, UIView cell, NSIndexPath path);
  void didSelect(UICollectionView view, NSIndexPath path);
  void didDeselect(UICollectionView view, NSIndexPath path);
  void didScroll(UIView scrollView);
  bool shouldBegin(UIGestureRecognizer recognizer) const;
  void handleSwipeSelection(UIGestureRecognizer recognizer);

  // For extensions and classes below.
  void updateLayoutMetrics();
  // Told when a change of the library is on show.
  void libraryWasShown() {}
  PHAsset assetAt(NSIndexPath path) const;
  void beginSelecting(Object sender);
  void endSelecting(Object sender);
  bool isAnyAssetSelected() const { return !_selection.isEmpty(); }
  NSArray selectedAssets() const;
  NSString localizedSelectionTitle() const;

  void libraryChanged(const library::LibraryChange& change);
  bool isEditing() const;
  void updateMessage();
  void updateSelectButton();
  void updateTitle();

  GridContents _contents;
  GridCollection _grid;
  GridPlace _place{_grid};
  GridSelection _selection{_grid};
  Owned<UIView> _message;  // where there are no items
  CGFloat _measuredWidth = 0;
  bool _isStale = true;  // the library changed out of sight
  LibraryObserver _observer{
      [this](const library::LibraryChange& change) { libraryChanged(change); }};
};

}  // namespace desktop::photos_ui
