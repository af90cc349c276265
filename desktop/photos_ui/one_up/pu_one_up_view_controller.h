// SPDX-License-Identifier: MIT
//
// PUOneUpViewController: one photo or video at a time, and the way to its neighbours.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/photos_ui/base/library_observer.h"
#include "desktop/photos_ui/one_up/bars_visibility.h"
#include "desktop/photos_ui/one_up/browsed_items.h"
#include "desktop/photos_ui/one_up/one_up_action.h"
#include "desktop/photos_ui/one_up/photo_pages.h"
#include "desktop/platform.h"
#include "desktop/uikit/controllers/ui_view_controller.h"

namespace desktop::photos_ui {

// Ordinary is by itself, with bars; a preview is a look at it, as a card over the grid.
enum class Presentation { ordinary, preview };

// The tiling view is also in the field `_tilingView`, where extensions read it.
class PUOneUpViewControllerState
    : public Bound<PUOneUpViewControllerState, uikit::UIViewControllerState,
                   PUOneUpViewController> {
 public:
  using Bound::Bound;
  ~PUOneUpViewControllerState();
  static Class classObject();

  // For a list of items, at one of them, numbered from 0 through all sections; +1.
  static Owned<UIViewController> make(ItemListPointer items, std::size_t index,
                                      Presentation presentation);

  // Null where nothing is left to show.
  library::ItemPointer currentItem() const { return _items.current(); }
  std::size_t currentIndex() const { return _items.index(); }
  // What extensions ask which item is on show.
  PUOneUpTilingLayout layout() const { return PUOneUpTilingLayout(_layout.get().get()); }
  // Whether it did something.
  bool perform(OneUpAction action) { return _pages.perform(action); }

 private:
  // As a controller.
  UIViewController init();
  void viewDidLoad();
  void viewWillLayoutSubviews();
  void viewWillAppear(bool animated);
  void viewDidAppear(bool animated);
  void viewWillDisappear(bool animated);

  // For extensions.
  bool isPresentedForPreview() const { return _presentation == Presentation::preview; }
  PUAssetReference assetReference(NSIndexPath path, PUOneUpTilingLayout layout) const;
  void setTilingView(UIView view);
  NSObject barsController() const { return _bars; }

  void swapHalves(NSObject sender);
  void handleTap(UIGestureRecognizer recognizer);
  void handleTapBeside(UIGestureRecognizer recognizer);
  bool shouldReceiveTouch(UIGestureRecognizer recognizer, UITouch touch) const;
  void libraryChanged(const library::LibraryChange& change);

  Owned<UIScrollView> makeTilingView();
  CGRect pagesFrame() const;
  void showItems(ItemListPointer items, std::size_t index);
  void moved(std::size_t index);
  void tellLayout() const;
  void updateBars() const;
  void showBars(bool shown, bool animated);
  void leave();

  Presentation _presentation = Presentation::ordinary;
  BrowsedItems _items;
  PhotoPages _pages;
  BarsVisibility _visibility{self()};
  Owned<NSObject> _layout;
  Owned<NSObject> _bars;
  LibraryObserver _observer{
      [this](const library::LibraryChange& change) { libraryChanged(change); }};
};

// Whether the controller is a single photo and did something.
bool performOneUpAction(UIViewController controller, OneUpAction action);

}  // namespace desktop::photos_ui
