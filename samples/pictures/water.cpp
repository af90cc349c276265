// SPDX-License-Identifier: MIT
#include "samples/pictures/water.h"

#include <cmath>

#include "samples/pictures/noise.h"

namespace samples {

namespace {

// Paints one row; `below` is its distance to the horizon.
void paintWaterRow(Picture& picture, const Water& water, int row, float below) {
  const auto height = static_cast<float>(picture.height());
  // A level surface: equal waves are drawn smaller and closer together towards the horizon.
  const float distance = 0.16f / (below + 0.012f);
  const float share = below / (1 - water.horizon);
  for (int column = 0; column < picture.width(); ++column) {
    const float x = (static_cast<float>(column) + 0.5f) * picture.pixelSize();
    const float u = (x - picture.aspect() / 2) * distance * 3;
    const float swell = fractalNoise(u, distance * 14 + water.phase, 3, water.seed) - 0.5f;
    const float ripple =
        noise(u * 7 + water.phase, distance * 60 + water.phase * 3, water.seed + 8) - 0.5f;
    const float tilt = (swell + 0.5f * ripple) * water.waves;
    const float mirroredY =
        water.horizon - below * 0.92f - std::abs(tilt) * (0.02f + 0.35f * below);
    const float mirroredX = x + tilt * (0.012f + 0.05f * share);
    const Rgb mirrored = picture.sample(mirroredX * height, mirroredY * height);
    const float fresnel =
        water.clearness * (1 - 0.45f * share) * (1 - 0.55f * std::max(tilt, 0.0f));
    Rgb color = mix(water.depth * (0.85f + 0.7f * (tilt + 0.15f)), mirrored, fresnel);
    const float width = 0.015f + 0.20f * below * (0.4f + water.waves);
    const float path = std::exp(-(x - water.sunX) * (x - water.sunX) / (width * width));
    const float sparkle = smoothStep(0.05f, 0.40f, swell + 0.8f * ripple + 0.22f * path);
    color = color + water.glitter * (path * (0.14f + 0.95f * sparkle));
    picture.at(column, row) = color;
  }
}

}  // namespace

void paintWater(Picture& picture, const Water& water) {
  const int firstRow = static_cast<int>(water.horizon * static_cast<float>(picture.height()));
  for (int row = std::max(firstRow, 0); row < picture.height(); ++row) {
    const float y = (static_cast<float>(row) + 0.5f) * picture.pixelSize();
    paintWaterRow(picture, water, row, std::max(y - water.horizon, 0.0f));
  }
}

void paintSailBoat(Picture& picture, Point foot, float size, Rgb sail, Rgb hull) {
  const Point main[] = {{foot.x + 0.02f * size, foot.y - size},
                        {foot.x + 0.02f * size, foot.y - 0.17f * size},
                        {foot.x + 0.44f * size, foot.y - 0.17f * size},
                        {foot.x + 0.22f * size, foot.y - 0.55f * size}};
  const Point jib[] = {{foot.x - 0.03f * size, foot.y - 0.86f * size},
                       {foot.x - 0.03f * size, foot.y - 0.17f * size},
                       {foot.x - 0.36f * size, foot.y - 0.17f * size}};
  const Point body[] = {{foot.x - 0.40f * size, foot.y - 0.12f * size},
                        {foot.x + 0.48f * size, foot.y - 0.12f * size},
                        {foot.x + 0.36f * size, foot.y},
                        {foot.x - 0.28f * size, foot.y}};
  fillPolygon(picture, main, sail);
  fillPolygon(picture, jib, sail * 0.93f);
  fillPolygon(picture, body, hull);
}

}  // namespace samples
