// SPDX-License-Identifier: MIT
#include <cmath>

#include "samples/pictures/land.h"
#include "samples/pictures/noise.h"
#include "samples/pictures/scene_painters.h"
#include "samples/pictures/sky.h"
#include "samples/pictures/water.h"

namespace samples {

namespace {

// A palm leaf as a bent rib with leaflets at both sides, which droop.
void paintPalmLeaf(Picture& picture, Point root, float angle, float length, Rgb color) {
  constexpr int parts = 48;
  const auto ribAt = [&](float share) {
    return Point{root.x + length * share * std::cos(angle),
                 root.y + length * (share * std::sin(angle) + 0.62f * share * share)};
  };
  Point last = root;
  for (int part = 1; part <= parts; ++part) {
    const float share = static_cast<float>(part) / parts;
    const Point next = ribAt(share);
    strokeLine(picture, last, next, length * (0.022f - 0.014f * share), color);
    const float dx = (next.x - last.x) * parts / length;
    const float dy = (next.y - last.y) * parts / length;
    const float leaflet = length * 0.26f * std::sin(2.9f * share + 0.22f);
    for (const float side : {-1.0f, 1.0f}) {
      const Point tip{next.x + leaflet * (0.75f * dx - 0.55f * side * dy),
                      next.y + leaflet * (0.75f * dy + 0.55f * side * dx + 0.42f)};
      const Point blade[] = {{next.x - length * 0.012f * dx, next.y - length * 0.012f * dy},
                             tip,
                             {next.x + length * 0.012f * dx, next.y + length * 0.012f * dy}};
      fillPolygon(picture, blade, color);
    }
    last = next;
  }
}

void paintPalm(Picture& picture, Point foot, float height, float lean, Rgb color) {
  Point last = foot;
  for (int part = 1; part <= 20; ++part) {
    const float share = static_cast<float>(part) / 20;
    const Point next{foot.x + lean * share * share, foot.y - height * share};
    strokeLine(picture, last, next, height * (0.040f - 0.020f * share), color);
    last = next;
  }
  Random random(241);
  for (int leaf = 0; leaf < 9; ++leaf)
    paintPalmLeaf(picture, last,
                  -3.45f + 0.46f * static_cast<float>(leaf) + random.between(-0.12f, 0.12f),
                  height * random.between(0.36f, 0.48f), color);
}

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

// A wave that rolls in: a lit face below a crest of foam. `travel` is 0 far out, 1 at the shore.
void paintBreaker(Picture& picture, float travel, float phase, std::uint32_t seed) {
  const auto height = static_cast<float>(picture.height());
  const float line = 0.385f + 0.53f * travel * travel;
  const float rise = 0.006f + 0.085f * travel * smoothStep(1.0f, 0.8f, travel);
  const float nearness = 0.12f + travel;
  forEachPixel(
      picture, static_cast<int>((line - 2 * rise - 0.03f) * height),
      static_cast<int>((line + 3 * rise + 0.03f) * height), [&](Rgb& pixel, float x, float y) {
        const float u = (x - picture.aspect() / 2) / nearness;
        const float crest = line + 0.03f * travel * (noise(u * 0.9f, 0, seed) - 0.5f) -
                            rise * (0.5f + 1.0f * noise(u * 1.1f, 3, seed));
        const float down = (y - crest) / rise;
        if (down < -0.5f || down > 2.6f) return;
        const float face = smoothStep(-0.06f, 0.06f, down) * smoothStep(1.7f, 0.5f, down);
        const float lift =
            0.45f + 0.5f * (fractalNoise(u * 3, down * 1.6f - phase, 3, seed) - 0.5f);
        pixel = mix(pixel, mix(hexColor(0x1E5A6A), hexColor(0x8FDCCB), lift * (1.15f - down / 2)),
                    0.85f * face);
        const float spray = fractalNoise(u * 7, down * 2.4f - phase * 1.3f, 6, seed + 19);
        const float curl = std::abs(down - 0.12f);
        const float foam = smoothStep(0.50f, 0.66f, spray + 0.24f - 0.34f * curl);
        pixel = mix(pixel, mix(hexColor(0xC8DDE0), Rgb{1, 1, 0.98f}, spray * 1.3f), foam * 0.9f);
      });
}

}  // namespace

void paintTropicalSunset(Picture& picture, float phase) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {{0, hexColor(0x34407E)},
                               {0.22f, hexColor(0x8A5C9C)},
                               {0.42f, hexColor(0xE58A7E)},
                               {0.56f, hexColor(0xFCC27A)},
                               {0.62f, hexColor(0xFFE3A3)}};
  paintGradient(picture, sky);
  const Point sun{aspect * 0.42f, 0.555f};
  paintSun(picture, sun, 0.036f, hexColor(0xFFF6D6), hexColor(0x8A5A30));
  paintClouds(picture, {.horizon = 0.60f,
                        .cover = 0.45f,
                        .scale = 0.75f,
                        .opacity = 0.8f,
                        .light = hexColor(0xFFC79A),
                        .shade = hexColor(0x7C4F82),
                        .seed = 251});
  const SkyLine headland = ridgeLine(
      picture, {.base = 0.64f, .height = 0.03f, .scale = 3, .sharpness = 0.6f, .seed = 252});
  SkyLine crater = headland;
  raisePeak(picture, crater, aspect * 0.95f, 0.30f, 0.10f, 0.35f);
  paintLand(picture, crater,
            {.lit = hexColor(0x6E4A70),
             .shade = hexColor(0x4A3760),
             .haze = hexColor(0xC77E7C),
             .hazeAtCrest = 0.1f,
             .hazeAtFoot = 0.4f,
             .depth = 0.08f,
             .relief = 10,
             .seed = 253});
  paintWater(picture, {.horizon = 0.62f,
                       .depth = hexColor(0x3C3A6C),
                       .clearness = 0.72f,
                       .waves = 0.55f,
                       .glitter = hexColor(0xD08A48),
                       .sunX = sun.x,
                       .phase = phase,
                       .seed = 254});
  const SkyLine beach = ridgeLine(
      picture, {.base = 1.02f, .height = 0.12f, .scale = 0.9f, .sharpness = 0, .seed = 255});
  paintLand(picture, beach,
            {.lit = hexColor(0x4A3148),
             .shade = hexColor(0x38263E),
             .haze = hexColor(0x241A30),
             .hazeAtCrest = 0,
             .hazeAtFoot = 0.8f,
             .depth = 0.1f,
             .relief = 12,
             .seed = 256});
  paintPalm(picture, {aspect * 0.90f, 1.0f}, 0.62f, -0.16f, hexColor(0x1B1528));
  paintPalm(picture, {aspect * 0.98f, 1.0f}, 0.42f, -0.03f, hexColor(0x1B1528));
}

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

void paintLagoon(Picture& picture, float phase) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {
      {0, hexColor(0x3E8FD0)}, {0.25f, hexColor(0x86C2E8)}, {0.44f, hexColor(0xDFF2F2)}};
  paintGradient(picture, sky);
  paintClouds(picture, {.horizon = 0.43f,
                        .cover = 0.45f,
                        .scale = 0.7f,
                        .opacity = 0.95f,
                        .light = hexColor(0xFFFFFF),
                        .shade = hexColor(0xB4CCDC),
                        .seed = 281});
  SkyLine island = ridgeLine(
      picture, {.base = 0.445f, .height = 0.03f, .scale = 2, .sharpness = 0.5f, .seed = 282});
  raisePeak(picture, island, aspect * 0.70f, 0.34f, 0.20f, 0.45f);
  raisePeak(picture, island, aspect * 0.55f, 0.20f, 0.08f, 0);
  paintLand(picture, island,
            {.lit = hexColor(0x7FA487),
             .shade = hexColor(0x4C7A78),
             .haze = hexColor(0xA9D2D0),
             .hazeAtCrest = 0.15f,
             .hazeAtFoot = 0.5f,
             .depth = 0.2f,
             .relief = 9,
             .woods = 0.5f,
             .seed = 283});
  paintWater(picture, {.horizon = 0.43f,
                       .depth = hexColor(0x1F9DB0),
                       .clearness = 0.25f,
                       .waves = 0.35f,
                       .glitter = {},
                       .phase = phase,
                       .seed = 284});
  // Shallows: the water grows clear and then turns to sand.
  forEachPixel(picture, static_cast<int>(0.43f * static_cast<float>(picture.height())),
               picture.height(), [&](Rgb& pixel, float x, float y) {
                 const float shore = y + 0.16f * (fractalNoise(x * 1.4f, y * 3, 4, 285) - 0.5f) +
                                     0.10f * (x / aspect - 0.5f);
                 pixel = mix(pixel, hexColor(0x7FDCD0), 0.75f * smoothStep(0.50f, 0.72f, shore));
                 const float foam = std::exp(-std::pow((shore - 0.815f) * 60, 2.0f)) *
                                    smoothStep(0.3f, 0.6f, fractalNoise(x * 30, y * 30, 3, 286));
                 const Rgb sand = mix(hexColor(0xF6E6C4), hexColor(0xE6CFA4),
                                      fractalNoise(x * 60, y * 60, 3, 287));
                 pixel = mix(pixel, sand, smoothStep(0.79f, 0.83f, shore));
                 pixel = mix(pixel, {1, 1, 1}, foam * 0.9f);
               });
  paintPalm(picture, {aspect * 0.10f, 0.97f}, 0.60f, 0.18f, hexColor(0x2E5A3C));
  paintSailBoat(picture, {aspect * 0.42f, 0.53f}, 0.07f, hexColor(0xFFFFFF), hexColor(0xB5463C));
}

void paintSurf(Picture& picture, float phase) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {
      {0, hexColor(0x86A9CC)}, {0.25f, hexColor(0xD9DDDF)}, {0.36f, hexColor(0xFBE7CB)}};
  paintGradient(picture, sky);
  paintSun(picture, {aspect * 0.66f, 0.25f}, 0.035f, hexColor(0xFFFBEA), hexColor(0x7A6238));
  paintWater(picture, {.horizon = 0.36f,
                       .depth = hexColor(0x2F6F86),
                       .clearness = 0.5f,
                       .waves = 0.8f,
                       .glitter = hexColor(0x6A5A38),
                       .sunX = aspect * 0.66f,
                       .phase = phase,
                       .seed = 291});
  for (int breaker = 0; breaker < 4; ++breaker)
    paintBreaker(picture, std::fmod(static_cast<float>(breaker) / 4 + 0.1f + phase * 0.16f, 1.0f),
                 phase, 292 + static_cast<std::uint32_t>(breaker));
}

}  // namespace samples
