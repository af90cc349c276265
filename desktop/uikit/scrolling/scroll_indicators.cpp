// SPDX-License-Identifier: MIT
#include "desktop/uikit/scrolling/scroll_indicators.h"

#include <algorithm>

#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/graphics/canvas.h"

namespace desktop::uikit {
namespace {

constexpr Seconds fadesFor = 0.25;
constexpr CGFloat thickness = 2.5;
constexpr CGFloat margin = 3;  // from the edges
constexpr CGFloat leastLength = 36;
constexpr Color barColor = Color::white(0, 0.35);

struct Bar {
  CGFloat start;  // from the room's start
  CGFloat length;
};

bool isWorthABar(CGFloat content, CGFloat room) {
  return content > room && room > 2 * margin;
}

// Of a bar along a room of this length; what is pulled beyond the end presses the bar together.
Bar barFor(CGFloat offset, CGFloat content, CGFloat room) {
  const CGFloat track = room - 2 * margin;
  const CGFloat beyond = std::max({0.0, -offset, offset + room - content});
  const CGFloat length =
      std::clamp(track * room / content - beyond, std::min(leastLength, track), track);
  const CGFloat part = std::clamp(offset / (content - room), 0.0, 1.0);
  return {margin + part * (track - length), length};
}

CGRect verticalBar(CGRect seen, const ScrollContent& content) {
  const CGFloat whole = content.whole().height;
  if (!isWorthABar(whole, seen.size.height)) return {};
  const Bar bar = barFor(seen.origin.y + content.adjustedInset().top, whole, seen.size.height);
  return {{right(seen) - margin - thickness, seen.origin.y + bar.start}, {thickness, bar.length}};
}

CGRect horizontalBar(CGRect seen, const ScrollContent& content) {
  const CGFloat whole = content.whole().width;
  if (!isWorthABar(whole, seen.size.width)) return {};
  const Bar bar = barFor(seen.origin.x + content.adjustedInset().left, whole, seen.size.width);
  return {{seen.origin.x + bar.start, bottom(seen) - margin - thickness}, {bar.length, thickness}};
}

}  // namespace

ScrollIndicators::Bars ScrollIndicators::bars(CGRect seen, const ScrollContent& content) const {
  return {_showsVertical ? verticalBar(seen, content) : CGRect{},
          _showsHorizontal ? horizontalBar(seen, content) : CGRect{}};
}

double ScrollIndicators::alpha(Seconds now, bool isHeld) const {
  if (isHeld) return 1;
  const Seconds past = now - _shown - shownFor;
  return std::clamp(1 - past / fadesFor, 0.0, 1.0);
}

void ScrollIndicators::draw(Canvas& canvas, const Bars& bars, double alpha) {
  if (!(alpha > 0)) return;
  for (const CGRect& bar : bars)
    if (!isEmpty(bar)) canvas.fill(bar, barColor.withAlpha(barColor.alpha * alpha), thickness / 2);
}

}  // namespace desktop::uikit
