// SPDX-License-Identifier: MIT
#include "media/image/other/gif_container.h"

#include <string_view>

#include "io/iso_box.h"
#include "media/image/blocks/density.h"
#include "media/image/blocks/frame_delay.h"
#include "media/image/blocks/icc_profile.h"
#include "media/image/blocks/limits.h"
#include "media/image/blocks/metadata_blocks.h"
#include "media/image/blocks/spliced_ranges.h"

namespace media::image {

namespace {

constexpr std::uint8_t extensionIntroducer = 0x21;
constexpr std::uint8_t imageSeparator = 0x2C;
constexpr std::uint8_t graphicControl = 0xF9;
constexpr std::uint8_t application = 0xFF;
constexpr std::uint64_t screenDescriptorEnd = 13;

// The size of a colour table that a packed byte announces.
std::uint64_t colorTableSize(std::uint8_t packed) {
  return packed & 0x80 ? std::uint64_t{3} << ((packed & 7) + 1) : 0;
}

// What comes before the first image.
class GifReader {
 public:
  GifReader(io::SourceReader& file, model::Dictionary& properties)
      : _file(file), _properties(properties) {}

  // Reads the extensions from the offset on. Returns the first image's header if there is one.
  std::optional<io::ByteView> walkToFirstImage(std::uint64_t offset) {
    for (std::size_t count = 0; count < limits.gifExtensions; ++count) {
      const io::ByteView introducer = _file.upTo(offset, 2);
      if (introducer.u8(0) == imageSeparator) return _file.view(offset, 10);
      if (introducer.u8(0) != extensionIntroducer || introducer.size() < 2) return std::nullopt;
      const std::uint8_t label = *introducer.u8(1);
      const auto end = endOfSubBlocks(offset + 2);
      if (!end) return std::nullopt;
      readExtension(label, {offset + 2, *end});
      offset = *end;
    }
    return std::nullopt;
  }

 private:
  // The size in front of a sub-block; 0 ends a chain of them. None where the file ends, and where
  // there were too many.
  std::optional<std::uint8_t> subBlockSize(std::uint64_t offset) {
    if (_subBlocksLeft == 0) return std::nullopt;
    --_subBlocksLeft;
    return _file.upTo(offset, 1).u8(0);
  }

  std::optional<std::uint64_t> endOfSubBlocks(std::uint64_t offset) {
    while (const auto size = subBlockSize(offset)) {
      offset += 1 + std::uint64_t{*size};
      if (*size == 0) return offset;
    }
    return std::nullopt;
  }

  // The extension whose sub-blocks are the body.
  void readExtension(std::uint8_t label, io::ByteRange body) {
    if (label == graphicControl) return readGraphicControl(body.begin);
    if (label != application) return;
    constexpr std::string_view xmpHeader = "\x0BXMP DataXMP";
    constexpr std::string_view profileHeader = "\x0BICCRGBG1012";
    const std::uint64_t dataBegin = body.begin + xmpHeader.size();
    const io::ByteView header = _file.upTo(body.begin, xmpHeader.size());
    if (header.startsWith(xmpHeader)) {
      readXmp({dataBegin, body.end});
    } else if (header.startsWith(profileHeader)) {
      readProfile(dataBegin);
    }
  }

  void readGraphicControl(std::uint64_t offset) {
    const auto block = _file.view(offset, 5);  // size, packed fields, delay, transparent index
    if (!block || block->u8(0) < 4) return;
    constexpr std::uint8_t transparencyFlag = 1;
    if (*block->u8(1) & transparencyFlag) _properties.insert_or_assign("HasAlpha", true);
    setFrameDelay(*block->u16(2, io::ByteOrder::little) / 100.0, section(_properties, "{GIF}"));
  }

  // The packet stands as it is, not in sub-blocks; a trailer of descending bytes behind it leads
  // readers that take it for sub-blocks to the end. XMP Specification, part 3, 1.1.2.
  void readXmp(io::ByteRange block) {
    constexpr std::uint64_t trailerSize = 258;
    if (_hasXmp || block.size() <= trailerSize || block.size() > limits.embeddedBytes) return;
    _hasXmp = true;
    const auto packet = _file.view(block.begin, block.size() - trailerSize);
    if (packet) readXmpPacket(*packet, _properties);
  }

  // The profile stands in sub-blocks. ICC.1:2010, B.6.
  void readProfile(std::uint64_t offset) {
    if (_hasProfile) return;
    _hasProfile = true;
    SplicedRanges profile;
    while (const auto size = subBlockSize(offset)) {
      if (*size == 0) break;
      profile.append({offset + 1, offset + 1 + *size});
      offset += 1 + std::uint64_t{*size};
    }
    auto name = iccProfileName(profile.reader(_file));
    if (name) setIfAbsent(_properties, "ProfileName", *std::move(name));
  }

  io::SourceReader& _file;
  model::Dictionary& _properties;
  std::size_t _subBlocksLeft = limits.gifSubBlocks;
  bool _hasXmp = false;
  bool _hasProfile = false;
};

}  // namespace

bool isGifFile(io::ByteView head) {
  return head.startsWith("GIF87a") || head.startsWith("GIF89a");
}

std::optional<model::Error> readGifFile(io::SourceReader& file, model::Dictionary& properties) {
  const auto screen = file.view(0, screenDescriptorEnd);
  if (!screen) return model::Error{"truncated GIF"};
  std::uint16_t width = *screen->u16(6, io::ByteOrder::little);
  std::uint16_t height = *screen->u16(8, io::ByteOrder::little);
  const std::uint64_t firstBlock = screenDescriptorEnd + colorTableSize(*screen->u8(10));
  const auto image = GifReader(file, properties).walkToFirstImage(firstBlock);
  if (width == 0 || height == 0) {  // no screen size: the first image's
    if (!image) return model::Error{"truncated GIF"};
    width = *image->u16(5, io::ByteOrder::little);
    height = *image->u16(7, io::ByteOrder::little);
  }
  properties.insert_or_assign("PixelWidth", width);
  properties.insert_or_assign("PixelHeight", height);
  properties.insert_or_assign("ColorModel", "RGB");
  properties.insert_or_assign("Depth", 8);
  return std::nullopt;
}

}  // namespace media::image
