// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/cells/pu_photo_view.h"

#include <algorithm>

#include "bridge/class_builder.h"
#include "desktop/platform.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/graphics/encodings.h"
#include "desktop/uikit/views/ui_view.h"

namespace desktop::photos_ui {
namespace {

constexpr CGPoint moved(CGPoint from, CGFloat right, CGFloat down) {
  return {from.x + right, from.y + down};
}

constexpr uikit::Color paper = uikit::Color::bytes(235, 235, 240);
constexpr uikit::Color ink = uikit::Color::bytes(174, 174, 180);

// A picture with a line across: it cannot be shown.
void drawBrokenPicture(uikit::Canvas& canvas, CGRect room) {
  const CGFloat side = std::min({room.size.width, room.size.height, 72.0}) / 2;
  const CGFloat width = std::max(side / 16, 0.75);
  const CGRect frame{moved(uikit::middle(room), -side / 2, -side * 0.4), {side, side * 0.8}};
  canvas.stroke(uikit::Path::roundedRect(frame, side / 8), width, ink);
  const CGPoint low{frame.origin.x + side * 0.12, uikit::bottom(frame) - side * 0.14};
  uikit::Path hills;
  hills.moveTo(low)
      .lineTo(moved(low, side * 0.24, -side * 0.3))
      .lineTo(moved(low, side * 0.42, -side * 0.1))
      .lineTo(moved(low, side * 0.54, -side * 0.22))
      .lineTo(moved(low, side * 0.76, 0));
  canvas.stroke(hills, width, ink);
  uikit::Path line;
  line.moveTo({frame.origin.x - side * 0.08, uikit::bottom(frame) + side * 0.08})
      .lineTo({uikit::right(frame) + side * 0.08, frame.origin.y - side * 0.08});
  canvas.stroke(line, width * 3, paper);
  canvas.stroke(line, width, ink);
}

}  // namespace

Class PUPhotoViewState::classObject() {
  static const Class made = ClassBuilder<PUPhotoViewState>("PUPhotoView")
                                .method<"initWithFrame:", &PUPhotoViewState::initWithFrame>()
                                .method<"contentHelper", &PUPhotoViewState::contentHelper>()
                                .method<"layoutSubviews", &PUPhotoViewState::layoutSubviews>()
                                .method<"drawContentOn:", &PUPhotoViewState::drawContent>()
                                .build();
  return made;
}

PUPhotoViewState::~PUPhotoViewState() {
  if (_contentHelper) content().viewIsGone();
}

UIView PUPhotoViewState::initWithFrame(CGRect frame) {
  if (!super<UIView, "initWithFrame:">(frame)) return {};
  self().setClipsToBounds(true);
  _contentHelper = PUPhotoViewContentHelperState::make(self());
  return self();
}

void PUPhotoViewState::layoutSubviews() {
  super<void, "layoutSubviews">();
  _contentHelper->layoutSubviewsOfContentView();
}

// What stands for a picture that is not there.
void PUPhotoViewState::drawContent(uikit::Canvas* canvas) const {
  using State = PUPhotoViewContentHelperState::State;
  const State state = content().state();
  if (state != State::loading && state != State::failed) return;
  const CGRect bounds = shown().bounds;
  canvas->fill(bounds, paper, 0);
  if (state == State::failed) drawBrokenPicture(*canvas, bounds);
}

}  // namespace desktop::photos_ui
