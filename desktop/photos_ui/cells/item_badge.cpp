// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/cells/item_badge.h"

#include <cmath>

#include "bridge/class_builder.h"
#include "desktop/photos_ui/base/labels.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {
namespace {

constexpr CGFloat edge = 5;       // points
constexpr CGFloat fontSize = 12;  // points
constexpr CGFloat cameraWidth = 14;

std::string twoDigits(long number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

// A camera seen from its side, in a box of 14 by 8 points.
void drawCamera(uikit::Canvas& canvas, CGPoint at) {
  constexpr uikit::Color color = uikit::colors::white;
  canvas.fill(CGRect{at, {9, 8}}, color, 2);
  uikit::Path lens;
  lens.moveTo({at.x + 10, at.y + 4})
      .lineTo({at.x + 14, at.y + 0.5})
      .lineTo({at.x + 14, at.y + 7.5})
      .close();
  canvas.fill(lens, color);
}

}  // namespace

std::string durationText(double seconds) {
  constexpr double longest = 360'000;  // a hundred hours
  const long whole =
      std::max(1L, std::lround(std::min(std::isfinite(seconds) ? seconds : 0, longest)));
  const long hours = whole / 3600;
  const long minutes = whole / 60 % 60;
  const std::string end = ":" + twoDigits(whole % 60);
  if (hours == 0) return std::to_string(minutes) + end;
  return std::to_string(hours) + ":" + twoDigits(minutes) + end;
}

Class ItemBadge::classObject() {
  static const Class made = ClassBuilder<ItemBadge>("ItemBadge")
                                .method<"initWithFrame:", &ItemBadge::initWithFrame>()
                                .method<"layoutSubviews", &ItemBadge::layoutSubviews>()
                                .method<"drawContentOn:", &ItemBadge::drawContent>()
                                .build();
  return made;
}

UIView ItemBadge::initWithFrame(CGRect frame) {
  if (!super<UIView, "initWithFrame:">(frame)) return {};
  send<void, "setUserInteractionEnabled:">(self(), false);
  _label = makeLabel({.size = fontSize}, uikit::colors::white);
  self().addSubview(_label);
  return self();
}

void ItemBadge::setDuration(double seconds) {
  showText(_label, seconds > 0 ? durationText(seconds) : std::string());
  setNeedsLayout();
}

void ItemBadge::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize room = self().bounds().size;
  const CGFloat width = send<CGSize, "sizeThatFits:">(_label.get(), CGSize{}).width;
  _label->setFrame({{room.width - edge - width, 0}, {width, room.height}});
  const bool isCramped = width + cameraWidth + 3 * edge > room.width;
  send<void, "setHidden:">(_label.get(), isCramped);
}

void ItemBadge::drawContent(uikit::Canvas* canvas) const {
  const CGRect bounds = shown().bounds;
  constexpr uikit::Color shade[] = {uikit::Color::white(0, 0), uikit::Color::white(0, 0.6)};
  canvas->gradient(bounds, shade, {0.5, 0}, {0.5, 1}, 0);
  drawCamera(*canvas, {edge, (bounds.size.height - 8) / 2});
}

}  // namespace desktop::photos_ui
