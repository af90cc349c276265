// SPDX-License-Identifier: MIT
//
// A directory names the icons; each is a PNG file, or the header and pixels of a BMP file whose
// height counts the mask of transparent pixels too.
#include "media/image/other/ico_container.h"

#include <string_view>

namespace media::image {

namespace {

constexpr std::uint64_t directoryHead = 6;  // zeros, kind, how many icons
constexpr std::uint64_t iconRowSize = 16;

struct Icon {
  std::int64_t width = 0;
  std::int64_t height = 0;
  int depth = 8;
  bool isGray = false;
  bool isIndexed = false;
  bool hasAlpha = false;
};

// The chunk IHDR: length, type, width, height, depth, colour type.
std::optional<Icon> pngIcon(io::ByteView bytes) {
  const auto kind = bytes.u8(25);
  if (!kind || !bytes.from(12).startsWith("IHDR")) return std::nullopt;
  constexpr std::uint8_t palette = 1;
  constexpr std::uint8_t color = 2;
  constexpr std::uint8_t alpha = 4;
  const bool isIndexed = (*kind & palette) != 0;
  return Icon{.width = *bytes.u32(16, io::ByteOrder::big),
              .height = *bytes.u32(20, io::ByteOrder::big),
              .depth = isIndexed ? 8 : *bytes.u8(24),
              .isGray = (*kind & color) == 0,
              .isIndexed = isIndexed,
              .hasAlpha = (*kind & alpha) != 0};
}

std::optional<Icon> bitmapIcon(io::ByteView bytes) {
  constexpr std::uint32_t bitmapHeader = 40;
  const auto bits = bytes.u16(14, io::ByteOrder::little);
  if (!bits || bytes.u32(0, io::ByteOrder::little) != bitmapHeader) return std::nullopt;
  return Icon{.width = static_cast<std::int32_t>(*bytes.u32(4, io::ByteOrder::little)),
              .height = static_cast<std::int32_t>(*bytes.u32(8, io::ByteOrder::little)) / 2,
              .isIndexed = *bits > 0 && *bits <= 8,
              .hasAlpha = *bits == 32};
}

}  // namespace

bool isIcoFile(io::ByteView head) {
  using namespace std::string_view_literals;
  constexpr auto order = io::ByteOrder::little;
  if (!head.startsWith("\0\0\1\0"sv) && !head.startsWith("\0\0\2\0"sv)) return false;
  const std::uint64_t count = head.u16(4, order).value_or(0);
  const auto offset = head.u32(directoryHead + 12, order);
  return count > 0 && offset && *offset >= directoryHead + count * iconRowSize &&
         head.u8(directoryHead + 3) == 0 && head.u32(directoryHead + 8, order) != 0;
}

std::optional<model::Error> readIcoFile(io::SourceReader& file, model::Dictionary& properties) {
  constexpr std::uint64_t longestStart = 40;
  const auto offset = file.upTo(directoryHead + 12, 4).u32(0, io::ByteOrder::little);
  const io::ByteView bytes = file.upTo(offset.value_or(0), longestStart);
  if (bytes.size() < longestStart) return model::Error{"truncated ICO"};
  const auto icon = bytes.startsWith("\x89PNG") ? pngIcon(bytes) : bitmapIcon(bytes);
  if (!icon || icon->width <= 0 || icon->height <= 0) return model::Error{"damaged ICO"};
  properties.insert_or_assign("PixelWidth", icon->width);
  properties.insert_or_assign("PixelHeight", icon->height);
  properties.insert_or_assign("ColorModel", icon->isGray ? "Gray" : "RGB");
  properties.insert_or_assign("Depth", icon->depth);
  if (icon->isIndexed) properties.insert_or_assign("IsIndexed", true);
  if (icon->hasAlpha) properties.insert_or_assign("HasAlpha", true);
  return std::nullopt;
}

}  // namespace media::image
