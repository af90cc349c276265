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

namespace desktop::photos_ui {

class PUPhotosGridViewController
    : public bridge::Bound<PUPhotosGridViewController, bridge::UIViewController>,
      private LibraryObserver {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new controller of this class or of one below it; +1.
  static bridge::Owned<bridge::UIViewController> make(Class aClass, GridContents contents);

  const ItemListPointer& list() const { return _grid.list(); }
  bridge::UICollectionView collectionView() const { return _grid.view(); }
  PUSectionedGridLayout& layout() const { return _grid.layout(); }
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
  bridge::PUPhotosGridViewController me() const {
    return bridge::PUPhotosGridViewController(self().get());
  }

  // As a controller.
  void viewDidLoad();
  void viewWillAppear(bool animated);
  void viewWillLayoutSubviews();
  void viewDidLayoutSubviews();
  void setEditing(bool editing, bool animated);

  // As the collection's data source and delegate, and that of the swipe over it.
  NSInteger numberOfSections(bridge::UICollectionView view) const;
  NSInteger numberOfItems(bridge::UICollectionView view, NSInteger section) const;
  bridge::UIView cellForItem(bridge::UICollectionView view, bridge::NSIndexPath path);
  bridge::UIView supplementaryView(bridge::UICollectionView view, bridge::NSString kind,
                                   bridge::NSIndexPath path);
  void didEndDisplaying(bridge::UICollectionView view, bridge::UIView cell,
                        bridge::NSIndexPath path);
  void didSelect(bridge::UICollectionView view, bridge::NSIndexPath path);
  void didDeselect(bridge::UICollectionView view, bridge::NSIndexPath path);
  void didScroll(bridge::UIView scrollView);
  bool shouldBegin(bridge::UIGestureRecognizer recognizer) const;
  void handleSwipeSelection(bridge::UIGestureRecognizer recognizer);

  // For extensions and classes below.
  void updateLayoutMetrics();
  // Told when a change of the library is on show.
  void libraryWasShown() {}
  bridge::PHAsset assetAt(bridge::NSIndexPath path) const;
  void beginSelecting(bridge::Object sender);
  void endSelecting(bridge::Object sender);
  bool isAnyAssetSelected() const { return !_selection.isEmpty(); }
  bridge::NSArray selectedAssets() const;
  bridge::NSString localizedSelectionTitle() const;

  void libraryChanged(const library::LibraryChange& change) override;
  bool isEditing() const;
  void updateMessage();
  void updateSelectButton();
  void updateTitle();

  GridContents _contents;
  GridCollection _grid;
  GridPlace _place{_grid};
  GridSelection _selection{_grid};
  bridge::Owned<bridge::UIView> _message;  // where there are no items
  CGFloat _measuredWidth = 0;
  bool _isStale = true;  // the library changed out of sight
};

}  // namespace desktop::photos_ui
