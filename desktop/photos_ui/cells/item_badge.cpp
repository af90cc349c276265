// SPDX-License-Identifier: MIT
//
// Marks stand in a row from the left in the order of their table, a video's length at the right
// where there is room for it. Whoever extends the badge may make it narrower: it cuts what is
// beside.
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
constexpr CGSize markSize{14, 12};
constexpr uikit::Color ink = uikit::colors::white;

// Of all marks from the left edge on, with a gap behind each.
CGFloat widthOf(const ItemMarks& shown) {
  const int count =
      int{shown.isFavourite} + int{shown.isLivePhoto} + int{shown.isPanorama} + int{shown.isVideo};
  return edge + count * (markSize.width + edge);
}

std::string twoDigits(long number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

// Each in a box of 14 by 12 points.
using Draw = void (*)(uikit::Canvas& canvas, CGPoint at);

void drawHeart(uikit::Canvas& canvas, CGPoint at) {
  const auto point = [at](CGFloat x, CGFloat y) { return CGPoint{at.x + x, at.y + y}; };
  uikit::Path heart;
  heart.moveTo(point(7, 11.5))
      .curveTo(point(1, 3.8), point(4, 9), point(1, 6.6))
      .curveTo(point(7, 2.9), point(1, 0.4), point(5.4, -0.2))
      .curveTo(point(13, 3.8), point(8.6, -0.2), point(13, 0.4))
      .curveTo(point(7, 11.5), point(13, 6.6), point(10, 9))
      .close();
  canvas.fill(heart, ink);
}

// Rings around a point.
void drawLivePhoto(uikit::Canvas& canvas, CGPoint at) {
  const CGPoint middle{at.x + 7, at.y + 6};
  const auto ring = [middle](CGFloat radius) {
    return uikit::Path::ellipse({{middle.x - radius, middle.y - radius}, {2 * radius, 2 * radius}});
  };
  canvas.fill(ring(1.6), ink);
  canvas.stroke(ring(3.6), 1, ink);
  canvas.stroke(ring(5.6), 0.75, ink);
}

// A wide picture, curved as seen by who turns around.
void drawPanorama(uikit::Canvas& canvas, CGPoint at) {
  const auto point = [at](CGFloat x, CGFloat y) { return CGPoint{at.x + x, at.y + y}; };
  uikit::Path frame;
  frame.moveTo(point(0.5, 1.5))
      .curveTo(point(13.5, 1.5), point(4, 3.5), point(10, 3.5))
      .lineTo(point(13.5, 10.5))
      .curveTo(point(0.5, 10.5), point(10, 8.5), point(4, 8.5))
      .close();
  canvas.stroke(frame, 1.25, ink);
}

// A camera seen from its side.
void drawCamera(uikit::Canvas& canvas, CGPoint at) {
  canvas.fill(CGRect{{at.x, at.y + 2}, {9, 8}}, ink, 2);
  uikit::Path lens;
  lens.moveTo({at.x + 10, at.y + 6})
      .lineTo({at.x + 14, at.y + 2.5})
      .lineTo({at.x + 14, at.y + 9.5})
      .close();
  canvas.fill(lens, ink);
}

struct Mark {
  bool ItemMarks::*isShown;
  Draw draw;
};
constexpr Mark allMarks[] = {
    {&ItemMarks::isFavourite, drawHeart},
    {&ItemMarks::isLivePhoto, drawLivePhoto},
    {&ItemMarks::isPanorama, drawPanorama},
    {&ItemMarks::isVideo, drawCamera},
};

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

ItemMarks marksOf(library::PhotoLibrary& library, const library::ItemPointer& item) {
  if (!item) return {};
  ItemMarks marks{.isFavourite = library.isFavourite(*item),
                  .isLivePhoto = item->isLivePhoto(),
                  .isPanorama = library.isPanorama(item),
                  .isVideo = item->isVideo()};
  if (!marks.isVideo) return marks;
  const auto& facts = library.facts(*item);
  if (facts) marks.duration = (*facts)->duration;
  return marks;
}

Class ItemBadge::classObject() {
  static const Class made = ClassBuilder<ItemBadge>("ItemBadge")
                                .method<"initWithFrame:", &ItemBadge::initWithFrame>()
                                .method<"layoutSubviews", &ItemBadge::layoutSubviews>()
                                .method<"drawContentOn:", &ItemBadge::drawContent>()
                                .build();
  return made;
}

Owned<UIView> ItemBadge::make() {
  return bridge::makeView<UIView>({}, classObject());
}

UIView ItemBadge::initWithFrame(CGRect frame) {
  if (!super<UIView, "initWithFrame:">(frame)) return {};
  self().setUserInteractionEnabled(false);
  self().setClipsToBounds(true);
  _label = makeLabel({.size = fontSize}, ink);
  self().addSubview(_label);
  return self();
}

void ItemBadge::show(const ItemMarks& marks) {
  _marks = marks;
  showText(_label, marks.duration > 0 ? durationText(marks.duration) : std::string());
  setNeedsLayout();
  setNeedsDisplay();
}

void ItemBadge::layoutSubviews() {
  super<void, "layoutSubviews">();
  const CGSize room = self().bounds().size;
  const CGFloat width = _label->sizeThatFits(CGSize{}).width;
  _label->setFrame({{room.width - edge - width, 0}, {width, room.height}});
  const bool isCramped = widthOf(_marks) + width + edge > room.width;
  _label->setHidden(isCramped);
}

void ItemBadge::drawContent(uikit::Canvas* canvas) const {
  const CGRect bounds = shown().bounds;
  constexpr uikit::Color shade[] = {uikit::Color::white(0, 0), uikit::Color::white(0, 0.6)};
  canvas->gradient(bounds, shade, {0.5, 0}, {0.5, 1}, 0);
  CGPoint at{edge, (bounds.size.height - markSize.height) / 2};
  for (const auto& [isShown, draw] : allMarks) {
    if (!(_marks.*isShown)) continue;
    draw(*canvas, at);
    at.x += markSize.width + edge;
  }
}

}  // namespace desktop::photos_ui
