// SPDX-License-Identifier: MIT
//
// PUPhotosGridViewController: items as a grid of thumbnails, from which one is opened or, in select
// mode, any number are selected. What it shows is its contents'; classes below it are other kinds
// of grids.
#pragma once

#include <set>

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/photos_ui/base/library_observer.h"
#include "desktop/photos_ui/grid/grid_contents.h"
#include "desktop/photos_ui/grid/pu_sectioned_grid_layout.h"
#include "desktop/uikit/handles.h"
#include "desktop/uikit/lists/index_path.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"

namespace desktop::photos_ui {

class PUPhotosGridViewController
    : public bridge::Bound<PUPhotosGridViewController, bridge::UIViewController>,
      private LibraryObserver {
 public:
  using Bound::Bound;
  ~PUPhotosGridViewController() override;
  static Class classObject();

  // A new controller of this class or of one below it; +1.
  static bridge::Owned<bridge::UIViewController> make(Class aClass, GridContents contents);

  const ItemListPointer& list() const { return _list; }
  const GridContents& contents() const { return _contents; }
  bridge::UICollectionView collectionView() const { return _collectionView; }
  PUSectionedGridLayout& layout() const { return PUSectionedGridLayout::of(_layout.get()); }
  // Loads the view and what it shows, where that has not happened yet.
  void load();
  // Scrolls until an item is in sight, in the middle where it was not. REQUIRES: it is in the list.
  void reveal(std::size_t index);
  // Asks for the contents anew, and keeps place and selection.
  void refresh();
  // Opens an item by itself.
  void open(std::size_t index, bool animated);
  void setFooterText(std::string text);

 private:
  using ItemPath = uikit::ItemPath;
  bridge::PUPhotosGridViewController me() const {
    return bridge::PUPhotosGridViewController(self().get());
  }

  // Life, in pu_photos_grid_view_controller.cpp.
  void viewDidLoad();
  bridge::Owned<bridge::UICollectionView> makeCollectionView(CGRect frame);
  void viewWillAppear(bool animated);
  void viewWillLayoutSubviews();
  void viewDidLayoutSubviews();
  void updateLayoutMetrics();
  CGSize stockItemSize(CGFloat width, NSInteger columns) const;
  void updateMessage();
  // Told when a change of the library is on show; for classes below.
  void libraryWasShown() {}
  void libraryChanged(const library::LibraryChange& change) override;

  // Place, in pu_photos_grid_place.cpp.
  struct Anchor {
    std::size_t index;
    CGFloat y;  // of the item's top edge, from the top of what is seen
  };
  struct Room {
    CGSize content;
    CGSize view;
    uikit::EdgeInsets insets;
    bool operator==(const Room& other) const;
  };
  Room room() const;
  void didScroll(bridge::UIView scrollView);
  bool isAtEnd() const;
  void placeAtEnd();
  void scrollTo(CGFloat y);
  std::optional<Anchor> anchor() const;
  void restore(const Anchor& anchor);

  // Items, in pu_photos_grid_items.cpp.
  NSInteger numberOfSections(bridge::UICollectionView view) const;
  NSInteger numberOfItems(bridge::UICollectionView view, NSInteger section) const;
  bridge::UIView cellForItem(bridge::UICollectionView view, bridge::NSIndexPath path);
  bridge::UIView supplementaryView(bridge::UICollectionView view, bridge::NSString kind,
                                   bridge::NSIndexPath path);
  void showHeader(bridge::UIView header, std::size_t section) const;
  void didEndDisplaying(bridge::UICollectionView view, bridge::UIView cell,
                        bridge::NSIndexPath path);
  bridge::PHAsset assetAt(bridge::NSIndexPath path) const;
  library::ItemPointer itemAt(bridge::NSIndexPath path) const;
  void didSelect(bridge::UICollectionView view, bridge::NSIndexPath path);
  void didDeselect(bridge::UICollectionView view, bridge::NSIndexPath path);

  // Selection, in pu_photos_grid_selection.cpp.
  void setEditing(bool editing, bool animated);
  void beginSelecting(bridge::Object sender);
  void endSelecting(bridge::Object sender);
  void updateBarItems();
  void updateTitle();
  bool isAnyAssetSelected() const { return !selection().empty(); }
  bridge::NSArray selectedAssets() const;
  bridge::NSString localizedSelectionTitle() const;
  const std::set<ItemPath>& selection() const;
  std::vector<library::ItemPointer> selectedItems() const;
  void selectAgain(const std::vector<library::ItemPointer>& items);
  void select(std::size_t index, bool isSelected);
  bool shouldBegin(bridge::UIGestureRecognizer recognizer) const;
  void handleSwipeSelection(bridge::UIGestureRecognizer recognizer);
  void beginSwipe(bridge::UIGestureRecognizer recognizer);
  std::optional<std::size_t> indexAt(CGPoint point) const;
  void swipeTo(std::size_t index);
  void undoSwipe();

  // A finger that goes over items and makes them all as selected as the first one became.
  struct Swipe {
    std::size_t first;
    std::size_t last;
    bool selects;
    std::set<std::size_t> before;  // what was selected
  };

  GridContents _contents;
  ItemListPointer _list = std::make_shared<ItemList>();
  bridge::Owned<bridge::UICollectionView> _collectionView;
  bridge::Owned<bridge::PUSectionedGridLayout> _layout;
  bridge::Owned<bridge::UIGestureRecognizer> _swipeRecognizer;
  bridge::Owned<bridge::UIView> _message;  // where there are no items
  std::optional<Swipe> _swipe;
  std::string _footerText;
  Room _placedRoom;
  CGFloat _measuredWidth = 0;
  bool _isStale = true;      // the library changed out of sight
  bool _staysAtEnd = false;  // until somebody scrolls away
  bool _isPlacing = false;
};

}  // namespace desktop::photos_ui
