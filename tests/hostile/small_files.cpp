// SPDX-License-Identifier: MIT
#include "tests/hostile/small_files.h"

#include <string_view>

#include "samples/formats/bmp_file.h"
#include "samples/formats/gif_file.h"
#include "samples/formats/heic_file.h"
#include "samples/formats/jpeg_file.h"
#include "samples/formats/png_file.h"
#include "samples/formats/tiff_file.h"
#include "tests/support/avi_builder.h"
#include "tests/support/crowded_containers.h"
#include "tests/support/movie_builder.h"

namespace hostile {

namespace {

samples::Picture smallPicture() {
  samples::Picture picture(64, 48);
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      picture.at(x, y) = {static_cast<float>(x) / 64, static_cast<float>(y) / 48, 0.5F};
  return picture;
}

Bytes textBytes(std::string_view text) {
  return {text.begin(), text.end()};
}

// Bits from the lowest of each byte on, as WebP has them.
class LowBitsFirst {
 public:
  void add(std::uint32_t value, int count) {
    for (int bit = 0; bit < count; ++bit) {
      if (_used++ % 8 == 0) _bytes.push_back(0);
      _bytes.back() =
          static_cast<std::uint8_t>(_bytes.back() | ((value >> bit) & 1) << ((_used - 1) % 8));
    }
  }
  const Bytes& bytes() const { return _bytes; }

 private:
  Bytes _bytes;
  int _used = 0;
};

constexpr std::string_view propertyList =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>"
    "<key>Title</key><string>No photo</string></dict></plist>\n";

}  // namespace

// WebP Lossless Bitstream Specification: without transforms and caches, and with one symbol in each
// of the five codes, a pixel takes no bits.
Bytes webpOfOneColour(std::uint32_t width, std::uint32_t height) {
  LowBitsFirst bits;
  bits.add(0x2F, 8);
  bits.add(width - 1, 14);
  bits.add(height - 1, 14);
  bits.add(0, 1 + 3 + 1 + 1 + 1);  // opaque, version, no transform, no cache, one group of codes
  for (const std::uint32_t symbol : {0x20U, 0x60U, 0xA0U, 0xFFU, 0U}) {
    bits.add(0b101, 3);  // a simple code, of one symbol, of eight bits
    bits.add(symbol, 8);
  }
  samples::ByteWriter chunk(samples::ByteOrder::little);
  chunk.text("WEBPVP8L");
  chunk.u32(bits.bytes().size());
  chunk.append(bits.bytes());
  if (bits.bytes().size() % 2 != 0) chunk.u8(0);
  samples::ByteWriter file(samples::ByteOrder::little);
  file.text("RIFF");
  file.u32(chunk.size());
  file.append(chunk.bytes());
  return file.take();
}

std::vector<SmallFile> smallFiles() {
  const samples::Picture picture = smallPicture();
  auto heic = samples::computerHeicFile(picture, {});
  return {
      {"jpg", samples::jpegFile(picture, {.jfif = true}, {})},
      {"png", samples::pngFile(picture, {})},
      {"gif", samples::gifFile({picture, picture}, 10, "small")},
      {"tif", samples::tiffFile(picture, {}, samples::ByteOrder::little)},
      {"bmp", samples::bmpFile(picture, 72)},
      {"webp", webpOfOneColour(64, 48)},
      {"heic", heic ? *std::move(heic) : Bytes()},
      {"mov", media::movie::phoneMovie()},
      {"mp4", media::movie::webMovie()},
      {"mkv", media::movie::crowdedMatroska(2)},
      {"avi", media::movie::smallAvi()},
      {"ts", media::movie::crowdedTransportStream(2)},
      {"plist", textBytes(propertyList)},
      {"txt", textBytes("No photo at all.\n")},
      {"empty", {}},
  };
}

}  // namespace hostile
