// SPDX-License-Identifier: MIT
//
// A finger that goes over items and makes them all as selected as the first one became.
#pragma once

#include <cstddef>
#include <functional>
#include <set>

namespace desktop::photos_ui {

class SwipeSelection {
 public:
  using Select = std::function<void(std::size_t index, bool isSelected)>;

  // From an item, while some are selected.
  SwipeSelection(std::size_t first, std::set<std::size_t> selected);

  // Goes on to an item; what the finger went back over is as before again. Tells of every item that
  // may have become another, whether it did or not.
  void goTo(std::size_t index, const Select& select);
  // All is as before again.
  void undo(const Select& select);

 private:
  std::size_t _first;
  std::size_t _last;
  std::set<std::size_t> _before;
  bool _selects;
};

}  // namespace desktop::photos_ui
