// SPDX-License-Identifier: MIT
//
// Pictures without depth: cells of a grid, each filled by its own chance from a few colours, and a
// screen of symbols and digits. Shapes have soft edges, so the patterns survive being scaled.
#include <array>
#include <cmath>

#include "samples/pictures/noise.h"
#include "samples/pictures/scene_painters.h"
#include "samples/pictures/sky.h"

namespace samples {

namespace {

constexpr Rgb muralColors[] = {hexColor(0xE9D8B4), hexColor(0xD9705A), hexColor(0x2F5D6E),
                               hexColor(0xF0B252), hexColor(0x7FA99B), hexColor(0x3A3A4E),
                               hexColor(0xF6EBDD), hexColor(0xB6506A)};

// A quarter of a disc around one corner of a cell (0 to 3, clockwise from the upper left).
void paintQuarter(Picture& picture, Point corner, float size, int turn, float radius, Rgb color) {
  const Point center{corner.x + (turn == 1 || turn == 2 ? size : 0),
                     corner.y + (turn >= 2 ? size : 0)};
  const float startAngle = 1.57079633f * static_cast<float>(turn);
  std::vector<Point> outline{center};
  for (int part = 0; part <= 40; ++part) {
    const float angle = startAngle + 1.57079633f * static_cast<float>(part) / 40;
    outline.push_back({center.x + radius * std::cos(angle), center.y + radius * std::sin(angle)});
  }
  fillPolygon(picture, outline, color);
}

void paintMuralCell(Picture& picture, Point corner, float size, Random& random) {
  const int ground = random.index(8);
  const auto other = [&](int step) { return muralColors[(ground + step) % 8]; };
  const float bleed = picture.pixelSize();
  fillRectangle(picture, corner, {corner.x + size + bleed, corner.y + size + bleed}, other(0));
  const int turn = random.index(4);
  const Point middle{corner.x + size / 2, corner.y + size / 2};
  switch (random.index(6)) {
    case 0:
      for (int ring = 0; ring < 4; ++ring)
        paintQuarter(picture, corner, size, turn, size * (1 - 0.25f * static_cast<float>(ring)),
                     other(ring % 2 == 0 ? 3 : 0));
      break;
    case 1:
      fillCircle(picture, middle, size * 0.46f, other(1));
      fillCircle(picture, middle, size * 0.22f, other(4));
      break;
    case 2:
      paintQuarter(picture, corner, size, turn, size, other(2));
      paintQuarter(picture, corner, size, (turn + 2) % 4, size * 0.5f, other(5));
      break;
    case 3: {
      const Point half[] = {corner, {corner.x + size, corner.y}, {corner.x, corner.y + size}};
      fillPolygon(picture, half, other(3));
      fillCircle(picture, {corner.x + size * 0.68f, corner.y + size * 0.68f}, size * 0.16f,
                 other(6));
      break;
    }
    case 4:
      for (int bar = 0; bar < 4; ++bar) {
        const float y = corner.y + size * (0.06f + 0.25f * static_cast<float>(bar));
        fillRectangle(picture, {corner.x, y}, {corner.x + size, y + size * 0.125f}, other(5));
      }
      break;
    default:
      paintQuarter(picture, corner, size, turn, size, other(1));
      paintQuarter(picture, corner, size, turn, size * 0.62f, other(6));
      break;
  }
}

// Glazed tiles, as one tile's colour at a position of -1 to 1 across it.
Rgb tileColor(float x, float y) {
  const float ax = std::abs(x);
  const float ay = std::abs(y);
  const float radius = std::hypot(x, y);
  const float angle = std::atan2(ay, ax);
  const float petal = 0.58f + 0.20f * std::cos(8 * angle);
  const Rgb white = hexColor(0xF4F1E6);
  const Rgb blue = hexColor(0x2B5C9E);
  const Rgb pale = hexColor(0x8FB4D9);
  const Rgb yellow = hexColor(0xE8B84A);
  Rgb color = white;
  color = mix(color, pale, smoothStep(petal + 0.012f, petal - 0.012f, radius));
  color = mix(color, blue, smoothStep(0.035f, 0.022f, std::abs(radius - petal)));
  color = mix(color, white, smoothStep(0.332f, 0.318f, radius));
  color = mix(color, blue, smoothStep(0.03f, 0.018f, std::abs(radius - 0.32f)));
  color = mix(color, yellow, smoothStep(0.15f, 0.135f, radius));
  const float corner = std::hypot(1 - ax, 1 - ay);
  color = mix(color, blue, smoothStep(0.44f, 0.425f, corner));
  color = mix(color, white, smoothStep(0.34f, 0.325f, corner));
  color = mix(color, yellow, smoothStep(0.22f, 0.205f, corner));
  return mix(color, hexColor(0xB9B2A4), smoothStep(0.975f, 0.99f, std::max(ax, ay)));
}

// A scale of clay: rings of its glaze and a paler one.
void paintScale(Picture& picture, Point center, float radius, Rgb glaze) {
  const Rgb pale = mix(glaze, hexColor(0xF6F1E2), 0.72f);
  for (int ring = 0; ring < 4; ++ring)
    fillCircle(picture, center, radius * (1 - 0.24f * static_cast<float>(ring)),
               ring % 2 == 0 ? glaze : pale);
}

// Seven strokes of a digit, as on a pocket calculator: top, upper left, upper right, middle,
// lower left, lower right, bottom.
void paintDigit(Picture& picture, Point corner, float height, int digit, Rgb color) {
  constexpr std::array<std::uint8_t, 10> strokes = {0x77, 0x24, 0x5D, 0x6D, 0x2E,
                                                    0x6B, 0x7B, 0x25, 0x7F, 0x6F};
  const float width = height * 0.5f;
  const float half = height / 2;
  const Point ends[7][2] = {{{0, 0}, {width, 0}},          {{0, 0}, {0, half}},
                            {{width, 0}, {width, half}},   {{0, half}, {width, half}},
                            {{0, half}, {0, height}},      {{width, half}, {width, height}},
                            {{0, height}, {width, height}}};
  for (std::size_t stroke = 0; stroke < 7; ++stroke) {
    if (((strokes[static_cast<std::size_t>(digit)] >> stroke) & 1) == 0) continue;
    const auto& [from, to] = ends[stroke];
    strokeLine(picture, {corner.x + from.x, corner.y + from.y}, {corner.x + to.x, corner.y + to.y},
               height * 0.10f, color);
  }
}

// A number of one or two digits whose last digit begins at the corner.
void paintNumber(Picture& picture, Point corner, float height, int number, Rgb color) {
  if (number >= 10) {
    const float advance = height * (number % 10 == 1 ? 0.36f : 0.78f);
    paintNumber(picture, {corner.x - advance, corner.y}, height, number / 10, color);
  }
  paintDigit(picture, corner, height, number % 10, color);
}

void paintSunSymbol(Picture& picture, Point center, float radius) {
  fillCircle(picture, center, radius, hexColor(0xFFD66B));
  for (int ray = 0; ray < 8; ++ray) {
    const float angle = 0.785398f * static_cast<float>(ray);
    strokeLine(
        picture,
        {center.x + radius * 1.35f * std::cos(angle), center.y + radius * 1.35f * std::sin(angle)},
        {center.x + radius * 1.75f * std::cos(angle), center.y + radius * 1.75f * std::sin(angle)},
        radius * 0.2f, hexColor(0xFFD66B));
  }
}

void paintCloudSymbol(Picture& picture, Point center, float radius, Rgb color) {
  fillCircle(picture, {center.x - radius * 0.8f, center.y}, radius * 0.62f, color);
  fillCircle(picture, {center.x, center.y - radius * 0.35f}, radius * 0.85f, color);
  fillCircle(picture, {center.x + radius * 0.85f, center.y}, radius * 0.6f, color);
  fillRounded(picture, {center.x - radius * 1.4f, center.y - radius * 0.05f},
              {center.x + radius * 1.42f, center.y + radius * 0.62f}, radius * 0.3f, color);
}

}  // namespace

void paintMural(Picture& picture, float) {
  constexpr int rows = 6;
  const float size = 1.0f / rows;
  Random random(421);
  const int columns = static_cast<int>(std::ceil(picture.aspect() * rows));
  for (int row = 0; row < rows; ++row)
    for (int column = 0; column < columns; ++column)
      paintMuralCell(picture, {size * static_cast<float>(column), size * static_cast<float>(row)},
                     size, random);
  // Paint on plaster: uneven, with a little sunlight from the left.
  forEachPixel(picture, [&](Rgb& pixel, float x, float y) {
    const float plaster = fractalNoise(x * 42, y * 42, 4, 422) - 0.5f;
    const float wash = fractalNoise(x * 2.2f, y * 2.2f, 3, 423) - 0.5f;
    pixel = pixel * (1 + 0.10f * plaster + 0.14f * wash + 0.06f * (1 - x / picture.aspect()));
  });
}

void paintTiles(Picture& picture, float) {
  constexpr float count = 5;  // tiles from top to bottom
  forEachPixel(picture, [&](Rgb& pixel, float x, float y) {
    const float column = std::floor(x * count);
    const float row = std::floor(y * count);
    const Rgb color = tileColor(2 * (x * count - column) - 1, 2 * (y * count - row) - 1);
    const float kiln =
        0.90f + 0.14f * hashUnit(static_cast<int>(column), static_cast<int>(row), 431);
    const float glaze = 0.06f * (fractalNoise(x * 9, y * 9, 3, 432) - 0.5f);
    pixel = color * (kiln + glaze);
  });
  addGlow(picture, {picture.aspect() * 0.3f, 0.2f}, 0.5f, hexColor(0x141210));
}

void paintScales(Picture& picture, float) {
  constexpr Rgb glazes[] = {hexColor(0x1F6F78), hexColor(0x2E8C8C), hexColor(0x5DB3A6),
                            hexColor(0xE9DFC4), hexColor(0xE2A857), hexColor(0x184E5C)};
  constexpr float radius = 0.085f;
  // From the top down, so that each row covers the lower half of the one above it.
  const int rows = static_cast<int>((1 + 2 * radius) / (radius / 2));
  const int columns = static_cast<int>((picture.aspect() + radius) / (2 * radius)) + 1;
  for (int row = 0; row <= rows; ++row)
    for (int column = 0; column < columns; ++column)
      paintScale(
          picture,
          {radius * static_cast<float>(2 * column + row % 2), radius / 2 * static_cast<float>(row)},
          radius, glazes[hashPoint(column, row, 451) % 6]);
  addGlow(picture, {picture.aspect() * 0.35f, 0.25f}, 0.6f, hexColor(0x181612));
}

void paintWeatherScreen(Picture& picture, float) {
  const float aspect = picture.aspect();
  constexpr ColorStop sky[] = {
      {0, hexColor(0x3D6CB4)}, {0.55f, hexColor(0x7FA9DC)}, {1, hexColor(0xC9D9EA)}};
  paintGradient(picture, sky);
  const Rgb white{1, 1, 1};
  const float margin = 0.03f;
  paintSunSymbol(picture, {aspect * 0.5f, 0.135f}, 0.042f);
  paintCloudSymbol(picture, {aspect * 0.5f + 0.045f, 0.165f}, 0.036f, hexColor(0xF4F8FD));
  paintNumber(picture, {aspect * 0.5f + 0.008f, 0.235f}, 0.085f, 21, white);
  fillCircle(picture, {aspect * 0.5f + 0.075f, 0.240f}, 0.011f, white);
  fillCircle(picture, {aspect * 0.5f + 0.075f, 0.240f}, 0.006f, hexColor(0x5682C2));
  // The hours: a curve of temperature over a card.
  fillRounded(picture, {margin, 0.37f}, {aspect - margin, 0.57f}, 0.018f, white, 0.20f);
  Point last{margin + 0.03f, 0.51f};
  for (int hour = 1; hour <= 60; ++hour) {
    const float share = static_cast<float>(hour) / 60;
    const Point next{margin + 0.03f + (aspect - 2 * margin - 0.06f) * share,
                     0.51f - 0.085f * std::pow(std::sin(3.0f * share + 0.05f), 2.0f)};
    strokeLine(picture, last, next, 0.005f, hexColor(0xFFE08A));
    if (hour % 10 == 0) fillCircle(picture, next, 0.008f, white);
    last = next;
  }
  // The days: one row each with a symbol, a bar from low to high, and two numbers.
  fillRounded(picture, {margin, 0.60f}, {aspect - margin, 0.96f}, 0.018f, white, 0.20f);
  Random random(441);
  for (int day = 0; day < 6; ++day) {
    const float y = 0.635f + 0.058f * static_cast<float>(day);
    if (day % 3 == 1)
      paintCloudSymbol(picture, {aspect * 0.16f, y}, 0.013f, white);
    else
      paintSunSymbol(picture, {aspect * 0.16f, y}, 0.010f);
    const int low = 9 + random.index(6);
    const int high = low + 5 + random.index(8);
    const float left = aspect * (0.42f + 0.014f * static_cast<float>(low - 9));
    const float right = aspect * (0.46f + 0.014f * static_cast<float>(high - 9));
    paintNumber(picture, {aspect * 0.33f, y - 0.0105f}, 0.021f, low, hexColor(0xE4EEF9));
    fillRounded(picture, {aspect * 0.42f, y - 0.004f}, {aspect * 0.78f, y + 0.004f}, 0.004f, white,
                0.25f);
    fillRounded(picture, {left, y - 0.004f}, {right, y + 0.004f}, 0.004f, hexColor(0xFFD66B));
    paintNumber(picture, {aspect * 0.88f, y - 0.0105f}, 0.021f, high, white);
    if (day > 0)
      fillRectangle(picture, {margin + 0.02f, y - 0.030f}, {aspect - margin - 0.02f, y - 0.029f},
                    white, 0.25f);
  }
}

}  // namespace samples
