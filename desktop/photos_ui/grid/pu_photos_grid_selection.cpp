// SPDX-License-Identifier: MIT
//
// Select mode: taps and swipes select items, and the title counts them.
#include <algorithm>
#include <cmath>

#include "desktop/faces/photos/ph_asset.h"
#include "desktop/photos_ui/base/photos_host.h"
#include "desktop/photos_ui/grid/pu_photos_grid_view_controller.h"
#include "desktop/photos_ui/grid/selection_title.h"
#include "desktop/uikit/controllers/ui_view_controller.h"
#include "desktop/uikit/lists/ui_collection_view.h"

namespace desktop::photos_ui {

using bridge::NSString;
using bridge::UIBarButtonItem;

const std::set<uikit::ItemPath>& PUPhotosGridViewController::selection() const {
  static const std::set<ItemPath> nothing;
  if (!_collectionView || !uikit::UIViewController::of(self()).isEditing()) return nothing;
  return uikit::UICollectionView::of(_collectionView.get()).selectedItems();
}

std::vector<library::ItemPointer> PUPhotosGridViewController::selectedItems() const {
  std::vector<library::ItemPointer> items;
  for (const ItemPath path : selection())
    if (const auto index = _list->indexOf(path)) items.push_back(_list->at(*index));
  return items;
}

bridge::NSArray PUPhotosGridViewController::selectedAssets() const {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  if (host().library)
    for (const auto& item : selectedItems()) all->add(faces::PHAsset::make(*host().library, item));
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

NSString PUPhotosGridViewController::localizedSelectionTitle() const {
  return NSString::make(selectionTitle(selectedItems()));
}

void PUPhotosGridViewController::setEditing(bool editing, bool animated) {
  super<void, "setEditing:animated:">(editing, animated);
  self().view();
  undoSwipe();
  const auto selected = uikit::UICollectionView::of(_collectionView.get()).selectedItems();
  for (const ItemPath path : selected)
    bridge::send<void, "deselectItemAtIndexPath:animated:">(_collectionView.get(),
                                                            uikit::indexPathOf(path), false);
  bridge::send<void, "setAllowsMultipleSelection:">(_collectionView.get(), editing);
  updateBarItems();
  updateTitle();
}

void PUPhotosGridViewController::beginSelecting(bridge::Object) {
  bridge::send<void, "setEditing:animated:">(self(), true, true);
}

void PUPhotosGridViewController::endSelecting(bridge::Object) {
  bridge::send<void, "setEditing:animated:">(self(), false, true);
}

// Sets the items only where they become others: somebody else may have added some.
void PUPhotosGridViewController::updateBarItems() {
  const bool isEditing = uikit::UIViewController::of(self()).isEditing();
  const bool isNeeded = isEditing || (_contents.allowsSelecting && !_list->isEmpty());
  const NSString wanted = !isNeeded ? NSString() : NSString::make(isEditing ? "Cancel" : "Select");
  const bridge::NSArray now = self().navigationItem().rightBarButtonItems();
  const NSString shown = now.count() > 0 ? bridge::send<NSString, "title">(now.at(0)) : NSString();
  if (wanted ? wanted.isEqualToString(shown) : !now) return;
  if (!wanted) return self().navigationItem().setRightBarButtonItems({});
  const auto item = UIBarButtonItem::withTitle(
      wanted, isEditing ? UIBarButtonItem::done : UIBarButtonItem::plain, me(),
      isEditing ? bridge::selector<"endSelecting:">() : bridge::selector<"beginSelecting:">());
  self().navigationItem().setRightBarButtonItems(bridge::NSArray::of(item.get()));
}

void PUPhotosGridViewController::updateTitle() {
  const bool isEditing = uikit::UIViewController::of(self()).isEditing();
  self().navigationItem().setTitle(isEditing ? me().localizedSelectionTitle()
                                             : NSString::make(_contents.title));
}

void PUPhotosGridViewController::select(std::size_t index, bool isSelected) {
  const auto path = _list->pathOf(index);
  if (!path || selection().contains(*path) == isSelected) return;
  const auto shown = uikit::indexPathOf(*path);
  if (isSelected)
    bridge::send<void, "selectItemAtIndexPath:animated:scrollPosition:">(
        _collectionView.get(), shown, false, NSUInteger{0});
  else
    bridge::send<void, "deselectItemAtIndexPath:animated:">(_collectionView.get(), shown, false);
}

void PUPhotosGridViewController::selectAgain(const std::vector<library::ItemPointer>& items) {
  for (const auto& item : items)
    if (const auto index = _list->find(*item)) select(*index, true);
}

// The grid may be the delegate of others' recognisers too. A swipe goes across; scrolling goes
// down.
bool PUPhotosGridViewController::shouldBegin(bridge::UIGestureRecognizer recognizer) const {
  if (recognizer != _swipeRecognizer.get()) return true;
  if (!uikit::UIViewController::of(self()).isEditing()) return false;
  const uikit::handles::UIPanGestureRecognizer pan(recognizer.get());
  const CGPoint way = pan.translationIn(_collectionView.get());
  return std::abs(way.x) >= std::abs(way.y);
}

std::optional<std::size_t> PUPhotosGridViewController::indexAt(CGPoint point) const {
  const auto path = uikit::itemPathOf(_collectionView->indexPathForItemAt(point));
  return path ? _list->indexOf(*path) : std::nullopt;
}

// A swipe is recognised when the finger has moved already: it began where that came down.
void PUPhotosGridViewController::beginSwipe(bridge::UIGestureRecognizer recognizer) {
  const uikit::handles::UIPanGestureRecognizer pan(recognizer.get());
  const CGPoint way = pan.translationIn(_collectionView.get());
  const CGPoint now = recognizer.locationIn(_collectionView.get());
  const auto first = indexAt({now.x - way.x, now.y - way.y});
  if (!first) return;
  const bool wasSelected = selection().contains(*_list->pathOf(*first));
  _swipe = Swipe{*first, *first, !wasSelected, {}};
  for (const ItemPath each : selection())
    if (const auto selected = _list->indexOf(each)) _swipe->before.insert(*selected);
}

// The title tells how many there are once the finger has moved on.
void PUPhotosGridViewController::handleSwipeSelection(bridge::UIGestureRecognizer recognizer) {
  using Recognizer = bridge::UIGestureRecognizer;
  const Recognizer::State state = recognizer.state();
  if (state == Recognizer::began) beginSwipe(recognizer);
  if (!_swipe) return;
  if (state == Recognizer::cancelled) {
    undoSwipe();
  } else if (const auto index = indexAt(recognizer.locationIn(_collectionView.get()))) {
    swipeTo(*index);
  }
  if (state == Recognizer::ended) _swipe.reset();
  if (state != Recognizer::began) updateTitle();
}

// What the finger went back over is as before again.
void PUPhotosGridViewController::swipeTo(std::size_t index) {
  const std::size_t from = std::min({_swipe->first, _swipe->last, index});
  const std::size_t to = std::max({_swipe->first, _swipe->last, index});
  _swipe->last = index;
  const auto [first, last] = std::minmax(_swipe->first, index);
  for (std::size_t each = from; each <= to; ++each) {
    const bool isSwiped = each >= first && each <= last;
    select(each, isSwiped ? _swipe->selects : _swipe->before.contains(each));
  }
}

void PUPhotosGridViewController::undoSwipe() {
  if (!_swipe) return;
  const std::size_t first = _swipe->first;
  swipeTo(first);
  select(first, _swipe->before.contains(first));
  _swipe.reset();
}

}  // namespace desktop::photos_ui
