// SPDX-License-Identifier: MIT
#include "desktop/uikit/bars/bar_slots.h"

#include <algorithm>
#include <utility>

#include "desktop/uikit/bars/bar_button_view.h"
#include "desktop/uikit/bars/ui_bar_button_item.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

BarSlots::~BarSlots() {
  for (const BarSlot& slot : _slots) release(slot);
}

// An item that another bar shows by now is that bar's.
void BarSlots::release(const BarSlot& slot) {
  UIBarButtonItemState& item = UIBarButtonItemState::of(slot.item.get());
  if (item.shownBy() == _container) item.setShownBy({});
  if (slot.view && UIViewState::of(slot.view.get()).superview() == _container)
    slot.view->removeFromSuperview();
}

BarSlot BarSlots::makeSlot(UIBarButtonItem item) const {
  BarSlot slot{Owned<UIBarButtonItem>::retain(item), {}};
  UIBarButtonItemState& state = UIBarButtonItemState::of(item.get());
  state.setShownBy(_container);
  if (state.isSpace()) return slot;
  slot.view =
      state.customView() ? Owned<UIView>::retain(state.customView()) : BarButtonView::make(item);
  _container.addSubview(slot.view);
  return slot;
}

void BarSlots::show(const ObjectList<UIBarButtonItem>& items) {
  std::vector<BarSlot> before = std::exchange(_slots, {});
  for (const auto& item : items) {
    const auto known = std::ranges::find_if(
        before, [&](const BarSlot& slot) { return slot.item.get() == item.get(); });
    const bool isSame =
        known != before.end() &&
        (!UIBarButtonItemState::of(item.get()).customView() ||
         UIBarButtonItemState::of(item.get()).customView() == known->view.get()) &&
        (!known->view || UIViewState::of(known->view.get()).superview() == _container);
    if (!isSame) {
      _slots.push_back(makeSlot(item));
      continue;
    }
    UIBarButtonItemState::of(item.get()).setShownBy(_container);
    if (isKindOf(known->view, BarButtonView::classObject()))
      BarButtonView::of(known->view.get()).refresh();
    _slots.push_back(std::move(*known));
    before.erase(known);
  }
  for (const BarSlot& slot : before) {
    const bool isKept = std::ranges::any_of(_slots, [&](const BarSlot& kept) {
      return kept.view && kept.view.get() == slot.view.get();
    });
    if (!isKept) release(slot);
  }
}

CGFloat BarSlots::widthOf(const BarSlot& slot, CGFloat height) {
  const UIBarButtonItemState& item = UIBarButtonItemState::of(slot.item.get());
  if (!slot.view) return item.systemItem() == UIBarButtonItemState::fixedSpace ? item.width() : 0;
  if (item.width() > 0) return item.width();
  if (item.customView()) return item.customView().bounds().size.width;
  return slot.view.get().sizeThatFits(CGSize{0, height}).width;
}

// A custom view keeps its size and stands in the middle of the height.
void BarSlots::place(const BarSlot& slot, CGFloat x, CGFloat height) {
  if (!slot.view) return;
  const CGFloat width = widthOf(slot, height);
  if (!UIBarButtonItemState::of(slot.item.get()).customView())
    return slot.view->setFrame({{x, 0}, {width, height}});
  const CGSize own = slot.view->bounds().size;
  slot.view->setFrame({{x, (height - own.height) / 2}, {width, own.height}});
}

}  // namespace desktop::uikit
