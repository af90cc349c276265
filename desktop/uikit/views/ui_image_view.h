// SPDX-License-Identifier: MIT
//
// UIImageView: shows an image as its content mode says. Takes no touches by default.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit/ui_view.h"
#include "desktop/uikit/base/geometry.h"

namespace desktop::uikit {

class Canvas;

// The content modes that images know; all others count as scaleToFill.
enum class ContentMode : NSInteger { scaleToFill = 0, aspectFit = 1, aspectFill = 2, center = 4 };

// Where a picture of this size is shown in a rectangle; empty where either is.
CGRect placed(CGSize picture, CGRect room, ContentMode mode);

class UIImageView : public bridge::Bound<UIImageView, bridge::UIView> {
 public:
  explicit UIImageView(id self);
  static Class classObject();

  bridge::UIImage image() const { return _image; }

  void drawContent(Canvas* canvas) const;

 private:
  bridge::UIView initWithImage(bridge::UIImage image);
  void setImage(bridge::UIImage image);
  CGSize sizeThatFits(CGSize size) const;

  bridge::Owned<bridge::UIImage> _image;
};

}  // namespace desktop::uikit
