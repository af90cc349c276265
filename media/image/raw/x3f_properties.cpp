// SPDX-License-Identifier: MIT
//
// Layout: "SECp", a version, how many pairs, how characters are coded (0: UTF-16), a reserved
// number, how many characters; then for each pair where its name and its value begin, in
// characters; then the characters, each text ended by a NUL.
#include "media/image/raw/x3f_properties.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <string>
#include <string_view>

#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/raw/unix_time.h"
#include "model/number_text.h"
#include "model/utf8.h"

namespace media::image {

namespace {

constexpr std::uint64_t listHeadSize = 24;
constexpr std::uint64_t pairSize = 8;
constexpr std::size_t longestText = 256;  // characters

using ValueOfText = std::optional<model::Value> (*)(const std::string& text);

std::optional<model::Value> plainText(const std::string& text) {
  return model::Value(text);
}

std::optional<double> numberOf(const std::string& text) {
  if (text.find_first_not_of("+-.0123456789") != std::string::npos) return std::nullopt;
  const double number = model::parseRealPrefix(text);
  return std::isfinite(number) && text.find_first_of("0123456789") != std::string::npos
             ? std::optional(number)
             : std::nullopt;
}

std::optional<model::Value> realOfText(const std::string& text) {
  return numberOf(text);
}

std::optional<model::Value> integerOfText(const std::string& text) {
  constexpr double largest = 4294967295.0;
  const auto number = numberOf(text);
  if (!number || *number < 0 || *number > largest) return std::nullopt;
  return model::Value(static_cast<std::int64_t>(*number));
}

std::optional<model::Value> speedOfText(const std::string& text) {
  auto number = integerOfText(text);
  return number ? std::optional(model::Value(model::Array{*std::move(number)})) : std::nullopt;
}

std::optional<model::Value> timeOfText(const std::string& text) {
  const auto seconds = integerOfText(text);
  return seconds ? exifTextOfUnixTime(static_cast<std::uint32_t>(*seconds->asInteger()))
                 : std::nullopt;
}

std::optional<model::Value> programOfText(const std::string& text) {
  constexpr std::string_view programs = "MPAS";  // 1 to 4 in Exif
  const std::size_t place = text.size() == 1 ? programs.find(text[0]) : std::string_view::npos;
  return place == std::string_view::npos ? std::nullopt
                                         : std::optional(model::Value(static_cast<int>(place) + 1));
}

struct PropertyRow {
  std::string_view name;
  std::string_view section;
  std::string_view key;
  ValueOfText valueOf;
};

constexpr PropertyRow propertyRows[] = {
    {"CAMMANUF", "{TIFF}", "Make", plainText},
    {"CAMMODEL", "{TIFF}", "Model", plainText},
    {"CAMSERIAL", "{Exif}", "BodySerialNumber", plainText},
    {"TIME", "{Exif}", "DateTimeOriginal", timeOfText},
    {"SHUTTER", "{Exif}", "ExposureTime", realOfText},
    {"APERTURE", "{Exif}", "FNumber", realOfText},
    {"ISO", "{Exif}", "ISOSpeedRatings", speedOfText},
    {"EXPCOMP", "{Exif}", "ExposureBiasValue", realOfText},
    {"PMODE", "{Exif}", "ExposureProgram", programOfText},
    {"FLENGTH", "{Exif}", "FocalLength", realOfText},
    {"FLEQ35MM", "{Exif}", "FocalLenIn35mmFilm", integerOfText},
};

std::string textAt(io::ByteView characters, std::uint64_t index) {
  std::u16string units;
  for (; units.size() < longestText; ++index) {
    const char16_t unit = characters.u16(index * 2, io::ByteOrder::little).value_or(0);
    if (unit == 0) break;
    units.push_back(unit);
  }
  return model::utf16ToUtf8(units);
}

void readPair(const std::string& name, const std::string& value, model::Dictionary& properties) {
  for (const PropertyRow& row : propertyRows) {
    auto found = row.name == name && !value.empty() ? row.valueOf(value) : std::nullopt;
    if (found) setIfAbsent(section(properties, row.section), row.key, *std::move(found));
  }
}

}  // namespace

void readX3fProperties(io::ByteView list, model::Dictionary& properties) {
  if (!list.startsWith("SECp") || list.u32(12, io::ByteOrder::little) != 0U) return;
  const std::uint64_t count = list.u32(8, io::ByteOrder::little).value_or(0);
  const io::ByteView characters = list.from(listHeadSize + count * pairSize);
  for (std::uint64_t index = 0; index < std::min<std::uint64_t>(count, limits.rawRecords);
       ++index) {
    const auto pair = list.sub(listHeadSize + index * pairSize, pairSize);
    if (!pair) return;
    readPair(textAt(characters, *pair->u32(0, io::ByteOrder::little)),
             textAt(characters, *pair->u32(4, io::ByteOrder::little)), properties);
  }
}

}  // namespace media::image
