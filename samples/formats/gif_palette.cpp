// SPDX-License-Identifier: MIT
#include "samples/formats/gif_palette.h"

#include <array>
#include <limits>
#include <span>

namespace samples {

namespace {

constexpr std::size_t paletteSize = 256;

float part(const Rgb& color, int index) {
  return index == 0 ? color.red : index == 1 ? color.green : color.blue;
}

struct Spread {
  int index = 0;  // of the channel that spreads most
  float size = 0;
};

Spread widestSpread(std::span<const Rgb> colors) {
  Spread widest;
  for (int index = 0; index < 3; ++index) {
    const auto [low, high] = std::minmax_element(
        colors.begin(), colors.end(),
        [&](const Rgb& a, const Rgb& b) { return part(a, index) < part(b, index); });
    const float size = part(*high, index) - part(*low, index);
    if (size > widest.size) widest = {index, size};
  }
  return widest;
}

Rgb meanColor(std::span<const Rgb> colors) {
  Rgb sum;
  for (const Rgb& color : colors) sum = sum + color;
  return sum * (1 / static_cast<float>(colors.size()));
}

// The nearest colour for each of 32 x 32 x 32 cells of the colour space.
class NearestColor {
 public:
  explicit NearestColor(const std::vector<Rgb>& palette) : _palette(palette) {}

  std::uint8_t operator()(const Rgb& color) {
    const std::size_t cell =
        cellOf(color.red) * 1024 + cellOf(color.green) * 32 + cellOf(color.blue);
    if (_known[cell] < 0) _known[cell] = search(color);
    return static_cast<std::uint8_t>(_known[cell]);
  }

 private:
  static std::size_t cellOf(float value) { return static_cast<std::size_t>(quantized(value, 31)); }

  std::int16_t search(const Rgb& color) const {
    std::int16_t best = 0;
    float least = std::numeric_limits<float>::max();
    for (std::size_t index = 0; index < _palette.size(); ++index) {
      float distance = 0;
      for (int channel = 0; channel < 3; ++channel) {
        const float difference = part(color, channel) - part(_palette[index], channel);
        distance += difference * difference;
      }
      if (distance >= least) continue;
      least = distance;
      best = static_cast<std::int16_t>(index);
    }
    return best;
  }

  const std::vector<Rgb>& _palette;
  std::vector<std::int16_t> _known = std::vector<std::int16_t>(std::size_t{32} * 32 * 32, -1);
};

constexpr std::array<std::array<int, 4>, 4> ditherMatrix = {
    {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}}};

}  // namespace

std::vector<Rgb> medianCutPalette(const std::vector<Picture>& pictures) {
  // Every fifth pixel each way is enough to know the colours.
  std::vector<Rgb> colors;
  for (const Picture& picture : pictures)
    for (int y = 0; y < picture.height(); y += 5)
      for (int x = 0; x < picture.width(); x += 5) colors.push_back(picture.at(x, y));
  std::vector<std::span<Rgb>> boxes{colors};
  while (boxes.size() < paletteSize) {
    const auto widest = std::max_element(
        boxes.begin(), boxes.end(),
        [](const auto& a, const auto& b) { return widestSpread(a).size < widestSpread(b).size; });
    const Spread spread = widestSpread(*widest);
    if (widest->size() < 2 || spread.size <= 0) break;
    std::sort(widest->begin(), widest->end(), [&](const Rgb& a, const Rgb& b) {
      return part(a, spread.index) < part(b, spread.index);
    });
    const std::size_t half = widest->size() / 2;
    const std::span<Rgb> upper = widest->subspan(half);
    *widest = widest->first(half);
    boxes.push_back(upper);
  }
  std::vector<Rgb> palette;
  palette.reserve(paletteSize);
  for (const std::span<Rgb>& box : boxes) palette.push_back(meanColor(box));
  palette.resize(paletteSize);
  return palette;
}

std::vector<std::uint8_t> paletteIndices(const Picture& picture, const std::vector<Rgb>& palette) {
  NearestColor nearest(palette);
  std::vector<std::uint8_t> indices;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      const int level =
          ditherMatrix[static_cast<std::size_t>(y % 4)][static_cast<std::size_t>(x % 4)];
      const float offset = (static_cast<float>(level) - 7.5f) / 16 * 0.03f;
      indices.push_back(nearest(picture.at(x, y) + Rgb{offset, offset, offset}));
    }
  }
  return indices;
}

}  // namespace samples
