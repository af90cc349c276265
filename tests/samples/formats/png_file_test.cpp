// SPDX-License-Identifier: MIT
#include "samples/formats/png_file.h"

#include <gtest/gtest.h>

#include "samples/formats/deflate.h"

namespace samples {
namespace {

struct Chunk {
  std::string type;
  std::uint32_t size = 0;
  bool isSound = false;
};

std::uint32_t numberAt(const Bytes& file, std::size_t at) {
  return file[at] * 16777216u + file[at + 1] * 65536u + file[at + 2] * 256u + file[at + 3];
}

std::vector<Chunk> chunksOf(const Bytes& file) {
  std::vector<Chunk> chunks;
  for (std::size_t at = 8; at + 12 <= file.size();) {
    const std::uint32_t size = numberAt(file, at);
    const auto body = std::span(file).subspan(at + 4, size + std::size_t{4});
    chunks.push_back({.type = std::string(body.begin(), body.begin() + 4),
                      .size = size,
                      .isSound = crc32Of(body) == numberAt(file, at + 8 + size)});
    at += size + std::size_t{12};
  }
  return chunks;
}

TEST(PngFile, HasSoundChunksInOrder) {
  const Bytes file = pngFile(Picture(9, 7), {.gammaAndPrimaries = true,
                                             .texts = {{"Title", "A title"}},
                                             .xmp = "<x/>",
                                             .exif = {'M', 'M'}});
  std::string types;
  for (const Chunk& chunk : chunksOf(file)) {
    EXPECT_TRUE(chunk.isSound) << chunk.type;
    types += chunk.type + " ";
  }
  EXPECT_EQ(types, "IHDR sRGB gAMA cHRM eXIf pHYs tIME tEXt iTXt IDAT IEND ");
}

TEST(PngFile, HasAlphaOnlyWithRoundCorners) {
  constexpr std::size_t colorType = 8 + 8 + 9;
  EXPECT_EQ(pngFile(Picture(9, 7), {})[colorType], 2);
  EXPECT_EQ(pngFile(Picture(9, 7), {.cornerRadius = 0.1f})[colorType], 6);
}

}  // namespace
}  // namespace samples
