// SPDX-License-Identifier: MIT
#include "media/image/other/tga_container.h"

#include <algorithm>

namespace media::image {

namespace {

constexpr std::uint64_t tgaHeaderSize = 18;

struct TgaKind {
  std::uint8_t code;  // compressed images have 8 more
  bool hasPalette;
  bool isGray;
};

constexpr TgaKind tgaKinds[] = {{1, true, false}, {2, false, false}, {3, false, true}};

struct TgaHeader {
  const TgaKind* kind = nullptr;
  std::uint8_t hasPalette = 0;
  std::uint8_t paletteBits = 0;
  std::uint16_t width = 0;
  std::uint16_t height = 0;
  std::uint8_t bits = 0;       // of a pixel
  std::uint8_t alphaBits = 0;  // of those
  bool isInterleaved = false;
  bool hasEmptyPalette = false;
};

TgaHeader tgaHeaderOf(io::ByteView bytes) {
  constexpr auto order = io::ByteOrder::little;
  const std::uint8_t code = bytes.u8(2).value_or(0);
  const auto* kind = std::ranges::find(tgaKinds, code & ~8, &TgaKind::code);
  const std::uint8_t descriptor = bytes.u8(17).value_or(0);
  return {.kind = kind == std::end(tgaKinds) ? nullptr : kind,
          .hasPalette = bytes.u8(1).value_or(0),
          .paletteBits = bytes.u8(7).value_or(0),
          .width = bytes.u16(12, order).value_or(0),
          .height = bytes.u16(14, order).value_or(0),
          .bits = bytes.u8(16).value_or(0),
          .alphaBits = static_cast<std::uint8_t>(descriptor & 0x0F),
          .isInterleaved = descriptor >> 6 != 0,
          .hasEmptyPalette = bytes.u16(5, order) == 0};
}

bool isOneOf(int value, std::initializer_list<int> values) {
  return std::ranges::find(values, value) != values.end();
}

bool hasSoundPalette(const TgaHeader& header) {
  if (header.kind->hasPalette != (header.hasPalette == 1)) return false;
  if (!header.kind->hasPalette)
    return header.hasPalette == 0 && header.hasEmptyPalette && header.paletteBits == 0;
  return !header.hasEmptyPalette && isOneOf(header.paletteBits, {15, 16, 24, 32});
}

bool hasSoundPixels(const TgaHeader& header) {
  if (header.kind->hasPalette) return header.bits == 8 && header.alphaBits == 0;
  if (header.kind->isGray) {
    return (header.bits == 8 && header.alphaBits == 0) ||
           (header.bits == 16 && isOneOf(header.alphaBits, {0, 8}));
  }
  switch (header.bits) {
    case 15:
    case 24:
      return header.alphaBits == 0;
    case 16:
      return header.alphaBits <= 1;
    case 32:
      return isOneOf(header.alphaBits, {0, 8});
    default:
      return false;
  }
}

}  // namespace

bool isTgaFile(io::ByteView head) {
  const TgaHeader header = tgaHeaderOf(head);
  return header.kind && head.size() >= tgaHeaderSize && header.width > 0 && header.height > 0 &&
         !header.isInterleaved && hasSoundPalette(header) && hasSoundPixels(header);
}

std::optional<model::Error> readTgaFile(io::SourceReader& file, model::Dictionary& properties) {
  const io::ByteView bytes = file.upTo(0, tgaHeaderSize);
  if (!isTgaFile(bytes)) return model::Error{"truncated TGA"};
  const TgaHeader header = tgaHeaderOf(bytes);
  const int colorBits = header.kind->hasPalette ? header.paletteBits : header.bits;
  const bool isNarrow = !header.kind->isGray && colorBits <= 16;
  properties.insert_or_assign("PixelWidth", header.width);
  properties.insert_or_assign("PixelHeight", header.height);
  properties.insert_or_assign("ColorModel", header.kind->isGray ? "Gray" : "RGB");
  properties.insert_or_assign("Depth", isNarrow ? 5 : 8);
  if (header.kind->hasPalette) properties.insert_or_assign("IsIndexed", true);
  if (header.alphaBits > 0) properties.insert_or_assign("HasAlpha", true);
  return std::nullopt;
}

}  // namespace media::image
