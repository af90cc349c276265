// SPDX-License-Identifier: MIT
#include "desktop/uikit/lists/ui_collection_view_layout_attributes.h"

#include <cmath>
#include <functional>

#include "bridge/class_builder.h"
#include "desktop/platform.h"

namespace desktop::uikit {

using Attributes = UICollectionViewLayoutAttributes;

Class UICollectionViewLayoutAttributesState::classObject() {
  using Self = UICollectionViewLayoutAttributesState;
  static const Class made =
      ClassBuilder<Self>("UICollectionViewLayoutAttributes")
          .classMethod<"layoutAttributesForCellWithIndexPath:", &Self::attributesForCell>()
          .classMethod<"layoutAttributesForSupplementaryViewOfKind:withIndexPath:",
                       &Self::attributesForSupplementary>()
          .method<"indexPath", &Self::indexPath>()
          .method<"setIndexPath:", &Self::setIndexPath>()
          .method<"representedElementKind", &Self::elementKind>()
          .method<"representedElementCategory", &Self::category>()
          .method<"frame", &Self::frame>()
          .method<"setFrame:", &Self::setFrame>()
          .method<"center", &Self::center>()
          .method<"setCenter:", &Self::setCenter>()
          .method<"size", &Self::size>()
          .method<"setSize:", &Self::setSize>()
          .method<"alpha", &Self::alpha>()
          .method<"setAlpha:", &Self::setAlpha>()
          .method<"transform", &Self::transform>()
          .method<"setTransform:", &Self::setTransform>()
          .method<"zIndex", &Self::zIndex>()
          .method<"setZIndex:", &Self::setZIndex>()
          .method<"isHidden", &Self::isHidden>()
          .method<"setHidden:", &Self::setHidden>()
          .method<"copyWithZone:", &Self::copyWithZone>()
          .method<"isEqual:", &Self::isEqual>()
          .method<"hash", &Self::hash>()
          .build();
  return made;
}

Attributes UICollectionViewLayoutAttributesState::forItem(ItemPath path, CGRect frame) {
  auto made = makeNew<Attributes>();
  of(made.get())._path = path;
  of(made.get()).setFrame(frame);
  return made.autorelease();
}

Attributes UICollectionViewLayoutAttributesState::forSupplementary(NSString kind, ItemPath path,
                                                                   CGRect frame) {
  const Attributes made = forItem(path, frame);
  of(made)._kind = kind.utf8();
  return made;
}

Object UICollectionViewLayoutAttributesState::attributesForCell(NSIndexPath path) {
  return forItem(itemPathOf(path).value_or(ItemPath{}), {});
}

Object UICollectionViewLayoutAttributesState::attributesForSupplementary(NSString kind,
                                                                         NSIndexPath path) {
  return forSupplementary(kind, itemPathOf(path).value_or(ItemPath{}), {});
}

void UICollectionViewLayoutAttributesState::setIndexPath(NSIndexPath path) {
  _path = itemPathOf(path).value_or(_path);
}

CGRect UICollectionViewLayoutAttributesState::frame() const {
  return {{_center.x - _size.width / 2, _center.y - _size.height / 2}, _size};
}

void UICollectionViewLayoutAttributesState::setFrame(CGRect frame) {
  if (!isFinite(frame)) frame = {};
  _center = middle(frame);
  _size = frame.size;
}

void UICollectionViewLayoutAttributesState::setCenter(CGPoint center) {
  if (std::isfinite(center.x) && std::isfinite(center.y)) _center = center;
}

void UICollectionViewLayoutAttributesState::setSize(CGSize size) {
  _size = isFinite(rectOfSize(size)) ? size : CGSize{};
}

NSString UICollectionViewLayoutAttributesState::elementKind() const {
  return _kind.empty() ? NSString() : NSString::make(_kind);
}

Object UICollectionViewLayoutAttributesState::copyWithZone(void*) const {
  const Class own = object_getClass(self().get());
  auto made = makeNew<UICollectionViewLayoutAttributes>(own);
  UICollectionViewLayoutAttributesState& copy = of(made.get());
  copy._path = _path;
  copy._kind = _kind;
  copy._center = _center;
  copy._size = _size;
  copy._alpha = _alpha;
  copy._transform = _transform;
  copy._zIndex = _zIndex;
  copy._isHidden = _isHidden;
  return made.detach();
}

bool UICollectionViewLayoutAttributesState::isEqual(Object other) const {
  if (!isKindOf(other, classObject())) return false;
  const UICollectionViewLayoutAttributesState& its = of(other);
  return _path == its._path && _kind == its._kind && _center == its._center && _size == its._size &&
         _alpha == its._alpha && _transform == its._transform && _zIndex == its._zIndex &&
         _isHidden == its._isHidden;
}

NSUInteger UICollectionViewLayoutAttributesState::hash() const {
  return std::hash<std::string>()(_kind) + static_cast<NSUInteger>(_path.section) * 1000003 +
         static_cast<NSUInteger>(_path.item);
}

}  // namespace desktop::uikit
