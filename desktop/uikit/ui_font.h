// SPDX-License-Identifier: MIT
//
// UIFont: a font at a size.
#pragma once

#include "bridge/bound.h"
#include "bridge/foundation/ns_string.h"
#include "bridge/geometry.h"
#include "desktop/uikit/font_metrics.h"

namespace desktop::uikit {

class UIFont : public bridge::Bound<UIFont, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // The user interface's font; autoreleased. Any size is taken as it is.
  static bridge::NSObject systemFontOfSize(CGFloat size);

  const FontMetrics& metrics() const { return *_metrics; }
  CGFloat pointSize() const { return _pointSize; }
  CGFloat lineHeight() const { return scaled(*_metrics, _metrics->lineHeight(), _pointSize); }
  CGFloat ascender() const { return scaled(*_metrics, _metrics->ascender, _pointSize); }
  CGFloat descender() const { return scaled(*_metrics, _metrics->descender, _pointSize); }

 private:
  CGFloat leading() const { return 0; }
  bridge::NSString fontName() const { return bridge::NSString::make(_metrics->name); }
  bridge::Object copyWithZone(void* zone);
  bool isEqual(bridge::Object other) const;
  unsigned long hash() const;

  const FontMetrics* _metrics = &systemFontMetrics();
  CGFloat _pointSize = 0;
};

}  // namespace desktop::uikit
