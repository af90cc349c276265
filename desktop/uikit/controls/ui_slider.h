// SPDX-License-Identifier: MIT
//
// UISlider: a number between two others, chosen by dragging a knob along a line.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/controls/ui_control.h"

namespace desktop::uikit {

class Canvas;

class UISlider : public Bound<UISlider, UIControlState> {
 public:
  using Bound::Bound;
  static Class classObject();
  // A new one from 0 to 1; +1.
  static Owned<UIControl> make();

  float value() const { return _value; }
  // What lies outside goes to the nearest end. Tells no target.
  void setValue(float value);
  float minimumValue() const { return _least; }
  void setMinimumValue(float least);
  float maximumValue() const { return _greatest; }
  void setMaximumValue(float greatest);

  // The middle of the knob at a part of the way, from 0 to 1, and where it is now: in the slider's
  // own coordinates.
  CGPoint knobAt(double part) const;
  CGPoint knob() const { return knobAt(part()); }

  void drawContent(Canvas* canvas) const;

 private:
  CGSize sizeThatFits(CGSize size) const;
  void setValueAnimated(float value, bool) { setValue(value); }
  bool isContinuous() const { return _isContinuous; }
  void setContinuous(bool isContinuous) { _isContinuous = isContinuous; }
  void setEnabled(bool isEnabled);
  bool beginTracking(UITouch touch, UIEvent event);
  bool continueTracking(UITouch touch, UIEvent event);
  void endTracking(UITouch touch, UIEvent event);
  bool shouldBegin(UIGestureRecognizer recognizer) const;
  double part() const;

  float _value = 0;
  float _least = 0;
  float _greatest = 1;
  bool _isContinuous = true;
  CGFloat _grip = 0;  // where on the knob the finger is, from its middle
};

}  // namespace desktop::uikit
