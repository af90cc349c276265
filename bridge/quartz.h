// SPDX-License-Identifier: MIT
//
// Layers. Lengths are in points.
#pragma once

#include "bridge/coregraphics.h"
#include "bridge/foundation.h"

namespace bridge {

struct CALayer : NSObject {
  using NSObject::NSObject;
  static Class classObject() { return classNamed<"CALayer">(); }

  void setFrame(CGRect frame) const { send<void, "setFrame:">(*this, frame); }
  void setCornerRadius(CGFloat radius) const { send<void, "setCornerRadius:">(*this, radius); }
  void setMasksToBounds(bool masks) const { send<void, "setMasksToBounds:">(*this, masks); }
  void setBorderWidth(CGFloat width) const { send<void, "setBorderWidth:">(*this, width); }
  void setBorderColor(CGColorRef color) const { send<void, "setBorderColor:">(*this, color); }
  void setShadowColor(CGColorRef color) const { send<void, "setShadowColor:">(*this, color); }
  void setShadowOffset(CGSize offset) const { send<void, "setShadowOffset:">(*this, offset); }
  void setShadowOpacity(float opacity) const { send<void, "setShadowOpacity:">(*this, opacity); }
  // Retained by the layer.
  void setShadowPath(CGPathRef path) const { send<void, "setShadowPath:">(*this, path); }
  void insertSublayer(CALayer layer, unsigned index) const {
    send<void, "insertSublayer:atIndex:">(*this, layer, index);
  }
};

struct CAGradientLayer : CALayer {
  using CALayer::CALayer;
  static Class classObject() { return classNamed<"CAGradientLayer">(); }
  static CAGradientLayer layer() { return send<CAGradientLayer, "layer">(classObject()); }

  // Core Graphics colours.
  void setColors(NSArray colors) const { send<void, "setColors:">(*this, colors); }
};

}  // namespace bridge
