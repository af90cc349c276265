// SPDX-License-Identifier: MIT
//
// The thin bars that say where in the content one is, for a moment after it moved.
#include <cmath>

#include "desktop/uikit/base/scheduler.h"
#include "desktop/uikit/base/screen.h"
#include "desktop/uikit/graphics/canvas.h"
#include "desktop/uikit/scrolling/ui_scroll_view.h"

namespace desktop::uikit {
namespace {

constexpr Seconds shownFor = 0.5;  // after the last movement
constexpr Seconds fadesFor = 0.25;
constexpr Seconds frame = 1.0 / 60;
constexpr CGFloat thickness = 2.5;
constexpr CGFloat margin = 3;  // from the edges
constexpr CGFloat leastLength = 36;
constexpr Color barColor = Color::white(0, 0.35);

struct Bar {
  CGFloat start;  // from the room's start
  CGFloat length;
};

// Of a bar along a room of this length; what is pulled beyond the end presses the bar together.
Bar barFor(CGFloat offset, CGFloat content, CGFloat room) {
  const CGFloat track = room - 2 * margin;
  const CGFloat beyond = std::max({0.0, -offset, offset + room - content});
  const CGFloat length =
      std::clamp(track * room / content - beyond, std::min(leastLength, track), track);
  const CGFloat part = std::clamp(offset / (content - room), 0.0, 1.0);
  return {margin + part * (track - length), length};
}

}  // namespace

double UIScrollView::indicatorAlpha() const {
  if (_isDragging) return 1;
  const Seconds past = scheduler().now() - _lastScrolled - shownFor;
  return std::clamp(1 - past / fadesFor, 0.0, 1.0);
}

CGRect UIScrollView::verticalIndicator() const {
  const CGRect seen = UIView::of(self()).bounds();
  const CGFloat content = _contentSize.height + _adjustedInset.top + _adjustedInset.bottom;
  if (!_showsVerticalIndicator || !(content > seen.size.height && seen.size.height > 2 * margin))
    return {};
  const Bar bar = barFor(seen.origin.y + _adjustedInset.top, content, seen.size.height);
  return {{right(seen) - margin - thickness, seen.origin.y + bar.start}, {thickness, bar.length}};
}

CGRect UIScrollView::horizontalIndicator() const {
  const CGRect seen = UIView::of(self()).bounds();
  const CGFloat content = _contentSize.width + _adjustedInset.left + _adjustedInset.right;
  if (!_showsHorizontalIndicator || !(content > seen.size.width && seen.size.width > 2 * margin))
    return {};
  const Bar bar = barFor(seen.origin.x + _adjustedInset.left, content, seen.size.width);
  return {{seen.origin.x + bar.start, bottom(seen) - margin - thickness}, {bar.length, thickness}};
}

void UIScrollView::drawIndicators(Canvas& canvas) const {
  const double alpha = indicatorAlpha();
  if (!(alpha > 0)) return;
  for (const CGRect& bar : {verticalIndicator(), horizontalIndicator()})
    if (!isEmpty(bar)) canvas.fill(bar, barColor.withAlpha(barColor.alpha * alpha), thickness / 2);
}

void UIScrollView::setShowsVerticalIndicator(bool shows) {
  _showsVerticalIndicator = shows;
  UIView::of(self()).setNeedsDisplay();
}

void UIScrollView::setShowsHorizontalIndicator(bool shows) {
  _showsHorizontalIndicator = shows;
  UIView::of(self()).setNeedsDisplay();
}

void UIScrollView::showIndicators() {
  const bool hasAny = !isEmpty(verticalIndicator()) || !isEmpty(horizontalIndicator());
  if (!hasAny || !UIView::of(self()).window()) return;
  _lastScrolled = scheduler().now();
  fadeIndicators();
  _fade.callAfter(shownFor, [this] { fadeIndicators(); });
}

// Asks for the bars to be painted again, until they are gone.
void UIScrollView::fadeIndicators() {
  const UIView& view = UIView::of(self());
  if (!view.window()) return;
  for (const CGRect& bar : {verticalIndicator(), horizontalIndicator()})
    if (!isEmpty(bar)) screen().damage.add(apply(view.toScreen(), bar));
  if (indicatorAlpha() > 0) _fade.callAfter(frame, [this] { fadeIndicators(); });
}

}  // namespace desktop::uikit
