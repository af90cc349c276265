// SPDX-License-Identifier: MIT
#include "samples/formats/bmp_file.h"

#include <cmath>

namespace samples {

Bytes bmpFile(const Picture& picture, int dotsPerInch) {
  constexpr std::size_t headerSize = 14 + 40;
  const std::size_t rowSize = static_cast<std::size_t>(picture.width()) * 3;
  const std::size_t padding = (4 - rowSize % 4) % 4;
  const std::size_t dataSize = (rowSize + padding) * static_cast<std::size_t>(picture.height());
  ByteWriter file(ByteOrder::little);
  file.text("BM");
  file.u32(headerSize + dataSize);
  file.u32(0);
  file.u32(headerSize);
  file.u32(40);
  file.u32(picture.width());
  file.u32(picture.height());  // positive: rows from the bottom
  file.u16(1);
  file.u16(24);
  file.u32(0);  // not compressed
  file.u32(dataSize);
  for (int axis = 0; axis < 2; ++axis) file.u32(std::lround(dotsPerInch / 0.0254));
  file.zeros(8);  // no palette
  for (int y = picture.height() - 1; y >= 0; --y) {
    for (int x = 0; x < picture.width(); ++x) {
      const Rgb& pixel = picture.at(x, y);
      for (const float part : {pixel.blue, pixel.green, pixel.red}) file.u8(quantized(part, 255));
    }
    file.zeros(padding);
  }
  return file.take();
}

}  // namespace samples
