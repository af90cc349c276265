// SPDX-License-Identifier: MIT
//
// A value says its own type: a well-known number in QuickTime's and iTunes' "data" boxes, a
// language in front of the text in user data, a layout of its own in each of 3GPP's boxes. Bytes of
// an unknown type stay bytes; what is cut short is no value.
#include "media/movie/metadata/metadata_value.h"

#include <algorithm>
#include <bit>
#include <cmath>

#include "media/movie/boxes/mac_roman.h"
#include "model/number_text.h"
#include "model/utf8.h"

namespace media::movie {

namespace {

using model::Value;

using io::ByteOrder::big;

std::optional<Value> nonEmpty(std::string text) {
  if (text.empty()) return std::nullopt;
  return Value(std::move(text));
}

std::string untilZero(io::ByteView bytes) {
  const std::string_view text = bytes.text();
  return std::string(text.substr(0, text.find('\0')));
}

// Big-endian unless a byte order mark says otherwise; up to a zero unit.
std::string utf16Text(io::ByteView bytes) {
  io::ByteOrder order = io::ByteOrder::big;
  std::uint64_t offset = 0;
  if (bytes.u16(0, big) == 0xFEFF) offset = 2;
  if (bytes.u16(0, big) == 0xFFFE) {
    offset = 2;
    order = io::ByteOrder::little;
  }
  std::u16string units;
  for (; const auto unit = bytes.u16(offset, order); offset += 2) {
    if (*unit == 0) break;
    units += static_cast<char16_t>(*unit);
  }
  return model::utf16ToUtf8(units);
}

bool hasByteOrderMark(io::ByteView bytes) {
  const std::uint16_t mark = bytes.u16(0, big).value_or(0);
  return mark == 0xFEFF || mark == 0xFFFE;
}

std::optional<std::uint64_t> unsignedNumber(io::ByteView bytes) {
  if (bytes.isEmpty() || bytes.size() > 8) return std::nullopt;
  std::uint64_t value = 0;
  for (const std::uint8_t byte : bytes.bytes()) value = (value << 8) | byte;
  return value;
}

std::optional<Value> unsignedValue(io::ByteView bytes) {
  const auto number = unsignedNumber(bytes);
  if (!number) return std::nullopt;
  if (*number > static_cast<std::uint64_t>(INT64_MAX)) return Value(static_cast<double>(*number));
  return Value(*number);
}

std::optional<Value> signedValue(io::ByteView bytes) {
  const auto number = unsignedNumber(bytes);
  if (!number) return std::nullopt;
  const int unused = 64 - 8 * static_cast<int>(bytes.size());
  return Value(static_cast<std::int64_t>(*number << unused) >> unused);
}

std::optional<Value> singleValue(io::ByteView bytes) {
  const auto bits = bytes.u32(0, big);
  if (!bits) return std::nullopt;
  return Value(model::widenedByText(std::bit_cast<float>(*bits)));
}

std::optional<Value> doubleValue(io::ByteView bytes) {
  const auto bits = bytes.u64(0, big);
  if (!bits) return std::nullopt;
  return Value(std::bit_cast<double>(*bits));
}

std::optional<Value> utf8Value(io::ByteView bytes) {
  return nonEmpty(model::replacingInvalidUtf8(untilZero(bytes)));
}

std::optional<Value> utf16Value(io::ByteView bytes) {
  return nonEmpty(utf16Text(bytes));
}

struct WellKnownType {
  std::uint32_t code;
  std::optional<Value> (*read)(io::ByteView);
};

constexpr WellKnownType wellKnownTypes[] = {
    {1, utf8Value},      {2, utf16Value},     {4, utf8Value},      {5, utf16Value},
    {21, signedValue},   {22, unsignedValue}, {23, singleValue},   {24, doubleValue},
    {65, signedValue},   {66, signedValue},   {67, signedValue},   {74, signedValue},
    {75, unsignedValue}, {76, unsignedValue}, {77, unsignedValue}, {78, unsignedValue},
};

// A magnitude with its sign and leading zeros up to `width` characters without the sign.
std::string signedDecimal(double value, int decimals, std::size_t width) {
  std::string digits = model::fixedText(std::fabs(value), decimals);
  digits.insert(0, width - std::min(width, digits.size()), '0');
  return (value < 0 ? "-" : "+") + digits;
}

double fixedAt(io::ByteView bytes, std::uint64_t offset) {
  return static_cast<std::int32_t>(bytes.u32(offset, big).value_or(0)) / 65536.0;
}

// A zero-terminated text, UTF-8, or UTF-16 with a byte order mark.
std::string markedText(io::ByteView bytes) {
  return hasByteOrderMark(bytes) ? utf16Text(bytes) : utf8OrMacRoman(untilZero(bytes));
}

// How many bytes a zero-terminated text takes with its end.
std::uint64_t markedTextSize(io::ByteView bytes) {
  if (!hasByteOrderMark(bytes)) return untilZero(bytes).size() + 1;
  std::uint64_t offset = 2;
  while (bytes.u16(offset, big).value_or(0) != 0) offset += 2;
  return offset + 2;
}

// 3GPP TS 26.244, 8.12: a name, a role, longitude, latitude and altitude, an astronomical body.
std::optional<Value> placeValue(io::ByteView text) {
  const io::ByteView place = text.from(markedTextSize(text) + 1);
  if (place.size() < 12) return std::nullopt;
  const std::string body = markedText(place.from(12));
  if (!body.empty() && body != "earth" && body != "Earth") return std::nullopt;
  return Value(iso6709Text(fixedAt(place, 4), fixedAt(place, 0), fixedAt(place, 8)));
}

}  // namespace

std::string iso6709Text(double latitude, double longitude, double altitude) {
  return signedDecimal(latitude, 4, 7) + signedDecimal(longitude, 4, 8) +
         signedDecimal(altitude, 3, 7) + "/";
}

std::optional<Value> typedValue(io::ByteView payload) {
  const auto type = payload.u32(0, big);
  const auto value = payload.sub(8, payload.size() < 8 ? 0 : payload.size() - 8);
  if (!type || !value) return std::nullopt;
  for (const WellKnownType& known : wellKnownTypes) {
    if (known.code == *type) return known.read(*value);
  }
  return Value(model::Data(value->bytes().begin(), value->bytes().end()));
}

std::optional<Value> internationalText(io::ByteView payload) {
  constexpr std::uint16_t firstPackedLanguage = 0x400;
  const auto size = payload.u16(0, big);
  const auto language = payload.u16(2, big);
  if (!size || !language) return std::nullopt;
  const auto text = payload.sub(4, std::min<std::uint64_t>(*size, payload.size() - 4));
  if (*language >= firstPackedLanguage) return nonEmpty(markedText(*text));
  return nonEmpty(macRomanToUtf8(untilZero(*text)));
}

std::optional<Value> threeGppValue(std::string_view key, io::ByteView payload) {
  constexpr std::uint64_t versionSize = 4;
  constexpr std::uint64_t languageSize = 2;
  if (key == "yrrc") {
    const auto year = payload.u16(versionSize, big);
    if (!year || *year == 0) return std::nullopt;
    return Value(model::integerText(*year));
  }
  const io::ByteView text = payload.from(versionSize + languageSize);
  if (key == "loci") return placeValue(text);
  return nonEmpty(markedText(text));
}

}  // namespace media::movie
