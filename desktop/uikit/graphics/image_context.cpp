// SPDX-License-Identifier: MIT
//
// Contexts nest: each one that begins becomes the current one until it ends. One of an absurd size
// is begun and ended like the others, but draws nothing and has no image.
#include "desktop/uikit/graphics/image_context.h"

#include <algorithm>
#include <cmath>
#include <memory>
#include <vector>

#include "bridge/coregraphics.h"
#include "bridge/runtime.h"
#include "desktop/platform.h"
#include "desktop/uikit/base/geometry.h"
#include "desktop/uikit/graphics/bitmap.h"
#include "desktop/uikit/graphics/ui_color.h"
#include "desktop/uikit/graphics/ui_image.h"

using desktop::uikit::Bitmap;
using desktop::uikit::Color;

struct CGContext {
  Bitmap bitmap;
  Color fill = desktop::uikit::colors::black;
};

namespace desktop::uikit {
namespace {

constexpr CGFloat longestSide = 8192;                // pixels
constexpr CGFloat largestArea = 16.0 * 1024 * 1024;  // pixels: 64 MiB

std::vector<std::unique_ptr<CGContext>>& contexts() {
  static auto& kept = *new std::vector<std::unique_ptr<CGContext>>;
  return kept;
}

// A fraction of a pixel counts as one.
std::unique_ptr<CGContext> makeContext(CGSize size) {
  const CGFloat width = std::ceil(size.width);
  const CGFloat height = std::ceil(size.height);
  const bool isSane = width >= 1 && height >= 1 && width <= longestSide && height <= longestSide &&
                      width * height <= largestArea;
  if (!isSane) return nullptr;
  auto context = std::make_unique<CGContext>();
  context->bitmap = {static_cast<int>(width), static_cast<int>(height), {}};
  context->bitmap.pixels.resize(static_cast<std::size_t>(width * height));
  return context;
}

CGContext* current() {
  return contexts().empty() ? nullptr : contexts().back().get();
}

// The context, where it has not ended.
CGContext* alive(CGContextRef context) {
  const bool isKnown = std::ranges::any_of(
      contexts(), [&](const auto& known) { return known && known.get() == context; });
  return isKnown ? context : nullptr;
}

// How much of the stretch from place to place + 1 lies between the ends.
double covered(int place, double from, double to) {
  return std::clamp(std::min(to, place + 1.0) - std::max(from, static_cast<double>(place)), 0.0,
                    1.0);
}

// The colour over a pixel, both multiplied by their alpha.
std::uint32_t over(std::uint32_t below, Color color, double coverage) {
  const double alpha = color.alpha * coverage;
  const auto channel = [&](int shift, double value) {
    const double under = (below >> shift) & 0xff;
    return static_cast<std::uint32_t>(std::lround(value * alpha * 255 + under * (1 - alpha)))
           << shift;
  };
  return channel(24, 1) | channel(16, color.red) | channel(8, color.green) | channel(0, color.blue);
}

void fill(Bitmap& bitmap, CGRect rect, Color color) {
  const CGRect whole = rectOfSize({CGFloat(bitmap.width), CGFloat(bitmap.height)});
  const CGRect inside = intersection(rect, whole);
  if (uikit::isEmpty(inside)) return;
  const auto lastRow = static_cast<int>(std::ceil(bottom(inside)));
  const auto lastColumn = static_cast<int>(std::ceil(right(inside)));
  for (int y = static_cast<int>(inside.origin.y); y < lastRow; ++y) {
    const double down = covered(y, inside.origin.y, bottom(inside));
    for (int x = static_cast<int>(inside.origin.x); x < lastColumn; ++x) {
      const double across = covered(x, inside.origin.x, right(inside));
      std::uint32_t& pixel =
          bitmap.pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(bitmap.width) +
                        static_cast<std::size_t>(x)];
      pixel = over(pixel, color, down * across);
    }
  }
}

// A rectangle of negative size reaches to the other side.
CGRect upright(CGRect rect) {
  if (rect.size.width < 0)
    rect = {{right(rect), rect.origin.y}, {-rect.size.width, rect.size.height}};
  if (rect.size.height < 0)
    rect = {{rect.origin.x, bottom(rect)}, {rect.size.width, -rect.size.height}};
  return rect;
}

}  // namespace

void provideImageContexts() {}

}  // namespace desktop::uikit

void UIGraphicsBeginImageContext(CGSize size) {
  desktop::uikit::contexts().push_back(desktop::uikit::makeContext(size));
}

CGContextRef UIGraphicsGetCurrentContext() {
  return desktop::uikit::current();
}

id UIGraphicsGetImageFromCurrentImageContext() {
  const CGContext* context = desktop::uikit::current();
  if (!context) return nullptr;
  return desktop::uikit::UIImageState::make(std::make_shared<const Bitmap>(context->bitmap), 1)
      .get();
}

void UIGraphicsEndImageContext() {
  if (!desktop::uikit::contexts().empty()) desktop::uikit::contexts().pop_back();
}

void CGContextSetFillColorWithColor(CGContextRef context, CGColorRef color) {
  if (CGContext* known = desktop::uikit::alive(context))
    known->fill = desktop::uikit::UIColorState::valueOf(color);
}

void CGContextFillRect(CGContextRef context, CGRect rect) {
  CGContext* known = desktop::uikit::alive(context);
  if (known && desktop::uikit::isFinite(rect))
    desktop::uikit::fill(known->bitmap, desktop::uikit::upright(rect), known->fill);
}
