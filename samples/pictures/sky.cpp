// SPDX-License-Identifier: MIT
#include "samples/pictures/sky.h"

#include <cmath>

#include "samples/pictures/noise.h"

namespace samples {

void paintGradient(Picture& picture, std::span<const ColorStop> stops) {
  for (int row = 0; row < picture.height(); ++row) {
    const float y = (static_cast<float>(row) + 0.5f) * picture.pixelSize();
    const Rgb color = gradientColor(stops, y);
    for (int column = 0; column < picture.width(); ++column) picture.at(column, row) = color;
  }
}

void paintSun(Picture& picture, Point center, float radius, Rgb disc, Rgb light) {
  addGlow(picture, center, radius * 9, light * 0.30f);
  addGlow(picture, center, radius * 3, light * 0.32f);
  addGlow(picture, center, radius * 1.5f, light * 0.3f);
  // Brighter than white, so that the disc stands out of its own glow.
  fillCircle(picture, center, radius, disc * 1.6f);
}

void paintMoon(Picture& picture, Point center, float radius, Rgb color) {
  addGlow(picture, center, radius * 4, color * 0.22f);
  fillCircle(picture, center, radius, color);
  Random random(71);
  for (int sea = 0; sea < 7; ++sea) {
    const float angle = random.between(0, 6.28f);
    const float away = radius * random.between(0, 0.6f);
    fillCircle(picture, {center.x + away * std::cos(angle), center.y + away * std::sin(angle)},
               radius * random.between(0.1f, 0.28f), color * 0.86f, 0.5f);
  }
}

void paintClouds(Picture& picture, const Clouds& clouds) {
  const int horizonRow = static_cast<int>(clouds.horizon * static_cast<float>(picture.height()));
  const float threshold = 0.72f - 0.42f * clouds.cover;
  forEachPixel(picture, 0, horizonRow, [&](Rgb& pixel, float x, float y) {
    // A flat layer of clouds seen from below: it crowds together towards the horizon.
    const float distance = 0.35f / (clouds.horizon - y + 0.12f);
    const float u = (x - 0.7f) * distance * 2.2f * clouds.scale;
    const float v = distance * 3.0f * clouds.scale;
    const float thickness = fractalNoise(u, v, 6, clouds.seed);
    const float coverage = smoothStep(threshold, threshold + 0.2f, thickness);
    if (coverage <= 0) return;
    const float towardsLight = fractalNoise(u + 0.12f, v + 0.16f, 4, clouds.seed);
    const float lit = std::clamp(0.55f + 3.2f * (towardsLight - thickness) + 0.35f * coverage -
                                     0.9f * (thickness - threshold),
                                 0.0f, 1.0f);
    const float nearHorizon = smoothStep(0, 0.16f, clouds.horizon - y);
    pixel = mix(pixel, mix(clouds.shade, clouds.light, lit),
                coverage * clouds.opacity * (0.25f + 0.75f * nearHorizon));
  });
}

void paintStars(Picture& picture, float horizon, float density, std::uint32_t seed) {
  constexpr float raster = 150;
  constexpr Rgb tints[] = {{1, 0.94f, 0.86f}, {0.86f, 0.92f, 1}, {1, 1, 1}, {1, 0.86f, 0.74f}};
  const int rows = static_cast<int>(horizon * raster);
  const int columns = static_cast<int>(picture.aspect() * raster) + 1;
  for (int row = 0; row < rows; ++row) {
    for (int column = 0; column < columns; ++column) {
      Random random(hashPoint(column, row, seed));
      if (random.unit() > density) continue;
      const Point center{(static_cast<float>(column) + random.unit()) / raster,
                         (static_cast<float>(row) + random.unit()) / raster};
      const float rank = random.unit();
      const float brightness = 0.15f + 0.85f * std::pow(rank, 6.0f);
      const float fade = smoothStep(0, 0.25f, horizon - center.y);
      const Rgb light = tints[random.index(4)] * (brightness * (0.3f + 0.7f * fade));
      addGlow(picture, center, 0.0007f + 0.0011f * brightness, light * 1.3f);
      if (rank > 0.985f) addGlow(picture, center, 0.007f, light * 0.18f);
    }
  }
}

void paintMilkyWay(Picture& picture, float horizon, Rgb glow, std::uint32_t seed) {
  const int horizonRow = static_cast<int>(horizon * static_cast<float>(picture.height()));
  const float aspect = picture.aspect();
  forEachPixel(picture, 0, horizonRow, [&](Rgb& pixel, float x, float y) {
    // Along and across a line that leans to the right.
    const float along = 0.62f * (x - aspect / 2) - 0.78f * (y - horizon / 2);
    const float bend = 0.05f * (fractalNoise(along * 3, 0, 3, seed + 9) - 0.5f);
    const float across = 0.78f * (x - aspect / 2) + 0.62f * (y - horizon / 2) + bend;
    const float band = std::exp(-across * across / 0.022f);
    if (band < 0.01f) return;
    const float cloud = fractalNoise(along * 5, across * 9, 6, seed);
    const float dust =
        smoothStep(0.44f, 0.66f, fractalNoise(along * 4 + 7, across * 14, 5, seed + 3));
    const float core = std::exp(-across * across / 0.004f);
    const float light = band * (0.25f + 0.9f * cloud * cloud) * (1 - 0.75f * dust * core);
    pixel = pixel + glow * (0.85f * light) + Rgb{0.2f, 0.13f, 0.09f} * (core * cloud * (1 - dust));
  });
}

void paintAurora(Picture& picture, float horizon, Rgb low, Rgb high, std::uint32_t seed) {
  const int horizonRow = static_cast<int>(horizon * static_cast<float>(picture.height()));
  constexpr int curtains = 3;
  forEachPixel(picture, 0, horizonRow, [&](Rgb& pixel, float x, float y) {
    for (int curtain = 0; curtain < curtains; ++curtain) {
      const auto own = seed + 31 * static_cast<std::uint32_t>(curtain);
      const float order = static_cast<float>(curtain);
      const float hem = horizon * (0.50f + 0.17f * order) +
                        0.34f * (fractalNoise(x * 1.1f + order * 5, 0, 2, own) - 0.5f) +
                        0.05f * (noise(x * 5.0f, 1, own) - 0.5f);
      const float above = hem - y;
      if (above < -0.03f) continue;
      const float rays = 0.35f + 0.9f * fractalNoise(x * 26, y * 0.7f, 3, own + 7);
      const float patches = smoothStep(0.30f, 0.62f, fractalNoise(x * 1.7f, 3, 2, own + 11));
      const float fall = std::exp(-std::max(above, 0.0f) * (5.0f + 2 * order));
      const float light = smoothStep(-0.03f, 0.015f, above) * fall * rays * patches;
      pixel = pixel + mix(low, high, smoothStep(0.05f, 0.38f, above)) * (0.55f * light);
    }
  });
}

}  // namespace samples
