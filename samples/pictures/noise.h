// SPDX-License-Identifier: MIT
//
// Repeatable randomness for drawing: the same seed gives the same picture on every run.
#pragma once

#include <cstdint>

namespace samples {

// A well-mixed number from a lattice point.
std::uint32_t hashPoint(int x, int y, std::uint32_t seed);

// hashPoint as a number from 0 to below 1.
float hashUnit(int x, int y, std::uint32_t seed);

// Smooth value noise from 0 to 1, features one unit wide.
float noise(float x, float y, std::uint32_t seed);

// Octaves of noise summed, each twice as fine and half as strong; 0 to 1, mean about 0.5.
float fractalNoise(float x, float y, int octaves, std::uint32_t seed);

// As fractalNoise, folded into sharp crests, as mountains have; 0 to 1.
float ridgedNoise(float x, float y, int octaves, std::uint32_t seed);

// A sequence of random numbers.
class Random {
 public:
  explicit Random(std::uint32_t seed) : _state(seed) {}

  // From 0 to below 1.
  float unit();
  float between(float low, float high) { return low + (high - low) * unit(); }
  // From 0 to below `count`. REQUIRES: count > 0.
  int index(int count);

 private:
  std::uint32_t _state;
};

}  // namespace samples
