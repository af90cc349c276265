// SPDX-License-Identifier: MIT
//
// UITextPosition and UITextRange: a place in a text view's text, and a stretch of it.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_controls.h"
#include "desktop/platform.h"

namespace desktop::uikit {

class UITextPositionState : public Bound<UITextPositionState, NSObject, UITextPosition> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new position; autoreleased.
  static UITextPosition make(std::size_t offset);
  // In UTF-16 units; 0 for nil and for what is no position.
  static std::size_t offsetOf(Object position);

 private:
  bool isEqual(Object other) const;
  NSUInteger hash() const { return _offset; }

  std::size_t _offset = 0;
};

class UITextRangeState : public Bound<UITextRangeState, NSObject, UITextRange> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new range; autoreleased.
  static UITextRange make(NSRange range);
  // An empty one for nil and for what is no range.
  static NSRange rangeOf(Object range);

 private:
  UITextPosition start() const { return UITextPositionState::make(_range.location); }
  UITextPosition end() const { return UITextPositionState::make(_range.location + _range.length); }
  bool isEmpty() const { return _range.length == 0; }
  bool isEqual(Object other) const;
  NSUInteger hash() const { return _range.location; }

  NSRange _range;
};

}  // namespace desktop::uikit
