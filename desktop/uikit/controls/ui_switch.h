// SPDX-License-Identifier: MIT
//
// UISwitch: a control that is on or off. A tap turns it, and so does a finger that drags its knob
// to the other side.
#pragma once

#include "bridge/bound.h"
#include "bridge/uikit.h"
#include "desktop/platform.h"
#include "desktop/uikit/controls/ui_control.h"

namespace desktop::uikit {

class UISwitch : public Bound<UISwitch, UIControlState> {
 public:
  using Bound::Bound;
  static Class classObject();
  // A new one of its only size; +1.
  static Owned<UIControl> make();

  bool isOn() const { return _isOn; }
  // Tells no target.
  void setOn(bool isOn, bool animated);

 private:
  UIView initWithFrame(CGRect frame);
  CGSize sizeThatFits(CGSize size) const;
  void setOnAtOnce(bool isOn) { setOn(isOn, false); }
  void setEnabled(bool isEnabled);
  bool beginTracking(UITouch touch, UIEvent event);
  bool continueTracking(UITouch touch, UIEvent event);
  void endTracking(UITouch touch, UIEvent event);
  void cancelTracking(UIEvent event);
  void arrange();

  Owned<UIView> _track;
  Owned<UIView> _inside;  // what is white of one that is off
  Owned<UIView> _knob;
  bool _isOn = false;
  // Of a finger on it.
  CGFloat _start = 0;
  bool _isDragged = false;
  bool _wasOn = false;
};

}  // namespace desktop::uikit
