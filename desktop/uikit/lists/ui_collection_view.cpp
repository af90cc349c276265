// SPDX-License-Identifier: MIT
//
// A collection holds its parts together: it counts what its data source has, lets its layout say
// what lies in sight, shows exactly that with views out of its pool, and knows what is pressed and
// selected. Whatever changes its contents sends all views back to the pool; the next layout counts,
// prepares and takes them out again, and only those that show nothing then leave the tree.
#include "desktop/uikit/lists/ui_collection_view.h"

#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/lists/collection/collection_placing.h"
#include "desktop/uikit/lists/ui_collection_reusable_view.h"
#include "desktop/uikit/scrolling/scroll_target.h"
#include "desktop/uikit/views/animator.h"

namespace desktop::uikit {
namespace {

using View = bridge::Owned<bridge::UIView>;

std::set<ItemPath> pathsOf(bridge::NSArray paths) {
  std::set<ItemPath> all;
  for (NSUInteger index = 0; index < paths.count(); ++index)
    if (const auto path = itemPathOf(paths.at(index))) all.insert(*path);
  return all;
}

bridge::UITouch touchOf(bridge::NSSet touches) {
  return bridge::as<bridge::UITouch>(touches.anyObject());
}

// Where one direction is to be shown that these bits of a scroll position stand for; none leaves it
// where it is.
std::optional<ShownAt> shownAt(NSUInteger position, NSUInteger start, NSUInteger middle,
                               NSUInteger end) {
  if (position == UICollectionView::none) return ShownAt::nearest;
  if (position & end) return ShownAt::end;
  if (position & middle) return ShownAt::middle;
  if (position & start) return ShownAt::start;
  return {};
}

}  // namespace

Class UICollectionView::classObject() {
  using Self = UICollectionView;
  static const Class made =
      bridge::ClassBuilder<Self>("UICollectionView")
          .method<"initWithFrame:", &Self::initWithFrame>()
          .method<"initWithFrame:collectionViewLayout:", &Self::initWithFrameAndLayout>()
          .method<"dataSource", &Self::dataSource>()
          .method<"setDataSource:", &Self::setDataSource>()
          .method<"collectionViewLayout", &Self::collectionViewLayout>()
          .method<"setCollectionViewLayout:", &Self::setCollectionViewLayout>()
          .method<"setCollectionViewLayout:animated:", &Self::setCollectionViewLayoutAnimated>()
          .method<"allowsSelection", &Self::allowsSelection>()
          .method<"setAllowsSelection:", &Self::setAllowsSelection>()
          .method<"allowsMultipleSelection", &Self::allowsMultipleSelection>()
          .method<"setAllowsMultipleSelection:", &Self::setAllowsMultipleSelection>()
          .method<"backgroundView", &Self::backgroundView>()
          .method<"setBackgroundView:", &Self::setBackgroundView>()
          .method<"numberOfSections", &Self::numberOfSections>()
          .method<"numberOfItemsInSection:", &Self::numberOfItems>()
          .method<"layoutAttributesForItemAtIndexPath:", &Self::attributesForItem>()
          .method<"layoutAttributesForSupplementaryElementOfKind:atIndexPath:",
                  &Self::attributesForSupplementary>()
          .method<"indexPathForItemAtPoint:", &Self::indexPathForItemAt>()
          .method<"scrollToItemAtIndexPath:atScrollPosition:animated:", &Self::scrollToItem>()
          .method<"layoutSubviews", &Self::layoutSubviews>()
          .method<"registerClass:forCellWithReuseIdentifier:", &Self::registerCellClass>()
          .method<"registerClass:forSupplementaryViewOfKind:withReuseIdentifier:",
                  &Self::registerSupplementaryClass>()
          .method<"dequeueReusableCellWithReuseIdentifier:forIndexPath:", &Self::dequeueCell>()
          .method<"dequeueReusableSupplementaryViewOfKind:withReuseIdentifier:forIndexPath:",
                  &Self::dequeueSupplementary>()
          .method<"indexPathForCell:", &Self::indexPathForCell>()
          .method<"cellForItemAtIndexPath:", &Self::cellForItem>()
          .method<"visibleCells", &Self::visibleCells>()
          .method<"indexPathsForVisibleItems", &Self::visibleItems>()
          .method<"supplementaryViewForElementKind:atIndexPath:", &Self::supplementaryView>()
          .method<"visibleSupplementaryViewsOfKind:", &Self::visibleSupplementaryViews>()
          .method<"reloadData", &Self::reloadData>()
          .method<"insertItemsAtIndexPaths:", &Self::insertItems>()
          .method<"deleteItemsAtIndexPaths:", &Self::deleteItems>()
          .method<"reloadItemsAtIndexPaths:", &Self::reloadItems>()
          .method<"insertSections:", &Self::sectionsChange>()
          .method<"deleteSections:", &Self::sectionsChange>()
          .method<"reloadSections:", &Self::sectionsChange>()
          .method<"performBatchUpdates:completion:", &Self::performBatchUpdates>()
          .method<"touchesBegan:withEvent:", &Self::touchesBegan>()
          .method<"touchesMoved:withEvent:", &Self::touchesMoved>()
          .method<"touchesEnded:withEvent:", &Self::touchesEnded>()
          .method<"touchesCancelled:withEvent:", &Self::touchesCancelled>()
          .method<"indexPathsForSelectedItems", &Self::indexPathsForSelectedItems>()
          .method<"selectItemAtIndexPath:animated:scrollPosition:", &Self::selectItem>()
          .method<"deselectItemAtIndexPath:animated:", &Self::deselectItem>()
          .build();
  return made;
}

bridge::UIView UICollectionView::initWithFrame(CGRect frame) {
  return bridge::send<bridge::UIView, "initWithFrame:collectionViewLayout:">(
      self(), frame, bridge::UICollectionViewLayout());
}

bridge::UIView UICollectionView::initWithFrameAndLayout(CGRect frame,
                                                        bridge::UICollectionViewLayout layout) {
  if (!super<bridge::UIView, "initWithFrame:">(frame)) return {};
  self().setBackgroundColor(UIColor::make(colors::black));
  setCollectionViewLayout(layout);
  return self();
}

void UICollectionView::setDataSource(bridge::NSObject source) {
  if (source == dataSource()) return;
  _dataSource.setObject(source);
  reloadData();
}

void UICollectionView::setCollectionViewLayout(bridge::UICollectionViewLayout layout) {
  layout = bridge::as<bridge::UICollectionViewLayout>(layout);
  if (layout == _layout.object()) return;
  _layout.replace(layout, me(), [this] { layoutBecameInvalid(); });
  layoutBecameInvalid();
}

void UICollectionView::setCollectionViewLayoutAnimated(bridge::UICollectionViewLayout layout,
                                                       bool) {
  bridge::send<void, "setCollectionViewLayout:">(self(), layout);
}

void UICollectionView::setBackgroundView(bridge::UIView view) {
  if (view == _backgroundView.get()) return;
  _backgroundView->removeFromSuperview();
  _backgroundView = View::retain(view);
  UIView::of(self()).insertSubview(view, 0);
  UIView::of(self()).setNeedsLayout();
}

// What there is, and where it lies.

const ItemCounts& UICollectionView::counts() {
  if (_counting.renew([this] { _counts = _dataSource.counts(); }))
    _selection.keepOnly([this](ItemPath path) { return _counts.has(path); });
  return _counts;
}

CollectionLayout::Has UICollectionView::has() {
  return [this](ItemPath path) { return counts().has(path); };
}

void UICollectionView::prepare() {
  counts();
  const auto size = _layout.prepare();
  const handles::UIScrollView scroll(self());
  if (!size || *size == scroll.contentSize()) return;
  scroll.setContentSize(*size);
  const CGPoint offset = scroll.contentOffset();
  const CGPoint inside = UIScrollView::of(self()).clamped(offset);
  if (offset.x > inside.x || offset.y > inside.y) scroll.setContentOffset(inside);
}

UICollectionView::Attributes UICollectionView::attributesForItem(bridge::NSIndexPath path) {
  prepare();
  const auto at = itemPathOf(path);
  return at && counts().has(*at) ? _layout.item(path) : Attributes();
}

UICollectionView::Attributes UICollectionView::attributesForSupplementary(
    bridge::NSString kind, bridge::NSIndexPath path) {
  prepare();
  return _layout.supplementary(kind, path);
}

std::optional<ItemPath> UICollectionView::itemAt(CGPoint point) {
  if (!std::isfinite(point.x) || !std::isfinite(point.y)) return {};
  prepare();
  return _layout.itemAt(point, has());
}

bridge::NSIndexPath UICollectionView::indexPathForItemAt(CGPoint point) {
  const auto path = itemAt(point);
  return path ? indexPathOf(*path) : bridge::NSIndexPath();
}

void UICollectionView::scrollToItem(bridge::NSIndexPath path, NSUInteger position, bool animated) {
  const Attributes attributes = attributesForItem(path);
  if (!attributes) return;
  const auto [origin, size] = attributes.frame();
  const UIScrollView& scroll = UIScrollView::of(self());
  const EdgeInsets insets = scroll.adjustedContentInset();
  const CGRect seen = UIView::of(self()).bounds();
  CGPoint offset = seen.origin;
  if (const auto where = shownAt(position, left, centeredHorizontally, right))
    offset.x = offsetShowing(origin.x, size.width,
                             {offset.x, seen.size.width, insets.left, insets.right}, *where);
  if (const auto where = shownAt(position, top, centeredVertically, bottom))
    offset.y = offsetShowing(origin.y, size.height,
                             {offset.y, seen.size.height, insets.top, insets.bottom}, *where);
  bridge::send<void, "setContentOffset:animated:">(self(), scroll.clamped(offset), animated);
}

// Views come and go.

void UICollectionView::layoutSubviews() {
  super<void, "layoutSubviews">();
  const bridge::AutoreleasePool pool;
  _layout.followBounds(UIView::of(self()).bounds());
  prepare();
  const CGRect bounds = UIView::of(self()).bounds();
  if (_backgroundView) _backgroundView->setFrame(bounds);
  const Inquiry::Pass pass = _layout.pass();
  _cells.shown().follow(
      _layout.elementsIn(bounds, has()), pass,
      [this](const auto& element, const View& view) { recycle(element, view); },
      [](const View& view, Attributes attributes) { placeElement(view, attributes); },
      [this](const auto& element, Attributes attributes) { show(element, attributes); });
  _cells.settle(self());
}

void UICollectionView::show(const CollectionElement& element, Attributes attributes) {
  const bridge::AutoreleasePool pool;
  const Inquiry::Pass pass = _layout.pass();
  const View view = _dataSource.view(element);
  if (!view || !pass.holds()) return;
  _cells.show(element, view);
  animator().withoutAnimation([&] {
    placeElement(view, attributes);
    if (element.isItem()) {
      const handles::UICollectionViewCell cell(view.get().get());
      cell.setSelected(_selection.contains(element.path));
      cell.setHighlighted(_press.isOn(element.path));
    }
    if (UIView::of(view.get()).superview() != self())
      insertElement(UIView::of(self()), view, UICollectionReusableView::of(view.get()).zIndex(),
                    _backgroundView);
  });
  if (element.isItem()) _delegate.willDisplay(view, element.path);
}

void UICollectionView::recycle(const CollectionElement& element, bridge::UIView view) {
  const bridge::AutoreleasePool pool;
  _cells.putAway(view);
  if (element.isItem()) _delegate.didEndDisplaying(view, element.path);
}

void UICollectionView::registerCellClass(Class aClass, bridge::NSString identifier) {
  _cells.registerCellClass(identifier, aClass);
}

void UICollectionView::registerSupplementaryClass(Class aClass, bridge::NSString kind,
                                                  bridge::NSString identifier) {
  _cells.registerClass(kind, identifier, aClass);
}

bridge::UIView UICollectionView::dequeueCell(bridge::NSString identifier,
                                             bridge::NSIndexPath path) {
  return _cells.dequeueCell(identifier, attributesForItem(path).frame());
}

bridge::UIView UICollectionView::dequeueSupplementary(bridge::NSString kind,
                                                      bridge::NSString identifier,
                                                      bridge::NSIndexPath path) {
  return _cells.dequeue(kind, identifier, attributesForSupplementary(kind, path).frame());
}

handles::UICollectionViewCell UICollectionView::cellForItem(bridge::NSIndexPath path) const {
  const auto at = itemPathOf(path);
  return at ? _cells.cellAt(*at) : handles::UICollectionViewCell();
}

bridge::NSIndexPath UICollectionView::indexPathForCell(bridge::UIView cell) const {
  const auto path = _cells.pathOf(cell);
  return path ? indexPathOf(*path) : bridge::NSIndexPath();
}

bridge::NSArray UICollectionView::visibleSupplementaryViews(bridge::NSString kind) const {
  return kind.length() > 0 ? _cells.ofKind(kind.utf8()) : bridge::NSArray::of();
}

bridge::UIView UICollectionView::supplementaryView(bridge::NSString kind,
                                                   bridge::NSIndexPath path) const {
  const auto at = itemPathOf(path);
  return at && kind.length() > 0 ? _cells.viewOf({kind.utf8(), *at}) : bridge::UIView();
}

// Changes.

void UICollectionView::reloadData() {
  _selection.forgetAll();
  contentsChange();
}

void UICollectionView::insertItems(bridge::NSArray paths) {
  _selection.moveForInserted(pathsOf(paths));
  contentsChange();
}

void UICollectionView::deleteItems(bridge::NSArray paths) {
  _selection.moveForDeleted(pathsOf(paths));
  contentsChange();
}

void UICollectionView::reloadItems(bridge::NSArray) {
  contentsChange();
}

void UICollectionView::sectionsChange(bridge::Object) {
  reloadData();
}

// Counts are not asked for in the midst of updates: the next layout does it.
void UICollectionView::performBatchUpdates(const bridge::BlockHeader* updates,
                                           const bridge::BlockHeader* completion) {
  const View kept = View::retain(self());
  const auto done = bridge::Block<void(bool)>::retain(completion);
  bridge::Block<void()>::retain(updates)();
  contentsChange();
  done(true);
}

void UICollectionView::contentsChange() {
  release();
  for (const auto& [element, view] : _cells.shown().takeAll()) recycle(element, view);
  _counting.outdate();
  layoutBecameInvalid();
}

void UICollectionView::layoutBecameInvalid() {
  _layout.outdate();
  UIView::of(self()).setNeedsLayout();
}

// Touch: a finger presses an item, and selects it when it leaves it there.

void UICollectionView::touchesBegan(bridge::NSSet touches, bridge::UIEvent) {
  release();
  const bridge::UITouch touch = touchOf(touches);
  if (!touch || !_selection.isAllowed()) return;
  const auto path = itemAt(touch.locationIn(self()));
  if (!path || !_delegate.shouldHighlight(*path)) return;
  _press.begin(*path);
  if (const auto cell = _cells.cellAt(*path)) cell.setHighlighted(true);
  _delegate.didHighlight(*path);
}

// Ends a press without any effect.
void UICollectionView::release() {
  const auto pressed = _press.end();
  if (!pressed) return;
  if (const auto cell = _cells.cellAt(*pressed)) cell.setHighlighted(false);
  _delegate.didUnhighlight(*pressed);
}

void UICollectionView::touchesMoved(bridge::NSSet touches, bridge::UIEvent) {
  if (_press.hasLeft([&] { return itemAt(touchOf(touches).locationIn(self())); })) release();
}

void UICollectionView::touchesEnded(bridge::NSSet touches, bridge::UIEvent) {
  const View kept = View::retain(self());
  const auto tapped = _press.tappedBy([&] { return itemAt(touchOf(touches).locationIn(self())); });
  release();
  if (tapped) _selection.tap(*tapped, _delegate, has());
}

void UICollectionView::touchesCancelled(bridge::NSSet, bridge::UIEvent) {
  release();
}

bridge::NSArray UICollectionView::indexPathsForSelectedItems() const {
  const auto all = bridge::makeNew<bridge::NSMutableArray>();
  for (const ItemPath path : selectedItems()) all->add(indexPathOf(path));
  return bridge::Owned<bridge::NSArray>::retain(all.get()).autorelease();
}

// By code the delegate is not told. No path clears the selection.
void UICollectionView::selectItem(bridge::NSIndexPath path, bool animated, NSUInteger position) {
  const auto at = itemPathOf(path);
  if (at && !(counts().has(*at) && allowsSelection())) return;
  if (!at || !allowsMultipleSelection()) _selection.deselectAll();
  if (!at) return;
  _selection.set(*at, true);
  if (position != none) scrollToItem(path, position, animated);
}

void UICollectionView::deselectItem(bridge::NSIndexPath path, bool) {
  if (const auto at = itemPathOf(path)) _selection.set(*at, false);
}

void UICollectionView::showSelected(ItemPath path, bool isSelected) const {
  if (const auto cell = _cells.cellAt(path)) cell.setSelected(isSelected);
}

}  // namespace desktop::uikit
