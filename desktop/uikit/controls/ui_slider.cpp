// SPDX-License-Identifier: MIT
//
// The knob follows the finger that came down on it, from where on it that was; a finger beside it
// does nothing. While it is dragged no recogniser around takes the finger away, however it strays.
#include "desktop/uikit/controls/ui_slider.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

constexpr CGFloat sliderHeight = 31;  // points
constexpr CGFloat sliderWidth = 118;  // where nobody gives another
constexpr CGFloat knobDiameter = 28;
constexpr CGFloat lineHeight = 2;
constexpr CGFloat touchAllowance = 10;  // around the knob
constexpr double disabledSliderAlpha = 0.5;
constexpr Color restColor = Color::bytes(183, 183, 183);
constexpr Color knobShadow = colors::black.withAlpha(0.25);
constexpr Color knobEdge = colors::black.withAlpha(0.08);

CGRect knobAround(CGPoint middle) {
  return inset({middle, {}}, -knobDiameter / 2, -knobDiameter / 2);
}

}  // namespace

Class UISlider::classObject() {
  static const Class made =
      ClassBuilder<UISlider>("UISlider")
          .method<"sizeThatFits:", &UISlider::sizeThatFits>()
          .method<"value", &UISlider::value>()
          .method<"setValue:", &UISlider::setValue>()
          .method<"setValue:animated:", &UISlider::setValueAnimated>()
          .method<"minimumValue", &UISlider::minimumValue>()
          .method<"setMinimumValue:", &UISlider::setMinimumValue>()
          .method<"maximumValue", &UISlider::maximumValue>()
          .method<"setMaximumValue:", &UISlider::setMaximumValue>()
          .method<"isContinuous", &UISlider::isContinuous>()
          .method<"setContinuous:", &UISlider::setContinuous>()
          .method<"setEnabled:", &UISlider::setEnabled>()
          .method<"beginTrackingWithTouch:withEvent:", &UISlider::beginTracking>()
          .method<"continueTrackingWithTouch:withEvent:", &UISlider::continueTracking>()
          .method<"endTrackingWithTouch:withEvent:", &UISlider::endTracking>()
          .method<"gestureRecognizerShouldBegin:", &UISlider::shouldBegin>()
          .method<"drawContentOn:", &UISlider::drawContent>()
          .build();
  return made;
}

Owned<UIControl> UISlider::make() {
  return bridge::makeView<UIControl>({{0, 0}, {sliderWidth, sliderHeight}}, classObject());
}

CGSize UISlider::sizeThatFits(CGSize) const {
  return {sliderWidth, sliderHeight};
}

void UISlider::setValue(float value) {
  if (std::isnan(value)) return;
  _value = std::min(std::max(value, _least), _greatest);
  setNeedsDisplay();
}

void UISlider::setMinimumValue(float least) {
  _least = least;
  _greatest = std::max(_greatest, least);
  setValue(_value);
}

void UISlider::setMaximumValue(float greatest) {
  _greatest = greatest;
  _least = std::min(_least, greatest);
  setValue(_value);
}

void UISlider::setEnabled(bool isEnabled) {
  super<void, "setEnabled:">(isEnabled);
  self().setAlpha(isEnabled ? 1 : disabledSliderAlpha);
}

double UISlider::part() const {
  return _greatest > _least ? (_value - _least) / (_greatest - _least) : 0;
}

CGPoint UISlider::knobAt(double part) const {
  const CGSize room = bounds().size;
  const CGFloat way = std::max(0.0, room.width - knobDiameter);
  return {knobDiameter / 2 + part * way, room.height / 2};
}

bool UISlider::beginTracking(UITouch touch, UIEvent) {
  const CGPoint at = touch.locationIn(self());
  _grip = at.x - knob().x;
  return contains(inset(knobAround(knob()), -touchAllowance, -touchAllowance), at);
}

bool UISlider::continueTracking(UITouch touch, UIEvent) {
  const CGFloat first = knobAt(0).x;
  const CGFloat way = knobAt(1).x - first;
  const CGFloat x = touch.locationIn(self()).x - _grip;
  const double part = way > 0 ? std::clamp((x - first) / way, 0.0, 1.0) : 0;
  setValue(static_cast<float>(_least + part * (_greatest - _least)));
  if (_isContinuous) sendActions(valueChanged);
  return true;
}

void UISlider::endTracking(UITouch, UIEvent) {
  if (!_isContinuous) sendActions(valueChanged);
}

bool UISlider::shouldBegin(UIGestureRecognizer recognizer) const {
  return !isTracking() && super<bool, "gestureRecognizerShouldBegin:">(recognizer);
}

void UISlider::drawContent(Canvas* canvas) const {
  const CGPoint now = knob();
  const CGFloat top = now.y - lineHeight / 2;
  const CGFloat end = bounds().size.width;
  canvas->fill({{0, top}, {now.x, lineHeight}}, tint(), lineHeight / 2);
  canvas->fill({{now.x, top}, {end - now.x, lineHeight}}, restColor, lineHeight / 2);
  const Path outline = Path::ellipse(knobAround(now));
  canvas->shadow(outline, knobShadow, {0, 2}, 3);
  canvas->fill(outline, colors::white);
  canvas->stroke(outline, 0.5, knobEdge);
}

}  // namespace desktop::uikit
