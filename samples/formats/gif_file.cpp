// SPDX-License-Identifier: MIT
#include "samples/formats/gif_file.h"

#include <algorithm>
#include <utility>

#include "samples/formats/gif_palette.h"

namespace samples {

namespace {

// Codes of growing width, packed from the lowest bit.
class CodePacker {
 public:
  void put(int code, int width) {
    _bits |= static_cast<std::uint32_t>(code) << _count;
    _count += width;
    while (_count >= 8) takeByte();
  }
  Bytes finish() {
    while (_count > 0) takeByte();
    return std::move(_bytes);
  }

 private:
  void takeByte() {
    _bytes.push_back(static_cast<std::uint8_t>(_bits & 0xFF));
    _bits >>= 8;
    _count -= 8;
  }

  Bytes _bytes;
  std::uint32_t _bits = 0;
  int _count = 0;
};

// GIF's variant of LZW for 8-bit pixels.
class LzwCoder {
 public:
  Bytes code(const std::vector<std::uint8_t>& pixels) {
    clear();
    int prefix = pixels.front();
    for (std::size_t index = 1; index < pixels.size(); ++index) {
      std::int16_t& longer = _codes[static_cast<std::size_t>(prefix) * 256 + pixels[index]];
      if (longer != 0) {
        prefix = longer;
        continue;
      }
      _packer.put(prefix, _width);
      prefix = pixels[index];
      longer = static_cast<std::int16_t>(_next);
      // The decoder learns a code one step later, so it is this one that needs the wider form.
      if (_next == 1 << _width) ++_width;
      if (++_next == codeCount) clear();
    }
    _packer.put(prefix, _width);
    _packer.put(endCode, _width);
    return _packer.finish();
  }

 private:
  static constexpr int clearCode = 256;
  static constexpr int endCode = 257;
  static constexpr int codeCount = 4096;

  void clear() {
    _packer.put(clearCode, _width);
    _codes.assign(std::size_t{codeCount} * 256, 0);
    _next = endCode + 1;
    _width = 9;
  }

  CodePacker _packer;
  std::vector<std::int16_t> _codes;  // of a code followed by a pixel; 0 while unknown
  int _next = 0;
  int _width = 9;
};

// Bytes in blocks of at most 255, then an empty one.
void addBlocks(ByteWriter& file, std::span<const std::uint8_t> bytes) {
  while (!bytes.empty()) {
    const std::size_t size = std::min<std::size_t>(bytes.size(), 255);
    file.u8(size);
    file.append(bytes.first(size));
    bytes = bytes.subspan(size);
  }
  file.u8(0);
}

void addHeader(ByteWriter& file, const Picture& frame, const std::vector<Rgb>& palette) {
  file.text("GIF89a");
  file.u16(frame.width());
  file.u16(frame.height());
  file.u8(0xF7);  // a global palette of 256 colours, 8 bits each
  file.u16(0);
  for (const Rgb& color : palette)
    for (const float part : {color.red, color.green, color.blue}) file.u8(quantized(part, 255));
}

void addExtensions(ByteWriter& file, std::string_view comment) {
  file.text("!\xFF\x0BNETSCAPE2.0");
  addBlocks(file, Bytes{1, 0, 0});  // for ever
  if (comment.empty()) return;
  file.text("!\xFE");
  addBlocks(file, Bytes(comment.begin(), comment.end()));
}

void addFrame(ByteWriter& file, const Picture& frame, const std::vector<Rgb>& palette, int delay) {
  file.text("!\xF9");
  ByteWriter control(ByteOrder::little);
  control.u8(4);  // leave the frame in place
  control.u16(delay);
  control.u8(0);
  addBlocks(file, control.bytes());
  file.text(",");
  file.u32(0);
  file.u16(frame.width());
  file.u16(frame.height());
  file.u8(0);
  file.u8(8);
  addBlocks(file, LzwCoder().code(paletteIndices(frame, palette)));
}

}  // namespace

Bytes gifFile(const std::vector<Picture>& frames, int delay, std::string_view comment) {
  const std::vector<Rgb> palette = medianCutPalette(frames);
  ByteWriter file(ByteOrder::little);
  addHeader(file, frames.front(), palette);
  addExtensions(file, comment);
  for (const Picture& frame : frames) addFrame(file, frame, palette, delay);
  file.text(";");
  return file.take();
}

}  // namespace samples
