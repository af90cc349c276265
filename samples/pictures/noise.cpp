// SPDX-License-Identifier: MIT
#include "samples/pictures/noise.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace samples {

namespace {

constexpr std::uint32_t mixBits(std::uint32_t bits) {
  bits ^= bits >> 16;
  bits *= 0x7FEB352Du;
  bits ^= bits >> 15;
  bits *= 0x846CA68Bu;
  return bits ^ (bits >> 16);
}

float toUnit(std::uint32_t bits) {
  return static_cast<float>(bits >> 8) * (1.0f / 16777216.0f);
}

// A lattice that repeats after 256 points in each direction: looking a point up is several times
// faster than mixing its coordinates, and drawing spends most of its time here.
struct Lattice {
  std::array<std::uint8_t, 512> order{};
  std::array<float, 256> values{};
};

constexpr Lattice makeLattice() {
  Lattice lattice;
  for (std::uint32_t index = 0; index < 256; ++index) {
    lattice.order[index] = static_cast<std::uint8_t>(index);
    lattice.values[index] = static_cast<float>(mixBits(index + 7000) >> 8) * (1.0f / 16777216.0f);
  }
  for (std::uint32_t index = 255; index > 0; --index)
    std::swap(lattice.order[index], lattice.order[mixBits(index) % (index + 1)]);
  for (std::size_t index = 0; index < 256; ++index)
    lattice.order[index + 256] = lattice.order[index];
  return lattice;
}

constexpr Lattice lattice = makeLattice();

// Rounded down, without the call that std::floor is on processors of no particular make.
int wholePart(float value) {
  const int cut = static_cast<int>(value);
  return value < static_cast<float>(cut) ? cut - 1 : cut;
}

float between(float a, float b, float t) {
  return a + (b - a) * t;
}

float fade(float t) {
  return t * t * t * (t * (t * 6 - 15) + 10);
}

}  // namespace

std::uint32_t hashPoint(int x, int y, std::uint32_t seed) {
  return mixBits(static_cast<std::uint32_t>(x) * 0x9E3779B1u ^
                 mixBits(static_cast<std::uint32_t>(y) * 0x85EBCA77u + seed));
}

float hashUnit(int x, int y, std::uint32_t seed) {
  return toUnit(hashPoint(x, y, seed));
}

float noise(float x, float y, std::uint32_t seed) {
  const int wholeX = wholePart(x);
  const int wholeY = wholePart(y);
  const std::uint32_t column = static_cast<std::uint32_t>(wholeX) + seed * 37;
  const std::uint32_t row = static_cast<std::uint32_t>(wholeY) + seed * 101;
  const float tx = fade(x - static_cast<float>(wholeX));
  const float ty = fade(y - static_cast<float>(wholeY));
  const std::uint32_t left = lattice.order[column & 255];
  const std::uint32_t right = lattice.order[(column + 1) & 255];
  const std::uint32_t above = row & 255;
  const std::uint32_t under = (row + 1) & 255;
  const auto value = [](std::uint32_t index) { return lattice.values[lattice.order[index]]; };
  const float top = between(value(left + above), value(right + above), tx);
  const float bottom = between(value(left + under), value(right + under), tx);
  return between(top, bottom, ty);
}

float fractalNoise(float x, float y, int octaves, std::uint32_t seed) {
  float sum = 0;
  float strength = 0.5f;
  float total = 0;
  for (int octave = 0; octave < octaves; ++octave) {
    sum += strength * noise(x, y, seed + static_cast<std::uint32_t>(octave));
    total += strength;
    strength *= 0.5f;
    // Turned between octaves, so that the lattice does not show.
    const float turnedX = 1.6f * x - 1.2f * y;
    y = 1.2f * x + 1.6f * y;
    x = turnedX;
  }
  return sum / total;
}

float ridgedNoise(float x, float y, int octaves, std::uint32_t seed) {
  float sum = 0;
  float strength = 0.5f;
  float total = 0;
  for (int octave = 0; octave < octaves; ++octave) {
    const float crest =
        1 - std::abs(2 * noise(x, y, seed + static_cast<std::uint32_t>(octave)) - 1);
    sum += strength * crest * crest;
    total += strength;
    strength *= 0.5f;
    x *= 2.03f;
    y *= 2.03f;
  }
  return sum / total;
}

float Random::unit() {
  _state += 0x9E3779B9u;
  return toUnit(mixBits(_state));
}

int Random::index(int count) {
  return std::min(static_cast<int>(unit() * static_cast<float>(count)), count - 1);
}

}  // namespace samples
