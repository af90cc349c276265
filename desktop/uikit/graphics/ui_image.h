// SPDX-License-Identifier: MIT
//
// UIImage: pixels and how many of them are a point.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_appearance.h"
#include "desktop/uikit/graphics/bitmap.h"

namespace desktop::uikit {

class UIImage : public bridge::Bound<UIImage, bridge::NSObject> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new image, autoreleased; a scale that is not positive and finite counts as 1. Without a
  // bitmap it is empty.
  static bridge::UIImage make(SharedBitmap bitmap, CGFloat scale);
  // Null for nil and for what is no image.
  static SharedBitmap bitmapOf(bridge::Object image);

  const SharedBitmap& bitmap() const { return _bitmap; }
  // In points.
  CGSize size() const;
  CGFloat scale() const { return _scale; }

 private:
  bridge::Object copyWithZone(void* zone);

  SharedBitmap _bitmap;
  CGFloat _scale = 1;
};

}  // namespace desktop::uikit
