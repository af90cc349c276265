// SPDX-License-Identifier: MIT
//
// Bits put together for tests of coded headers.
#pragma once

#include "tests/support/movie_builder.h"

namespace media::movie {

class BitWriter {
 public:
  BitWriter& bits(int count, std::uint64_t value) {
    for (int shift = count - 1; shift >= 0; --shift) {
      if (_used % 8 == 0) _bytes.push_back(0);
      const auto bit = static_cast<std::uint8_t>((value >> shift) & 1);
      _bytes.back() = static_cast<std::uint8_t>(_bytes.back() | bit << (7 - _used % 8));
      ++_used;
    }
    return *this;
  }
  // ue(v)
  BitWriter& golomb(std::uint64_t value) {
    int length = 0;
    while ((value + 1) >> (length + 1) != 0) ++length;
    return bits(length, 0).bits(length + 1, value + 1);
  }
  // The bytes, filled with zero bits.
  const Bytes& bytes() const { return _bytes; }

 private:
  Bytes _bytes;
  int _used = 0;
};

}  // namespace media::movie
