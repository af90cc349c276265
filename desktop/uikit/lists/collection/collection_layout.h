// SPDX-License-Identifier: MIT
//
// A collection's layout and what was learnt from it: where its elements lie. It is prepared before
// anything else is asked of it, and again after it became invalid.
#pragma once

#include <functional>
#include <map>
#include <optional>

#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/lists/collection/collection_element.h"
#include "desktop/uikit/lists/inquiry.h"

namespace desktop::uikit {

class CollectionLayout {
 public:
  using Attributes = UICollectionViewLayoutAttributes;
  // Attributes are borrowed from the current pool.
  using Elements = std::map<CollectionElement, Attributes>;
  using Has = std::function<bool(ItemPath)>;

  CollectionLayout() = default;
  ~CollectionLayout() { letGo(); }
  CollectionLayout(const CollectionLayout&) = delete;
  CollectionLayout& operator=(const CollectionLayout&) = delete;

  UICollectionViewLayout object() const { return _object; }
  // Another one takes over, whose layout belongs to the collection, which hears when it becomes
  // invalid; nil takes none.
  void replace(UICollectionViewLayout layout, UICollectionView collection,
               std::function<void()> becameInvalid);

  // What it said no longer holds.
  void outdate() { _inquiry.outdate(); }
  Inquiry::Pass pass() const { return Inquiry::Pass(_inquiry); }
  // The size of what it lays out, where it had to be prepared. Where it becomes invalid meanwhile,
  // that counts for the next time.
  std::optional<CGSize> prepare();
  // The collection's bounds became these: the layout may want to be invalid for them.
  void followBounds(CGRect bounds);

  // REQUIRES for all below: it is prepared. Nil where it has none.
  Attributes item(NSIndexPath path) const;
  Attributes supplementary(NSString kind, NSIndexPath path) const;
  // What it shows in a rectangle, less items that there are not.
  Elements elementsIn(CGRect rect, const Has& has) const;
  std::optional<ItemPath> itemAt(CGPoint point, const Has& has) const;

 private:
  void letGo();

  Owned<UICollectionViewLayout> _object;
  Inquiry _inquiry;
  CGRect _bounds;
};

}  // namespace desktop::uikit
