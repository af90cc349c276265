// SPDX-License-Identifier: MIT
#include "samples/pictures/buildings.h"

#include <cmath>

#include "samples/pictures/positions.h"

namespace samples {

namespace {

void paintLitWindows(Picture& picture, const Towers& towers, float left, float top, float width,
                     Random& random) {
  constexpr Rgb lamps[] = {hexColor(0xFFD98A), hexColor(0xFFE9B8), hexColor(0xFFC46B),
                           hexColor(0xCFE4FF)};
  const float step = towers.window * 1.9f;
  const float floorShare = random.between(0.5f, 1.4f) * towers.windowShare;
  const auto paintWindow = [&](float x, float y) {
    if (random.unit() > floorShare) return;
    const Rgb lamp = lamps[random.index(4)];
    fillRectangle(picture, {x, y}, {x + towers.window, y + towers.window * 1.25f}, lamp,
                  random.between(0.35f, 0.95f));
  };
  forEachPosition(
      top + step, towers.foot - step, [&] { return step * 1.15f; },
      [&](float y) {
        forEachPosition(
            left + step * 0.5f, left + width - step * 0.3f - towers.window, [&] { return step; },
            [&](float x) { paintWindow(x, y); });
      });
}

void paintTower(Picture& picture, const Towers& towers, float left, float width, float height,
                Random& random) {
  const float top = towers.foot - height;
  const Rgb wall = towers.wall * random.between(0.82f, 1.2f);
  constexpr int bands = 24;
  for (int band = 0; band < bands; ++band) {
    const float from = static_cast<float>(band) / bands;
    const float to = static_cast<float>(band + 1) / bands;
    const float y = top + height * from;
    const Rgb color = mix(wall, towers.haze, from * from);
    fillRectangle(picture, {left, y}, {left + width * 0.62f, top + height * to}, color);
    fillRectangle(picture, {left + width * 0.62f, y}, {left + width, top + height * to},
                  color * 0.84f);
  }
  const int crown = random.index(5);
  if (crown == 0)
    fillRectangle(picture, {left + width * 0.2f, top - height * 0.07f}, {left + width * 0.8f, top},
                  wall * 0.95f);
  if (crown == 1)
    strokeLine(picture, {left + width * 0.5f, top}, {left + width * 0.5f, top - height * 0.2f},
               0.003f, wall);
  if (crown == 2) {
    const Point slope[] = {
        {left, top + 0.001f}, {left + width, top + 0.001f}, {left + width, top - width * 0.5f}};
    fillPolygon(picture, slope, wall * 0.9f);
  }
  if (towers.window > 0) paintLitWindows(picture, towers, left, top, width, random);
}

}  // namespace

void paintTowers(Picture& picture, const Towers& towers, float centerX) {
  Random random(towers.seed);
  for (float x = -towers.widest; x < picture.aspect();) {
    const float width = random.between(towers.narrowest, towers.widest);
    const float away = (x + width / 2 - centerX) / (picture.aspect() * 0.45f);
    const float center = std::exp(-away * away * 1.6f);
    const float reach = towers.lowest + (towers.highest - towers.lowest) * center;
    paintTower(picture, towers, x, width, random.between(0.55f, 1) * reach, random);
    x += width * random.between(0.92f, 1.25f);
  }
}

void paintHouse(Picture& picture, const House& house) {
  const auto [left, foot] = house.foot;
  const float top = foot - house.height;
  fillRectangle(picture, {left, top}, {left + house.width, foot}, house.wall);
  fillRectangle(picture, {left + house.width * 0.94f, top}, {left + house.width, foot},
                house.wall * 0.86f);
  if (house.stepped) {
    constexpr int steps = 4;
    for (int step = 0; step < steps; ++step) {
      const float inset = house.width * 0.115f * static_cast<float>(step + 1);
      const float low = top - house.gable * static_cast<float>(step) / steps;
      fillRectangle(picture, {left + inset, low - house.gable / steps},
                    {left + house.width - inset, low + 0.001f}, house.wall);
    }
  } else {
    const Point roof[] = {{left - house.width * 0.05f, top},
                          {left + house.width * 0.5f, top - house.gable},
                          {left + house.width * 1.05f, top}};
    fillPolygon(picture, roof, house.roof);
  }
  const float cell = house.width / static_cast<float>(house.columns);
  const float storey = house.height / static_cast<float>(house.storeys);
  for (int row = 0; row < house.storeys; ++row) {
    for (int column = 0; column < house.columns; ++column) {
      const Point corner{left + cell * (static_cast<float>(column) + 0.28f),
                         top + storey * (static_cast<float>(row) + 0.22f)};
      fillRectangle(picture, {corner.x - cell * 0.06f, corner.y - storey * 0.05f},
                    {corner.x + cell * 0.50f, corner.y + storey * 0.57f}, house.wall * 1.12f);
      fillRectangle(picture, corner, {corner.x + cell * 0.44f, corner.y + storey * 0.52f},
                    house.glass);
      strokeLine(picture, {corner.x + cell * 0.22f, corner.y},
                 {corner.x + cell * 0.22f, corner.y + storey * 0.52f}, cell * 0.04f,
                 house.wall * 1.12f);
    }
  }
}

}  // namespace samples
