// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/collection/collection_layout.h"

#include <algorithm>

#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/lists/ui_collection_view_layout.h"
#include "desktop/uikit/lists/ui_collection_view_layout_attributes.h"

namespace desktop::uikit {
namespace {

// A layout can answer anything. What is more than this is left out.
constexpr std::size_t maximalElementsInSight = 10'000;

CGSize sane(CGSize size) {
  return isFinite(rectOfSize(size)) ? CGSize{std::max(size.width, 0.0), std::max(size.height, 0.0)}
                                    : CGSize{};
}

}  // namespace

void CollectionLayout::replace(UICollectionViewLayout layout, UICollectionView collection,
                               std::function<void()> becameInvalid) {
  letGo();
  _object = Owned<UICollectionViewLayout>::retain(layout);
  if (layout)
    UICollectionViewLayoutState::of(layout).belongTo(collection, std::move(becameInvalid));
}

void CollectionLayout::letGo() {
  if (_object) UICollectionViewLayoutState::of(_object.get()).belongTo({}, {});
}

std::optional<CGSize> CollectionLayout::prepare() {
  CGSize size;
  const bool isNew = _inquiry.renew([&] {
    const AutoreleasePool pool;
    _object->prepareLayout();
    size = sane(_object->contentSize());
  });
  return isNew ? std::optional(size) : std::nullopt;
}

void CollectionLayout::followBounds(CGRect bounds) {
  const CGRect before = std::exchange(_bounds, bounds);
  if (before == bounds) return;
  if (before.size != bounds.size || _object->shouldInvalidateFor(bounds))
    _object->invalidateLayout();
}

CollectionLayout::Attributes CollectionLayout::item(NSIndexPath path) const {
  return as<Attributes>(_object->layoutAttributesForItem(path));
}

CollectionLayout::Attributes CollectionLayout::supplementary(NSString kind,
                                                             NSIndexPath path) const {
  return as<Attributes>(_object->layoutAttributesForSupplementaryView(kind, path));
}

CollectionLayout::Elements CollectionLayout::elementsIn(CGRect rect, const Has& has) const {
  Elements elements;
  const auto all = as<NSArray>(_object->layoutAttributesInRect(rect));
  const std::size_t count = std::min<std::size_t>(all.count(), maximalElementsInSight);
  for (std::size_t index = 0; index < count; ++index) {
    const auto attributes = as<Attributes>(all.at(index));
    if (!attributes) continue;
    const auto& state = UICollectionViewLayoutAttributesState::of(attributes);
    const bool isThere = state.kind().empty() ? has(state.path()) : state.path().section >= 0;
    if (isThere && intersects(state.frame(), rect))
      elements[{state.kind(), state.path()}] = attributes;
  }
  return elements;
}

std::optional<ItemPath> CollectionLayout::itemAt(CGPoint point, const Has& has) const {
  for (const auto& [element, attributes] : elementsIn({point, {1, 1}}, has)) {
    const auto& state = UICollectionViewLayoutAttributesState::of(attributes);
    if (element.isItem() && !state.isHidden() && contains(state.frame(), point))
      return element.path;
  }
  return {};
}

}  // namespace desktop::uikit
