// SPDX-License-Identifier: MIT
//
// CAGradientLayer: colours that run from one point to another, from top to bottom by default.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/views/ca_layer.h"

namespace desktop::uikit {

class CAGradientLayerState : public Bound<CAGradientLayerState, CALayerState, CAGradientLayer> {
 public:
  using Bound::Bound;
  static Class classObject();

  // A new one. Autoreleased.
  static CAGradientLayer layer();

  // At even distances.
  std::vector<Color> colors() const;
  CGPoint startPoint() const { return _start; }
  CGPoint endPoint() const { return _end; }

 private:
  NSArray colorsArray() const { return _colors; }
  void setColors(NSArray colors);
  void setStartPoint(CGPoint point) { _start = point; }
  void setEndPoint(CGPoint point) { _end = point; }

  Owned<NSArray> _colors;  // of CGColorRefs
  CGPoint _start{0.5, 0};  // fractions of the layer
  CGPoint _end{0.5, 1};
};

}  // namespace desktop::uikit
