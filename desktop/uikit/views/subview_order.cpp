// SPDX-License-Identifier: MIT
#include "desktop/uikit/views/subview_order.h"

#include <algorithm>

namespace desktop::uikit {

std::size_t SubviewOrder::indexBelow(UIView view) const {
  const auto place = std::ranges::find(_views, view, &Owned<UIView>::get);
  return static_cast<std::size_t>(place - _views.begin());
}

std::size_t SubviewOrder::indexAbove(UIView view) const {
  return std::min(indexBelow(view) + 1, _views.size());
}

void SubviewOrder::insert(UIView view, std::size_t index) {
  const auto place = static_cast<std::ptrdiff_t>(std::min(index, _views.size()));
  _views.insert(_views.begin() + place, Owned<UIView>::retain(view));
}

void SubviewOrder::remove(UIView view) {
  std::erase_if(_views, [&](const auto& known) { return known.get() == view; });
}

bool SubviewOrder::bringToFront(UIView view) {
  const auto place = std::ranges::find(_views, view, &Owned<UIView>::get);
  if (place == _views.end()) return false;
  std::rotate(place, place + 1, _views.end());
  return true;
}

bool SubviewOrder::sendToBack(UIView view) {
  const auto place = std::ranges::find(_views, view, &Owned<UIView>::get);
  if (place == _views.end()) return false;
  std::rotate(_views.begin(), place, place + 1);
  return true;
}

}  // namespace desktop::uikit
