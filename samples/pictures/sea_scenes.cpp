// SPDX-License-Identifier: MIT
//
// Sky first, then water that mirrors it, then what rolls in or stands in front: breakers, palms
// from their foot to their leaves. `phase` moves the waves, so that scenes can be films.
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
