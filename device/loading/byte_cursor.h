// SPDX-License-Identifier: MIT
//
// Numbers and texts that stand one after another, little-endian, as the phone's formats have them.
#pragma once

#include <cstdint>
#include <string_view>

#include "io/byte_view.h"

namespace device::loading {

// Reads on from where it stands. What the bytes do not have reads as zero or as no text, and is
// remembered: whoever reads asks ranOut() once, behind the last of it.
class ByteCursor {
 public:
  explicit ByteCursor(io::ByteView bytes) : _bytes(bytes) {}

  bool isAtEnd() const { return _at >= _bytes.size(); }
  // Whether something was asked for that the bytes do not have.
  bool ranOut() const { return _ranOut; }

  std::uint8_t u8() { return number<std::uint8_t>(_bytes.u8(_at)); }
  std::uint16_t u16() { return number<std::uint16_t>(_bytes.u16(_at, little)); }
  std::uint32_t u32() { return number<std::uint32_t>(_bytes.u32(_at, little)); }
  std::uint64_t u64() { return number<std::uint64_t>(_bytes.u64(_at, little)); }

  // DWARF's LEB128: seven bits a byte, the lowest first. One that does not end within 64 bits
  // counts as running out.
  std::uint64_t unsignedLeb() { return leb().value; }
  std::int64_t signedLeb() {
    const Leb number = leb();
    const std::uint64_t sign = number.bits < 64 ? ~std::uint64_t{0} << number.bits : 0;
    return static_cast<std::int64_t>(number.isNegative ? number.value | sign : number.value);
  }

  // A text up to its zero, and one in a field of so many bytes. Borrowed from the bytes.
  std::string_view terminatedText() {
    const std::string_view rest = _bytes.from(_at).text();
    const std::size_t end = rest.find('\0');
    if (end == rest.npos) return fail(), std::string_view();
    _at += end + 1;
    return rest.substr(0, end);
  }
  std::string_view paddedText(std::size_t width) {
    const auto field = _bytes.sub(_at, width);
    if (!field) return fail(), std::string_view();
    _at += width;
    return field->text().substr(0, field->text().find('\0'));
  }

  void skip(std::uint64_t bytes) {
    if (!_bytes.contains(_at, bytes)) return fail();
    _at += bytes;
  }

 private:
  static constexpr auto little = io::ByteOrder::little;

  struct Leb {
    std::uint64_t value = 0;
    unsigned bits = 0;  // that were given
    bool isNegative = false;
  };

  template <typename Integer>
  Integer number(std::optional<Integer> read) {
    if (!read) return fail(), Integer{0};
    _at += sizeof(Integer);
    return *read;
  }

  Leb leb() {
    Leb number;
    std::uint8_t byte = 0;
    do {
      if (number.bits >= 64) return fail(), Leb();
      byte = u8();
      number.value |= std::uint64_t{byte & 0x7FU} << number.bits;
      number.bits += 7;
    } while (byte & 0x80U);
    number.isNegative = (byte & 0x40U) != 0;
    return number;
  }

  void fail() {
    _ranOut = true;
    _at = _bytes.size();
  }

  io::ByteView _bytes;
  std::uint64_t _at = 0;
  bool _ranOut = false;
};

}  // namespace device::loading
