// SPDX-License-Identifier: MIT
//
// Which stretch of a text is selected, and where fingers that press and drag take it to. All
// ranges are in UTF-16 units.
#pragma once

#include <cstddef>
#include <optional>

#include "bridge/geometry.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class TextSelection {
 public:
  // None where nothing was selected; an empty one is a caret.
  const std::optional<NSRange>& range() const { return _range; }
  // The same, empty at the text's beginning where there is none.
  NSRange units() const { return _range.value_or(NSRange{}); }
  std::size_t start() const { return units().location; }
  std::size_t end() const { return units().location + units().length; }
  bool hasText() const { return units().length > 0; }

  // Selects what of the range is within a text of some length; whether that is another one.
  bool set(std::optional<NSRange> range, std::size_t textLength);

  // A finger presses a word. Where it goes on to another one, all from the one to the other is
  // selected.
  void press(NSRange word) { _pressed = word; }
  NSRange pressedTo(NSRange word) const;

  // A finger takes hold of an end: the first one, or else the last. The other one stays where it
  // is while that goes to a place in the text, on its other side too. None where they meet: at
  // least one unit stays selected.
  void hold(bool first) { _fixedEnd = first ? end() : start(); }
  std::optional<NSRange> draggedTo(std::size_t index) const;

 private:
  std::optional<NSRange> _range;
  NSRange _pressed;
  std::size_t _fixedEnd = 0;
};

}  // namespace desktop::uikit
