// SPDX-License-Identifier: MIT
//
// The views of a row of bar items, kept while their items stay.
#pragma once

#include <vector>

#include "bridge/uikit/ui_bars.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/object_list.h"

namespace desktop::uikit {

// An item and what stands for it on the bar: its own button or its custom view; nil for a space.
struct BarSlot {
  Owned<UIBarButtonItem> item;
  Owned<UIView> view;
};

class BarSlots {
 public:
  // The container is told "_itemChanged" by the items; it outlives this.
  explicit BarSlots(UIView container) : _container(container) {}
  ~BarSlots();
  BarSlots(const BarSlots&) = delete;
  BarSlots& operator=(const BarSlots&) = delete;

  void show(const ObjectList<UIBarButtonItem>& items);
  const std::vector<BarSlot>& slots() const { return _slots; }

  // In points; a flexible space has none.
  static CGFloat widthOf(const BarSlot& slot, CGFloat height);
  // Sets a view into a bar of the height, its left edge at x.
  static void place(const BarSlot& slot, CGFloat x, CGFloat height);

 private:
  void release(const BarSlot& slot);
  BarSlot makeSlot(UIBarButtonItem item) const;

  UIView _container;
  std::vector<BarSlot> _slots;
};

}  // namespace desktop::uikit
