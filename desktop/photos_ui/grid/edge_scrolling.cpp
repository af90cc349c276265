// SPDX-License-Identifier: MIT
#include "desktop/photos_ui/grid/edge_scrolling.h"

#include <algorithm>
#include <utility>

#include "desktop/uikit/scrolling/ui_scroll_view.h"

namespace desktop::photos_ui {
namespace {

constexpr CGFloat zone = 60;       // points at either edge
constexpr CGFloat topSpeed = 900;  // points a second
constexpr uikit::Seconds stepTime = 1.0 / 60;

}  // namespace

CGFloat edgeSpeed(CGFloat y, CGFloat height) {
  const CGFloat reach = std::min(zone, height / 3);
  if (reach <= 0) return 0;
  const CGFloat above = std::clamp((reach - y) / reach, 0.0, 1.0);
  const CGFloat below = std::clamp((y - (height - reach)) / reach, 0.0, 1.0);
  return topSpeed * (below - above);
}

void EdgeScrolling::follow(CGPoint finger, std::function<void()> scrolled) {
  const auto& scroll = _grid.scroll();
  const uikit::EdgeInsets bars = scroll.adjustedContentInset();
  const CGFloat height = _grid.view().bounds().size.height - bars.top - bars.bottom;
  _speed = edgeSpeed(finger.y - scroll.contentOffset().y - bars.top, height);
  _scrolled = std::move(scrolled);
  if (_speed == 0) return _next.cancel();
  if (!_next.isWaiting()) _next.callAfter(stepTime, [this] { step(); });
}

void EdgeScrolling::stop() {
  _next.cancel();
  _scrolled = nullptr;
}

// At the end of the content it waits for the finger to move.
void EdgeScrolling::step() {
  const auto scrolled = _scrolled;
  if (_grid.scroll().scrollBy({0, _speed * stepTime})) scrolled();
}

}  // namespace desktop::photos_ui
