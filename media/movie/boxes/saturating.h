// SPDX-License-Identifier: MIT
//
// Sums and products of numbers from a file, which stop at the largest number instead of wrapping.
#pragma once

#include <cstdint>

namespace media::movie {

inline std::uint64_t saturatingAdd(std::uint64_t left, std::uint64_t right) {
  std::uint64_t sum = 0;
  return __builtin_add_overflow(left, right, &sum) ? UINT64_MAX : sum;
}

inline std::uint64_t saturatingMultiply(std::uint64_t left, std::uint64_t right) {
  std::uint64_t product = 0;
  return __builtin_mul_overflow(left, right, &product) ? UINT64_MAX : product;
}

}  // namespace media::movie
