// SPDX-License-Identifier: MIT
//
// Land is a line across the picture, a height for each column, and what lies below it is shaded by
// a relief that is computed from noise at each pixel: steeper towards the light is brighter,
// further away is mistier. Trees stand along such a line, each from its own chance.
#include "samples/pictures/land.h"

#include <cmath>

#include "samples/pictures/noise.h"
#include "samples/pictures/positions.h"

namespace samples {

namespace {

// The first row that the line may reach.
int topRow(const Picture& picture, const SkyLine& line) {
  const float top = *std::min_element(line.begin(), line.end());
  return static_cast<int>(top * static_cast<float>(picture.height())) - 1;
}

// Calls paint(pixel, coverage, x, y, below) for every pixel under the line; `below` is the distance
// to the line in heights of the picture, `coverage` how much of the pixel is under it.
template <typename Paint>
void forEachPixelBelow(Picture& picture, const SkyLine& line, Paint paint) {
  const float unit = picture.pixelSize();
  for (int row = std::max(topRow(picture, line), 0); row < picture.height(); ++row) {
    const float y = (static_cast<float>(row) + 0.5f) * unit;
    for (int column = 0; column < picture.width(); ++column) {
      const float below = y - line[static_cast<std::size_t>(column)];
      const float coverage = std::clamp(below / unit + 0.5f, 0.0f, 1.0f);
      if (coverage > 0)
        paint(picture.at(column, row), coverage, (static_cast<float>(column) + 0.5f) * unit, y,
              std::max(below, 0.0f));
    }
  }
}

// How much a slope faces the light, 0 to 1, from the difference of two heights of the relief.
float rockLight(float x, float y, const LandLook& look) {
  const float here = ridgedNoise(x, y, 4, look.seed);
  const float there = ridgedNoise(x + 0.07f * look.lightFrom, y - 0.03f, 4, look.seed);
  return std::clamp(0.5f + 3.4f * (here - there), 0.0f, 1.0f);
}

// Rolling ground with clumps of growth on it.
float woodLight(float x, float y, const LandLook& look) {
  const float ground = fractalNoise(x * 0.5f, y * 0.9f, 2, look.seed);
  const float growth = fractalNoise(x * 5, y * 9, 3, look.seed + 3);
  return std::clamp(0.5f + 1.1f * (ground - 0.5f) + 0.9f * (growth - 0.5f), 0.0f, 1.0f);
}

Rgb slopeColor(float x, float below, float y, const LandLook& look) {
  // Gullies run downhill: the relief is stretched along the fall line.
  const float u = x * look.relief;
  const float v = below * look.relief * 0.75f;
  float light = 0;
  if (look.woods < 1) light += (1 - look.woods) * rockLight(u + 0.35f * v, v, look);
  if (look.woods > 0) light += look.woods * woodLight(u, v, look);
  const Rgb ground = mix(look.shade, look.lit, light);
  if (y > look.snowLine + 0.12f) return ground;
  const float edge = look.snowLine + 0.16f * (fractalNoise(u, v * 0.7f, 4, look.seed + 5) - 0.5f);
  const float cover =
      smoothStep(edge + 0.02f, edge - 0.03f, y) * smoothStep(0, 0.3f, light + 0.05f);
  return mix(ground, mix(look.snowShade, look.snowLight, light), 0.95f * cover);
}

void paintConifer(Picture& picture, Point foot, float height, const Trees& trees, Random& random) {
  const float lean = random.between(-0.03f, 0.03f) * height;
  strokeLine(picture, foot, {foot.x + lean, foot.y - height * 0.98f}, height * 0.018f, trees.color);
  const int tiers = 9 + random.index(5);
  for (int tier = 0; tier < tiers; ++tier) {
    const float share = static_cast<float>(tier) / static_cast<float>(tiers);
    const float top = foot.y - height * (1 - share * 0.88f);
    const float drop = height * (0.09f + 0.09f * share);
    const float half = height * (0.025f + 0.17f * share) * random.between(0.75f, 1.15f);
    const float middle = foot.x + lean * (1 - share);
    const Point tierOutline[] = {{middle, top},
                                 {middle + half, top + drop * random.between(0.9f, 1.2f)},
                                 {middle + half * 0.35f, top + drop * 0.82f},
                                 {middle, top + drop},
                                 {middle - half * 0.4f, top + drop * 0.8f},
                                 {middle - half, top + drop * random.between(0.9f, 1.2f)}};
    fillPolygon(picture, tierOutline, trees.color);
  }
}

}  // namespace

SkyLine ridgeLine(const Picture& picture, const Ridge& ridge) {
  SkyLine line(static_cast<std::size_t>(picture.width()));
  for (std::size_t column = 0; column < line.size(); ++column) {
    const float x = static_cast<float>(column) * picture.pixelSize() * ridge.scale;
    const float rolling = fractalNoise(x, 0.5f, 2, ridge.seed);
    const float rock = 0.55f * fractalNoise(x, 0.5f, 8, ridge.seed) +
                       0.45f * ridgedNoise(x * 1.3f, 0.5f, 6, ridge.seed + 20);
    line[column] = ridge.base - ridge.height * std::lerp(rolling, rock, ridge.sharpness);
  }
  return line;
}

void raisePeak(const Picture& picture, SkyLine& line, float x, float width, float height,
               float flatness) {
  for (std::size_t column = 0; column < line.size(); ++column) {
    const float away = std::abs(static_cast<float>(column) * picture.pixelSize() - x) / width;
    const float slope = std::max(1 - away, 0.0f);
    const float raised = std::min(std::pow(slope, 1.35f) / (1 - 0.72f * flatness), 1.0f);
    line[column] -= height * raised;
  }
}

void raiseDome(const Picture& picture, SkyLine& line, float x, float width, float height) {
  for (std::size_t column = 0; column < line.size(); ++column) {
    const float away = (static_cast<float>(column) * picture.pixelSize() - x) / width;
    if (std::abs(away) < 1) line[column] -= height * std::pow(1 - away * away, 1.4f);
  }
}

void paintLand(Picture& picture, const SkyLine& line, const LandLook& look) {
  forEachPixelBelow(picture, line, [&](Rgb& pixel, float coverage, float x, float y, float below) {
    const float depth = smoothStep(0, look.depth, below);
    const Rgb slope = slopeColor(x, below, y, look);
    const Rgb color = mix(slope, look.haze, std::lerp(look.hazeAtCrest, look.hazeAtFoot, depth));
    pixel = mix(pixel, color, coverage);
  });
}

void paintDune(Picture& picture, const SkyLine& line, Rgb lit, Rgb shade, float lightFrom,
               std::uint32_t seed) {
  forEachPixelBelow(picture, line, [&](Rgb& pixel, float coverage, float x, float, float below) {
    // The crest wanders down the slope; what lies behind it is in shade.
    const float wander = 0.55f * fractalNoise(x * 1.5f, 2, 2, seed) + 0.25f;
    const float side = std::sin(x * 3.1f + static_cast<float>(seed % 7) + below * 5 * wander);
    const float light = smoothStep(-0.12f, 0.2f, side * lightFrom);
    const float ripple = std::sin((below * 210 + x * 60 + 9 * noise(x * 4, below * 9, seed)));
    const float grain = 0.018f * ripple * smoothStep(0.02f, 0.3f, below);
    const Rgb color = mix(shade, lit, std::clamp(light + grain * 2, 0.0f, 1.0f));
    pixel = mix(pixel, color * (1 + grain - 0.18f * smoothStep(0, 0.5f, below)), coverage);
  });
}

void paintConifers(Picture& picture, const SkyLine& line, const Trees& trees) {
  Random random(trees.seed);
  forEachPosition(
      -trees.spacing, picture.aspect() + trees.spacing,
      [&] { return trees.spacing * random.between(0.55f, 1.5f); },
      [&](float x) {
        const int column =
            std::clamp(static_cast<int>(x / picture.pixelSize()), 0, picture.width() - 1);
        const float foot = line[static_cast<std::size_t>(column)] + trees.height * 0.06f;
        paintConifer(picture, {x, foot}, trees.height * random.between(0.55f, 1.1f), trees, random);
      });
}

void paintWood(Picture& picture, const SkyLine& line, const Trees& trees) {
  paintConifers(picture, line, trees);
  forEachPixelBelow(picture, line, [&](Rgb& pixel, float coverage, float, float, float below) {
    const float mist = trees.mistStrength * smoothStep(0, trees.height * 1.6f, below);
    pixel = mix(pixel, mix(trees.color, trees.mist, mist), coverage);
  });
}

}  // namespace samples
