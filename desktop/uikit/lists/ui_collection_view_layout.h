// SPDX-License-Identifier: MIT
//
// UICollectionViewLayout: says where the elements of a collection lie. Classes below it answer
// prepareLayout, collectionViewContentSize, layoutAttributesForElementsInRect: and the like; this
// one shows nothing. Only what is in sight is asked for, so a layout that computes where an item
// lies needs no memory for items.
#pragma once

#include <functional>

#include "bridge/bound.h"
#include "bridge/uikit/ui_lists.h"

namespace desktop::uikit {

class UICollectionViewLayout : public bridge::Bound<UICollectionViewLayout, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // Whose layout it is, or nil; borrowed.
  bridge::UICollectionView collectionView() const { return _collectionView; }
  // Takes it away from the view that it belonged to. This one, which may be nil, hears when what
  // the layout said no longer holds.
  void belongTo(bridge::UICollectionView view, std::function<void()> becameInvalid);

 private:
  void prepareLayout() {}
  CGSize contentSize() const { return {}; }
  bridge::NSArray attributesInRect(CGRect) const { return {}; }
  bridge::Object attributesForItem(bridge::NSIndexPath) const { return {}; }
  bridge::Object attributesForSupplementary(bridge::NSString, bridge::NSIndexPath) const {
    return {};
  }
  bool shouldInvalidateForBoundsChange(CGRect) const { return false; }
  // Everything is asked for anew before the next frame.
  void invalidateLayout();

  bridge::UICollectionView _collectionView;  // borrowed
  std::function<void()> _becameInvalid;
};

}  // namespace desktop::uikit
