// SPDX-License-Identifier: MIT
//
// The segments are labels of equal width over an outline that the control paints. A finger chooses
// the segment that it came down on if it is lifted there.
#include "desktop/uikit/controls/ui_segmented_control.h"

#include <algorithm>
#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/text/ui_font.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::uikit {
namespace {

// In points.
constexpr CGFloat segmentsHeight = 29;
constexpr CGFloat segmentCorner = 4;
constexpr CGFloat outlineWidth = 1;
constexpr CGFloat titleMargin = 10;  // beside the widest title
constexpr CGFloat titleSize = 13;
constexpr double pressedSegmentAlpha = 0.15;
constexpr double disabledSegmentsAlpha = 0.5;

}  // namespace

Class UISegmentedControl::classObject() {
  using Self = UISegmentedControl;
  static const Class made =
      ClassBuilder<Self>("UISegmentedControl")
          .method<"initWithItems:", &Self::initWithItems>()
          .method<"numberOfSegments", &Self::numberOfSegments>()
          .method<"titleForSegmentAtIndex:", &Self::titleOf>()
          .method<"selectedSegmentIndex", &Self::selected>()
          .method<"setSelectedSegmentIndex:", &Self::select>()
          .method<"layoutSubviews", &Self::layoutSubviews>()
          .method<"sizeThatFits:", &Self::sizeThatFits>()
          .method<"setEnabled:", &Self::setEnabled>()
          .method<"beginTrackingWithTouch:withEvent:", &Self::beginTracking>()
          .method<"continueTrackingWithTouch:withEvent:", &Self::continueTracking>()
          .method<"endTrackingWithTouch:withEvent:", &Self::endTracking>()
          .method<"cancelTrackingWithEvent:", &Self::cancelTracking>()
          .method<"drawContentOn:", &Self::drawContent>()
          .build();
  return made;
}

Owned<UIControl> UISegmentedControl::make() {
  return makeWith<UIControl, "initWithItems:">(classObject(), NSArray());
}

UIControl UISegmentedControl::initWithItems(NSArray titles) {
  const auto made = initWith<"initWithFrame:">(self(), CGRect{{0, 0}, {0, segmentsHeight}});
  if (!made) return {};
  for (const auto& title : listOf<NSString>(titles)) addSegment(title);
  self().sizeToFit();
  return made;
}

void UISegmentedControl::addSegment(NSString title) {
  auto label = bridge::makeView<UILabel>({});
  label->setText(title);
  label->setFont(UIFont::systemFont(titleSize));
  label->setTextAlignment(alignCenter);
  self().addSubview(label);
  _labels.push_back(std::move(label));
  colorLabels();
}

void UISegmentedControl::setTitles(const std::vector<std::string>& titles) {
  for (const auto& label : _labels) label->removeFromSuperview();
  _labels.clear();
  _selected = _pressed = _first = noSegment;
  for (const std::string& title : titles) addSegment(NSString::make(title));
  setNeedsLayout();
  setNeedsDisplay();
}

NSString UISegmentedControl::titleOf(NSInteger segment) const {
  if (segment < 0 || segment >= numberOfSegments()) return {};
  return _labels[static_cast<std::size_t>(segment)]->text();
}

void UISegmentedControl::select(NSInteger segment) {
  const NSInteger next = segment >= 0 && segment < numberOfSegments() ? segment : noSegment;
  if (next == _selected) return;
  _selected = next;
  colorLabels();
}

void UISegmentedControl::colorLabels() {
  for (std::size_t index = 0; index < _labels.size(); ++index)
    _labels[index]->setTextColor(UIColorState::make(
        static_cast<NSInteger>(index) == _selected ? colors::white : UIViewState::tint()));
  setNeedsDisplay();
}

void UISegmentedControl::setEnabled(bool isEnabled) {
  super<void, "setEnabled:">(isEnabled);
  self().setAlpha(isEnabled ? 1 : disabledSegmentsAlpha);
}

CGRect UISegmentedControl::frameOf(NSInteger segment) const {
  const CGSize room = bounds().size;
  const CGFloat width =
      room.width / static_cast<CGFloat>(std::max<NSInteger>(1, numberOfSegments()));
  return {{static_cast<CGFloat>(segment) * width, 0}, {width, room.height}};
}

NSInteger UISegmentedControl::segmentAt(CGPoint point) const {
  const CGRect bounds = UIViewState::bounds();
  if (_labels.empty() || !contains(bounds, point)) return noSegment;
  const auto segment = static_cast<NSInteger>(point.x / frameOf(0).size.width);
  return std::min(segment, numberOfSegments() - 1);
}

void UISegmentedControl::layoutSubviews() {
  super<void, "layoutSubviews">();
  for (std::size_t index = 0; index < _labels.size(); ++index)
    _labels[index]->setFrame(inset(frameOf(static_cast<NSInteger>(index)), outlineWidth, 0));
}

CGSize UISegmentedControl::sizeThatFits(CGSize) const {
  constexpr CGSize anySize{10'000, 10'000};
  CGFloat widest = 0;
  for (const auto& label : _labels)
    widest = std::max(widest, label->sizeThatFits(anySize).width + 2 * titleMargin);
  return {std::ceil(widest) * static_cast<CGFloat>(_labels.size()), segmentsHeight};
}

void UISegmentedControl::press(NSInteger segment) {
  if (segment == _pressed) return;
  _pressed = segment;
  setNeedsDisplay();
}

bool UISegmentedControl::beginTracking(UITouch touch, UIEvent) {
  _first = segmentAt(touch.locationIn(self()));
  press(_first);
  return true;
}

bool UISegmentedControl::continueTracking(UITouch touch, UIEvent) {
  press(segmentAt(touch.locationIn(self())) == _first ? _first : noSegment);
  return true;
}

void UISegmentedControl::endTracking(UITouch touch, UIEvent event) {
  continueTracking(touch, event);
  const NSInteger chosen = _pressed;
  press(noSegment);
  if (chosen == noSegment || chosen == _selected) return;
  select(chosen);
  sendActions(valueChanged);
}

void UISegmentedControl::cancelTracking(UIEvent) {
  press(noSegment);
}

void UISegmentedControl::drawContent(Canvas* canvas) const {
  const CGRect bounds = UIViewState::bounds();
  const Color color = tint();
  canvas->save();
  canvas->clip(bounds, segmentCorner);
  if (_pressed != noSegment && _pressed != _selected)
    canvas->fill(frameOf(_pressed), color.withAlpha(color.alpha * pressedSegmentAlpha), 0);
  if (_selected != noSegment) canvas->fill(frameOf(_selected), color, 0);
  for (NSInteger segment = 1; segment < numberOfSegments(); ++segment)
    canvas->fill(
        {{frameOf(segment).origin.x - outlineWidth / 2, 0}, {outlineWidth, bounds.size.height}},
        color, 0);
  canvas->restore();
  const CGFloat half = outlineWidth / 2;
  canvas->stroke(Path::roundedRect(inset(bounds, half, half), segmentCorner), outlineWidth, color);
}

}  // namespace desktop::uikit
