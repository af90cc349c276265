// SPDX-License-Identifier: MIT
#include "media/image/tiff/pixel_size.h"

#include <string_view>

namespace media::image {

namespace {

constexpr std::uint16_t imageWidth = 0x0100;
constexpr std::uint16_t imageLength = 0x0101;

}  // namespace

std::optional<std::int64_t> integerOf(TiffStructure& structure, const Ifd& ifd, std::uint16_t tag,
                                      std::size_t index) {
  const IfdEntry* entry = ifd.find(tag);
  const auto field = entry ? structure.field(*entry) : std::nullopt;
  const auto number = field ? field->real(index) : std::nullopt;
  if (!number || !(*number >= 0 && *number <= 0xFFFFFFFF)) return std::nullopt;
  return static_cast<std::int64_t>(*number);
}

PixelSize storedSize(TiffStructure& structure, const Ifd& ifd) {
  return {integerOf(structure, ifd, imageWidth).value_or(0),
          integerOf(structure, ifd, imageLength).value_or(0)};
}

PixelSize exifSize(const model::Dictionary& properties) {
  const model::Value* section = model::find(properties, "{Exif}");
  if (!section || !section->asDictionary()) return {};
  const auto number = [&](std::string_view key) {
    const model::Value* value = model::find(*section->asDictionary(), key);
    return value && value->asInteger() ? *value->asInteger() : 0;
  };
  return {number("PixelXDimension"), number("PixelYDimension")};
}

}  // namespace media::image
