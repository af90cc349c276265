// SPDX-License-Identifier: MIT
#include "samples/pictures/shapes.h"

#include <cmath>

namespace samples {

namespace {

constexpr int scanLinesPerRow = 4;

int toPixel(float position, const Picture& picture) {
  return static_cast<int>(std::floor(position * static_cast<float>(picture.height())));
}

// Calls distance(point) for every pixel of a box and fills by the signed distance to the shape's
// edge, negative inside.
template <typename Distance>
void fillByDistance(Picture& picture, Point topLeft, Point bottomRight, Rgb color, float opacity,
                    Distance distance) {
  const float unit = picture.pixelSize();
  const int right = std::min(toPixel(bottomRight.x, picture) + 1, picture.width() - 1);
  const int bottom = std::min(toPixel(bottomRight.y, picture) + 1, picture.height() - 1);
  for (int row = std::max(toPixel(topLeft.y, picture) - 1, 0); row <= bottom; ++row) {
    for (int column = std::max(toPixel(topLeft.x, picture) - 1, 0); column <= right; ++column) {
      const Point middle{(static_cast<float>(column) + 0.5f) * unit,
                         (static_cast<float>(row) + 0.5f) * unit};
      const float coverage = std::clamp(0.5f - distance(middle) / unit, 0.0f, 1.0f);
      picture.blend(column, row, color, coverage * opacity);
    }
  }
}

// Where the outline crosses a horizontal line, from left to right.
std::vector<float> crossings(std::span<const Point> corners, float y) {
  std::vector<float> found;
  for (std::size_t index = 0; index < corners.size(); ++index) {
    const Point& a = corners[index];
    const Point& b = corners[(index + 1) % corners.size()];
    if ((a.y <= y) == (b.y <= y)) continue;
    found.push_back(a.x + (b.x - a.x) * (y - a.y) / (b.y - a.y));
  }
  std::sort(found.begin(), found.end());
  return found;
}

// Blends one scan line between two positions, in pixels.
void blendSpan(Picture& picture, int row, float from, float to, Rgb color, float opacity) {
  from = std::max(from, 0.0f);
  to = std::min(to, static_cast<float>(picture.width()));
  for (int column = static_cast<int>(from); static_cast<float>(column) < to; ++column) {
    const float left = std::max(from, static_cast<float>(column));
    const float right = std::min(to, static_cast<float>(column) + 1);
    picture.blend(column, row, color, (right - left) * opacity);
  }
}

}  // namespace

void fillPolygon(Picture& picture, std::span<const Point> corners, Rgb color, float opacity) {
  const auto byY = [](const Point& a, const Point& b) { return a.y < b.y; };
  const auto [top, bottom] = std::minmax_element(corners.begin(), corners.end(), byY);
  const int firstRow = std::max(toPixel(top->y, picture), 0);
  const int lastRow = std::min(toPixel(bottom->y, picture), picture.height() - 1);
  const auto height = static_cast<float>(picture.height());
  for (int row = firstRow; row <= lastRow; ++row) {
    for (int line = 0; line < scanLinesPerRow; ++line) {
      const float offset = (static_cast<float>(line) + 0.5f) / scanLinesPerRow;
      const std::vector<float> edges =
          crossings(corners, (static_cast<float>(row) + offset) / height);
      // Each scan line covers its share of what the ones before it left of the pixel.
      const float share = opacity / (scanLinesPerRow - static_cast<float>(line) * opacity);
      for (std::size_t edge = 0; edge + 1 < edges.size(); edge += 2)
        blendSpan(picture, row, edges[edge] * height, edges[edge + 1] * height, color, share);
    }
  }
}

void fillRectangle(Picture& picture, Point topLeft, Point bottomRight, Rgb color, float opacity) {
  const Point corners[] = {
      topLeft, {bottomRight.x, topLeft.y}, bottomRight, {topLeft.x, bottomRight.y}};
  fillPolygon(picture, corners, color, opacity);
}

void fillRounded(Picture& picture, Point topLeft, Point bottomRight, float radius, Rgb color,
                 float opacity) {
  fillByDistance(picture, topLeft, bottomRight, color, opacity, [&](Point point) {
    const float x = std::max(topLeft.x + radius - point.x, point.x - bottomRight.x + radius);
    const float y = std::max(topLeft.y + radius - point.y, point.y - bottomRight.y + radius);
    const float outside = std::hypot(std::max(x, 0.0f), std::max(y, 0.0f));
    return outside + std::min(std::max(x, y), 0.0f) - radius;
  });
}

void fillCircle(Picture& picture, Point center, float radius, Rgb color, float opacity) {
  fillByDistance(picture, {center.x - radius, center.y - radius},
                 {center.x + radius, center.y + radius}, color, opacity, [&](Point point) {
                   return std::hypot(point.x - center.x, point.y - center.y) - radius;
                 });
}

void strokeLine(Picture& picture, Point from, Point to, float width, Rgb color, float opacity) {
  const float half = width / 2;
  const float dx = to.x - from.x;
  const float dy = to.y - from.y;
  const float lengthSquared = std::max(dx * dx + dy * dy, 1e-12f);
  fillByDistance(
      picture, {std::min(from.x, to.x) - half, std::min(from.y, to.y) - half},
      {std::max(from.x, to.x) + half, std::max(from.y, to.y) + half}, color, opacity,
      [&](Point point) {
        const float along = std::clamp(
            ((point.x - from.x) * dx + (point.y - from.y) * dy) / lengthSquared, 0.0f, 1.0f);
        return std::hypot(point.x - from.x - along * dx, point.y - from.y - along * dy) - half;
      });
}

void addGlow(Picture& picture, Point center, float radius, Rgb light) {
  const float reach = radius * 2.6f;
  const int top = toPixel(center.y - reach, picture);
  const int bottom = toPixel(center.y + reach, picture) + 1;
  forEachPixel(picture, top, bottom, [&](Rgb& pixel, float x, float y) {
    const float dx = (x - center.x) / radius;
    const float dy = (y - center.y) / radius;
    const float squared = dx * dx + dy * dy;
    if (squared < 2.6f * 2.6f) pixel = pixel + light * (std::exp(-squared) - 0.00116f);
  });
}

}  // namespace samples
