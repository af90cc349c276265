// SPDX-License-Identifier: MIT
#include "media/image/png/png_facts.h"

#include <algorithm>

#include "media/image/blocks/density.h"
#include "media/image/blocks/frame_delay.h"
#include "media/image/blocks/icc_profile.h"
#include "media/image/blocks/metadata_blocks.h"
#include "model/number_text.h"

namespace media::image {

namespace {

model::Dictionary& png(model::Dictionary& properties) {
  return section(properties, "{PNG}");
}

void readTransparency(io::ByteView, model::Dictionary& properties) {
  properties.insert_or_assign("HasAlpha", true);
}

void readGamma(io::ByteView payload, model::Dictionary& properties) {
  const auto gamma = payload.u32(0, io::ByteOrder::big);
  if (gamma) png(properties).insert_or_assign("Gamma", *gamma / 100'000.0);
}

void readChromaticities(io::ByteView payload, model::Dictionary& properties) {
  model::Array values;
  for (std::uint64_t index = 0; index < 8; ++index) {
    const auto value = payload.u32(index * 4, io::ByteOrder::big);
    if (!value) return;
    values.emplace_back(*value / 100'000.0);
  }
  png(properties).insert_or_assign("Chromaticities", std::move(values));
}

void readSrgb(io::ByteView payload, model::Dictionary& properties) {
  const auto intent = payload.u8(0);
  if (!intent) return;
  png(properties).insert_or_assign("sRGBIntent", *intent);
  setIfAbsent(properties, "ProfileName", srgbProfileName);
}

// Pixels a metre, or without a unit only their shape.
void readPhysicalSize(io::ByteView payload, model::Dictionary& properties) {
  const auto x = payload.u32(0, io::ByteOrder::big);
  const auto y = payload.u32(4, io::ByteOrder::big);
  const auto unit = payload.u8(8);
  if (!unit || *x == 0 || *y == 0) return;
  if (*unit == 0) {
    png(properties).insert_or_assign("PixelAspectRatio", static_cast<double>(*y) / *x);
    return;
  }
  png(properties).insert_or_assign("XPixelsPerMeter", *x);
  png(properties).insert_or_assign("YPixelsPerMeter", *y);
  setDensityFromMetres(*x, *y, properties);
}

void readTime(io::ByteView payload, model::Dictionary& properties) {
  if (payload.size() < 7) return;
  std::string text = model::paddedIntegerText(*payload.u16(0, io::ByteOrder::big), 4);
  constexpr std::string_view separators = ":: ::";
  for (std::uint64_t part = 0; part < separators.size(); ++part) {
    text += separators[part] + model::paddedIntegerText(*payload.u8(2 + part), 2);
  }
  png(properties).insert_or_assign("ModificationTime", std::move(text));
}

void readAnimation(io::ByteView payload, model::Dictionary& properties) {
  const auto plays = payload.u32(4, io::ByteOrder::big);
  if (plays) png(properties).insert_or_assign("LoopCount", *plays);
}

// Of the first frame only.
void readFrame(io::ByteView payload, model::Dictionary& properties) {
  const auto numerator = payload.u16(20, io::ByteOrder::big);
  const auto denominator = payload.u16(22, io::ByteOrder::big);
  if (!denominator || png(properties).contains("DelayTime")) return;
  constexpr double hundredths = 100;  // what a denominator of 0 stands for
  setFrameDelay(*numerator / (*denominator ? *denominator : hundredths), png(properties));
}

struct ChunkRow {
  std::string_view type;
  void (*read)(io::ByteView payload, model::Dictionary& properties);
};

constexpr ChunkRow rows[] = {
    {"acTL", readAnimation}, {"cHRM", readChromaticities}, {"fcTL", readFrame},
    {"gAMA", readGamma},     {"pHYs", readPhysicalSize},   {"sRGB", readSrgb},
    {"tIME", readTime},      {"tRNS", readTransparency},
};

const ChunkRow* rowOf(std::string_view type) {
  const auto* row = std::ranges::find(rows, type, &ChunkRow::type);
  return row == std::end(rows) ? nullptr : row;
}

}  // namespace

bool isPngFactChunk(std::string_view type) {
  return rowOf(type) != nullptr;
}

void readPngFact(std::string_view type, io::ByteView payload, model::Dictionary& properties) {
  if (const ChunkRow* row = rowOf(type)) row->read(payload, properties);
}

bool readPngHeader(io::ByteView payload, model::Dictionary& properties) {
  if (payload.size() < 13) return false;
  const std::uint32_t width = *payload.u32(0, io::ByteOrder::big);
  const std::uint32_t height = *payload.u32(4, io::ByteOrder::big);
  if (width == 0 || height == 0) return false;
  const std::uint8_t colorType = *payload.u8(9);
  constexpr std::uint8_t palette = 3;
  constexpr std::uint8_t colorBit = 2;
  constexpr std::uint8_t alphaBit = 4;
  properties.insert_or_assign("PixelWidth", width);
  properties.insert_or_assign("PixelHeight", height);
  properties.insert_or_assign("Depth", colorType == palette ? 8 : *payload.u8(8));
  properties.insert_or_assign("ColorModel", colorType & colorBit ? "RGB" : "Gray");
  if (colorType & alphaBit) properties.insert_or_assign("HasAlpha", true);
  if (colorType == palette) properties.insert_or_assign("IsIndexed", true);
  png(properties).insert_or_assign("InterlaceType", *payload.u8(12));
  return true;
}

}  // namespace media::image
