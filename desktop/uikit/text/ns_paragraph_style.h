// SPDX-License-Identifier: MIT
//
// NSParagraphStyle and NSMutableParagraphStyle: how the lines of a paragraph stand.
#pragma once

#include "bridge/bound.h"
#include "desktop/uikit/handles.h"
#include "desktop/uikit/text/paragraph_style.h"

namespace desktop::uikit {

class NSParagraphStyle : public bridge::Bound<NSParagraphStyle, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new style; autoreleased.
  static bridge::NSObject make(const ParagraphStyle& value);
  // The value of a style; the standard one for nil and for what is no style.
  static ParagraphStyle valueOf(bridge::Object style);

  const ParagraphStyle& value() const { return _value; }
  void setValue(const ParagraphStyle& value) { _value = value; }

 private:
  static bridge::NSObject defaultParagraphStyle() { return make({}); }

  template <auto Field>
  auto get() const;
  bridge::Object copyWithZone(void* zone) const;
  bridge::Object mutableCopyWithZone(void* zone) const;
  bool isEqual(bridge::Object other) const;
  NSUInteger hash() const;

  ParagraphStyle _value;
};

class NSMutableParagraphStyle
    : public bridge::Bound<NSMutableParagraphStyle, handles::NSParagraphStyle> {
 public:
  using Bound::Bound;
  static Class classObject();

 private:
  template <auto Field>
  void setLength(CGFloat points);
  void setAlignment(NSInteger alignment);
  void setLineBreakMode(NSInteger mode);
  void setParagraphStyle(bridge::NSObject style);
};

}  // namespace desktop::uikit
