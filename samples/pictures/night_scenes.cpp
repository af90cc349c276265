// SPDX-License-Identifier: MIT
#include "samples/pictures/land.h"
#include "samples/pictures/scene_painters.h"
#include "samples/pictures/sky.h"
#include "samples/pictures/water.h"

namespace samples {

void paintAuroraScene(Picture& picture, float phase) {
  constexpr ColorStop sky[] = {
      {0, hexColor(0x070B1E)}, {0.4f, hexColor(0x0E1B35)}, {0.72f, hexColor(0x1C3A4E)}};
  paintGradient(picture, sky);
  paintStars(picture, 0.7f, 0.10f, 4);
  paintAurora(picture, 0.72f, hexColor(0x4DF0A0), hexColor(0x6A4BC8), 12);
  const SkyLine far = ridgeLine(
      picture, {.base = 0.70f, .height = 0.17f, .scale = 2.2f, .sharpness = 1, .seed = 40});
  paintLand(picture, far,
            {.lit = hexColor(0x4A7280),
             .shade = hexColor(0x152636),
             .haze = hexColor(0x1C3F4A),
             .hazeAtCrest = 0.1f,
             .hazeAtFoot = 0.6f,
             .depth = 0.12f,
             .relief = 9,
             .snowLine = 0.655f,
             .snowLight = hexColor(0x7FA6AC),
             .snowShade = hexColor(0x2C4A5C),
             .seed = 3});
  paintWater(picture, {.horizon = 0.70f,
                       .depth = hexColor(0x0A1A26),
                       .clearness = 0.85f,
                       .waves = 0.16f,
                       .glitter = {},
                       .phase = phase,
                       .seed = 9});
  const SkyLine shore = ridgeLine(
      picture, {.base = 1.0f, .height = 0.16f, .scale = 1.3f, .sharpness = 0.2f, .seed = 52});
  paintWood(picture, shore,
            {.height = 0.15f,
             .spacing = 0.035f,
             .color = hexColor(0x050A10),
             .mist = hexColor(0x08131B),
             .mistStrength = 0.3f,
             .seed = 6});
}

void paintMilkyWayScene(Picture& picture, float) {
  constexpr ColorStop sky[] = {{0, hexColor(0x0A0D22)},
                               {0.5f, hexColor(0x151A38)},
                               {0.74f, hexColor(0x3A3350)},
                               {0.82f, hexColor(0x7A4F4A)}};
  paintGradient(picture, sky);
  paintMilkyWay(picture, 0.84f, hexColor(0x6E78B8), 21);
  paintStars(picture, 0.84f, 0.20f, 8);
  const SkyLine far = ridgeLine(
      picture, {.base = 0.86f, .height = 0.10f, .scale = 1.4f, .sharpness = 0.8f, .seed = 11});
  paintLand(picture, far,
            {.lit = hexColor(0x3A2F42),
             .shade = hexColor(0x241D30),
             .haze = hexColor(0x4A3A48),
             .hazeAtCrest = 0.2f,
             .hazeAtFoot = 0.6f,
             .depth = 0.1f,
             .relief = 7,
             .seed = 4});
  SkyLine near = ridgeLine(
      picture, {.base = 0.97f, .height = 0.08f, .scale = 1.1f, .sharpness = 0.7f, .seed = 17});
  raisePeak(picture, near, picture.aspect() * 0.88f, 0.40f, 0.24f, 0);
  raisePeak(picture, near, picture.aspect() * 0.70f, 0.18f, 0.07f, 0);
  paintLand(picture, near,
            {.lit = hexColor(0x1A1420),
             .shade = hexColor(0x0D0A14),
             .haze = hexColor(0x14101C),
             .hazeAtCrest = 0,
             .hazeAtFoot = 0.4f,
             .depth = 0.2f,
             .relief = 8,
             .seed = 5});
}

}  // namespace samples
