// SPDX-License-Identifier: MIT
//
// UIImage: pixels and how many of them are a point.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_appearance.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/bitmap.h"

namespace desktop::uikit {

class UIImageState : public Bound<UIImageState, NSObject, UIImage> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new image, autoreleased; a scale that is not positive and finite counts as 1. Without a
  // bitmap it is empty.
  static UIImage make(SharedBitmap bitmap, CGFloat scale);
  // Null for nil and for what is no image.
  static SharedBitmap bitmapOf(Object image);

  const SharedBitmap& bitmap() const { return _bitmap; }
  // In points.
  CGSize size() const;
  CGFloat scale() const { return _scale; }

 private:
  Object copyWithZone(void* zone);

  SharedBitmap _bitmap;
  CGFloat _scale = 1;
};

}  // namespace desktop::uikit
