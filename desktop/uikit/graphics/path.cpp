// SPDX-License-Identifier: MIT
#include "desktop/uikit/graphics/path.h"

#include <algorithm>

namespace desktop::uikit {
namespace {

// How far a cubic curve's control points stand from its ends to follow a quarter of a circle.
constexpr CGFloat quarterArc = 0.5522847498307936;

}  // namespace

Path Path::rect(CGRect rect) {
  Path path;
  path.moveTo(rect.origin)
      .lineTo({right(rect), rect.origin.y})
      .lineTo({right(rect), bottom(rect)})
      .lineTo({rect.origin.x, bottom(rect)})
      .close();
  return path;
}

Path Path::roundedRect(CGRect rect, CGFloat radius) {
  const CGFloat r =
      std::clamp(radius, 0.0, std::max(0.0, std::min(rect.size.width, rect.size.height) / 2));
  const CGFloat c = r * (1 - quarterArc);
  const CGFloat x0 = rect.origin.x, y0 = rect.origin.y, x1 = right(rect), y1 = bottom(rect);
  Path path;
  path.moveTo({x0 + r, y0})
      .lineTo({x1 - r, y0})
      .curveTo({x1, y0 + r}, {x1 - c, y0}, {x1, y0 + c})
      .lineTo({x1, y1 - r})
      .curveTo({x1 - r, y1}, {x1, y1 - c}, {x1 - c, y1})
      .lineTo({x0 + r, y1})
      .curveTo({x0, y1 - r}, {x0 + c, y1}, {x0, y1 - c})
      .lineTo({x0, y0 + r})
      .curveTo({x0 + r, y0}, {x0, y0 + c}, {x0 + c, y0})
      .close();
  return path;
}

Path Path::ellipse(CGRect rect) {
  const CGPoint m = middle(rect);
  const CGFloat dx = rect.size.width / 2 * quarterArc, dy = rect.size.height / 2 * quarterArc;
  const CGFloat x0 = rect.origin.x, y0 = rect.origin.y, x1 = right(rect), y1 = bottom(rect);
  Path path;
  path.moveTo({m.x, y0})
      .curveTo({x1, m.y}, {m.x + dx, y0}, {x1, m.y - dy})
      .curveTo({m.x, y1}, {x1, m.y + dy}, {m.x + dx, y1})
      .curveTo({x0, m.y}, {m.x - dx, y1}, {x0, m.y + dy})
      .curveTo({m.x, y0}, {x0, m.y - dy}, {m.x - dx, y0})
      .close();
  return path;
}

Path& Path::moveTo(CGPoint point) {
  _elements.push_back({Step::move, point, {}, {}});
  return *this;
}

Path& Path::lineTo(CGPoint point) {
  _elements.push_back({Step::line, point, {}, {}});
  return *this;
}

Path& Path::curveTo(CGPoint point, CGPoint control1, CGPoint control2) {
  _elements.push_back({Step::curve, point, control1, control2});
  return *this;
}

Path& Path::close() {
  _elements.push_back({Step::close, {}, {}, {}});
  return *this;
}

CGRect Path::bounds() const {
  if (_elements.empty()) return {};
  CGPoint least = _elements[0].point;
  CGPoint most = least;
  const auto include = [&](CGPoint point) {
    least = {std::min(least.x, point.x), std::min(least.y, point.y)};
    most = {std::max(most.x, point.x), std::max(most.y, point.y)};
  };
  for (const Element& element : _elements) {
    if (element.step == Step::close) continue;
    include(element.point);
    if (element.step == Step::curve) include(element.control1), include(element.control2);
  }
  return {least, {most.x - least.x, most.y - least.y}};
}

}  // namespace desktop::uikit
