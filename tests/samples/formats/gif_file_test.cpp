// SPDX-License-Identifier: MIT
#include "samples/formats/gif_file.h"

#include <gtest/gtest.h>

#include "samples/formats/gif_palette.h"
#include "samples/pictures/scenes.h"

namespace samples {
namespace {

// A plain decoder of GIF's LZW for 8-bit pixels.
Bytes decompressed(const Bytes& codes) {
  std::vector<Bytes> table;
  Bytes pixels;
  Bytes last;
  std::size_t bit = 0;
  std::size_t width = 9;
  const auto reset = [&] {
    table.assign(258, {});
    for (std::size_t value = 0; value < 256; ++value)
      table[value] = {static_cast<std::uint8_t>(value)};
    last.clear();
    width = 9;
  };
  for (reset(); bit + width <= codes.size() * 8;) {
    std::size_t code = 0;
    for (std::size_t index = 0; index < width; ++index, ++bit)
      code |= static_cast<std::size_t>((codes[bit / 8] >> (bit % 8)) & 1) << index;
    if (code == 257) break;
    if (code == 256) {
      reset();
      continue;
    }
    Bytes run = code < table.size() ? table[code] : last;
    if (code >= table.size()) run.push_back(last.front());
    if (!last.empty() && table.size() < 4096) {
      last.push_back(run.front());
      table.push_back(last);
    }
    if (table.size() == (std::size_t{1} << width) && width < 12) ++width;
    pixels.insert(pixels.end(), run.begin(), run.end());
    last = run;
  }
  return pixels;
}

// The LZW codes of the first frame.
Bytes firstFrameCodes(const Bytes& file) {
  std::size_t at = 13 + 768;
  while (file[at] == '!') {
    at += 2;
    while (file[at] != 0) at += file[at] + std::size_t{1};
    ++at;
  }
  Bytes codes;
  for (at += 11; file[at] != 0; at += file[at] + std::size_t{1})
    codes.insert(codes.end(), file.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                 file.begin() + static_cast<std::ptrdiff_t>(at) + 1 + file[at]);
  return codes;
}

TEST(GifFile, HoldsThePixelsOfAFrame) {
  for (const int width : {1, 40, 300}) {
    const std::vector<Picture> frames = {paintScene(Scene::surf, width, 120)};
    const Bytes file = gifFile(frames, 10, "waves");
    EXPECT_EQ(decompressed(firstFrameCodes(file)),
              paletteIndices(frames.front(), medianCutPalette(frames)))
        << width;
  }
}

TEST(GifFile, NamesItsLoopAndItsComment) {
  const Bytes bytes = gifFile({Picture(4, 4)}, 10, "waves");
  const std::string file(bytes.begin(), bytes.end());
  EXPECT_NE(file.find("NETSCAPE2.0"), std::string::npos);
  EXPECT_NE(file.find("waves"), std::string::npos);
  EXPECT_EQ(file.back(), ';');
}

}  // namespace
}  // namespace samples
