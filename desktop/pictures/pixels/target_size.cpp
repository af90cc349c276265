// SPDX-License-Identifier: MIT
#include "desktop/pictures/pixels/target_size.h"

#include <algorithm>
#include <cmath>

#include "desktop/pictures/pixels/limits.h"

namespace desktop::pictures {

namespace {

PixelSize scaled(PixelSize size, double factor) {
  const auto side = [factor](int length) {
    return std::max(1, static_cast<int>(std::lround(length * factor)));
  };
  return {side(size.width), side(size.height)};
}

}  // namespace

PixelSize targetSize(PixelSize image, const Request& request) {
  const double across = static_cast<double>(request.maxWidth) / image.width;
  const double down = static_cast<double>(request.maxHeight) / image.height;
  const bool fills = request.fit == Request::Fit::fill;
  double factor = std::min(1.0, fills ? std::max(across, down) : std::min(across, down));
  const double area = factor * image.width * factor * image.height;
  constexpr std::size_t largestCount = limits.pictureBytes / sizeof(std::uint32_t);
  const auto largestArea = static_cast<double>(largestCount);
  if (area > largestArea) factor *= std::sqrt(largestArea / area) * 0.999;  // whatever is rounded
  return scaled(image, factor);
}

bool covers(PixelSize inner, PixelSize outer) {
  return inner.width >= outer.width && inner.height >= outer.height;
}

bool hasSameAspect(PixelSize small, PixelSize large) {
  const double factor = static_cast<double>(small.width) / large.width;
  const double other = static_cast<double>(small.height) / large.height;
  return std::abs(large.height * factor - small.height) <= 1 ||
         std::abs(large.width * other - small.width) <= 1;
}

}  // namespace desktop::pictures
