// SPDX-License-Identifier: MIT
//
// What a collection asks and tells its delegate, which need not answer.
#pragma once

#include "bridge/uikit/ui_lists.h"
#include "desktop/platform.h"
#include "desktop/uikit/lists/index_path.h"

namespace desktop::uikit {

class CollectionDelegate {
 public:
  // Borrowed. The delegate is that of the scroll view that a collection is.
  explicit CollectionDelegate(UIView collection) : _collection(collection) {}

  void willDisplay(UIView cell, ItemPath path) const;
  void didEndDisplaying(UIView cell, ItemPath path) const;

  // Allowed where it does not say.
  bool shouldHighlight(ItemPath path) const;
  bool shouldSelect(ItemPath path) const;
  bool shouldDeselect(ItemPath path) const;
  void didHighlight(ItemPath path) const;
  void didUnhighlight(ItemPath path) const;
  void didSelect(ItemPath path) const;
  void didDeselect(ItemPath path) const;

 private:
  NSObject delegate() const;

  UIView _collection;
};

}  // namespace desktop::uikit
