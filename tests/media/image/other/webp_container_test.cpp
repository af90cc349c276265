// SPDX-License-Identifier: MIT
#include "media/image/other/webp_container.h"

#include <gtest/gtest.h>

#include "media/image/image_source.h"
#include "tests/media/image/container_builder.h"

namespace media::image {
namespace {

using namespace std::string_literals;

std::string lossy(int width, int height) {
  return riffChunk("VP8 ", "\x30\x01\0\x9D\x01\x2A"s +
                               littleEndian(static_cast<std::uint64_t>(width), 2) +
                               littleEndian(static_cast<std::uint64_t>(height), 2) + "coded");
}

std::string lossless(std::uint64_t width, std::uint64_t height, bool hasAlpha) {
  const std::uint64_t bits = (width - 1) | (height - 1) << 14 | (hasAlpha ? 1ULL << 28 : 0);
  return riffChunk("VP8L", "\x2F" + littleEndian(bits, 4) + "coded");
}

std::string extended(int flags, std::uint64_t width, std::uint64_t height) {
  return riffChunk("VP8X", littleEndian(static_cast<std::uint64_t>(flags), 4) +
                               littleEndian(width - 1, 3) + littleEndian(height - 1, 3));
}

TEST(WebpContainer, everyKindOfImageHasASize) {
  struct Case {
    const char* name;
    std::string chunks;
    bool hasAlpha;
  };
  const Case cases[] = {
      {"lossy", lossy(640, 480), false},
      {"lossy, scaled", lossy(640 | 0x4000, 480 | 0x8000), false},
      {"lossless", lossless(640, 480, false), false},
      {"lossless with alpha", lossless(640, 480, true), true},
      {"extended", extended(0, 640, 480) + lossy(8, 6), false},
      {"extended with alpha", extended(0x10, 640, 480) + lossy(8, 6), true},
  };
  for (const Case& each : cases) {
    model::Dictionary expected = {
        {"ColorModel", "RGB"}, {"Depth", 8}, {"PixelHeight", 480}, {"PixelWidth", 640}};
    if (each.hasAlpha) expected["HasAlpha"] = true;
    EXPECT_EQ(propertiesOf(webpFile(each.chunks)), expected) << each.name;
  }
}

TEST(WebpContainer, blocksBehindTheImageDataAreFoundWithoutReadingIt) {
  const std::string chunks =
      extended(0x2C, 640, 480) + riffChunk("ICCP", iccProfile("Display P3")) +
      riffChunk("VP8 ", std::string(1'000'001, 'c')) +
      riffChunk("EXIF", "Exif\0\0"s + exifBlock("Maker", 6)) +
      riffChunk("XMP ", xmpPacket("<photoshop:City>Kingston</photoshop:City>"));
  io::MemorySource source(bytesOf(webpFile(chunks)));
  const auto properties = copyProperties(source);
  ASSERT_TRUE(properties && *properties);
  EXPECT_EQ(*entry(**properties, "", "ProfileName"), "Display P3");
  EXPECT_EQ(*entry(**properties, "", "Orientation"), 6);
  EXPECT_EQ(*entry(**properties, "", "DPIWidth"), 300.0);
  EXPECT_EQ(*entry(**properties, "{TIFF}", "Make"), "Maker");
  EXPECT_EQ(*entry(**properties, "{IPTC}", "City"), "Kingston");
  EXPECT_LE(source.bytesRead(), 80U * 1024);
}

TEST(WebpContainer, saysWhyThereIsNoSize) {
  const std::string file = webpFile(lossy(640, 480));
  EXPECT_EQ(errorOf(file.substr(0, 12)), "truncated WebP");
  EXPECT_EQ(errorOf(webpFile("")), "damaged WebP");
  EXPECT_EQ(errorOf(file.substr(0, 16)), "truncated WebP");
  EXPECT_EQ(errorOf(file.substr(0, 25)), "truncated WebP");
  EXPECT_EQ(errorOf(file.substr(0, 30)), "");
  EXPECT_EQ(errorOf(webpFile(riffChunk("VP8 ", "no frame tag"))), "damaged WebP");
  EXPECT_EQ(errorOf(webpFile("junk" + bigEndian(~0ULL, 4))), "truncated WebP");
}

TEST(WebpContainer, manyTinyChunksEndSomewhere) {
  std::string many;
  for (int index = 0; index < 100'000; ++index) many += riffChunk("JUNK", "");
  EXPECT_EQ(errorOf(webpFile(many + lossy(8, 6))), "damaged WebP");
}

}  // namespace
}  // namespace media::image
