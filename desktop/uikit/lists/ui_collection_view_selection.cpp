// SPDX-License-Identifier: MIT
//
// What a finger does to a collection: it presses an item, and selects it when it leaves it there.
#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/lists/ui_collection_view.h"

namespace desktop::uikit {
namespace {

bridge::UITouch touchOf(bridge::NSSet touches) {
  return bridge::as<bridge::UITouch>(touches.anyObject());
}

}  // namespace

void UICollectionView::setAllowsSelection(bool allows) {
  _allowsSelection = allows;
  if (!allows) deselectAll();
}

void UICollectionView::setAllowsMultipleSelection(bool allows) {
  _allowsMultipleSelection = allows;
  if (!allows && _selected.size() > 1) deselectAll();
}

void UICollectionView::touchesBegan(bridge::NSSet touches, bridge::UIEvent) {
  release();
  const bridge::UITouch touch = touchOf(touches);
  if (!touch || !_allowsSelection) return;
  const auto path = itemAt(touch.locationIn(self()));
  if (!path) return;
  const auto allowed = asked<bool, "collectionView:shouldHighlightItemAtIndexPath:">(
      delegate(), self(), indexPathOf(*path));
  if (!allowed.value_or(true)) return;
  _pressed = path;
  if (const auto cell = cellAt(*path)) cell.setHighlighted(true);
  told<"collectionView:didHighlightItemAtIndexPath:">(delegate(), self(), indexPathOf(*path));
}

// Ends a press without any effect.
void UICollectionView::release() {
  const auto pressed = std::exchange(_pressed, std::nullopt);
  if (!pressed) return;
  if (const auto cell = cellAt(*pressed)) cell.setHighlighted(false);
  told<"collectionView:didUnhighlightItemAtIndexPath:">(delegate(), self(), indexPathOf(*pressed));
}

void UICollectionView::touchesMoved(bridge::NSSet touches, bridge::UIEvent) {
  if (_pressed && itemAt(touchOf(touches).locationIn(self())) != _pressed) release();
}

void UICollectionView::touchesEnded(bridge::NSSet touches, bridge::UIEvent) {
  const auto kept = bridge::Owned<bridge::UIView>::retain(self());
  const auto pressed = _pressed;
  const bool isInside = pressed && itemAt(touchOf(touches).locationIn(self())) == pressed;
  release();
  if (isInside) tap(*pressed);
}

void UICollectionView::touchesCancelled(bridge::NSSet, bridge::UIEvent) {
  release();
}

// Without multiple selection a tap on the selected item selects it again.
void UICollectionView::tap(ItemPath path) {
  if (_allowsMultipleSelection && _selected.contains(path)) {
    deselect(path);
  } else {
    select(path);
  }
}

void UICollectionView::select(ItemPath path) {
  const auto allowed = asked<bool, "collectionView:shouldSelectItemAtIndexPath:">(
      delegate(), self(), indexPathOf(path));
  if (!allowed.value_or(true) || !has(path)) return;
  if (!_allowsMultipleSelection) {
    const auto before = _selected;
    for (const ItemPath other : before)
      if (other != path) deselect(other);
  }
  setSelected(path, true);
  told<"collectionView:didSelectItemAtIndexPath:">(delegate(), self(), indexPathOf(path));
}

void UICollectionView::deselect(ItemPath path) {
  const auto allowed = asked<bool, "collectionView:shouldDeselectItemAtIndexPath:">(
      delegate(), self(), indexPathOf(path));
  if (!allowed.value_or(true)) return;
  setSelected(path, false);
  told<"collectionView:didDeselectItemAtIndexPath:">(delegate(), self(), indexPathOf(path));
}

void UICollectionView::deselectAll() {
  const auto before = _selected;
  for (const ItemPath path : before) setSelected(path, false);
}

bridge::NSArray UICollectionView::indexPathsForSelectedItems() const {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  for (const ItemPath path : _selected) all->add(indexPathOf(path));
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

// By code the delegate is not told. No path clears the selection.
void UICollectionView::selectItem(bridge::NSIndexPath path, bool animated, NSUInteger position) {
  const auto at = itemPathOf(path);
  if (at && !(has(*at) && _allowsSelection)) return;
  if (!at || !_allowsMultipleSelection) deselectAll();
  if (!at) return;
  setSelected(*at, true);
  if (position != none) scrollToItem(path, position, animated);
}

void UICollectionView::deselectItem(bridge::NSIndexPath path, bool) {
  if (const auto at = itemPathOf(path)) setSelected(*at, false);
}

void UICollectionView::setSelected(ItemPath path, bool isSelected) {
  const bool wasSelected = _selected.contains(path);
  if (wasSelected == isSelected) return;
  if (isSelected) {
    _selected.insert(path);
  } else {
    _selected.erase(path);
  }
  if (const auto cell = cellAt(path)) cell.setSelected(isSelected);
}

handles::UICollectionViewCell UICollectionView::cellAt(ItemPath path) const {
  const auto found = _views.find({{}, path});
  return handles::UICollectionViewCell(found == _views.end() ? nullptr : found->second.get().get());
}

}  // namespace desktop::uikit
