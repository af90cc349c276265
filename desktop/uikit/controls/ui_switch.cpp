// SPDX-License-Identifier: MIT
#include "desktop/uikit/controls/ui_switch.h"

#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/views/animator.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr CGSize switchSize = {51, 31};  // points
constexpr CGFloat switchEdge = 1.5;      // between the outline and what is inside
constexpr CGFloat dragSlop = 10;         // points that a finger goes before it drags
constexpr Seconds turnTime = 0.2;
constexpr double disabledSwitchAlpha = 0.5;
constexpr Color onColor = Color::bytes(76, 217, 100);
constexpr Color offColor = Color::bytes(229, 229, 234);

constexpr CGRect insideFrame = inset(rectOfSize(switchSize), switchEdge, switchEdge);
constexpr CGFloat knobSide = insideFrame.size.height;

CGRect knobFrame(bool isOn) {
  const CGFloat left = isOn ? right(insideFrame) - knobSide : insideFrame.origin.x;
  return {{left, insideFrame.origin.y}, {knobSide, knobSide}};
}

// White, with round ends, and nothing that touches fall on.
Owned<UIView> makePart(CGRect frame) {
  auto part = bridge::makeView<UIView>(frame);
  part->setUserInteractionEnabled(false);
  part->setBackgroundColor(UIColorState::make(colors::white));
  part->layer().setCornerRadius(frame.size.height / 2);
  return part;
}

}  // namespace

Class UISwitch::classObject() {
  static const Class made =
      ClassBuilder<UISwitch>("UISwitch")
          .method<"initWithFrame:", &UISwitch::initWithFrame>()
          .method<"sizeThatFits:", &UISwitch::sizeThatFits>()
          .method<"isOn", &UISwitch::isOn>()
          .method<"setOn:", &UISwitch::setOnAtOnce>()
          .method<"setOn:animated:", &UISwitch::setOn>()
          .method<"setEnabled:", &UISwitch::setEnabled>()
          .method<"beginTrackingWithTouch:withEvent:", &UISwitch::beginTracking>()
          .method<"continueTrackingWithTouch:withEvent:", &UISwitch::continueTracking>()
          .method<"endTrackingWithTouch:withEvent:", &UISwitch::endTracking>()
          .method<"cancelTrackingWithEvent:", &UISwitch::cancelTracking>()
          .build();
  return made;
}

Owned<UIControl> UISwitch::make() {
  return bridge::makeView<UIControl>({}, classObject());
}

// Whatever size is asked for, it has its own.
UIView UISwitch::initWithFrame(CGRect frame) {
  if (!super<UIView, "initWithFrame:">(CGRect{frame.origin, switchSize})) return {};
  _track = makePart(rectOfSize(switchSize));
  _inside = makePart(insideFrame);
  _knob = makePart(knobFrame(false));
  _knob->layer().setShadowOpacity(0.2F);
  _knob->layer().setShadowOffset({0, 3});
  self().addSubview(_track);
  self().addSubview(_inside);
  self().addSubview(_knob);
  arrange();
  return self();
}

CGSize UISwitch::sizeThatFits(CGSize) const {
  return switchSize;
}

// The switch itself is not animated, so that it takes touches meanwhile.
void UISwitch::arrange() {
  _track->setBackgroundColor(UIColorState::make(_isOn ? onColor : offColor));
  _inside->setAlpha(_isOn ? 0 : 1);
  _knob->setFrame(knobFrame(_isOn));
}

void UISwitch::setOn(bool isOn, bool animated) {
  if (isOn == _isOn) return;
  _isOn = isOn;
  if (!animated) return arrange();
  animator().animate(turnTime, 0, AnimationCurve::easeInOut, [this] { arrange(); }, {});
}

void UISwitch::setEnabled(bool isEnabled) {
  super<void, "setEnabled:">(isEnabled);
  self().setAlpha(isEnabled ? 1 : disabledSwitchAlpha);
}

bool UISwitch::beginTracking(UITouch touch, UIEvent) {
  _start = touch.locationIn(self()).x;
  _isDragged = false;
  _wasOn = _isOn;
  return true;
}

bool UISwitch::continueTracking(UITouch touch, UIEvent) {
  const CGFloat x = touch.locationIn(self()).x;
  _isDragged = _isDragged || std::abs(x - _start) > dragSlop;
  if (_isDragged) setOn(x > switchSize.width / 2, true);
  return true;
}

void UISwitch::endTracking(UITouch, UIEvent) {
  if (!_isDragged) setOn(!_isOn, true);
  if (_isOn != _wasOn) sendActions(valueChanged);
}

void UISwitch::cancelTracking(UIEvent) {
  setOn(_wasOn, true);
}

}  // namespace desktop::uikit
