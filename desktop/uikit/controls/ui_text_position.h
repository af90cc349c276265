// SPDX-License-Identifier: MIT
//
// UITextPosition and UITextRange: a place in a text view's text, and a stretch of it.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_controls.h"

namespace desktop::uikit {

class UITextPosition : public bridge::Bound<UITextPosition, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new position; autoreleased.
  static bridge::UITextPosition make(std::size_t offset);
  // In UTF-16 units; 0 for nil and for what is no position.
  static std::size_t offsetOf(bridge::Object position);

 private:
  bool isEqual(bridge::Object other) const;
  NSUInteger hash() const { return _offset; }

  std::size_t _offset = 0;
};

class UITextRange : public bridge::Bound<UITextRange, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new range; autoreleased.
  static bridge::UITextRange make(NSRange range);
  // An empty one for nil and for what is no range.
  static NSRange rangeOf(bridge::Object range);

 private:
  bridge::UITextPosition start() const { return UITextPosition::make(_range.location); }
  bridge::UITextPosition end() const {
    return UITextPosition::make(_range.location + _range.length);
  }
  bool isEmpty() const { return _range.length == 0; }
  bool isEqual(bridge::Object other) const;
  NSUInteger hash() const { return _range.location; }

  NSRange _range;
};

}  // namespace desktop::uikit
