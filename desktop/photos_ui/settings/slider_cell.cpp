// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/settings/slider_cell.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "bridge/uikit.h"
#include "desktop/photos_ui/base/labels.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/controls/ui_slider.h"
#include "model/number_text.h"

namespace desktop::photos_ui {
namespace {

// In points.
constexpr CGFloat sliderMargin = 16;
constexpr CGFloat sliderHeight = 31;
constexpr CGFloat numberWidth = 50;  // kept free for the number, which stands at its end

}  // namespace

Class SliderCell::classObject() {
  static const Class made =
      ClassBuilder<SliderCell>("SettingsSliderCell")
          .method<"initWithStyle:reuseIdentifier:", &SliderCell::initWithStyle>()
          .method<"layoutSubviews", &SliderCell::layoutSubviews>()
          .method<"moved:", &SliderCell::moved>()
          .method<"letGo:", &SliderCell::letGo>()
          .build();
  return made;
}

// The number follows the finger; what is stored is only where it left.
UITableViewCell SliderCell::initWithStyle(NSInteger style, NSString reuseIdentifier) {
  const auto made =
      super<UITableViewCell, "initWithStyle:reuseIdentifier:">(style, reuseIdentifier);
  if (!made) return {};
  using Control = uikit::UIControlState;
  _slider = uikit::UISlider::make();
  auto& slider = uikit::UISlider::of(_slider.get());
  slider.addTarget(self(), selector<"moved:">(), Control::valueChanged);
  slider.addTarget(self(), selector<"letGo:">(),
                   Control::touchUpInside | Control::touchUpOutside | Control::touchCancel);
  _number = photos_ui::makeLabel({.size = 17}, uikit::colors::secondaryText);
  _number->setAdjustsFontSizeToFitWidth(true);
  contentView().addSubview(_slider);
  contentView().addSubview(_number);
  setSelectionStyle(noSelection);
  return made;
}

void SliderCell::show(const settings::Row& row, const model::Value& value, SettingChanged changed) {
  _changed = std::move(changed);
  _range = row.range;
  auto& slider = uikit::UISlider::of(_slider.get());
  slider.setAccessibilityLabel(NSString::make(row.label));
  slider.setMinimumValue(static_cast<float>(_range.least));
  slider.setMaximumValue(static_cast<float>(_range.greatest));
  slider.setValue(static_cast<float>(settings::numberOf(value)));
  _slider->setEnabled(row.isEnabled);
  _number->setHidden(!_range.showsValue);
  showText(_number, settings::shownText(row, value));
  setNeedsLayout();
}

void SliderCell::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize room = contentView().bounds().size;
  const CGFloat number = _range.showsValue ? numberWidth + sliderMargin : 0;
  const CGFloat width = std::max(0.0, room.width - 2 * sliderMargin - number);
  const CGFloat top = (room.height - sliderHeight) / 2;
  _slider->setFrame({{sliderMargin, top}, {width, sliderHeight}});
  const CGFloat wanted = std::min(numberWidth, _number->sizeThatFits(room).width);
  _number->setFrame({{room.width - sliderMargin - wanted, top}, {wanted, sliderHeight}});
}

// What the slider says, as the platform's single precision has it; on the nearest step where there
// are steps.
double SliderCell::value() const {
  const double chosen = model::widenedByText(uikit::UISlider::of(_slider.get()).value());
  if (_range.steps == 0) return chosen;
  const double step = (_range.greatest - _range.least) / _range.steps;
  return _range.least + std::round((chosen - _range.least) / step) * step;
}

void SliderCell::moved(NSObject) {
  const double chosen = value();
  uikit::UISlider::of(_slider.get()).setValue(static_cast<float>(chosen));
  showText(_number, settings::shownText({}, chosen));
  setNeedsLayout();
}

void SliderCell::letGo(NSObject) {
  const auto changed = _changed;
  if (changed) changed(value());
}

}  // namespace desktop::photos_ui
