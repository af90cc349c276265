// SPDX-License-Identifier: MIT
//
// UICollectionViewLayoutAttributes: where and how one element of a collection is shown.
#pragma once

#include <string>

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/lists/index_path.h"

namespace desktop::uikit {

class UICollectionViewLayoutAttributesState
    : public Bound<UICollectionViewLayoutAttributesState, NSObject,
                   UICollectionViewLayoutAttributes> {
 public:
  enum Category : NSUInteger { cell = 0, supplementaryView = 1, decorationView = 2 };

  using Bound::Bound;
  static Class classObject();

  // New attributes of an item, and of a supplementary view of a kind; autoreleased.
  static UICollectionViewLayoutAttributes forItem(ItemPath path, CGRect frame);
  static UICollectionViewLayoutAttributes forSupplementary(NSString kind, ItemPath path,
                                                           CGRect frame);

  ItemPath path() const { return _path; }
  // Empty for items.
  const std::string& kind() const { return _kind; }
  // In the collection view's coordinates. One that is not finite is empty.
  CGRect frame() const;
  void setFrame(CGRect frame);
  CGFloat alpha() const { return _alpha; }
  CGAffineTransform transform() const { return _transform; }
  NSInteger zIndex() const { return _zIndex; }
  bool isHidden() const { return _isHidden; }

 private:
  static Object attributesForCell(NSIndexPath path);
  static Object attributesForSupplementary(NSString kind, NSIndexPath path);
  NSIndexPath indexPath() const { return indexPathOf(_path); }
  void setIndexPath(NSIndexPath path);
  CGPoint center() const { return _center; }
  void setCenter(CGPoint center);
  CGSize size() const { return _size; }
  void setSize(CGSize size);
  void setAlpha(CGFloat alpha) { _alpha = alpha; }
  void setTransform(CGAffineTransform transform) { _transform = transform; }
  void setZIndex(NSInteger index) { _zIndex = index; }
  void setHidden(bool hidden) { _isHidden = hidden; }
  NSUInteger category() const { return _kind.empty() ? cell : supplementaryView; }
  NSString elementKind() const;
  Object copyWithZone(void* zone) const;
  bool isEqual(Object other) const;
  NSUInteger hash() const;

  ItemPath _path;
  std::string _kind;
  CGPoint _center;
  CGSize _size;
  CGFloat _alpha = 1;
  CGAffineTransform _transform;
  NSInteger _zIndex = 0;
  bool _isHidden = false;
};

}  // namespace desktop::uikit
