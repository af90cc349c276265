// SPDX-License-Identifier: MIT
//
// Signature, chunks, end: each chunk with its length before and its check sum behind it. The
// picture is one deflated chunk of rows, all with the same filter; what programs add to their files
// stands before it, in the order in which they write it.
#include "samples/formats/png_file.h"

#include <cmath>
#include <cstdlib>

#include "samples/formats/deflate.h"

namespace samples {

namespace {

void addChunk(ByteWriter& file, std::string_view type, const Bytes& data) {
  file.u32(data.size());
  ByteWriter chunk;
  chunk.text(type);
  chunk.append(data);
  file.append(chunk.bytes());
  file.u32(crc32Of(chunk.bytes()));
}

Bytes textChunk(std::string_view keyword, std::string_view text) {
  ByteWriter chunk;
  chunk.text(keyword);
  chunk.u8(0);
  chunk.text(text);
  return chunk.take();
}

// Uncompressed UTF-8 without language and translated keyword.
Bytes internationalTextChunk(std::string_view keyword, std::string_view text) {
  ByteWriter chunk;
  chunk.text(keyword);
  chunk.zeros(5);
  chunk.text(text);
  return chunk.take();
}

Bytes headerChunk(const Picture& picture, bool alpha) {
  ByteWriter chunk;
  chunk.u32(picture.width());
  chunk.u32(picture.height());
  chunk.u8(8);
  chunk.u8(alpha ? 6 : 2);
  chunk.zeros(3);  // deflate, adaptive filters, not interlaced
  return chunk.take();
}

Bytes densityChunk(int density) {
  ByteWriter chunk;
  for (int axis = 0; axis < 2; ++axis) chunk.u32(std::lround(density / 0.0254));
  chunk.u8(1);
  return chunk.take();
}

Bytes primariesChunk() {
  ByteWriter chunk;
  for (const int part : {31270, 32900, 64000, 33000, 30000, 60000, 15000, 6000}) chunk.u32(part);
  return chunk.take();
}

Bytes timeChunk(const model::CivilTime& time) {
  ByteWriter chunk;
  chunk.u16(time.year);
  for (const int part : {time.month, time.day, time.hour, time.minute, time.second}) chunk.u8(part);
  return chunk.take();
}

// How much of a pixel lies inside the rounded corners, 0 to 255.
int cornerAlpha(const Picture& picture, int x, int y, float radius) {
  const float pixels = radius * static_cast<float>(picture.height());
  const auto inset = [&](int position, int size) {
    const float middle = static_cast<float>(position) + 0.5f;
    return pixels - std::min(middle, static_cast<float>(size) - middle);
  };
  const float dx = std::max(inset(x, picture.width()), 0.0f);
  const float dy = std::max(inset(y, picture.height()), 0.0f);
  if (dx <= 0 || dy <= 0) return 255;
  return quantized(pixels - std::hypot(dx, dy) + 0.5f, 255);
}

Bytes pixelBytes(const Picture& picture, float cornerRadius) {
  Bytes bytes = rgbBytes(picture);
  if (cornerRadius <= 0) return bytes;
  Bytes withAlpha;
  std::size_t next = 0;
  for (int y = 0; y < picture.height(); ++y) {
    for (int x = 0; x < picture.width(); ++x) {
      for (int part = 0; part < 3; ++part) withAlpha.push_back(bytes[next++]);
      withAlpha.push_back(static_cast<std::uint8_t>(cornerAlpha(picture, x, y, cornerRadius)));
    }
  }
  return withAlpha;
}

// The Paeth predictor: whichever of three neighbours is nearest to left + up - upper left.
std::uint8_t paeth(int left, int up, int upperLeft) {
  const int estimate = left + up - upperLeft;
  const int toLeft = std::abs(estimate - left);
  const int toUp = std::abs(estimate - up);
  const int toUpperLeft = std::abs(estimate - upperLeft);
  if (toLeft <= toUp && toLeft <= toUpperLeft) return static_cast<std::uint8_t>(left);
  return static_cast<std::uint8_t>(toUp <= toUpperLeft ? up : upperLeft);
}

// Every row with filter 4: good for drawn gradients, and needs no search.
Bytes filtered(const Bytes& pixels, std::size_t rowSize, std::size_t step) {
  Bytes out;
  for (std::size_t row = 0; row * rowSize < pixels.size(); ++row) {
    out.push_back(4);
    for (std::size_t index = 0; index < rowSize; ++index) {
      const std::size_t here = row * rowSize + index;
      const int left = index >= step ? pixels[here - step] : 0;
      const int up = row > 0 ? pixels[here - rowSize] : 0;
      const int upperLeft = row > 0 && index >= step ? pixels[here - rowSize - step] : 0;
      out.push_back(static_cast<std::uint8_t>(pixels[here] - paeth(left, up, upperLeft)));
    }
  }
  return out;
}

void addImageData(ByteWriter& file, const Picture& picture, float cornerRadius) {
  const std::size_t step = cornerRadius > 0 ? 4 : 3;
  const std::size_t rowSize = static_cast<std::size_t>(picture.width()) * step;
  const Bytes stream = deflated(filtered(pixelBytes(picture, cornerRadius), rowSize, step));
  constexpr std::size_t chunkSize = 65536;
  for (std::size_t start = 0; start < stream.size(); start += chunkSize) {
    const std::size_t end = std::min(start + chunkSize, stream.size());
    addChunk(file, "IDAT",
             Bytes(stream.begin() + static_cast<std::ptrdiff_t>(start),
                   stream.begin() + static_cast<std::ptrdiff_t>(end)));
  }
}

}  // namespace

Bytes pngFile(const Picture& picture, const PngLook& look) {
  ByteWriter file;
  file.text("\x89PNG\r\n\x1A\n");
  addChunk(file, "IHDR", headerChunk(picture, look.cornerRadius > 0));
  addChunk(file, "sRGB", Bytes{0});
  if (look.gammaAndPrimaries) {
    addChunk(file, "gAMA", Bytes{0, 0, 0xB1, 0x8F});
    addChunk(file, "cHRM", primariesChunk());
  }
  if (!look.exif.empty()) addChunk(file, "eXIf", look.exif);
  addChunk(file, "pHYs", densityChunk(look.density));
  addChunk(file, "tIME", timeChunk(look.changed));
  for (const auto& [keyword, text] : look.texts) addChunk(file, "tEXt", textChunk(keyword, text));
  if (!look.xmp.empty())
    addChunk(file, "iTXt", internationalTextChunk("XML:com.adobe.xmp", look.xmp));
  addImageData(file, picture, look.cornerRadius);
  addChunk(file, "IEND", {});
  return file.take();
}

}  // namespace samples
