// SPDX-License-Identifier: MIT
//
// Fruit on a table: spheres and one plane, lit by a window, with soft shadows that are computed
// rather than sampled, so that there is no noise in them.
#include <cmath>
#include <optional>

#include "samples/pictures/noise.h"
#include "samples/pictures/scene_painters.h"
#include "samples/pictures/shapes.h"

namespace samples {

namespace {

struct Vector {
  float x = 0;
  float y = 0;
  float z = 0;
};

constexpr Vector operator+(Vector a, Vector b) {
  return {a.x + b.x, a.y + b.y, a.z + b.z};
}
constexpr Vector operator-(Vector a, Vector b) {
  return {a.x - b.x, a.y - b.y, a.z - b.z};
}
constexpr Vector operator*(Vector a, float f) {
  return {a.x * f, a.y * f, a.z * f};
}
constexpr float dot(Vector a, Vector b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
Vector normalized(Vector a) {
  return a * (1 / std::sqrt(dot(a, a)));
}

enum class Skin { orange, apple, lemon, plum, grape, lime };

struct Fruit {
  Vector center;
  float radius;
  Skin skin;
  float stretch = 1;  // along x, for lemons
};

struct Table {
  std::vector<Fruit> fruits;
  Rgb wallTop;
  Rgb wallBottom;
  Rgb wood;
  Rgb woodGrain;
};

constexpr Vector eye{0, 1.75f, -5.2f};
constexpr float zoom = 0.70f;  // smaller is closer
const Vector towardsWindow = normalized({-0.62f, 0.72f, -0.42f});

// Where a ray meets a fruit, in lengths of the direction.
std::optional<float> meet(const Fruit& fruit, Vector from, Vector direction) {
  Vector offset = from - fruit.center;
  offset.x /= fruit.stretch;
  direction.x /= fruit.stretch;
  const float a = dot(direction, direction);
  const float b = dot(offset, direction);
  const float c = dot(offset, offset) - fruit.radius * fruit.radius;
  const float root = b * b - a * c;
  if (root < 0) return std::nullopt;
  const float distance = (-b - std::sqrt(root)) / a;
  if (distance < 1e-3f) return std::nullopt;
  return distance;
}

// How much light of the window a point receives, with a soft edge around each fruit's shadow.
float windowLight(const Table& table, Vector point, const Fruit* self) {
  float light = 1;
  for (const Fruit& fruit : table.fruits) {
    if (&fruit == self) continue;
    const Vector offset = fruit.center - point;
    const float along = dot(offset, towardsWindow);
    if (along < 0) continue;
    const float away = std::sqrt(std::max(dot(offset, offset) - along * along, 0.0f));
    const float blur = 0.05f + 0.22f * along;
    light *= smoothStep(fruit.radius - blur * 0.7f, fruit.radius + blur, away);
  }
  return light;
}

// How much of the surroundings the fruits hide from a point.
float skyLight(const Table& table, Vector point, Vector normal, const Fruit* self) {
  float light = 1;
  for (const Fruit& fruit : table.fruits) {
    if (&fruit == self) continue;
    const Vector offset = fruit.center - point;
    const float squared = dot(offset, offset);
    const float facing = std::max(dot(normal, offset) / std::sqrt(squared), 0.0f);
    light *= 1 - std::min(facing * fruit.radius * fruit.radius / squared, 0.9f);
  }
  if (self != nullptr) light *= 0.6f + 0.4f * smoothStep(-1, 0.5f, normal.y);
  return light;
}

Rgb skinColor(const Fruit& fruit, Vector normal) {
  const float u = std::atan2(normal.z, normal.x) * 3;
  const float patches = fractalNoise(u * 0.8f, normal.y * 2.4f, 4, 401);
  const float streaks = fractalNoise(u * 9, normal.y * 1.3f, 3, 402);
  switch (fruit.skin) {
    case Skin::orange:
      return mix(hexColor(0xE8791A), hexColor(0xF5A03C), patches);
    case Skin::apple:
      return mix(hexColor(0xB3202A), hexColor(0xE8B44C),
                 smoothStep(0.42f, 0.95f, 0.85f * patches + 0.14f * streaks + 0.18f * normal.y));
    case Skin::lemon:
      return mix(hexColor(0xE9C21E), hexColor(0xF8E162), patches);
    case Skin::plum:
      return mix(hexColor(0x3C2450), hexColor(0x6E4A86), patches * patches * 1.4f);
    case Skin::grape:
      return mix(hexColor(0x9DB54A), hexColor(0xC9D67A), patches);
    case Skin::lime:
      return mix(hexColor(0x5C8F2C), hexColor(0x92B84A), patches);
  }
  return {};
}

// Peel has pores: the normal is shaken a little.
Vector roughened(const Fruit& fruit, Vector normal, Vector point) {
  const bool peel =
      fruit.skin == Skin::orange || fruit.skin == Skin::lemon || fruit.skin == Skin::lime;
  if (!peel) return normal;
  const float scale = 34;
  const float a = noise(point.x * scale, point.y * scale + point.z * scale, 403) - 0.5f;
  const float b = noise(point.y * scale, point.z * scale - point.x * scale, 404) - 0.5f;
  return normalized(normal + Vector{a, b, 0} * 0.13f);
}

Rgb shadeFruit(const Table& table, const Fruit& fruit, Vector point, Vector direction) {
  Vector smooth = point - fruit.center;
  smooth.x /= fruit.stretch * fruit.stretch;
  smooth = normalized(smooth);
  const Vector normal = roughened(fruit, smooth, point);
  const float window =
      std::max(dot(normal, towardsWindow), 0.0f) * windowLight(table, point, &fruit);
  const float sky = skyLight(table, point, normal, &fruit);
  const float bounce = 0.5f * std::max(-normal.y, 0.0f);
  const Rgb skin = skinColor(fruit, smooth);
  const Rgb lit =
      skin * (1.05f * window + 0.34f * sky) +
      Rgb{skin.red * table.wood.red, skin.green * table.wood.green, skin.blue * table.wood.blue} *
          (bounce * sky);
  const Vector half = normalized(towardsWindow - direction);
  const float gloss = fruit.skin == Skin::apple || fruit.skin == Skin::grape ? 90.0f : 26.0f;
  const float shine = std::pow(std::max(dot(normal, half), 0.0f), gloss);
  const float rim = std::pow(1 - std::max(-dot(normal, direction), 0.0f), 4.0f);
  // The dimple that the stalk stands in.
  const float dimple = fruit.skin == Skin::apple || fruit.skin == Skin::plum
                           ? 1 - 0.6f * smoothStep(0.955f, 0.995f, smooth.y)
                           : 1;
  return lit * dimple + Rgb{1, 0.97f, 0.9f} * (0.42f * shine * window) +
         Rgb{0.5f, 0.5f, 0.52f} * (0.16f * rim * sky);
}

Rgb shadeTable(const Table& table, Vector point) {
  const float board = std::floor(point.z * 1.7f);
  const float grain = fractalNoise(point.x * 0.9f + board * 7, point.z * 22, 5, 405);
  const float rings = 0.5f + 0.5f * std::sin(40 * fractalNoise(point.x * 0.35f + board * 3,
                                                               point.z * 3.2f, 3, 406));
  const float seam =
      smoothStep(0.0f, 0.035f, std::abs(point.z * 1.7f - std::round(point.z * 1.7f)));
  const Rgb wood =
      mix(table.wood, table.woodGrain, 0.5f * grain + 0.22f * rings) * (0.72f + 0.28f * seam);
  const float window = 0.72f * windowLight(table, point, nullptr);
  return wood * (0.95f * window + 0.44f * skyLight(table, point, {0, 1, 0}, nullptr));
}

Rgb trace(const Table& table, Vector direction, float screenY) {
  const Fruit* nearest = nullptr;
  float distance = direction.y < 0 ? -eye.y / direction.y : 1e9f;
  for (const Fruit& fruit : table.fruits) {
    const std::optional<float> hit = meet(fruit, eye, direction);
    if (!hit || *hit >= distance) continue;
    distance = *hit;
    nearest = &fruit;
  }
  const Vector point = eye + direction * distance;
  if (nearest != nullptr) return shadeFruit(table, *nearest, point, direction);
  const Rgb wall = mix(table.wallTop, table.wallBottom, smoothStep(0, 0.5f, screenY));
  const float edge = smoothStep(2.9f, 3.1f, point.z);
  if (direction.y >= 0 || edge >= 1) return wall;
  return mix(shadeTable(table, point), wall, edge);
}

// The colour at a position of the picture, in its heights.
Rgb tableColor(const Table& table, float aspect, float x, float y) {
  const Vector direction = normalized({(x - aspect / 2) * zoom, (0.42f - y) * zoom - 0.155f, 1});
  // The window's light falls off across the wall.
  return trace(table, direction, y) * (0.86f + 0.2f * smoothStep(aspect * 1.1f, 0, x));
}

// Whether a pixel differs so much from a neighbour that its edge would show as steps.
bool isEdge(const Picture& picture, int x, int y) {
  const float own = luminance(picture.at(x, y));
  return std::abs(own - luminance(picture.clamped(x + 1, y))) > 0.06f ||
         std::abs(own - luminance(picture.clamped(x, y + 1))) > 0.06f ||
         std::abs(own - luminance(picture.clamped(x - 1, y))) > 0.06f ||
         std::abs(own - luminance(picture.clamped(x, y - 1))) > 0.06f;
}

void paintTable(Picture& picture, const Table& table) {
  forEachPixel(picture, [&](Rgb& pixel, float x, float y) {
    pixel = tableColor(table, picture.aspect(), x, y);
  });
  const Picture once = picture;
  const float unit = picture.pixelSize();
  for (int row = 0; row < picture.height(); ++row) {
    for (int column = 0; column < picture.width(); ++column) {
      if (!isEdge(once, column, row)) continue;
      Rgb sum;
      for (const Point offset :
           {Point{0.12f, 0.37f}, {0.63f, 0.12f}, {0.88f, 0.63f}, {0.37f, 0.88f}})
        sum = sum + tableColor(table, picture.aspect(),
                               (static_cast<float>(column) + offset.x) * unit,
                               (static_cast<float>(row) + offset.y) * unit);
      picture.at(column, row) = sum * 0.25f;
    }
  }
}

// A stalk in the dimple of a fruit, drawn over the finished picture.
void paintStalk(Picture& picture, const Fruit& fruit) {
  const auto project = [&](Vector point) {
    const Vector view = point - eye;
    return Point{view.x / view.z / zoom + picture.aspect() / 2,
                 0.42f - (view.y / view.z + 0.155f) / zoom};
  };
  const Vector foot = fruit.center + Vector{0, fruit.radius * 0.97f, 0};
  strokeLine(picture, project(foot), project(foot + Vector{0.05f, 0.09f, 0}), 0.008f,
             hexColor(0x4A3220));
  strokeLine(picture, project(foot + Vector{0.05f, 0.09f, 0}),
             project(foot + Vector{0.10f, 0.14f, 0}), 0.009f, hexColor(0x5E4228));
}

void addGrapes(Table& table, Vector center, int count, std::uint32_t seed) {
  Random random(seed);
  for (int grape = 0; grape < count; ++grape) {
    const float share = static_cast<float>(grape) / static_cast<float>(count);
    const float radius = 0.145f * random.between(0.9f, 1.1f);
    const float angle = 2.4f * static_cast<float>(grape);
    const float out = 0.42f * std::sqrt(1 - share) * random.between(0.8f, 1.1f);
    table.fruits.push_back({{center.x + out * 1.3f * std::cos(angle),
                             radius + 0.34f * share * random.between(0.8f, 1.1f),
                             center.z + out * 0.8f * std::sin(angle)},
                            radius,
                            Skin::grape});
  }
}

}  // namespace

void paintFruit(Picture& picture, float) {
  Table table{.fruits = {{{-1.10f, 0.52f, 0.15f}, 0.52f, Skin::orange},
                         {{-0.22f, 0.50f, 0.75f}, 0.50f, Skin::apple},
                         {{0.72f, 0.53f, 0.35f}, 0.53f, Skin::apple},
                         {{-0.32f, 0.36f, -0.55f}, 0.36f, Skin::plum},
                         {{0.34f, 0.34f, -0.72f}, 0.34f, Skin::plum},
                         {{-1.72f, 0.50f, 0.95f}, 0.50f, Skin::orange}},
              .wallTop = hexColor(0x4E5B5C),
              .wallBottom = hexColor(0x8C8A7C),
              .wood = hexColor(0xB98A5E),
              .woodGrain = hexColor(0x6E4630)};
  addGrapes(table, {1.62f, 0, -0.15f}, 26, 411);
  paintTable(picture, table);
  for (const std::size_t apple : {1, 2}) paintStalk(picture, table.fruits[apple]);
}

void paintLemons(Picture& picture, float) {
  const Table table{.fruits = {{{-0.95f, 0.42f, 0.0f}, 0.42f, Skin::lemon, 1.32f},
                               {{0.20f, 0.40f, -0.50f}, 0.40f, Skin::lemon, 1.30f},
                               {{0.28f, 0.43f, 0.62f}, 0.43f, Skin::lemon, 1.28f},
                               {{1.35f, 0.40f, 0.10f}, 0.40f, Skin::lime, 1.12f},
                               {{-0.45f, 0.38f, 0.95f}, 0.38f, Skin::lime, 1.10f},
                               {{-1.95f, 0.40f, 0.60f}, 0.40f, Skin::lime, 1.10f}},
                    .wallTop = hexColor(0x6C8FA8),
                    .wallBottom = hexColor(0xB4C6CC),
                    .wood = hexColor(0xE4DCD0),
                    .woodGrain = hexColor(0xB9AFA4)};
  paintTable(picture, table);
}

}  // namespace samples
