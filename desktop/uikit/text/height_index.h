// SPDX-License-Identifier: MIT
//
// Heights of things that stand below each other: sums and look-ups in logarithmic time, though
// heights change (a Fenwick tree).
#pragma once

#include <bit>
#include <cstddef>
#include <vector>

namespace desktop::uikit {

class HeightIndex {
 public:
  HeightIndex() = default;
  explicit HeightIndex(std::vector<double> heights) : _sums(std::move(heights)) {
    for (std::size_t at = 1; at <= _sums.size(); ++at)
      if (const std::size_t above = at + lowestBit(at); above <= _sums.size())
        _sums[above - 1] += _sums[at - 1];
  }

  // The height of all in front of a thing.
  double before(std::size_t index) const {
    double sum = 0;
    for (std::size_t at = index; at > 0; at -= lowestBit(at)) sum += _sums[at - 1];
    return sum;
  }
  double total() const { return before(_sums.size()); }

  // Makes a thing higher by some points, or lower.
  void grow(std::size_t index, double by) {
    for (std::size_t at = index + 1; at <= _sums.size(); at += lowestBit(at)) _sums[at - 1] += by;
  }

  // The thing at a height: the first one above everything, the last one below everything.
  // REQUIRES: there is one.
  std::size_t at(double height) const {
    std::size_t found = 0;
    for (std::size_t step = std::bit_floor(_sums.size()); step > 0; step /= 2) {
      if (found + step > _sums.size() || _sums[found + step - 1] > height) continue;
      found += step;
      height -= _sums[found - 1];
    }
    return found < _sums.size() ? found : _sums.size() - 1;
  }

 private:
  static constexpr std::size_t lowestBit(std::size_t value) { return value & (~value + 1); }

  std::vector<double> _sums;  // each of as many heights as its place has trailing zeros
};

}  // namespace desktop::uikit
