// SPDX-License-Identifier: MIT
//
// The class, what of a collection is set, and what it counts. Views come and go in
// ui_collection_view_elements.cpp, changes are in ui_collection_view_updates.cpp, touch and
// selection in ui_collection_view_selection.cpp.
#include "desktop/uikit/lists/ui_collection_view.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/uikit/base/optional_message.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/lists/ui_collection_view_layout.h"
#include "desktop/uikit/lists/ui_collection_view_layout_attributes.h"

namespace desktop::uikit {
namespace {

using Attributes = handles::UICollectionViewLayoutAttributes;

// A data source can answer any number. What is more than this is left out.
constexpr NSInteger maximalSections = 100'000;
constexpr NSInteger maximalItems = 100'000'000;
constexpr std::size_t maximalElementsInSight = 10'000;

CGSize sane(CGSize size) {
  return isFinite(rectOfSize(size)) ? CGSize{std::max(size.width, 0.0), std::max(size.height, 0.0)}
                                    : CGSize{};
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

UICollectionView::~UICollectionView() {
  if (_layout) UICollectionViewLayout::of(_layout.get()).setCollectionView({});
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
  if (source == _dataSource) return;
  _dataSource = source;
  reloadData();
}

// A layout belongs to one collection view at a time.
void UICollectionView::setCollectionViewLayout(bridge::UICollectionViewLayout layout) {
  layout = bridge::as<bridge::UICollectionViewLayout>(layout);
  if (layout == _layout.get()) return;
  if (_layout) UICollectionViewLayout::of(_layout.get()).setCollectionView({});
  _layout = bridge::Owned<bridge::UICollectionViewLayout>::retain(layout);
  if (layout) UICollectionViewLayout::of(layout).setCollectionView(me());
  layoutBecameInvalid();
}

void UICollectionView::setCollectionViewLayoutAnimated(bridge::UICollectionViewLayout layout,
                                                       bool) {
  bridge::send<void, "setCollectionViewLayout:">(self(), layout);
}

void UICollectionView::setBackgroundView(bridge::UIView view) {
  if (view == _backgroundView.get()) return;
  _backgroundView->removeFromSuperview();
  _backgroundView = bridge::Owned<bridge::UIView>::retain(view);
  UIView::of(self()).insertSubview(view, 0);
  UIView::of(self()).setNeedsLayout();
}

void UICollectionView::layoutBecameInvalid() {
  _isUnprepared = true;
  ++_generation;
  UIView::of(self()).setNeedsLayout();
}

// The data source may ask about the collection meanwhile: it then hears of the old counts.
void UICollectionView::count() {
  if (!_isUncounted || _isCounting) return;
  _isCounting = true;
  _isUncounted = false;
  const auto sections = asked<NSInteger, "numberOfSectionsInCollectionView:">(_dataSource, self());
  const NSInteger known = std::clamp(sections.value_or(_dataSource ? 1 : 0), 0L, maximalSections);
  std::vector<NSInteger> counts;
  for (NSInteger section = 0; section < known; ++section) {
    const auto items =
        asked<NSInteger, "collectionView:numberOfItemsInSection:">(_dataSource, self(), section);
    counts.push_back(std::clamp(items.value_or(0), 0L, maximalItems));
  }
  _counts = std::move(counts);
  _isCounting = false;
  std::erase_if(_selected, [this](ItemPath path) { return !has(path); });
}

NSInteger UICollectionView::numberOfSections() {
  count();
  return static_cast<NSInteger>(_counts.size());
}

NSInteger UICollectionView::numberOfItems(NSInteger section) {
  const bool isThere = section >= 0 && section < numberOfSections();
  return isThere ? _counts[static_cast<std::size_t>(section)] : 0;
}

bool UICollectionView::has(ItemPath path) {
  return path.item >= 0 && path.item < numberOfItems(path.section);
}

// A layout may invalidate itself while it prepares; that counts for the next frame.
void UICollectionView::prepare() {
  count();
  if (!std::exchange(_isUnprepared, false)) return;
  const bridge::AutoreleasePool pool;
  bridge::send<void, "prepareLayout">(_layout);
  const CGSize size = sane(bridge::send<CGSize, "collectionViewContentSize">(_layout));
  const handles::UIScrollView scroll(self());
  if (size == scroll.contentSize()) return;
  scroll.setContentSize(size);
  const CGPoint offset = scroll.contentOffset();
  const CGPoint inside = UIScrollView::of(self()).clamped(offset);
  if (offset.x > inside.x || offset.y > inside.y) scroll.setContentOffset(inside);
}

void UICollectionView::askAboutNewBounds() {
  const CGRect bounds = UIView::of(self()).bounds();
  const CGRect before = std::exchange(_preparedBounds, bounds);
  if (before == bounds) return;
  if (before.size != bounds.size ||
      bridge::send<bool, "shouldInvalidateLayoutForBoundsChange:">(_layout, bounds))
    bridge::send<void, "invalidateLayout">(_layout);
}

Attributes UICollectionView::attributesForItem(bridge::NSIndexPath path) {
  prepare();
  const auto at = itemPathOf(path);
  if (!at || !has(*at)) return {};
  return bridge::as<Attributes>(
      bridge::send<bridge::Object, "layoutAttributesForItemAtIndexPath:">(_layout, path));
}

Attributes UICollectionView::attributesForSupplementary(bridge::NSString kind,
                                                        bridge::NSIndexPath path) {
  prepare();
  return bridge::as<Attributes>(
      bridge::send<bridge::Object, "layoutAttributesForSupplementaryViewOfKind:atIndexPath:">(
          _layout, kind, path));
}

// What the layout shows in a rectangle, less what there is not. Borrowed from the current pool.
std::map<UICollectionView::Element, Attributes> UICollectionView::attributesIn(CGRect rect) {
  std::map<Element, Attributes> elements;
  const auto all = bridge::as<bridge::NSArray>(
      bridge::send<bridge::Object, "layoutAttributesForElementsInRect:">(_layout, rect));
  const std::size_t count = std::min<std::size_t>(all.count(), maximalElementsInSight);
  for (std::size_t index = 0; index < count; ++index) {
    const auto attributes = bridge::as<Attributes>(all.at(index));
    if (!attributes) continue;
    const auto& state = UICollectionViewLayoutAttributes::of(attributes);
    const bool isThere = state.kind().empty() ? has(state.path()) : state.path().section >= 0;
    if (isThere && intersects(state.frame(), rect))
      elements[{state.kind(), state.path()}] = attributes;
  }
  return elements;
}

bridge::NSIndexPath UICollectionView::indexPathForItemAt(CGPoint point) {
  const auto path = itemAt(point);
  return path ? indexPathOf(*path) : bridge::NSIndexPath();
}

std::optional<ItemPath> UICollectionView::itemAt(CGPoint point) {
  if (!std::isfinite(point.x) || !std::isfinite(point.y)) return {};
  prepare();
  for (const auto& [element, attributes] : attributesIn({point, {1, 1}})) {
    const auto& state = UICollectionViewLayoutAttributes::of(attributes);
    if (element.kind.empty() && !state.isHidden() && bridge::contains(state.frame(), point))
      return element.path;
  }
  return {};
}

void UICollectionView::scrollToItem(bridge::NSIndexPath path, NSUInteger position, bool animated) {
  const Attributes attributes = attributesForItem(path);
  if (!attributes) return;
  const CGRect frame = attributes.frame();
  const UIScrollView& scroll = UIScrollView::of(self());
  const EdgeInsets insets = scroll.adjustedContentInset();
  const CGSize size = UIView::of(self()).bounds().size;
  const CGPoint first = {frame.origin.x - insets.left, frame.origin.y - insets.top};
  const CGPoint last = {uikit::right(frame) + insets.right - size.width,
                        uikit::bottom(frame) + insets.bottom - size.height};
  CGPoint offset = scroll.contentOffset();
  if (position & top) offset.y = first.y;
  if (position & centeredVertically) offset.y = (first.y + last.y) / 2;
  if (position & bottom) offset.y = last.y;
  if (position & left) offset.x = first.x;
  if (position & centeredHorizontally) offset.x = (first.x + last.x) / 2;
  if (position & right) offset.x = last.x;
  if (position == none)
    offset = {std::max(std::min(offset.x, first.x), last.x),
              std::max(std::min(offset.y, first.y), last.y)};
  bridge::send<void, "setContentOffset:animated:">(self(), scroll.clamped(offset), animated);
}

}  // namespace desktop::uikit
