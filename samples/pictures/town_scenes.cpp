// SPDX-License-Identifier: MIT
//
// Houses and towers stand in rows from the furthest to the nearest; what is wet or water is painted
// after what it mirrors. `phase` moves the tram, the waves and the lamps, so that scenes can be
// films.
#include <cmath>

#include "samples/pictures/buildings.h"
#include "samples/pictures/land.h"
#include "samples/pictures/scene_painters.h"
#include "samples/pictures/sky.h"
#include "samples/pictures/water.h"

namespace samples {

namespace {

// A dome with a slim tower at each side.
void paintDomes(Picture& picture, Point foot, float size, Rgb stone, Rgb roof) {
  for (const float x : {-0.85f, 0.85f}) {
    const float middle = foot.x + size * x;
    fillRectangle(picture, {middle - size * 0.035f, foot.y - size * 1.25f},
                  {middle + size * 0.035f, foot.y}, stone);
    fillRectangle(picture, {middle - size * 0.055f, foot.y - size * 0.86f},
                  {middle + size * 0.055f, foot.y - size * 0.82f}, stone * 0.85f);
    const Point tip[] = {{middle - size * 0.045f, foot.y - size * 1.24f},
                         {middle, foot.y - size * 1.55f},
                         {middle + size * 0.045f, foot.y - size * 1.24f}};
    fillPolygon(picture, tip, roof);
  }
  fillRectangle(picture, {foot.x - size * 0.6f, foot.y - size * 0.40f},
                {foot.x + size * 0.6f, foot.y}, stone);
  constexpr struct {
    float x, y, radius;
  } domes[] = {{-0.45f, 0.40f, 0.20f}, {0.45f, 0.40f, 0.20f}, {0, 0.52f, 0.38f}};
  for (const auto& dome : domes) {
    std::vector<Point> outline;
    for (int part = 0; part <= 32; ++part) {
      const float angle = 3.14159265f * static_cast<float>(part) / 32;
      outline.push_back({foot.x + size * (dome.x - dome.radius * std::cos(angle)),
                         foot.y - size * (dome.y + dome.radius * 0.92f * std::sin(angle))});
    }
    fillPolygon(picture, outline, roof);
    fillRectangle(picture, {foot.x + size * (dome.x - dome.radius), foot.y - size * dome.y},
                  {foot.x + size * (dome.x + dome.radius), foot.y - size * (dome.y - 0.14f)},
                  stone * 0.94f);
    const float top = foot.y - size * (dome.y + dome.radius * 0.92f);
    strokeLine(picture, {foot.x + size * dome.x, top}, {foot.x + size * dome.x, top - size * 0.10f},
               size * 0.016f, hexColor(0xD8B45A));
  }
}

// Lamps in the distance, out of focus.
void paintBokeh(Picture& picture, float phase) {
  constexpr Rgb lamps[] = {hexColor(0xFFB45A), hexColor(0xFFD98A), hexColor(0xE8604A),
                           hexColor(0x7FB8E8), hexColor(0xF5E6C0)};
  Random random(331);
  for (int lamp = 0; lamp < 46; ++lamp) {
    const Point center{random.between(0, picture.aspect()), random.between(0.30f, 0.60f)};
    const float radius = random.between(0.012f, 0.045f);
    const float twinkle = 0.75f + 0.25f * std::sin(phase * 3 + static_cast<float>(lamp));
    fillCircle(picture, center, radius, lamps[random.index(5)], 0.28f * twinkle);
    fillCircle(picture, center, radius * 0.8f, {1, 0.95f, 0.85f}, 0.10f * twinkle);
  }
}

void paintTramCar(Picture& picture, float left, float foot, float width, float height) {
  const Rgb body = hexColor(0x2F6B4F);
  fillRounded(picture, {left, foot - height}, {left + width, foot}, height * 0.10f, body);
  fillRectangle(picture, {left, foot - height * 0.46f}, {left + width, foot - height * 0.10f},
                hexColor(0xE9DDBE));
  fillRounded(picture, {left + width * 0.02f, foot - height * 1.05f},
              {left + width * 0.98f, foot - height * 0.93f}, height * 0.05f, hexColor(0xB9B5A4));
  constexpr int windows = 7;
  for (int window = 0; window < windows; ++window) {
    const float x = left + width * (0.035f + 0.137f * static_cast<float>(window));
    fillRounded(picture, {x, foot - height * 0.86f}, {x + width * 0.108f, foot - height * 0.52f},
                height * 0.03f, hexColor(0xFFE2A0));
    fillRounded(picture, {x, foot - height * 0.86f}, {x + width * 0.108f, foot - height * 0.70f},
                height * 0.03f, hexColor(0xFFF3CF), 0.7f);
  }
  fillRectangle(picture, {left, foot - height * 0.10f}, {left + width, foot - height * 0.04f},
                body * 0.7f);
  for (const float share : {0.16f, 0.28f, 0.72f, 0.84f})
    fillCircle(picture, {left + width * share, foot}, height * 0.085f, hexColor(0x1C1C22));
  addGlow(picture, {left + width * 0.985f, foot - height * 0.25f}, height * 0.2f,
          hexColor(0x80663A));
  fillCircle(picture, {left + width * 0.975f, foot - height * 0.25f}, height * 0.045f,
             hexColor(0xFFF8DE));
  strokeLine(picture, {left + width * 0.45f, foot - height * 1.05f},
             {left + width * 0.55f, foot - height * 1.30f}, height * 0.018f, hexColor(0x22222A));
}

}  // namespace

void paintTram(Picture& picture, float phase) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {
      {0, hexColor(0x131B3C)}, {0.3f, hexColor(0x2B3566)}, {0.6f, hexColor(0x7A5578)}};
  paintGradient(picture, sky);
  paintTowers(picture,
              {.foot = 0.72f,
               .lowest = 0.30f,
               .highest = 0.52f,
               .narrowest = 0.14f,
               .widest = 0.26f,
               .wall = hexColor(0x262B4C),
               .haze = hexColor(0x4E4262),
               .windowShare = 0.35f,
               .window = 0.016f,
               .seed = 332},
              aspect * 0.5f);
  paintBokeh(picture, phase);
  fillRectangle(picture, {0, 0.72f}, {aspect, 1}, hexColor(0x23243A));
  const float left = aspect * (-0.15f + 0.10f * phase);
  strokeLine(picture, {0, 0.72f - 0.34f * 1.30f}, {aspect, 0.72f - 0.34f * 1.30f}, 0.003f,
             hexColor(0x1A1A26));
  paintTramCar(picture, left, 0.73f, 0.95f, 0.34f);
  paintWater(picture, {.horizon = 0.745f,
                       .depth = hexColor(0x1B1D30),
                       .clearness = 0.55f,
                       .waves = 0.28f,
                       .glitter = {},
                       .phase = 0,
                       .seed = 333});
  for (const float y : {0.80f, 0.87f})
    strokeLine(picture, {0, y}, {aspect, y}, 0.005f, hexColor(0x8C8CA0), 0.7f);
}

void paintRooftops(Picture& picture, float phase) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {{0, hexColor(0x7DA6CF)},
                               {0.28f, hexColor(0xC3D0D8)},
                               {0.45f, hexColor(0xF8DDB8)},
                               {0.55f, hexColor(0xF8C99A)}};
  paintGradient(picture, sky);
  paintSun(picture, {aspect * 0.20f, 0.34f}, 0.034f, hexColor(0xFFF8E0), hexColor(0x806034));
  const SkyLine far = ridgeLine(
      picture, {.base = 0.52f, .height = 0.08f, .scale = 1.4f, .sharpness = 0.2f, .seed = 341});
  paintLand(picture, far,
            {.lit = hexColor(0xC4AEB0),
             .shade = hexColor(0xB49EA6),
             .haze = hexColor(0xF0CFAC),
             .hazeAtCrest = 0.2f,
             .hazeAtFoot = 0.7f,
             .depth = 0.06f,
             .relief = 10,
             .seed = 342});
  paintWater(picture, {.horizon = 0.50f,
                       .depth = hexColor(0x7A98AC),
                       .clearness = 0.7f,
                       .waves = 0.4f,
                       .glitter = hexColor(0x7A5A30),
                       .sunX = aspect * 0.20f,
                       .phase = phase,
                       .seed = 343});
  paintDomes(picture, {aspect * 0.66f, 0.60f}, 0.26f, hexColor(0xD9C4AE), hexColor(0x7C8794));
  Random random(344);
  constexpr Rgb walls[] = {hexColor(0xF0DCC0), hexColor(0xE6C49C), hexColor(0xDDB0A0),
                           hexColor(0xC9CFC2), hexColor(0xF4E8D4)};
  for (int row = 0; row < 5; ++row) {
    const float nearness = static_cast<float>(row) / 4;
    for (float x = random.between(-0.2f, 0); x < aspect;) {
      const float width = (0.075f + 0.13f * nearness) * random.between(0.8f, 1.2f);
      const float top = random.between(-0.02f, 0.02f);
      paintHouse(picture,
                 {.foot = {x, 0.74f + 0.12f * static_cast<float>(row)},
                  .width = width,
                  .height = 0.16f + top + 0.06f * nearness,
                  .gable = 0.030f + 0.035f * nearness,
                  .wall = mix(walls[random.index(5)], hexColor(0xF8D9B4), 0.45f * (1 - nearness)),
                  .roof = mix(hexColor(0xC0654A), hexColor(0xE8B48E), 0.5f * (1 - nearness)) *
                          random.between(0.88f, 1.08f),
                  .storeys = 3,
                  .columns = 3,
                  .glass = mix(hexColor(0x5E6A78), hexColor(0xC9A98C), 0.5f * (1 - nearness))});
      x += width * random.between(0.98f, 1.12f);
    }
  }
}

void paintGables(Picture& picture, float phase) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {
      {0, hexColor(0x7E8FA6)}, {0.35f, hexColor(0xC2CCD4)}, {0.62f, hexColor(0xECE9E0)}};
  paintGradient(picture, sky);
  paintClouds(picture, {.horizon = 0.62f,
                        .cover = 0.6f,
                        .scale = 0.8f,
                        .opacity = 0.95f,
                        .light = hexColor(0xFFFFFF),
                        .shade = hexColor(0x7F8B9C),
                        .seed = 351});
  const Point spire[] = {
      {aspect * 0.30f, 0.50f}, {aspect * 0.345f, 0.06f}, {aspect * 0.39f, 0.50f}};
  fillPolygon(picture, spire, hexColor(0x5C6672));
  fillRectangle(picture, {aspect * 0.305f, 0.38f}, {aspect * 0.385f, 0.7f}, hexColor(0x9A9690));
  Random random(352);
  constexpr Rgb walls[] = {hexColor(0xD9C7A8), hexColor(0xB0786A), hexColor(0x9FB0AC),
                           hexColor(0xE5E0D2), hexColor(0xC79A6C), hexColor(0x8A95A8)};
  int last = -1;
  for (float x = -0.04f; x < aspect;) {
    const float width = random.between(0.14f, 0.21f);
    int wall = random.index(6);
    if (wall == last) wall = (wall + 1) % 6;
    last = wall;
    paintHouse(picture, {.foot = {x, 0.72f},
                         .width = width,
                         .height = random.between(0.28f, 0.38f),
                         .gable = random.between(0.09f, 0.13f),
                         .wall = walls[wall],
                         .roof = hexColor(0x6A4A44) * random.between(0.85f, 1.1f),
                         .storeys = 4,
                         .columns = 3,
                         .glass = hexColor(0x39434F),
                         .stepped = random.unit() < 0.5f});
    x += width * 1.01f;
  }
  fillRectangle(picture, {0, 0.715f}, {aspect, 0.745f}, hexColor(0x6E6A66));
  paintWater(picture, {.horizon = 0.742f,
                       .depth = hexColor(0x3A4750),
                       .clearness = 0.75f,
                       .waves = 0.30f,
                       .glitter = {},
                       .phase = phase,
                       .seed = 353});
}

}  // namespace samples
