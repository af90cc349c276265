// SPDX-License-Identifier: MIT
//
// One field of a TIFF structure: typed values as the file holds them. TIFF 6.0, section 2.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "io/byte_view.h"

namespace media::image {

enum class FieldType : std::uint16_t {
  byte = 1,
  ascii = 2,
  unsignedShort = 3,
  unsignedLong = 4,
  rational = 5,
  signedByte = 6,
  undefined = 7,
  signedShort = 8,
  signedLong = 9,
  signedRational = 10,
  singleFloat = 11,
  doubleFloat = 12,
  ifd = 13,
  unsignedLong64 = 16,  // BigTIFF
  signedLong64 = 17,
  ifd64 = 18,
};

// The bytes one value takes; 0 for types that do not exist.
std::size_t sizeOf(FieldType type);
// Whether values of the type are whole numbers; bytes without a type count as such.
bool isInteger(FieldType type);
bool isRational(FieldType type);
// Whether the bytes of the field may be text.
bool isTextLike(FieldType type);

struct Fraction {
  std::int64_t numerator;
  std::int64_t denominator;
};

// A field's values. The bytes are borrowed: valid as long as those of the structure's view().
struct TiffField {
  FieldType type = FieldType::undefined;
  io::ByteOrder order = io::ByteOrder::big;
  std::size_t count = 0;  // values; all of them lie in `bytes`
  io::ByteView bytes;

  // The value at an index, or none where it is behind the last or of another kind.
  std::optional<std::int64_t> integer(std::size_t index) const;
  std::optional<Fraction> fraction(std::size_t index) const;
  // Any number as a real; none for a denominator of 0. Single-precision values become the double
  // of their own shortest decimal.
  std::optional<double> real(std::size_t index) const;

  // The bytes up to the first NUL; empty where the field is no text.
  std::string_view text() const;
};

}  // namespace media::image
