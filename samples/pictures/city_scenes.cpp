// SPDX-License-Identifier: MIT
//
// Each scene is painted from the back to the front: sky, what lies far away, water, then what
// stands near, smaller and paler with distance. Chance comes from fixed seeds, so a scene is the
// same each time; `phase` moves what would move in a film.
#include <cmath>

#include "samples/pictures/buildings.h"
#include "samples/pictures/land.h"
#include "samples/pictures/scene_painters.h"
#include "samples/pictures/sky.h"
#include "samples/pictures/water.h"

namespace samples {

namespace {

// An arch of steel over the water, its deck hung from it.
void paintBridge(Picture& picture, float left, float right, float deck, float rise, Rgb color) {
  const auto archAt = [&](float x, float height) {
    const float share = 2 * (x - left) / (right - left) - 1;
    return deck + 0.02f - height * (1 - share * share);
  };
  constexpr int parts = 60;
  const float step = (right - left) / parts;
  for (int part = 0; part < parts; ++part) {
    const float x = left + step * static_cast<float>(part);
    const float next = x + step;
    strokeLine(picture, {x, archAt(x, rise)}, {next, archAt(next, rise)}, 0.009f, color);
    strokeLine(picture, {x, archAt(x, rise * 0.80f)}, {next, archAt(next, rise * 0.80f)}, 0.007f,
               color);
    strokeLine(picture, {x, archAt(x, rise)}, {next, archAt(next, rise * 0.80f)}, 0.003f, color);
    strokeLine(picture, {x, archAt(x, rise * 0.8f)}, {x, deck}, 0.0025f, color);
  }
  fillRectangle(picture, {left - 0.5f, deck}, {right + 0.5f, deck + 0.014f}, color * 0.9f);
  for (const float x : {left - 0.02f, right - 0.03f})
    fillRectangle(picture, {x, deck - 0.09f}, {x + 0.05f, deck + 0.10f}, hexColor(0xB9A68C));
}

// Shells like sails, one behind another.
void paintShells(Picture& picture, Point foot, float size) {
  constexpr struct {
    float x, height, lean;
  } shells[] = {{0.0f, 0.62f, 0.42f},
                {0.30f, 0.95f, 0.48f},
                {0.62f, 0.80f, 0.44f},
                {0.95f, 0.58f, -0.40f},
                {1.15f, 0.40f, -0.34f}};
  for (const auto& shell : shells) {
    std::vector<Point> outline;
    for (int part = 0; part <= 24; ++part) {
      const float angle = 1.57079633f * static_cast<float>(part) / 24;
      outline.push_back({foot.x + size * (shell.x + shell.lean * (1 - std::cos(angle))),
                         foot.y - size * shell.height * std::sin(angle)});
    }
    outline.push_back({foot.x + size * (shell.x + shell.lean * 1.15f), foot.y});
    fillPolygon(picture, outline, hexColor(0xF9F3E6));
    const Point shade[] = {
        outline[24], outline[25], {foot.x + size * (shell.x + shell.lean * 0.55f), foot.y}};
    fillPolygon(picture, shade, hexColor(0xD3C6B6));
  }
  fillRectangle(picture, {foot.x - size * 0.15f, foot.y - size * 0.02f},
                {foot.x + size * 1.35f, foot.y + size * 0.10f}, hexColor(0xB79C84));
}

}  // namespace

void paintDuskSkyline(Picture& picture, float phase) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {{0, hexColor(0x1F2A5A)},
                               {0.25f, hexColor(0x4D4A8A)},
                               {0.45f, hexColor(0xB66C92)},
                               {0.60f, hexColor(0xF3A07C)},
                               {0.70f, hexColor(0xFBCB93)}};
  paintGradient(picture, sky);
  paintStars(picture, 0.4f, 0.05f, 301);
  paintMoon(picture, {aspect * 0.82f, 0.16f}, 0.030f, hexColor(0xF6F0E0));
  paintClouds(picture, {.horizon = 0.68f,
                        .cover = 0.25f,
                        .scale = 0.6f,
                        .opacity = 0.6f,
                        .light = hexColor(0xF5A58A),
                        .shade = hexColor(0x5E4A82),
                        .seed = 302});
  paintTowers(picture,
              {.foot = 0.70f,
               .lowest = 0.12f,
               .highest = 0.30f,
               .narrowest = 0.04f,
               .widest = 0.09f,
               .wall = hexColor(0x8A6A92),
               .haze = hexColor(0xE39A86),
               .windowShare = 0.15f,
               .window = 0.004f,
               .seed = 303},
              aspect * 0.6f);
  paintTowers(picture,
              {.foot = 0.70f,
               .lowest = 0.10f,
               .highest = 0.46f,
               .narrowest = 0.05f,
               .widest = 0.11f,
               .wall = hexColor(0x4A4470),
               .haze = hexColor(0xA4688A),
               .windowShare = 0.40f,
               .window = 0.006f,
               .seed = 304},
              aspect * 0.42f);
  paintTowers(picture,
              {.foot = 0.70f,
               .lowest = 0.08f,
               .highest = 0.22f,
               .narrowest = 0.06f,
               .widest = 0.14f,
               .wall = hexColor(0x2A2A4A),
               .haze = hexColor(0x4A3F62),
               .windowShare = 0.5f,
               .window = 0.007f,
               .seed = 305},
              aspect * 0.5f);
  paintWater(picture, {.horizon = 0.70f,
                       .depth = hexColor(0x232A56),
                       .clearness = 0.85f,
                       .waves = 0.35f,
                       .glitter = {},
                       .phase = phase,
                       .seed = 306});
}

void paintHarbourBridge(Picture& picture, float phase) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {
      {0, hexColor(0x4A8ACA)}, {0.35f, hexColor(0x9CC6E6)}, {0.58f, hexColor(0xF4EBDD)}};
  paintGradient(picture, sky);
  paintClouds(picture, {.horizon = 0.58f,
                        .cover = 0.4f,
                        .scale = 0.8f,
                        .opacity = 0.95f,
                        .light = hexColor(0xFFFFFF),
                        .shade = hexColor(0xBCC8D6),
                        .seed = 311});
  paintTowers(picture,
              {.foot = 0.60f,
               .lowest = 0.05f,
               .highest = 0.22f,
               .narrowest = 0.03f,
               .widest = 0.06f,
               .wall = hexColor(0xA9B4C4),
               .haze = hexColor(0xD9DAD4),
               .windowShare = 0,
               .window = 0,
               .seed = 312},
              aspect * 0.85f);
  paintBridge(picture, aspect * 0.08f, aspect * 0.66f, 0.53f, 0.22f, hexColor(0x69727E));
  const SkyLine park = ridgeLine(
      picture, {.base = 0.625f, .height = 0.06f, .scale = 2.4f, .sharpness = 0.5f, .seed = 313});
  paintLand(picture, park,
            {.lit = hexColor(0x7C9A5E),
             .shade = hexColor(0x476A4C),
             .haze = hexColor(0x8FA58C),
             .hazeAtCrest = 0.05f,
             .hazeAtFoot = 0.3f,
             .depth = 0.05f,
             .relief = 12,
             .woods = 1,
             .seed = 314});
  paintShells(picture, {aspect * 0.58f, 0.625f}, 0.20f);
  paintWater(picture, {.horizon = 0.64f,
                       .depth = hexColor(0x2A6A92),
                       .clearness = 0.48f,
                       .waves = 0.55f,
                       .glitter = hexColor(0x35383A),
                       .sunX = aspect * 0.3f,
                       .phase = phase,
                       .seed = 315});
  paintSailBoat(picture, {aspect * (0.20f + 0.012f * phase), 0.82f}, 0.13f, hexColor(0xFFFDF8),
                hexColor(0x2D3F5C));
  paintSailBoat(picture, {aspect * (0.46f - 0.008f * phase), 0.71f}, 0.06f, hexColor(0xF8F2E6),
                hexColor(0x8C3A34));
}

}  // namespace samples
