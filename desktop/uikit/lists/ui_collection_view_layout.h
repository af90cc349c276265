// SPDX-License-Identifier: MIT
//
// UICollectionViewLayout: says where the elements of a collection lie. Classes below it answer
// prepareLayout, collectionViewContentSize, layoutAttributesForElementsInRect: and the like; this
// one shows nothing. Only what is in sight is asked for, so a layout that computes where an item
// lies needs no memory for items.
#pragma once

#include <functional>

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_lists.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class UICollectionViewLayoutState
    : public Bound<UICollectionViewLayoutState, NSObject, UICollectionViewLayout> {
 public:
  using Bound::Bound;
  static Class classObject();

  // Whose layout it is, or nil; borrowed.
  UICollectionView collectionView() const { return _collectionView; }
  // Takes it away from the view that it belonged to. This one, which may be nil, hears when what
  // the layout said no longer holds.
  void belongTo(UICollectionView view, std::function<void()> becameInvalid);

 private:
  void prepareLayout() {}
  CGSize contentSize() const { return {}; }
  NSArray attributesInRect(CGRect) const { return {}; }
  Object attributesForItem(NSIndexPath) const { return {}; }
  Object attributesForSupplementary(NSString, NSIndexPath) const { return {}; }
  bool shouldInvalidateForBoundsChange(CGRect) const { return false; }
  // Everything is asked for anew before the next frame.
  void invalidateLayout();

  UICollectionView _collectionView;  // borrowed
  std::function<void()> _becameInvalid;
};

}  // namespace desktop::uikit
