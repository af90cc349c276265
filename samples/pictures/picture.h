// SPDX-License-Identifier: MIT
//
// A drawing surface of floating-point pixels, and what is done with whole pictures.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

namespace samples {

// A colour as a screen shows it (sRGB-encoded), each part 0 to 1.
struct Rgb {
  float red = 0;
  float green = 0;
  float blue = 0;
};

// 0xRRGGBB, as colours are written on the web.
constexpr Rgb hexColor(std::uint32_t code) {
  return {static_cast<float>((code >> 16) & 0xFF) / 255,
          static_cast<float>((code >> 8) & 0xFF) / 255, static_cast<float>(code & 0xFF) / 255};
}

constexpr Rgb operator*(Rgb color, float factor) {
  return {color.red * factor, color.green * factor, color.blue * factor};
}

constexpr Rgb operator+(Rgb a, Rgb b) {
  return {a.red + b.red, a.green + b.green, a.blue + b.blue};
}

// From `a` (0) to `b` (1).
constexpr Rgb mix(Rgb a, Rgb b, float share) {
  return a * (1 - share) + b * share;
}

// 0 at `from`, 1 at `to`, smooth between; `from` may be the greater one.
constexpr float smoothStep(float from, float to, float value) {
  const float t = std::clamp((value - from) / (to - from), 0.0f, 1.0f);
  return t * t * (3 - 2 * t);
}

// A colour at a position of a gradient.
struct ColorStop {
  float position = 0;
  Rgb color;
};

// The gradient's colour; outside its ends the end's colour. REQUIRES: stops in ascending order,
// at least one.
Rgb gradientColor(std::span<const ColorStop> stops, float position);

// Pixels in rows from the top. Scenes measure in heights of the picture: y runs from 0 (top) to 1,
// x from 0 to aspect().
class Picture {
 public:
  Picture(int width, int height)
      : _width(width),
        _height(height),
        _pixels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {}

  int width() const { return _width; }
  int height() const { return _height; }
  float aspect() const { return static_cast<float>(_width) / static_cast<float>(_height); }
  float pixelSize() const { return 1 / static_cast<float>(_height); }

  // REQUIRES: inside the picture.
  Rgb& at(int x, int y) { return _pixels[index(x, y)]; }
  const Rgb& at(int x, int y) const { return _pixels[index(x, y)]; }

  // The nearest pixel inside the picture.
  const Rgb& clamped(int x, int y) const {
    return at(std::clamp(x, 0, _width - 1), std::clamp(y, 0, _height - 1));
  }

  // The colour at a position in pixels, between the four pixels around it.
  Rgb sample(float x, float y) const;

  // Mixes a colour over a pixel by its coverage (0 to 1); outside the picture nothing happens.
  void blend(int x, int y, Rgb color, float coverage);

 private:
  std::size_t index(int x, int y) const {
    return static_cast<std::size_t>(y) * static_cast<std::size_t>(_width) +
           static_cast<std::size_t>(x);
  }

  int _width;
  int _height;
  std::vector<Rgb> _pixels;
};

// Calls paint(color, x, y) for every pixel of the rows [fromRow, toRow), with the middle of the
// pixel in heights of the picture.
template <typename Paint>
void forEachPixel(Picture& picture, int fromRow, int toRow, Paint paint) {
  const float unit = picture.pixelSize();
  for (int row = std::max(fromRow, 0); row < std::min(toRow, picture.height()); ++row) {
    const float y = (static_cast<float>(row) + 0.5f) * unit;
    for (int column = 0; column < picture.width(); ++column)
      paint(picture.at(column, row), (static_cast<float>(column) + 0.5f) * unit, y);
  }
}

template <typename Paint>
void forEachPixel(Picture& picture, Paint paint) {
  forEachPixel(picture, 0, picture.height(), paint);
}

// The picture as its pixels are stored under an EXIF orientation (1 to 8), so that a viewer that
// obeys the orientation shows `upright`.
Picture storedForOrientation(const Picture& upright, int orientation);

// The picture at another size, each new pixel the mean of what it covers. REQUIRES: not larger.
Picture reduced(const Picture& picture, int width, int height);

// Darkens the corners a little and adds the fine grain of a sensor.
void addFilmLook(Picture& picture, float vignette, float grain, std::uint32_t seed);

// Rounds 0..1 to 0..maximum, clamped.
constexpr int quantized(float value, int maximum) {
  const float scaled = std::clamp(value, 0.0f, 1.0f) * static_cast<float>(maximum);
  const int cut = static_cast<int>(scaled);
  return scaled - static_cast<float>(cut) < 0.5f ? cut : cut + 1;
}

// The pixels as red, green and blue bytes, in rows without padding.
std::vector<std::uint8_t> rgbBytes(const Picture& picture);

// The luminance of a colour (Rec. 709), 0 to 1.
constexpr float luminance(Rgb color) {
  return 0.2126f * color.red + 0.7152f * color.green + 0.0722f * color.blue;
}

}  // namespace samples
