// SPDX-License-Identifier: MIT
#include "media/image/heif/heif_color.h"

#include <string_view>

#include "media/image/blocks/icc_profile.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/blocks/spliced_ranges.h"

namespace media::image {

namespace {

struct CodedColors {
  std::uint16_t primaries;
  std::uint16_t transfer;
  std::string_view name;
};

constexpr CodedColors codedColors[] = {
    {1, 13, srgbProfileName},
    {12, 13, "Display P3"},
};

}  // namespace

HeifPixels heifPixels(io::ByteView information) {
  const std::uint8_t channels = information.u8(4).value_or(0);
  if (channels == 0) return {};
  return {information.u8(5).value_or(0), channels == 1};
}

HeifPixels hevcPixels(io::ByteView configuration) {
  const auto depth = configuration.u8(17);
  if (!depth) return {};
  return {(*depth & 7) + 8, (*configuration.u8(16) & 3) == 0};
}

HeifPixels av1Pixels(io::ByteView configuration) {
  constexpr std::uint8_t highDepth = 0x40;
  constexpr std::uint8_t twelveBits = 0x20;
  constexpr std::uint8_t monochrome = 0x10;
  const auto flags = configuration.u8(2);
  if (!flags) return {};
  const int high = *flags & twelveBits ? 12 : 10;
  return {*flags & highDepth ? high : 8, (*flags & monochrome) != 0};
}

std::optional<std::string> heifIccName(io::SourceReader& file, const io::IsoBox& colors) {
  const io::ByteView kind = file.upTo(colors.payload.begin, 4);
  if (!kind.startsWith("prof") && !kind.startsWith("rICC")) return std::nullopt;
  SplicedRanges profile;
  profile.append({colors.payload.begin + kind.size(), colors.payload.end});
  return iccProfileName(profile.reader(file));
}

std::optional<std::string> heifCodedColorName(io::ByteView colors) {
  if (!colors.startsWith("nclx")) return std::nullopt;
  for (const CodedColors& row : codedColors) {
    if (colors.u16(4, io::ByteOrder::big) == row.primaries &&
        colors.u16(6, io::ByteOrder::big) == row.transfer) {
      return std::string(row.name);
    }
  }
  return std::nullopt;
}

}  // namespace media::image
