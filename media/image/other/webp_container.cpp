// SPDX-License-Identifier: MIT
#include "media/image/other/webp_container.h"

#include <string_view>

#include "io/iso_box.h"
#include "media/image/blocks/density.h"
#include "media/image/blocks/embedded_blocks.h"
#include "media/image/blocks/limits.h"

namespace media::image {

namespace {

constexpr std::uint64_t riffHeaderSize = 12;
constexpr std::uint64_t chunkHeaderSize = 8;
constexpr std::uint64_t longestHeader = 10;  // bytes of an image chunk that say its size

struct WebpFacts {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  bool hasAlpha = false;
};

std::uint32_t u24(io::ByteView bytes, std::uint64_t offset) {
  const std::uint32_t high = bytes.u8(offset + 2).value_or(0);
  return bytes.u16(offset, io::ByteOrder::little).value_or(0) | high << 16;
}

// A canvas with flags in front; sizes are stored less 1.
std::optional<WebpFacts> extendedFacts(io::ByteView start) {
  constexpr std::uint8_t alphaFlag = 0x10;
  if (start.size() < 10) return std::nullopt;
  return WebpFacts{u24(start, 4) + 1, u24(start, 7) + 1, (*start.u8(0) & alphaFlag) != 0};
}

// A frame tag of three bytes, a start code, sizes of 14 bits with two bits of scale above them.
std::optional<WebpFacts> lossyFacts(io::ByteView start) {
  if (start.size() < 10 || !start.from(3).startsWith("\x9D\x01\x2A")) return std::nullopt;
  constexpr std::uint32_t sizeBits = 0x3FFF;
  return WebpFacts{*start.u16(6, io::ByteOrder::little) & sizeBits,
                   *start.u16(8, io::ByteOrder::little) & sizeBits};
}

// A signature byte, two sizes of 14 bits less 1, a bit for alpha.
std::optional<WebpFacts> losslessFacts(io::ByteView start) {
  if (start.size() < 5 || start.u8(0) != 0x2F) return std::nullopt;
  const std::uint32_t bits = *start.u32(1, io::ByteOrder::little);
  return WebpFacts{(bits & 0x3FFF) + 1, (bits >> 14 & 0x3FFF) + 1, (bits >> 28 & 1) != 0};
}

struct ImageChunk {
  std::string_view type;
  std::optional<WebpFacts> (*facts)(io::ByteView start);
};

constexpr ImageChunk imageChunks[] = {
    {"VP8X", extendedFacts}, {"VP8 ", lossyFacts}, {"VP8L", losslessFacts}};

class WebpReader {
 public:
  WebpReader(io::SourceReader& file, model::Dictionary& properties)
      : _file(file), _properties(properties) {}

  std::optional<model::Error> read() {
    const bool isWhole = walk() && claimedSize() <= _file.size();
    if (!_properties.contains("PixelWidth")) {
      return model::Error{isWhole ? "damaged WebP" : "truncated WebP"};
    }
    readEmbeddedBlocks(_file, _blocks, _properties);
    setDensityFromTiff(_properties);
    return std::nullopt;
  }

 private:
  std::uint64_t claimedSize() {
    return 8 + std::uint64_t{_file.upTo(4, 4).u32(0, io::ByteOrder::little).value_or(0)};
  }

  // Whether the last chunk lies in the file whole.
  bool walk() {
    std::uint64_t offset = riffHeaderSize;
    for (std::size_t count = 0; count < limits.webpChunks && offset < _file.size(); ++count) {
      const auto header = _file.view(offset, chunkHeaderSize, io::SourceReader::ReadAhead::none);
      if (!header) return false;
      const std::uint64_t size = *header->u32(4, io::ByteOrder::little);
      const std::string type(header->text().substr(0, 4));
      const std::uint64_t payload = offset + chunkHeaderSize;
      const bool isCut = size > _file.size() - payload;
      take(type, {payload, isCut ? _file.size() : payload + size});
      if (isCut) return false;
      offset = payload + size + size % 2;
    }
    return true;
  }

  void take(std::string_view type, io::ByteRange payload) {
    if (type == "EXIF" && _blocks.exif.isEmpty()) _blocks.exif.append(payload);
    if (type == "XMP " && _blocks.xmp.isEmpty()) _blocks.xmp.append(payload);
    if (type == "ICCP" && _blocks.profile.isEmpty()) _blocks.profile.append(payload);
    for (const ImageChunk& chunk : imageChunks) {
      if (chunk.type == type) takeImage(chunk, payload);
    }
  }

  // The first image chunk counts: where there is a canvas, it comes before the images on it.
  void takeImage(const ImageChunk& chunk, io::ByteRange payload) {
    if (_properties.contains("PixelWidth")) return;
    const io::ByteView start =
        _file.upTo(payload.begin, longestHeader, io::SourceReader::ReadAhead::none);
    const auto facts = chunk.facts(start);
    if (!facts || facts->width == 0 || facts->height == 0) return;
    _properties.insert_or_assign("PixelWidth", facts->width);
    _properties.insert_or_assign("PixelHeight", facts->height);
    _properties.insert_or_assign("ColorModel", "RGB");
    _properties.insert_or_assign("Depth", 8);
    if (facts->hasAlpha) _properties.insert_or_assign("HasAlpha", true);
  }

  io::SourceReader& _file;
  model::Dictionary& _properties;
  EmbeddedBlocks _blocks;
};

}  // namespace

bool isWebpFile(io::ByteView head) {
  return head.startsWith("RIFF") && head.from(8).startsWith("WEBP");
}

std::optional<model::Error> readWebpFile(io::SourceReader& file, model::Dictionary& properties) {
  return WebpReader(file, properties).read();
}

}  // namespace media::image
