// SPDX-License-Identifier: MIT
//
// Bits of a coded header, most significant first, with the exponential Golomb codes of H.264 and
// HEVC (ITU-T H.264, 9.1).
#pragma once

#include <cstdint>

#include "io/byte_view.h"

namespace media::movie {

// Reads bits one after the other. Behind the end all bits are zero and isOverrun() tells so, so
// that a parser can read on and ask once; its loops still need bounds of their own.
class BitReader {
 public:
  explicit BitReader(io::ByteView bytes) : _bytes(bytes) {}

  // Up to 32 bits as an unsigned number.
  std::uint32_t bits(int count) {
    std::uint32_t value = 0;
    for (int index = 0; index < count; ++index) value = (value << 1) | bit();
    return value;
  }
  bool flag() { return bit() != 0; }
  void skip(std::uint64_t count) { _position += count; }

  // ue(v): an unsigned exponential Golomb code. 0 where it is longer than 32 bits.
  std::uint32_t unsignedGolomb() {
    int zeros = 0;
    while (zeros < 32 && !isOverrun() && bit() == 0) ++zeros;
    if (zeros >= 32 || isOverrun()) return 0;
    return (std::uint32_t{1} << zeros) - 1 + bits(zeros);
  }
  // se(v): its signed form.
  std::int32_t signedGolomb() {
    const std::uint32_t code = unsignedGolomb();
    const auto half = static_cast<std::int32_t>((code >> 1) + (code & 1));
    return (code & 1) != 0 ? half : -half;
  }

  // Whether bits behind the end have been asked for.
  bool isOverrun() const { return _position > std::uint64_t{_bytes.size()} * 8; }
  std::uint64_t bitsLeft() const {
    return isOverrun() ? 0 : std::uint64_t{_bytes.size()} * 8 - _position;
  }

 private:
  std::uint32_t bit() {
    const auto byte = _bytes.u8(_position / 8).value_or(0);
    const auto value = static_cast<std::uint32_t>(byte >> (7 - _position % 8)) & 1;
    ++_position;
    return value;
  }

  io::ByteView _bytes;
  std::uint64_t _position = 0;
};

}  // namespace media::movie
