// SPDX-License-Identifier: MIT
//
// Layout: a header, the palette, the resources (metadata among them), the layers, the pixels. The
// sizes of all but the header stand in front of them.
#include "media/image/other/psd_container.h"

#include <string_view>

#include "media/image/blocks/density.h"
#include "media/image/blocks/embedded_blocks.h"
#include "media/image/blocks/photoshop_resources.h"

namespace media::image {

namespace {

constexpr std::uint64_t psdHeaderSize = 26;

// Numbers of resources.
constexpr std::uint16_t resolutionResource = 1005;
constexpr std::uint16_t profileResource = 1039;
constexpr std::uint16_t exifResource = 1058;
constexpr std::uint16_t xmpResource = 1060;

struct PsdMode {
  std::uint16_t code;
  std::string_view colorModel;
};

constexpr PsdMode psdModes[] = {{0, "Gray"}, {1, "Gray"}, {2, "RGB"}, {3, "RGB"},
                                {4, "CMYK"}, {8, "Gray"}, {9, "Lab"}};
constexpr std::uint16_t indexedMode = 2;

struct PsdHeader {
  bool isLarge = false;  // PSB: sizes of layers take eight bytes
  std::int64_t width = 0;
  std::int64_t height = 0;
  std::uint16_t depth = 0;
  std::uint16_t mode = 0;
};

PsdHeader psdHeaderOf(io::ByteView bytes) {
  constexpr auto order = io::ByteOrder::big;
  return {.isLarge = bytes.u16(4, order) == 2,
          .width = *bytes.u32(18, order),
          .height = *bytes.u32(14, order),
          .depth = *bytes.u16(22, order),
          .mode = *bytes.u16(24, order)};
}

void setPsdPixels(const PsdHeader& header, model::Dictionary& properties) {
  properties.insert_or_assign("PixelWidth", header.width);
  properties.insert_or_assign("PixelHeight", header.height);
  if (header.depth > 0 && header.depth <= 32) properties.insert_or_assign("Depth", header.depth);
  for (const PsdMode& mode : psdModes) {
    if (mode.code == header.mode) properties.insert_or_assign("ColorModel", mode.colorModel);
  }
  if (header.mode == indexedMode) properties.insert_or_assign("IsIndexed", true);
  if (header.depth == 32) properties.insert_or_assign("IsFloat", true);
}

// Dots an inch as a fraction of 65536, horizontally; a unit for showing it; the same vertically.
void setPsdDensity(io::ByteView resolution, model::Dictionary& properties) {
  const auto dots = [&](std::uint64_t offset) {
    return resolution.u32(offset, io::ByteOrder::big).value_or(0) / 65536.0;
  };
  if (dots(0) <= 0 || dots(8) <= 0) return;
  properties.insert_or_assign("DPIWidth", dots(0));
  properties.insert_or_assign("DPIHeight", dots(8));
}

// A section with its size in front: the bytes behind the size; none where the file ends before it.
std::optional<io::ByteRange> sectionAt(io::SourceReader& file, std::uint64_t offset) {
  const auto size = file.view(offset, 4);
  if (!size) return std::nullopt;
  const std::uint64_t begin = offset + 4;
  return io::ByteRange{begin, begin + *size->u32(0, io::ByteOrder::big)};
}

// Layers are counted below zero where the first channel behind the colours is the picture's
// transparency.
bool hasTransparency(io::SourceReader& file, std::uint64_t layers, bool isLarge) {
  const std::uint64_t place = layers + (isLarge ? 16 : 8);
  const auto count = file.upTo(place, 2).u16(0, io::ByteOrder::big);
  const io::ByteView sizes = file.upTo(layers, isLarge ? 16 : 8);
  const bool hasLayers = isLarge ? sizes.u64(8, io::ByteOrder::big).value_or(0) > 0
                                 : sizes.u32(4, io::ByteOrder::big).value_or(0) > 0;
  return hasLayers && count && *count >= 0x8000;
}

void readResources(io::SourceReader& file, io::ByteRange range, model::Dictionary& properties) {
  EmbeddedBlocks blocks;
  blocks.photoshop.append(range);
  std::optional<io::ByteRange> resolution;
  forEachPhotoshopResource(blocks.photoshop.reader(file), [&](const PhotoshopResource& resource) {
    const std::uint64_t begin = range.begin + resource.offset;
    const io::ByteRange bytes{begin, begin + resource.size};
    if (resource.number == resolutionResource) resolution = bytes;
    if (resource.number == profileResource) blocks.profile.append(bytes);
    if (resource.number == exifResource) blocks.exif.append(bytes);
    if (resource.number == xmpResource) blocks.xmp.append(bytes);
  });
  readEmbeddedBlocks(file, blocks, properties);
  if (resolution) setPsdDensity(file.upTo(resolution->begin, resolution->size()), properties);
}

}  // namespace

bool isPsdFile(io::ByteView head) {
  const int version = head.u16(4, io::ByteOrder::big).value_or(0);
  return head.startsWith("8BPS") && version >= 1 && version <= 2;
}

std::optional<model::Error> readPsdFile(io::SourceReader& file, model::Dictionary& properties) {
  const auto bytes = file.view(0, psdHeaderSize);
  if (!bytes) return model::Error{"truncated PSD"};
  const PsdHeader header = psdHeaderOf(*bytes);
  if (header.width == 0 || header.height == 0) return model::Error{"damaged PSD"};
  setPsdPixels(header, properties);
  const auto palette = sectionAt(file, psdHeaderSize);
  const auto resources = palette ? sectionAt(file, palette->end) : std::nullopt;
  if (!resources) return std::nullopt;
  readResources(file, *resources, properties);
  if (hasTransparency(file, resources->end, header.isLarge)) {
    properties.insert_or_assign("HasAlpha", true);
  }
  return std::nullopt;
}

}  // namespace media::image
