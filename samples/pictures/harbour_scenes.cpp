// SPDX-License-Identifier: MIT
//
// Huts and towers are drawn from their feet upwards, so a scene places them by where they stand;
// what stands at the water is painted before the water, which mirrors it. `phase` moves the waves.
#include <cmath>

#include "samples/pictures/land.h"
#include "samples/pictures/noise.h"
#include "samples/pictures/scene_painters.h"
#include "samples/pictures/sky.h"
#include "samples/pictures/water.h"

namespace samples {

namespace {

// A wooden house on piles, as fishermen have them in the north.
void paintHut(Picture& picture, Point foot, float size, Rgb wall) {
  const Point gable[] = {{foot.x, foot.y},
                         {foot.x, foot.y - size * 0.55f},
                         {foot.x + size * 0.5f, foot.y - size * 0.95f},
                         {foot.x + size, foot.y - size * 0.55f},
                         {foot.x + size, foot.y}};
  fillPolygon(picture, gable, wall);
  for (int board = 1; board < 12; ++board) {
    const float x = foot.x + size * static_cast<float>(board) / 12;
    strokeLine(picture, {x, foot.y}, {x, foot.y - size * 0.55f}, size * 0.008f, wall * 0.8f);
  }
  const Rgb roof = hexColor(0x3A3F48);
  strokeLine(picture, {foot.x - size * 0.06f, foot.y - size * 0.51f},
             {foot.x + size * 0.5f, foot.y - size * 0.97f}, size * 0.06f, roof);
  strokeLine(picture, {foot.x + size * 1.06f, foot.y - size * 0.51f},
             {foot.x + size * 0.5f, foot.y - size * 0.97f}, size * 0.06f, roof);
  for (const float x : {0.18f, 0.60f}) {
    fillRectangle(picture, {foot.x + size * x, foot.y - size * 0.42f},
                  {foot.x + size * (x + 0.22f), foot.y - size * 0.16f}, hexColor(0xF4EFE6));
    fillRectangle(picture, {foot.x + size * (x + 0.03f), foot.y - size * 0.39f},
                  {foot.x + size * (x + 0.19f), foot.y - size * 0.19f}, hexColor(0xF7C873));
  }
  for (int pile = 0; pile < 5; ++pile) {
    const float x = foot.x + size * (0.06f + 0.22f * static_cast<float>(pile));
    strokeLine(picture, {x, foot.y}, {x, foot.y + size * 0.16f}, size * 0.03f, hexColor(0x2B2A2C));
  }
}

// A lantern tower with its balcony, striped.
void paintTower(Picture& picture, Point foot, float height) {
  const auto halfAt = [&](float share) { return height * (0.085f - 0.035f * share); };
  constexpr int slices = 40;
  for (int slice = 0; slice < slices; ++slice) {
    const float from = static_cast<float>(slice) / slices;
    const float to = static_cast<float>(slice + 1) / slices;
    const float side = std::abs(from + 0.5f / slices - 0.38f);
    const Rgb shade = Rgb{1, 0.98f, 0.95f} * (1.02f - 0.75f * side * side - 0.25f * side);
    for (int band = 0; band < 6; ++band) {
      const float low = static_cast<float>(band) / 6;
      const float high = static_cast<float>(band + 1) / 6;
      const Rgb paint = band % 2 == 0 ? hexColor(0xF6F2EA) : hexColor(0xC4483B);
      const Rgb color{paint.red * shade.red, paint.green * shade.green, paint.blue * shade.blue};
      const Point strip[] = {
          {foot.x + halfAt(low) * (2 * from - 1), foot.y - height * low},
          {foot.x + halfAt(low) * (2 * to - 1) + picture.pixelSize(), foot.y - height * low},
          {foot.x + halfAt(high) * (2 * to - 1) + picture.pixelSize(), foot.y - height * high},
          {foot.x + halfAt(high) * (2 * from - 1), foot.y - height * high}};
      fillPolygon(picture, strip, color);
    }
  }
  const float top = foot.y - height;
  fillRectangle(picture, {foot.x - height * 0.075f, top - height * 0.012f},
                {foot.x + height * 0.075f, top + height * 0.012f}, hexColor(0x33363D));
  fillRectangle(picture, {foot.x - height * 0.042f, top - height * 0.10f},
                {foot.x + height * 0.042f, top - height * 0.012f}, hexColor(0xFFE9A8));
  for (const float bar : {-0.042f, -0.014f, 0.014f, 0.042f})
    strokeLine(picture, {foot.x + height * bar, top}, {foot.x + height * bar, top - height * 0.10f},
               height * 0.006f, hexColor(0x33363D));
  const Point roof[] = {{foot.x - height * 0.06f, top - height * 0.10f},
                        {foot.x, top - height * 0.17f},
                        {foot.x + height * 0.06f, top - height * 0.10f}};
  fillPolygon(picture, roof, hexColor(0xA8392F));
}

}  // namespace

void paintFishingHarbour(Picture& picture, float phase) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {{0, hexColor(0x7088B8)},
                               {0.3f, hexColor(0xB9B2CE)},
                               {0.5f, hexColor(0xF5C6B6)},
                               {0.62f, hexColor(0xFBDDB8)}};
  paintGradient(picture, sky);
  paintClouds(picture, {.horizon = 0.6f,
                        .cover = 0.4f,
                        .scale = 0.6f,
                        .opacity = 0.7f,
                        .light = hexColor(0xFFE0D2),
                        .shade = hexColor(0x9A8FB2),
                        .seed = 261});
  SkyLine peaks = ridgeLine(
      picture, {.base = 0.62f, .height = 0.26f, .scale = 1.8f, .sharpness = 1, .seed = 262});
  raisePeak(picture, peaks, aspect * 0.30f, 0.26f, 0.26f, 0);
  raisePeak(picture, peaks, aspect * 0.62f, 0.20f, 0.16f, 0);
  paintLand(picture, peaks,
            {.lit = hexColor(0xC0A4A8),
             .shade = hexColor(0x566083),
             .haze = hexColor(0xB7AFC6),
             .hazeAtCrest = 0.05f,
             .hazeAtFoot = 0.55f,
             .depth = 0.4f,
             .relief = 7,
             .snowLine = 0.42f,
             .seed = 263});
  const SkyLine shore = ridgeLine(
      picture, {.base = 0.70f, .height = 0.07f, .scale = 2, .sharpness = 0.6f, .seed = 264});
  paintLand(picture, shore,
            {.lit = hexColor(0x7A7480),
             .shade = hexColor(0x43465C),
             .haze = hexColor(0x5E6076),
             .hazeAtCrest = 0,
             .hazeAtFoot = 0.4f,
             .depth = 0.06f,
             .relief = 14,
             .snowLine = 0.675f,
             .seed = 265});
  constexpr Rgb walls[] = {hexColor(0xB5463C), hexColor(0xC9873A), hexColor(0xA63A34),
                           hexColor(0xD8D2C4), hexColor(0xB5463C)};
  for (int hut = 0; hut < 5; ++hut) {
    const float order = static_cast<float>(hut);
    paintHut(picture,
             {aspect * (0.40f + 0.115f * order), 0.69f - 0.006f * (hut % 2 == 0 ? 1.0f : 0.0f)},
             0.105f + 0.012f * order, walls[hut]);
  }
  paintWater(picture, {.horizon = 0.705f,
                       .depth = hexColor(0x34496A),
                       .clearness = 0.80f,
                       .waves = 0.22f,
                       .glitter = {},
                       .phase = phase,
                       .seed = 266});
  paintSailBoat(picture, {aspect * 0.20f, 0.84f}, 0.13f, hexColor(0xF6E8DA), hexColor(0x2F4A66));
}

void paintLighthouse(Picture& picture, float phase) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {
      {0, hexColor(0x4F8CC4)}, {0.35f, hexColor(0x9CC4E0)}, {0.62f, hexColor(0xF0EFE4)}};
  paintGradient(picture, sky);
  paintClouds(picture, {.horizon = 0.64f,
                        .cover = 0.5f,
                        .scale = 0.9f,
                        .opacity = 0.95f,
                        .light = hexColor(0xFFFFFF),
                        .shade = hexColor(0xAFC0D2),
                        .seed = 271});
  paintWater(picture, {.horizon = 0.64f,
                       .depth = hexColor(0x1D5A82),
                       .clearness = 0.4f,
                       .waves = 0.9f,
                       .glitter = hexColor(0x2C3438),
                       .sunX = aspect * 0.25f,
                       .phase = phase,
                       .seed = 272});
  SkyLine cliff(static_cast<std::size_t>(picture.width()));
  for (std::size_t column = 0; column < cliff.size(); ++column) {
    const float x = static_cast<float>(column) * picture.pixelSize();
    const float inland = smoothStep(aspect * 0.50f, aspect * 0.66f, x);
    cliff[column] = 1.15f - 0.60f * inland - 0.035f * fractalNoise(x * 6, 1, 6, 273) * inland;
  }
  paintLand(picture, cliff,
            {.lit = hexColor(0xC09C74),
             .shade = hexColor(0x5F4E4A),
             .haze = hexColor(0x7C6654),
             .hazeAtCrest = 0,
             .hazeAtFoot = 0.35f,
             .depth = 0.4f,
             .relief = 9,
             .lightFrom = -1,
             .seed = 274});
  SkyLine grass = cliff;
  for (std::size_t column = 0; column < grass.size(); ++column) {
    const float x = static_cast<float>(column) * picture.pixelSize();
    grass[column] += 0.02f + 0.02f * fractalNoise(x * 14, 2, 4, 275);
  }
  for (int column = 0; column < picture.width(); ++column) {
    const auto index = static_cast<std::size_t>(column);
    const float x = static_cast<float>(column) * picture.pixelSize();
    const float tone = fractalNoise(x * 40, 5, 3, 276);
    const auto height = static_cast<float>(picture.height());
    for (int row = static_cast<int>(cliff[index] * height);
         row < static_cast<int>(grass[index] * height); ++row)
      picture.blend(column, row, mix(hexColor(0x7F9A4A), hexColor(0x4F7038), tone), 0.95f);
  }
  paintTower(picture, {aspect * 0.80f, 0.555f}, 0.42f);
  paintSailBoat(picture, {aspect * 0.22f, 0.76f}, 0.075f, hexColor(0xFFFDF6), hexColor(0x324A60));
}

}  // namespace samples
