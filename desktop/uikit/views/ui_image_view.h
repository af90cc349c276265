// SPDX-License-Identifier: MIT
//
// UIImageView: shows an image as its content mode says. Takes no touches by default.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "bridge/uikit/ui_view.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {

class Canvas;

// The content modes that images know; all others count as scaleToFill.
enum class ContentMode : NSInteger { scaleToFill = 0, aspectFit = 1, aspectFill = 2, center = 4 };

// Where a picture of this size is shown in a rectangle; empty where either is.
CGRect placed(CGSize picture, CGRect room, ContentMode mode);

class UIImageViewState : public Bound<UIImageViewState, UIViewState, UIImageView> {
 public:
  explicit UIImageViewState(id self);
  static Class classObject();

  UIImage image() const { return _image; }

  void drawContent(Canvas* canvas) const;

 private:
  UIView initWithImage(UIImage image);
  void setImage(UIImage image);
  CGSize sizeThatFits(CGSize size) const;

  Owned<UIImage> _image;
};

}  // namespace desktop::uikit
