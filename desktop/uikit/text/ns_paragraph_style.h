// SPDX-License-Identifier: MIT
//
// NSParagraphStyle and NSMutableParagraphStyle: how the lines of a paragraph stand.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/text/paragraph_style.h"

namespace desktop::uikit {

class NSParagraphStyleState : public Bound<NSParagraphStyleState, NSObject, NSParagraphStyle> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new style; autoreleased.
  static NSObject make(const ParagraphStyle& value);
  // The value of a style; the standard one for nil and for what is no style.
  static ParagraphStyle valueOf(Object style);

  const ParagraphStyle& value() const { return _value; }
  void setValue(const ParagraphStyle& value) { _value = value; }

 private:
  static NSObject defaultParagraphStyle() { return make({}); }

  template <auto Field>
  auto get() const;
  Object copyWithZone(void* zone) const;
  Object mutableCopyWithZone(void* zone) const;
  bool isEqual(Object other) const;
  NSUInteger hash() const;

  ParagraphStyle _value;
};

class NSMutableParagraphStyleState
    : public Bound<NSMutableParagraphStyleState, NSParagraphStyleState, NSMutableParagraphStyle> {
 public:
  using Bound::Bound;
  static Class classObject();

 private:
  template <auto Field>
  void setLength(CGFloat points);
  void setAlignment(NSInteger alignment);
  void setLineBreakMode(NSInteger mode);
  void setParagraphStyle(NSObject style);
};

}  // namespace desktop::uikit
