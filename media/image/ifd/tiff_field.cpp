// SPDX-License-Identifier: MIT
#include "media/image/ifd/tiff_field.h"

#include <bit>

#include "model/number_text.h"

namespace media::image {

namespace {

template <typename Wide, typename Narrow>
std::optional<std::int64_t> widened(std::optional<Narrow> value) {
  if (!value) return std::nullopt;
  return static_cast<std::int64_t>(static_cast<Wide>(*value));
}

}  // namespace

std::size_t sizeOf(FieldType type) {
  switch (type) {
    case FieldType::byte:
    case FieldType::ascii:
    case FieldType::signedByte:
    case FieldType::undefined:
      return 1;
    case FieldType::unsignedShort:
    case FieldType::signedShort:
      return 2;
    case FieldType::unsignedLong:
    case FieldType::signedLong:
    case FieldType::singleFloat:
    case FieldType::ifd:
      return 4;
    case FieldType::rational:
    case FieldType::signedRational:
    case FieldType::doubleFloat:
    case FieldType::unsignedLong64:
    case FieldType::signedLong64:
    case FieldType::ifd64:
      return 8;
  }
  return 0;
}

bool isRational(FieldType type) {
  return type == FieldType::rational || type == FieldType::signedRational;
}

bool isInteger(FieldType type) {
  return sizeOf(type) != 0 && !isRational(type) && type != FieldType::ascii &&
         type != FieldType::singleFloat && type != FieldType::doubleFloat;
}

bool isTextLike(FieldType type) {
  return type == FieldType::ascii || type == FieldType::undefined || type == FieldType::byte;
}

std::optional<std::int64_t> TiffField::integer(std::size_t index) const {
  const std::uint64_t at = std::uint64_t{index} * sizeOf(type);
  if (index >= count || !isInteger(type)) return std::nullopt;
  switch (type) {
    case FieldType::signedByte:
      return widened<std::int8_t>(bytes.u8(at));
    case FieldType::unsignedShort:
      return widened<std::uint16_t>(bytes.u16(at, order));
    case FieldType::signedShort:
      return widened<std::int16_t>(bytes.u16(at, order));
    case FieldType::unsignedLong:
    case FieldType::ifd:
      return widened<std::uint32_t>(bytes.u32(at, order));
    case FieldType::signedLong:
      return widened<std::int32_t>(bytes.u32(at, order));
    case FieldType::unsignedLong64:
    case FieldType::signedLong64:
    case FieldType::ifd64:
      return widened<std::int64_t>(bytes.u64(at, order));
    default:
      return widened<std::uint8_t>(bytes.u8(at));
  }
}

std::optional<Fraction> TiffField::fraction(std::size_t index) const {
  if (index >= count || !isRational(type)) return std::nullopt;
  const auto upper = bytes.u32(std::uint64_t{index} * 8, order);
  const auto lower = bytes.u32(std::uint64_t{index} * 8 + 4, order);
  if (!upper || !lower) return std::nullopt;
  if (type == FieldType::rational) return Fraction{*upper, *lower};
  return Fraction{static_cast<std::int32_t>(*upper), static_cast<std::int32_t>(*lower)};
}

std::optional<double> TiffField::real(std::size_t index) const {
  if (isInteger(type)) {
    const auto whole = integer(index);
    return whole ? std::optional(static_cast<double>(*whole)) : std::nullopt;
  }
  if (const auto ratio = fraction(index)) {
    if (ratio->denominator == 0) return std::nullopt;
    return static_cast<double>(ratio->numerator) / static_cast<double>(ratio->denominator);
  }
  if (index >= count) return std::nullopt;
  if (type == FieldType::singleFloat) {
    const auto bits = bytes.u32(std::uint64_t{index} * 4, order);
    return bits ? std::optional(model::widenedByText(std::bit_cast<float>(*bits))) : std::nullopt;
  }
  if (type == FieldType::doubleFloat) {
    const auto bits = bytes.u64(std::uint64_t{index} * 8, order);
    return bits ? std::optional(std::bit_cast<double>(*bits)) : std::nullopt;
  }
  return std::nullopt;
}

std::string_view TiffField::text() const {
  if (!isTextLike(type)) return {};
  const std::string_view all = bytes.text();
  return all.substr(0, all.find('\0'));
}

}  // namespace media::image
