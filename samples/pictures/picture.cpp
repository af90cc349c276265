// SPDX-License-Identifier: MIT
#include "samples/pictures/picture.h"

#include <cmath>

#include "samples/pictures/noise.h"

namespace samples {

Rgb gradientColor(std::span<const ColorStop> stops, float position) {
  std::size_t next = 0;
  while (next < stops.size() && stops[next].position < position) ++next;
  if (next == 0) return stops.front().color;
  if (next == stops.size()) return stops.back().color;
  const ColorStop& low = stops[next - 1];
  const ColorStop& high = stops[next];
  return mix(low.color, high.color, (position - low.position) / (high.position - low.position));
}

Rgb Picture::sample(float x, float y) const {
  const float floorX = std::floor(x - 0.5f);
  const float floorY = std::floor(y - 0.5f);
  const float tx = x - 0.5f - floorX;
  const float ty = y - 0.5f - floorY;
  const int column = static_cast<int>(floorX);
  const int row = static_cast<int>(floorY);
  return mix(mix(clamped(column, row), clamped(column + 1, row), tx),
             mix(clamped(column, row + 1), clamped(column + 1, row + 1), tx), ty);
}

void Picture::blend(int x, int y, Rgb color, float coverage) {
  if (x < 0 || y < 0 || x >= _width || y >= _height || coverage <= 0) return;
  Rgb& pixel = at(x, y);
  pixel = mix(pixel, color, std::min(coverage, 1.0f));
}

Picture storedForOrientation(const Picture& upright, int orientation) {
  const bool turned = orientation >= 5;
  Picture stored(turned ? upright.height() : upright.width(),
                 turned ? upright.width() : upright.height());
  const int lastX = upright.width() - 1;
  const int lastY = upright.height() - 1;
  for (int y = 0; y < stored.height(); ++y) {
    for (int x = 0; x < stored.width(); ++x) {
      // Where the stored pixel is shown; the numbers are those of the EXIF tag Orientation.
      int shownX = x;
      int shownY = y;
      switch (orientation) {
        case 2:
          shownX = lastX - x;
          break;
        case 3:
          shownX = lastX - x;
          shownY = lastY - y;
          break;
        case 4:
          shownY = lastY - y;
          break;
        case 5:
          shownX = y;
          shownY = x;
          break;
        case 6:
          shownX = lastX - y;
          shownY = x;
          break;
        case 7:
          shownX = lastX - y;
          shownY = lastY - x;
          break;
        case 8:
          shownX = y;
          shownY = lastY - x;
          break;
        default:
          break;
      }
      stored.at(x, y) = upright.at(shownX, shownY);
    }
  }
  return stored;
}

Picture reduced(const Picture& picture, int width, int height) {
  Picture small(width, height);
  for (int y = 0; y < height; ++y) {
    const int top = y * picture.height() / height;
    const int bottom = std::max((y + 1) * picture.height() / height, top + 1);
    for (int x = 0; x < width; ++x) {
      const int left = x * picture.width() / width;
      const int right = std::max((x + 1) * picture.width() / width, left + 1);
      Rgb sum;
      for (int row = top; row < bottom; ++row)
        for (int column = left; column < right; ++column) sum = sum + picture.at(column, row);
      small.at(x, y) = sum * (1 / static_cast<float>((bottom - top) * (right - left)));
    }
  }
  return small;
}

void addFilmLook(Picture& picture, float vignette, float grain, std::uint32_t seed) {
  const float middleX = picture.aspect() / 2;
  const float reach = middleX * middleX + 0.25f;
  for (int row = 0; row < picture.height(); ++row) {
    const float y = (static_cast<float>(row) + 0.5f) * picture.pixelSize() - 0.5f;
    for (int column = 0; column < picture.width(); ++column) {
      const float x = (static_cast<float>(column) + 0.5f) * picture.pixelSize() - middleX;
      const float distance = (x * x + y * y) / reach;
      const float shade = 1 - vignette * distance * distance;
      // Two uniform numbers added: closer to a sensor's noise than one alone.
      const float speck = hashUnit(column, row, seed) + hashUnit(row, column, seed + 1) - 1;
      Rgb& pixel = picture.at(column, row);
      pixel = pixel * shade + Rgb{speck, speck, speck} * grain;
    }
  }
}

std::vector<std::uint8_t> rgbBytes(const Picture& picture) {
  std::vector<std::uint8_t> bytes;
  bytes.reserve(static_cast<std::size_t>(picture.width()) *
                static_cast<std::size_t>(picture.height()) * 3);
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const Rgb& pixel = picture.at(x, y);
      for (const float part : {pixel.red, pixel.green, pixel.blue})
        bytes.push_back(static_cast<std::uint8_t>(quantized(part, 255)));
    }
  }
  return bytes;
}

}  // namespace samples
