// SPDX-License-Identifier: MIT
//
// The subviews of a view, from back to front. They are kept alive.
#pragma once

#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/object_list.h"

namespace desktop::uikit {

class SubviewOrder {
 public:
  const ObjectList<UIView>& all() const { return _views; }

  // Where a view goes that is to stand directly in front of another one, or behind it: in front of
  // all where there is no such view.
  std::size_t indexAbove(UIView view) const;
  std::size_t indexBelow(UIView view) const;

  // A view that is not among them yet; an index beyond the last one is in front of all.
  void insert(UIView view, std::size_t index);
  void remove(UIView view);
  // Whether the view is among them.
  bool bringToFront(UIView view);
  bool sendToBack(UIView view);

 private:
  ObjectList<UIView> _views;
};

}  // namespace desktop::uikit
