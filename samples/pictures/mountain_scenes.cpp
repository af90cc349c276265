// SPDX-License-Identifier: MIT
//
// Each scene is a sky, ridge lines with single peaks or domes raised from them, and what lies below
// each line, painted from the furthest to the nearest. Water mirrors what was painted above it.
#include "samples/pictures/land.h"
#include "samples/pictures/noise.h"
#include "samples/pictures/positions.h"
#include "samples/pictures/scene_painters.h"
#include "samples/pictures/sky.h"
#include "samples/pictures/water.h"

namespace samples {

void paintTableMountain(Picture& picture, float phase) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {
      {0, hexColor(0x3F7CC0)}, {0.35f, hexColor(0x86B4DE)}, {0.62f, hexColor(0xE6E7E0)}};
  paintGradient(picture, sky);
  paintClouds(picture, {.horizon = 0.6f,
                        .cover = 0.35f,
                        .scale = 0.9f,
                        .opacity = 0.85f,
                        .light = hexColor(0xFFFFFF),
                        .shade = hexColor(0xB9C6D6),
                        .seed = 31});
  SkyLine mountain =
      ridgeLine(picture, {.base = 0.64f, .height = 0.05f, .scale = 3, .sharpness = 1, .seed = 61});
  raisePeak(picture, mountain, aspect * 0.47f, 0.52f, 0.27f, 0.88f);
  raisePeak(picture, mountain, aspect * 0.83f, 0.17f, 0.24f, 0.10f);
  raisePeak(picture, mountain, aspect * 0.10f, 0.22f, 0.20f, 0.05f);
  paintLand(picture, mountain,
            {.lit = hexColor(0xB9A78E),
             .shade = hexColor(0x5C6673),
             .haze = hexColor(0xAFC0C8),
             .hazeAtCrest = 0.08f,
             .hazeAtFoot = 0.5f,
             .depth = 0.30f,
             .relief = 8,
             .lightFrom = -1,
             .seed = 62});
  const SkyLine foothills = ridgeLine(
      picture, {.base = 0.685f, .height = 0.09f, .scale = 2.1f, .sharpness = 0.35f, .seed = 63});
  paintLand(picture, foothills,
            {.lit = hexColor(0x84955F),
             .shade = hexColor(0x4B6A58),
             .haze = hexColor(0x9DB0A8),
             .hazeAtCrest = 0.1f,
             .hazeAtFoot = 0.35f,
             .depth = 0.1f,
             .relief = 14,
             .woods = 1,
             .lightFrom = -1,
             .seed = 64});
  paintWater(picture, {.horizon = 0.68f,
                       .depth = hexColor(0x1F5F86),
                       .clearness = 0.42f,
                       .waves = 0.7f,
                       .glitter = hexColor(0x2A3032),
                       .sunX = aspect * 0.2f,
                       .phase = phase,
                       .seed = 65});
  paintSailBoat(picture, {aspect * 0.68f, 0.80f}, 0.10f, hexColor(0xFBF7EE), hexColor(0x27415C));
  paintSailBoat(picture, {aspect * 0.27f, 0.735f}, 0.045f, hexColor(0xF5EFE4), hexColor(0x6B2F2F));
}

void paintFjord(Picture& picture, float phase) {
  constexpr ColorStop sky[] = {
      {0, hexColor(0x6F8FB3)}, {0.3f, hexColor(0xA9BED0)}, {0.55f, hexColor(0xF0DCC8)}};
  paintGradient(picture, sky);
  paintClouds(picture, {.horizon = 0.52f,
                        .cover = 0.6f,
                        .scale = 0.7f,
                        .opacity = 0.8f,
                        .light = hexColor(0xFFF1E2),
                        .shade = hexColor(0x8C9AB0),
                        .seed = 71});
  constexpr struct {
    Ridge ridge;
    LandLook look;
  } layers[] = {
      {{.base = 0.58f, .height = 0.20f, .scale = 2.4f, .sharpness = 1, .seed = 72},
       {.lit = hexColor(0xA9A3A8),
        .shade = hexColor(0x56657F),
        .haze = hexColor(0xC5CBD6),
        .hazeAtCrest = 0.15f,
        .hazeAtFoot = 0.75f,
        .depth = 0.28f,
        .relief = 7,
        .snowLine = 0.40f,
        .seed = 73}},
      {{.base = 0.64f, .height = 0.16f, .scale = 2.0f, .sharpness = 0.9f, .seed = 84},
       {.lit = hexColor(0x8B8A86),
        .shade = hexColor(0x3D4B60),
        .haze = hexColor(0x9FB0BD),
        .hazeAtCrest = 0.05f,
        .hazeAtFoot = 0.6f,
        .depth = 0.2f,
        .relief = 9,
        .snowLine = 0.44f,
        .seed = 75}},
  };
  constexpr struct {
    float x, width, height;
  } peaks[2][3] = {{{0.18f, 0.30f, 0.15f}, {0.52f, 0.34f, 0.22f}, {0.88f, 0.26f, 0.12f}},
                   {{0.02f, 0.34f, 0.22f}, {0.33f, 0.20f, 0.08f}, {0.97f, 0.36f, 0.24f}}};
  for (int layer = 0; layer < 2; ++layer) {
    SkyLine line = ridgeLine(picture, layers[layer].ridge);
    for (const auto& peak : peaks[layer])
      raisePeak(picture, line, picture.aspect() * peak.x, peak.width, peak.height, 0);
    paintLand(picture, line, layers[layer].look);
  }
  const SkyLine wood = ridgeLine(
      picture, {.base = 0.66f, .height = 0.10f, .scale = 1.2f, .sharpness = 0.3f, .seed = 76});
  paintWood(picture, wood,
            {.height = 0.035f,
             .spacing = 0.008f,
             .color = hexColor(0x33483F),
             .mist = hexColor(0x7F9490),
             .mistStrength = 0.6f,
             .seed = 77});
  paintWater(picture, {.horizon = 0.66f,
                       .depth = hexColor(0x2E4A5C),
                       .clearness = 0.72f,
                       .waves = 0.28f,
                       .glitter = {},
                       .phase = phase,
                       .seed = 78});
}

void paintVolcano(Picture& picture, float) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {{0, hexColor(0x5878B8)},
                               {0.25f, hexColor(0x93A6D0)},
                               {0.45f, hexColor(0xF2C9B0)},
                               {0.6f, hexColor(0xFBE3C2)}};
  paintGradient(picture, sky);
  paintClouds(picture, {.horizon = 0.55f,
                        .cover = 0.3f,
                        .scale = 0.8f,
                        .opacity = 0.8f,
                        .light = hexColor(0xFFE9D8),
                        .shade = hexColor(0xB58FA0),
                        .seed = 91});
  SkyLine cone =
      ridgeLine(picture, {.base = 0.60f, .height = 0.03f, .scale = 5, .sharpness = 1, .seed = 92});
  raisePeak(picture, cone, aspect * 0.52f, 0.62f, 0.32f, 0.12f);
  paintLand(picture, cone,
            {.lit = hexColor(0xC79A84),
             .shade = hexColor(0x62597A),
             .haze = hexColor(0xE3C2B4),
             .hazeAtCrest = 0,
             .hazeAtFoot = 0.75f,
             .depth = 0.30f,
             .relief = 9,
             .lightFrom = 1,
             .snowLine = 0.375f,
             .seed = 93});
  constexpr Rgb slopes[] = {hexColor(0x8C8A78), hexColor(0x5F7358), hexColor(0x3C5540),
                            hexColor(0x24382B)};
  for (int layer = 0; layer < 4; ++layer) {
    const float order = static_cast<float>(layer);
    const SkyLine hill = ridgeLine(picture, {.base = 0.66f + 0.11f * order,
                                             .height = 0.10f + 0.02f * order,
                                             .scale = 2.2f - 0.3f * order,
                                             .sharpness = 0.35f,
                                             .seed = 95 + static_cast<std::uint32_t>(layer)});
    paintLand(picture, hill,
              {.lit = slopes[layer] * 1.25f,
               .shade = slopes[layer] * 0.72f,
               .haze = mix(hexColor(0xE8CDB6), slopes[layer], 0.25f * order),
               .hazeAtCrest = 0.05f,
               .hazeAtFoot = 0.55f,
               .depth = 0.14f,
               .relief = 9,
               .woods = 1,
               .seed = 101 + static_cast<std::uint32_t>(layer)});
  }
}

void paintAlpineLake(Picture& picture, float phase) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {
      {0, hexColor(0x2F6DB5)}, {0.35f, hexColor(0x7FB2E0)}, {0.58f, hexColor(0xDDEBF2)}};
  paintGradient(picture, sky);
  paintClouds(picture, {.horizon = 0.56f,
                        .cover = 0.42f,
                        .scale = 0.8f,
                        .opacity = 0.95f,
                        .light = hexColor(0xFFFFFF),
                        .shade = hexColor(0xA6B8CE),
                        .seed = 111});
  SkyLine peaks = ridgeLine(
      picture, {.base = 0.58f, .height = 0.34f, .scale = 1.7f, .sharpness = 1, .seed = 112});
  raisePeak(picture, peaks, aspect * 0.38f, 0.30f, 0.20f, 0);
  paintLand(picture, peaks,
            {.lit = hexColor(0xB0A79E),
             .shade = hexColor(0x4D5A70),
             .haze = hexColor(0x9DB4CC),
             .hazeAtCrest = 0.05f,
             .hazeAtFoot = 0.55f,
             .depth = 0.34f,
             .relief = 7,
             .lightFrom = -1,
             .snowLine = 0.46f,
             .seed = 113});
  const SkyLine slope = ridgeLine(
      picture, {.base = 0.63f, .height = 0.16f, .scale = 1.3f, .sharpness = 0.5f, .seed = 114});
  paintLand(picture, slope,
            {.lit = hexColor(0x8CA45A),
             .shade = hexColor(0x3F6350),
             .haze = hexColor(0x86A79A),
             .hazeAtCrest = 0,
             .hazeAtFoot = 0.3f,
             .depth = 0.16f,
             .relief = 11,
             .woods = 0.85f,
             .lightFrom = -1,
             .seed = 115});
  const SkyLine wood = ridgeLine(
      picture, {.base = 0.66f, .height = 0.07f, .scale = 1.8f, .sharpness = 0.3f, .seed = 116});
  paintWood(picture, wood,
            {.height = 0.045f,
             .spacing = 0.010f,
             .color = hexColor(0x27473A),
             .mist = hexColor(0x4F7565),
             .mistStrength = 0.5f,
             .seed = 117});
  paintWater(picture, {.horizon = 0.655f,
                       .depth = hexColor(0x1E6E88),
                       .clearness = 0.62f,
                       .waves = 0.34f,
                       .glitter = {},
                       .phase = phase,
                       .seed = 118});
}

void paintGraniteBay(Picture& picture, float phase) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {{0, hexColor(0x4B7FB8)},
                               {0.3f, hexColor(0xA9C3D6)},
                               {0.5f, hexColor(0xF7DDB6)},
                               {0.62f, hexColor(0xF9C793)}};
  paintGradient(picture, sky);
  paintSun(picture, {aspect * 0.72f, 0.50f}, 0.035f, hexColor(0xFFF6DC), hexColor(0x8A6A3A));
  paintClouds(picture, {.horizon = 0.58f,
                        .cover = 0.38f,
                        .scale = 0.6f,
                        .opacity = 0.75f,
                        .light = hexColor(0xFFF0DA),
                        .shade = hexColor(0xB59AA2),
                        .seed = 121});
  constexpr Rgb tones[] = {hexColor(0xB7A2A0), hexColor(0x8C7E8A), hexColor(0x5E6273),
                           hexColor(0x3B4A57)};
  Random random(124);
  for (int layer = 0; layer < 4; ++layer) {
    const float order = static_cast<float>(layer);
    SkyLine hills = ridgeLine(picture, {.base = 0.60f + 0.025f * order,
                                        .height = 0.09f,
                                        .scale = 1.5f,
                                        .sharpness = 0.4f,
                                        .seed = 130 + static_cast<std::uint32_t>(layer)});
    forEachPosition(
        random.between(0, 0.8f), aspect, [&] { return random.between(0.5f, 1.3f); },
        [&](float x) {
          const float width = random.between(0.12f, 0.26f);
          raiseDome(picture, hills, x, width, random.between(0.06f, 0.26f));
        });
    paintLand(picture, hills,
              {.lit = tones[layer] * 1.12f,
               .shade = tones[layer] * 0.84f,
               .haze = mix(hexColor(0xF3CFA4), tones[layer], 0.2f * order),
               .hazeAtCrest = 0.1f,
               .hazeAtFoot = 0.6f,
               .depth = 0.2f,
               .relief = 6,
               .woods = 0.5f,
               .seed = 135 + static_cast<std::uint32_t>(layer)});
  }
  paintWater(picture, {.horizon = 0.675f,
                       .depth = hexColor(0x3B5F74),
                       .clearness = 0.65f,
                       .waves = 0.40f,
                       .glitter = hexColor(0x9A7038),
                       .sunX = aspect * 0.72f,
                       .phase = phase,
                       .seed = 139});
  forEachPosition(
      0.4f, aspect, [&] { return random.between(0.35f, 1.1f); },
      [&](float x) {
        const float y = random.between(0.71f, 0.86f);
        paintSailBoat(picture, {x, y}, random.between(0.03f, 0.07f), hexColor(0xFFF3E2),
                      hexColor(0x40424E));
      });
}

}  // namespace samples
