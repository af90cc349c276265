// SPDX-License-Identifier: MIT
//
// Each scene goes from the sky to the foreground, ridge after ridge, with mist between them; plants
// in front are drawn one by one. Chance comes from fixed seeds, so a scene is the same each time.
#include <cmath>

#include "samples/pictures/land.h"
#include "samples/pictures/noise.h"
#include "samples/pictures/positions.h"
#include "samples/pictures/scene_painters.h"
#include "samples/pictures/sky.h"
#include "samples/pictures/water.h"

namespace samples {

namespace {

// One bamboo stem with its rings, from top to bottom of the picture; `lean` is how far its top
// stands beside its foot.
void paintStem(Picture& picture, float x, float width, float lean, Rgb color, Random& random) {
  const auto height = static_cast<float>(picture.height());
  for (int row = 0; row < picture.height(); ++row) {
    const float y = (static_cast<float>(row) + 0.5f) / height;
    const float left = (x - width / 2 + lean * (1 - y)) * height;
    const float right = left + width * height;
    for (int column = static_cast<int>(std::floor(left)); static_cast<float>(column) < right;
         ++column) {
      const float middle = static_cast<float>(column) + 0.5f;
      const float coverage = std::min(std::min(middle - left, right - middle) + 0.5f, 1.0f);
      const float side = 2 * std::abs((middle - left) / (right - left) - 0.42f);
      picture.blend(column, row, color * (1.18f - 0.62f * side * side), coverage);
    }
  }
  const auto paintRing = [&](float y) {
    const float middle = x + lean * (1 - y);
    fillRounded(picture, {middle - width * 0.54f, y}, {middle + width * 0.54f, y + width * 0.09f},
                width * 0.04f, mix(color * 1.3f, {0.9f, 0.92f, 0.8f}, 0.35f));
    fillRectangle(picture, {middle - width * 0.5f, y + width * 0.09f},
                  {middle + width * 0.5f, y + width * 0.17f}, color * 0.45f, 0.7f);
  };
  forEachPosition(
      random.between(0, 0.15f), 1, [&] { return random.between(0.13f, 0.19f); }, paintRing);
}

// Leaves that hang into the upper part of the picture, and the mist between two rows of stems.
void paintCrowns(Picture& picture, float nearness, Rgb leaf, Rgb mist, std::uint32_t seed) {
  forEachPixel(picture, [&](Rgb& pixel, float x, float y) {
    if (y < 0.75f) {
      const float leaves = fractalNoise(x * (13 - 5 * nearness), y * (15 - 6 * nearness), 3, seed);
      const float crown = smoothStep(0.50f, 0.62f, leaves + 0.22f * (0.35f - y));
      pixel = mix(pixel, mix(leaf, mist, 0.45f), 0.55f * crown * smoothStep(0.75f, 0.1f, y));
    }
    pixel = mix(pixel, mist, (1 - nearness) * 0.24f);
  });
}

}  // namespace

void paintHills(Picture& picture, float) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {
      {0, hexColor(0x8FB7D6)}, {0.3f, hexColor(0xCFE0DE)}, {0.5f, hexColor(0xFBE8BE)}};
  paintGradient(picture, sky);
  paintSun(picture, {aspect * 0.24f, 0.30f}, 0.04f, hexColor(0xFFFBE8), hexColor(0x7A6230));
  paintClouds(picture, {.horizon = 0.46f,
                        .cover = 0.3f,
                        .scale = 0.7f,
                        .opacity = 0.7f,
                        .light = hexColor(0xFFFFFF),
                        .shade = hexColor(0xC9C3C0),
                        .seed = 141});
  constexpr Rgb greens[] = {hexColor(0xB7C3A2), hexColor(0xA3B57C), hexColor(0xC2B267),
                            hexColor(0x8AA254), hexColor(0x6C8A45), hexColor(0x47692F)};
  for (int layer = 0; layer < 6; ++layer) {
    const float order = static_cast<float>(layer);
    const SkyLine hill = ridgeLine(picture, {.base = 0.50f + 0.10f * order,
                                             .height = 0.13f,
                                             .scale = 1.5f - 0.12f * order,
                                             .sharpness = 0,
                                             .seed = 150 + static_cast<std::uint32_t>(layer)});
    paintLand(picture, hill,
              {.lit = greens[layer] * 1.08f,
               .shade = greens[layer] * 0.88f,
               .haze = mix(hexColor(0xF4E6BE), greens[layer], 0.12f * order),
               .hazeAtCrest = 0.05f,
               .hazeAtFoot = 0.5f,
               .depth = 0.16f,
               .relief = 5 + order,
               .woods = 1,
               .lightFrom = -1,
               .seed = 160 + static_cast<std::uint32_t>(layer)});
    if (layer == 1 || layer == 3)
      paintConifers(picture, hill,
                    {.height = 0.03f + 0.012f * order,
                     .spacing = 0.09f,
                     .color = mix(hexColor(0x35502F), hexColor(0xF4E6BE), 0.3f - 0.08f * order),
                     .seed = 170 + static_cast<std::uint32_t>(layer)});
  }
}

void paintSaltShore(Picture& picture, float phase) {
  constexpr ColorStop sky[] = {
      {0, hexColor(0x6C9CCB)}, {0.3f, hexColor(0xB6CFDD)}, {0.46f, hexColor(0xF3E1D4)}};
  paintGradient(picture, sky);
  const SkyLine far = ridgeLine(
      picture, {.base = 0.46f, .height = 0.13f, .scale = 1.2f, .sharpness = 0.7f, .seed = 181});
  paintLand(picture, far,
            {.lit = hexColor(0xD8B7A6),
             .shade = hexColor(0xA98F9C),
             .haze = hexColor(0xEBD5CC),
             .hazeAtCrest = 0.25f,
             .hazeAtFoot = 0.75f,
             .depth = 0.1f,
             .relief = 9,
             .seed = 182});
  paintWater(picture, {.horizon = 0.455f,
                       .depth = hexColor(0x2F9BA6),
                       .clearness = 0.38f,
                       .waves = 0.3f,
                       .glitter = {},
                       .phase = phase,
                       .seed = 183});
  // Terraces of salt, whiter and broader towards the viewer.
  for (int terrace = 0; terrace < 9; ++terrace) {
    const float order = static_cast<float>(terrace);
    const SkyLine edge =
        ridgeLine(picture, {.base = 0.58f + 0.055f * order + 0.003f * order * order,
                            .height = 0.05f + 0.008f * order,
                            .scale = 2.6f - 0.12f * order,
                            .sharpness = 0.12f,
                            .seed = 190 + static_cast<std::uint32_t>(terrace)});
    const Rgb pool = mix(hexColor(0x6CC7C4), hexColor(0xA8E0D6), 0.1f * order);
    paintLand(picture, edge,
              {.lit = hexColor(0xFDF8F0),
               .shade = hexColor(0xDAD3D4),
               .haze = pool,
               .hazeAtCrest = 0,
               .hazeAtFoot = terrace == 8 ? 0.2f : 0.85f,
               .depth = 0.022f + 0.006f * order,
               .relief = 10,
               .lightFrom = -1,
               .seed = 200 + static_cast<std::uint32_t>(terrace)});
  }
}

void paintDunes(Picture& picture, float) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {
      {0, hexColor(0x4E86C2)}, {0.35f, hexColor(0xA7C6DD)}, {0.52f, hexColor(0xF6E2C8)}};
  paintGradient(picture, sky);
  constexpr struct {
    float base, height, scale;
    std::uint32_t lit, shade;
  } dunes[] = {{0.50f, 0.14f, 1.3f, 0xEBC9A2, 0xC99C7F},
               {0.60f, 0.24f, 0.9f, 0xEAB87F, 0xB0735A},
               {0.76f, 0.28f, 0.7f, 0xE8A765, 0x995A45},
               {0.98f, 0.34f, 0.6f, 0xE3974F, 0x804536}};
  std::uint32_t seed = 210;
  for (const auto& dune : dunes) {
    const SkyLine line = ridgeLine(picture, {.base = dune.base,
                                             .height = dune.height,
                                             .scale = dune.scale,
                                             .sharpness = 0,
                                             .seed = seed});
    paintDune(picture, line, hexColor(dune.lit), hexColor(dune.shade), -1, seed);
    ++seed;
  }
  addGlow(picture, {aspect * 0.1f, 0.2f}, 0.7f, hexColor(0x1C150C));
}

void paintBamboo(Picture& picture, float) {
  const float aspect = picture.aspect();
  constexpr ColorStop light[] = {
      {0, hexColor(0xEAF3C4)}, {0.5f, hexColor(0xB9D48C)}, {1, hexColor(0x5E8A4E)}};
  paintGradient(picture, light);
  addGlow(picture, {aspect * 0.55f, 0.30f}, 0.42f, hexColor(0x4A4A30));
  Random random(221);
  constexpr int depths = 4;
  for (int depth = 0; depth < depths; ++depth) {
    const float nearness = static_cast<float>(depth) / (depths - 1);
    const Rgb color = mix(hexColor(0xB4CF8A), hexColor(0x3D6B35), nearness);
    const float width = 0.012f + 0.050f * nearness * nearness;
    const float spacing = 0.035f + 0.17f * nearness;
    forEachPosition(
        random.between(-0.1f, 0.1f), aspect + 0.1f,
        [&] { return spacing * random.between(0.5f, 1.6f); },
        [&](float x) {
          const float lean = random.between(-0.05f, 0.05f);
          paintStem(picture, x, width * random.between(0.8f, 1.2f), lean,
                    color * random.between(0.9f, 1.1f), random);
        });
    paintCrowns(picture, nearness, color, mix(hexColor(0xE2EFB8), hexColor(0x6F9A55), nearness),
                230 + static_cast<std::uint32_t>(depth));
  }
}

}  // namespace samples
