// SPDX-License-Identifier: MIT
#include "media/image/other/bmp_container.h"

#include <cstdlib>

#include "media/image/blocks/density.h"
#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"

namespace media::image {

namespace {

constexpr std::uint64_t fileHeaderSize = 14;

// Sizes of the header versions, by which they are told apart.
constexpr std::uint32_t coreHeader = 12;    // OS/2 1, 16-bit sizes
constexpr std::uint32_t shortest = 16;      // OS/2 2, cut after the bit count
constexpr std::uint32_t infoHeader = 40;    // has a density
constexpr std::uint32_t alphaHeader = 56;   // has a mask for alpha
constexpr std::uint32_t fifthHeader = 124;  // may have a profile
constexpr std::uint32_t largest = 1024;

struct BmpFacts {
  std::int64_t width = 0;
  std::int64_t height = 0;
  std::uint16_t bitsPerPixel = 0;
};

BmpFacts coreFacts(io::ByteView header) {
  return {header.u16(4, io::ByteOrder::little).value_or(0),
          header.u16(6, io::ByteOrder::little).value_or(0),
          header.u16(10, io::ByteOrder::little).value_or(0)};
}

// Heights below 0 mean that the top row comes first.
BmpFacts infoFacts(io::ByteView header) {
  const auto size = [&](std::uint64_t offset) {
    return std::int64_t{
        static_cast<std::int32_t>(header.u32(offset, io::ByteOrder::little).value_or(0))};
  };
  return {size(4), std::abs(size(8)), header.u16(14, io::ByteOrder::little).value_or(0)};
}

bool hasAlpha(io::ByteView header, const BmpFacts& facts) {
  constexpr std::uint32_t bitFields = 3;
  constexpr std::uint32_t alphaBitFields = 6;
  const std::uint32_t compression = header.u32(16, io::ByteOrder::little).value_or(0);
  return header.size() >= alphaHeader && facts.bitsPerPixel >= 16 &&
         (compression == bitFields || compression == alphaBitFields) &&
         header.u32(52, io::ByteOrder::little).value_or(0) != 0;
}

void readProfile(io::SourceReader& file, io::ByteView header, model::Dictionary& properties) {
  constexpr std::uint32_t embedded = 0x4D424544;  // 'MBED'
  if (header.size() < fifthHeader || header.u32(56, io::ByteOrder::little) != embedded) return;
  const std::uint64_t offset = *header.u32(112, io::ByteOrder::little);
  const std::uint64_t size = *header.u32(116, io::ByteOrder::little);
  if (size > limits.embeddedBytes) return;
  const auto profile = file.view(fileHeaderSize + offset, size);
  auto name = profile ? iccProfileName(*profile) : std::nullopt;
  if (name) properties.insert_or_assign("ProfileName", *std::move(name));
}

void readDensity(io::ByteView header, model::Dictionary& properties) {
  if (header.size() < infoHeader) return;
  const std::uint32_t x = *header.u32(24, io::ByteOrder::little);
  const std::uint32_t y = *header.u32(28, io::ByteOrder::little);
  if (x != 0 && y != 0) setDensityFromMetres(x, y, properties);
}

}  // namespace

bool isBmpFile(io::ByteView head) {
  const auto headerSize = head.u32(fileHeaderSize, io::ByteOrder::little);
  return head.startsWith("BM") && headerSize && *headerSize >= coreHeader && *headerSize <= largest;
}

std::optional<model::Error> readBmpFile(io::SourceReader& file, model::Dictionary& properties) {
  const auto headerSize = file.upTo(fileHeaderSize, 4).u32(0, io::ByteOrder::little);
  const auto header =
      headerSize ? file.view(fileHeaderSize, *headerSize) : std::optional<io::ByteView>();
  if (!header) return model::Error{"truncated BMP"};
  const bool isCore = *headerSize < shortest;
  const BmpFacts facts = isCore ? coreFacts(*header) : infoFacts(*header);
  if (facts.width <= 0 || facts.height == 0) return model::Error{"damaged BMP"};
  properties.insert_or_assign("PixelWidth", facts.width);
  properties.insert_or_assign("PixelHeight", facts.height);
  properties.insert_or_assign("ColorModel", "RGB");
  properties.insert_or_assign("Depth", 8);
  if (facts.bitsPerPixel > 0 && facts.bitsPerPixel <= 8) {
    properties.insert_or_assign("IsIndexed", true);
  }
  if (hasAlpha(*header, facts)) properties.insert_or_assign("HasAlpha", true);
  readDensity(*header, properties);
  readProfile(file, *header, properties);
  return std::nullopt;
}

}  // namespace media::image
