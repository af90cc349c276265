// SPDX-License-Identifier: MIT
//
// What reading one property list may cost, whichever form it has.
#pragma once

#include <cstddef>

#include "foundation/property_lists/property_list.h"

namespace foundation {

// Counts values, and bytes of text and data, every time they are reached: a small list may reach
// the same object often.
class PropertyListBudget {
 public:
  // Whether one more value may be read.
  bool takeValue() { return ++_values <= maximumPropertyListNodes; }

  // Whether a container may stand inside `depth` others.
  static bool allowsContainer(int depth) { return depth < model::maximumNesting; }

  // Whether so many more bytes of text or data may be kept.
  bool takeBytes(std::size_t count) {
    if (count > maximumPropertyListBytes - _bytes) return false;
    _bytes += count;
    return true;
  }

 private:
  int _values = 0;
  std::size_t _bytes = 0;
};

// What both readers say of a list that is over budget.
inline model::Error overBudget() {
  return {"property list too large or nested too deep"};
}

}  // namespace foundation
