// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/swipe_selection.h"

#include <algorithm>
#include <utility>

namespace desktop::photos_ui {

SwipeSelection::SwipeSelection(std::size_t first, std::set<std::size_t> selected)
    : _first(first),
      _last(first),
      _before(std::move(selected)),
      _selects(!_before.contains(first)) {}

void SwipeSelection::goTo(std::size_t index, const Select& select) {
  const std::size_t from = std::min({_first, _last, index});
  const std::size_t to = std::max({_first, _last, index});
  _last = index;
  const auto [first, last] = std::minmax(_first, index);
  for (std::size_t each = from; each <= to; ++each) {
    const bool isSwiped = each >= first && each <= last;
    select(each, isSwiped ? _selects : _before.contains(each));
  }
}

void SwipeSelection::undo(const Select& select) {
  goTo(_first, select);
  select(_first, _before.contains(_first));
}

}  // namespace desktop::photos_ui
