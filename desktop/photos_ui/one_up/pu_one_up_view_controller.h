// SPDX-License-Identifier: MIT
//
// PUOneUpViewController: one photo or video at a time, and the way to its neighbours.
#pragma once

#include "bridge/bound.h"
#include "bridge/photos.h"
#include "desktop/photos_ui/base/library_observer.h"
#include "desktop/photos_ui/one_up/browsed_items.h"
#include "desktop/photos_ui/one_up/one_up_action.h"
#include "desktop/photos_ui/one_up/pu_tiling_view.h"

namespace desktop::photos_ui {

// Ordinary is by itself, with bars; a preview is a look at it, as a card over the grid.
enum class Presentation { ordinary, preview };

// The tiling view is also in the field `_tilingView`, where extensions read it.
class PUOneUpViewController : public bridge::Bound<PUOneUpViewController, bridge::UIViewController>,
                              private LibraryObserver {
 public:
  using Bound::Bound;
  ~PUOneUpViewController() override;
  static Class classObject();

  // For a list of items, at one of them, numbered from 0 through all sections; +1.
  static bridge::Owned<bridge::UIViewController> make(ItemListPointer items, std::size_t index,
                                                      Presentation presentation);

  // Null where nothing is left to show.
  library::ItemPointer currentItem() const { return _items.current(); }
  std::size_t currentIndex() const { return _items.index(); }
  // What extensions ask which item is on show.
  bridge::PUOneUpTilingLayout layout() const {
    return bridge::PUOneUpTilingLayout(_layout.get().get());
  }
  bool perform(OneUpAction action);

 private:
  bridge::UIViewController init();
  void viewDidLoad();
  void viewWillAppear(bool animated);
  void viewDidAppear(bool animated);
  void viewWillDisappear(bool animated);
  bool isPresentedForPreview() const { return _presentation == Presentation::preview; }
  bridge::PUAssetReference assetReference(bridge::NSIndexPath path,
                                          bridge::PUOneUpTilingLayout layout) const;
  void setTilingView(bridge::UIView view);
  bridge::NSObject barsController() const { return _bars; }
  void handleTap(bridge::UIGestureRecognizer recognizer);
  void handleTapBeside(bridge::UIGestureRecognizer recognizer);
  bool shouldReceiveTouch(bridge::UIGestureRecognizer recognizer, bridge::UITouch touch) const;
  void libraryChanged(const library::LibraryChange& change) override;

  bridge::UIView me() const { return bridge::UIViewController(self().get()).view(); }
  bridge::Owned<bridge::UIView> makeTilingView();
  CGRect cardFrame() const;
  void viewWillLayoutSubviews();
  PUTilingView& pages() const { return PUTilingView::of(_tilingView.get()); }
  CGFloat cardHeight(CGFloat width) const;
  void showItems(ItemListPointer items, std::size_t index);
  void setCurrent(std::size_t index);
  void moved(std::size_t index);
  void showBars(bool shown, bool animated);
  void showStatusBar(bool shown);
  bool page(std::size_t index);
  bool zoom(OneUpAction action);
  void leave();

  BrowsedItems _items;
  Presentation _presentation = Presentation::ordinary;
  bridge::Owned<bridge::NSObject> _layout;
  bridge::Owned<bridge::NSObject> _bars;
  bridge::Owned<bridge::UIView> _tilingView;
  bool _areBarsShown = true;
  bool _hasStatusBar = false;  // while the bars are hidden: whether it comes back with them
};

// Whether the controller is a single photo and did something.
bool performOneUpAction(bridge::UIViewController controller, OneUpAction action);

}  // namespace desktop::photos_ui
