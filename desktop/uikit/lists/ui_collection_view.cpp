// SPDX-License-Identifier: MIT
//
// A collection holds its parts together: it counts what its data source has, lets its layout say
// what lies in sight, shows exactly that with views out of its pool, and knows what is pressed and
// selected. Whatever changes its contents sends all views back to the pool; the next layout counts,
// prepares and takes them out again, and only those that show nothing then leave the tree.
#include "desktop/uikit/lists/ui_collection_view.h"

#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/lists/collection/collection_placing.h"
#include "desktop/uikit/lists/ui_collection_reusable_view.h"
#include "desktop/uikit/scrolling/scroll_target.h"
#include "desktop/uikit/views/animator.h"

namespace desktop::uikit {
namespace {

using View = Owned<UIView>;

std::set<ItemPath> pathsOf(NSArray paths) {
  std::set<ItemPath> all;
  for (NSUInteger index = 0; index < paths.count(); ++index)
    if (const auto path = itemPathOf(paths.at(index))) all.insert(*path);
  return all;
}

UITouch touchOf(NSSet touches) {
  return as<UITouch>(touches.anyObject());
}

// Where one direction is to be shown that these bits of a scroll position stand for; none leaves it
// where it is.
std::optional<ShownAt> shownAt(NSUInteger position, NSUInteger start, NSUInteger middle,
                               NSUInteger end) {
  if (position == UICollectionViewState::none) return ShownAt::nearest;
  if (position & end) return ShownAt::end;
  if (position & middle) return ShownAt::middle;
  if (position & start) return ShownAt::start;
  return {};
}

}  // namespace

Class UICollectionViewState::classObject() {
  using Self = UICollectionViewState;
  static const Class made =
      ClassBuilder<Self>("UICollectionView")
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

UIView UICollectionViewState::initWithFrame(CGRect frame) {
  return initWith<"initWithFrame:collectionViewLayout:">(self(), frame, UICollectionViewLayout());
}

UIView UICollectionViewState::initWithFrameAndLayout(CGRect frame, UICollectionViewLayout layout) {
  if (!super<UIView, "initWithFrame:">(frame)) return {};
  self().setBackgroundColor(UIColorState::make(colors::black));
  setCollectionViewLayout(layout);
  return self();
}

void UICollectionViewState::setDataSource(NSObject source) {
  if (source == dataSource()) return;
  _dataSource.setObject(source);
  reloadData();
}

void UICollectionViewState::setCollectionViewLayout(UICollectionViewLayout layout) {
  layout = as<UICollectionViewLayout>(layout);
  if (layout == _layout.object()) return;
  _layout.replace(layout, self(), [this] { layoutBecameInvalid(); });
  layoutBecameInvalid();
}

// The items do not travel: they are at their new places at once.
void UICollectionViewState::setCollectionViewLayoutAnimated(UICollectionViewLayout layout, bool) {
  self().setCollectionViewLayout(layout);
}

void UICollectionViewState::setBackgroundView(UIView view) {
  if (view == _backgroundView.get()) return;
  _backgroundView->removeFromSuperview();
  _backgroundView = View::retain(view);
  insertSubview(view, 0);
  setNeedsLayout();
}

// What there is, and where it lies.

const ItemCounts& UICollectionViewState::counts() {
  if (_counting.renew([this] { _counts = _dataSource.counts(); }))
    _selection.keepOnly([this](ItemPath path) { return _counts.has(path); });
  return _counts;
}

CollectionLayout::Has UICollectionViewState::has() {
  return [this](ItemPath path) { return counts().has(path); };
}

void UICollectionViewState::prepare() {
  counts();
  const auto size = _layout.prepare();
  const UIScrollView scroll(self());
  if (!size || *size == scroll.contentSize()) return;
  scroll.setContentSize(*size);
  const CGPoint offset = scroll.contentOffset();
  const CGPoint inside = clamped(offset);
  if (offset.x > inside.x || offset.y > inside.y) scroll.setContentOffset(inside);
}

UICollectionViewState::Attributes UICollectionViewState::attributesForItem(NSIndexPath path) {
  prepare();
  const auto at = itemPathOf(path);
  return at && counts().has(*at) ? _layout.item(path) : Attributes();
}

UICollectionViewState::Attributes UICollectionViewState::attributesForSupplementary(
    NSString kind, NSIndexPath path) {
  prepare();
  return _layout.supplementary(kind, path);
}

std::optional<ItemPath> UICollectionViewState::itemAt(CGPoint point) {
  if (!std::isfinite(point.x) || !std::isfinite(point.y)) return {};
  prepare();
  return _layout.itemAt(point, has());
}

NSIndexPath UICollectionViewState::indexPathForItemAt(CGPoint point) {
  const auto path = itemAt(point);
  return path ? indexPathOf(*path) : NSIndexPath();
}

void UICollectionViewState::scrollToItem(NSIndexPath path, NSUInteger position, bool animated) {
  const Attributes attributes = attributesForItem(path);
  if (!attributes) return;
  const auto [origin, size] = attributes.frame();
  const EdgeInsets insets = adjustedContentInset();
  const CGRect seen = bounds();
  CGPoint offset = seen.origin;
  if (const auto where = shownAt(position, left, centeredHorizontally, right))
    offset.x = offsetShowing(origin.x, size.width,
                             {offset.x, seen.size.width, insets.left, insets.right}, *where);
  if (const auto where = shownAt(position, top, centeredVertically, bottom))
    offset.y = offsetShowing(origin.y, size.height,
                             {offset.y, seen.size.height, insets.top, insets.bottom}, *where);
  self().setContentOffset(clamped(offset), animated);
}

// Views come and go.

void UICollectionViewState::layoutSubviews() {
  super<void, "layoutSubviews">();
  const AutoreleasePool pool;
  _layout.followBounds(bounds());
  prepare();
  const CGRect bounds = UIViewState::bounds();
  if (_backgroundView) _backgroundView->setFrame(bounds);
  const Inquiry::Pass pass = _layout.pass();
  _cells.shown().follow(
      _layout.elementsIn(bounds, has()), pass,
      [this](const auto& element, const View& view) { recycle(element, view); },
      [](const View& view, Attributes attributes) { placeElement(view, attributes); },
      [this](const auto& element, Attributes attributes) { show(element, attributes); });
  _cells.settle(self());
}

void UICollectionViewState::show(const CollectionElement& element, Attributes attributes) {
  const AutoreleasePool pool;
  const Inquiry::Pass pass = _layout.pass();
  const View view = _dataSource.view(element);
  if (!view || !pass.holds()) return;
  _cells.show(element, view);
  animator().withoutAnimation([&] {
    placeElement(view, attributes);
    if (element.isItem()) {
      const UICollectionViewCell cell(view.get().get());
      cell.setSelected(_selection.contains(element.path));
      cell.setHighlighted(_press.isOn(element.path));
    }
    if (UIViewState::of(view.get()).superview() != self())
      insertElement(*this, view, UICollectionReusableViewState::of(view.get()).zIndex(),
                    _backgroundView);
  });
  if (element.isItem()) _delegate.willDisplay(view, element.path);
}

void UICollectionViewState::recycle(const CollectionElement& element, UIView view) {
  const AutoreleasePool pool;
  _cells.putAway(view);
  if (element.isItem()) _delegate.didEndDisplaying(view, element.path);
}

void UICollectionViewState::registerCellClass(Class aClass, NSString identifier) {
  _cells.registerCellClass(identifier, aClass);
}

void UICollectionViewState::registerSupplementaryClass(Class aClass, NSString kind,
                                                       NSString identifier) {
  _cells.registerClass(kind, identifier, aClass);
}

UIView UICollectionViewState::dequeueCell(NSString identifier, NSIndexPath path) {
  return _cells.dequeueCell(identifier, attributesForItem(path).frame());
}

UIView UICollectionViewState::dequeueSupplementary(NSString kind, NSString identifier,
                                                   NSIndexPath path) {
  return _cells.dequeue(kind, identifier, attributesForSupplementary(kind, path).frame());
}

UICollectionViewCell UICollectionViewState::cellForItem(NSIndexPath path) const {
  const auto at = itemPathOf(path);
  return at ? _cells.cellAt(*at) : UICollectionViewCell();
}

NSIndexPath UICollectionViewState::indexPathForCell(UIView cell) const {
  const auto path = _cells.pathOf(cell);
  return path ? indexPathOf(*path) : NSIndexPath();
}

NSArray UICollectionViewState::visibleSupplementaryViews(NSString kind) const {
  return kind.length() > 0 ? _cells.ofKind(kind.utf8()) : NSArray::of();
}

UIView UICollectionViewState::supplementaryView(NSString kind, NSIndexPath path) const {
  const auto at = itemPathOf(path);
  return at && kind.length() > 0 ? _cells.viewOf({kind.utf8(), *at}) : UIView();
}

// Changes.

void UICollectionViewState::reloadData() {
  _selection.forgetAll();
  contentsChange();
}

void UICollectionViewState::insertItems(NSArray paths) {
  _selection.moveForInserted(pathsOf(paths));
  contentsChange();
}

void UICollectionViewState::deleteItems(NSArray paths) {
  _selection.moveForDeleted(pathsOf(paths));
  contentsChange();
}

// One item or all: everything in sight is asked for again.
void UICollectionViewState::reloadItems(NSArray) {
  contentsChange();
}

// Sections that come and go are a reload: the selection goes, and nothing travels.
void UICollectionViewState::sectionsChange(Object) {
  reloadData();
}

// Counts are not asked for in the midst of updates: the next layout does it.
void UICollectionViewState::performBatchUpdates(const BlockHeader* updates,
                                                const BlockHeader* completion) {
  const View kept = View::retain(self());
  const auto done = Block<void(bool)>::retain(completion);
  Block<void()>::retain(updates)();
  contentsChange();
  done(true);
}

void UICollectionViewState::contentsChange() {
  release();
  for (const auto& [element, view] : _cells.shown().takeAll()) recycle(element, view);
  _counting.outdate();
  layoutBecameInvalid();
}

void UICollectionViewState::layoutBecameInvalid() {
  _layout.outdate();
  setNeedsLayout();
}

// Touch: a finger presses an item, and selects it when it leaves it there.

void UICollectionViewState::touchesBegan(NSSet touches, UIEvent) {
  release();
  const UITouch touch = touchOf(touches);
  if (!touch || !_selection.isAllowed()) return;
  const auto path = itemAt(touch.locationIn(self()));
  if (!path || !_delegate.shouldHighlight(*path)) return;
  _press.begin(*path);
  if (const auto cell = _cells.cellAt(*path)) cell.setHighlighted(true);
  _delegate.didHighlight(*path);
}

// Ends a press without any effect.
void UICollectionViewState::release() {
  const auto pressed = _press.end();
  if (!pressed) return;
  if (const auto cell = _cells.cellAt(*pressed)) cell.setHighlighted(false);
  _delegate.didUnhighlight(*pressed);
}

void UICollectionViewState::touchesMoved(NSSet touches, UIEvent) {
  if (_press.hasLeft([&] { return itemAt(touchOf(touches).locationIn(self())); })) release();
}

void UICollectionViewState::touchesEnded(NSSet touches, UIEvent) {
  const View kept = View::retain(self());
  const auto tapped = _press.tappedBy([&] { return itemAt(touchOf(touches).locationIn(self())); });
  release();
  if (tapped) _selection.tap(*tapped, _delegate, has());
}

void UICollectionViewState::touchesCancelled(NSSet, UIEvent) {
  release();
}

NSArray UICollectionViewState::indexPathsForSelectedItems() const {
  const auto all = makeNew<NSMutableArray>();
  for (const ItemPath path : selectedItems()) all->add(indexPathOf(path));
  return Owned<NSArray>::retain(all.get()).autorelease();
}

// By code the delegate is not told. No path clears the selection.
void UICollectionViewState::selectItem(NSIndexPath path, bool animated, NSUInteger position) {
  const auto at = itemPathOf(path);
  if (at && !(counts().has(*at) && allowsSelection())) return;
  if (!at || !allowsMultipleSelection()) _selection.deselectAll();
  if (!at) return;
  _selection.set(*at, true);
  if (position != none) scrollToItem(path, position, animated);
}

void UICollectionViewState::deselectItem(NSIndexPath path, bool) {
  if (const auto at = itemPathOf(path)) _selection.set(*at, false);
}

void UICollectionViewState::showSelected(ItemPath path, bool isSelected) const {
  if (const auto cell = _cells.cellAt(path)) cell.setSelected(isSelected);
}

}  // namespace desktop::uikit
